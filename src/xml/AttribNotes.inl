// The step of AttribNotes that runs for nearly every value, in line where attributes are read.
#pragma once

#include "xml/AttribNotes.h"
#include "xml/MarkupScan.h"

namespace splitframe::markup {

inline const wchar_t* AttribNotes::Note(const wchar_t* pName, const wchar_t* pNameEnd)
{
    m_nFirstUnits |= std::uint64_t{1} << (*pName & 63);
    m_arrName[m_nNotes++] = pName;
    return pNameEnd + 2;
}

inline const wchar_t* AttribNotes::FindNext(const wchar_t* pszName)
{
    const wchar_t* pName = m_pScan + 1;
    if (*m_pScan != L' ' || MayBeNoted(pszName) || m_nNotes == MOST)
        return nullptr;
    const std::ptrdiff_t nEqual = CountEqual(pName, pszName);
    const wchar_t* pNameEnd = pName + nEqual;
    if (pszName[nEqual] != 0 || *pNameEnd != L'=' || !IsQuote(pNameEnd[1]))
        return nullptr;
    return Note(pName, pNameEnd);
}

} // namespace splitframe::markup
