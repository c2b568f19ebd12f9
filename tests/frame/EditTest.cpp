// Editing a frame's tree from its units and through its helper: hiding and showing neighbours, their shares,
// replacing panes, finding units, and what the helper makes of good and bad requests.
#include "definition/UnitInfo.h"
#include "layout/CheckTree.h"
#include "platform/window/WindowManager.h"
#include "support/FrameHost.h"

#include <cmath>

using namespace test;

namespace {

constexpr auto RIGHT = CSplitLine::DV_RIGHT;
constexpr auto LEFT = CSplitLine::DV_LEFT;
constexpr auto TOP = CSplitLine::DV_TOP;
constexpr auto BOTTOM = CSplitLine::DV_BOTTOM;

// "a" at the left, "b" over "c" at the right, in 200 by 100 pixels, and "u", which stands in no line.
void OpenSmall(FrameHost& host)
{
    host.Load(LayoutXml(GlobalXml(L"g") +
                        FrameXml(L"F", L"a b c u", {{L"S", L"a b c u", L"m V a r 0.3;r H b c"}}) +
                        FrameXml(L"G", L"d", {{L"T", L"d", L""}})));
    host.Open(L"F");
    host.Unit(L"u")->ShowWindow(SW_HIDE);
    CRect rc(0, 0, 202, 103);
    host.ActiveView()->CalcWindowRect(&rc);
}

class EditTest : public testing::Test
{
protected:
    EditTest()
    {
        OpenSmall(m_host);
        Log().Take();
    }
    ~EditTest() override { EXPECT_EQ(Told(m_host.m_arrDiagnostic), ""); }

    CBaseUnitWnd& Unit(const wchar_t* pszName) { return *m_host.Unit(pszName); }
    CSplitLine& Root() { return *m_host.ActiveDoc()->m_pRoot; }

    FrameHost m_host;
};

} // namespace

TEST_F(EditTest, NeighboursAreHiddenAndShown)
{
    const std::string strStart = "a 0,0 60x100; b 60,0 140x50; c 60,50 140x50";
    ASSERT_EQ(m_host.Panes(), strStart);
    const struct
    {
        const wchar_t* pszUnit;
        CSplitLine::DIRECT_VALUE d;
        const char* panes; // null: nothing that way
    } cases[] = {
        {L"a", RIGHT, "a 0,0 200x100; b 200,0 0x50; c 200,50 0x50"},
        {L"b", LEFT, "a 0,0 0x100; b 0,0 200x50; c 0,50 200x50"},
        {L"c", TOP, "a 0,0 60x100; b 60,0 140x0; c 60,0 140x100"},
        {L"b", BOTTOM, "a 0,0 60x100; b 60,0 140x100; c 60,100 140x0"},
        {L"a", LEFT, nullptr},
        {L"c", BOTTOM, nullptr},
        {L"u", RIGHT, nullptr},
        {L"a", static_cast<CSplitLine::DIRECT_VALUE>(4), nullptr},
        {L"a", static_cast<CSplitLine::DIRECT_VALUE>(-1), nullptr},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << CString(c.pszUnit).ToUtf8() << " " << c.d);
        CBaseUnitWnd& unit = Unit(c.pszUnit);
        const bool bDirection = c.d >= 0 && c.d < 4;
        EXPECT_EQ(unit.Hide(c.d), !c.panes && bDirection);
        EXPECT_EQ(m_host.Panes(), c.panes ? c.panes : strStart);
        EXPECT_EQ(unit.GetHideShowState(c.d), c.panes != nullptr);
        EXPECT_EQ(unit.Show(c.d), c.panes != nullptr);
        EXPECT_EQ(m_host.Panes(), strStart);
        EXPECT_FALSE(unit.GetHideShowState(c.d));
        if (c.panes) {
            EXPECT_EQ(unit.HideShow(c.d), 0.0);
            EXPECT_EQ(m_host.Panes(), c.panes);
            EXPECT_EQ(unit.HideShow(c.d), 1.0);
            EXPECT_EQ(m_host.Panes(), strStart);
        }
    }
}

