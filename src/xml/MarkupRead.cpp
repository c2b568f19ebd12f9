// Reading names, values and element text out of the document.
#include "xml/Markup.h"

#include "xml/AttribNotes.inl"
#include "xml/Entities.h"
#include "xml/MarkupScan.h"

#include <algorithm>

using namespace splitframe::markup;

namespace {

constexpr int SHORT = 12; // the size of a text that lives inside its object, terminator included
static_assert(SHORT == CString::SHORT_CAPACITY + 1);

// How many of the SHORT characters at p stand before the first '&' or chEnd.
inline int CountShort(const wchar_t* p, wchar_t chEnd)
{
#ifdef __SSE2__
    // As bytes; what is above FF becomes FF.
    const auto* pFour = reinterpret_cast<const __m128i*>(p);
    const __m128i last = _mm_loadu_si128(pFour + 2);
    const __m128i chars = _mm_packus_epi16(LoadEight(p), _mm_packs_epi32(last, last));
    const __m128i hits = _mm_or_si128(_mm_cmpeq_epi8(chars, _mm_set1_epi8('&')),
                                      _mm_cmpeq_epi8(chars, _mm_set1_epi8(static_cast<char>(chEnd))));
    return std::countr_zero(static_cast<unsigned>(_mm_movemask_epi8(hits)) | 1U << SHORT);
#else
    return static_cast<int>(
        std::find_if(p, p + SHORT, [chEnd](wchar_t ch) { return ch == L'&' || ch == chEnd; }) - p);
#endif
}

#ifdef __SSE2__

// Copies eight characters. @return how many of them stand before the first '&'
inline int CopyEight(wchar_t* pTo, const wchar_t* pFrom)
{
    const __m128i first = _mm_loadu_si128(reinterpret_cast<const __m128i*>(pFrom));
    const __m128i second = _mm_loadu_si128(reinterpret_cast<const __m128i*>(pFrom) + 1);
    _mm_storeu_si128(reinterpret_cast<__m128i*>(pTo), first);
    _mm_storeu_si128(reinterpret_cast<__m128i*>(pTo) + 1, second);
    const __m128i hits = _mm_cmpeq_epi16(_mm_packs_epi32(first, second), _mm_set1_epi16(L'&'));
    return std::countr_zero(static_cast<unsigned>(_mm_movemask_epi8(hits)) | 1U << 16) / 2;
}

#endif

// Copies text up to its first '&'; what lies behind that in pTo is undefined then. @return how many
// characters that is
int CopyToAmpersand(wchar_t* pTo, const wchar_t* pFrom, int nCount)
{
    int n = 0;
#ifdef __SSE2__
    for (; n + 8 <= nCount; n += 8) {
        if (const int nPlain = CopyEight(pTo + n, pFrom + n); nPlain < 8)
            return n + nPlain;
    }
    // The last few together with some that were copied already.
    if (nCount >= 8)
        return nCount - 8 + CopyEight(pTo + nCount - 8, pFrom + nCount - 8);
#endif
    for (; n < nCount && pFrom[n] != L'&'; ++n)
        pTo[n] = pFrom[n];
    return n;
}

// The entity that the text begins with, or null.
const Entity* FindEntity(std::wstring_view text)
{
    for (const Entity& entity : ENTITIES) {
        if (!text.empty() && text.front() == entity.name.front() && text.starts_with(entity.name))
            return &entity;
    }
    return nullptr;
}

// Copies text, decoding entities. @return how many characters were written
int Decode(wchar_t* pTo, std::wstring_view text)
{
    const wchar_t* pFrom = text.data();
    const wchar_t* pEnd = pFrom + text.size();
    wchar_t* pOut = pTo;
    for (;;) {
        const int nPlain = CopyToAmpersand(pOut, pFrom, static_cast<int>(pEnd - pFrom));
        pOut += nPlain;
        pFrom += nPlain;
        if (pFrom == pEnd)
            return static_cast<int>(pOut - pTo);
        const Entity* pEntity = FindEntity({pFrom + 1, static_cast<std::size_t>(pEnd - pFrom - 1)});
        *pOut++ = pEntity ? pEntity->ch : L'&';
        pFrom += pEntity ? 1 + pEntity->name.size() : 1;
    }
}

std::wstring_view PartOf(const CString& strDoc, int nFirst, int nLength)
{
    if (nLength <= 0)
        return {};
    return {strDoc.GetString() + nFirst, static_cast<std::size_t>(nLength)};
}

// A part of the document with entities decoded.
[[gnu::noinline]] CString TextOf(std::wstring_view part)
{
    CString strText;
    wchar_t* pText = strText.GetBuffer(static_cast<int>(part.size()));
    strText.ReleaseBufferSetLength(Decode(pText, part));
    return strText;
}

} // namespace

CString CMarkup::x_GetToken(const TokenPos& token) const
{
    if (token.nTokenEnd < token.nTokenStart)
        return CString();
    const int nLength =
        token.nTokenEnd - token.nTokenStart + (token.nTokenEnd < m_strDoc.GetLength() ? 1 : 0);
    return CString::FromUnits(token.pszText + token.nTokenStart, nLength);
}

CString CMarkup::x_GetTagName(int iPos) const
{
    if (iPos == 0 || !x_IsInside(m_aElemPos[iPos].nStartTagLeft))
        return CString();
    TokenPos token(m_strDoc);
    token.nScanPos = m_aElemPos[iPos].nStartTagLeft + 1;
    return ScanToken(token) ? x_GetToken(token) : CString();
}

