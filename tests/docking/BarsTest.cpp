// The menu bar and the tab strip around the MDI client: place, contents, clicks, cost, and the way of the Tab
// key.
#include "docview/Host.h"

#include "platform/docking/MenuBar.h"
#include "platform/docking/TabStrip.h"
#include "platform/graphics/SystemColors.h"
#include "platform/window/Menu.h"

namespace {

using host::Child;
using splitframe::CMenuBar;
using splitframe::CTabStrip;

class Bars : public host::DockSession
{
protected:
    CTabStrip& Strip() const { return static_cast<CTabStrip&>(*m_pMain->GetTabStripWnd()); }
    CMenuBar& Bar() const { return static_cast<CMenuBar&>(*m_pMain->GetMenuBarWnd()); }

    /// The tabs' texts, the active one in brackets.
    std::string Tabs() const
    {
        std::string strAll;
        for (int n = 0; n < Strip().GetTabCount(); ++n) {
            const std::string strText = Strip().GetTabText(n).ToUtf8();
            strAll += (n > 0 ? " " : "") + (n == Strip().GetActiveTab() ? "[" + strText + "]" : strText);
        }
        return strAll;
    }

    static CRect PlaceOf(CWnd& wnd)
    {
        CRect rc;
        wnd.GetClientRect(&rc);
        wnd.MapWindowPoints(wnd.GetParent(), &rc);
        return rc;
    }

