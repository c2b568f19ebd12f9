// The layout of a frame: bars first, the pane in what they leave. The pane's CalcWindowRect and every move
// run host code, which may resize or destroy the frame, or ask for a layout again.
#include "platform/docview/FrameWnd.h"
#include "platform/docview/ScopedFlag.h"
#include "platform/docview/View.h"
#include "platform/window/CallScope.h"

namespace {

// A hook that resizes its frame or makes a bar appear gets a layout for the new room; one that does so every
// time is given up on.
constexpr int MAX_PASSES = 4;

CRect ClientRectOf(HWND hWnd)
{
    CRect rc(0, 0, 0, 0);
    ::GetClientRect(hWnd, &rc);
    return rc;
}

} // namespace

void CFrameWnd::RecalcLayout(BOOL /*bNotify*/)
{
    if (m_bInLayout || !GetSafeHwnd())
        return;
    const CCallScope scope;
    const splitframe::ScopedFlag inLayout(m_bInLayout);
    const HWND hWnd = GetSafeHwnd();
    CRect rcLast(0, 0, 0, 0);
    for (int nPass = 0; nPass < MAX_PASSES; ++nPass) {
        CRect rcRoom = ClientRectOf(hWnd);
        LayoutBars(rcRoom);
        if (!::IsWindow(hWnd) || (nPass > 0 && rcRoom == rcLast))
            return;
        LayoutPane(rcRoom);
        rcLast = rcRoom;
    }
}

void CFrameWnd::LayoutBars(CRect& /*rcRoom*/) {}

// CalcWindowRect before the move: a view lays its own children out there, for the room that it gets.
void CFrameWnd::LayoutPane(const CRect& rcRoom)
{
    CWnd* pPane = FindPane();
    if (!pPane)
        return;
    const HWND hPane = pPane->GetSafeHwnd();
    CRect rcPane = rcRoom;
    pPane->CalcWindowRect(&rcPane, CWnd::adjustBorder);
    ::SetWindowPos(hPane, nullptr, rcPane.left, rcPane.top, rcPane.Width(), rcPane.Height(),
                   SWP_NOZORDER | SWP_NOACTIVATE);
}

CWnd* CFrameWnd::FindPane() const
{
    CWnd* pView = m_pViewActive;
    if (pView && pView->GetParent() == this)
        return pView;
    return GetDlgItem(static_cast<int>(AFX_IDW_PANE_FIRST));
}

void CFrameWnd::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    if (nType != SIZE_MINIMIZED)
        RecalcLayout(TRUE);
}
