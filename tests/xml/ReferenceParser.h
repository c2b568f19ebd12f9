// The markup grammar written down a second time, directly and recursively, for comparing with the real parser
// on small inputs. It searches and copies without a thought for speed.
#pragma once

#include <cwchar>
#include <string>
#include <vector>

struct ReferenceParser
{
    struct Elem
    {
        int nStartTagLeft = 0, nStartTagRight = 0, nEndTagLeft = 0, nEndTagRight = 0;
        int iParent = 0, iFirstChild = 0, iNextSibling = 0;
        bool operator==(const Elem&) const = default;
    };
    struct Token
    {
        int nStart = 0, nEnd = -1, nScan = 0;
        bool bQuoted = false;
    };

    std::wstring strDoc;
    std::wstring strError;
    std::vector<Elem> arrElem;
    std::size_t nTableSize = 0; // the table only ever grows
    int iNextFree = 1;

    bool SetDoc(const std::wstring& str)
    {
        iNextFree = 1;
        strDoc = str;
        nTableSize = std::max(nTableSize, str.size() / 64 + 8);
        arrElem.resize(nTableSize);
        arrElem[0] = {};
        const int iRoot = str.empty() ? 0 : ParseElem(0);
        if (iRoot > 0) {
            arrElem[0].iFirstChild = iRoot;
            return true;
        }
        arrElem[0] = {};
        iNextFree = 1;
        return false;
    }

    wchar_t Ch(int n) const
    {
        return n < static_cast<int>(strDoc.size()) ? strDoc[static_cast<std::size_t>(n)] : L'\0';
    }
    Elem& At(int i) { return arrElem[static_cast<std::size_t>(i)]; }

