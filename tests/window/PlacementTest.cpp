// Place, z-order, visibility; what is told and what is not.
#include "window/TestWindow.h"

namespace {

using PlacementTest = WindowTest;

std::string Order(const CWnd& parent)
{
    std::string strOrder;
    for (CWnd* pEach = parent.GetTopWindow(); pEach; pEach = pEach->GetNextWindow())
        strOrder += Narrow(pEach->GetWindowText());
    return strOrder;
}

TEST_F(PlacementTest, SetWindowPosTellsOnlyWhatHasChanged)
{
    struct Case
    {
        const char* what;
        int x, y, cx, cy;
        UINT nFlags;
        const char* told;
    };
    const Case cases[] = {
        {"nothing new", 10, 10, 50, 40, SWP_SHOWWINDOW, ""},
        {"a move", 12, 10, 50, 40, 0, "w:move 12,10"},
        {"a size", 12, 10, 60, 40, 0, "w:size 60,40"},
        {"both", 0, 0, 20, 20, 0, "w:move 0,0 | w:size 20,20"},
        {"NOMOVE keeps the place", 99, 99, 30, 20, SWP_NOMOVE, "w:size 30,20"},
        {"NOSIZE keeps the size", 5, 5, 99, 99, SWP_NOSIZE, "w:move 5,5"},
        {"a negative size is 0", 5, 5, -7, 20, 0, "w:size 0,20"},
        {"hidden and moved", 6, 5, 10, 20, SWP_HIDEWINDOW, "w:hide | w:move 6,5 | w:size 10,20"},
        {"hidden again", 6, 5, 10, 20, SWP_HIDEWINDOW, ""},
        {"shown without area", 6, 5, 0, 0, SWP_SHOWWINDOW, "w:show | w:size 0,0"},
    };
    CPlainWnd wndMain;
    wndMain.Open(nullptr, {0, 0, 400, 300});
    CLogWnd wnd("w", &m_log);
    wnd.Open(&wndMain, {10, 10, 60, 50});
    Told();
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_TRUE(wnd.SetWindowPos(nullptr, c.x, c.y, c.cx, c.cy, c.nFlags | SWP_NOZORDER));
        EXPECT_EQ(Told(), c.told);
    }
    EXPECT_TRUE(wnd.IsWindowVisible()) << "a window without area may be visible";
    EXPECT_EQ(WindowFromPoint({6, 5}), wndMain.GetSafeHwnd()) << "and is never hit";
}

TEST_F(PlacementTest, TheLastSizeToldIsTheSizeThatHolds)
{
    for (const UINT nMessage : {WM_MOVE, WM_SHOWWINDOW}) {
        CPlainWnd wndMain;
        wndMain.Open(nullptr, {0, 0, 400, 300});
        CLogWnd wnd("w", &m_log);
        wnd.Open(&wndMain, {10, 10, 60, 50}, 0);
        wnd.m_on[nMessage] = [&] {
            wnd.m_on.clear();
            wnd.MoveWindow(7, 8, 33, 22);
        };
        Told();
        wnd.SetWindowPos(nullptr, 1, 2, 90, 80, SWP_SHOWWINDOW | SWP_NOZORDER);
        const std::string strTold = Told();
        EXPECT_EQ(strTold.substr(strTold.rfind("w:size")), "w:size 33,22") << strTold;
        EXPECT_EQ(strTold.substr(strTold.rfind("w:move"), 10), "w:move 7,8") << strTold;
    }
}

TEST_F(PlacementTest, WildCoordinatesStayInBounds)
{
    CPlainWnd wndMain;
    wndMain.Open(nullptr, {0, 0, 400, 300});
    CPlainWnd wnd;
    wnd.Open(&wndMain, {0, 0, 1, 1});
    const int nWild[] = {INT32_MIN, INT32_MAX, -1, 0, 1 << 30};
    for (const int x : nWild) {
        for (const int cx : nWild) {
            wnd.SetWindowPos(nullptr, x, x, cx, cx, 0);
            CRect rc;
            wnd.GetWindowRect(rc);
            EXPECT_GE(rc.Width(), 0);
            EXPECT_GE(rc.Height(), 0);
            Drain();
        }
    }
}

