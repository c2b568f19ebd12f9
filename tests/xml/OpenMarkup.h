// A CMarkup whose table and protected operations tests may look at.
#pragma once

#include "xml/Markup.h"

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
    using CMarkup::TokenPos;
    using CMarkup::x_FindElem;
    using CMarkup::x_FindToken;
    using CMarkup::x_GetToken;
    using CMarkup::x_ParseElem;
    using CMarkup::x_ParseNode;
    using CMarkup::x_TextFromDoc;

    /// The entry in use, in words, for comparing.
    std::string Entry(int i) const
    {
        const ElemPos& e = m_aElemPos[i];
        CString str;
        str.Format(L"%d-%d %d-%d parent %d child %d next %d", e.nStartTagLeft, e.nStartTagRight,
                   e.nEndTagLeft, e.nEndTagRight, e.iParent, e.iFirstChild, e.iNextSibling);
        return str.ToUtf8();
    }
};
