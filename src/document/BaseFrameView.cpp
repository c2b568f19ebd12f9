#include "document/BaseFrameView.h"

#include "document/BaseFrameDoc.h"
#include "document/BaseFrameHelper.h"
#include "layout/SplitLine.h"
#include "platform/base/Geometry.h"
#include "platform/base/Number.h"
#include "platform/window/CallScope.h"
#include "unit/BaseUnitWnd.h"

#include <cstdint>

using splitframe::SubtractClamped;

IMPLEMENT_DYNCREATE(CBaseFrameView, CView)

BEGIN_MESSAGE_MAP(CBaseFrameView, CView)
ON_WM_KEYDOWN()
ON_WM_KEYUP()
ON_WM_SYSKEYDOWN()
ON_WM_MOUSEMOVE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_CAPTURECHANGED()
ON_WM_RBUTTONDOWN()
ON_WM_LBUTTONDBLCLK()
END_MESSAGE_MAP()

namespace {

// Left free around the units, so that the frame's own edge stays visible.
constexpr int FREE_RIGHT = 2;
constexpr int FREE_BOTTOM = 3;

LPARAM KeyParam(UINT nRepCnt, UINT nFlags)
{
    return MAKELPARAM(static_cast<int>(nRepCnt), static_cast<int>(nFlags));
}

// Sends a mouse message of the view to a unit, in the unit's coordinates.
LRESULT SendMouse(const CWnd& from, CBaseUnitWnd& to, UINT nMsg, UINT nFlags, CPoint pt)
{
    from.ClientToScreen(&pt);
    to.ScreenToClient(&pt);
    return to.SendMessage(nMsg, nFlags, MAKELPARAM(pt.x, pt.y));
}

} // namespace

CBaseFrameView::CBaseFrameView() = default;

CBaseFrameView::~CBaseFrameView()
{
    const CCallScope scope;
    CBaseFrameDoc* pDoc = GetFrameDoc();
    if (!pDoc)
        return;
    pDoc->ViewIsDying();
    pDoc->DestroyBaseFrameView();
    // Each unit takes itself out of the document's list.
    while (!pDoc->m_arrBaseUnitWnd.IsEmpty())
        delete pDoc->m_arrBaseUnitWnd[0];
}

CBaseFrameDoc* CBaseFrameView::GetFrameDoc() const
{
    return DynamicDownCast<CBaseFrameDoc>(GetDocument());
}

CBaseFrameHelper* CBaseFrameView::GetHelper() const
{
    const CBaseFrameDoc* pDoc = GetFrameDoc();
    return pDoc ? pDoc->m_pHelper : nullptr;
}

void CBaseFrameView::OnBeginDestroy()
{
    CancelDrag();
    if (CBaseFrameDoc* pDoc = GetFrameDoc())
        pDoc->ViewIsDying();
    CView::OnBeginDestroy();
}

void CBaseFrameView::OnInitialUpdate()
{
    const CCallScope scope;
    CView::OnInitialUpdate();
    CBaseFrameDoc* pDoc = GetFrameDoc();
    if (!pDoc)
        return;
    pDoc->Create(this);
    // A unit may have closed the frame.
    CBaseFrameHelper* pHelper = GetSafeHwnd() ? GetHelper() : nullptr;
    if (pHelper)
        pHelper->OnStyleInitial();
}

void CBaseFrameView::OnDraw(CDC* /*pDC*/) {}

void CBaseFrameView::CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType)
{
    const CCallScope scope;
    CView::CalcWindowRect(lpClientRect, nAdjustType);
    CBaseFrameDoc* pDoc = GetFrameDoc();
    if (!lpClientRect || !pDoc || !pDoc->m_bActive || !pDoc->HasUnitsToLayOut())
        return;
    CRect rc(lpClientRect->left, lpClientRect->top, SubtractClamped(lpClientRect->right, FREE_RIGHT),
             SubtractClamped(lpClientRect->bottom, FREE_BOTTOM));
    if (pDoc->m_pHelper)
        pDoc->m_pHelper->OnCalcWindowRect(&rc);
    if (GetSafeHwnd() && pDoc->m_pRoot)
        pDoc->m_pRoot->ModifyWindow(rc);
}

