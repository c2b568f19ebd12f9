// Reading names, values and element text out of the document.
#include "xml/Markup.h"

#include "xml/MarkupScan.h"

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <iterator>

using namespace splitframe::markup;

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
    if (iPos == 0)
        return CString();
    TokenPos token(m_strDoc);
    token.nScanPos = m_aElemPos[iPos].nStartTagLeft + 1;
    return ScanToken(token) ? x_GetToken(token) : CString();
}

// Notes attributes of the tag until one matches the name. @param bEnd  set when the tag surely has none of
// that name
// @return the attribute, or null when there is none or the tag is written in another way
const CMarkup::AttribNotes::Note* CMarkup::x_FindNote(int nTag, const wchar_t* pszAttrib, bool& bEnd) const
{
    AttribNotes& notes = m_notes;
    const wchar_t* psz = m_strDoc;
    const int nLength = m_strDoc.GetLength();
    if (notes.nTag != nTag || notes.nLength != nLength) {
        if (!StartsName(psz[nTag + 1]))
            return nullptr;
        notes.nTag = nTag;
        notes.nLength = nLength;
        notes.nScan = FindTokenEnd(psz, nTag + 2, nLength);
        notes.nNotes = 0;
    }
    for (int i = 0;; ++i) {
        if (i == notes.nNotes) {
            if (i == AttribNotes::MOST)
                return nullptr;
            AttribNotes::Note& note = notes.arrNote[i];
            note.nName = notes.nScan;
            SkipSpace(psz, note.nName);
            const wchar_t first = psz[note.nName];
            bEnd = first == L'>' || first == L'/' || first == L'?';
            if (bEnd || !StartsName(first))
                return nullptr;
            const int nNameEnd = FindTokenEnd(psz, note.nName + 1, nLength);
            const wchar_t quote = nNameEnd < nLength ? psz[nNameEnd + 1] : L'\0';
            if (psz[nNameEnd] != L'=' || (quote != L'"' && quote != L'\''))
                return nullptr;
            note.nNameLength = nNameEnd - note.nName;
            note.nValue = nNameEnd + 2;
            note.nValueEnd = FindUnit(psz, note.nValue, nLength, quote);
            if (note.nValueEnd == nLength)
                return nullptr;
            notes.nScan = note.nValueEnd + 1;
            ++notes.nNotes;
        }
        const AttribNotes::Note& note = notes.arrNote[i];
        const wchar_t* pName = psz + note.nName;
        if (*pName != *pszAttrib || !MatchesName(pName, note.nNameLength, pszAttrib))
            continue;
        if (psz[note.nValue - 2] == L'=' && psz[note.nValue - 1] == psz[note.nValueEnd])
            return &note;
        notes.nTag = -1; // the text is not what it was
        return nullptr;
    }
}

CString CMarkup::x_GetAttrib(int iPos, const wchar_t* pszAttrib) const
{
    if (iPos == 0 || m_nMainKind != MNK_ELEMENT || !pszAttrib)
        return CString();
    const int nTag = m_aElemPos[iPos].nStartTagLeft;
    if (*pszAttrib != 0 && splitframe::UnitsOf(*pszAttrib) == 1) {
        bool bEnd = false;
        if (const AttribNotes::Note* pNote = x_FindNote(nTag, pszAttrib, bEnd))
            return x_TextFromDoc(pNote->nValue, pNote->nValueEnd - 1);
        if (bEnd)
            return CString();
    }
    TokenPos token(m_strDoc);
    token.nScanPos = nTag + 1;
    if (!x_FindAttrib(token, pszAttrib))
        return CString();
    return x_TextFromDoc(token.nTokenStart,
                         token.nTokenEnd - (token.nTokenEnd < m_strDoc.GetLength() ? 0 : 1));
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
    if (iPos == 0 || elem.iFirstChild != 0 || elem.IsEmptyElement())
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
    return x_TextFromDoc(elem.nStartTagRight + 1, elem.nEndTagLeft - 1);
}

namespace {

struct Entity
{
    std::wstring_view name;
    wchar_t ch;
};

constexpr Entity ENTITIES[] = {
    {L"lt;", L'<'}, {L"amp;", L'&'}, {L"gt;", L'>'}, {L"apos;", L'\''}, {L"quot;", L'"'},
};

// The entity that the text begins with, or null.
const Entity* FindEntity(std::wstring_view text)
{
    const auto* pFound = std::find_if(std::begin(ENTITIES), std::end(ENTITIES), [text](const Entity& entity) {
        return text.substr(0, entity.name.size()) == entity.name;
    });
    return pFound == std::end(ENTITIES) ? nullptr : pFound;
}

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

} // namespace

CString CMarkup::x_TextFromDoc(int nLeft, int nRight) const
{
    const int nFirst = std::max(nLeft, 0);
    const int nLength = std::min(nRight, m_strDoc.GetLength() - 1) - nFirst + 1;
    CString strText;
    if (nLength <= 0)
        return strText;
    const wchar_t* pFrom = m_strDoc.GetString() + nFirst;
    wchar_t* pText = strText.GetBuffer(nLength);
    const int nPlain = CopyToAmpersand(pText, pFrom, nLength);
    if (nPlain == nLength) {
        strText.ReleaseBufferSetLength(nLength);
        return strText;
    }
    const wchar_t* pEnd =
        Decode(pText + nPlain, {pFrom + nPlain, static_cast<std::size_t>(nLength - nPlain)});
    strText.ReleaseBufferSetLength(static_cast<int>(pEnd - pText));
    return strText;
}
