// CMarkup: reads and writes XML text. It keeps one document as a single text and, for every element, the
// indices of its two tags in a table of positions; names and values are cut out of the text when they are
// asked for. Knows text and files; knows nothing of layouts. Nesting is limited by memory only: nothing here
// recurses. Editing splices the text and shifts the positions behind the change; nothing is parsed again, and
// what stands before the change is neither looked at nor moved.
//
// Three cursors move over the elements: the parent, the main (current) element and a child of the main
// element.
#pragma once

#include "platform/base/Array.h"
#include "platform/base/Export.h"
#include "platform/base/String.h"
#include "xml/AttribNotes.h"
#include "xml/TextEdit.h"

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
/// Reading remembers where it stands, so an object serves one thread at a time.
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
    /// A copy has the same document and cursors, and no error text.
    CMarkup(const CMarkup& other);
    /// Takes the other's document and cursors over; the own error text stays. Assigning an object to itself
    /// changes nothing.
    void operator=(const CMarkup& other);
    virtual ~CMarkup();

    /// Replaces the document and parses it; no cursor is set afterwards. Only the first element at document
    /// level is read. The text is kept even when parsing fails. @param pszDoc  null means empty
    /// @return whether there is a root element; if not, GetFailureText tells why
    bool SetDoc(const wchar_t* pszDoc);
    /// Reads a file: UTF-16, low byte first, when it starts with the mark FF FE, else UTF-8.
    /// @return 1 if it was read and parsed, else 0; GetFailure tells the reasons apart
    int Load(const wchar_t* pszFileName);

    CString GetDoc() const { return m_strDoc; }
    bool IsWellFormed() const;
    /// Text of the last parse error; a parse that succeeds does not clear it.
    CString GetError() const { return m_strError; }

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

    /// Adds an element behind the main element, or at the end of the parent's content when there is none, and
    /// makes it the main element. At document level it becomes the root, of which there is only one. Every
    /// new element stands on a line of its own, which ends with CR LF.
    /// @param pszName  written as it is, unchecked; null means empty. What is no name of XML, the empty one
    /// included, gives a text that can not be parsed again
    /// @param pszData  its text, encoded; null or empty for none. GetData gives it back exactly, until the
    /// element gets children
    /// @return false when nothing was added and nothing has changed
    bool AddElem(const wchar_t* pszName, const wchar_t* pszData = nullptr)
    {
        return x_AddElem(pszName, pszData, false, false);
    }
    /// The same inside the main element: behind its child position, or at the end; the new element becomes
    /// the child position. Without a main element it is refused.
    bool AddChildElem(const wchar_t* pszName, const wchar_t* pszData = nullptr)
    {
        return x_AddElem(pszName, pszData, false, true);
    }
    /// Sets an attribute of the main element; one that it does not have yet is added at the end of its tag.
    /// GetAttrib gives the value back exactly, under these conditions: the name is one token (no white space
    /// and none of "<>=\/?!" or quotes in it), and the tag does not hold the name in another form than
    /// name="value" already, nor a '>' inside of a value: reading takes the first '>' for the tag's end and
    /// the first appearance of a name for the attribute.
    /// @param pszAttrib  written as it is, unchecked; null or empty is refused
    /// @param pszValue  null means empty
    /// @return false when nothing was set and nothing has changed
    bool SetAttrib(const wchar_t* pszAttrib, const wchar_t* pszValue)
    {
        return x_SetAttrib(m_iMainPos, pszAttrib, pszValue);
    }
    bool AddAttrib(const wchar_t* pszAttrib, const wchar_t* pszValue)
    {
        return SetAttrib(pszAttrib, pszValue);
    }
    /// The same for the child element.
    bool SetChildAttrib(const wchar_t* pszAttrib, const wchar_t* pszValue)
    {
        return x_SetAttrib(m_iChildPos, pszAttrib, pszValue);
    }
    bool AddChildAttrib(const wchar_t* pszAttrib, const wchar_t* pszValue)
    {
        return SetChildAttrib(pszAttrib, pszValue);
    }

    /// What SetAttrib would do, without doing it: so that a file can be changed where its bytes are kept (see
    /// FileText::Apply).
    /// @param edit  out: the change of the document; untouched when the answer is false
    /// @return false where SetAttrib would be refused, and where a '>' inside of a value has cut the tag, so
    /// that what belongs to it is not certain
    bool PlanAttrib(const wchar_t* pszAttrib, const wchar_t* pszValue, TextEdit& edit) const
    {
        return x_PlanAttrib(m_iMainPos, pszAttrib, pszValue, edit);
    }
    bool PlanChildAttrib(const wchar_t* pszAttrib, const wchar_t* pszValue, TextEdit& edit) const
    {
        return x_PlanAttrib(m_iChildPos, pszAttrib, pszValue, edit);
    }

    /// Writes the document as UTF-16, low byte first, without a byte-order mark. Load takes such a file for
    /// narrow text and refuses it: what is to be loaded again is written by SaveWithMark.
    /// An empty document is not written; a file that can be opened is emptied then.
    /// @return 1 @throw CFileException when not everything could be written; the document stays as it is
    int Save(const wchar_t* pszFileName) const;
    /// Writes the document as Save does, behind the mark FF FE: Load reads exactly this document back. A file
    /// of that name is replaced in one step once all is written; until then it stays as it was.
    /// @throw CFileException when the file can not be written; document and old file stay as they are
    void SaveWithMark(const wchar_t* pszFileName) const;

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

    /// Adds an element to the parent or, as a child, to the main element; in front of the position it is
    /// otherwise added behind with bInsert.
    bool x_AddElem(const wchar_t* pszName, const wchar_t* pszData, bool bInsert, bool bAddChild);
    /// Flags of x_LocateNew.
    enum LocateFlags
    {
        LOCATE_INSERT = 1,    // in front of the entry instead of behind it
        LOCATE_KEEP_INDEX = 2 // do not move over white space
    };
    /// Finds out where something new goes.
    /// @param iPos  the entry to go behind (0: at the end), or in front of; then the entry to link behind, 0
    /// for none
    /// @param nIndex  out: the place in the text; in, with a length: where something of that length stands
    void x_LocateNew(int iParentPos, int& iPos, int& nIndex, int nLength, int nFlags);
    /// Shifts all positions behind an entry by nShift; its own stay. @param bAfterPos  those inside it stay,
    /// too
    void x_Adjust(int iPos, int nShift, bool bAfterPos = false);
    /// Replaces nReplace characters at nLeft; both are clamped to the document. Positions stay as they are.
    void x_DocChange(int nLeft, int nReplace, const CString& strInsert);
    bool x_SetAttrib(int iPos, const wchar_t* pszAttrib, const wchar_t* pszValue);
    /// Text with entities in place of "<&>", and of both quotes when it is for an attribute.
    CString x_TextToDoc(const wchar_t* pszText, bool bAttrib = false) const;

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

    class Argument;
    struct NewElem;
    struct NewAttrib;

    // Positions leave the text when a value is set in a tag that a raw '>' has cut.
    bool x_IsInside(int nPos) const
    {
        return static_cast<unsigned>(nPos) < static_cast<unsigned>(m_strDoc.GetLength());
    }
    int x_FindLastChild(int iParentPos);
    void x_Link(int iPos, int iParentPos, int iAfter);
    wchar_t* x_OpenGap(int nLeft, int nReplace, int nLength);
    int x_InsertText(int iParentPos, int& nIndex, const NewElem& elem);
    std::wstring_view x_PassValue(const wchar_t* pValue) const;
    std::wstring_view x_ScanValue(int nTag, const wchar_t* pszAttrib) const;
    std::wstring_view x_FindValue(int iPos, const wchar_t* pszAttrib) const;
    bool x_LocateAttrib(int iPos, const wchar_t* pszAttrib, int& nLeft, int& nReplace) const;
    bool x_PlanAttrib(int iPos, const wchar_t* pszAttrib, const wchar_t* pszValue, TextEdit& edit) const;
    bool x_IsTagWhole(int iPos) const;
    int x_GetStart(int iPos) const { return iPos != 0 ? m_aElemPos[iPos].nStartTagLeft : -1; }
    int x_FindNamed(int iFirst, const wchar_t* pszName) const;
    bool x_MatchesAnyToken(int nScan, const wchar_t* pszName) const;
    bool x_SetText(CString&& strText);
    bool x_ParseDoc(splitframe::markup::TagIndex& index, const wchar_t* pText);
    bool x_FailDoc(int iResult);
    void x_Clear() noexcept;
    int x_RefuseFile(Failure failure, const CString& strWhy);

    Failure m_failure = Failure::Malformed;
    CString m_strFailure;
    int m_nFailurePos = -1;
    // Where the search for the last child of its parent starts, so that appending does not walk over all
    // children.
    int m_iLastAdded = 0;
    // Of the tag that was read last; forgotten when the document changes.
    mutable splitframe::markup::AttribNotes m_notes;
};
