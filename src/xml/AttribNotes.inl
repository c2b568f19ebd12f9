// The inner steps of AttribNotes, in line where attributes are read: a few instructions each, run for every
// value.
#pragma once

#include "xml/AttribNotes.h"
#include "xml/MarkupScan.h"

namespace splitframe::markup {

inline bool AttribNotes::FindNote(const wchar_t* pszName, Value& value) const
{
    for (int i = 0; i < m_nNotes; ++i) {
        const Note& note = m_arrNote[i];
        const wchar_t* pName = m_pszText + note.nName;
        if (*pName == *pszName && MatchesName(pName, note.nNameLength, pszName)) {
            value = note.value;
            return true;
        }
    }
    return false;
}

inline void AttribNotes::Begin(const wchar_t* pszText, int nTag, int nLength)
{
    m_pszText = pszText;
    m_nTag = nTag;
    m_nNotes = 0;
    m_nFirstUnits = 0;
    m_answerBehind = StartsName(pszText[nTag + 1]) ? Answer::Found : Answer::Unknown;
    m_nScan = FindTokenEnd(pszText, nTag + 1, nLength);
}

// Notes attributes until one matches.
inline AttribNotes::Answer AttribNotes::FindBehind(int nLength, const wchar_t* pszName, Value& value)
{
    const wchar_t* psz = m_pszText;
    for (int nName = m_nScan; m_nNotes < MOST;) {
        SkipSpace(psz, nName);
        const wchar_t first = psz[nName];
        if (!StartsName(first)) {
            m_answerBehind = first == L'>' || first == L'/' || first == L'?' ? Answer::None : Answer::Unknown;
            return m_answerBehind;
        }
        int nNameEnd = nName;
        const bool bMatches = MatchesNameAt(psz, nNameEnd, pszName, nLength);
        if (psz[nNameEnd] != L'=')
            break;
        const wchar_t quote = psz[nNameEnd + 1];
        if (quote != L'"' && quote != L'\'')
            break;
        const Value found = {nNameEnd + 2, FindUnit(psz, nNameEnd + 2, nLength, quote)};
        if (found.nEnd == nLength)
            break;
        m_nFirstUnits |= std::uint64_t{1} << (first & 63);
        m_arrNote[m_nNotes++] = {nName, nNameEnd - nName, found};
        m_nScan = nName = found.nEnd + 1;
        if (bMatches) {
            value = found;
            return Answer::Found;
        }
    }
    m_answerBehind = Answer::Unknown;
    return Answer::Unknown;
}

} // namespace splitframe::markup
