#include "definition/LayoutText.h"

namespace splitframe {

bool LayoutText::Element::Find(const wchar_t* pszName)
{
    const int iFound = m_pText->x_FindElem(m_iParent, m_iChild, pszName);
    if (iFound == 0)
        return false;
    m_iChild = iFound;
    return true;
}

CString LayoutText::Element::Data() const
{
    return m_pText->x_GetData(m_iChild);
}

CString LayoutText::Element::Attrib(const wchar_t* pszName) const
{
    m_pText->x_SetPos(0, m_iParent, m_iChild); // attributes are read of the element that the cursors are at
    return m_pText->GetChildAttrib(pszName);
}

int LayoutText::Element::Position() const
{
    return m_pText->m_aElemPos[m_iParent].nStartTagLeft;
}

int LayoutText::Element::ChildPosition() const
{
    return m_iChild != 0 ? m_pText->m_aElemPos[m_iChild].nStartTagLeft : Position();
}

} // namespace splitframe
