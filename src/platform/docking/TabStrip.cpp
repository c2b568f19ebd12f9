// Contents, placing and clicking of the tabs. Painting has a file of its own.
#include "platform/docking/TabStrip.h"

#include "platform/docking/BarMetrics.h"
#include "platform/docview/MDIChildWnd.h"
#include "platform/docview/MDIFrameWnd.h"
#include "platform/graphics/DC.h"
#include "platform/window/CallScope.h"
#include "platform/window/Look.h"

#include <algorithm>
#include <utility>

namespace splitframe {

namespace {

constexpr UINT_PTR REPEAT_TIMER = 1;
constexpr UINT FIRST_REPEAT = 400; // milliseconds that an arrow is held until it goes on
constexpr UINT NEXT_REPEAT = 100;

} // namespace

IMPLEMENT_DYNAMIC(CTabStrip, CWnd)

BEGIN_MESSAGE_MAP(CTabStrip, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
ON_WM_MOUSEMOVE()
ON_WM_MOUSELEAVE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_TIMER()
ON_WM_CAPTURECHANGED()
ON_WM_MBUTTONDOWN()
ON_WM_MBUTTONUP()
ON_WM_MOUSEWHEEL()
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
    const bool bSameTabs = std::ranges::equal(arrTab, m_row.cells, [](const Tab& a, const Tab& b) {
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
    m_row.cells = std::move(arrTab);
    m_hActiveFrame = hActiveFrame;
    constexpr int nAround = 2 * TAB_PADDING + TAB_CLOSE_SIZE;
    for (Tab& tab : m_row.cells)
        tab.nWantedWidth =
            std::clamp(MeasureLabel(tab.strText, DT_NOPREFIX) + nAround, TAB_MIN_WIDTH, TAB_MAX_WIDTH);
    PlaceTabs();
    ShowActiveTab();
    Invalidate();
}

void CTabStrip::MoveMark(HWND hActiveFrame)
{
    if (hActiveFrame == m_hActiveFrame)
        return;
    InvalidateFrame(m_hActiveFrame);
    InvalidateFrame(hActiveFrame);
    m_hActiveFrame = hActiveFrame;
    if (ShowActiveTab())
        Invalidate();
}

// The tab of a frame with its left neighbour's separator.
void CTabStrip::InvalidateFrame(HWND hFrame)
{
    const CRect rc = GetTabRect(m_row.Find([hFrame](const Tab& tab) { return tab.hFrame == hFrame; }));
    if (!rc.IsRectEmpty())
        InvalidateRect(CRect(rc.left - 1, rc.top, rc.right, rc.bottom));
}

int CTabStrip::GetActiveTab() const
{
    return m_row.Find([this](const Tab& tab) { return tab.hFrame == m_hActiveFrame; });
}

CRect CTabStrip::GetTabRect(int nTab) const
{
    CRect rc;
    rc.IntersectRect(m_row.GetRect(nTab), m_rcRoom);
    return rc;
}

CRect CTabStrip::GetCloseRect(int nTab) const
{
    const CRect rcTab = m_row.GetRect(nTab);
    const int nTop = rcTab.CenterPoint().y - TAB_CLOSE_SIZE / 2;
    const CRect rcMark(CPoint(rcTab.right - TAB_CLOSE_GAP - TAB_CLOSE_SIZE, nTop),
                       CSize(TAB_CLOSE_SIZE, TAB_CLOSE_SIZE));
    CRect rc;
    rc.IntersectRect(rcMark, m_rcRoom);
    return rc;
}

CRect CTabStrip::GetArrowRect(int nDirection) const
{
    if (m_nTabsWidth <= m_rcRoom.Width())
        return {};
    const int nLeft = m_rcRoom.right + (nDirection < 0 ? 0 : TAB_ARROW_WIDTH);
    return {nLeft, m_rcRoom.top, nLeft + TAB_ARROW_WIDTH, m_rcRoom.bottom};
}

int CTabStrip::HitTest(CPoint pt) const
{
    return m_rcRoom.PtInRect(pt) ? m_row.HitTest(pt) : -1;
}

// --- placing

// The widest tabs give way first: the largest width is found at which all tabs together fit.
int CTabStrip::FindWidthLimit(int nRoom) const
{
    std::vector<int> arrWidth;
    for (const Tab& tab : m_row.cells)
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
    const int nWhole = std::max(0, rcClient.Width() - 2 * TAB_STRIP_INDENT);
    const int nFitting = FindWidthLimit(nWhole);
    const bool bScrolls = nFitting < TAB_READABLE_WIDTH;
    const int nRoom = std::max(0, bScrolls ? nWhole - 2 * TAB_ARROW_WIDTH : nWhole);
    m_rcRoom = CRect(CPoint(TAB_STRIP_INDENT, TAB_TOP), CSize(nRoom, TAB_STRIP_HEIGHT - TAB_TOP));
    int nLeft = TAB_STRIP_INDENT - m_nScroll;
    for (Tab& tab : m_row.cells) {
        const int nRight = nLeft + std::min(tab.nWantedWidth, std::max(nFitting, TAB_READABLE_WIDTH));
        tab.rc = CRect(nLeft, TAB_TOP, nRight, TAB_STRIP_HEIGHT);
        nLeft = nRight;
    }
    m_nTabsWidth = nLeft - TAB_STRIP_INDENT + m_nScroll;
    ScrollTo(m_nScroll); // there may be less to scroll now
}

// @return whether the tabs have moved
bool CTabStrip::ScrollTo(int nScroll)
{
    nScroll = std::clamp(nScroll, 0, std::max(0, m_nTabsWidth - m_rcRoom.Width()));
    const int nShift = m_nScroll - nScroll;
    if (nShift == 0)
        return false;
    m_nScroll = nScroll;
    for (Tab& tab : m_row.cells)
        tab.rc.OffsetRect(nShift, 0);
    Invalidate();
    return true;
}

bool CTabStrip::ShowActiveTab()
{
    const Tab* pTab = m_row.Get(GetActiveTab());
    if (!pTab)
        return false;
    if (pTab->rc.left < m_rcRoom.left || pTab->rc.Width() > m_rcRoom.Width())
        return ScrollTo(m_nScroll - (m_rcRoom.left - pTab->rc.left));
    return pTab->rc.right > m_rcRoom.right && ScrollTo(m_nScroll + pTab->rc.right - m_rcRoom.right);
}

void CTabStrip::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    PlaceTabs();
    ShowActiveTab();
    Invalidate();
}

// --- input

CTabStrip::Part CTabStrip::FindPart(CPoint pt) const
{
    for (const int nDirection : {-1, 1}) {
        if (GetArrowRect(nDirection).PtInRect(pt))
            return {nullptr, false, nDirection};
    }
    const int nTab = HitTest(pt);
    return nTab < 0 ? Part{} : Part{m_row.Get(nTab)->hFrame, GetCloseRect(nTab).PtInRect(pt) != FALSE, 0};
}

void CTabStrip::SetHot(const Part& part)
{
    if (part == m_hot)
        return;
    InvalidateFrame(m_hot.hFrame);
    InvalidateFrame(part.hFrame);
    for (const int nArrow : {m_hot.nArrow, part.nArrow})
        InvalidateRect(nArrow == 0 ? CRect() : GetArrowRect(nArrow));
    m_hot = part;
}

void CTabStrip::OnMouseMove(UINT /*nFlags*/, CPoint pt)
{
    SetHot(FindPart(pt));
}

void CTabStrip::OnMouseLeave()
{
    SetHot({});
}

void CTabStrip::OnLButtonDown(UINT /*nFlags*/, CPoint pt)
{
    const CCallScope scope;
    m_pressed = FindPart(pt);
    SetHot(m_pressed);
    if (m_pressed.nArrow != 0)
        HoldArrow(FIRST_REPEAT);
    else if (m_pressed.hFrame && !m_pressed.bMark)
        m_pMainFrame->MDIActivate(CWnd::FromHandle(m_pressed.hFrame));
}

void CTabStrip::OnLButtonUp(UINT /*nFlags*/, CPoint pt)
{
    const Part pressed = std::exchange(m_pressed, {});
    if (pressed.nArrow != 0)
        ReleaseCapture();
    if (pressed.bMark && pressed == FindPart(pt))
        CloseFrame(pressed.hFrame);
}

// Like a button of a scroll bar: it rests while the pointer is elsewhere, until the mouse is let go.
void CTabStrip::HoldArrow(UINT nDelay)
{
    SetCapture();
    ScrollTo(m_nScroll + m_pressed.nArrow * TAB_READABLE_WIDTH);
    SetTimer(REPEAT_TIMER, nDelay);
}

void CTabStrip::OnTimer(UINT_PTR /*nIDEvent*/)
{
    if (m_hot == m_pressed)
        HoldArrow(NEXT_REPEAT);
}

void CTabStrip::OnCaptureChanged(CWnd* pWnd)
{
    m_pressed = {};
    KillTimer(REPEAT_TIMER);
    CWnd::OnCaptureChanged(pWnd);
}

void CTabStrip::OnMButtonDown(UINT /*nFlags*/, CPoint pt)
{
    m_pressed = FindPart(pt);
}

void CTabStrip::OnMButtonUp(UINT /*nFlags*/, CPoint pt)
{
    const HWND hPressed = std::exchange(m_pressed, {}).hFrame;
    if (hPressed && hPressed == FindPart(pt).hFrame)
        CloseFrame(hPressed);
}

BOOL CTabStrip::OnMouseWheel(UINT /*nFlags*/, short zDelta, CPoint pt)
{
    ScrollTo(m_nScroll - zDelta * TAB_READABLE_WIDTH / WHEEL_DELTA);
    ScreenToClient(&pt);
    SetHot(FindPart(pt));
    return TRUE;
}

// The frame may refuse; it may end the main frame, too.
void CTabStrip::CloseFrame(HWND hFrame)
{
    const CCallScope scope;
    const HWND hStrip = GetSafeHwnd();
    ::SendMessage(hFrame, WM_CLOSE);
    POINT pt{};
    if (!::IsWindow(hStrip) || !::GetCursorPos(&pt) || ::WindowFromPoint(pt) != hStrip)
        return;
    ScreenToClient(&pt);
    SetHot(FindPart(pt)); // the next tab is under the pointer now
}

} // namespace splitframe
