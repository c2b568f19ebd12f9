// The document and the cursors: setting a text, moving over the elements. Parsing, reading and loading stand
// in MarkupParse.cpp, MarkupRead.cpp and MarkupLoad.cpp.
#include "xml/Markup.h"

#include "xml/MarkupScan.h"

using namespace splitframe::markup;

CMarkup::CMarkup()
{
    SetDoc(nullptr);
}

CMarkup::CMarkup(const wchar_t* pszDoc)
{
    SetDoc(pszDoc);
}

CMarkup::~CMarkup() = default;

bool CMarkup::IsWellFormed() const
{
    return !m_aElemPos.IsEmpty() && m_aElemPos[0].iFirstChild != 0;
}

int CMarkup::x_FindElem(int iParentPos, int iPos, const wchar_t* pszName) const
{
    int iFound = iPos != 0 ? m_aElemPos[iPos].iNextSibling : m_aElemPos[iParentPos].iFirstChild;
    if (!pszName || *pszName == 0)
        return iFound;
    const wchar_t* psz = m_strDoc;
    for (; iFound != 0; iFound = m_aElemPos[iFound].iNextSibling) {
        int nName = m_aElemPos[iFound].nStartTagLeft + 1;
        if (StartsName(psz[nName]) ? MatchesNameAt(psz, nName, pszName, m_strDoc.GetLength())
                                   : x_MatchesAnyToken(nName, pszName))
            return iFound;
    }
    return 0;
}

// The rare cases: white space before the name, or a name that is a delimiter.
bool CMarkup::x_MatchesAnyToken(int nScan, const wchar_t* pszName) const
{
    TokenPos token(m_strDoc);
    token.nScanPos = nScan;
    return ScanToken(token) &&
           MatchesName(token.pszText + token.nTokenStart, token.nTokenEnd - token.nTokenStart + 1, pszName);
}

bool CMarkup::FindElem(const wchar_t* pszName)
{
    if (m_aElemPos.IsEmpty())
        return false;
    const int iFound = x_FindElem(m_iParentPos, m_iMainPos, pszName);
    if (iFound == 0)
        return false;
    x_SetPos(m_aElemPos[iFound].iParent, iFound, 0);
    return true;
}

bool CMarkup::FindChildElem(const wchar_t* pszName)
{
    if (m_iMainPos == 0)
        FindElem(nullptr);
    // Without a main element the children of entry 0 are sought: the root, which then is the child position.
    const int iFound = m_aElemPos.IsEmpty() ? 0 : x_FindElem(m_iMainPos, m_iChildPos, pszName);
    if (iFound == 0)
        return false;
    const int iMainPos = m_aElemPos[iFound].iParent;
    x_SetPos(m_aElemPos[iMainPos].iParent, iMainPos, iFound);
    return true;
}

bool CMarkup::IntoElem()
{
    if (m_iMainPos == 0 || m_nMainKind != MNK_ELEMENT)
        return false;
    x_SetPos(m_iMainPos, m_iChildPos, 0);
    return true;
}

bool CMarkup::OutOfElem()
{
    if (m_iParentPos == 0)
        return false;
    x_SetPos(m_aElemPos[m_iParentPos].iParent, m_iParentPos, m_iMainPos);
    return true;
}

int CMarkup::x_GetFreePos()
{
    const int nSize = m_aElemPos.GetSize();
    if (m_iNextFree == nSize)
        m_aElemPos.SetSize(nSize + nSize / 2);
    return m_iNextFree++;
}

int CMarkup::x_ReleasePos()
{
    --m_iNextFree;
    return 0;
}