void CBaseFrameView::OnBaseUnitNotify(void* pContext, UINT nCode, LPARAM lParam)
{
    const CCallScope scope;
    const auto* pView = DynamicDownCast<CBaseFrameView>(static_cast<CWnd*>(pContext));
    CBaseFrameHelper* pHelper = pView ? pView->GetHelper() : nullptr;
    if (pHelper)
        pHelper->OnBaseUnitNotify(nCode, lParam);
}

// --- keys

void CBaseFrameView::SelectNextUnit()
{
    CBaseFrameDoc* pDoc = GetFrameDoc();
    const int nCount = pDoc->GetBaseUnitWndCount();
    if (nCount <= 0)
        return;
    // The current index may have been set to anything.
    const std::int64_t nNext = (std::int64_t{pDoc->GetCurrentBaseUnitWnd()} + 1) % nCount;
    pDoc->SetCurrentBaseUnitWnd(static_cast<int>(nNext < 0 ? nNext + nCount : nNext));
}

void CBaseFrameView::PassKey(UINT nMsg, UINT nChar, LPARAM lParam)
{
    CBaseFrameDoc* pDoc = GetFrameDoc();
    pDoc->GetBaseUnitWnd(pDoc->GetCurrentBaseUnitWnd())->SendMessage(nMsg, nChar, lParam);
}

bool CBaseFrameView::HelperTakes(UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    CBaseFrameHelper* pHelper = GetHelper();
    return pHelper && pHelper->ProcessMessage(nMsg, wParam, lParam) != 0;
}

void CBaseFrameView::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (nChar == VK_ESCAPE)
        CancelDrag();
    if (!GetFrameDoc())
        return CView::OnKeyDown(nChar, nRepCnt, nFlags);
    if (nChar == VK_TAB)
        return SelectNextUnit();
    const LPARAM lParam = KeyParam(nRepCnt, nFlags);
    if (!HelperTakes(WM_KEYDOWN, nChar, lParam) && GetSafeHwnd())
        PassKey(WM_KEYDOWN, nChar, lParam);
}

void CBaseFrameView::OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (!GetFrameDoc())
        return CView::OnKeyUp(nChar, nRepCnt, nFlags);
    if (nChar == VK_TAB)
        return;
    const LPARAM lParam = KeyParam(nRepCnt, nFlags);
    if (!HelperTakes(WM_KEYUP, nChar, lParam) && GetSafeHwnd())
        PassKey(WM_KEYUP, nChar, lParam);
}

// A key with Alt arrives at the unit as a plain key; the helper is not asked.
void CBaseFrameView::OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (!GetFrameDoc())
        return CView::OnSysKeyDown(nChar, nRepCnt, nFlags);
    PassKey(WM_KEYDOWN, nChar, KeyParam(nRepCnt, nFlags));
}

// --- clicks

void CBaseFrameView::OnRButtonDown(UINT nFlags, CPoint pt)
{
    CBaseFrameDoc* pDoc = GetFrameDoc();
    CBaseUnitWnd* pUnit = pDoc ? pDoc->GetBaseUnitWnd(pt) : nullptr;
    if (pUnit)
        SendMouse(*this, *pUnit, WM_RBUTTONDOWN, nFlags, pt);
    else
        Default();
}

void CBaseFrameView::OnLButtonDblClk(UINT nFlags, CPoint pt)
{
    CBaseFrameDoc* pDoc = GetFrameDoc();
    CBaseUnitWnd* pUnit = pDoc ? pDoc->GetBaseUnitWnd(pt) : nullptr;
    const bool bTaken = pUnit && SendMouse(*this, *pUnit, WM_LBUTTONDBLCLK, nFlags, pt) != 0;
    if (bTaken || !HelperTakes(WM_LBUTTONDBLCLK, nFlags, MAKELPARAM(pt.x, pt.y)))
        Default();
}
