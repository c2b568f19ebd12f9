// Painting of the tabs, their close marks and the arrows.
#include "platform/docking/TabStrip.h"

#include "platform/docking/BarMetrics.h"
#include "platform/graphics/SystemColors.h"
#include "platform/window/Look.h"
#include "platform/window/PaintDC.h"

namespace splitframe {

namespace {

COLORREF StripColor()
{
    return MixColors(::GetSysColor(COLOR_BTNFACE), ::GetSysColor(COLOR_BTNSHADOW), 75);
}

} // namespace

BOOL CTabStrip::OnEraseBkgnd(CDC* /*pDC*/)
{
    return TRUE; // OnPaint covers all of it
}

void CTabStrip::OnPaint()
{
    CPaintDC dc(this);
    CRect rcClient;
    GetClientRect(&rcClient);
    dc.FillSolidRect(&rcClient, StripColor());
    dc.FillSolidRect(0, rcClient.bottom - 1, rcClient.Width(), 1, ::GetSysColor(COLOR_BTNSHADOW));
    SelectLookFont(dc);
    for (const int nDirection : {-1, 1})
        DrawArrow(dc, nDirection);
    dc.IntersectClipRect(CRect(m_rcRoom.left - 1, m_rcRoom.top, m_rcRoom.right, m_rcRoom.bottom));
    for (int n = 0; n < GetTabCount(); ++n) {
        if (dc.RectVisible(m_row.Get(n)->rc))
            DrawTab(dc, n);
    }
}

void CTabStrip::DrawTab(CDC& dc, int nTab) const
{
    const Tab& tab = *m_row.Get(nTab);
    const bool bActive = tab.hFrame == m_hActiveFrame;
    DrawTabShape(dc, tab.rc, bActive);
    const COLORREF text = ::GetSysColor(COLOR_WINDOWTEXT);
    dc.SetTextColor(bActive ? text : MixColors(text, ::GetSysColor(COLOR_BTNFACE), 75));
    CRect rcText = tab.rc;
    rcText.left += TAB_PADDING;
    rcText.right -= TAB_CLOSE_GAP + TAB_CLOSE_SIZE + TAB_CLOSE_GAP / 2;
    dc.DrawText(tab.strText, &rcText, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
    if (bActive || tab.hFrame == m_hot.hFrame)
        DrawCloseMark(dc, GetCloseRect(nTab), {tab.hFrame, true, 0});
}

// The active tab is the one that joins the frame below it: no line beneath, the colour of a page, a mark on
// top. It covers its left neighbour's separator.
void CTabStrip::DrawTabShape(CDC& dc, const CRect& rcTab, bool bActive) const
{
    const COLORREF edge = ::GetSysColor(COLOR_BTNSHADOW);
    if (!bActive) {
        dc.FillSolidRect(rcTab.right - 1, rcTab.top + 7, 1, rcTab.Height() - 14, edge);
        return;
    }
    const CRect rc(rcTab.left - 1, rcTab.top, rcTab.right, rcTab.bottom);
    dc.FillSolidRect(&rc, ::GetSysColor(COLOR_WINDOW));
    dc.FillSolidRect(rc.left, rc.top, 1, rc.Height(), edge);
    dc.FillSolidRect(rc.right - 1, rc.top, 1, rc.Height(), edge);
    dc.FillSolidRect(rc.left, rc.top, rc.Width(), TAB_ACCENT, ::GetSysColor(COLOR_HIGHLIGHT));
}

void CTabStrip::DrawCloseMark(CDC& dc, const CRect& rc, const Part& part) const
{
    if (part == m_hot)
        dc.FillSolidRect(&rc, ::GetSysColor(part == m_pressed ? COLOR_ACTIVEBORDER : COLOR_ACTIVECAPTION));
    const COLORREF color = MixColors(::GetSysColor(COLOR_WINDOWTEXT), ::GetSysColor(COLOR_WINDOW), 75);
    DrawCross(dc, rc.CenterPoint(), 3, 1, color);
}

void CTabStrip::DrawArrow(CDC& dc, int nDirection) const
{
    const CRect rc = GetArrowRect(nDirection);
    if (rc.IsRectEmpty())
        return;
    const bool bMore = nDirection < 0 ? m_nScroll > 0 : m_nScroll < m_nTabsWidth - m_rcRoom.Width();
    if (bMore && m_hot.nArrow == nDirection) {
        CRect rcHot = rc;
        rcHot.DeflateRect(2, 4);
        dc.FillSolidRect(&rcHot, ::GetSysColor(COLOR_BTNFACE));
    }
    DrawAngle(dc, rc.CenterPoint(), nDirection, 0,
              bMore ? ::GetSysColor(COLOR_WINDOWTEXT)
                    : MixColors(::GetSysColor(COLOR_GRAYTEXT), StripColor(), 50));
}

} // namespace splitframe