    bool FindChar(int& n, wchar_t ch) const
    {
        while (Ch(n) != 0 && Ch(n) != ch)
            ++n;
        return Ch(n) != 0;
    }
    bool FindAny(int& n) const
    {
        while (Ch(n) != 0 && std::wcschr(L" \t\n\r", Ch(n)))
            ++n;
        return Ch(n) != 0;
    }
    bool FindToken(Token& token) const
    {
        token.bQuoted = false;
        int n = token.nScan;
        if (!FindAny(n)) {
            token.nStart = token.nEnd = token.nScan = n;
            return false;
        }
        if (Ch(n) == L'"' || Ch(n) == L'\'') {
            const wchar_t quote = Ch(n);
            token.bQuoted = true;
            token.nStart = ++n;
            const bool bFound = FindChar(n, quote);
            token.nEnd = n - 1;
            token.nScan = bFound ? n + 1 : n;
            return true;
        }
        token.nStart = n;
        while (Ch(n) != 0 && !std::wcschr(L" \t\n\r<>=\\/?!", Ch(n)))
            ++n;
        if (n == token.nStart)
            ++n;
        token.nEnd = n - 1;
        token.nScan = n;
        return true;
    }
    std::wstring GetToken(const Token& token) const
    {
        if (token.nEnd < token.nStart)
            return {};
        return strDoc.substr(static_cast<std::size_t>(token.nStart),
                             static_cast<std::size_t>(token.nEnd - token.nStart + 1));
    }
    bool Match(const Token& token, const std::wstring& name) const
    {
        const std::wstring str = GetToken(token);
        if (name.compare(0, str.size(), str) != 0)
            return false;
        const wchar_t next = str.size() < name.size() ? name[str.size()] : L'\0';
        return next == 0 || std::wcschr(L" =/[", next);
    }
    int ParseNode(Token& token) const
    {
        const int p = token.nScan;
        if (Ch(p) != L'<' || Ch(p + 1) == 0 || Ch(p + 2) == 0)
            return 0; // only called on '<'
        std::wstring closing;
        int nKind = 0;
        if (Ch(p + 1) == L'?')
            nKind = 16, closing = L"?>";
        else if (Ch(p + 1) == L'!' && Ch(p + 2) == L'[')
            nKind = 8, closing = L"]]>";
        else if (Ch(p + 1) == L'!' && Ch(p + 2) == L'-')
            nKind = 32, closing = L"-->";
        else if (Ch(p + 1) != L'!')
            return Ch(p + 1) == L'/' ? 0 : 1;
        if (nKind != 0) {
            const std::size_t nFound = strDoc.find(closing, static_cast<std::size_t>(p));
            if (nFound == std::wstring::npos)
                return 0;
            token.nScan = static_cast<int>(nFound + closing.size());
            return nKind;
        }
        int nDepth = 0;
        while (FindToken(token)) {
            if (token.bQuoted)
                continue;
            if (Ch(token.nStart) == L'[')
                ++nDepth;
            else if (Ch(token.nStart) == L']')
                --nDepth;
            else if (Ch(token.nStart) == L'>' && nDepth == 0)
                return 64;
        }
        return 0;
    }
    int Error(const std::wstring& before, const std::wstring& name = {}, const std::wstring& after = {})
    {
        strError = before + name + after;
        --iNextFree;
        return -1;
    }
    int GetFree()
    {
        if (iNextFree == static_cast<int>(nTableSize))
            arrElem.resize(nTableSize += nTableSize / 2);
        return iNextFree++;
    }
    int ParseElem(int p)
    {
        const int i = GetFree();
        At(i).nStartTagLeft = At(p).nEndTagLeft;
        At(i).iParent = p;
        At(i).iFirstChild = At(i).iNextSibling = 0;
        Token token;
        int c = At(p).nEndTagLeft;
        std::wstring name;
        while (name.empty()) {
            if (!FindChar(c, L'<'))
                return Error(L"BaseUnit tag not found");
            At(i).nStartTagLeft = c;
            At(p).nEndTagLeft = c;
            token.nScan = c + 1;
            if (!FindToken(token))
                return Error(L"Abrupt end within tag");
            if (token.bQuoted)
                return Error(L"Tag starts with quote");
            const wchar_t first = Ch(token.nStart);
            if (first == L'?' || first == L'!') {
                token.nScan = c;
                if (const int nKind = ParseNode(token); nKind == 0 || nKind == 1)
                    return Error(L"Invalid node");
                c = token.nScan;
            } else if (first == L'/') {
                --iNextFree;
                return 0;
            } else {
                name = GetToken(token);
                c = token.nScan;
                if (!FindChar(c, L'>'))
                    return Error(L"End of tag not found");
            }
        }
        At(i).nStartTagRight = c;
        if (Ch(c - 1) == L'/') {
            At(i).nEndTagLeft = c - 1;
            At(i).nEndTagRight = c;
            return i;
        }
        At(i).nEndTagLeft = c + 1;
        for (int iLast = 0;;) {
            const int iChild = ParseElem(i);
            if (iChild < 0)
                return -1;
            if (iChild == 0)
                break;
            (iLast ? At(iLast).iNextSibling : At(i).iFirstChild) = iChild;
            At(i).nEndTagLeft = At(iChild).nEndTagRight + 1;
            iLast = iChild;
        }
        int n = At(i).nEndTagLeft;
        if (!FindChar(n, L'<'))
            return Error(L"End tag of ", name, L" BaseUnit not found");
        At(i).nEndTagLeft = n;
        token.nScan = n + 1;
        int nTokens = 0;
        while (FindToken(token)) {
            ++nTokens;
            if (token.bQuoted)
                continue;
            if (nTokens == 1 && Ch(token.nStart) != L'/')
                return Error(L"Expecting end tag of BaseUnit ", name);
            if (nTokens == 2 && !Match(token, name))
                return Error(L"End tag does not correspond to ", name);
            if (nTokens >= 2 && Ch(token.nStart) == L'>') {
                At(i).nEndTagRight = token.nStart;
                return i;
            }
        }
        return Error(L"End tag not completed for BaseUnit ", name);
    }
};