TEST_F(PlacementTest, ZOrder)
{
    CPlainWnd wndMain;
    wndMain.Open(nullptr, {0, 0, 400, 300});
    CLogWnd a("a"), b("b"), c("c"), d("d");
    for (CLogWnd* pEach : {&d, &c, &b, &a})
        pEach->Open(&wndMain, {0, 0, 10, 10});
    struct Case
    {
        const char* what;
        CWnd* pMoved;
        const CWnd* pAfter;
        const char* order;
    };
    const Case cases[] = {
        {"new windows are on top", &a, &CWnd::wndTop, "abcd"},
        {"raised", &c, &CWnd::wndTop, "cabd"},
        {"lowered", &a, &CWnd::wndBottom, "cbda"},
        {"behind a sibling", &c, &d, "bdca"},
        {"behind itself", &c, &c, "bdca"},
        {"behind one that it is behind", &c, &d, "bdca"},
        {"behind a stranger", &c, &wndMain, "bdca"},
        {"the last behind the first", &a, &b, "badc"},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        each.pMoved->SetWindowPos(each.pAfter, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
        EXPECT_EQ(Order(wndMain), each.order);
        EXPECT_EQ(Narrow(splitframe::CheckWindowTree()), "");
    }
    EXPECT_EQ(a.GetWindow(GW_HWNDFIRST), &b);
    EXPECT_EQ(a.GetWindow(GW_HWNDLAST), &c);
    EXPECT_EQ(a.GetNextWindow(GW_HWNDPREV), &b);
    EXPECT_EQ(c.GetNextWindow(), nullptr);
}

TEST_F(PlacementTest, VisibleOnlyWithAllAncestors)
{
    CLogWnd wndMain("m"), wndFrame("f"), wndPane("p", &m_log), wndCover("c");
    wndMain.Open(nullptr, {0, 0, 400, 300}, 0);
    wndFrame.Open(&wndMain, {0, 0, 100, 100}, 0);
    wndPane.Open(&wndFrame, {0, 0, 50, 50});
    EXPECT_FALSE(wndPane.IsWindowVisible());
    wndMain.ShowWindow(SW_SHOW);
    EXPECT_FALSE(wndPane.IsWindowVisible());
    wndFrame.ShowWindow(SW_SHOW);
    EXPECT_TRUE(wndPane.IsWindowVisible());
    wndCover.Open(&wndMain, {0, 0, 400, 300});
    EXPECT_TRUE(wndPane.IsWindowVisible()) << "covered is not hidden";
    EXPECT_NE(wndPane.GetStyle() & WS_VISIBLE, 0U);
}

TEST_F(PlacementTest, CoordinatesGoThroughTheTree)
{
    CPlainWnd wndMain, wndFrame, wndPane;
    wndMain.Open(nullptr, {5, 7, 300, 200});
    wndFrame.Open(&wndMain, {10, 20, 110, 120});
    wndPane.Open(&wndFrame, {-3, 4, 50, 50});
    CPoint pt(1, 1);
    wndPane.ClientToScreen(&pt);
    EXPECT_EQ(pt, CPoint(13, 32));
    wndFrame.ScreenToClient(&pt);
    EXPECT_EQ(pt, CPoint(-2, 5));
    CRect rc(0, 0, 2, 2);
    wndPane.MapWindowPoints(&wndMain, rc);
    EXPECT_EQ(rc, CRect(7, 24, 9, 26));
    wndPane.GetWindowRect(rc);
    EXPECT_EQ(rc, CRect(12, 31, 65, 77));
}

TEST_F(PlacementTest, TheDisplaysSizeIsFollowedByWindowsThatCoverIt)
{
    CLogWnd wndMain("m", &m_log), wndSmall("s", &m_log);
    wndMain.Open(nullptr, {CW_USEDEFAULT, 0, 0, 0});
    wndSmall.Open(nullptr, {5, 5, 50, 50}, WS_POPUP | WS_VISIBLE);
    Drain();
    Told();
    Screen().Resize(640, 480);
    Drain();
    EXPECT_EQ(Told().substr(0, 14), "m:size 640,480");
    EXPECT_EQ(Screen().Shown().Width(), 640);
}

TEST_F(PlacementTest, HostCallCountStandsStillWhenNobodyListens)
{
    CPlainWnd wndMain, wndPlain;
    CLogWnd wndLog("l");
    wndMain.Open(nullptr, {0, 0, 400, 300});
    wndPlain.Open(&wndMain, {0, 0, 10, 10});
    wndLog.Open(&wndMain, {0, 0, 10, 10});
    const unsigned long nBefore = HostCallCount();
    wndPlain.SetWindowPos(nullptr, 3, 3, 30, 30, SWP_SHOWWINDOW);
    wndPlain.SetWindowPos(&CWnd::wndBottom, 3, 3, 30, 30, SWP_HIDEWINDOW);
    EXPECT_EQ(HostCallCount(), nBefore);
    wndLog.SetWindowPos(nullptr, 3, 3, 30, 30, SWP_SHOWWINDOW);
    EXPECT_NE(HostCallCount(), nBefore);
}

TEST_F(PlacementTest, HostCallCountSeesAnOverriddenProcedure)
{
    class COverriding : public CPlainWnd
    {
        LRESULT WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override
        {
            ++m_nCalls;
            return CPlainWnd::WindowProc(nMessage, wParam, lParam);
        }

    public:
        int m_nCalls = 0;
    };
    CPlainWnd wndMain;
    COverriding wnd;
    wndMain.Open(nullptr, {0, 0, 400, 300});
    wnd.Open(&wndMain, {0, 0, 10, 10});
    const unsigned long nBefore = HostCallCount();
    wnd.m_nCalls = 0;
    wnd.MoveWindow(3, 3, 30, 30);
    EXPECT_EQ(wnd.m_nCalls, 2);
    EXPECT_EQ(HostCallCount(), nBefore + 2);
}

} // namespace
