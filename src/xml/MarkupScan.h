// The smallest steps of reading markup: white space, delimiters, name matching. Only for the sources of this
// folder.
#pragma once

#include "platform/base/Unicode.h"

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

} // namespace splitframe::markup
