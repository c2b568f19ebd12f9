// Reading a file, telling UTF-16 from narrow text, and replacing characters in its bytes.
#include "xml/FileText.h"

#include "platform/base/Unicode.h"
#include "platform/file/File.h"

#include <algorithm>
#include <new>

namespace {

constexpr ULONGLONG LARGEST_FILE = 0x7FFFFFF0; // positions are 32-bit

int UnitAt(const BYTE* p)
{
    return p[0] | (p[1] << 8);
}

void AppendUtf16(std::string& bytes, const CString& strText)
{
    for (const wchar_t unit : strText.View()) {
        bytes.push_back(static_cast<char>(unit & 0xFF));
        bytes.push_back(static_cast<char>(unit >> 8 & 0xFF));
    }
}

} // namespace

FileText::FileText(const wchar_t* pszFileName)
{
    CFile file;
    CFileException failure;
    if (!file.Open(pszFileName, CFile::modeRead, &failure))
        AfxThrowFileException(failure.m_cause, failure.m_lOsError, failure.m_strFileName);
    const ULONGLONG nLength = file.GetLength();
    if (nLength > LARGEST_FILE)
        AfxThrowFileException(CFileException::genericException, 0, pszFileName);
    m_pBytes.reset(new (std::nothrow) BYTE[static_cast<std::size_t>(nLength) + 2]);
    if (!m_pBytes)
        AfxThrowMemoryException();
    m_nCount = file.Read(m_pBytes.get(), static_cast<UINT>(nLength));
    m_pBytes[m_nCount] = 0;
    m_pBytes[m_nCount + 1] = 0;
    m_nUnits = CountUnits();
}

std::string_view FileText::GetNarrow() const
{
    return GetBytes().substr(0, m_nUnits);
}

UINT FileText::CountUnits() const
{
    if (!IsUtf16())
        return static_cast<UINT>(std::min(GetBytes().find('\0'), GetBytes().size()));
    UINT nUnits = 0;
    while (nUnits < (m_nCount - 1) / 2 && UnitAt(m_pBytes.get() + 2 + std::size_t{2} * nUnits) != 0)
        ++nUnits;
    return nUnits;
}

bool FileText::IsText() const
{
    return static_cast<int>(m_nUnits) >= static_cast<int>(m_nCount / 2) - 20;
}

CString FileText::GetText() const
{
    if (!IsUtf16())
        return CString::FromUtf8(GetNarrow());
    const int nUnits = static_cast<int>(m_nUnits);
    CString strText;
    wchar_t* pOut = strText.GetBuffer(nUnits);
    for (int i = 0; i < nUnits; ++i)
        pOut[i] = UnitAt(m_pBytes.get() + 2 + std::size_t{2} * static_cast<std::size_t>(i));
    strText.ReleaseBufferSetLength(nUnits);
    return strText;
}

// The byte that stands nUnits units of the text behind the one at nByte.
std::size_t FileText::SkipUnits(std::size_t nByte, int nUnits) const
{
    const std::size_t nSkip = static_cast<std::size_t>(std::max(nUnits, 0));
    const std::size_t nEnd =
        IsUtf16() ? nByte + 2 * nSkip : nByte + splitframe::BytesOfUnits(GetNarrow().substr(nByte), nSkip);
    return std::min<std::size_t>(nEnd, m_nCount);
}

std::string FileText::Apply(std::span<const TextEdit> edits) const
{
    const std::string_view all = GetBytes();
    std::string bytes;
    bytes.reserve(all.size());
    std::size_t nByte = 0;               // all before it is done
    std::size_t nAt = IsUtf16() ? 2 : 0; // where the character nPos stands
    int nPos = 0;
    for (const TextEdit& edit : edits) {
        nAt = SkipUnits(nAt, edit.nPos - nPos);
        bytes += all.substr(nByte, nAt - nByte);
        if (IsUtf16())
            AppendUtf16(bytes, edit.strText);
        else
            bytes += edit.strText.ToUtf8();
        nByte = nAt = SkipUnits(nAt, edit.nCount);
        nPos = edit.nPos + edit.nCount;
    }
    return bytes += all.substr(nByte);
}
