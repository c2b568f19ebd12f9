// Dragging split lines with the mouse of the display: the whole way, and every way in which a drag can end.
#include "definition/UnitInfo.h"
#include "platform/window/WindowManager.h"
#include "support/FrameHost.h"

using namespace test;

namespace {

// A frame of 804 - 2 by 703 - 3 pixels less the bars, divided at x = 401: "a" left, "b" over "c" right.
class DragTest : public testing::Test
{
protected:
    DragTest() { Start(); }
    void Start()
    {
        m_pHost.reset();
        m_pHost = std::make_unique<FrameHost>();
        m_pHost->Load(LayoutXml(
            FrameXml(L"F", L"a b c", {{L"S", L"a b c", L"m V a r;r H b c"}, {L"S2", L"a b c", L"m H b c"}}) +
            FrameXml(L"G", L"d", {{L"T", L"d", L""}})));
        m_pHost->Open(L"G");
        m_pHost->Open(L"F");
        m_pHost->m_arrDiagnostic.clear();
        m_strStart = m_pHost->Panes();
        m_arrPixels = Pixels();
        Log().Take();
    }
    ~DragTest() override { EXPECT_EQ(Told(m_pHost->m_arrDiagnostic), ""); }

    splitframe::HeadlessDisplay& Mouse() { return *m_pHost->m_pDisplay; }
    CSplitLine& Main() { return *m_pHost->ActiveDoc()->m_pRoot; }
    CSplitLine& Right() { return *Main().m_pSecond; }
    void Move(int x, int y)
    {
        CPoint pt(x, y);
        m_pHost->ActiveView()->ClientToScreen(&pt);
        Mouse().MoveMouse(pt.x, pt.y);
        m_pHost->Settle();
    }
    void Press()
    {
        Mouse().AdvanceClock(1000); // no double click
        Mouse().PressButton(VK_LBUTTON);
        m_pHost->Settle();
    }
    void Release()
    {
        Mouse().ReleaseButton(VK_LBUTTON);
        m_pHost->Settle();
    }
    /// Takes hold of the line between left and right and drags it to the left.
    void BeginDrag()
    {
        Move(400, 50);
        Press();
        Move(300, 60);
        ASSERT_FALSE(IsAsAtTheStart());
    }
    std::vector<std::uint32_t> Pixels()
    {
        const splitframe::Surface& shown = Mouse().Shown();
        return {shown.Row(0), shown.Row(shown.DeviceHeight() - 1) + shown.DeviceWidth()};
    }
    bool HasCapture() { return m_pHost->ActiveView() && CWnd::GetCapture() == m_pHost->ActiveView(); }
    /// The pixels of the start are shown again.
    bool IsAsAtTheStart() { return Pixels() == m_arrPixels; }
    /// No pane has moved, no outline is left, and a release of the button changes nothing either.
    void ExpectNothingMoved()
    {
        EXPECT_FALSE(HasCapture());
        EXPECT_TRUE(IsAsAtTheStart());
        Release();
        EXPECT_EQ(m_pHost->Panes(), m_strStart);
        EXPECT_TRUE(IsAsAtTheStart());
        EXPECT_EQ(Main().m_dLRate, 0.5);
    }

    std::unique_ptr<FrameHost> m_pHost;
    std::string m_strStart;
    std::vector<std::uint32_t> m_arrPixels;
};

} // namespace

