// The caret's steps.
#include "units/TextLine.h"

#include <platform/window/Messages.h>

#include <algorithm>

namespace {

bool IsFirstHalf(wchar_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool IsSecondHalf(wchar_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

bool IsInsideCharacter(const CString& strText, int nAt)
{
    return nAt > 0 && nAt < strText.GetLength() && IsFirstHalf(strText[nAt - 1]) &&
           IsSecondHalf(strText[nAt]);
}

int Before(const CString& strText, int nAt)
{
    const int n = std::max(nAt - 1, 0);
    return IsInsideCharacter(strText, n) ? n - 1 : n;
}

int Behind(const CString& strText, int nAt)
{
    const int n = std::min(nAt + 1, strText.GetLength());
    return IsInsideCharacter(strText, n) ? n + 1 : n;
}

} // namespace

void CTextLine::SetCaret(int nCaret, const CString& strText)
{
    m_nCaret = std::clamp(nCaret, 0, strText.GetLength());
    if (IsInsideCharacter(strText, m_nCaret))
        --m_nCaret;
    m_bHalf = false;
}

bool CTextLine::PressKey(UINT nChar, CString& strText)
{
    switch (nChar) {
    case VK_LEFT:
        SetCaret(Before(strText, m_nCaret), strText);
        return true;
    case VK_RIGHT:
        SetCaret(Behind(strText, m_nCaret), strText);
        return true;
    case VK_HOME:
        SetCaret(0, strText);
        return true;
    case VK_END:
        SetCaret(strText.GetLength(), strText);
        return true;
    case VK_DELETE:
        strText = strText.Left(m_nCaret) + strText.Mid(Behind(strText, m_nCaret));
        return true;
    default:
        return false;
    }
}

bool CTextLine::Type(UINT nChar, CString& strText, int nMost)
{
    if (nChar == VK_BACK) {
        const int nFrom = Before(strText, m_nCaret);
        const bool bChanged = nFrom < m_nCaret;
        strText = strText.Left(nFrom) + strText.Mid(m_nCaret);
        m_nCaret = nFrom;
        return bChanged;
    }
    const auto unit = static_cast<wchar_t>(nChar);
    const bool bSecond = IsSecondHalf(unit);
    // Both halves of a character or none.
    const int nNeeds = IsFirstHalf(unit) ? 2 : 1;
    const bool bFits = bSecond ? m_bHalf : strText.GetLength() + nNeeds <= nMost;
    m_bHalf = false;
    if (nChar < L' ' || nChar == 0x7F || !bFits)
        return false;
    strText = strText.Left(m_nCaret) + CString::FromUnits(&unit, 1) + strText.Mid(m_nCaret);
    ++m_nCaret;
    m_bHalf = IsFirstHalf(unit);
    return true;
}
