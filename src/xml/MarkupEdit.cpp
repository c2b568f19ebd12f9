// Editing: where something new goes, its text, its place in the table. What can fail for want of memory
// happens before anything changes.
#include "xml/Markup.h"

#include "platform/base/Exception.h"
#include "xml/DocText.h"
#include "xml/MarkupScan.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <utility>

using namespace splitframe::markup;

namespace {

// Positions in a tag that a raw '>' has cut may run away; they wrap around instead of overflowing.
void Shift(int& nPos, int nShift)
{
    nPos = static_cast<int>(static_cast<unsigned>(nPos) + static_cast<unsigned>(nShift));
}

wchar_t* Put(wchar_t* pOut, const CString& strText)
{
    return std::copy_n(strText.GetString(), strText.GetLength(), pOut);
}

// The same for literals, whose few characters are written without a call.
template <std::size_t SIZE> wchar_t* Put(wchar_t* pOut, const wchar_t (&szText)[SIZE])
{
    return std::copy_n(szText, SIZE - 1, pOut);
}

int CheckedLength(long long nLength)
{
    if (nLength >= std::numeric_limits<int>::max())
        AfxThrowMemoryException();
    return static_cast<int>(nLength);
}

} // namespace

// Text of the caller, made safe for the time in which the document changes: it may be a part of the document.
class CMarkup::Argument
{
public:
    Argument(const wchar_t* psz, const CString& strDoc) : m_psz(psz)
    {
        const std::less<> before;
        if (psz && !before(psz, strDoc.GetString()) && !before(strDoc.GetString() + strDoc.GetLength(), psz))
            m_psz = m_strCopy = CString(psz);
    }
    operator const wchar_t*() const { return m_psz; }

private:
    const wchar_t* m_psz;
    CString m_strCopy;
};

// A new element's text: <name/> or <name>data</name>, and a line end.
struct CMarkup::NewElem
{
    DocText name;
    DocText data;

    int Length() const
    {
        const long long nName = name.Length();
        return CheckedLength(data.IsEmpty() ? nName + 5 : 2 * nName + data.Length() + 7);
    }
    wchar_t* Write(wchar_t* pOut) const
    {
        pOut = name.Write(Put(pOut, L"<"));
        if (data.IsEmpty())
            return Put(pOut, L"/>\r\n");
        pOut = Put(data.Write(Put(pOut, L">")), L"</");
        return Put(name.Write(pOut), L">\r\n");
    }
    void SetPositions(ElemPos& elem, int nLeft) const
    {
        const int nName = name.Length();
        elem.nStartTagLeft = nLeft;
        if (data.IsEmpty()) {
            elem.nStartTagRight = nLeft + nName + 2;
            elem.nEndTagLeft = elem.nStartTagRight - 1;
            elem.nEndTagRight = elem.nStartTagRight;
        } else {
            elem.nStartTagRight = nLeft + nName + 1;
            elem.nEndTagLeft = elem.nStartTagRight + data.Length() + 1;
            elem.nEndTagRight = elem.nEndTagLeft + nName + 2;
        }
    }
};

// What setting an attribute writes: its value only, or all of it when it is new.
struct CMarkup::NewAttrib
{
    DocText name; // empty: the attribute is there
    DocText value;

    int Length() const
    {
        return CheckedLength((name.IsEmpty() ? 0LL : name.Length() + 4LL) + value.Length());
    }
    wchar_t* Write(wchar_t* pOut) const
    {
        if (name.IsEmpty())
            return value.Write(pOut);
        pOut = Put(name.Write(Put(pOut, L" ")), L"=\"");
        return Put(value.Write(pOut), L"\"");
    }
};

CString CMarkup::x_TextToDoc(const wchar_t* pszText, bool bAttrib) const
{
    const DocText text{pszText, bAttrib ? Encode::Attrib : Encode::Data};
    const int nLength = text.Length();
    CString strDoc;
    text.Write(strDoc.GetBuffer(nLength));
    strDoc.ReleaseBufferSetLength(nLength);
    return strDoc;
}

wchar_t* CMarkup::x_OpenGap(int nLeft, int nReplace, int nLength)
{
    wchar_t* pGap = m_strDoc.OpenGap(nLeft, nReplace, nLength);
    m_notes.Forget();
    return pGap;
}

void CMarkup::x_DocChange(int nLeft, int nReplace, const CString& strInsert)
{
    if (&strInsert == &m_strDoc)
        return x_DocChange(nLeft, nReplace, CString(strInsert));
    Put(x_OpenGap(nLeft, nReplace, strInsert.GetLength()), strInsert);
}

