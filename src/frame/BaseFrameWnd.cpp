// The main frame: initialisation, global units, look-ups, and its end. Opening frames is in FrameOpening.cpp.
#include "frame/BaseFrameWnd.h"

#include "definition/FrameStyle.h"
#include "definition/LayoutLoader.h"
#include "definition/UnitInfo.h"
#include "document/BaseFrameDoc.h"
#include "document/DocumentList.h"
#include "document/NameIndex.h"
#include "document/ObjectFactory.h"
#include "document/UnitWatch.h"
#include "frame/BaseFrameChildWnd.h"
#include "platform/window/CallScope.h"
#include "unit/BaseUnitWnd.h"
#include "xml/Markup.h"

#include <algorithm>
#include <utility>

IMPLEMENT_DYNAMIC(CBaseFrameWnd, CBCGPMDIFrameWnd)

BEGIN_MESSAGE_MAP(CBaseFrameWnd, CBCGPMDIFrameWnd)
ON_WM_CREATE()
ON_WM_ACTIVATE()
ON_COMMAND_RANGE(ID_FRAME_FIRST, ID_FRAME_LAST,
                 static_cast<void (CBaseFrameWnd::*)(UINT)>(&CBaseFrameWnd::OnBaseFrameOpen))
ON_WM_SETFOCUS()
END_MESSAGE_MAP()

CBaseFrameWnd::CBaseFrameWnd()
    : m_pObserver(std::make_unique<splitframe::CUnitObserver>([this](const CBaseUnitWnd* pDeleted) {
          const auto* pEnd = m_arrGlobalBaseUnitWnd.end();
          const auto* pAt = std::find(m_arrGlobalBaseUnitWnd.begin(), m_arrGlobalBaseUnitWnd.end(), pDeleted);
          if (pAt != pEnd)
              m_arrGlobalBaseUnitWnd.RemoveAt(static_cast<int>(pAt - m_arrGlobalBaseUnitWnd.begin()));
      }))
{
}

CBaseFrameWnd::~CBaseFrameWnd()
{
    EndFromDestructor(); // frames that are still open end while their definitions live
    DeleteLayout();
}

// --- initialisation

int CBaseFrameWnd::InitializeByFile(CMultiDocTemplate* pTemplate, const wchar_t* pszFile, const GUID* pGuid,
                                    CRuntimeClass* const* ppClass, int nCount, const GUID* pGuidHelper,
                                    CRuntimeClass* const* ppClassHelper, int nCountHelper)
{
    const CCallScope scope;
    CBaseFrameDoc::Initialize(pGuid, ppClass, nCount, pGuidHelper, ppClassHelper, nCountHelper);
    const int nFirstGlobal = m_arrGlobalBaseUnitInfo.GetSize();
    m_loadResult = LoadFile(pszFile, m_arrBaseFrameDoc, m_arrGlobalBaseUnitInfo);
    return FinishInitialize(pTemplate, nFirstGlobal);
}

int CBaseFrameWnd::InitializeByDoc(CMultiDocTemplate* pTemplate, const wchar_t* pszText, const GUID* pGuid,
                                   CRuntimeClass* const* ppClass, int nCount, const GUID* pGuidHelper,
                                   CRuntimeClass* const* ppClassHelper, int nCountHelper)
{
    CBaseFrameDoc::Initialize(pGuid, ppClass, nCount, pGuidHelper, ppClassHelper, nCountHelper);
    return InitializeByDoc(pTemplate, pszText);
}

int CBaseFrameWnd::InitializeByDoc(CMultiDocTemplate* pTemplate, const wchar_t* pszText)
{
    const CCallScope scope;
    const int nFirstGlobal = m_arrGlobalBaseUnitInfo.GetSize();
    m_loadResult = LoadDoc(pszText, m_arrBaseFrameDoc, m_arrGlobalBaseUnitInfo);
    return FinishInitialize(pTemplate, nFirstGlobal);
}