TEST_F(DragTest, TheCursorTellsOfALineThatCanBeDragged)
{
    const struct
    {
        const char* what;
        CPoint pt;
        UINT nCursor;
        bool bCapture;
    } cases[] = {
        {"inside a pane", {200, 50}, 32512, false},         {"at the vertical line", {399, 50}, 32644, true},
        {"in the pane beside it", {404, 50}, 32512, false}, {"at its other side", {401, 50}, 32644, true},
        {"at the horizontal line", {600, 0}, 32645, true},  {"away", {600, 20}, 32512, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        const int y = c.nCursor == 32645 ? Right().m_pFirst->GetViewRect().bottom : c.pt.y;
        Move(c.pt.x, y);
        EXPECT_EQ(Mouse().ShownCursor(), c.nCursor);
        EXPECT_EQ(HasCapture(), c.bCapture);
    }
    Main().EnableMove(L"m", true, false);
    Move(400, 50);
    EXPECT_EQ(Mouse().ShownCursor(), 32512U);
    EXPECT_FALSE(HasCapture());
}

TEST_F(DragTest, MovesTheLineAtTheEndOnly)
{
    BeginDrag();
    EXPECT_EQ(m_pHost->Panes(), m_strStart);
    const splitframe::Region shown = Mouse().LastPresented();
    EXPECT_LE(shown.Bounds().right - shown.Bounds().left, 3);
    Move(-500, 60); // out of the window; the outline stays at the last place that was possible
    Move(201, 60);
    Mouse().ReleaseButton(VK_LBUTTON);
    m_pHost->Settle();
    EXPECT_FALSE(HasCapture());
    EXPECT_EQ(m_pHost->Unit(L"a")->m_pBaseUnitInfo->m_cx, 201);
    EXPECT_EQ(m_pHost->Unit(L"b")->m_pBaseUnitInfo->m_x, 201);
    EXPECT_EQ(Main().m_dLRate, 201.0 / Main().GetViewRect().Width());
    EXPECT_EQ(Right().m_dLRate,
              0.5 * 2 * Right().m_pFirst->GetViewRect().Height() / Right().GetViewRect().Height());
    // The whole window is what it would be without any outline.
    const std::vector<std::uint32_t> arrNow = Pixels();
    m_pHost->m_pMain->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    m_pHost->Settle();
    EXPECT_TRUE(Pixels() == arrNow);
    Press(); // beside the line, and not moved: nothing is held
    Move(500, 60);
    EXPECT_FALSE(HasCapture());
    Release();
    EXPECT_EQ(m_pHost->Unit(L"a")->m_pBaseUnitInfo->m_cx, 201);
}

TEST_F(DragTest, ByMessagesWithoutAMoveBetween)
{
    CBaseFrameView* pView = m_pHost->ActiveView();
    pView->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(400, 50));
    pView->SendMessage(WM_LBUTTONDOWN, 0, MAKELPARAM(400, 50));
    m_pHost->Settle();
    EXPECT_TRUE(IsAsAtTheStart()) << "the outline comes with the first move";
    pView->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(-1, -1)); // a point like any other
    EXPECT_TRUE(HasCapture());
    pView->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(402, 50));
    EXPECT_EQ(m_pHost->Unit(L"a")->m_pBaseUnitInfo->m_cx, 402);
}

// What ends a drag so that nothing moves.
TEST_F(DragTest, CanEndInManyWaysWithoutATrace)
{
    CBaseFrameView* pView = m_pHost->ActiveView();
    const std::pair<const char*, std::function<void()>> ends[] = {
        {"Escape",
         [&] {
             Mouse().PressKey(VK_ESCAPE);
             m_pHost->Settle();
             EXPECT_EQ(Log().Take(), "a.Key27") << "goes its way";
         }},
        {"Escape to a pane that keeps it",
         [&] {
             Log().hooks["a.Key27"] = [](CBaseUnitWnd*) { throw 7; };
             Mouse().PressKey(VK_ESCAPE);
             m_pHost->Settle();
             Log().hooks.clear();
             m_pHost->m_arrDiagnostic.clear();
         }},
        {"Escape to the view",
         [&] {
             pView->SendMessage(WM_KEYDOWN, VK_ESCAPE);
             EXPECT_EQ(Log().Take("helper"), "helper.Message256,27") << "goes its way";
         }},
        {"the mouse is released by others", [&] { ::ReleaseCapture(); }},
        {"the mouse is taken by others",
         [&] {
             m_pHost->Unit(L"c")->SetCapture();
             Move(400, 60);
             EXPECT_EQ(CWnd::GetCapture(), m_pHost->Unit(L"c")) << "and is left to them";
             ::ReleaseCapture();
         }},
        {"modes are cancelled", [&] { pView->SendMessage(WM_CANCELMODE); }},
        {"the application is left",
         [&] {
             Mouse().Activate(false);
             m_pHost->Settle();
             EXPECT_FALSE(HasCapture());
             Mouse().Activate(true);
         }},
        {"a message box", [&] { AfxMessageBox(L"now"); }},
        {"the main window is disabled",
         [&] {
             m_pHost->m_pMain->EnableWindow(FALSE);
             m_pHost->m_pMain->EnableWindow(TRUE);
         }},
        {"another frame comes to the front, and this one back",
         [&] {
             m_pHost->Open(L"G");
             EXPECT_EQ(CWnd::GetCapture(), nullptr);
             m_pHost->Open(L"F");
         }},
        {"the display changes its size",
         [&] {
             Mouse().Resize(500, 400);
             m_pHost->Settle();
             EXPECT_EQ(CWnd::GetCapture(), nullptr);
             Mouse().Resize(804, 703);
         }},
        {"the button goes up unheard",
         [&] {
             pView->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(200, 60));
             EXPECT_EQ(Mouse().ShownCursor(), 32512U);
         }},
        {"the line is fixed",
         [&] {
             Main().EnableMove(L"m", true, false);
             Move(200, 60);
             Main().EnableMove(L"m", true, true);
         }},
        {"the line is fixed and the mouse does not move",
         [&] {
             Main().EnableMove(L"m", true, false);
             Release();
             Main().EnableMove(L"m", true, true);
         }},
        {"the view is hidden",
         [&] {
             pView->ShowWindow(SW_HIDE);
             pView->ShowWindow(SW_SHOW);
         }},
    };
    for (const auto& [pszWhat, end] : ends) {
        SCOPED_TRACE(pszWhat);
        BeginDrag();
        Log().Take();
        end();
        m_pHost->Settle();
        ExpectNothingMoved();
    }
}

