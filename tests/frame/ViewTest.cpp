// The view and the helper: keys, clicks, notifications, placement by rates, and when a frame is laid out.
#include "definition/UnitInfo.h"
#include "platform/window/WindowManager.h"
#include "support/FrameHost.h"

#include <algorithm>
#include <limits>

using namespace test;

namespace {

std::wstring ThreeUnits()
{
    return LayoutXml(FrameXml(L"F", L"a b c", {{L"S", L"a b c", L"m V a r;r H b c"}}) +
                     FrameXml(L"E", L"", {{L"T", L"", L""}}));
}

} // namespace

TEST(Keys, TabMovesToTheNextUnitWhicheverHasTheFocus)
{
    FrameHost host;
    host.Load(ThreeUnits());
    CBaseFrameDoc* pDoc = host.Open(L"F");
    for (const int nExpected : {1, 2, 0, 1}) {
        host.m_pDisplay->PressKey(VK_TAB);
        host.Settle();
        EXPECT_EQ(pDoc->GetCurrentBaseUnitWnd(), nExpected);
        EXPECT_EQ(CWnd::GetFocus(), pDoc->GetBaseUnitWnd(nExpected));
    }
    host.ActiveView()->SendMessage(WM_KEYUP, VK_TAB);
    EXPECT_EQ(Log().Take("Message"), "");
    for (const int nWild : {-7, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        pDoc->m_nCurBaseUnitWnd = nWild;
        host.ActiveView()->SendMessage(WM_KEYDOWN, VK_TAB);
        EXPECT_TRUE(pDoc->GetCurrentBaseUnitWnd() >= 0 && pDoc->GetCurrentBaseUnitWnd() < 3);
    }
    EXPECT_EQ(Told(host.m_arrDiagnostic), "");
}

TEST(Keys, TabWithoutUnitsDoesNothing)
{
    FrameHost host;
    host.Load(ThreeUnits());
    host.Open(L"E");
    host.ActiveView()->SendMessage(WM_KEYDOWN, VK_TAB);
    EXPECT_EQ(Told(host.m_arrDiagnostic), "");
    host.ActiveView()->SendMessage(WM_KEYDOWN, 'Q'); // no unit to take it
    EXPECT_EQ(host.m_arrDiagnostic.size(), 1U);
}

TEST(Keys, GoToTheHelperThenToTheCurrentUnit)
{
    const struct
    {
        const char* what;
        UINT nMsg;
        LRESULT nAnswer;
        const char* told;
    } cases[] = {
        {"down", WM_KEYDOWN, 0, "helper.Message256,118 b.Key118"},
        {"down, taken", WM_KEYDOWN, 1, "helper.Message256,118"},
        {"up", WM_KEYUP, 0, "helper.Message257,118 b.KeyUp118"},
        {"up, taken", WM_KEYUP, 1, "helper.Message257,118"},
        {"with Alt", WM_SYSKEYDOWN, 1, "b.Key118"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        FrameHost host;
        host.Load(ThreeUnits());
        host.Open(L"F")->SetCurrentBaseUnitWnd(1);
        Log().answers["helper.Message256,118"] = Log().answers["helper.Message257,118"] = c.nAnswer;
        Log().Take();
        host.ActiveView()->SendMessage(c.nMsg, VK_F7);
        EXPECT_EQ(Log().Take("1"), c.told);
    }
}

TEST(Mouse, RightClicksGoToTheUnitUnderThem)
{
    FrameHost host;
    host.Load(ThreeUnits());
    host.Open(L"F");
    const CBaseUnitInfo& info = *host.Unit(L"c")->m_pBaseUnitInfo;
    Log().Take();
    host.ActiveView()->SendMessage(WM_RBUTTONDOWN, 0, MAKELPARAM(info.m_x + 5, info.m_y + 6));
    EXPECT_EQ(Log().Take(), "c.RClick5,6");
    host.ActiveView()->SendMessage(WM_RBUTTONDOWN, 0, MAKELPARAM(-4, -4));
    EXPECT_EQ(Log().Take(), "");
}

TEST(Mouse, DoubleClicksGoToTheUnitThenToTheHelper)
{
    const struct
    {
        const char* what;
        LRESULT nUnitAnswer;
        CPoint pt;
        const char* told;
    } cases[] = {
        {"taken by the unit", 1, {5, 6}, "a.DblClk5,6"},
        {"not taken", 0, {5, 6}, "a.DblClk5,6 helper.Message515,0"},
        {"beside all units", 1, {-5, -6}, "helper.Message515,0"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        FrameHost host;
        host.Load(ThreeUnits());
        host.Open(L"F");
        Log().answers["a.DblClk5,6"] = c.nUnitAnswer;
        Log().Take();
        host.ActiveView()->SendMessage(WM_LBUTTONDBLCLK, 0, MAKELPARAM(c.pt.x, c.pt.y));
        EXPECT_EQ(Log().Take(), c.told);
    }
}

TEST(Layout, OnlyTheFrameInFrontIsLaidOut)
{
    FrameHost host;
    host.Load(LayoutXml(FrameXml(L"A", L"a b", {{L"S", L"a b", L"m V a b"}}) +
                        FrameXml(L"B", L"c d", {{L"T", L"c d", L"m V c d"}})));
    CBaseFrameDoc* pA = host.Open(L"A");
    host.Open(L"B");
    const int nBefore = pA->m_arrBaseUnitInfo[0]->m_cx;
    host.m_pDisplay->Resize(500, 400);
    host.Settle();
    EXPECT_EQ(pA->m_arrBaseUnitInfo[0]->m_cx, nBefore);
    const std::string strB = host.Panes();
    host.Open(L"A");
    std::string strA = host.Panes();
    for (const auto& [from, to] : {std::pair{'a', 'c'}, std::pair{'b', 'd'}})
        std::replace(strA.begin(), strA.end(), from, to);
    EXPECT_EQ(strA, strB);
}

TEST(Layout, TheRoomIsNotChangedAndTheHelperMayChangeItsOwn)
{
    FrameHost host;
    host.Load(ThreeUnits());
    host.Open(L"F");
    CRect rc(0, 0, 302, 103);
    host.ActiveView()->CalcWindowRect(&rc);
    EXPECT_EQ(rc, CRect(0, 0, 302, 103));
    EXPECT_EQ(host.Panes(), "a 0,0 150x100; b 150,0 150x50; c 150,50 150x50");
    const int nFar = std::numeric_limits<int>::min();
    CRect rcWild(nFar, nFar, nFar, nFar);
    host.ActiveView()->CalcWindowRect(&rcWild);
    host.ActiveView()->CalcWindowRect(nullptr);
}

TEST(Placement, ByRatesAndLimits)
{
    const struct
    {
        const char* what;
        int nBorder;
        int nMinHeight;
        int nMaxHeight;
        const char* panes;
    } cases[] = {
        {"no limits in force", 1, 0, 0, "a 100,0 200x150"},
        {"the defaults", 1, 0, 10000, "a 100,0 200x150"},
        {"largest height", 1, 0, 100, "a 100,0 200x100"},
        {"smallest height", 1, 200, 10000, "a 100,0 200x200"},
        {"limits that contradict each other", 1, 200, 100, "a 100,0 200x200"},
        {"no border: not placed", 0, 0, 10000, "a 1,2 30x40"},
        {"another border: not placed", 2, 0, 10000, "a 1,2 30x40"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        FrameHost host;
        host.Load(LayoutXml(FrameXml(L"F", L"a", {{L"S", L"a", L""}})));
        CBaseUnitInfo& info = *host.m_pMain->FindBaseFrameDoc(L"F")->m_arrBaseUnitInfo[0];
        info.m_nBorderStyle = c.nBorder;
        info.m_dLeftRate = 0.25;
        info.m_dTopRate = 0.0;
        info.m_dRightRate = 0.75;
        info.m_dBottomRate = 0.5;
        info.m_nMinHeight = c.nMinHeight;
        info.m_nMaxHeight = c.nMaxHeight;
        CBaseFrameDoc* pDoc = host.Open(L"F");
        CRect rc(0, 0, 401, 301);
        pDoc->m_pHelper->OnCalcWindowRect(&rc);
        EXPECT_EQ(host.Panes(), c.panes);
        CString strRecord;
        strRecord.Format(L"a %d,%d %dx%d", info.m_x, info.m_y, info.m_cx, info.m_cy);
        EXPECT_EQ(strRecord.ToUtf8(), c.panes);
        CRect rcPlace;
        static_cast<RecordingHelper*>(pDoc->m_pHelper)->CalcRectByRate(&info, rc, rcPlace);
        EXPECT_EQ(rcPlace, CRect(100, 0, 300, 150));
    }
}

TEST(Placement, WildRatesAndRectanglesStayInRange)
{
    FrameHost host;
    host.Load(LayoutXml(FrameXml(L"F", L"a", {{L"S", L"a", L""}})));
    CBaseFrameDoc* pDoc = host.Open(L"F");
    CBaseUnitInfo& info = *pDoc->m_arrBaseUnitInfo[0];
    info.m_nBorderStyle = 1;
    constexpr int FAR = std::numeric_limits<int>::max();
    for (const double dRate : {1e300, -1e300, std::numeric_limits<double>::quiet_NaN()}) {
        info.m_dLeftRate = info.m_dBottomRate = dRate;
        info.m_dTopRate = info.m_dRightRate = -dRate;
        CRect rc(-FAR, -FAR, FAR, FAR);
        pDoc->m_pHelper->OnCalcWindowRect(&rc);
    }
    EXPECT_EQ(splitframe::CheckWindowTree(), CString());
}

TEST(Helper, TheDefaultsAnswerNothing)
{
    CBaseFrameHelper helper;
    for (const DWORD nMsg : {WM_CLOSE, WM_DESTROY, WM_KEYDOWN, 4711U})
        EXPECT_EQ(helper.ProcessMessage(nMsg, 0, 0), 0);
    CRect rc(0, 0, 10, 10);
    helper.OnCalcWindowRect(&rc);
    EXPECT_EQ(helper.GetBaseUnitWnd(L"a"), nullptr);
}

TEST(Helper, HearsMessagesOfItsUnits)
{
    FrameHost host;
    host.Load(ThreeUnits());
    host.Open(L"F");
    Log().answers["helper.Message4711,8"] = 9;
    EXPECT_EQ(host.Unit(L"a")->ProcessHelperMessage(4711, 8, 0), 9);
    EXPECT_EQ(host.ActiveFrame()->ProcessHelperMessage(4711, 8, 0), 9);
    Log().Take();
    DynamicDownCast<RecordingUnit>(host.Unit(L"b"))->Notify(3, 4);
    EXPECT_EQ(Log().Take(), "helper.Notify3,4");
    CBaseFrameView::OnBaseUnitNotify(nullptr, 1, 1);
    CBaseFrameView::OnBaseUnitNotify(static_cast<CWnd*>(host.m_pMain), 1, 1);
    EXPECT_EQ(Log().Take(), "");
}
