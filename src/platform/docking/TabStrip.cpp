// Placing, painting and clicking of the tabs.
#include "platform/docking/TabStrip.h"

#include "platform/docking/BarMetrics.h"
#include "platform/docview/MDIChildWnd.h"
#include "platform/docview/MDIFrameWnd.h"
#include "platform/graphics/SystemColors.h"
#include "platform/window/CallScope.h"
#include "platform/window/PaintDC.h"

#include <algorithm>

namespace splitframe {

IMPLEMENT_DYNAMIC(CTabStrip, CWnd)

BEGIN_MESSAGE_MAP(CTabStrip, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

CTabStrip::CTabStrip(CMDIFrameWnd* pMainFrame) : m_pMainFrame(pMainFrame) {}

CTabStrip::~CTabStrip() = default;

BOOL CTabStrip::CreateStrip()
{
    const LPCWSTR pszClass = AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW));
    return Create(pszClass, nullptr, WS_CHILD | WS_CLIPSIBLINGS, CRect(0, 0, 0, 0), m_pMainFrame, 0);
}

int CTabStrip::GetHeight()
{
    return TAB_STRIP_HEIGHT;
}

// --- contents

bool CTabStrip::Refresh()
{
    const bool bWasEmpty = IsEmpty();
    std::vector<Tab> arrTab;
    for (const CMDIChildWnd* pFrame : m_pMainFrame->GetChildFrames()) {
        if (pFrame->IsShown())
            arrTab.push_back({pFrame->GetSafeHwnd(), pFrame->GetWindowText(), 0, CRect(0, 0, 0, 0)});
    }
    const CMDIChildWnd* pActive = m_pMainFrame->MDIGetActive();
    const HWND hActive = pActive ? pActive->GetSafeHwnd() : nullptr;
    const bool bSameTabs = std::ranges::equal(arrTab, m_arrTab, [](const Tab& a, const Tab& b) {
        return a.hFrame == b.hFrame && a.strText == b.strText;
    });
    if (bSameTabs)
        MoveMark(hActive);
    else
        TakeOver(std::move(arrTab), hActive);
    return bWasEmpty != IsEmpty();
}

void CTabStrip::TakeOver(std::vector<Tab> arrTab, HWND hActiveFrame)
{
    m_arrTab = std::move(arrTab);
    m_hActiveFrame = hActiveFrame;
    for (Tab& tab : m_arrTab)
        tab.nWantedWidth = std::clamp(MeasureLabel(tab.strText, DT_NOPREFIX) + 2 * TAB_PADDING, TAB_MIN_WIDTH,
                                      TAB_MAX_WIDTH);
    PlaceTabs();
    Invalidate();
}

void CTabStrip::MoveMark(HWND hActiveFrame)
{
    if (hActiveFrame == m_hActiveFrame)
        return;
    for (const Tab& tab : m_arrTab) {
        if (tab.hFrame == m_hActiveFrame || tab.hFrame == hActiveFrame)
            InvalidateRect(CRect(tab.rc.left - 1, tab.rc.top, tab.rc.right, tab.rc.bottom));
    }
    m_hActiveFrame = hActiveFrame;
}

CString CTabStrip::GetTabText(int nTab) const
{
    const bool bInRange = nTab >= 0 && nTab < GetTabCount();
    return bInRange ? m_arrTab[static_cast<std::size_t>(nTab)].strText : CString();
}

CRect CTabStrip::GetTabRect(int nTab) const
{
    const bool bInRange = nTab >= 0 && nTab < GetTabCount();
    return bInRange ? m_arrTab[static_cast<std::size_t>(nTab)].rc : CRect(0, 0, 0, 0);
}

int CTabStrip::GetActiveTab() const
{
    const auto found = std::ranges::find(m_arrTab, m_hActiveFrame, &Tab::hFrame);
    return found == m_arrTab.end() ? -1 : static_cast<int>(found - m_arrTab.begin());
}

int CTabStrip::HitTest(CPoint pt) const
{
    const auto found =
        std::ranges::find_if(m_arrTab, [pt](const Tab& tab) { return tab.rc.PtInRect(pt) != FALSE; });
    return found == m_arrTab.end() ? -1 : static_cast<int>(found - m_arrTab.begin());
}

