// The smallest steps of reading markup: white space, delimiters, name matching. Only for the sources of this
// folder.
#pragma once

#include "platform/base/Unicode.h"

#include <bit>
#include <cstddef>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace splitframe::markup {

inline bool IsSpace(wchar_t ch)
{
    return ch == L' ' || ch == L'\t' || ch == L'\n' || ch == L'\r';
}

// One bit for each character below 64 that ends a token, the terminating zero included.
constexpr unsigned long long DelimiterBits()
{
    unsigned long long nBits = 1;
    for (const char ch : {' ', '\t', '\n', '\r', '<', '>', '=', '/', '?', '!'})
        nBits |= 1ULL << ch;
    return nBits;
}

inline bool EndsToken(wchar_t ch)
{
    constexpr unsigned long long nBits = DelimiterBits();
    return static_cast<unsigned>(ch) < 64 ? (nBits >> ch & 1) != 0 : ch == L'\\';
}

// Whether a token of more than one character can start here: neither white space, quote nor delimiter.
inline bool StartsName(wchar_t ch)
{
    constexpr unsigned long long nBits = DelimiterBits() | 1ULL << L'"' | 1ULL << L'\'';
    return static_cast<unsigned>(ch) < 64 ? (nBits >> ch & 1) == 0 : ch != L'\\';
}

// Moves past white space. @return false at the end of the text
inline bool SkipSpace(const wchar_t* pszText, int& nIndex)
{
    while (IsSpace(pszText[nIndex]))
        ++nIndex;
    return pszText[nIndex] != 0;
}

// Moves to the character or to the end. @return whether it was found
inline bool SkipTo(const wchar_t* pszText, int& nIndex, wchar_t ch)
{
    while (pszText[nIndex] != 0 && pszText[nIndex] != ch)
        ++nIndex;
    return pszText[nIndex] != 0;
}

#ifdef __SSE2__

// Eight characters as 16-bit values; those above 7FFF become 7FFF.
inline __m128i LoadEight(const wchar_t* p)
{
    return _mm_packs_epi32(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p)),
                           _mm_loadu_si128(reinterpret_cast<const __m128i*>(p) + 1));
}

#endif

// Where the token ends that nFrom lies in: at a delimiter, or at nEnd.
inline int FindTokenEnd(const wchar_t* pszText, int nFrom, int nEnd)
{
#ifdef __SSE2__
    for (; nFrom + 8 <= nEnd; nFrom += 8) {
        // All delimiters but the backslash lie below '@', and so do digits and a few signs.
        const __m128i eight = LoadEight(pszText + nFrom);
        const __m128i hits = _mm_or_si128(_mm_cmplt_epi16(eight, _mm_set1_epi16(L'@')),
                                          _mm_cmpeq_epi16(eight, _mm_set1_epi16(L'\\')));
        unsigned nBits = static_cast<unsigned>(_mm_movemask_epi8(hits));
        for (; nBits != 0; nBits &= nBits - 1, nBits &= nBits - 1) { // two bits a character
            const int n = nFrom + std::countr_zero(nBits) / 2;
            if (EndsToken(pszText[n]))
                return n;
        }
    }
#endif
    while (nFrom < nEnd && !EndsToken(pszText[nFrom]))
        ++nFrom;
    return nFrom;
}

// The first position at nFrom or behind it of a character below 8000, or nEnd.
inline int FindUnit(const wchar_t* pszText, int nFrom, int nEnd, wchar_t ch)
{
#ifdef __SSE2__
    const __m128i wanted = _mm_set1_epi16(static_cast<short>(ch));
    if (nFrom + 8 <= nEnd) { // most values are short
        const __m128i hits = _mm_cmpeq_epi16(LoadEight(pszText + nFrom), wanted);
        if (const unsigned nBits = static_cast<unsigned>(_mm_movemask_epi8(hits)))
            return nFrom + std::countr_zero(nBits) / 2;
        nFrom += 8;
    }
    for (; nFrom + 16 <= nEnd; nFrom += 16) {
        const __m128i hits = _mm_packs_epi16(_mm_cmpeq_epi16(LoadEight(pszText + nFrom), wanted),
                                             _mm_cmpeq_epi16(LoadEight(pszText + nFrom + 8), wanted));
        if (const unsigned nBits = static_cast<unsigned>(_mm_movemask_epi8(hits)))
            return nFrom + std::countr_zero(nBits);
    }
#endif
    while (nFrom < nEnd && pszText[nFrom] != ch)
        ++nFrom;
    return nFrom;
}

// Scans the token at nScanPos: see CMarkup::x_FindToken. Kept inline, since all reading goes through it.
template <class TokenPos> inline bool ScanToken(TokenPos& token)
{
    const wchar_t* psz = token.pszText;
    int n = token.nScanPos;
    token.bQuoted = false;
    if (!SkipSpace(psz, n)) {
        token.nTokenStart = token.nTokenEnd = token.nScanPos = n;
        return false;
    }
    const wchar_t first = psz[n];
    if (first == L'"' || first == L'\'') {
        token.bQuoted = true;
        token.nTokenStart = ++n;
        const bool bClosed = SkipTo(psz, n, first);
        token.nTokenEnd = n - 1;
        token.nScanPos = bClosed ? n + 1 : n;
        return true;
    }
    token.nTokenStart = n++;
    if (!EndsToken(first)) {
        while (!EndsToken(psz[n]))
            ++n;
    }
    token.nTokenEnd = n - 1;
    token.nScanPos = n;
    return true;
}

// Whether a token matches a name: the name starts with the token and then ends or goes on with one of " =/[".
inline bool MatchesName(const wchar_t* pToken, int nLength, const wchar_t* pszName)
{
    for (int i = 0; i < nLength; ++i, ++pszName) {
        if (pToken[i] == *pszName)
            continue;
        // A character above FFFF of the name stands as two units in the text.
        if (UnitsOf(*pszName) == 1 || pToken[i] != HighUnit(*pszName) || ++i == nLength ||
            pToken[i] != LowUnit(*pszName))
            return false;
    }
    return *pszName == 0 || *pszName == L' ' || *pszName == L'=' || *pszName == L'/' || *pszName == L'[';
}

// Whether the token that starts at nIndex, where StartsName holds, matches a name. Moves nIndex to the
// token's end.
inline bool MatchesNameAt(const wchar_t* pszText, int& nIndex, const wchar_t* pszName, int nLength)
{
    // Mostly both are equal letters up to the token's end; every delimiter but the backslash lies below 'A'.
    const wchar_t* pToken = pszText + nIndex;
    int n = 0;
    while (pToken[n] == pszName[n] && static_cast<unsigned>(pToken[n]) > L'@' && pToken[n] != L'\\')
        ++n;
    if (pszName[n] == 0 && EndsToken(pToken[n])) {
        nIndex += n;
        return true;
    }
    const int nEnd = FindTokenEnd(pszText, nIndex + n, nLength);
    const bool bMatches = MatchesName(pToken, nEnd - nIndex, pszName);
    nIndex = nEnd;
    return bMatches;
}

} // namespace splitframe::markup