void CMarkup::x_Adjust(int iPos, int nShift, bool bAfterPos)
{
    int iTop = m_aElemPos[iPos].iParent;
    ElemPos* pTable = m_aElemPos.GetData();
    bool bInside = !bAfterPos;
    while (iPos != 0) {
        if (bInside && pTable[iPos].iFirstChild != 0) {
            iPos = pTable[iPos].iFirstChild;
        } else {
            while (iPos != iTop && pTable[iPos].iNextSibling == 0)
                iPos = pTable[iPos].iParent;
            if (iPos != iTop)
                iPos = pTable[iPos].iNextSibling;
        }
        ElemPos& elem = pTable[iPos];
        Shift(elem.nEndTagLeft, nShift);
        Shift(elem.nEndTagRight, nShift);
        // Of an element around the first one only the end tag stands behind it.
        bInside = iPos != iTop;
        if (bInside) {
            Shift(elem.nStartTagLeft, nShift);
            Shift(elem.nStartTagRight, nShift);
        } else {
            iTop = elem.iParent;
        }
    }
}

int CMarkup::x_FindLastChild(int iParentPos)
{
    const bool bKnown =
        m_iLastAdded != 0 && m_iLastAdded < m_iNextFree && m_aElemPos[m_iLastAdded].iParent == iParentPos;
    int iLast = bKnown ? m_iLastAdded : m_aElemPos[iParentPos].iFirstChild;
    while (iLast != 0 && m_aElemPos[iLast].iNextSibling != 0)
        iLast = m_aElemPos[iLast].iNextSibling;
    return iLast;
}

void CMarkup::x_LocateNew(int iParentPos, int& iPos, int& nIndex, int nLength, int nFlags)
{
    const ElemPos& parent = m_aElemPos[iParentPos];
    const bool bInsert = (nFlags & LOCATE_INSERT) != 0;
    const bool bEmptyParent = iParentPos != 0 && parent.IsEmptyElement();
    if (nLength != 0)
        nIndex += bInsert ? 0 : nLength;
    else if (iPos != 0)
        nIndex = bInsert ? m_aElemPos[iPos].nStartTagLeft : m_aElemPos[iPos].nEndTagRight + 1;
    else if (iParentPos == 0)
        nIndex = bInsert ? 0 : m_strDoc.GetLength();
    else if (bEmptyParent)
        nIndex = parent.nStartTagRight;
    else
        nIndex = bInsert ? parent.nStartTagRight + 1 : parent.nEndTagLeft;

    if (!bEmptyParent && (nFlags & LOCATE_KEEP_INDEX) == 0) {
        nIndex = std::clamp(nIndex, 0, m_strDoc.GetLength());
        int nBehindSpace = nIndex;
        if (!SkipSpace(m_strDoc, nBehindSpace) || m_strDoc.GetString()[nBehindSpace] == L'<')
            nIndex = nBehindSpace;
    }

    if (iPos == 0) {
        iPos = bInsert ? 0 : x_FindLastChild(iParentPos);
    } else if (bInsert) {
        int iPrevious = 0;
        for (int i = parent.iFirstChild; i != 0 && i != iPos; i = m_aElemPos[i].iNextSibling)
            iPrevious = i;
        iPos = iPrevious;
    }
}

// Links an entry into its parent's children behind iAfter, or as the first one.
void CMarkup::x_Link(int iPos, int iParentPos, int iAfter)
{
    ElemPos& elem = m_aElemPos[iPos];
    int& iNext = iAfter != 0 ? m_aElemPos[iAfter].iNextSibling : m_aElemPos[iParentPos].iFirstChild;
    elem.iParent = iParentPos;
    elem.iFirstChild = 0;
    elem.iNextSibling = iNext;
    iNext = iPos;
    m_iLastAdded = iPos;
}

bool CMarkup::x_AddElem(const wchar_t* pszName, const wchar_t* pszData, bool bInsert, bool bAddChild)
{
    const int iParentPos = bAddChild ? m_iMainPos : m_iParentPos;
    if (iParentPos == 0 && (bAddChild || m_aElemPos[0].iFirstChild != 0))
        return false;
    const Argument name(pszName, m_strDoc);
    const Argument data(pszData, m_strDoc);
    const NewElem elem{{name}, {data, Encode::Data}};
    x_GetFreePos(); // the table has room from here on
    x_ReleasePos();
    int iAfter = bAddChild ? m_iChildPos : m_iMainPos;
    int nIndex = 0;
    x_LocateNew(iParentPos, iAfter, nIndex, 0, bInsert ? LOCATE_INSERT : 0);
    const int nShift = x_InsertText(iParentPos, nIndex, elem);

    const int iPos = x_GetFreePos();
    elem.SetPositions(m_aElemPos[iPos], nIndex);
    x_Link(iPos, iParentPos, iAfter);
    x_Adjust(iPos, nShift);
    if (bAddChild)
        x_SetPos(m_iParentPos, iParentPos, iPos);
    else
        x_SetPos(iParentPos, iPos, 0);
    return true;
}

