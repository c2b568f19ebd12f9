// The frame document itself: what it is made from, its look-ups, its current unit, and its end. Making the
// units is in FrameUnits.cpp, switching styles in StyleSwitch.cpp, global units in GlobalUnits.cpp, the tree
// in FrameTree.cpp, the caches in UnitCache.cpp.
#include "document/BaseFrameDoc.h"

#include "definition/FrameStyle.h"
#include "definition/UnitInfo.h"
#include "document/BaseFrameHelper.h"
#include "document/BaseFrameView.h"
#include "document/DocumentList.h"
#include "document/NameIndex.h"
#include "document/ObjectFactory.h"
#include "layout/SplitLine.h"
#include "platform/base/Diagnostics.h"
#include "platform/docview/FrameWnd.h"
#include "platform/window/CallScope.h"
#include "unit/BaseUnitWnd.h"
#include "unit/UnitObserver.h"

#include <algorithm>

using splitframe::DocumentList;

IMPLEMENT_DYNCREATE(CBaseFrameDoc, CDocument)

BEGIN_MESSAGE_MAP(CBaseFrameDoc, CDocument)
END_MESSAGE_MAP()

namespace {

template <class TYPE> void AppendPointers(CArray<TYPE*, TYPE*>& arr, TYPE* const* pp, int nCount)
{
    for (int i = 0; pp && i < nCount; ++i)
        arr.Add(pp[i]);
}

// Deletes what a list names, first to last. The list is empty before the first one goes.
template <class TYPE> void DeleteAll(CArray<TYPE*, TYPE*>& arr)
{
    const std::vector<TYPE*> arrDoomed(arr.begin(), arr.end());
    arr.RemoveAll();
    for (TYPE* pDoomed : arrDoomed)
        delete pDoomed;
}

} // namespace

CBaseFrameDoc::CBaseFrameDoc()
    : m_pObserver(
          std::make_unique<splitframe::CUnitObserver>([this](CBaseUnitWnd* pUnit) { ForgetUnit(pUnit); }))
{
    DocumentList::Add(this);
}

CBaseFrameDoc::~CBaseFrameDoc()
{
    DocumentList::DefinitionIsDeleted(this);
    ReleaseHelper();
    DeleteTree();
    // The window leaves the list first: its destructor runs host code, which may come back here.
    while (!m_arrWndCache.IsEmpty()) {
        CBaseUnitWnd* pUnit = m_arrWndCache[0];
        ForgetCached(pUnit);
        if (!DocumentList::IsListedElsewhere(pUnit, this))
            delete pUnit;
    }
    DocumentList::Remove(this);
}

// --- initialisation

void CBaseFrameDoc::Init(const wchar_t* pszName, CBaseUnitInfo** ppInfo, int nInfo, CBaseFrameStyle** ppStyle,
                         int nStyle)
{
    m_strName = pszName;
    AppendPointers(m_arrBaseUnitInfo, ppInfo, nInfo);
    AppendPointers(m_arrStyle, ppStyle, nStyle);
}

void CBaseFrameDoc::Init(const wchar_t* pszName, CArray<CBaseUnitInfo*, CBaseUnitInfo*>& arrInfo,
                         CArray<CBaseFrameStyle*, CBaseFrameStyle*>& arrStyle)
{
    m_strName = pszName;
    m_arrBaseUnitInfo.Append(arrInfo);
    m_arrStyle.Append(arrStyle);
}

void CBaseFrameDoc::Init(const wchar_t* pszName, CArray<CBaseUnitInfo*, CBaseUnitInfo*>& arrInfo,
                         CArray<CBaseFrameStyle*, CBaseFrameStyle*>& arrStyle, GUID guidHelper)
{
    Init(pszName, arrInfo, arrStyle);
    MakeHelper(guidHelper);
}

void CBaseFrameDoc::Init(CBaseFrame* pFrame)
{
    if (!pFrame)
        AfxThrowInvalidArgException();
    Init(pFrame->strName, pFrame->arrBaseUnitInfo, pFrame->arrStyle, pFrame->guidHelper);
}

