// CMarkup: reads XML text. It keeps one document as a single text and, for every element, the indices of its
// two tags in a table of positions; names and values are cut out of the text when they are asked for. Knows
// text and files; knows nothing of layouts. Nesting is limited by memory only: nothing here recurses.
//
// Three cursors move over the elements: the parent, the main (current) element and a child of the main
// element.
#pragma once

#include "platform/base/Array.h"
#include "platform/base/Export.h"
#include "platform/base/String.h"
#include "xml/AttribNotes.h"

namespace splitframe::markup {
class TagIndex;
}

/// Kinds of nodes, as CMarkup's node scanner tells them.
enum MarkupNodeKind
{
    MNK_NONE = 0, // end of text, an end tag, or a node that is not closed
    MNK_ELEMENT = 1,
    MNK_TEXT = 2,
    MNK_WHITESPACE = 4,
    MNK_CDATA_SECTION = 8,
    MNK_PROCESSING_INSTRUCTION = 16,
    MNK_COMMENT = 32,
    MNK_DOCUMENT_TYPE = 64
};

/// One document and three cursors over it. Positions are 0-based character (UTF-16 unit) indices into the
/// document. All operations that read answer empty text where there is nothing to read. A null name means any
/// element. A name matches a search text that equals it or goes on with a space, '=', '/' or '[' behind it.
class SPLITFRAME_API CMarkup
{
public:
    /// Why the last SetDoc or Load did not bring a document with a root element.
    enum class Failure
    {
        None,       // it did
        CannotRead, // the file can not be opened or read; the document before is still there
        TextCut,    // the file is no text: a zero cuts it; the document before is still there
        Malformed   // there is no root element, or a parse error
    };

    /// An empty document.
    CMarkup();
    /// The document pszDoc, as by SetDoc.
    explicit CMarkup(const wchar_t* pszDoc);
    CMarkup(const CMarkup&) = delete;
    CMarkup& operator=(const CMarkup&) = delete;
    virtual ~CMarkup();

    /// Replaces the document and parses it; no cursor is set afterwards. Only the first element at document
    /// level is read. The text is kept even when parsing fails. @param pszDoc  null means empty
    /// @return whether there is a root element; if not, GetFailureText tells why
    bool SetDoc(const wchar_t* pszDoc);
    /// Reads a file: UTF-16, low byte first, when it starts with the mark FF FE, else UTF-8.
    /// @return 1 if it was read and parsed, else 0; GetFailure tells the reasons apart
    int Load(const wchar_t* pszFileName);

    const CString& GetDoc() const { return m_strDoc; }
    bool IsWellFormed() const;
    /// Text of the last parse error; a parse that succeeds does not clear it.
    const CString& GetError() const { return m_strError; }

    Failure GetFailure() const { return m_failure; }
    /// What went wrong in the last SetDoc or Load, in words; empty when it succeeded.
    const CString& GetFailureText() const { return m_strFailure; }
    /// Where the tag stands at which the last SetDoc or Load failed; -1 when it succeeded or got no text to
    /// parse.
    int GetFailurePos() const { return m_nFailurePos; }

    /// Moves to the next sibling of that name behind the main element, or to the first one when there is
    /// none.
    bool FindElem(const wchar_t* pszName = nullptr);
    /// The same with the child position; without a main element the next one is taken first.
    bool FindChildElem(const wchar_t* pszName = nullptr);
    /// The main element becomes the parent, its child the main element.
    bool IntoElem();
    /// The parent becomes the main element, the main element its child.
    bool OutOfElem();
    void ResetPos() { x_SetPos(0, 0, 0); }
    void ResetMainPos() { x_SetPos(m_iParentPos, 0, 0); }
    void ResetChildPos() { x_SetPos(m_iParentPos, m_iMainPos, 0); }

    CString GetTagName() const { return x_GetTagName(m_iMainPos); }
    CString GetChildTagName() const { return x_GetTagName(m_iChildPos); }
    /// The decoded value of an attribute. With a null name nothing; with an empty one the first attribute's
    /// name.
    CString GetAttrib(const wchar_t* pszAttrib) const { return x_GetAttrib(m_iMainPos, pszAttrib); }
    CString GetChildAttrib(const wchar_t* pszAttrib) const { return x_GetAttrib(m_iChildPos, pszAttrib); }
    /// The text of an element without children: its CDATA section as it stands, or its whole content,
    /// decoded.
    CString GetData() const { return x_GetData(m_iMainPos); }
    CString GetChildData() const { return x_GetData(m_iChildPos); }

