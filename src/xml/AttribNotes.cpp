// Finding attributes in any order.
#include "xml/AttribNotes.inl"

namespace splitframe::markup {

namespace {

// Names are sought by their first unit, which others do not have.
bool StartsWithUnit(const wchar_t* pszName)
{
    return *pszName != 0 && UnitsOf(*pszName) == 1;
}

} // namespace

void AttribNotes::Begin(const wchar_t* pTag, const wchar_t* pEnd)
{
    m_pTag = pTag;
    m_nNotes = 0;
    m_nKinds = 0;
    m_pScan = FindTokenEnd(pTag + 1, pEnd);
    m_behind = Behind::Attribute;
    if (!StartsName(pTag[1]))
        Stop(Behind::Other, pEnd);
}

// Where the scan stands then, no attribute follows a space.
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
