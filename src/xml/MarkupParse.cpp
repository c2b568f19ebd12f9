// Parsing: one pass over the text that fills the position table. It walks down and up the table itself
// instead of recursing, so nesting costs an entry and no stack.
#include "xml/Markup.h"

#include "platform/base/Exception.h"
#include "xml/MarkupScan.h"
#include "xml/TagIndex.h"

#include <algorithm>
#include <cwchar>
#include <functional>
#include <limits>
#include <utility>

using namespace splitframe::markup;

namespace {

// Finds brackets by searching the text: for parsing that starts anywhere.
class TextFinder
{
public:
    explicit TextFinder(const CString& strText) : m_pText(strText), m_nLength(strText.GetLength()) {}
    int FindOpen(int nFrom) const { return Find(nFrom, L'<'); }
    int FindClose(int nFrom) const { return Find(nFrom, L'>'); }

private:
    int Find(int nFrom, wchar_t ch) const
    {
        if (nFrom >= m_nLength)
            return m_nLength;
        const wchar_t* pFound =
            std::wmemchr(m_pText + nFrom, ch, static_cast<std::size_t>(m_nLength - nFrom));
        return pFound ? static_cast<int>(pFound - m_pText) : m_nLength;
    }

    const wchar_t* m_pText;
    int m_nLength;
};

} // namespace

bool CMarkup::x_FindChar(const wchar_t* pszText, int& nIndex, wchar_t ch)
{
    return SkipTo(pszText, nIndex, ch);
}

bool CMarkup::x_FindAny(const wchar_t* pszText, int& nIndex)
{
    return SkipSpace(pszText, nIndex);
}

bool CMarkup::x_FindToken(TokenPos& token)
{
    return ScanToken(token);
}

int CMarkup::x_ParseNode(TokenPos& token) const
{
    const wchar_t* psz = token.pszText;
    const int nStart = token.nScanPos;
    token.nTokenStart = nStart;
    if (psz[nStart] == 0)
        return MNK_NONE;
    if (psz[nStart] != L'<') {
        if (!SkipSpace(psz, token.nScanPos) || psz[token.nScanPos] == L'<')
            return MNK_WHITESPACE;
        SkipTo(psz, token.nScanPos, L'<');
        return MNK_TEXT;
    }
    const wchar_t second = psz[nStart + 1];
    if (second == 0 || psz[nStart + 2] == 0)
        return MNK_NONE;
    if (second != L'?' && second != L'!')
        return second == L'/' ? MNK_NONE : MNK_ELEMENT;

    const wchar_t third = psz[nStart + 2];
    const wchar_t* pszClosing = nullptr;
    int nKind = MNK_DOCUMENT_TYPE;
    if (second == L'?') {
        nKind = MNK_PROCESSING_INSTRUCTION;
        pszClosing = L"?>";
    } else if (third == L'[') {
        nKind = MNK_CDATA_SECTION;
        pszClosing = L"]]>";
    } else if (third == L'-') {
        nKind = MNK_COMMENT;
        pszClosing = L"-->";
    }
    if (pszClosing) {
        const wchar_t* pFound = std::wcsstr(psz + nStart, pszClosing);
        if (!pFound)
            return MNK_NONE;
        token.nScanPos = static_cast<int>(pFound - psz) + static_cast<int>(std::wcslen(pszClosing));
        return nKind;
    }
    for (int nDepth = 0; ScanToken(token);) {
        if (token.bQuoted)
            continue;
        const wchar_t ch = psz[token.nTokenStart];
        if (ch == L'[')
            ++nDepth;
        else if (ch == L']')
            --nDepth;
        else if (ch == L'>' && nDepth == 0)
            return MNK_DOCUMENT_TYPE;
    }
    return MNK_NONE;
}

int CMarkup::x_ParseError(const wchar_t* pszFormat, const wchar_t* pszName)
{
    m_strError.Format(pszFormat, pszName);
    x_ReleasePos();
    return -1;
}

