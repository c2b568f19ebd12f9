// Dragging split lines with the mouse. Three states: idle; over a movable line, with the mouse captured and a
// sizing cursor; dragging that line. Only the release of the button moves panes. Whatever else ends a drag
// takes the indicator away and moves nothing.
//
// The line, the tree and the frame may go at any moment: the line is held by a link, and its indicator goes
// with it.
#include "document/BaseFrameDoc.h"
#include "document/BaseFrameView.h"
#include "layout/SplitLine.h"
#include "platform/window/WindowManager.h"

#include <utility>

namespace {

// To a line this point means that there is no indicator.
constexpr CPoint NO_INDICATOR(-1, -1);

LPCWSTR CursorFor(const CSplitLine* pLine)
{
    if (!pLine)
        return IDC_ARROW;
    return pLine->GetNodeType() == CSplitLine::NT_VLINE ? IDC_SIZEWE : IDC_SIZENS;
}

} // namespace

// A line that was fixed or has died can't be dragged any further. Nor can one whose button went up unheard:
// when the press told of the button, each move does.
bool CBaseFrameView::IsDragAlive(UINT nFlags) const
{
    const bool bReleased = m_bButtonTold && (nFlags & MK_LBUTTON) == 0;
    return m_pHitLine && m_pHitLine->m_bMobile && !bReleased;
}

void CBaseFrameView::OnMouseMove(UINT nFlags, CPoint pt)
{
    if (m_bDragging && !IsDragAlive(nFlags))
        CancelDrag();
    if (!m_bDragging)
        Hover(pt);
    else if (pt != NO_INDICATOR)
        m_pHitLine->DrawSplitLineByPos(pt);
}

// Units tell the view of the mouse near their edges, too. One that has captured the mouse keeps it.
void CBaseFrameView::Hover(CPoint pt)
{
    const CWnd* pCapture = GetCapture();
    if (pCapture && pCapture != this)
        return;
    const CBaseFrameDoc* pDoc = GetFrameDoc();
    m_pHitLine = pDoc && pDoc->m_pRoot ? pDoc->m_pRoot->HitTest(pt) : nullptr;
    if (m_pHitLine)
        SetCapture();
    else if (pCapture)
        ReleaseCapture();
    ::SetCursor(::LoadCursor(nullptr, CursorFor(m_pHitLine)));
}

void CBaseFrameView::OnLButtonDown(UINT nFlags, CPoint /*pt*/)
{
    if (!m_pHitLine || !m_pHitLine->m_bMobile)
        return;
    m_bDragging = true;
    m_bButtonTold = (nFlags & MK_LBUTTON) != 0;
}

// The view's own release of the mouse is no loss of it: the drag is over before. It releases the mouse
// whoever holds it: a unit hands the end of a press on. The layout runs host code, which may do anything.
void CBaseFrameView::OnLButtonUp(UINT /*nFlags*/, CPoint pt)
{
    const splitframe::CSplitLineLink line = m_pHitLine;
    const bool bDragged = std::exchange(m_bDragging, false);
    m_pHitLine = nullptr;
    ReleaseCapture();
    if (!bDragged || !line)
        return;
    if (!line->m_bMobile)
        return line->DrawSplitLineByPos(NO_INDICATOR);
    line->ModifyWindow(pt);
    const CBaseFrameDoc* pDoc = GetSafeHwnd() ? GetFrameDoc() : nullptr;
    if (pDoc && pDoc->m_pRoot)
        pDoc->m_pRoot->ReCalRate();
}

void CBaseFrameView::LeaveLine()
{
    m_pHitLine = nullptr;
    if (GetCapture() == this)
        ReleaseCapture();
}

void CBaseFrameView::CancelDrag()
{
    if (!std::exchange(m_bDragging, false))
        return;
    if (m_pHitLine)
        m_pHitLine->DrawSplitLineByPos(NO_INDICATOR);
    LeaveLine();
}

void CBaseFrameView::OnCaptureChanged(CWnd* pWnd)
{
    CancelDrag();
    m_pHitLine = nullptr;
    CView::OnCaptureChanged(pWnd);
}

void CBaseFrameView::OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView)
{
    if (!bActivate) {
        CancelDrag();
        LeaveLine();
    }
    CView::OnActivateView(bActivate, pActivateView, pDeactiveView);
}

BOOL CBaseFrameView::PreTranslateMessage(MSG* pMsg)
{
    if (pMsg && pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_ESCAPE)
        CancelDrag();
    return CView::PreTranslateMessage(pMsg);
}
