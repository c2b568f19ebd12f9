// Saving a document as UTF-16, piece by piece.
#include "xml/Markup.h"

#include "platform/file/ReplacementFile.h"

#include <algorithm>
#include <vector>

namespace {

constexpr int PIECE = 32768;

void WriteUnits(CFile& file, const CString& strText)
{
    std::vector<BYTE> bytes(static_cast<std::size_t>(std::min(strText.GetLength(), PIECE)) * 2);
    const wchar_t* pUnits = strText;
    for (int nLeft = strText.GetLength(); nLeft > 0;) {
        const int nCount = std::min(nLeft, PIECE);
        BYTE* pOut = bytes.data();
        for (int i = 0; i < nCount; ++i) {
            *pOut++ = static_cast<BYTE>(pUnits[i] & 0xFF);
            *pOut++ = static_cast<BYTE>(pUnits[i] >> 8 & 0xFF);
        }
        file.Write(bytes.data(), static_cast<UINT>(nCount) * 2);
        pUnits += nCount;
        nLeft -= nCount;
    }
}

} // namespace

int CMarkup::Save(const wchar_t* pszFileName) const
{
    CFile file;
    // Whether it can be opened shows when it is written to.
    file.Open(pszFileName, CFile::modeCreate | CFile::modeWrite);
    WriteUnits(file, m_strDoc);
    return 1;
}

void CMarkup::SaveWithMark(const wchar_t* pszFileName) const
{
    static constexpr BYTE MARK[] = {0xFF, 0xFE};
    CReplacementFile file;
    CFileException failure;
    if (!file.Open(pszFileName, &failure))
        AfxThrowFileException(failure.m_cause, failure.m_lOsError, failure.m_strFileName);
    file.Write(MARK, sizeof(MARK));
    WriteUnits(file, m_strDoc);
    file.Commit();
}