    /// Where the start tag of the main (child) element begins, or -1 when that cursor is not set.
    int GetElemPos() const { return x_GetStart(m_iMainPos); }
    int GetChildElemPos() const { return x_GetStart(m_iChildPos); }

protected:
    /// Positions of one element's tags, and its neighbours in the table. Entry 0 stands for the document.
    struct ElemPos
    {
        int nStartTagLeft;  // '<' of the start tag
        int nStartTagRight; // '>' of the start tag
        int nEndTagLeft;    // '<' of the end tag, '/' of an empty element; how far the content is read while
                            // parsing
        int nEndTagRight;   // '>' of the end tag; of an empty element its nStartTagRight
        int iParent;
        int iFirstChild;  // 0 if none
        int iNextSibling; // 0 if none
        bool IsEmptyElement() const { return nStartTagRight == nEndTagLeft + 1; }
    };

    /// One scanned token. Set up at the document's start; nScanPos then moves to where scanning is to begin.
    struct TokenPos
    {
        explicit TokenPos(const wchar_t* psz) : pszText(psz) {}
        int nTokenStart = 0; // first character; of a string, the one after the quote
        int nTokenEnd = -1;  // last character; nTokenStart - 1 for an empty string
        int nScanPos = 0;    // where the next scan starts
        const wchar_t* pszText;
        bool bQuoted = false;
    };

    /// Moves the index to the character, or to the end. @return whether it was found
    static bool x_FindChar(const wchar_t* pszText, int& nIndex, wchar_t ch);
    /// Moves the index past white space. @return false at the end of the text
    static bool x_FindAny(const wchar_t* pszText, int& nIndex);
    /// Scans the next token: a quoted string, a delimiter, or all up to one. @return false at the end of the
    /// text
    static bool x_FindToken(TokenPos& token);
    CString x_GetToken(const TokenPos& token) const;

    /// Scans one node at nScanPos and moves behind it, except for element start tags.
    int x_ParseNode(TokenPos& token) const;
    /// Parses the next element inside a parent, from the parent's nEndTagLeft on, with all that is inside it.
    /// @return its entry, 0 when an end tag comes first, -1 on an error
    int x_ParseElem(int iParentPos);
    /// Notes a parse error ("%s" is the name) and gives the last entry back. @return -1
    int x_ParseError(const wchar_t* pszFormat, const wchar_t* pszName = nullptr);

    int x_FindElem(int iParentPos, int iPos, const wchar_t* pszName) const;
    CString x_GetTagName(int iPos) const;
    CString x_GetAttrib(int iPos, const wchar_t* pszAttrib) const;
    bool x_FindAttrib(TokenPos& token, const wchar_t* pszAttrib) const;
    CString x_GetData(int iPos) const;
    /// The text from nLeft to nRight, both inside, with the five named entities decoded.
    CString x_TextFromDoc(int nLeft, int nRight) const;
    int x_GetFreePos();
    int x_ReleasePos();
    void x_SetPos(int iParentPos, int iPos, int iChildPos)
    {
        m_iParentPos = iParentPos;
        m_iMainPos = iPos;
        m_iChildPos = iChildPos;
        m_nMainKind = iPos != 0 ? MNK_ELEMENT : MNK_NONE;
    }

    CString m_strDoc;
    CString m_strError;
    CArray<ElemPos, ElemPos&> m_aElemPos;
    int m_iParentPos = 0;
    int m_iMainPos = 0;
    int m_iChildPos = 0;
    int m_iNextFree = 1;
    int m_nMainKind = 0;

private:
    template <class Finder> class Parser;

    int x_GetStart(int iPos) const { return iPos != 0 ? m_aElemPos[iPos].nStartTagLeft : -1; }
    bool x_MatchesAnyToken(int nScan, const wchar_t* pszName) const;
    bool x_SetText(CString&& strText);
    bool x_ParseDoc(splitframe::markup::TagIndex& index, const wchar_t* pText);
    bool x_FailDoc(int iResult);
    int x_RefuseFile(Failure failure, const CString& strWhy);

    Failure m_failure = Failure::Malformed;
    CString m_strFailure;
    int m_nFailurePos = -1;
    // Of the tag that was read last; forgotten when the document changes.
    mutable splitframe::markup::AttribNotes m_notes;
};
