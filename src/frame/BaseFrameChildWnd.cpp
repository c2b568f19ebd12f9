#include "frame/BaseFrameChildWnd.h"

#include "document/BaseFrameDoc.h"
#include "document/BaseFrameHelper.h"
#include "document/MainFrame.h"
#include "frame/BaseFrameWnd.h"
#include "platform/docview/View.h"
#include "platform/window/CallScope.h"
#include "unit/BaseUnitWnd.h"

IMPLEMENT_DYNCREATE(CBaseFrameChildWnd, CBCGPMDIChildWnd)

BEGIN_MESSAGE_MAP(CBaseFrameChildWnd, CBCGPMDIChildWnd)
ON_WM_ERASEBKGND()
ON_WM_MDIACTIVATE()
ON_WM_CLOSE()
ON_WM_SETFOCUS()
ON_WM_DESTROY()
END_MESSAGE_MAP()

CBaseFrameChildWnd::CBaseFrameChildWnd() = default;
CBaseFrameChildWnd::~CBaseFrameChildWnd() = default;

CBaseFrameDoc* CBaseFrameChildWnd::GetFrameDoc()
{
    return DynamicDownCast<CBaseFrameDoc>(GetActiveDocument());
}

BOOL CBaseFrameChildWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.style &= static_cast<LONG>(~WS_SYSMENU);
    return CBCGPMDIChildWnd::PreCreateWindow(cs);
}

void CBaseFrameChildWnd::OnBeginDestroy()
{
    const CMDIFrameWnd* pMain = GetMDIFrame();
    auto* pFront = pMain ? DynamicDownCast<CBaseFrameChildWnd>(pMain->MDIGetActive()) : nullptr;
    const HWND hFront = pFront ? pFront->GetSafeHwnd() : nullptr;
    CBCGPMDIChildWnd::OnBeginDestroy();
    CBaseFrameDoc* pDoc = GetFrameDoc();
    const bool bHeldSomething = pDoc && pDoc->ViewIsDying();
    // A frame that ends before it ever came to the front has taken from the one that is there.
    if (pFront && pFront != this && bHeldSomething && ::IsWindow(hFront))
        pFront->TakeBack();
}

void CBaseFrameChildWnd::TakeBack()
{
    CBaseFrameDoc* pDoc = GetFrameDoc();
    if (!pDoc || !pDoc->m_bActive)
        return;
    pDoc->SetRoot();
    pDoc->AdoptGlobalUnits();
    RecalcLayout(TRUE);
}

void CBaseFrameChildWnd::ActivateFrame(int /*nCmdShow*/)
{
    const CCallScope scope;
    CBCGPMDIChildWnd::ActivateFrame(SW_SHOWMAXIMIZED);
    if (CBaseFrameDoc* pDoc = GetFrameDoc())
        pDoc->SetTitle();
}

BOOL CBaseFrameChildWnd::OnEraseBkgnd(CDC* /*pDC*/)
{
    return TRUE;
}

// The document's tree and global units are in place before the units hear of the activation, and all of it
// before the layout. A unit's hook may close the frame.
void CBaseFrameChildWnd::OnMDIActivate(BOOL bActivate, CWnd* pActivateWnd, CWnd* pDeactivateWnd)
{
    CBCGPMDIChildWnd::OnMDIActivate(bActivate, pActivateWnd, pDeactivateWnd);
    CBaseFrameDoc* pDoc = GetFrameDoc();
    if (!pDoc)
        return;
    pDoc->m_bActive = bActivate != FALSE;
    if (bActivate) {
        pDoc->SetRoot();
        pDoc->AdoptGlobalUnits();
    }
    pDoc->ForEachUnit(
        [&](CBaseUnitWnd* pUnit) { pUnit->MDIActivate(bActivate, pActivateWnd, pDeactivateWnd); });
    CView* pView = GetSafeHwnd() ? GetActiveView() : nullptr;
    if (bActivate && pView && pView->GetSafeHwnd()) {
        CRect rc;
        GetClientRect(&rc);
        pView->CalcWindowRect(&rc, adjustBorder);
    }
}

void CBaseFrameChildWnd::OnSetFocus(CWnd* pOldWnd)
{
    CBaseFrameDoc* pDoc = GetFrameDoc();
    if (!pDoc)
        return CBCGPMDIChildWnd::OnSetFocus(pOldWnd);
    if (pDoc->GetBaseUnitWndCount() > 0)
        pDoc->GetBaseUnitWnd(0)->OnProcessCommand(splitframe::UNIT_CMD_SET_FOCUS, 0);
}

void CBaseFrameChildWnd::OnClose()
{
    const bool bRefused = ProcessHelperMessage(WM_CLOSE, 0, 0) != 0;
    if (!bRefused && GetSafeHwnd())
        CBCGPMDIChildWnd::OnClose();
}

void CBaseFrameChildWnd::OnDestroy()
{
    if (ProcessHelperMessage(WM_DESTROY, 0, 0) == 0)
        CBCGPMDIChildWnd::OnDestroy();
    if (CBaseFrameDoc* pDoc = GetFrameDoc())
        pDoc->ForEachUnit([](CBaseUnitWnd* pUnit) { pUnit->SendMessage(WM_DESTROY); });
}

LRESULT CBaseFrameChildWnd::ProcessCommand(UINT nCmd, LPARAM lParam)
{
    const CCallScope scope;
    CBaseFrameDoc* pDoc = GetFrameDoc();
    if (!pDoc)
        return 0;
    LRESULT nResult = 0;
    pDoc->ForEachUnit(
        [&](CBaseUnitWnd* pUnit) { nResult = pUnit->OnProcessCommand(nCmd, lParam) != 0 ? 1 : 0; });
    CBaseFrameWnd* pMain = splitframe::FindMainFrame();
    return pMain && pMain->ProcessCommand(nCmd, lParam) != 0 ? 1 : nResult;
}

LRESULT CBaseFrameChildWnd::ProcessHelperMessage(DWORD nMsg, WPARAM wParam, LPARAM lParam)
{
    const CCallScope scope;
    const CBaseFrameDoc* pDoc = GetFrameDoc();
    return pDoc && pDoc->m_pHelper ? pDoc->m_pHelper->ProcessMessage(nMsg, wParam, lParam) : 0;
}