CLayoutLoadResult CBaseFrameWnd::LoadFile(const wchar_t* pszFile, FrameDocs& arrDoc, UnitInfos& arrGlobal)
{
    return splitframe::LoadLayoutFile(pszFile, arrDoc, arrGlobal);
}

CLayoutLoadResult CBaseFrameWnd::LoadDoc(const wchar_t* pszText, FrameDocs& arrDoc, UnitInfos& arrGlobal)
{
    return splitframe::LoadLayoutText(pszText, arrDoc, arrGlobal);
}

int CBaseFrameWnd::FinishInitialize(CMultiDocTemplate* pTemplate, int nFirstGlobal)
{
    CreateGlobalUnits(nFirstGlobal);
    BuildFramesMenu();
    m_pDocTemplate = pTemplate;
    return 1;
}

// What the loader could tell of unusable classes it has told.
void CBaseFrameWnd::CreateGlobalUnits(int nFirst)
{
    for (int i = nFirst; i < m_arrGlobalBaseUnitInfo.GetSize(); ++i) {
        CBaseUnitInfo* pInfo = m_arrGlobalBaseUnitInfo[i];
        splitframe::NewUnit unit(splitframe::MakeUnit(pInfo->m_guid).release());
        if (unit.Get())
            unit.Get()->Create(this, pInfo);
        if (unit.Get())
            unit.Get()->Init(L"");
        if (unit.Get())
            m_arrGlobalBaseUnitWnd.Add(unit.Release());
    }
}

void CBaseFrameWnd::BuildFramesMenu()
{
    m_hBaseFrameMenu = ::CreatePopupMenu();
    UINT nID = ID_FRAME_FIRST;
    for (const CBaseFrameDoc* pDoc : m_arrBaseFrameDoc) {
        if (pDoc->m_arrStyle.GetSize() <= 1) {
            ::AppendMenuW(m_hBaseFrameMenu, MF_STRING, nID++, pDoc->m_strName);
            continue;
        }
        const HMENU hStyles = ::CreatePopupMenu();
        ::AppendMenuW(m_hBaseFrameMenu, MF_POPUP, reinterpret_cast<UINT_PTR>(hStyles), pDoc->m_strName);
        for (const CBaseFrameStyle* pStyle : pDoc->m_arrStyle)
            ::AppendMenuW(hStyles, MF_STRING, nID++, pStyle->m_strName);
    }
}

void CBaseFrameWnd::ClearLayout()
{
    std::vector<HWND> arrFrame;
    for (const CMDIChildWnd* pChild : GetChildFrames())
        arrFrame.push_back(pChild->GetSafeHwnd());
    for (const HWND hFrame : arrFrame)
        ::DestroyWindow(hFrame);
    DeleteLayout();
}

void CBaseFrameWnd::DeleteLayout()
{
    ::DestroyMenu(std::exchange(m_hBaseFrameMenu, nullptr));
    while (!m_arrBaseFrameDoc.IsEmpty()) {
        CBaseFrameDoc* pDoc = m_arrBaseFrameDoc[0];
        m_arrBaseFrameDoc.RemoveAt(0);
        pDoc->Clear();
        delete pDoc;
    }
    for (CBaseUnitWnd* pUnit : m_arrGlobalBaseUnitWnd)
        pUnit->m_pBaseUnitInfo = nullptr;
    // A document that was read from an archive and outlives the layout lists them still.
    splitframe::DocumentList::RecordsAreDeleted(
        {m_arrGlobalBaseUnitInfo.begin(), m_arrGlobalBaseUnitInfo.end()});
    while (!m_arrGlobalBaseUnitInfo.IsEmpty()) {
        CBaseUnitInfo* pInfo = m_arrGlobalBaseUnitInfo[0];
        m_arrGlobalBaseUnitInfo.RemoveAt(0);
        delete pInfo;
    }
    // Each unit takes itself out of the list.
    while (!m_arrGlobalBaseUnitWnd.IsEmpty())
        delete m_arrGlobalBaseUnitWnd[0];
}

