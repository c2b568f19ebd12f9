// Reading names, values and element text out of the document.
#include "xml/Markup.h"

#include "xml/AttribNotes.inl"
#include "xml/Entities.h"
#include "xml/MarkupScan.h"

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <iterator>

using namespace splitframe::markup;

namespace {

// The entity that the text begins with, or null.
const Entity* FindEntity(std::wstring_view text)
{
    const auto* pFound = std::find_if(std::begin(ENTITIES), std::end(ENTITIES), [text](const Entity& entity) {
        return text.substr(0, entity.name.size()) == entity.name;
    });
    return pFound == std::end(ENTITIES) ? nullptr : pFound;
}

#ifdef __SSE2__

constexpr int SHORT = 12; // the size of a text that lives inside its object, terminator included
static_assert(SHORT == CString::SHORT_CAPACITY + 1);

// Short text, copied as a whole: room and source must have SHORT characters. @return as CopyToAmpersand
int CopyShort(wchar_t* pTo, const wchar_t* pFrom, int nCount)
{
    const __m128i wanted = _mm_set1_epi32(L'&');
    __m128i hits[3];
    for (int i = 0; i < 3; ++i) {
        const __m128i four = _mm_loadu_si128(reinterpret_cast<const __m128i*>(pFrom) + i);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(pTo) + i, four);
        hits[i] = _mm_cmpeq_epi32(four, wanted);
    }
    const __m128i all = _mm_packs_epi16(_mm_packs_epi32(hits[0], hits[1]), _mm_packs_epi32(hits[2], hits[2]));
    return std::countr_zero(static_cast<unsigned>(_mm_movemask_epi8(all)) | 1U << nCount);
}

#endif

// Copies text up to its first '&'. @return how many characters were copied
int CopyToAmpersand(wchar_t* pTo, const wchar_t* pFrom, int nCount)
{
    int n = 0;
#ifdef __SSE2__
    const __m128i wanted = _mm_set1_epi32(L'&');
    for (; n + 4 <= nCount; n += 4) {
        const __m128i four = _mm_loadu_si128(reinterpret_cast<const __m128i*>(pFrom + n));
        if (_mm_movemask_epi8(_mm_cmpeq_epi32(four, wanted)) != 0)
            break;
        _mm_storeu_si128(reinterpret_cast<__m128i*>(pTo + n), four);
    }
    if (n + 4 > nCount && nCount >= 4) { // the last few together with some that were copied already
        const __m128i four = _mm_loadu_si128(reinterpret_cast<const __m128i*>(pFrom + nCount - 4));
        if (_mm_movemask_epi8(_mm_cmpeq_epi32(four, wanted)) == 0) {
            _mm_storeu_si128(reinterpret_cast<__m128i*>(pTo + nCount - 4), four);
            return nCount;
        }
    }
#endif
    for (; n < nCount && pFrom[n] != L'&'; ++n)
        pTo[n] = pFrom[n];
    return n;
}

// Copies text, decoding entities. @return the end of what was written
wchar_t* Decode(wchar_t* pOut, std::wstring_view text)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        const Entity* pEntity = text[i] == L'&' ? FindEntity(text.substr(i + 1)) : nullptr;
        *pOut++ = pEntity ? pEntity->ch : text[i];
        i += pEntity ? pEntity->name.size() : 0;
    }
    return pOut;
}

// Takes the rest of a text in, from the first '&' on.
[[gnu::noinline]] void DecodeRest(CString& strText, const wchar_t* pFrom, int nPlain, int nLength)
{
    wchar_t* pText = strText.GetBuffer(nLength);
    const wchar_t* pEnd =
        Decode(pText + nPlain, {pFrom + nPlain, static_cast<std::size_t>(nLength - nPlain)});
    strText.ReleaseBufferSetLength(static_cast<int>(pEnd - pText));
}

// A part of the document, which holds it, with entities decoded.
inline CString TextOf(const CString& strDoc, int nFirst, int nLength)
{
    CString strText;
    if (nLength <= 0)
        return strText;
    const wchar_t* pFrom = strDoc.GetString() + nFirst;
    wchar_t* pText = strText.GetBuffer(nLength);
#ifdef __SSE2__
    const bool bShort = nLength < SHORT && strDoc.GetLength() - nFirst >= SHORT;
    const int nPlain = bShort ? CopyShort(pText, pFrom, nLength) : CopyToAmpersand(pText, pFrom, nLength);
#else
    const int nPlain = CopyToAmpersand(pText, pFrom, nLength);
#endif
    if (nPlain == nLength)
        strText.ReleaseBufferSetLength(nLength);
    else
        DecodeRest(strText, pFrom, nPlain, nLength);
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

// Where an attribute's value stands; with an empty name, the first attribute's name. @return whether it is
// there
bool CMarkup::x_FindValue(int iPos, const wchar_t* pszAttrib, AttribNotes::Value& value) const
{
    const int nTag = m_aElemPos[iPos].nStartTagLeft;
    if (!x_IsInside(nTag))
        return false;
    if (*pszAttrib != 0 && splitframe::UnitsOf(*pszAttrib) == 1) {
        const auto answer = m_notes.Find(m_strDoc, nTag, m_strDoc.GetLength(), pszAttrib, value);
        if (answer != AttribNotes::Answer::Unknown)
            return answer == AttribNotes::Answer::Found;
    }
    TokenPos token(m_strDoc);
    token.nScanPos = nTag + 1;
    if (!x_FindAttrib(token, pszAttrib))
        return false;
    value = {token.nTokenStart, token.nTokenEnd + 1};
    return true;
}

// In one piece with the search: this runs for every value.
[[gnu::flatten]] CString CMarkup::x_GetAttrib(int iPos, const wchar_t* pszAttrib) const
{
    AttribNotes::Value value;
    if (iPos == 0 || m_nMainKind != MNK_ELEMENT || !pszAttrib || !x_FindValue(iPos, pszAttrib, value))
        return CString();
    return TextOf(m_strDoc, value.nStart, value.nEnd - value.nStart);
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
    static constexpr std::wstring_view OPENING = L"<![CDATA[";
    static constexpr std::wstring_view CLOSING = L"]]>";
    int nStart = elem.nStartTagRight + 1;
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
    return TextOf(m_strDoc, elem.nStartTagRight + 1, elem.nEndTagLeft - elem.nStartTagRight - 1);
}

CString CMarkup::x_TextFromDoc(int nLeft, int nRight) const
{
    const int nFirst = std::max(nLeft, 0);
    return TextOf(m_strDoc, nFirst, std::min(nRight, m_strDoc.GetLength() - 1) - nFirst + 1);
}
