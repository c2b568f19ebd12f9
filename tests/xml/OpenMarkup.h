// A CMarkup whose table and protected operations tests may look at.
#pragma once

#include "xml/Markup.h"

#include <utility>

class COpenMarkup : public CMarkup
{
public:
    using CMarkup::CMarkup;
    using CMarkup::ElemPos;
    using CMarkup::m_aElemPos;
    using CMarkup::m_iChildPos;
    using CMarkup::m_iMainPos;
    using CMarkup::m_iNextFree;
    using CMarkup::m_iParentPos;
    using CMarkup::m_nMainKind;
    using CMarkup::m_strDoc;
    using CMarkup::TokenPos;
    using CMarkup::x_AddElem;
    using CMarkup::x_DocChange;
    using CMarkup::x_FindAttrib;
    using CMarkup::x_FindElem;
    using CMarkup::x_FindToken;
    using CMarkup::x_GetToken;
    using CMarkup::x_ParseElem;
    using CMarkup::x_ParseNode;
    using CMarkup::x_TextFromDoc;

    /// Every element in document order with its depth, positions, text and attributes a, b and c. An edited
    /// document and a parse of its text must give the same.
    std::string Describe() const
    {
        std::string str;
        int nDepth = 0;
        for (int i = m_aElemPos[0].iFirstChild; i != 0;) {
            const ElemPos& e = m_aElemPos[i];
            CString strLine;
            strLine.Format(L"%d %s %d-%d %d-%d \"%s\"", nDepth, x_GetTagName(i), e.nStartTagLeft,
                           e.nStartTagRight, e.nEndTagLeft, e.nEndTagRight, x_GetData(i));
            for (const wchar_t* pszName : {L"a", L"b", L"c"})
                strLine += L"|" + AttribOf(i, pszName);
            str += strLine.ToUtf8() + "\n";
            if (e.iFirstChild != 0) {
                i = e.iFirstChild;
                ++nDepth;
                continue;
            }
            while (i != 0 && m_aElemPos[i].iNextSibling == 0) {
                i = m_aElemPos[i].iParent;
                --nDepth;
            }
            i = m_aElemPos[i].iNextSibling;
        }
        return str;
    }

    /// The entry in use, in words, for comparing.
    std::string Entry(int i) const
    {
        const ElemPos& e = m_aElemPos[i];
        CString str;
        str.Format(L"%d-%d %d-%d parent %d child %d next %d", e.nStartTagLeft, e.nStartTagRight,
                   e.nEndTagLeft, e.nEndTagRight, e.iParent, e.iFirstChild, e.iNextSibling);
        return str.ToUtf8();
    }

    /// An attribute of the main element as a scan of its tag from the start finds it, without anything
    /// remembered.
    CString ScannedAttrib(const wchar_t* pszName) const
    {
        TokenPos token(m_strDoc);
        token.nScanPos = m_aElemPos[m_iMainPos].nStartTagLeft + 1;
        return x_FindAttrib(token, pszName) ? x_TextFromDoc(token.nTokenStart, token.nTokenEnd) : CString();
    }

private:
    // Attributes are told only while there is a main element.
    CString AttribOf(int i, const wchar_t* pszName) const
    {
        COpenMarkup& self = const_cast<COpenMarkup&>(*this);
        const int nKind = std::exchange(self.m_nMainKind, MNK_ELEMENT);
        CString str = x_GetAttrib(i, pszName);
        self.m_nMainKind = nKind;
        return str;
    }
};