// Parses one element with all that is inside it. An element that is still open keeps its last child in
// iNextSibling, which has no other use until the element is complete.
template <class Finder> class CMarkup::Parser
{
public:
    /// @param pText  the document; m_strDoc already has its length, but perhaps not yet its characters
    Parser(CMarkup& markup, Finder& finder, const wchar_t* pText)
        : m_markup(markup), m_finder(finder), m_pText(pText), m_nEnd(markup.m_strDoc.GetLength()),
          m_pTable(markup.m_aElemPos.GetData())
    {
    }

    int Parse(int iTop)
    {
        m_iTop = m_iOpen = iTop;
        for (;;) {
            switch (ReadTag()) {
            case Tag::Start:
                m_iOpen = LastEntry();
                continue;
            case Tag::Empty:
                if (m_iOpen == m_iTop)
                    return LastEntry();
                Link(LastEntry());
                continue;
            case Tag::End:
                if (m_iOpen == m_iTop)
                    return 0;
                break;
            case Tag::Error:
                return Abandon();
            }
            if (!ReadEndTag(m_iOpen))
                return Abandon();
            const int iDone = m_iOpen;
            m_pTable[iDone].iNextSibling = 0;
            m_iOpen = m_pTable[iDone].iParent;
            if (m_iOpen == m_iTop)
                return iDone;
            Link(iDone);
        }
    }

private:
    enum class Tag
    {
        Start, // of the element that now has the last entry
        Empty, // the same
        End,
        Error
    };

    int LastEntry() const { return m_markup.m_iNextFree - 1; }

    // The table grows before every tag that finds it full, end tags included.
    void ReserveEntry()
    {
        if (m_markup.m_iNextFree == m_markup.m_aElemPos.GetSize()) {
            m_markup.x_GetFreePos();
            m_markup.x_ReleasePos();
            m_pTable = m_markup.m_aElemPos.GetData(); // it has moved
        }
    }

    // Appends a complete element to the children of the open one.
    void Link(int i)
    {
        ElemPos& open = m_pTable[m_iOpen];
        (open.iNextSibling != 0 ? m_pTable[open.iNextSibling].iNextSibling : open.iFirstChild) = i;
        open.iNextSibling = i;
        open.nEndTagLeft = m_pTable[i].nEndTagRight + 1;
    }

    // After an error: no open element keeps its last child where a sibling would stand.
    int Abandon()
    {
        for (int i = m_iOpen; i != m_iTop; i = m_pTable[i].iParent)
            m_pTable[i].iNextSibling = 0;
        return -1;
    }

    // Fails where an element is sought: with an entry that was taken for it and is given back.
    Tag Fail(int nPos, const wchar_t* pszFormat)
    {
        ++m_markup.m_iNextFree;
        m_markup.m_nFailurePos = nPos;
        m_markup.x_ParseError(pszFormat);
        return Tag::Error;
    }

    CString NameOf(int i)
    {
        TokenPos token(m_pText);
        token.nScanPos = m_pTable[i].nStartTagLeft + 1;
        ScanToken(token);
        return m_markup.x_GetToken(token);
    }

    // Finds the next tag inside the open element, past comments and other nodes.
    Tag ReadTag()
    {
        ReserveEntry();
        int nScan = std::max(m_pTable[m_iOpen].nEndTagLeft, 0);
        for (;;) {
            const int nLeft = m_finder.FindOpen(nScan);
            if (nLeft == m_nEnd) // the start tag that has no end is where a reader has to look
                return Fail(m_iOpen != 0 ? m_pTable[m_iOpen].nStartTagLeft : m_nEnd,
                            L"BaseUnit tag not found");
            m_pTable[m_iOpen].nEndTagLeft = nLeft;
            // Mostly a name follows at once. It holds no '>', so its end need not be known to find the tag's.
            const wchar_t second = m_pText[nLeft + 1];
            if (StartsName(second))
                return ReadStartTagEnd(nLeft, nLeft + 2);
            if (second == L'/')
                return Tag::End;
            TokenPos token(m_pText);
            token.nScanPos = nLeft + 1;
            if (!ScanToken(token))
                return Fail(nLeft, L"Abrupt end within tag");
            if (token.bQuoted)
                return Fail(nLeft, L"Tag starts with quote");
            const wchar_t first = m_pText[token.nTokenStart];
            if (first == L'/')
                return Tag::End;
            if (first != L'?' && first != L'!')
                return ReadStartTagEnd(nLeft, token.nScanPos);
            token.nScanPos = nLeft;
            // White space before the '?' or '!' makes the scanner see a start tag, which it does not pass.
            if (const int nKind = m_markup.x_ParseNode(token); nKind == MNK_NONE || nKind == MNK_ELEMENT)
                return Fail(nLeft, L"Invalid node");
            nScan = token.nScanPos;
        }
    }

    // The first '>' ends the tag, quotes or not.
    Tag ReadStartTagEnd(int nLeft, int nScan)
    {
        const int nRight = m_finder.FindClose(nScan);
        if (nRight == m_nEnd)
            return Fail(nLeft, L"End of tag not found");
        const bool bEmpty = m_pText[nRight - 1] == L'/';
        m_pTable[m_markup.m_iNextFree++] = {
            nLeft, nRight, bEmpty ? nRight - 1 : nRight + 1, bEmpty ? nRight : 0, m_iOpen, 0, 0};
        return bEmpty ? Tag::Empty : Tag::Start;
    }

    bool ReadEndTag(int i) { return ReadPlainEndTag(i) || ReadAnyEndTag(i); }

    // "</name>" without anything else, as nearly every end tag is written.
    bool ReadPlainEndTag(int i)
    {
        ElemPos& elem = m_pTable[i];
        const wchar_t* pStart = m_pText + elem.nStartTagLeft + 1;
        const wchar_t* pEnd = m_pText + elem.nEndTagLeft + 2;
        if (pEnd[-1] != L'/' || !StartsName(*pStart))
            return false;
        std::ptrdiff_t n = CountEqual(pStart, pEnd);
        while (pStart[n] == pEnd[n] && StartsName(pEnd[n])) { // a digit or the like
            ++n;
            n += CountEqual(pStart + n, pEnd + n);
        }
        if (pEnd[n] != L'>' || !EndsToken(pStart[n]))
            return false;
        elem.nEndTagRight = static_cast<int>(pEnd + n - m_pText);
        return true;
    }

    bool ReadAnyEndTag(int i)
    {
        TokenPos token(m_pText);
        token.nScanPos = m_pTable[i].nEndTagLeft + 1;
        for (int nTokens = 1; ScanToken(token); ++nTokens) {
            if (token.bQuoted)
                continue;
            const wchar_t* pToken = m_pText + token.nTokenStart;
            if (nTokens == 1 && *pToken != L'/')
                return FailEnd(i, L"Expecting end tag of BaseUnit %s");
            if (nTokens == 2 && !MatchesStart(i, pToken, token.nTokenEnd - token.nTokenStart + 1))
                return FailEnd(i, L"End tag does not correspond to %s");
            if (nTokens > 1 && *pToken == L'>') {
                m_pTable[i].nEndTagRight = token.nTokenStart;
                return true;
            }
        }
        return FailEnd(i, L"End tag not completed for BaseUnit %s");
    }

    bool FailEnd(int i, const wchar_t* pszFormat)
    {
        m_markup.m_nFailurePos = m_pTable[i].nEndTagLeft;
        m_markup.x_ParseError(pszFormat, NameOf(i));
        return false;
    }

    // Whether an end tag's name matches the start tag's. The name in the text ends where its token does.
    bool MatchesStart(int i, const wchar_t* pToken, int nLength)
    {
        int nName = m_pTable[i].nStartTagLeft + 1;
        SkipSpace(m_pText, nName);
        const wchar_t* pName = m_pText + nName;
        for (int n = 0; n < nLength; ++n) {
            if (pName[n] != pToken[n])
                return false;
        }
        const wchar_t next = pName[nLength];
        return EndsToken(next) || next == L'[' || EndsToken(*pName);
    }

    CMarkup& m_markup;
    Finder& m_finder;
    const wchar_t* m_pText;
    int m_nEnd;
    ElemPos* m_pTable;
    int m_iTop = 0;  // whose content is parsed
    int m_iOpen = 0; // the innermost element that is open, or m_iTop
};

