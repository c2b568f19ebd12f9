// Laying trees out in real (headless) windows: the table of rules, rates read back, and hooks that pull the
// ground away in the middle.
#include "layout/CheckTree.h"
#include "support/HostWindow.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using testing_support::HostWindow;
using testing_support::RectOf;
using testing_support::TextTree;

TEST(Layout, DividesByTheRules)
{
    struct Case
    {
        const char* pszWhat;
        const char* pszTree;
        CRect rc;
        const char* pszPanes;
    };
    const Case cases[] = {
        {"free panes share by rate", "V0.5[a b]", {0, 0, 200, 100}, "a 0,0 100x100; b 100,0 100x100"},
        {"the position truncates", "V0.333333333[a b]", {0, 0, 100, 50}, "a 0,0 33x50; b 33,0 67x50"},
        {"it truncates toward zero", "V0.5[a b]", {-5, 0, 0, 1}, "a -5,0 3x1; b -2,0 2x1"},
        {"a fixed side ignores the rate", "H0.9[a:h30 b]", {0, 0, 300, 200}, "a 0,0 300x30; b 0,30 300x170"},
        {"the lower side fixed", "H0.5[a b:h40]", {0, 10, 300, 210}, "a 0,10 300x160; b 0,170 300x40"},
        {"both fixed: the first wins", "H0.5[a:h30 b:h40]", {0, 0, 10, 100}, "a 0,0 10x30; b 0,30 10x70"},
        {"fixed beside a line",
         "V0.7[a:w50 H0.5[b c]]",
         {0, 0, 150, 100},
         "a 0,0 50x100; b 50,0 100x50; c 50,50 100x50"},
        {"fixed parts inside are left out of the free extent",
         "V0.5[V0.5[a:w20 b] c]",
         {0, 0, 100, 10},
         "a 0,0 20x10; b 20,0 40x10; c 60,0 40x10"},
        {"a collapsed second side yields", "V0.5[a b-]", {0, 0, 200, 100}, "a 0,0 200x100; b 200,0 0x100"},
        {"a collapsed first side yields", "H0.5[a- b]", {0, 0, 200, 100}, "a 0,0 200x0; b 0,0 200x100"},
        {"beside a fixed first side it takes the rest",
         "V0.5[a:w50 b-]",
         {0, 0, 200, 10},
         "a 0,0 50x10; b 50,0 150x10"},
        {"an empty side yields as well", "V0.5[. b]", {0, 0, 200, 100}, "b 0,0 200x100"},
        {"limits alone do not hold a free pane",
         "V0.1[a:w50..60 b]",
         {0, 0, 200, 10},
         "a 0,0 20x10; b 20,0 180x10"},
        {"a hidden pane's height counts from the second pass",
         "H0.5[a:h30~ b]",
         {0, 0, 10, 100},
         "a 0,0 10x30; b 0,30 10x70"},
        {"no room", "V0.5[a H0.5[b c]]", {5, 5, 5, 5}, "a 5,5 0x0; b 5,5 0x0; c 5,5 0x0"},
        {"a single unit", "a", {1, 2, 31, 42}, "a 1,2 30x40"},
    };
    HostWindow host;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.pszWhat);
        TextTree tree(c.pszTree, &host);
        tree->ModifyWindow(c.rc);
        EXPECT_EQ(PanesToText(tree), c.pszPanes);
        EXPECT_EQ(splitframe::CheckTree(tree.Root()), "");
        for (int i = 0; i < tree.CountUnits(); ++i) {
            const CBaseUnitInfo& info = tree.InfoAt(i);
            EXPECT_EQ(CRect(CPoint(info.m_x, info.m_y), CSize(info.m_cx, info.m_cy)),
                      RectOf(*tree.UnitAt(i)));
            EXPECT_TRUE(tree.UnitAt(i)->IsWindowVisible());
        }
    }
}

TEST(Layout, TheLastSideIsMovedFirst)
{
    HostWindow host;
    TextTree tree("V0.5[H0.5[a b] H0.5[c d]]", &host);
    tree->ModifyWindow(CRect(0, 0, 100, 100));
    std::string strFromTop;
    for (CWnd* p = host.GetTopWindow(); p; p = p->GetNextWindow())
        strFromTop += static_cast<CBaseUnitWnd*>(p)->m_strName.ToUtf8();
    EXPECT_EQ(strFromTop, "abcd"); // each is put on top when it is moved
}

TEST(Layout, AgainInPlaceKeepsTheRectangle)
{
    HostWindow host;
    TextTree tree("V0.25[a b]", &host);
    tree->ModifyWindow(CRect(10, 20, 110, 60));
    tree->m_dLRate = 0.5;
    tree->ModifyWindow();
    EXPECT_EQ(PanesToText(tree), "a 10,20 50x40; b 60,20 50x40");
    EXPECT_EQ(tree->GetViewRect(), CRect(10, 20, 110, 60));
}