TEST_F(EditTest, WhatWasHiddenComesBackEvenWhenNothingWasLeft)
{
    Unit(L"a").Hide(RIGHT);
    Unit(L"b").Hide(LEFT);
    EXPECT_TRUE(Root().GetViewRect().IsRectEmpty());
    EXPECT_TRUE(Unit(L"a").Show(RIGHT));
    EXPECT_FALSE(Root().GetViewRect().IsRectEmpty());
}

// While a side is away its line's share becomes 0 or 1, if the panes' shares are taken anew meanwhile. Then
// the side comes back without size, until somebody gives it a share.
TEST_F(EditTest, ASideThatLostItsShareComesBackWithoutSize)
{
    Unit(L"a").Hide(RIGHT);
    Root().ReCalRate();
    EXPECT_EQ(Root().m_dLRate, 1.0);
    Unit(L"a").Show(RIGHT);
    EXPECT_EQ(m_host.Panes(), "a 0,0 200x100; b 200,0 0x50; c 200,50 0x50");
    EXPECT_EQ(Unit(L"a").ProcessModifyWindow(RIGHT, 0.75), 0.0);
    EXPECT_EQ(m_host.Panes(), "a 0,0 50x100; b 50,0 150x50; c 50,50 150x50");
}

TEST_F(EditTest, SharesAreSetByDirection)
{
    EXPECT_EQ(Unit(L"a").ProcessModifyWindow(RIGHT, 0.5), 0.7);
    EXPECT_EQ(Unit(L"b").ProcessModifyWindow(LEFT, 0.25), 0.5);
    EXPECT_EQ(Unit(L"b").ProcessModifyWindow(BOTTOM, 0.2), 0.5);
    EXPECT_EQ(Unit(L"c").ProcessModifyWindow(TOP, 0.9), 0.8);
    EXPECT_EQ(m_host.Panes(), "a 0,0 50x100; b 50,0 150x90; c 50,90 150x10");
    EXPECT_EQ(Unit(L"a").ProcessModifyWindow(LEFT, 0.5), -1.0);
    EXPECT_EQ(Unit(L"a").ProcessModifyWindow(BOTTOM, 0.5), 2.0);
    EXPECT_EQ(Unit(L"b").ProcessModifyWindow(LEFT, std::nan("")), 0.25);
    // Lines without names: the one beside the unit is meant.
    Root().m_strName = Root().m_pSecond->m_strName = L"";
    EXPECT_EQ(Unit(L"c").ProcessModifyWindow(TOP, 0.5), 0.9);
    EXPECT_EQ(Unit(L"a").ProcessModifyWindow(TOP, 0.5), -1.0);
    EXPECT_EQ(m_host.Panes(), "a 0,0 50x100; b 50,0 150x50; c 50,50 150x50");
}

TEST_F(EditTest, WithoutAnActiveTreeNothingIsFoundAndNothingChanges)
{
    CSplitLine* const pRoot = std::exchange(CSplitLine::m_pRoot, nullptr);
    CBaseUnitWnd& a = Unit(L"a");
    EXPECT_EQ(a.FindBaseUnitWnd(L"m", true), nullptr);
    EXPECT_TRUE(a.Hide(RIGHT));
    EXPECT_FALSE(a.Show(RIGHT));
    EXPECT_EQ(a.ProcessModifyWindow(RIGHT, 0.5), 0.5);
    EXPECT_TRUE(Root().m_pSecond->m_bShow);
    EXPECT_EQ(Root().m_dLRate, 0.3);
    CSplitLine::m_pRoot = pRoot;
    RecordingUnit alone;
    EXPECT_TRUE(alone.Hide(LEFT));
    EXPECT_FALSE(alone.ReplaceBaseUnit(L"u", L"a"));
    EXPECT_FALSE(alone.ReplaceBaseUnit(L"u", L"m", true));
    EXPECT_FALSE(alone.ReplaceBaseUnit(L"u", &a));
    EXPECT_EQ(alone.FindBaseUnitWnd(L"a"), nullptr);
}

