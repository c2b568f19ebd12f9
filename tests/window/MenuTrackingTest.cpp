// What a user does with open menus, by simulated mouse and keys: a bar of titles and context menus.
#include "window/TestWindow.h"

#include "platform/window/MenuTitles.h"
#include "platform/window/PopupMenu.h"

namespace {

using splitframe::CPopupMenu;

/// Titles of 60 by 20 pixels side by side at the top of its parent.
class TitlesWnd : public CPlainWnd, public splitframe::MenuTitles
{
public:
    HMENU GetTitlesMenu() const override { return m_hMenu; }
    CRect GetTitleRect(int nTitle) const override
    {
        return nTitle < ::GetMenuItemCount(m_hMenu) ? CRect(nTitle * 60, 0, nTitle * 60 + 60, 20) : CRect();
    }
    void MarkTitle(int nTitle) override { m_nMarked = nTitle; }

    HMENU m_hMenu = nullptr;
    int m_nMarked = -1;
};

/// Writes down the commands that it gets and the menus that open for it.
class OwnerWnd : public CLogWnd
{
public:
    using CLogWnd::CLogWnd;
    HWND m_hBar = nullptr;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM) override
    {
        Log("command " + std::to_string(LOWORD(wParam)));
        return TRUE;
    }
    LRESULT OnInit(WPARAM, LPARAM nPosition)
    {
        Log("init " + std::to_string(nPosition));
        Do(WM_INITMENUPOPUP);
        return 0;
    }
    LRESULT OnSys(WPARAM, LPARAM lParam)
    {
        return splitframe::TrackMenuBarByKey(m_hBar, static_cast<wchar_t>(lParam)) ? 1 : 0;
    }
    LRESULT OnContext(WPARAM, LPARAM lParam)
    {
        Log("context " + std::to_string(GET_X_LPARAM(lParam)) + "," + std::to_string(GET_Y_LPARAM(lParam)));
        Do(WM_CONTEXTMENU);
        return 0;
    }
    void OnKeyDown(UINT, UINT, UINT) { Default(); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(OwnerWnd, CLogWnd)
ON_WM_KEYDOWN()
ON_MESSAGE(WM_INITMENUPOPUP, &OwnerWnd::OnInit)
ON_MESSAGE(WM_SYSCOMMAND, &OwnerWnd::OnSys)
ON_MESSAGE(WM_CONTEXTMENU, &OwnerWnd::OnContext)
END_MESSAGE_MAP()

UINT_PTR AsID(HMENU hMenu)
{
    return reinterpret_cast<UINT_PTR>(hMenu);
}

class MenuTrackingTest : public WindowTest
{
protected:
    MenuTrackingTest() : m_main("m", &m_log), m_pane("p", &m_log)
    {
        auto pDisplay = std::make_unique<ScriptedDisplay>();
        m_pScripted = pDisplay.get();
        splitframe::SetDisplay(std::move(pDisplay));
        Build();
    }
    ~MenuTrackingTest() override
    {
        Drain();
        EndMenu();
        EXPECT_EQ(State(), "") << "no popup stays";
        DestroyMenu(m_bar.m_hMenu);
        Told();
        Screen().MoveMouse(390, 290); // presses that were swallowed leave nothing behind
        Drain();
    }

    /// Windows and menus from new, whatever has become of those before.
    void Build()
    {
        m_main.DestroyWindow();
        DestroyMenu(m_bar.m_hMenu);
        m_main.Open(nullptr, {0, 0, 400, 300});
        m_pane.Open(&m_main, {0, 200, 400, 300});
        m_bar.Open(&m_main, {0, 0, 400, 20});
        m_main.m_hBar = m_bar.GetSafeHwnd();
        m_pane.SetFocus();

        m_hInner = CreatePopupMenu();
        AppendMenuW(m_hInner, MF_STRING, 21, L"red");
        AppendMenuW(m_hInner, MF_STRING, 22, L"green");
        m_hFile = CreatePopupMenu();
        AppendMenuW(m_hFile, MF_STRING | MF_GRAYED, 10, L"&Gone");
        AppendMenuW(m_hFile, MF_STRING, 11, L"&New\tCtrl+N");
        AppendMenuW(m_hFile, MF_SEPARATOR, 0, nullptr);
        AppendMenuW(m_hFile, MF_POPUP, AsID(m_hInner), L"&Colour");
        AppendMenuW(m_hFile, MF_STRING, 12, L"Sa&ve && close");
        AppendMenuW(m_hFile, MF_STRING, 13, L"&Void");
        m_hEdit = CreatePopupMenu();
        AppendMenuW(m_hEdit, MF_STRING, 31, L"&Undo");
        m_bar.m_hMenu = CreateMenu();
        AppendMenuW(m_bar.m_hMenu, MF_POPUP, AsID(m_hFile), L"&File");
        AppendMenuW(m_bar.m_hMenu, MF_POPUP | MF_GRAYED, AsID(CreatePopupMenu()), L"&Off");
        AppendMenuW(m_bar.m_hMenu, MF_POPUP, AsID(m_hEdit), L"&Edit");
        AppendMenuW(m_bar.m_hMenu, MF_STRING, 40, L"&Help");
        Drain();
        Commands();
    }

    /// The open menus, outermost first: what is selected in each.
    std::string State() const
    {
        std::string strAll;
        for (CWnd* pWnd = CWnd::FromHandle(GetTopWindow(nullptr)); pWnd; pWnd = pWnd->GetNextWindow()) {
            if (const auto* pPopup = DYNAMIC_DOWNCAST(CPopupMenu, pWnd)) {
                const UINT nLine = static_cast<UINT>(pPopup->GetSelection());
                const CString strText = GetMenuString(pPopup->GetShownMenu(), nLine, MF_BYPOSITION);
                strAll = "[" + Narrow(strText) + "]" + strAll;
            }
        }
        return m_bar.m_nMarked < 0 || !m_bar.GetSafeHwnd() ? strAll
                                                           : std::to_string(m_bar.m_nMarked) + strAll;
    }
    static CPopupMenu* Popup()
    {
        return DYNAMIC_DOWNCAST(CPopupMenu, CWnd::FromHandle(GetTopWindow(nullptr)));
    }
    void Press(UINT nKey)
    {
        Screen().PressKey(nKey);
        Screen().ReleaseKey(nKey);
        Drain();
    }
    void Type(const wchar_t* pszText)
    {
        Screen().TypeText(pszText);
        Drain();
    }
    void Click(int x, int y, UINT nButton = VK_LBUTTON)
    {
        Screen().Click(x, y, nButton);
        Drain();
    }
    CPoint CentreOf(int nLine) { return Popup()->GetLineRect(nLine).CenterPoint(); }
    void PointAt(CPoint pt)
    {
        Screen().MoveMouse(pt.x, pt.y);
        Drain();
    }
    void LetTimePass(ULONGLONG nMilliseconds)
    {
        Screen().AdvanceClock(nMilliseconds);
        Drain();
    }
    /// What the windows heard, mouse moves and painting left out.
    std::string Commands()
    {
        std::string str;
        for (const std::string& strEach : m_log) {
            if (strEach.find("paint") == std::string::npos && strEach.find(":mouse") == std::string::npos)
                str += (str.empty() ? "" : " | ") + strEach;
        }
        m_log.clear();
        return str;
    }

    ScriptedDisplay* m_pScripted = nullptr;
    OwnerWnd m_main, m_pane;
    TitlesWnd m_bar;
    HMENU m_hFile = nullptr;
    HMENU m_hInner = nullptr;
    HMENU m_hEdit = nullptr;
};

TEST_F(MenuTrackingTest, AltOpensTheBarOnlyWhenPressedAlone)
{
    Press(VK_MENU);
    EXPECT_EQ(State(), "0");
    Press(VK_MENU);
    EXPECT_EQ(State(), "");
    const std::function<void()> between[] = {[&] { Press('Q'); }, [&] { Click(100, 250); },
                                             [&] { Screen().TurnWheel(120); },
                                             [&] {
                                                 Screen().Activate(false);
                                                 Screen().Activate(true);
                                             }};
    for (const auto& act : between) {
        Screen().PressKey(VK_MENU);
        act();
        Screen().ReleaseKey(VK_MENU);
        Drain();
        EXPECT_EQ(State(), "") << &act - between;
    }
    Screen().PressButton(VK_LBUTTON); // a drag is under way
    Press(VK_MENU);
    EXPECT_EQ(State(), "");
    Screen().ReleaseButton(VK_LBUTTON);
    Press(VK_F10);
    EXPECT_EQ(State(), "0") << "the pane hands the key on, or leaves it to its default";
    Press(VK_F10);
    EXPECT_EQ(State(), "");
}

TEST_F(MenuTrackingTest, KeysWalkThroughTheBarAndItsMenus)
{
    struct Case
    {
        UINT nKey;
        const char* state;
    };
    const Case cases[] = {
        {VK_F10, "0"},
        {VK_RIGHT, "2"}, // the disabled title is passed over
        {VK_END, "3"},
        {VK_HOME, "0"},
        {VK_LEFT, "3"},
        {VK_RIGHT, "0"},
        {VK_DOWN, "0[&New\tCtrl+N]"}, // as is the disabled item
        {VK_DOWN, "0[&Colour]"},      // and the separator
        {VK_UP, "0[&New\tCtrl+N]"},
        {VK_UP, "0[&Void]"},
        {VK_HOME, "0[&New\tCtrl+N]"},
        {VK_END, "0[&Void]"},
        {VK_RIGHT, "2[&Undo]"},
        {VK_LEFT, "0[&New\tCtrl+N]"},
        {VK_DOWN, "0[&Colour]"},
        {VK_RIGHT, "0[&Colour][red]"},
        {VK_DOWN, "0[&Colour][green]"},
        {VK_LEFT, "0[&Colour]"},
        {VK_RETURN, "0[&Colour][red]"},
        {VK_RIGHT, "2[&Undo]"}, // no submenu here: on to the next title
        {VK_LEFT, "0[&New\tCtrl+N]"},
        {VK_ESCAPE, "0"},
        {VK_ESCAPE, ""},
    };
    for (const Case& c : cases) {
        Press(c.nKey);
        EXPECT_EQ(State(), c.state) << "case " << &c - cases;
    }
    EXPECT_EQ(Commands().find("command"), std::string::npos);
    EXPECT_EQ(GetFocus(), m_pane.GetSafeHwnd());
}

TEST_F(MenuTrackingTest, LettersChooseAndGoRoundAmongEquals)
{
    Screen().PressKey(VK_MENU);
    Press('E');
    EXPECT_EQ(State(), "2[&Undo]") << "Alt with a letter opens";
    Screen().ReleaseKey(VK_MENU);
    Drain();
    EXPECT_EQ(State(), "2[&Undo]") << "letting Alt go then closes nothing";
    Type(L"u");
    EXPECT_EQ(State(), "");
    Press(VK_F10);
    Type(L"f");
    Type(L"g");
    EXPECT_EQ(State(), "0[&New\tCtrl+N]") << "the letter of a disabled item";
    Type(L"V");
    EXPECT_EQ(State(), "0[Sa&ve && close]");
    Type(L"v");
    EXPECT_EQ(State(), "0[&Void]");
    Type(L"v");
    EXPECT_EQ(State(), "0[Sa&ve && close]");
    Type(L"c");
    Type(L"g"); // no mnemonics there: the first letters count
    EXPECT_EQ(State(), "");
    Press(VK_F10);
    Type(L"h"); // a title that is a command itself
    EXPECT_EQ(Commands(), "p:syskey 18 | p:syskey 69 | m:init 2 | m:command 31 | m:init 0 | m:init 3 | "
                          "m:command 22 | m:command 40");
    Screen().PressKey(VK_MENU);
    Press('Q');
    Screen().ReleaseKey(VK_MENU);
    EXPECT_EQ(State(), "") << "no such title";
}

TEST_F(MenuTrackingTest, MouseOpensSwitchesChoosesAndCloses)
{
    splitframe::TrackMenuBar(m_bar.GetSafeHwnd(), 0);
    Drain();
    EXPECT_EQ(State(), "0[]");
    PointAt({130, 10});
    EXPECT_EQ(State(), "2[]") << "another title under the pointer";
    PointAt({70, 10});
    EXPECT_EQ(State(), "2[]") << "a disabled one";
    PointAt({10, 10});
    PointAt(CentreOf(0));
    EXPECT_EQ(State(), "0[]") << "a disabled item is not marked";
    Click(CentreOf(0).x, CentreOf(0).y);
    EXPECT_EQ(State(), "0[]") << "nor chosen";
    PointAt(CentreOf(3));
    EXPECT_EQ(State(), "0[&Colour]");
    LetTimePass(500);
    EXPECT_EQ(State(), "0[&Colour][]") << "the submenu follows the pointer after a while";
    PointAt(CentreOf(1));
    EXPECT_EQ(State(), "0[&Colour][green]");
    Commands();
    Screen().PressButton(VK_LBUTTON);
    Drain();
    EXPECT_EQ(Commands(), "");
    Screen().ReleaseButton(VK_LBUTTON);
    Drain();
    EXPECT_EQ(Commands(), "m:command 22");
    EXPECT_EQ(State(), "");

    splitframe::TrackMenuBar(m_bar.GetSafeHwnd(), 0);
    Click(10, 10);
    EXPECT_EQ(State(), "") << "a second press of the title";
    splitframe::TrackMenuBar(m_bar.GetSafeHwnd(), 0);
    Commands();
    Click(300, 250);
    EXPECT_EQ(State(), "");
    EXPECT_EQ(Commands(), "") << "the press that closes is not for the window there";
    Screen().AdvanceClock(1000);
    Click(300, 250);
    EXPECT_EQ(Commands(), "p:down 300,50 | p:up");
}

TEST_F(MenuTrackingTest, ContextMenusAnswerOrSendAndAskTheParents)
{
    HMENU hMenu = CreatePopupMenu();
    AppendMenuW(hMenu, MF_STRING, 51, L"one");
    AppendMenuW(hMenu, MF_STRING, 52, L"two");
    UINT nAnswer = 99;
    CPlainWnd inner;
    inner.Open(&m_pane, {0, 0, 100, 100});
    m_pane.m_on[WM_CONTEXTMENU] = [&] {
        nAnswer = TrackPopupMenu(hMenu, TPM_RETURNCMD, 395, 295, m_pane.GetSafeHwnd());
    };
    m_pScripted->script = {[&] {
        EXPECT_EQ(State(), "[]");
        CRect rc;
        Popup()->GetWindowRect(&rc);
        EXPECT_EQ(rc.BottomRight(), CPoint(395, 295)) << "on the side of the point where there is room";
        EXPECT_EQ(TrackPopupMenu(hMenu, TPM_RETURNCMD, 0, 0, m_main.GetSafeHwnd()), 0U) << "one at a time";
        Screen().PressKey(VK_UP);
        Screen().PressKey(VK_RETURN);
    }};
    MSG msg{};
    Screen().Click(20, 220, VK_RBUTTON);
    while (nAnswer == 99 && GetMessage(&msg))
        splitframe::HandleMessage(&msg);
    EXPECT_EQ(nAnswer, 52U);
    EXPECT_EQ(Commands(), "p:context 20,220 | p:init 0") << "the inner window passes the question on";

    m_pane.m_on[WM_CONTEXTMENU] = [&] { TrackPopupMenu(hMenu, 0, 10, 10, m_main.GetSafeHwnd()); };
    for (const bool bMenuKey : {true, false}) {
        inner.SetFocus();
        Commands();
        bMenuKey ? Screen().PressKey(VK_APPS) : Screen().PressKey(VK_SHIFT);
        bMenuKey ? Screen().ReleaseKey(VK_APPS) : Screen().PressKey(VK_F10);
        Screen().ReleaseKey(VK_SHIFT);
        Screen().TypeText(L"o");
        Drain();
        const std::string strTold = Commands();
        EXPECT_NE(strTold.find("p:context -1,-1 | m:init 0 | m:command 51"), std::string::npos) << strTold;
    }
    DestroyMenu(hMenu);
}

TEST_F(MenuTrackingTest, LongMenusScrollInsideTheDisplay)
{
    for (UINT n = 0; n < 40; ++n)
        AppendMenuW(m_hEdit, MF_STRING, 100 + n, L"line");
    splitframe::TrackMenuBar(m_bar.GetSafeHwnd(), 2);
    Drain();
    CRect rc;
    Popup()->GetWindowRect(&rc);
    EXPECT_EQ(rc.top, 20);
    EXPECT_EQ(rc.bottom, 300);
    EXPECT_TRUE(Popup()->GetLineRect(40).IsRectEmpty());
    Press(VK_UP);
    EXPECT_FALSE(Popup()->GetLineRect(40).IsRectEmpty()) << "the selection is always in view";
    EXPECT_TRUE(Popup()->GetLineRect(0).IsRectEmpty());
    Screen().MoveMouse(rc.left + 20, 150);
    Screen().TurnWheel(50 * WHEEL_DELTA);
    for (int n = 0; n < 20; ++n)
        Screen().TurnWheel(WHEEL_DELTA);
    Drain();
    EXPECT_FALSE(Popup()->GetLineRect(0).IsRectEmpty());
    PointAt({rc.left + 20, 297});
    for (int n = 0; n < 50; ++n)
        LetTimePass(100);
    EXPECT_FALSE(Popup()->GetLineRect(40).IsRectEmpty()) << "it scrolls while the pointer is at its end";
    Screen().Resize(60, 30); // nothing fits any more
    Drain();
    Press(VK_ESCAPE);
    Press(VK_DOWN);
    Press(VK_ESCAPE);
    Press(VK_ESCAPE);
}

TEST_F(MenuTrackingTest, AnythingMayGoWhileAMenuIsOpen)
{
    const std::function<void()> deeds[] = {
        [&] { DestroyMenu(m_hFile); },
        [&] { DestroyMenu(m_hInner); },
        [&] { DestroyMenu(m_bar.m_hMenu); },
        [&] { m_bar.DestroyWindow(); },
        [&] { m_main.DestroyWindow(); },
        [&] { m_main.ShowWindow(SW_HIDE); },
        [&] { DestroyWindow(GetTopWindow(nullptr)); },
        [&] { EndMenu(); },
        [&] { Screen().Activate(false); },
        [&] { TrackPopupMenu(m_hEdit, 0, 0, 0, m_main.GetSafeHwnd()); },
        [&] { DeleteMenu(m_hFile, 3, MF_BYPOSITION); },
    };
    for (const auto& deed : deeds) {
        SCOPED_TRACE(&deed - deeds);
        for (const bool bInHook : {false, true}) {
            // From the hook that runs while the submenu opens, and from a message when it is open.
            splitframe::TrackMenuBar(m_bar.GetSafeHwnd(), 0);
            if (bInHook)
                m_main.m_on[WM_INITMENUPOPUP] = deed;
            PointAt(Popup() ? CentreOf(3) : CPoint(5, 5));
            LetTimePass(400);
            m_main.m_on.clear();
            m_pane.m_on[WM_USER] = deed;
            if (!bInHook)
                m_pane.PostMessage(WM_USER);
            Drain();
            for (const UINT nKey : {VK_DOWN, VK_RIGHT, VK_RETURN, VK_ESCAPE, VK_ESCAPE})
                Press(nKey);
            Click(300, 250);
            EndMenu();
            Screen().Activate(true);
            Drain();
            EXPECT_EQ(State(), "");
            Build();
        }
    }
}

} // namespace
