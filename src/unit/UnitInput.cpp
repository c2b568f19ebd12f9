// What a unit paints itself (its border) and what it hands on: keys to the main window, the mouse at its
// edges to the view, which looks for split lines there.
#include "platform/docview/WinApp.h"
#include "platform/window/PaintDC.h"
#include "unit/BaseUnitWnd.h"

using splitframe::CSplitLineLink;

namespace {

// A split line is the edge that two panes share; this far into each pane the mouse is near it.
constexpr int EDGE_BAND = 2;

bool IsNearEdge(const CRect& rc, const CPoint& pt)
{
    const CRect bands[] = {{rc.left, rc.top, rc.left + EDGE_BAND, rc.bottom},
                           {rc.right - EDGE_BAND, rc.top, rc.right, rc.bottom},
                           {rc.left, rc.top, rc.right, rc.top + EDGE_BAND},
                           {rc.left, rc.bottom - EDGE_BAND, rc.right, rc.bottom}};
    for (const CRect& band : bands) {
        if (band.PtInRect(pt))
            return true;
    }
    return false;
}

// A mouse message of the unit as its parent sees it: the point in the parent's client coordinates.
LPARAM PointForParent(const CWnd& unit, const CWnd& parent, CPoint pt)
{
    unit.ClientToScreen(&pt);
    parent.ScreenToClient(&pt);
    return MAKELPARAM(pt.x, pt.y);
}

// No bottom line: where two panes are stacked, the lower one's top line parts them.
void DrawBorder(CDC& dc, const CRect& rc)
{
    dc.MoveTo(rc.left, rc.top);
    dc.LineTo(rc.left, rc.bottom);
    dc.MoveTo(rc.left, rc.top);
    dc.LineTo(rc.right, rc.top);
    dc.MoveTo(rc.right - 1, rc.top);
    dc.LineTo(rc.right - 1, rc.bottom);
}

} // namespace

void CBaseUnitWnd::OnPaint()
{
    const CSplitLineLink self(this);
    CPaintDC dc(this);
    if (m_bCustomDraw)
        CustomDraw(&dc);
    if (!self || !m_bBorder)
        return;
    CPen* pPen = GetBorderPen();
    if (!self)
        return;
    CRect rc;
    GetClientRect(rc);
    CPen* pOldPen = dc.SelectObject(pPen);
    DrawBorder(dc, rc);
    dc.SelectObject(pOldPen);
}

void CBaseUnitWnd::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    const CSplitLineLink self(this);
    if (IsKeyFilted(nChar) || !self)
        return;
    CWnd* pMain = AfxGetMainWnd();
    if (pMain && pMain != this)
        pMain->SendMessage(WM_KEYDOWN, nChar,
                           MAKELPARAM(static_cast<int>(nRepCnt), static_cast<int>(nFlags)));
}

void CBaseUnitWnd::OnMouseMove(UINT nFlags, CPoint pt)
{
    CWnd* pParent = GetParent();
    if (!pParent)
        return;
    CRect rc;
    GetClientRect(rc);
    if (IsNearEdge(rc, pt))
        pParent->PostMessage(WM_MOUSEMOVE, nFlags, PointForParent(*this, *pParent, pt));
}

void CBaseUnitWnd::OnLButtonDown(UINT nFlags, CPoint pt)
{
    if (CWnd* pParent = GetParent())
        pParent->SendMessage(WM_LBUTTONDOWN, nFlags, PointForParent(*this, *pParent, pt));
}

void CBaseUnitWnd::OnLButtonUp(UINT nFlags, CPoint pt)
{
    if (CWnd* pParent = GetParent())
        pParent->SendMessage(WM_LBUTTONUP, nFlags, PointForParent(*this, *pParent, pt));
}
