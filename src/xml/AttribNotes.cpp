// Finding attributes in any order.
#include "xml/AttribNotes.inl"

namespace splitframe::markup {

namespace {

// Notes are searched by a name's first unit. An empty name has none, and a character above FFFF stands as two
// units in the text.
bool StartsWithUnit(const wchar_t* pszName)
{
    return *pszName != 0 && UnitsOf(*pszName) == 1;
}

} // namespace

void AttribNotes::Begin(const wchar_t* pTag, const wchar_t* pEnd)
{
    // A document is mostly read from front to back, and what the processor fetches by itself ends at a page.
    Prefetch(pTag, 1024, 128);
    m_pTag = pTag;
    m_nNotes = 0;
    m_nKinds = 0;
    m_pScan = FindTokenEnd(pTag + 1, pEnd);
    m_behind = Behind::Attribute;
    if (!StartsName(pTag[1]))
        Stop(Behind::Other, pEnd);
}

// At the text's end FindNext sees no space and leaves everything to Find.
const wchar_t* AttribNotes::Stop(Behind behind, const wchar_t* pEnd)
{
    m_pScan = pEnd;
    m_behind = behind;
    return nullptr;
}

bool AttribNotes::IsMissing(const wchar_t* pszName) const
{
    return m_behind == Behind::TagEnd && StartsWithUnit(pszName);
}

const wchar_t* AttribNotes::Find(const wchar_t* pEnd, const wchar_t* pszName)
{
    if (!StartsWithUnit(pszName))
        return nullptr;
    const wchar_t* pValue = FindNote(pEnd, pszName);
    return pValue ? pValue : FindBehind(pEnd, pszName);
}

// A name that was noted ends at its '='.
const wchar_t* AttribNotes::FindNote(const wchar_t* pEnd, const wchar_t* pszName) const
{
    for (int i = 0; i < m_nNotes; ++i) {
        const wchar_t* p = m_arrName[i];
        std::ptrdiff_t n = 0;
        while (p[n] == pszName[n] && p[n] != L'=')
            ++n;
        if (p[n] == L'=' && EndsName(pszName[n]))
            return p + n + 2;
        if (UnitsOf(pszName[n]) > 1 && MatchesNameAt(p, pEnd, pszName))
            return p + 2;
    }
    return nullptr;
}

// Notes attributes until one matches.
const wchar_t* AttribNotes::FindBehind(const wchar_t* pEnd, const wchar_t* pszName)
{
    if (m_behind != Behind::Attribute)
        return nullptr;
    for (const wchar_t* p = m_pScan; m_nNotes < MOST; ++p) {
        while (IsSpace(*p))
            ++p;
        const wchar_t* pName = p;
        if (!StartsName(*p))
            return Stop(*p == L'>' || *p == L'/' || *p == L'?' ? Behind::TagEnd : Behind::Other, pEnd);
        const bool bMatches = MatchesNameAt(p, pEnd, pszName);
        if (*p != L'=' || !IsQuote(p[1]))
            break;
        const wchar_t* pValue = Note(pName, p);
        if (bMatches)
            return pValue;
        p = FindUnit(pValue, pEnd, p[1]);
        if (p == pEnd)
            break;
        m_pScan = p + 1;
    }
    return Stop(Behind::Other, pEnd);
}

} // namespace splitframe::markup