// --- placing

// The widest tabs give way first: the largest width is found at which all tabs together fit.
int CTabStrip::FindWidthLimit(int nRoom) const
{
    std::vector<int> arrWidth;
    for (const Tab& tab : m_arrTab)
        arrWidth.push_back(tab.nWantedWidth);
    std::ranges::sort(arrWidth);
    int nLeft = static_cast<int>(arrWidth.size());
    for (const int nWidth : arrWidth) {
        if (nWidth > nRoom / nLeft)
            return nRoom / nLeft;
        nRoom -= nWidth;
        --nLeft;
    }
    return TAB_MAX_WIDTH;
}

void CTabStrip::PlaceTabs()
{
    CRect rcClient(0, 0, 0, 0);
    GetClientRect(&rcClient);
    const int nLimit = FindWidthLimit(std::max(0, rcClient.Width() - 2 * TAB_STRIP_INDENT));
    int nLeft = TAB_STRIP_INDENT;
    for (Tab& tab : m_arrTab) {
        const int nRight = nLeft + std::min(tab.nWantedWidth, nLimit);
        tab.rc = CRect(nLeft, TAB_TOP, nRight, TAB_STRIP_HEIGHT);
        nLeft = nRight;
    }
}

void CTabStrip::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    PlaceTabs();
    Invalidate();
}

// --- painting

BOOL CTabStrip::OnEraseBkgnd(CDC* /*pDC*/)
{
    return TRUE; // OnPaint covers all of it
}

void CTabStrip::OnPaint()
{
    CPaintDC dc(this);
    CRect rcClient;
    GetClientRect(&rcClient);
    dc.FillSolidRect(&rcClient, MixColors(::GetSysColor(COLOR_BTNFACE), ::GetSysColor(COLOR_BTNSHADOW), 75));
    dc.FillSolidRect(0, rcClient.bottom - 1, rcClient.Width(), 1, ::GetSysColor(COLOR_BTNSHADOW));
    SelectBarFont(dc);
    for (const Tab& tab : m_arrTab) {
        if (dc.RectVisible(&tab.rc))
            DrawTab(dc, tab, tab.hFrame == m_hActiveFrame);
    }
}

// The active tab is the one that joins the frame below it: no line beneath, the colour of a page, a mark on
// top. It covers its left neighbour's separator.
void CTabStrip::DrawTab(CDC& dc, const Tab& tab, bool bActive) const
{
    if (bActive) {
        const COLORREF edge = ::GetSysColor(COLOR_BTNSHADOW);
        const CRect rc(tab.rc.left - 1, tab.rc.top, tab.rc.right, tab.rc.bottom);
        dc.FillSolidRect(&rc, ::GetSysColor(COLOR_WINDOW));
        dc.FillSolidRect(rc.left, rc.top, 1, rc.Height(), edge);
        dc.FillSolidRect(rc.right - 1, rc.top, 1, rc.Height(), edge);
        dc.FillSolidRect(rc.left, rc.top, rc.Width(), TAB_ACCENT, ::GetSysColor(COLOR_HIGHLIGHT));
    } else {
        dc.FillSolidRect(tab.rc.right - 1, tab.rc.top + 7, 1, tab.rc.Height() - 14,
                         ::GetSysColor(COLOR_BTNSHADOW));
    }
    const COLORREF text = ::GetSysColor(COLOR_WINDOWTEXT);
    dc.SetTextColor(bActive ? text : MixColors(text, ::GetSysColor(COLOR_BTNFACE), 65));
    const int nPadding = std::clamp(tab.rc.Width() / 8, 4, TAB_PADDING);
    CRect rcText = tab.rc;
    rcText.left += nPadding;
    rcText.right -= nPadding;
    dc.DrawText(tab.strText, &rcText, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
}

// --- input

void CTabStrip::OnLButtonDown(UINT /*nFlags*/, CPoint pt)
{
    const CCallScope scope;
    const int nTab = HitTest(pt);
    if (nTab >= 0)
        m_pMainFrame->MDIActivate(CWnd::FromHandle(m_arrTab[static_cast<std::size_t>(nTab)].hFrame));
}

} // namespace splitframe