// --- look-ups and global units

CBaseFrameDoc* CBaseFrameWnd::FindBaseFrameDoc(CString strName)
{
    for (CBaseFrameDoc* pDoc : m_arrBaseFrameDoc) {
        if (pDoc->m_strName == strName)
            return pDoc;
    }
    return nullptr;
}

CBaseUnitWnd* CBaseFrameWnd::FindGlobalBaseUnitWnd(CString strName)
{
    return splitframe::FindUnit(m_arrGlobalBaseUnitWnd, strName);
}

bool CBaseFrameWnd::ListsGlobalUnit(const CBaseUnitWnd* pUnit) const
{
    return std::find(m_arrGlobalBaseUnitWnd.begin(), m_arrGlobalBaseUnitWnd.end(), pUnit) !=
           m_arrGlobalBaseUnitWnd.end();
}

void CBaseFrameWnd::GiveFrontItsOwn()
{
    if (auto* pFront = GetSafeHwnd() ? DynamicDownCast<CBaseFrameChildWnd>(GetActiveFrame()) : nullptr)
        pFront->TakeBack();
}

// Hiding it runs host code, which may have given it to another frame.
void CBaseFrameWnd::TakeHome(CBaseUnitWnd* pUnit)
{
    const HWND hUnit = pUnit->GetSafeHwnd();
    const HWND hBefore = ::GetParent(hUnit);
    ::ShowWindow(hUnit, SW_HIDE);
    if (!ListsGlobalUnit(pUnit) || ::GetParent(hUnit) != hBefore)
        return;
    pUnit->SetNotifyFunc(nullptr);
    pUnit->m_pParent = nullptr;
    pUnit->m_pHostWnd = this;
    ::SetParent(hUnit, GetSafeHwnd());
    ::ShowWindow(hUnit, SW_HIDE); // a layout of the frame that it left may have shown it again
}

LRESULT CBaseFrameWnd::ProcessCommand(UINT nCmd, LPARAM lParam)
{
    const CCallScope scope;
    LRESULT nResult = 0;
    const std::vector<CBaseUnitWnd*> arrUnit(m_arrGlobalBaseUnitWnd.begin(), m_arrGlobalBaseUnitWnd.end());
    for (CBaseUnitWnd* pUnit : arrUnit) {
        if (ListsGlobalUnit(pUnit))
            nResult = pUnit->OnProcessCommand(nCmd, lParam) != 0 ? 1 : 0;
    }
    return nResult;
}

CString CBaseFrameWnd::GetAppSite(const wchar_t* pszText)
{
    CMarkup markup;
    markup.SetDoc(pszText);
    return markup.FindChildElem(L"AppSite") ? markup.GetChildData() : CString(L"http://localhost/");
}

// --- the window

BOOL CBaseFrameWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    return CBCGPMDIFrameWnd::PreCreateWindow(cs) ? TRUE : FALSE;
}

BOOL CBaseFrameWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd,
                              CCreateContext* pContext)
{
    return CBCGPMDIFrameWnd::LoadFrame(nIDResource, dwDefaultStyle, pParentWnd, pContext) ? TRUE : FALSE;
}

int CBaseFrameWnd::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    return CBCGPMDIFrameWnd::OnCreate(lpCreateStruct) == -1 ? -1 : 0;
}

// Units learn from command 10 that the application was activated.
void CBaseFrameWnd::OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized)
{
    CBCGPMDIFrameWnd::OnActivate(nState, pWndOther, bMinimized);
    if (auto* pChild = DynamicDownCast<CBaseFrameChildWnd>(GetActiveFrame()))
        pChild->ProcessCommand(splitframe::UNIT_CMD_APP_ACTIVATE, static_cast<LPARAM>(nState));
}

// The focus stays where activation put it.
void CBaseFrameWnd::OnSetFocus(CWnd* /*pOldWnd*/) {}
