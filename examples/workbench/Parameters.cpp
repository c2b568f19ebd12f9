// Cutting parameter strings into pieces.
#include "Parameters.h"

#include "plant/Instrument.h"

namespace {

/// The text from nFrom up to a separator or the end; nFrom moves behind it.
CString NextPiece(const CString& strText, wchar_t separator, int& nFrom)
{
    const int nEnd = strText.Find(separator, nFrom);
    CString strPiece = nEnd < 0 ? strText.Mid(nFrom) : strText.Mid(nFrom, nEnd - nFrom);
    nFrom = nEnd < 0 ? strText.GetLength() : nEnd + 1;
    return strPiece.Trim();
}

} // namespace

CString CParameters::GetText(const wchar_t* pszKey) const
{
    for (int nFrom = 0; nFrom < m_strText.GetLength();) {
        const CString strPiece = NextPiece(m_strText, L';', nFrom);
        const int nEquals = strPiece.Find(L'=');
        if (nEquals >= 0 && strPiece.Left(nEquals).CompareNoCase(pszKey) == 0)
            return strPiece.Mid(nEquals + 1);
    }
    return {};
}

bool CParameters::GetPair(const wchar_t* pszKey, CString& strFirst, CString& strSecond) const
{
    const CString strValue = GetText(pszKey);
    int nFrom = 0;
    strFirst = NextPiece(strValue, L',', nFrom);
    strSecond = strValue.Mid(nFrom).Trim();
    return !strFirst.IsEmpty();
}

bool CParameters::IsSet(const wchar_t* pszKey) const
{
    return GetText(pszKey) == L"1";
}

std::vector<int> CParameters::GetInstruments(const wchar_t* pszKey) const
{
    std::vector<int> arrInstrument;
    const CString strList = GetText(pszKey);
    for (int nFrom = 0; nFrom < strList.GetLength();) {
        const int nInstrument = FindInstrument(NextPiece(strList, L',', nFrom));
        if (nInstrument >= 0)
            arrInstrument.push_back(nInstrument);
    }
    return arrInstrument;
}