int CMarkup::x_ParseElem(int iParentPos)
{
    if (iParentPos < 0 || iParentPos >= m_aElemPos.GetSize())
        AfxThrowInvalidArgException();
    m_notes.Forget(); // who parses a part may have changed the text
    TextFinder finder(m_strDoc);
    return Parser<TextFinder>(*this, finder, m_strDoc).Parse(iParentPos);
}

bool CMarkup::SetDoc(const wchar_t* pszDoc)
{
    const std::size_t nLength = pszDoc ? std::wcslen(pszDoc) : 0;
    if (nLength >= static_cast<std::size_t>(std::numeric_limits<int>::max()))
        AfxThrowMemoryException();
    const std::less<> before;
    if (!before(pszDoc, m_strDoc.GetString()) && !before(m_strDoc.GetString() + m_strDoc.GetLength(), pszDoc))
        return x_SetText(CString(pszDoc)); // a part of the old text
    const CString strError(m_strError);
    CString strText;
    strText.Preallocate(static_cast<int>(nLength));
    m_strDoc = std::move(strText);
    wchar_t* pText = m_strDoc.GetBuffer(static_cast<int>(nLength));
    m_strDoc.ReleaseBufferSetLength(static_cast<int>(nLength));
    const int nEntries = m_aElemPos.GetSize();
    TagIndex index(pszDoc, pText, nLength);
    const bool bRoot = x_ParseDoc(index, pszDoc);
    if (index.Finish())
        return bRoot;
    // The same once more with characters above FFFF split, and with error text and table as they were.
    x_Clear();
    m_strError = strError;
    m_aElemPos.SetSize(nEntries);
    return x_SetText(CString(pszDoc));
}

