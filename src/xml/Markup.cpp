// The document and the cursors: copying, moving over the elements. Parsing, reading, loading, editing and
// saving stand in MarkupParse.cpp, MarkupRead.cpp, MarkupLoad.cpp, MarkupEdit.cpp and MarkupSave.cpp.
#include "xml/Markup.h"

#include "xml/MarkupScan.h"

#include <algorithm>
#include <utility>

using namespace splitframe::markup;

CMarkup::CMarkup()
{
    SetDoc(nullptr);
}

CMarkup::CMarkup(const wchar_t* pszDoc)
{
    SetDoc(pszDoc);
}

CMarkup::CMarkup(const CMarkup& other)
{
    *this = other;
}

// What can fail comes first, so that the object stays whole without memory.
void CMarkup::operator=(const CMarkup& other)
{
    if (this == &other)
        return;
    CString strDoc(other.m_strDoc);
    CString strFailure(other.m_strFailure);
    m_aElemPos.SetSize(other.m_aElemPos.GetSize());
    std::copy(other.m_aElemPos.begin(), other.m_aElemPos.end(), m_aElemPos.begin());
    m_strDoc = std::move(strDoc);
    m_strFailure = std::move(strFailure);
    m_failure = other.m_failure;
    m_nFailurePos = other.m_nFailurePos;
    m_iParentPos = other.m_iParentPos;
    m_iMainPos = other.m_iMainPos;
    m_iChildPos = other.m_iChildPos;
    m_iNextFree = other.m_iNextFree;
    m_nMainKind = other.m_nMainKind;
    m_iLastAdded = other.m_iLastAdded;
    m_notes.Forget();
}

CMarkup::~CMarkup() = default;

bool CMarkup::IsWellFormed() const
{
    return !m_aElemPos.IsEmpty() && m_aElemPos[0].iFirstChild != 0;
}

int CMarkup::x_FindElem(int iParentPos, int iPos, const wchar_t* pszName) const
{
    const int iFirst = iPos != 0 ? m_aElemPos[iPos].iNextSibling : m_aElemPos[iParentPos].iFirstChild;
    if (iFirst == 0 || !pszName || *pszName == 0)
        return iFirst;
    // Mostly it is the first one.
    if (const int nLeft = m_aElemPos[iFirst].nStartTagLeft; x_IsInside(nLeft)) {
        const wchar_t* pName = m_strDoc.GetString() + nLeft + 1;
        const std::ptrdiff_t nEqual = CountEqual(pName, pszName);
        if (pszName[nEqual] == 0 && EndsToken(pName[nEqual]))
            return iFirst;
    }
    return x_FindNamed(iFirst, pszName);
}

int CMarkup::x_FindNamed(int iFirst, const wchar_t* pszName) const
{
    const wchar_t* psz = m_strDoc;
    const wchar_t* pEnd = psz + m_strDoc.GetLength();
    for (int i = iFirst; i != 0; i = m_aElemPos[i].iNextSibling) {
        const int nLeft = m_aElemPos[i].nStartTagLeft;
        if (!x_IsInside(nLeft))
            continue;
        const wchar_t* pName = psz + nLeft + 1;
        if (StartsName(*pName) ? MatchesNameAt(pName, pEnd, pszName) : x_MatchesAnyToken(nLeft + 1, pszName))
            return i;
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