// Writes a new element's text, opening its parent where that has no room for content yet.
// @param nIndex  where the element goes, as located; then where its '<' stands  @return by how much the text
// behind has moved
int CMarkup::x_InsertText(int iParentPos, int& nIndex, const NewElem& elem)
{
    const int nElem = elem.Length();
    if (iParentPos == 0) // from here on the document is a parent like others
        m_aElemPos[0].nEndTagLeft = m_strDoc.GetLength();
    const int nTagRight = m_aElemPos[iParentPos].nStartTagRight;
    if (m_aElemPos[iParentPos].IsEmptyElement()) {
        const CString strParent = x_GetTagName(iParentPos);
        const int nLength = CheckedLength(5LL + nElem + strParent.GetLength());
        wchar_t* pOut = Put(x_OpenGap(nTagRight - 1, 1, nLength), L">\r\n"); // in place of the '/'
        Put(Put(elem.Write(pOut), L"</"), strParent);
        ElemPos& parent = m_aElemPos[iParentPos];
        Shift(parent.nStartTagRight, -1);
        Shift(parent.nEndTagLeft, -1 - strParent.GetLength());
        nIndex += 2;
        return nLength - 1;
    }
    if (nTagRight + 1 == m_aElemPos[iParentPos].nEndTagLeft) {
        const int nLength = CheckedLength(2LL + nElem);
        elem.Write(Put(x_OpenGap(nTagRight + 1, 0, nLength), L"\r\n"));
        nIndex = nTagRight + 3;
        return nLength;
    }
    elem.Write(x_OpenGap(nIndex, 0, nElem));
    return nElem;
}

// Where an attribute's value stands, or where the attribute goes when there is none. @return whether it is
// there
bool CMarkup::x_LocateAttrib(int iPos, const wchar_t* pszAttrib, int& nLeft, int& nReplace) const
{
    const std::wstring_view value = x_FindValue(iPos, pszAttrib);
    const bool bThere = value.data() != nullptr;
    const ElemPos& elem = m_aElemPos[iPos];
    nLeft = bThere ? static_cast<int>(value.data() - m_strDoc.GetString())
                   : elem.nStartTagRight - (elem.IsEmptyElement() ? 1 : 0);
    nReplace = static_cast<int>(value.size());
    return bThere;
}

bool CMarkup::x_SetAttrib(int iPos, const wchar_t* pszAttrib, const wchar_t* pszValue)
{
    if (iPos == 0 || m_nMainKind != MNK_ELEMENT || !pszAttrib || *pszAttrib == 0)
        return false;
    const Argument name(pszAttrib, m_strDoc);
    const Argument value(pszValue, m_strDoc);
    int nLeft = 0;
    int nReplace = 0;
    const bool bThere = x_LocateAttrib(iPos, name, nLeft, nReplace);
    const NewAttrib attrib{{bThere ? nullptr : static_cast<const wchar_t*>(name)}, {value, Encode::Attrib}};
    const int nLength = attrib.Length();
    attrib.Write(x_OpenGap(nLeft, nReplace, nLength));
    const int nShift = nLength - nReplace;
    ElemPos& elem = m_aElemPos[iPos];
    Shift(elem.nStartTagRight, nShift);
    Shift(elem.nEndTagLeft, nShift);
    Shift(elem.nEndTagRight, nShift);
    x_Adjust(iPos, nShift);
    return true;
}

bool CMarkup::x_PlanAttrib(int iPos, const wchar_t* pszAttrib, const wchar_t* pszValue, TextEdit& edit) const
{
    if (iPos == 0 || m_nMainKind != MNK_ELEMENT || !pszAttrib || *pszAttrib == 0 || !x_IsTagWhole(iPos))
        return false;
    const bool bThere = x_LocateAttrib(iPos, pszAttrib, edit.nPos, edit.nCount);
    const NewAttrib attrib{{bThere ? nullptr : pszAttrib}, {pszValue, Encode::Attrib}};
    CString strText;
    const int nLength = attrib.Length();
    attrib.Write(strText.GetBuffer(nLength));
    strText.ReleaseBufferSetLength(nLength);
    edit.strText = std::move(strText);
    return true;
}

// Whether the tag's last '>' stands outside of its quotes, so that all of the tag has been taken for it.
bool CMarkup::x_IsTagWhole(int iPos) const
{
    const ElemPos& elem = m_aElemPos[iPos];
    TokenPos token(m_strDoc);
    token.nScanPos = x_IsInside(elem.nStartTagLeft) ? elem.nStartTagLeft + 1 : m_strDoc.GetLength();
    while (ScanToken(token) && token.nTokenStart < elem.nStartTagRight) {
    }
    return !token.bQuoted && token.nTokenStart == elem.nStartTagRight;
}
