// The step of AttribNotes that runs for nearly every value, in line where attributes are read.
#pragma once

#include "xml/AttribNotes.h"
#include "xml/MarkupScan.h"

namespace splitframe::markup {

// The number of a bit that equal names share, and different ones rarely.
inline unsigned AttribNotes::KindOf(const wchar_t* pName, const wchar_t* pNameEnd)
{
    return (static_cast<unsigned>(pName[0]) + 4 * static_cast<unsigned>(pNameEnd[-1]) +
            static_cast<unsigned>(pNameEnd - pName)) &
           63;
}

inline const wchar_t* AttribNotes::Note(const wchar_t* pName, const wchar_t* pNameEnd)
{
    m_nKinds |= std::uint64_t{1} << KindOf(pName, pNameEnd);
    m_arrName[m_nNotes++] = pName;
    return pNameEnd + 2;
}

inline const wchar_t* AttribNotes::FindNext(const wchar_t* pszName)
{
    const wchar_t* pName = m_pScan + 1;
    if (*m_pScan != L' ' || m_nNotes == MOST)
        return nullptr;
    const std::ptrdiff_t nEqual = CountEqual(pName, pszName);
    const wchar_t* pNameEnd = pName + nEqual;
    if (pszName[nEqual] != 0 || *pNameEnd != L'=' || nEqual == 0)
        return nullptr;
    if (pNameEnd[1] != L'"' && pNameEnd[1] != L'\'')
        return nullptr;
    // A name of letters only is matched by an attribute noted before only if that is the same.
    if ((m_nKinds >> KindOf(pName, pNameEnd) & 1) != 0)
        return nullptr;
    return Note(pName, pNameEnd);
}

} // namespace splitframe::markup