TEST_F(EditTest, UnitsReplaceAndFindEachOther)
{
    CBaseUnitWnd& a = Unit(L"a");
    CBaseUnitWnd& b = Unit(L"b");
    EXPECT_TRUE(a.ReplaceBaseUnit(L"u", L"b"));
    EXPECT_EQ(m_host.Panes(), "a 0,0 60x100; c 60,50 140x50; u 60,0 140x50");
    EXPECT_TRUE(a.ReplaceBaseUnit(L"b", L"r", true));
    EXPECT_TRUE(a.ReplaceBaseUnit(L"u", L"r", false));
    EXPECT_EQ(m_host.Panes(), "a 0,0 60x100; b 60,0 140x50; u 60,50 140x50");
    EXPECT_TRUE(b.ReplaceBaseUnit(L"c", &b)) << "by itself";
    EXPECT_EQ(m_host.Panes(), "a 0,0 60x100; c 60,0 140x50; u 60,50 140x50");
    EXPECT_TRUE(a.ReplaceBaseUnit(L"u", L"a")) << "two that are shown change places";
    EXPECT_EQ(m_host.Panes(), "a 60,50 140x50; c 60,0 140x50; u 0,0 60x100");
    EXPECT_FALSE(a.ReplaceBaseUnit(L"x", L"a"));
    EXPECT_FALSE(a.ReplaceBaseUnit(L"b", L"x"));
    EXPECT_FALSE(a.ReplaceBaseUnit(L"b", L"m", false)) << "a line stands there";
    EXPECT_FALSE(a.ReplaceBaseUnit(L"b", static_cast<CBaseUnitWnd*>(nullptr)));
    EXPECT_EQ(splitframe::CheckTree(Root()), "");

    EXPECT_EQ(a.FindBaseUnitWnd(L"r", true), &Unit(L"c"));
    EXPECT_EQ(a.FindBaseUnitWnd(L"m", false), nullptr);
    EXPECT_EQ(a.FindBaseUnitWnd(L"b"), &b);
    EXPECT_EQ(a.FindBaseUnitWnd(L"d"), nullptr);
    // Units of other frames, from a unit of a frame and from a global one.
    CBaseUnitWnd* pOther = a.FindBaseUnitWnd2(L"G", L"d");
    ASSERT_NE(pOther, nullptr);
    EXPECT_EQ(pOther->m_strName, CString(L"d"));
    CBaseUnitWnd* pGlobal = m_host.m_pMain->FindGlobalBaseUnitWnd(L"g");
    EXPECT_EQ(pGlobal->FindBaseUnitWnd2(L"G", L"d"), pOther);
    EXPECT_EQ(pGlobal->FindBaseUnitWnd2(L"X", L"d"), nullptr);
    EXPECT_EQ(a.FindBaseUnitWnd2(L"G", L"x"), nullptr);
}

