// The inner steps of AttribNotes, in line where attributes are read: a few instructions each, run for every
// value.
#pragma once

#include "xml/AttribNotes.h"
#include "xml/MarkupScan.h"

namespace splitframe::markup {

inline int AttribNotes::LowestBit(unsigned nBits)
{
    return std::countr_zero(nBits);
}

// One bit for each note whose name starts with the unit.
inline unsigned AttribNotes::FindFirst(wchar_t ch) const
{
#ifdef __SSE2__
    // Two bytes a note, of which the comparison makes one byte each.
    const __m128i first = _mm_set1_epi16(static_cast<short>(ch));
    const auto* pFirst = reinterpret_cast<const __m128i*>(m_arrFirst);
    const __m128i hits = _mm_packs_epi16(_mm_cmpeq_epi16(_mm_load_si128(pFirst), first),
                                         _mm_cmpeq_epi16(_mm_load_si128(pFirst + 1), first));
    return static_cast<unsigned>(_mm_movemask_epi8(hits)) & ((1U << m_nNotes) - 1);
#else
    unsigned nBits = 0;
    for (int i = 0; i < m_nNotes; ++i)
        nBits |= unsigned{m_arrFirst[i] == static_cast<std::uint16_t>(ch)} << i;
    return nBits;
#endif
}

inline bool AttribNotes::IsNote(int i, const wchar_t* pszName, Value& value) const
{
    const Note& note = m_arrNote[i];
    value = note.value;
    return MatchesName(m_pszText + note.nName, note.nNameLength, pszName);
}

inline void AttribNotes::Begin(const wchar_t* pszText, int nTag, int nLength)
{
    m_pszText = pszText;
    m_nTag = nTag;
    m_nNotes = 0;
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
        m_arrFirst[m_nNotes] = static_cast<std::uint16_t>(static_cast<std::uint32_t>(first));
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