TEST(Layout, RatesComeFromTheWindowsOfMovableLines)
{
    HostWindow host;
    TextTree tree("V0.5*[a H0.5[b c]]", &host);
    tree->ModifyWindow(CRect(0, 0, 200, 100));
    tree.Unit("a").MoveWindow(0, 0, 80, 100);
    tree.Unit("b").MoveWindow(80, 0, 120, 10);
    tree.Unit("c").MoveWindow(80, 10, 120, 90);
    tree->ReCalRate();
    EXPECT_EQ(tree->m_dLRate, 0.4);
    EXPECT_EQ(tree.LineAt(1)->m_dLRate, 0.5); // not movable

    // Nothing free to divide: the share stays.
    for (const char* pszTree : {"V0.3*[a:w50 b:w50]", "H0.3*[a b]-", "V0.3*[. .]"}) {
        SCOPED_TRACE(pszTree);
        TextTree stuck(pszTree, &host);
        stuck->ModifyWindow(CRect(0, 0, 100, 100));
        stuck->ReCalRate();
        EXPECT_EQ(stuck->m_dLRate, 0.3);
    }

    // Nor in a part that is away, where panes above each other in no width still have heights, and panes of a
    // fixed size keep it. Coming back without size it still has its shares.
    for (const char* pszTree :
         {"V0.5*[a V0.5*[b H0.3*#h[c d]]-]", "V0.5*[a V0.5*[b H0.3*#h[V0.5[c:w9 e] d]]-]"}) {
        SCOPED_TRACE(pszTree);
        TextTree away(pszTree, &host);
        away->ModifyWindow(CRect(0, 0, 100, 100));
        away->ReCalRate();
        EXPECT_EQ(away->m_dLRate, 1.0);
        EXPECT_EQ(away.Node("h").m_dLRate, 0.3);
    }
    TextTree back("V1.0*[a V0.5*[b H0.3*#h[c d]]]", &host);
    back->ModifyWindow(CRect(0, 0, 100, 100));
    back->ReCalRate();
    EXPECT_EQ(back.Node("h").m_dLRate, 0.3);
}

TEST(Layout, ARateByName)
{
    HostWindow host;
    TextTree tree("V0.5#main[a H0.5#right[b c]]", &host);
    tree->ModifyWindow(CRect(0, 0, 200, 100));
    EXPECT_EQ(tree->ModifyWindow(CString(L"right"), 0.25), 0.5);
    EXPECT_EQ(PanesToText(tree), "a 0,0 100x100; b 100,0 100x25; c 100,25 100x75");
    EXPECT_EQ(tree->ModifyWindow(CString(L"Right"), 0.75), -1.0);
    EXPECT_EQ(tree->ModifyWindow(CString(L"c"), 0.75), 0.5); // a unit has a share too, and stays where it is
    EXPECT_EQ(tree->ModifyWindow(CString(L"right"), std::numeric_limits<double>::quiet_NaN()), 0.25);
    EXPECT_EQ(tree->ModifyWindow(CString(L"right"), std::numeric_limits<double>::infinity()), 0.25);
    EXPECT_EQ(PanesToText(tree), "a 0,0 100x100; b 100,0 100x25; c 100,25 100x75");
}

TEST(Layout, AnyCoordinatesAreSafe)
{
    constexpr int MOST = std::numeric_limits<int>::max();
    constexpr int LEAST = std::numeric_limits<int>::min();
    HostWindow host;
    for (const char* pszTree :
         {"V1e300[a b:w2147483647]", "H0.5[a:h-2147483648 b]", "V-1e300*[a H0.5*[b:h7 c]]"}) {
        TextTree tree(pszTree, &host);
        for (const CRect rc : {CRect(LEAST, LEAST, MOST, MOST), CRect(MOST, MOST, LEAST, LEAST), CRect()}) {
            tree->ModifyWindow(rc);
            tree->ReCalRate();
            tree->ModifyWindow();
            EXPECT_EQ(splitframe::CheckTree(tree.Root()), "");
        }
    }
}

// A unit whose hooks run what the test gives it: when it is activated, or sized.
class HookedUnit : public CBaseUnitWnd
{
public:
    void ProcessActivate2(bool) override { Run(m_onActivate); }

    std::function<void()> m_onActivate;
    std::function<void()> m_onSize;

protected:
    void OnSize(UINT, int, int) { Run(m_onSize); }

    DECLARE_MESSAGE_MAP()

private:
    // The hook may delete this unit.
    static void Run(std::function<void()>& hook)
    {
        if (const auto once = std::exchange(hook, nullptr))
            once();
    }
};

BEGIN_MESSAGE_MAP(HookedUnit, CBaseUnitWnd)
ON_WM_SIZE()
END_MESSAGE_MAP()

class LayoutHooks : public testing::Test
{
protected:
    void Make(const char* pszTree)
    {
        m_tree = std::make_unique<TextTree>(pszTree, m_host.get(), [] { return new HookedUnit; });
    }
    HookedUnit& Unit(const char* pszName) { return static_cast<HookedUnit&>(m_tree->Unit(pszName)); }
    CSplitLine& Root() { return m_tree->Root(); }

    std::unique_ptr<HostWindow> m_host = std::make_unique<HostWindow>();
    std::unique_ptr<TextTree> m_tree;
};

