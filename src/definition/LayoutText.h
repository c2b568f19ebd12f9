// The text of a layout definition as the loader walks it: one parent element at a time, its children searched
// forward only, from the last one found. Each element keeps its own place, so going in and out never loses it
// and no element is read twice.
#pragma once

#include "xml/Markup.h"

namespace splitframe {

class LayoutText : public CMarkup
{
public:
    /// One parent element and the child of it that was found last.
    class Element
    {
    public:
        /// Moves to the next child of that name. @return false, and nothing changes, when there is none
        bool Find(const wchar_t* pszName);

        /// Text or attribute of the child found last; empty before the first one.
        CString Data() const;
        CString Attrib(const wchar_t* pszName) const;

        /// The child found last, for reading what is inside it. Only after a Find that succeeded.
        Element Child() const { return Element(*m_pText, m_iChild); }

        /// Where the element's own tag, or that of the child found last, begins in the text.
        int Position() const;
        int ChildPosition() const;

    private:
        friend class LayoutText;
        Element(LayoutText& text, int iParent) : m_pText(&text), m_iParent(iParent) {}

        LayoutText* m_pText; // not owned, outlives its elements
        int m_iParent;
        int m_iChild = 0; // 0: none found yet
    };

    /// The root element. Only of text that is well formed.
    Element Root() { return Element(*this, m_aElemPos[0].iFirstChild); }
};

} // namespace splitframe
