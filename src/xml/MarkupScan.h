// The smallest steps of reading markup: white space, delimiters, name matching. Only for the sources of this
// folder.
#pragma once

#include "platform/base/Unicode.h"

#include <bit>
#include <cstddef>
#include <cstdint>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace splitframe::markup {

inline bool IsSpace(wchar_t ch)
{
    return ch == L' ' || ch == L'\t' || ch == L'\n' || ch == L'\r';
}

inline bool IsQuote(wchar_t ch)
{
    return ch == L'"' || ch == L'\'';
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

// Fetches characters that lie ahead of p into the cache. Behind the text that does no harm, so the address is
// no pointer.
inline void Prefetch(const wchar_t* p, std::size_t nAhead, std::size_t nCount)
{
    constexpr std::size_t LINE = 64;
    const auto nFrom = reinterpret_cast<std::uintptr_t>(p) + nAhead * sizeof(wchar_t);
    for (std::size_t n = 0; n < nCount * sizeof(wchar_t); n += LINE)
        __builtin_prefetch(reinterpret_cast<const void*>(nFrom + n));
}

#ifdef __SSE2__

// Eight characters as 16-bit values; those above 7FFF become 7FFF.
inline __m128i LoadEight(const wchar_t* p)
{
    return _mm_packs_epi32(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p)),
                           _mm_loadu_si128(reinterpret_cast<const __m128i*>(p) + 1));
}

#endif

// Where the token ends that p lies in: at a delimiter, or at pEnd.
inline const wchar_t* FindTokenEnd(const wchar_t* p, const wchar_t* pEnd)
{
#ifdef __SSE2__
    for (; pEnd - p >= 8; p += 8) {
        // All delimiters but the backslash lie below '@', and so do digits and a few signs.
        const __m128i eight = LoadEight(p);
        const __m128i hits = _mm_or_si128(_mm_cmplt_epi16(eight, _mm_set1_epi16(L'@')),
                                          _mm_cmpeq_epi16(eight, _mm_set1_epi16(L'\\')));
        unsigned nBits = static_cast<unsigned>(_mm_movemask_epi8(hits));
        for (; nBits != 0; nBits &= nBits - 1, nBits &= nBits - 1) { // two bits a character
            const int n = std::countr_zero(nBits) / 2;
            if (EndsToken(p[n]))
                return p + n;
        }
    }
#endif
    while (p < pEnd && !EndsToken(*p))
        ++p;
    return p;
}

// The first place at p or behind it of a character below 8000, or pEnd.
inline const wchar_t* FindUnit(const wchar_t* p, const wchar_t* pEnd, wchar_t ch)
{
#ifdef __SSE2__
    const __m128i wanted = _mm_set1_epi16(static_cast<short>(ch));
    for (; pEnd - p >= 16; p += 16) {
        const __m128i hits =
            _mm_packs_epi16(_mm_cmpeq_epi16(LoadEight(p), wanted), _mm_cmpeq_epi16(LoadEight(p + 8), wanted));
        if (const unsigned nBits = static_cast<unsigned>(_mm_movemask_epi8(hits)))
            return p + std::countr_zero(nBits);
    }
#endif
    while (p < pEnd && *p != ch)
        ++p;
    return p;
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
    if (IsQuote(first)) {
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

// Whether a name can end in front of this.
inline bool EndsName(wchar_t ch)
{
    return ch == 0 || ch == L' ' || ch == L'=' || ch == L'/' || ch == L'[';
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
    return EndsName(*pszName);
}

// How many letters a text and a name begin with alike. Delimiters and what ends a name within a name all lie
// below 'A', but for the bracket and the backslash, which are neighbours.
inline std::ptrdiff_t CountEqual(const wchar_t* pText, const wchar_t* pszName)
{
    static_assert(L'[' + 1 == L'\\');
    std::ptrdiff_t n = 0;
    while (pText[n] == pszName[n] && static_cast<unsigned>(pText[n]) > L'@' &&
           static_cast<unsigned>(pText[n]) - L'[' > 1)
        ++n;
    return n;
}

// Whether the token at p, where StartsName holds, matches a name. Moves p to the token's end.
// @param pEnd  the text's end
inline bool MatchesNameAt(const wchar_t*& p, const wchar_t* pEnd, const wchar_t* pszName)
{
    const wchar_t* pToken = p;
    const std::ptrdiff_t nEqual = CountEqual(p, pszName);
    p += nEqual;
    if (pszName[nEqual] == 0 && EndsToken(*p)) // mostly
        return true;
    p = FindTokenEnd(p, pEnd);
    return MatchesName(pToken, static_cast<int>(p - pToken), pszName);
}

} // namespace splitframe::markup