void CBaseFrameDoc::Init(CBaseFrameDoc* pDefinition)
{
    if (!pDefinition || pDefinition == this)
        AfxThrowInvalidArgException();
    Init(pDefinition->m_strName, pDefinition->m_arrBaseUnitInfo, pDefinition->m_arrStyle);
    ReleaseHelper();
    m_pDefinition = pDefinition;
    m_nCurStyle = pDefinition->m_nCurStyle;
    m_pHelper = pDefinition->m_pHelper;
    m_bFaultsTold = pDefinition->m_bFaultsTold;
    m_arrWndCache.Append(pDefinition->m_arrWndCache);
    m_arrWndCacheID.Append(pDefinition->m_arrWndCacheID);
}

void CBaseFrameDoc::MakeHelper(const GUID& guid)
{
    auto pHelper = splitframe::MakeHelper(guid);
    if (!pHelper) {
        if (!m_bFaultsTold)
            Report(L"no usable helper class has this GUID; the frame gets the default helper", CString());
        pHelper = std::make_unique<CBaseFrameHelper>();
    }
    OwnHelper(std::move(pHelper));
}

void CBaseFrameDoc::OwnHelper(std::unique_ptr<CBaseFrameHelper> pHelper)
{
    ReleaseHelper();
    m_pHelper = pHelper.release();
    m_bAutoDeleteHelper = true;
    m_pHelper->m_pDoc = this;
}

void CBaseFrameDoc::ReleaseHelper()
{
    CBaseFrameHelper* pHelper = std::exchange(m_pHelper, nullptr);
    if (std::exchange(m_bAutoDeleteHelper, false)) {
        delete pHelper;
    } else if (pHelper && pHelper->m_pDoc == this) {
        pHelper->m_pDoc = m_pDefinition;
    }
}

void CBaseFrameDoc::ForgetDefinition()
{
    m_pDefinition = nullptr;
    if (!m_bAutoDeleteHelper)
        m_pHelper = nullptr; // it goes with the definition
}

// --- look-ups

int CBaseFrameDoc::GetBaseUnitInfoCount()
{
    return m_arrBaseUnitInfo.GetSize();
}

CBaseUnitInfo* CBaseFrameDoc::GetBaseUnitInfo(int nIndex)
{
    return m_arrBaseUnitInfo.GetAt(nIndex);
}

CBaseUnitInfo* CBaseFrameDoc::GetBaseUnitInfo(const wchar_t* pszName)
{
    const CString strName(pszName);
    if (m_pRecordNames)
        return m_pRecordNames->Find(strName);
    for (CBaseUnitInfo* pInfo : m_arrBaseUnitInfo) {
        if (pInfo->m_strName == strName)
            return pInfo;
    }
    return nullptr;
}

int CBaseFrameDoc::GetBaseUnitWndCount()
{
    return m_arrBaseUnitWnd.GetSize();
}

CBaseUnitWnd* CBaseFrameDoc::GetBaseUnitWnd(const wchar_t* pszName)
{
    const CString strName(pszName);
    return m_pUnitNames ? m_pUnitNames->Find(strName) : splitframe::FindUnit(m_arrBaseUnitWnd, strName);
}

CBaseUnitWnd* CBaseFrameDoc::GetBaseUnitWnd(int nIndex)
{
    return m_arrBaseUnitWnd.GetAt(nIndex);
}

CBaseUnitWnd* CBaseFrameDoc::GetBaseUnitWnd(CPoint pt)
{
    if (!FindCurrentStyle())
        AfxThrowInvalidArgException();
    for (CBaseUnitWnd* pUnit : m_arrBaseUnitWnd) {
        const CBaseUnitInfo* pInfo = pUnit->m_pBaseUnitInfo;
        if (!pInfo)
            continue;
        const CRect rc(CPoint(pInfo->m_x, pInfo->m_y), CSize(pInfo->m_cx, pInfo->m_cy));
        if (rc.left < pt.x && pt.x < rc.right && rc.top < pt.y && pt.y < rc.bottom)
            return pUnit;
    }
    return nullptr;
}

CBaseFrameStyle* CBaseFrameDoc::FindStyle(int nStyle)
{
    return nStyle >= 0 && nStyle < m_arrStyle.GetSize() ? m_arrStyle[nStyle] : nullptr;
}

CBaseFrameStyle* CBaseFrameDoc::FindCurrentStyle()
{
    return FindStyle(m_nCurStyle);
}

const wchar_t* CBaseFrameDoc::GetCurrentStyleName()
{
    const CBaseFrameStyle* pStyle = FindCurrentStyle();
    return pStyle ? pStyle->m_strName.GetString() : nullptr;
}