// The panes repaint, are laid out and come and go while the mouse holds a line.
TEST_F(DragTest, GoesOnWhileThePanesChange)
{
    BeginDrag();
    m_pHost->Unit(L"a")->Invalidate();
    Main().ModifyWindow();
    m_pHost->Settle();
    EXPECT_FALSE(IsAsAtTheStart());
    Move(401, 60);
    Release();
    EXPECT_EQ(m_pHost->Panes(), m_strStart);
    EXPECT_TRUE(IsAsAtTheStart());
}

// The line, its tree, its frame or everything goes while it is held, or while it is laid out at the end.
TEST_F(DragTest, TheLineMayGoAtAnyMoment)
{
    const std::function<void()> losses[] = {
        [&] { delete std::exchange(m_pHost->ActiveDoc()->m_pRoot, nullptr); },
        [&] { delete m_pHost->Unit(L"a"); },
        [&] { delete m_pHost->Unit(L"b"); },
        [&] { m_pHost->ActiveDoc()->ChangeStyle(L"S2"); },
        [&] { m_pHost->ActiveFrame()->SendMessage(WM_CLOSE); },
        [&] { m_pHost->ActiveView()->DestroyWindow(); },
        [&] { m_pHost->m_pMain->DestroyWindow(); },
    };
    for (const bool bAtTheEnd : {false, true}) {
        for (std::size_t i = 0; i < std::size(losses); ++i) {
            SCOPED_TRACE(std::to_string(i) + (bAtTheEnd ? " at the end" : " while held"));
            Start();
            BeginDrag();
            if (bAtTheEnd)
                Log().hooks["b.Size"] = [&](CBaseUnitWnd*) { Log().hooks.clear(), losses[i](); };
            else
                losses[i]();
            Release();
            Log().hooks.clear();
            EXPECT_FALSE(HasCapture());
            if (m_pHost->m_app.m_pMainWnd)
                m_pHost->m_pMain->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
            const std::vector<std::uint32_t> arrShown = Pixels();
            m_pHost->Settle();
            EXPECT_TRUE(Pixels() == arrShown) << "no outline left";
        }
    }
}

TEST_F(DragTest, OtherButtonsDoNotMatter)
{
    BeginDrag();
    Mouse().PressButton(VK_RBUTTON);
    Mouse().ReleaseButton(VK_RBUTTON);
    Mouse().PressButton(VK_MBUTTON);
    Move(310, 60);
    Mouse().ReleaseButton(VK_MBUTTON);
    EXPECT_EQ(m_pHost->Panes(), m_strStart);
    Release();
    EXPECT_EQ(m_pHost->Unit(L"a")->m_pBaseUnitInfo->m_cx, 310);
    Release(); // once more than it was pressed
    Move(310, 70);
    Mouse().PressButton(VK_RBUTTON);
    Move(200, 70);
    Mouse().ReleaseButton(VK_RBUTTON);
    m_pHost->Settle();
    EXPECT_EQ(m_pHost->Unit(L"a")->m_pBaseUnitInfo->m_cx, 310);
    m_pHost->Unit(L"a")->SetCapture(); // for a drag of its own; the base hands its end on
    Release();
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(DragTest, InWindowsOfAnySize)
{
    for (const SIZE size : {SIZE{1, 1}, SIZE{20000, 300}, SIZE{50, 12000}, SIZE{804, 703}}) {
        SCOPED_TRACE(size.cx);
        Mouse().Resize(size.cx, size.cy);
        m_pHost->Settle();
        const int nWidth = Main().GetViewRect().right;
        Move(m_pHost->Unit(L"b")->m_pBaseUnitInfo->m_x, 5);
        Press();
        Move(nWidth / 4, 5);
        Release();
        EXPECT_FALSE(HasCapture());
        EXPECT_EQ(m_pHost->Unit(L"a")->m_pBaseUnitInfo->m_cx, nWidth / 4);
        Main().ModifyWindow(L"m", 0.5);
    }
}

TEST_F(DragTest, SharesOutlastAnyNumberOfResizes)
{
    Main().ModifyWindow(L"m", 1.0 / 3);
    const double dRight = Right().m_dLRate;
    const std::string strBefore = m_pHost->Panes();
    std::uint32_t nRandom = 4711;
    const auto random = [&nRandom](int nTo) {
        nRandom = nRandom * 1664525U + 1013904223U;
        return static_cast<int>((nRandom >> 8) % static_cast<std::uint32_t>(nTo));
    };
    for (int i = 0; i < 1000; ++i) {
        Mouse().Resize(1 + random(900), 1 + random(700));
        m_pHost->Settle();
        ASSERT_EQ(Main().m_dLRate, 1.0 / 3);
        ASSERT_EQ(Right().m_dLRate, dRight);
    }
    Mouse().Resize(804, 703);
    m_pHost->Settle();
    EXPECT_EQ(m_pHost->Panes(), strBefore);
}
