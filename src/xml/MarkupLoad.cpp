// Loading a document from a file: reading its bytes and telling UTF-16 from narrow text.
#include "xml/Markup.h"

#include "platform/base/Unicode.h"
#include "platform/file/File.h"

#include <algorithm>
#include <memory>
#include <new>
#include <utility>

namespace {

// Two zeros follow the bytes, so that an odd last byte of UTF-16 text has its partner.
struct FileBytes
{
    std::unique_ptr<BYTE[]> pBytes;
    UINT nCount = 0;
};

constexpr ULONGLONG LARGEST_FILE = 0x7FFFFFF0; // positions are 32-bit

// @throw CFileException
FileBytes ReadBytes(const wchar_t* pszFileName)
{
    CFile file;
    CFileException failure;
    if (!file.Open(pszFileName, CFile::modeRead, &failure))
        AfxThrowFileException(failure.m_cause, failure.m_lOsError, failure.m_strFileName);
    const ULONGLONG nLength = file.GetLength();
    if (nLength > LARGEST_FILE)
        AfxThrowFileException(CFileException::genericException, 0, pszFileName);
    FileBytes bytes;
    bytes.pBytes.reset(new (std::nothrow) BYTE[static_cast<std::size_t>(nLength) + 2]);
    if (!bytes.pBytes)
        AfxThrowMemoryException();
    bytes.nCount = file.Read(bytes.pBytes.get(), static_cast<UINT>(nLength));
    bytes.pBytes[bytes.nCount] = 0;
    bytes.pBytes[bytes.nCount + 1] = 0;
    return bytes;
}

struct FileText
{
    CString strText;
    UINT nUnits = 0; // the length in the file's own units, up to the first zero
};

FileText DecodeUtf16(const BYTE* pBytes, UINT nCount)
{
    FileText text;
    wchar_t* pOut = text.strText.GetBuffer(static_cast<int>(nCount / 2 + 1));
    for (; text.nUnits < (nCount + 1) / 2; ++text.nUnits) {
        const BYTE* pUnit = pBytes + std::size_t{2} * text.nUnits;
        const int nUnit = pUnit[0] | (pUnit[1] << 8);
        if (nUnit == 0)
            break;
        pOut[text.nUnits] = nUnit;
    }
    text.strText.ReleaseBufferSetLength(static_cast<int>(text.nUnits));
    return text;
}

FileText DecodeFile(const FileBytes& bytes)
{
    const BYTE* pBytes = bytes.pBytes.get();
    if (bytes.nCount >= 2 && pBytes[0] == 0xFF && pBytes[1] == 0xFE)
        return DecodeUtf16(pBytes + 2, bytes.nCount - 2);
    const BYTE* pEnd = std::find(pBytes, pBytes + bytes.nCount, BYTE{0});
    const std::size_t nUnits = static_cast<std::size_t>(pEnd - pBytes);
    return {CString::FromUtf8({reinterpret_cast<const char*>(pBytes), nUnits}), static_cast<UINT>(nUnits)};
}

} // namespace

int CMarkup::Load(const wchar_t* pszFileName)
{
    FileBytes bytes;
    try {
        bytes = ReadBytes(pszFileName);
    } catch (CFileException* pException) {
        const CString strWhy = pException->GetErrorMessage();
        pException->Delete();
        return x_RefuseFile(Failure::CannotRead, strWhy);
    }
    FileText text = DecodeFile(bytes);
    // Much shorter than the file: a zero cut it, so it is no text, or text of another kind.
    if (static_cast<int>(text.nUnits) < static_cast<int>(bytes.nCount / 2) - 20)
        return x_RefuseFile(Failure::TextCut,
                            L"The file is neither narrow text nor UTF-16 with a byte-order mark");
    bytes.pBytes.reset();
    return x_SetText(std::move(text.strText)) ? 1 : 0;
}

int CMarkup::x_RefuseFile(Failure failure, const CString& strWhy)
{
    m_failure = failure;
    m_strFailure = strWhy;
    m_nFailurePos = -1;
    return 0;
}
