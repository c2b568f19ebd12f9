// Focus, capture, clicks, keys, cursor: who gets what.
#include "window/TestWindow.h"

namespace {

class InputTest : public WindowTest
{
protected:
    InputTest() : m_main("m", &m_log), m_a("a", &m_log), m_b("b", &m_log)
    {
        m_main.Open(nullptr, {0, 0, 400, 300});
        m_a.Open(&m_main, {10, 10, 110, 110});
        m_b.Open(&m_main, {60, 60, 160, 160});
        Drain();
        Told();
    }
    std::string After()
    {
        Drain();
        std::string str;
        for (const std::string& strEach : m_log) {
            if (strEach.find(":paint") == std::string::npos)
                str += (str.empty() ? "" : " | ") + strEach;
        }
        m_log.clear();
        return str;
    }
    CLogWnd m_main, m_a, m_b;
};

TEST_F(InputTest, TheTopmostWindowUnderThePointIsHit)
{
    struct Case
    {
        const char* what;
        int x, y;
        const char* told;
    };
    const Case cases[] = {
        {"the main window", 5, 5, "m:mouse 5,5"},
        {"a child, in its coordinates", 15, 20, "a:mouse 5,10"},
        {"the upper of two", 70, 80, "b:mouse 10,20"},
        {"right edges lie outside", 160, 100, "m:mouse 160,100"},
        {"nobody", 500, 5, ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Screen().MoveMouse(c.x, c.y);
        EXPECT_EQ(After(), c.told);
    }
    m_b.EnableWindow(FALSE);
    Screen().MoveMouse(70, 80);
    EXPECT_EQ(After(), "a:mouse 60,70") << "disabled windows are passed over";
}

TEST_F(InputTest, DoubleClicks)
{
    const auto press = [&](int x, int y, ULONGLONG nLater) {
        Screen().AdvanceClock(nLater);
        Screen().MoveMouse(x, y);
        Screen().PressButton(VK_LBUTTON);
        Drain();
        Screen().ReleaseButton(VK_LBUTTON);
        const std::string strTold = After();
        return strTold.find("double") != std::string::npos ? std::string("double") : std::string("single");
    };
    EXPECT_EQ(press(20, 20, 2000), "single");
    EXPECT_EQ(press(24, 16, 500), "double");
    EXPECT_EQ(press(24, 16, 1), "single") << "the third press starts anew";
    EXPECT_EQ(press(29, 16, 1), "single") << "too far";
    EXPECT_EQ(press(29, 16, 501), "single") << "too late";
    CLogWnd wnd("w", &m_log);
    wnd.Open(&m_main, {200, 200, 300, 300}, WS_VISIBLE, AfxRegisterWndClass(CS_OWNDC));
    EXPECT_EQ(press(250, 250, 2000), "single");
    EXPECT_EQ(press(250, 250, 1), "single") << "the class does not ask for them";
    EXPECT_EQ(press(20, 20, 2000), "single");
    EXPECT_EQ(press(5, 5, 1), "single") << "another window";
}

TEST_F(InputTest, CaptureTakesTheMouseUntilReleased)
{
    m_a.SetCapture();
    Screen().MoveMouse(150, 150);
    Screen().MoveMouse(-20, -30);
    EXPECT_EQ(After(), "a:mouse 140,140 | a:mouse -30,-40");
    m_b.SetCapture();
    EXPECT_EQ(After(), "a:capturelost");
    ReleaseCapture();
    EXPECT_EQ(After(), "b:capturelost");
    m_a.SetCapture();
    m_a.DestroyWindow();
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(InputTest, CaptureEndsWhenItsWindowIsHidden)
{
    CLogWnd wndInner("i", &m_log);
    wndInner.Open(&m_a, {0, 0, 20, 20});
    const std::function<void()> hides[] = {
        [&] { wndInner.ShowWindow(SW_HIDE); },
        [&] { m_a.SetWindowPos(nullptr, 0, 0, 0, 0, SWP_HIDEWINDOW | SWP_NOMOVE | SWP_NOSIZE); }};
    for (const auto& hide : hides) {
        wndInner.ShowWindow(SW_SHOW);
        wndInner.SetCapture();
        After();
        hide();
        EXPECT_EQ(GetCapture(), nullptr);
        EXPECT_NE(After().find("i:capturelost"), std::string::npos);
    }
}

TEST_F(InputTest, F10AloneIsAKeyLikeOthers)
{
    m_b.SetFocus();
    After();
    Screen().PressKey(VK_F10);
    Screen().ReleaseKey(VK_F10);
    EXPECT_EQ(After(), "b:key 121");
    Screen().PressKey(VK_MENU);
    Screen().PressKey(VK_F10);
    Screen().ReleaseKey(VK_F10);
    Screen().ReleaseKey(VK_MENU);
    EXPECT_EQ(After(), "b:syskey 18 | b:syskey 121");
}

TEST_F(InputTest, ActivationMovesOnWithoutAnOwner)
{
    CLogWnd wndOther("o", &m_log);
    wndOther.Open(nullptr, {0, 0, 50, 50}, WS_POPUP | WS_VISIBLE);
    wndOther.SetActiveWindow();
    wndOther.SetFocus();
    wndOther.DestroyWindow();
    EXPECT_EQ(GetActiveWindow(), m_main.GetSafeHwnd());
    EXPECT_EQ(GetFocus(), m_main.GetSafeHwnd());
}

TEST_F(InputTest, KeysGoToTheFocus)
{
    m_b.SetFocus();
    After();
    Screen().PressKey('X');
    Screen().TypeText(L"x\x1F600");
    EXPECT_EQ(After(), "b:key 88 | b:char 120 | b:char 55357 | b:char 56832");
    Screen().Click(20, 20);
    EXPECT_EQ(GetFocus(), m_b.GetSafeHwnd()) << "clicks do not move the focus";
    m_b.SetWindowPos(nullptr, 0, 0, 0, 0, SWP_HIDEWINDOW | SWP_NOMOVE | SWP_NOSIZE);
    EXPECT_EQ(GetFocus(), m_b.GetSafeHwnd()) << "nor does SetWindowPos";
    Drain();
    Told();
    Screen().PressKey(VK_MENU);
    Screen().PressKey('F');
    EXPECT_EQ(After(), "b:syskey 18 | b:syskey 70");
    EXPECT_LT(GetKeyState(VK_MENU), 0);
    Screen().ReleaseKey('F');
    Screen().ReleaseKey(VK_MENU);
    Drain();
    EXPECT_EQ(GetKeyState(VK_MENU), 0);
}

TEST_F(InputTest, TheFocusMovesOnWhenItsWindowGoes)
{
    CLogWnd wndInner("i", &m_log);
    wndInner.Open(&m_a, {0, 0, 10, 10});
    wndInner.SetFocus();
    After();
    m_a.DestroyWindow();
    EXPECT_EQ(GetFocus(), m_main.GetSafeHwnd());
    m_b.ShowWindow(SW_HIDE);
    m_b.SetFocus();
    EXPECT_EQ(GetFocus(), m_b.GetSafeHwnd()) << "a hidden window may take the focus";
    m_b.ShowWindow(SW_SHOW);
    m_b.ShowWindow(SW_HIDE);
    EXPECT_EQ(GetFocus(), m_main.GetSafeHwnd()) << "hiding gives it up";
    m_main.m_on[WM_SETFOCUS] = [&] { m_b.SetFocus(); };
    m_b.SetFocus();
    m_b.DestroyWindow();
    EXPECT_EQ(GetFocus(), m_main.GetSafeHwnd()) << "a dying window can not take it back";
}

TEST_F(InputTest, TheWheelGoesUpToTheFirstThatUsesIt)
{
    m_a.m_bRefuse = true;
    Screen().MoveMouse(20, 20);
    After();
    Screen().TurnWheel(-WHEEL_DELTA);
    EXPECT_EQ(After(), "a:wheel -120 | m:wheel -120");
    m_a.m_bRefuse = false;
    Screen().TurnWheel(WHEEL_DELTA);
    EXPECT_EQ(After(), "a:wheel 120");
}

TEST_F(InputTest, TheClassCursorIsSetUnlessSomebodyCaptures)
{
    CPlainWnd wnd;
    wnd.Create(AfxRegisterWndClass(0, LoadCursor(nullptr, IDC_SIZEWE)), L"", WS_CHILD | WS_VISIBLE,
               CRect(200, 0, 250, 50), &m_main, 0);
    Screen().MoveMouse(210, 10);
    Drain();
    EXPECT_EQ(Screen().ShownCursor(), 32644U);
    Screen().MoveMouse(20, 20);
    Drain();
    EXPECT_EQ(Screen().ShownCursor(), 32512U);
    m_a.SetCapture();
    SetCursor(LoadCursor(nullptr, IDC_SIZENS));
    Screen().MoveMouse(210, 10);
    Drain();
    EXPECT_EQ(Screen().ShownCursor(), 32645U);
    ReleaseCapture();
    EXPECT_EQ(LoadCursor(nullptr, MAKEINTRESOURCE(1)), nullptr);
}

TEST_F(InputTest, LeavingAndComingBack)
{
    m_a.SetFocus();
    m_b.SetCapture();
    Screen().PressKey(VK_CONTROL);
    After();
    Screen().Activate(false);
    EXPECT_EQ(After(), "b:capturelost | m:inactive | a:blur");
    EXPECT_EQ(GetKeyState(VK_CONTROL), 0) << "keys released elsewhere are not heard of";
    Screen().Activate(true);
    EXPECT_EQ(After(), "m:active | a:focus");
}

TEST_F(InputTest, ClosingTheDisplayClosesTheMainWindow)
{
    Screen().RequestClose();
    Drain();
    EXPECT_FALSE(m_main.GetSafeHwnd());
}

} // namespace