bool CMarkup::x_SetText(CString&& strText)
{
    m_strDoc = std::move(strText);
    TagIndex index(m_strDoc, nullptr, static_cast<std::size_t>(m_strDoc.GetLength()));
    return x_ParseDoc(index, m_strDoc);
}

bool CMarkup::x_ParseDoc(TagIndex& index, const wchar_t* pText)
{
    m_iNextFree = 1;
    x_SetPos(0, 0, 0);
    m_nFailurePos = -1;
    m_iLastAdded = 0;
    m_notes.Forget();
    try {
        const int nLength = m_strDoc.GetLength();
        if (const int nEntries = nLength / 64 + 8; m_aElemPos.GetSize() < nEntries)
            m_aElemPos.SetSize(nEntries);
        m_aElemPos[0] = {};
        const int iRoot = nLength != 0 ? Parser<TagIndex>(*this, index, pText).Parse(0) : 0;
        if (iRoot <= 0)
            return x_FailDoc(iRoot);
        m_aElemPos[0].iFirstChild = iRoot;
        m_failure = Failure::None;
        m_strFailure.Empty();
        return true;
    } catch (CException*) { // memory is short
        x_Clear();
        throw;
    }
}

bool CMarkup::x_FailDoc(int iResult)
{
    m_failure = Failure::Malformed;
    if (iResult < 0) {
        m_strFailure = m_strError;
    } else if (m_strDoc.IsEmpty()) {
        m_strFailure = L"The document is empty";
    } else {
        m_strFailure = L"End tag without a start tag";
        m_nFailurePos = m_aElemPos[0].nEndTagLeft;
    }
    m_aElemPos[0] = {};
    m_iNextFree = 1;
    return false;
}

// Leaves no document, and nothing that points into one.
void CMarkup::x_Clear() noexcept
{
    m_strDoc.Empty();
    m_strFailure.Empty();
    m_failure = Failure::Malformed;
    m_nFailurePos = -1;
    m_notes.Forget();
    m_iLastAdded = 0;
    m_iNextFree = 1;
    x_SetPos(0, 0, 0);
    if (!m_aElemPos.IsEmpty())
        m_aElemPos[0] = {};
}