TEST_F(EditTest, TheHelperDoesWhatItIsAskedAndNoMore)
{
    CBaseFrameHelper& helper = *m_host.ActiveDoc()->m_pHelper;
    const auto ask = [&](DWORD nMsg, const wchar_t* pszName, const wchar_t* pszUnit, LPARAM nFlag = 0) {
        CString strName(pszName), strUnit(pszUnit);
        return helper.ProcessMessage(nMsg, pszName ? reinterpret_cast<WPARAM>(&strName) : 0,
                                     pszUnit ? reinterpret_cast<LPARAM>(&strUnit) : nFlag);
    };
    const std::string strStart = m_host.Panes();
    const struct
    {
        const char* what;
        DWORD nMsg;
        const wchar_t* pszName;
        const wchar_t* pszUnit; // null: the flag
        LPARAM nFlag;
        const char* mobile; // of "m" and "r" afterwards, both movable before
        bool bReplaced;
    } cases[] = {
        {"fix above a pane", 1177, L"b", nullptr, 0, "10", false},
        {"the same by its own code", 1178, L"a", nullptr, 0, "01", false},
        {"movable stays movable", 1178, L"a", nullptr, 1, "11", false},
        {"no flag", 1178, L"a", nullptr, 2, "11", false},
        {"no flag for a side", 1180, L"m,1", nullptr, -1, "11", false},
        {"fix by line and side", 1180, L"r,0", nullptr, 0, "10", false},
        {"any other digit is the first side", 1180, L"m;7", nullptr, 0, "01", false},
        {"unknown", 1178, L"x", nullptr, 0, "11", false},
        {"unknown line", 1180, L"x,1", nullptr, 0, "11", false},
        {"short", 1180, L"m", nullptr, 0, "11", false},
        {"empty", 1180, L"", nullptr, 0, "11", false},
        {"a name for a flag", 1178, L"a", L"u", 0, "11", false},
        {"null names", 1177, nullptr, nullptr, 0, "11", false},
        {"a null name for a side", 1180, nullptr, nullptr, 0, "11", false},
        {"replace", 1177, L"b", L"u", 0, "11", true},
        {"replace a side", 1179, L"r,1", L"u", 0, "11", true},
        {"replace by an unknown one", 1177, L"b", L"x", 0, "11", false},
        {"replace an unknown one", 1177, L"x", L"u", 0, "11", false},
        {"replace without a name", 1177, L"", L"", 0, "11", false},
        {"a side without digit", 1179, L"r", L"u", 0, "11", false},
        {"only a side", 1179, L",1", L"u", 0, "11", false},
        {"a flag for a side", 1179, L"r,1", nullptr, 1, "11", false},
        {"below the codes", 1176, L"b", L"u", 0, "11", false},
        {"above the codes", 1181, L"b", L"u", 0, "11", false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(ask(c.nMsg, c.pszName, c.pszUnit, c.nFlag), c.bReplaced ? 1 : 0);
        EXPECT_EQ(std::string(Root().m_bMobile ? "1" : "0") + (Root().m_pSecond->m_bMobile ? "1" : "0"),
                  c.mobile);
        EXPECT_EQ(m_host.Panes() == strStart, !c.bReplaced);
        if (c.bReplaced) {
            EXPECT_EQ(ask(HELPER_MSG_REPLACE_OR_MOVE, L"u", L"b"), 1);
        }
        Root().m_bMobile = Root().m_pSecond->m_bMobile = true;
    }
    EXPECT_EQ(m_host.Panes(), strStart);
    m_host.Open(L"G"); // a frame without lines
    EXPECT_EQ(m_host.ActiveDoc()->m_pHelper->ProcessMessage(1178, reinterpret_cast<WPARAM>(&strStart), 0), 0);
    CBaseFrameHelper alone;
    EXPECT_EQ(alone.ProcessMessage(1177, 1, 0), 0);
}

TEST(Editing, AHookMayTakeEverythingDownMeanwhile)
{
    const std::function<void(FrameHost&)> ends[] = {
        [](FrameHost& host) { host.ActiveFrame()->SendMessage(WM_CLOSE); },
        [](FrameHost& host) { host.m_pMain->DestroyWindow(); },
        [](FrameHost& host) { delete std::exchange(host.ActiveDoc()->m_pRoot, nullptr); },
        [](FrameHost& host) { delete host.Unit(L"u"); },
        [](FrameHost& host) { delete host.Unit(L"a"); },
    };
    const std::pair<const char*, std::function<void(CBaseUnitWnd&)>> edits[] = {
        {"u.Use1", [](CBaseUnitWnd& a) { a.ReplaceBaseUnit(L"u", L"b"); }},
        {"b.Use0", [](CBaseUnitWnd& a) { a.ReplaceBaseUnit(L"u", a.FindBaseUnitWnd(L"b")); }},
        {"u.Size", [](CBaseUnitWnd& a) { a.ReplaceBaseUnit(L"u", L"r", false); }},
        {"b.Size", [](CBaseUnitWnd& a) { a.HideShow(RIGHT); }},
        {"b.Size", [](CBaseUnitWnd& a) { a.ProcessModifyWindow(RIGHT, 0.5); }},
    };
    for (const auto& end : ends) {
        for (const auto& [pszEvent, edit] : edits) {
            SCOPED_TRACE(pszEvent);
            FrameHost host;
            OpenSmall(host);
            bool bCalled = false;
            Log().hooks[pszEvent] = [&](CBaseUnitWnd*) {
                if (!std::exchange(bCalled, true))
                    end(host);
            };
            edit(*host.Unit(L"a"));
            EXPECT_TRUE(bCalled);
            host.Settle();
        }
    }
}