bool CBaseFrameDoc::FindCaption(CString strCaption)
{
    return strCaption == m_strName ||
           std::any_of(m_arrStyle.begin(), m_arrStyle.end(),
                       [&](const CBaseFrameStyle* pStyle) { return pStyle->m_strName == strCaption; });
}

// --- the current unit, and telling units

int CBaseFrameDoc::GetCurrentBaseUnitWnd()
{
    return m_nCurBaseUnitWnd;
}

void CBaseFrameDoc::SetCurrentBaseUnitWnd(int nIndex)
{
    const CCallScope scope;
    m_nCurBaseUnitWnd = nIndex;
    m_arrBaseUnitWnd.GetAt(nIndex)->OnProcessCommand(splitframe::UNIT_CMD_SET_FOCUS, 0);
}

void CBaseFrameDoc::ForEachUnit(const std::function<void(CBaseUnitWnd*)>& fn)
{
    const std::vector<CBaseUnitWnd*> arrUnit(m_arrBaseUnitWnd.begin(), m_arrBaseUnitWnd.end());
    int nAt = 0; // where the unit stands as long as no hook changes the list
    for (CBaseUnitWnd* pUnit : arrUnit) {
        const bool bInPlace = nAt < m_arrBaseUnitWnd.GetSize() && m_arrBaseUnitWnd[nAt] == pUnit;
        ++nAt;
        if (bInPlace ||
            std::find(m_arrBaseUnitWnd.begin(), m_arrBaseUnitWnd.end(), pUnit) != m_arrBaseUnitWnd.end())
            fn(pUnit);
    }
}

void CBaseFrameDoc::UnActive()
{
    const CCallScope scope;
    ForEachUnit([](CBaseUnitWnd* pUnit) { pUnit->ProcessActivate2(false); });
    if (m_pHelper)
        m_pHelper->ProcessActivate2(false);
}

// --- title, closing, the end

BOOL CBaseFrameDoc::OnNewDocument()
{
    return CDocument::OnNewDocument();
}

void CBaseFrameDoc::SetTitle()
{
    CDocument::SetTitle(m_strName);
}

void CBaseFrameDoc::SetRoot()
{
    CSplitLine::m_pRoot = m_pRoot;
}

// A document that never had a view is none whose view is gone.
bool CBaseFrameDoc::IsViewGone() const
{
    return m_bViewDying || ((m_pView || m_hView) && !::IsWindow(m_hView));
}

void CBaseFrameDoc::Close()
{
    const CCallScope scope;
    CFrameWnd* pFrame = m_pView && !IsViewGone() ? m_pView->GetParentFrame() : nullptr;
    if (pFrame)
        pFrame->SendMessage(WM_CLOSE);
}

void CBaseFrameDoc::Clear()
{
    DocumentList::DefinitionIsCleared(this);
    m_arrReadStyle.clear();
    m_arrReadUnit.clear();
    DeleteAll(m_arrStyle);
    DeleteAll(m_arrBaseUnitInfo);
}

bool CBaseFrameDoc::ViewIsDying()
{
    m_bViewDying = true;
    const bool bHadUnits = SendGlobalUnitsHome();
    const bool bHadRoot = m_pRoot && CSplitLine::m_pRoot == m_pRoot;
    if (bHadRoot)
        CSplitLine::m_pRoot = nullptr;
    return bHadUnits || bHadRoot;
}

void CBaseFrameDoc::DestroyBaseFrameView()
{
    const CCallScope scope;
    DeleteTree();
    while (!m_arrWndCache.IsEmpty()) {
        CBaseUnitWnd* pUnit = m_arrWndCache[0];
        ForgetCached(pUnit);
        delete pUnit;
    }
    m_pView = nullptr;
    if (m_pHelper && m_pHelper->m_pDoc == this && m_pDefinition)
        m_pHelper->m_pDoc = m_pDefinition;
}

void CBaseFrameDoc::ForgetUnit(const CBaseUnitWnd* pUnit)
{
    m_pUnitNames = nullptr;
    ForgetCached(pUnit);
    RemoveUnit(pUnit);
}

void CBaseFrameDoc::Report(const wchar_t* pszMessage, const CString& strName)
{
    Diagnostic diagnostic;
    diagnostic.strMessage = pszMessage;
    diagnostic.strFrame = m_strName;
    diagnostic.strStyle = GetCurrentStyleName();
    diagnostic.strName = strName;
    ReportDiagnostic(diagnostic);
}