// The value that the notes have found. Its end is still to be searched.
std::wstring_view CMarkup::x_PassValue(const wchar_t* pValue) const
{
    const wchar_t* pTextEnd = m_strDoc.GetString() + m_strDoc.GetLength();
    const wchar_t* pEnd = FindUnit(pValue, pTextEnd, pValue[-1]);
    m_notes.Pass(pEnd != pTextEnd ? pEnd + 1 : pEnd);
    return {pValue, static_cast<std::size_t>(pEnd - pValue)};
}

// The value of an attribute that the notes have not found; with an empty name, the first attribute's name.
// @return without data when it is not there
std::wstring_view CMarkup::x_ScanValue(int nTag, const wchar_t* pszAttrib) const
{
    TokenPos token(m_strDoc);
    token.nScanPos = nTag + 1;
    if (m_notes.IsMissing(pszAttrib) || !x_FindAttrib(token, pszAttrib))
        return {};
    return {token.pszText + token.nTokenStart,
            static_cast<std::size_t>(token.nTokenEnd - token.nTokenStart + 1)};
}

std::wstring_view CMarkup::x_FindValue(int iPos, const wchar_t* pszAttrib) const
{
    const int nTag = m_aElemPos[iPos].nStartTagLeft;
    if (!x_IsInside(nTag))
        return {};
    const wchar_t* pTextEnd = m_strDoc.GetString() + m_strDoc.GetLength();
    m_notes.Enter(m_strDoc.GetString() + nTag, pTextEnd);
    const wchar_t* pValue = m_notes.Find(pTextEnd, pszAttrib);
    return pValue ? x_PassValue(pValue) : x_ScanValue(nTag, pszAttrib);
}

// As x_FindValue, but mostly the next attribute is asked for, and its value is short and without entities:
// then it is copied as soon as its end is found.
CString CMarkup::x_GetAttrib(int iPos, const wchar_t* pszAttrib) const
{
    if (iPos == 0 || m_nMainKind != MNK_ELEMENT || !pszAttrib)
        return CString();
    const int nTag = m_aElemPos[iPos].nStartTagLeft;
    if (!x_IsInside(nTag))
        return CString();
    const wchar_t* pTextEnd = m_strDoc.GetString() + m_strDoc.GetLength();
    m_notes.Enter(m_strDoc.GetString() + nTag, pTextEnd);
    const wchar_t* pValue = m_notes.FindNext(pszAttrib);
    if (!pValue)
        pValue = m_notes.Find(pTextEnd, pszAttrib);
    if (pValue && pTextEnd - pValue >= SHORT) {
        const int nLength = CountShort(pValue, pValue[-1]);
        if (nLength < SHORT && pValue[nLength] == pValue[-1]) {
            m_notes.Pass(pValue + nLength + 1);
            return CString::FromShortUnits(pValue, nLength);
        }
    }
    return TextOf(pValue ? x_PassValue(pValue) : x_ScanValue(nTag, pszAttrib));
}

bool CMarkup::x_FindAttrib(TokenPos& token, const wchar_t* pszAttrib) const
{
    const bool bAny = !pszAttrib || *pszAttrib == 0;
    int nMatched = 0; // the count of the name that matched; 0: none yet
    for (int nCount = 0; ScanToken(token); ++nCount) {
        if (token.bQuoted) {
            if (nMatched != 0 && nCount == nMatched + 2) // name, '=', value
                return true;
            continue;
        }
        const wchar_t* pToken = token.pszText + token.nTokenStart;
        if (*pToken == L'>' || *pToken == L'/' || *pToken == L'?')
            return false;
        if (*pToken == L'=' || nMatched != 0 || nCount == 0)
            continue;
        if (bAny)
            return true;
        if (MatchesName(pToken, token.nTokenEnd - token.nTokenStart + 1, pszAttrib))
            nMatched = nCount;
    }
    return false;
}

CString CMarkup::x_GetData(int iPos) const
{
    const ElemPos& elem = m_aElemPos[iPos];
    if (iPos == 0 || elem.iFirstChild != 0 || elem.IsEmptyElement() || !x_IsInside(elem.nStartTagRight) ||
        elem.nEndTagLeft > m_strDoc.GetLength())
        return CString();
    const int nFirst = elem.nStartTagRight + 1;
    const int nLength = elem.nEndTagLeft - nFirst;
    const wchar_t* pFirst = m_strDoc.GetString() + nFirst;
    if (nLength >= 0 && nLength < SHORT && m_strDoc.GetLength() - nFirst >= SHORT &&
        CountShort(pFirst, L'&') >= nLength)
        return CString::FromShortUnits(pFirst, nLength);
    static constexpr std::wstring_view OPENING = L"<![CDATA[";
    static constexpr std::wstring_view CLOSING = L"]]>";
    int nStart = nFirst;
    SkipSpace(m_strDoc, nStart);
    if (m_strDoc.GetString()[nStart] == L'<' && nStart + 11 < elem.nEndTagLeft) {
        const std::wstring_view content = m_strDoc.View().substr(
            static_cast<std::size_t>(nStart), static_cast<std::size_t>(elem.nEndTagLeft - nStart));
        if (content.substr(0, OPENING.size()) == OPENING) {
            const std::size_t nClosing = content.find(CLOSING, OPENING.size());
            if (nClosing != std::wstring_view::npos)
                return CString::FromUnits(content.data() + OPENING.size(),
                                          static_cast<int>(nClosing - OPENING.size()));
        }
    }
    return TextOf(PartOf(m_strDoc, nFirst, nLength));
}

CString CMarkup::x_TextFromDoc(int nLeft, int nRight) const
{
    const int nFirst = std::max(nLeft, 0);
    return TextOf(PartOf(m_strDoc, nFirst, std::min(nRight, m_strDoc.GetLength() - 1) - nFirst + 1));
}