    void Click(CRect rc, UINT nButton = VK_LBUTTON)
    {
        Strip().ClientToScreen(&rc);
        const CPoint pt = rc.CenterPoint();
        splitframe::CurrentHeadless()->Click(pt.x, pt.y, nButton);
        splitframe::DrainMessages();
    }
    void ClickTab(int nTab, UINT nButton = VK_LBUTTON) { Click(Strip().GetTabRect(nTab), nButton); }
};

TEST_F(Bars, TakeRoomOnlyWhenTheyShowSomething)
{
    CWnd& client = *CWnd::FromHandle(m_pMain->m_hWndMDIClient);
    CRect rcMain;
    m_pMain->GetClientRect(&rcMain);
    EXPECT_EQ(PlaceOf(client), rcMain);
    EXPECT_FALSE(Bar().IsWindowVisible());
    EXPECT_FALSE(Strip().IsWindowVisible());

    Child* pA = Open("A");
    EXPECT_TRUE(Strip().IsWindowVisible());
    EXPECT_EQ(PlaceOf(Strip()), CRect(0, 0, rcMain.right, CTabStrip::GetHeight()));
    HMENU hPopup = ::CreatePopupMenu();
    EXPECT_TRUE(m_pMain->AppendMenuBarPopup(hPopup, L"&Frames"));
    const int nRow = Bar().GetItemRect(0).Height();
    EXPECT_EQ(PlaceOf(Bar()), CRect(0, 0, rcMain.right, nRow));
    const int nTop = nRow + CTabStrip::GetHeight();
    EXPECT_EQ(PlaceOf(Strip()).bottom, nTop);
    EXPECT_EQ(PlaceOf(client), CRect(0, nTop, rcMain.right, rcMain.bottom));
    EXPECT_EQ(PlaceOf(*pA), CRect(0, 0, rcMain.right, rcMain.bottom - nTop));
    for (const CWnd* pChild = client.GetWindow(GW_CHILD); pChild; pChild = pChild->GetWindow(GW_HWNDNEXT))
        EXPECT_TRUE(pChild->IsKindOf(RUNTIME_CLASS(CMDIChildWnd)));

    m_pMain->MoveWindow(0, 0, 100, 40); // less than the bars want
    EXPECT_EQ(PlaceOf(client).Height(), 0);
    m_pMain->MoveWindow(&rcMain);
    pA->SendMessage(WM_CLOSE);
    m_pMain->SetMenuBar(static_cast<HMENU>(nullptr));
    EXPECT_EQ(PlaceOf(client), rcMain);
    EXPECT_FALSE(Strip().IsWindowVisible());
}

// The strip appears with the first frame, and yet that frame has its final size when it hears of its
// activation.
TEST_F(Bars, TheFirstFrameHasItsFinalSizeBeforeItIsActivated)
{
    Child* pA = Open("A");
    EXPECT_EQ(m_recorder.Take(), "A.InitialUpdate; A.MDIActivate 1; A.FrameFocus; A.ViewFocus");
    const CRect rcFirst = PlaceOf(*pA);
    m_pMain->RecalcLayout(TRUE);
    EXPECT_EQ(PlaceOf(*pA), rcFirst);
}

TEST_F(Bars, TabsFollowTheFrames)
{
    Child* pA = Open("A");
    EXPECT_EQ(Tabs(), "[A]");
    Child* pHidden = Make("H");
    Child* pB = Open("B");
    EXPECT_EQ(Tabs(), "A [B]");
    m_pMain->MDIActivate(pA);
    EXPECT_EQ(Tabs(), "[A] B");
    pB->GetActiveDocument()->SetTitle(L"B & C");
    EXPECT_EQ(Tabs(), "[A] B & C");
    pA->SetWindowText(L"own text");
    EXPECT_EQ(Tabs(), "[own text] B & C");
    pHidden->ActivateFrame(-1);
    EXPECT_EQ(Tabs(), "own text [H] B & C"); // in the order of their making
    pHidden->SendMessage(WM_CLOSE);
    EXPECT_EQ(Tabs(), "[own text] B & C");
    pA->ActivateFrame(SW_HIDE);
    EXPECT_EQ(Tabs(), "[B & C]");
    pB->SendMessage(WM_CLOSE);
    EXPECT_EQ(Tabs(), "");
}

TEST_F(Bars, AClickOnATabActivatesItsFrame)
{
    Open("A");
    Open("B");
    Open("C");
    m_recorder.Take();
    ClickTab(0);
    EXPECT_EQ(m_recorder.Take(), "C.MDIActivate 0; A.MDIActivate 1; A.FrameFocus; A.ViewFocus");
    EXPECT_EQ(Tabs(), "[A] B C");
    EXPECT_EQ(m_pMain->GetWindowText(), L"App - A");
    ClickTab(0);
    EXPECT_EQ(m_recorder.Take(), "");
    EXPECT_EQ(Strip().HitTest(CPoint(790, 10)), -1);
    EXPECT_TRUE(Strip().GetTabRect(3).IsRectEmpty());
    EXPECT_TRUE(Strip().GetTabRect(-1).IsRectEmpty());
}

TEST_F(Bars, AFrameMayEndTheMainFrameWhenItsTabIsClicked)
{
    Open("A");
    Open("B");
    m_recorder.hooks["A.MDIActivate 1"] = [this] { m_pMain->DestroyWindow(); };
    ClickTab(0);
    EXPECT_EQ(m_app.m_pMainWnd, nullptr);
}

TEST_F(Bars, TabsShareTheRoomAndLongTitlesGiveWayFirst)
{
    Open("A");
    Child* pLong = Open(std::string(200, 'w'));
    EXPECT_LE(Strip().GetTabRect(1).Width(), 220);
    pLong->GetActiveDocument()->SetTitle(nullptr);
    EXPECT_GT(Strip().GetTabRect(1).Width(), 0);
    for (int n = 0; n < 40; ++n)
        Open("frame " + std::to_string(n));
    for (const int nWidth : {800, 300, 41, 0}) {
        SCOPED_TRACE(nWidth);
        m_pMain->MoveWindow(0, 0, nWidth, 400);
        splitframe::DrainMessages();
        for (int n = 0; n < Strip().GetTabCount(); ++n)
            EXPECT_LE(Strip().GetTabRect(n).right, std::max(nWidth, 8));
    }
}

TEST_F(Bars, MarksAndTheMiddleButtonCloseFramesThatAgree)
{
    auto* pRefusing = static_cast<host::Document*>(Open("A")->GetActiveDocument());
    Open("B");
    Open("C");
    Click(Strip().GetCloseRect(1));
    EXPECT_EQ(Tabs(), "A [C]") << "without a switch to the one that closes";
    ClickTab(1, VK_MBUTTON);
    EXPECT_EQ(Tabs(), "[A]");
    pRefusing->m_bMayClose = FALSE;
    Click(Strip().GetCloseRect(0));
    ClickTab(0, VK_MBUTTON);
    EXPECT_EQ(Tabs(), "[A]");
    pRefusing->m_bMayClose = TRUE;
    auto& screen = *splitframe::CurrentHeadless();
    Click(CRect(300, 10, 310, 20), VK_MBUTTON); // beside the tabs
    CRect rcMark = Strip().GetCloseRect(0);
    Strip().ClientToScreen(&rcMark);
    screen.MoveMouse(rcMark.left + 5, rcMark.top + 5);
    screen.PressButton(VK_LBUTTON);
    screen.MoveMouse(300, 300);
    screen.ReleaseButton(VK_LBUTTON);
    splitframe::DrainMessages();
    EXPECT_EQ(Tabs(), "[A]") << "the press was taken back";
    m_recorder.hooks["A.CloseDocument"] = [this] { m_pMain->DestroyWindow(); };
    Click(Strip().GetCloseRect(0));
    EXPECT_EQ(m_app.m_pMainWnd, nullptr);
}

TEST_F(Bars, ManyTabsScroll)
{
    for (int n = 0; n < 30; ++n)
        Open("frame " + std::to_string(n));
    const auto seen = [this](int nTab) { return !Strip().GetTabRect(nTab).IsRectEmpty(); };
    EXPECT_TRUE(seen(29) && !seen(0)) << "the active tab is in sight";
    EXPECT_GE(Strip().GetTabRect(29).Width(), 80);
    Click(Strip().GetArrowRect(-1));
    EXPECT_TRUE(!seen(0) && !seen(29));
    auto& screen = *splitframe::CurrentHeadless();
    screen.PressButton(VK_LBUTTON);
    const auto passTime = [&screen](int nSteps) {
        for (int n = 0; n < nSteps; ++n) {
            screen.AdvanceClock(200);
            splitframe::DrainMessages();
        }
    };
    passTime(3);
    EXPECT_FALSE(seen(0));
    screen.MoveMouse(300, 300);
    passTime(40);
    EXPECT_FALSE(seen(0)) << "the pointer has left the arrow";
    Click(Strip().GetArrowRect(-1));
    passTime(40);
    EXPECT_FALSE(seen(0)) << "the button was let go";
    screen.PressButton(VK_LBUTTON);
    passTime(40);
    screen.ReleaseButton(VK_LBUTTON);
    EXPECT_TRUE(seen(0) && !seen(29)) << "scrolling switches nothing";
    EXPECT_EQ(Strip().GetActiveTab(), 29);
    for (int n = 0; n < 100; ++n)
        splitframe::CurrentHeadless()->TurnWheel(-WHEEL_DELTA);
    splitframe::DrainMessages();
    EXPECT_TRUE(seen(29) && !seen(0));
    m_pMain->MDINext();
    EXPECT_EQ(Strip().GetActiveTab(), 0);
    EXPECT_TRUE(seen(0));
    ClickTab(3);
    EXPECT_EQ(Strip().GetActiveTab(), 3);
    for (const CRect& rc : {Strip().GetArrowRect(-1), Strip().GetArrowRect(1)})
        EXPECT_EQ(Strip().HitTest(rc.CenterPoint()), -1);
    for (int n = 0; n < 25; ++n)
        ClickTab(Strip().GetActiveTab(), VK_MBUTTON);
    EXPECT_EQ(Strip().GetTabCount(), 5);
    EXPECT_TRUE(Strip().GetArrowRect(1).IsRectEmpty()) << "room for all";
    EXPECT_TRUE(seen(0) && seen(4));
}

TEST_F(Bars, SwitchingPaintsTheTwoTabsOnly)
{
    std::vector<Child*> arrFrame;
    for (int n = 0; n < 20; ++n)
        arrFrame.push_back(Open("F" + std::to_string(n)));
    splitframe::DrainMessages();
    m_pMain->MDIActivate(arrFrame[18]);
    CRect rcUpdate;
    EXPECT_TRUE(Strip().GetUpdateRect(&rcUpdate));
    EXPECT_EQ(rcUpdate.left, Strip().GetTabRect(18).left - 1);
    EXPECT_EQ(rcUpdate.right, Strip().GetTabRect(19).right);
    m_recorder.paintCounts.clear();
    splitframe::DrainMessages();
    const std::map<std::string, int> expected = {{"F18", 1}};
    EXPECT_EQ(m_recorder.paintCounts, expected);
}

// --- menu bar

TEST_F(Bars, TheMenuBarShowsTheMenuAndOwnsIt)
{
    HMENU hMenu = ::CreateMenu();
    HMENU hFile = ::CreatePopupMenu();
    ::AppendMenuW(hMenu, MF_POPUP, reinterpret_cast<UINT_PTR>(hFile), L"&File");
    m_pMain->SetMenuBar(hMenu);
    EXPECT_EQ(m_pMain->GetMenuBar(), hMenu);
    HMENU hFrames = ::CreatePopupMenu();
    EXPECT_TRUE(m_pMain->AppendMenuBarPopup(hFrames, L"F&rames"));
    EXPECT_FALSE(m_pMain->AppendMenuBarPopup(nullptr, L"none"));
    ASSERT_EQ(Bar().GetItemCount(), 2);
    EXPECT_EQ(Bar().GetItemText(0), L"&File");
    EXPECT_EQ(Bar().GetItemText(2), L"");
    const CRect rcSecond = Bar().GetItemRect(1);
    EXPECT_EQ(Bar().GetItemRect(0).right, rcSecond.left);
    EXPECT_EQ(Bar().HitTest(CPoint(rcSecond.left + 1, 3)), 1);
    EXPECT_EQ(Bar().HitTest(CPoint(700, 3)), -1);
    ::AppendMenuW(hMenu, MF_STRING, 5, L"Help");
    m_pMain->UpdateMenuBar();
    EXPECT_EQ(Bar().GetItemCount(), 3);
    m_pMain->SetMenuBar(hMenu); // the same again: nothing is destroyed
    EXPECT_TRUE(::IsMenu(hFile));

    CMenu other;
    other.CreateMenu();
    HMENU hOther = other.GetSafeHmenu();
    other.AppendMenu(MF_STRING, 1, L"Other");
    m_pMain->SetMenuBar(&other);
    EXPECT_EQ(other.GetSafeHmenu(), nullptr);
    EXPECT_FALSE(::IsMenu(hFrames));
    EXPECT_EQ(Bar().GetItemCount(), 1);
    m_pMain->DestroyWindow();
    EXPECT_FALSE(::IsMenu(hOther));
}

TEST_F(Bars, TitlesWithoutRoomGoOnInTheNextRow)
{
    const wchar_t* const apszTitles[] = {L"&File", L"&Edit", L"&View", L"&Frames", L"&Help"};
    for (const wchar_t* pszTitle : apszTitles)
        m_pMain->AppendMenuBarPopup(::CreatePopupMenu(), pszTitle);
    for (const int nWidth : {800, 150, 30}) {
        SCOPED_TRACE(nWidth);
        m_pMain->MoveWindow(0, 0, nWidth, 400);
        const CRect rcBar = PlaceOf(Bar());
        for (int n = 0; n < 5; ++n) {
            const CRect rc = Bar().GetItemRect(n);
            EXPECT_EQ(Bar().HitTest(CPoint(rc.left + 1, rc.CenterPoint().y)), n);
            EXPECT_TRUE(rc.left < nWidth && rc.bottom <= rcBar.bottom);
            EXPECT_TRUE(nWidth == 30 || rc.right <= nWidth) << n;
        }
        EXPECT_EQ(rcBar.Height() > Bar().GetItemRect(0).Height(), nWidth < 800);
        EXPECT_EQ(PlaceOf(*CWnd::FromHandle(m_pMain->m_hWndMDIClient)).top, rcBar.bottom);
    }
}

TEST_F(Bars, AMenuDestroyedElsewhereLeavesAnEmptyBar)
{
    HMENU hMenu = ::CreateMenu();
    ::AppendMenuW(hMenu, MF_STRING, 1, L"One");
    m_pMain->SetMenuBar(hMenu);
    EXPECT_TRUE(Bar().IsWindowVisible());
    ::DestroyMenu(hMenu);
    splitframe::DrainMessages();
    EXPECT_EQ(m_pMain->GetMenuBar(), nullptr);
    m_pMain->UpdateMenuBar();
    EXPECT_FALSE(Bar().IsWindowVisible());
}

// --- keys

TEST_F(Bars, OnlyTabIsHandedFromTheMainWindowToTheActiveView)
{
    Open("A");
    Child* pB = Open("B");
    m_recorder.Take();
    m_pMain->SendMessage(WM_KEYDOWN, VK_TAB, 1);
    EXPECT_EQ(m_recorder.Take(), "B.Key 9");
    m_pMain->SendMessage(WM_KEYDOWN, 'X', 1);
    EXPECT_EQ(m_recorder.Take(), "");
    pB->ActivateFrame(SW_HIDE);
    m_pMain->GetActiveFrame()->SendMessage(WM_CLOSE);
    m_recorder.Take();
    m_pMain->SendMessage(WM_KEYDOWN, VK_TAB, 1);
    EXPECT_EQ(m_recorder.Take(), "");
}

} // namespace
