// Finding attributes in any order.
#include "xml/AttribNotes.inl"

namespace splitframe::markup {

void AttribNotes::Begin(const wchar_t* pTag, const wchar_t* pEnd)
{
    m_pTag = pTag;
    m_nNotes = 0;
    m_nFirstUnits = 1;
    m_pScan = FindTokenEnd(pTag + 1, pEnd);
    m_answerBehind = Answer::Found;
    if (!StartsName(pTag[1]))
        End(Answer::Unknown, pEnd);
}

// Where the scan stands then, no attribute follows a space.
AttribNotes::Answer AttribNotes::End(Answer answer, const wchar_t* pEnd)
{
    m_pScan = pEnd;
    return m_answerBehind = answer;
}

// The names passed so far, where one starts alike, then the rest of the tag.
AttribNotes::Answer AttribNotes::Find(const wchar_t* pEnd, const wchar_t* pszName, const wchar_t*& pValue)
{
    if (MayBeNoted(pszName)) {
        pValue = FindNote(pEnd, pszName);
        if (pValue)
            return Answer::Found;
    }
    return m_answerBehind == Answer::Found ? FindBehind(pEnd, pszName, pValue) : m_answerBehind;
}

const wchar_t* AttribNotes::FindNote(const wchar_t* pEnd, const wchar_t* pszName) const
{
    for (int i = 0; i < m_nNotes; ++i) {
        const wchar_t* p = m_arrName[i];
        if (*p == *pszName && MatchesNameAt(p, pEnd, pszName))
            return p + 2;
    }
    return nullptr;
}

// Notes attributes until one matches.
AttribNotes::Answer AttribNotes::FindBehind(const wchar_t* pEnd, const wchar_t* pszName,
                                            const wchar_t*& pValue)
{
    for (const wchar_t* p = m_pScan; m_nNotes < MOST; ++p) {
        while (IsSpace(*p))
            ++p;
        const wchar_t* pName = p;
        if (!StartsName(*p))
            return End(*p == L'>' || *p == L'/' || *p == L'?' ? Answer::None : Answer::Unknown, pEnd);
        const bool bMatches = MatchesNameAt(p, pEnd, pszName);
        if (*p != L'=' || !IsQuote(p[1]))
            break;
        pValue = Note(pName, p);
        if (bMatches)
            return Answer::Found;
        p = FindUnit(p + 2, pEnd, p[1]);
        if (p == pEnd)
            break;
        m_pScan = p + 1;
    }
    return End(Answer::Unknown, pEnd);
}

} // namespace splitframe::markup