TEST_F(LayoutHooks, WhatAHookChangesCountsForTheLinesThatFollow)
{
    Make("V0.5[H0.5[a b] c]");
    Unit("c").m_onActivate = [&] {
        m_tree->LineAt(1)->m_dLRate = 0.25;
        Unit("b").SetHeightFixed(false);
    };
    Root().ModifyWindow(CRect(0, 0, 100, 100));
    EXPECT_EQ(PanesToText(*m_tree), "a 0,0 50x25; b 0,25 50x75; c 50,0 50x100");
}

TEST_F(LayoutHooks, DestructionOfAnythingInTheMiddleIsSafe)
{
    const std::function<void(LayoutHooks&)> destructions[] = {
        [this](auto&) { delete &Unit("c"); },
        [this](auto&) { delete &Unit("a"); },
        [this](auto&) { Unit("d").DestroyWindow(); },
        [this](auto&) { m_host->DestroyWindow(); },
        [this](auto&) { delete &Root(); },
        [this](auto&) { delete m_tree->LineAt(1); },
        [this](auto&) { m_tree.reset(); },
        [this](auto&) {
            m_tree.reset();
            Make("H0.5[a b]");
        },
        [this](auto&) { Root().ModifyWindow(CRect(5, 5, 50, 50)); },
        [this](auto&) { Root().ReleaseWnd(); },
        [this](auto&) { m_tree->LineAt(2)->m_pFirst = &Root(); },
        [this](auto&) {
            m_tree->LineAt(2)->m_pFirst = m_tree->LineAt(1);
            m_tree->LineAt(1)->m_pParent = m_tree->LineAt(2);
        },
    };
    for (const char* pszHooked : {"a", "b", "c", "d"}) {
        for (const std::string strWhen : {"activated", "sized", "dragged"}) {
            for (std::size_t i = 0; i < std::size(destructions); ++i) {
                SCOPED_TRACE(std::string(pszHooked) + " " + strWhen + " " + std::to_string(i));
                m_host = std::make_unique<HostWindow>();
                Make("V0.5[H0.5[a b] V0.5[c d]]");
                if (strWhen == "dragged")
                    Root().ModifyWindow(CRect(0, 0, 100, 100));
                (strWhen == "activated" ? Unit(pszHooked).m_onActivate : Unit(pszHooked).m_onSize) = [&] {
                    destructions[i](*this);
                };
                if (strWhen == "dragged")
                    Root().ModifyWindow(CPoint(30, 50));
                else
                    Root().ModifyWindow(CRect(0, 0, 100, 100));
                if (m_tree && m_tree->HasRoot())
                    Root().ModifyWindow();
                m_tree.reset();
            }
        }
    }
}

TEST_F(LayoutHooks, APaneThatIsExchangedWhileItsLineWaitsIsTheOnePlaced)
{
    Make("V0.5[a b]");
    HookedUnit other;
    CBaseUnitInfo info;
    other.Create(m_host.get(), &info);
    Unit("b").m_onActivate = [&] {
        Root().m_pFirst = &other;
        other.m_pParent = &Root();
    };
    Root().ModifyWindow(CRect(0, 0, 100, 100));
    EXPECT_EQ(testing_support::ToText(RectOf(other)), "0,0 50x100");
    EXPECT_EQ(Unit("a").m_pParent.Get(), &Root());
}

TEST_F(LayoutHooks, AnExceptionGoesToTheCallerAndTheTreeWorksOn)
{
    Make("V0.5[a b]");
    Unit("a").m_onActivate = [] { throw 7; };
    EXPECT_THROW(Root().ModifyWindow(CRect(0, 0, 100, 100)), int);
    delete &Unit("b"); // no layout is under way that would have to forget it
    Root().ModifyWindow(CRect(0, 0, 100, 100));
    EXPECT_EQ(PanesToText(*m_tree), "a 0,0 100x100");
}

TEST_F(LayoutHooks, EachUnitIsActivatedOnceAndShown)
{
    Make("V0.5[a~ b]");
    int nCalls = 0;
    Unit("a").m_onActivate = [&] { ++nCalls; };
    Unit("b").m_bActivated = true;
    Unit("b").m_onActivate = [&] { ++nCalls; };
    Root().ModifyWindow(CRect(0, 0, 100, 100));
    EXPECT_EQ(nCalls, 1);
    EXPECT_TRUE(Unit("a").m_bActivated);
    EXPECT_TRUE(Unit("a").IsWindowVisible());
}

TEST(LayoutOwnership, AUnitThatHangsInAnotherTreeIsLaidOutThereOnly)
{
    HostWindow host;
    TextTree mine("V0.5[a b]", &host), others("V0.5[c d]", &host);
    others->m_pFirst = &mine.Node("a");
    mine.Node("a").m_pParent = &others.Root();
    mine->ModifyWindow(CRect(0, 0, 100, 100));
    EXPECT_EQ(PanesToText(mine), "a 0,0 0x0; b 0,0 100x100");
    others->ModifyWindow(CRect(0, 0, 50, 50));
    EXPECT_EQ(testing_support::ToText(RectOf(mine.Unit("a"))), "0,0 25x50");
}

} // namespace
