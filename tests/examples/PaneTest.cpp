// What a user does with panes as such: hide a neighbour, swap a chart for a table, lock the lines, go from
// pane to pane, watch an instrument in the banner.
#include "Commands.h"
#include "Workbench.h"
#include "units/BannerUnit.h"
#include "units/ChartUnit.h"
#include "units/DiagramUnit.h"
#include "units/HistoryUnit.h"
#include "units/LogUnit.h"
#include "units/SettingsUnit.h"
#include "units/TableUnit.h"

#include "platform/docview/MDIChildWnd.h"
#include "platform/window/Menu.h"
#include "platform/window/MessageLoop.h"

class PaneTest : public WorkbenchTest
{
protected:
    /// From just above the upper edge of a unit, in its middle.
    void DragUpperEdge(CWnd& unit, int nDown)
    {
        CPoint pt(Place(unit).Width() / 2, 1);
        Drag(unit, pt, {pt.x, pt.y + nDown});
    }
    bool IsLineUnder(const CWnd& unit, CPoint pt)
    {
        unit.ClientToScreen(&pt);
        unit.GetParent()->ScreenToClient(&pt);
        return ActiveDoc()->m_pRoot->HitTest(pt) != nullptr;
    }
};

TEST_F(PaneTest, APaneHidesItsNeighbourAndShowsItAgain)
{
    Open(L"Process");
    auto& chart = Unit<CChartUnit>(L"Trend");
    auto& diagram = Unit<CDiagramUnit>(L"Diagram");
    const CRect rcChart = Place(chart), rcDiagram = Place(diagram);
    const auto toggle = [&] { Click(chart, chart.GetButtonRect().CenterPoint()); };
    ASSERT_TRUE(IsLineUnder(chart, {100, 1}));

    toggle();
    EXPECT_EQ(Place(chart), CRect(rcDiagram.left, rcDiagram.top, rcChart.right, rcChart.bottom));
    EXPECT_EQ(Place(diagram).Height(), 0);
    EXPECT_TRUE(chart.GetHideShowState(CSplitLine::DV_TOP));
    // Beside a hidden first side a line that can be dragged could be caught anywhere.
    EXPECT_FALSE(IsLineUnder(chart, {100, 1}));
    EXPECT_FALSE(IsLineUnder(chart, {100, 200}));
    toggle();
    EXPECT_EQ(Place(chart), rcChart);
    EXPECT_EQ(Place(diagram), rcDiagram);
    EXPECT_TRUE(IsLineUnder(chart, {100, 1}));

    // A share that was lost meanwhile does not leave the user with a pane of no size.
    for (const double dRate : {0.0, 1.0}) {
        toggle();
        ActiveDoc()->m_pRoot->ModifyWindow(CString(L"work"), dRate);
        toggle();
        EXPECT_GT(Place(diagram).Height(), 100);
        EXPECT_GT(Place(chart).Height(), 100);
    }
}

TEST_F(PaneTest, AHiddenPartKeepsTheOtherLinesSharesWhenTheyAreDragged)
{
    Open(L"Process");
    auto& diagram = Unit<CDiagramUnit>(L"Diagram");
    auto& chart = Unit<CChartUnit>(L"Trend");
    const int nWidth = Place(diagram).Width();
    const CRect rcLog = Place(Unit<CLogUnit>(L"Log"));
    diagram.SetFocus();
    Press(VK_F9);
    EXPECT_GT(Place(diagram).Width(), nWidth);
    DragUpperEdge(chart, -60);
    Press(VK_F9);
    EXPECT_EQ(Place(diagram).Width(), nWidth);
    EXPECT_EQ(Place(Unit<CLogUnit>(L"Log")), rcLog);
}

TEST_F(PaneTest, WhatIsHiddenInOneFrameOrStyleIsShownInTheNext)
{
    Open(L"One trend");
    auto& form = Unit<CSettingsUnit>(L"Settings");
    auto& chart = Unit<CChartUnit>(L"Trend");
    Click(chart, chart.GetButtonRect().CenterPoint());
    EXPECT_FALSE(form.IsInSight());
    Open(L"Setup");
    EXPECT_TRUE(form.IsInSight());
    Open(L"Trends");
    EXPECT_FALSE(form.IsInSight()) << "each frame remembers what was hidden in it";

    Open(L"Process");
    auto& trend = Unit<CChartUnit>(L"Trend");
    auto& diagram = Unit<CDiagramUnit>(L"Diagram");
    Click(trend, trend.GetButtonRect().CenterPoint());
    Open(L"Figures and trend");
    Open(L"Process");
    EXPECT_TRUE(diagram.IsInSight());
    EXPECT_TRUE(IsLineUnder(trend, {100, 1}));
}

TEST_F(PaneTest, ADoubleClickSwapsAChartForATableAndBack)
{
    Open(L"Table and details");
    auto& chart = Unit<CChartUnit>(L"Trend");
    auto& history = Unit<CHistoryUnit>(L"History");
    auto& table = Unit<CTableUnit>(L"Table");
    const CRect rc = Place(chart);
    EXPECT_FALSE(history.IsWindowVisible());

    DoubleClick(chart, {150, 80});
    EXPECT_EQ(Place(history), rc);
    EXPECT_TRUE(history.IsWindowVisible());
    EXPECT_FALSE(chart.IsWindowVisible());
    EXPECT_EQ(CWnd::GetFocus(), &history);
    EXPECT_GE(CountColors(history), 8);
    Click(table, table.GetInstrumentRect(2).CenterPoint());
    EXPECT_EQ(history.GetInstrumentShown(), 2);
    EXPECT_EQ(chart.GetInstruments(), std::vector<int>{2}) << "it listens while it is away";

    history.SetFocus();
    Press(VK_F11);
    EXPECT_EQ(Place(chart), rc);
    EXPECT_FALSE(history.IsWindowVisible());

    // A new style places the chart, whatever stood in its place.
    Open(L"Process");
    DoubleClick(Unit<CChartUnit>(L"Trend"), {150, 80});
    Open(L"Figures and trend");
    EXPECT_TRUE(Unit<CChartUnit>(L"Trend").IsInSight());
    EXPECT_FALSE(Unit<CHistoryUnit>(L"History").IsWindowVisible());
}

TEST_F(PaneTest, TheLockFixesTheLinesOfAllFrames)
{
    Open(L"Alarms");
    Open(L"Process");
    auto& banner = Unit<CBannerUnit>(L"Banner");
    auto& chart = Unit<CChartUnit>(L"Trend");
    const CRect rc = Place(chart);
    EXPECT_EQ(MenuState(ID_VIEW_LOCK) & MF_CHECKED, 0U);
    Click(banner, banner.GetLockRect().CenterPoint());
    EXPECT_EQ(MenuState(ID_VIEW_LOCK) & MF_CHECKED, MF_CHECKED);
    DragUpperEdge(chart, -50);
    EXPECT_EQ(Place(chart), rc);
    Open(L"Figures and trend"); // a new tree
    EXPECT_FALSE(IsLineUnder(chart, {100, 1}));
    Open(L"Alarms");
    EXPECT_FALSE(IsLineUnder(Unit<CChartUnit>(L"Trend"), {100, 1}));

    Press(VK_CONTROL, 'L');
    EXPECT_TRUE(IsLineUnder(Unit<CChartUnit>(L"Trend"), {100, 1}));
    Open(L"Process");
    chart.SetFocus();
    DragUpperEdge(chart, -50);
    EXPECT_EQ(Place(chart).top, rc.top - 49) << "where the mouse was, one pixel below the line";
    EXPECT_FALSE(IsLineUnder(banner, {100, Place(banner).Height()})) << "never movable by its record";
}

TEST_F(PaneTest, WhatIsWatchedStandsInTheBanner)
{
    Open(L"Table and details");
    auto& table = Unit<CTableUnit>(L"Table");
    auto& banner = Unit<CBannerUnit>(L"Banner");
    const auto choose = [&](UINT nLetter) { // from the context menu: both are handled by one loop
        CPoint pt = table.GetInstrumentRect(5).CenterPoint();
        table.ClientToScreen(&pt);
        Display().Click(pt.x, pt.y, VK_RBUTTON);
        Display().PressKey(nLetter);
        Display().ReleaseKey(nLetter);
        Display().TypeText(CString(static_cast<wchar_t>(nLetter)).MakeLower());
        splitframe::DrainMessages();
    };
    choose('W');
    EXPECT_EQ(table.GetSelection(), 5);
    EXPECT_EQ(banner.GetWatched(), 5);
    EXPECT_EQ(Newest().strText, L"Stirrer speed watched in the banner");
    EXPECT_EQ(MenuState(ID_PANE_WATCH) & MF_CHECKED, MF_CHECKED);
    choose('W');
    EXPECT_EQ(banner.GetWatched(), -1);
    choose('H'); // hide
    EXPECT_FALSE(Unit<CChartUnit>(L"Trend").IsInSight());
}

TEST_F(PaneTest, TabGoesThroughThePanesInSightAndTheForm)
{
    Open(L"One trend");
    auto& chart = Unit<CChartUnit>(L"Trend");
    auto& form = Unit<CSettingsUnit>(L"Settings");
    auto& banner = Unit<CBannerUnit>(L"Banner");
    chart.SetFocus();
    Press(VK_TAB);
    EXPECT_EQ(CWnd::GetFocus(), &banner);
    Press(VK_TAB);
    EXPECT_EQ(CWnd::GetFocus(), &form);
    for (int n = 0; n < CSettingsUnit::FIELD_COUNT; ++n) {
        EXPECT_EQ(form.GetCurrentField(), n);
        Press(VK_TAB);
    }
    EXPECT_EQ(CWnd::GetFocus(), &chart);
    Press(VK_F9);
    Press(VK_SHIFT, VK_TAB);
    EXPECT_EQ(CWnd::GetFocus(), &banner) << "the form can not be seen";
}

TEST_F(PaneTest, MenuItemsFollowThePaneWithTheKeyboard)
{
    EXPECT_NE(MenuState(ID_PANE_NEIGHBOUR) & MF_GRAYED, 0U);
    Open(L"Table and details");
    Unit<CTableUnit>(L"Table").SetFocus();
    EXPECT_EQ(MenuState(ID_PANE_NEIGHBOUR) & MF_GRAYED, 0U);
    EXPECT_NE(MenuState(ID_PANE_SWAP) & MF_GRAYED, 0U);
    Unit<CChartUnit>(L"Trend").SetFocus();
    EXPECT_EQ(MenuState(ID_PANE_SWAP) & MF_GRAYED, 0U);
    Press(VK_F9);
    MenuState(0);
    EXPECT_EQ(::GetMenuString(Frame().GetMenuBar(), ID_PANE_NEIGHBOUR, MF_BYCOMMAND), L"S&how details\tF9");
    // A check mark stands at the style in front, and nowhere else.
    int nChecked = 0;
    for (UINT nID = CBaseFrameWnd::ID_FRAME_FIRST; nID < CBaseFrameWnd::ID_FRAME_FIRST + 9; ++nID)
        nChecked += (MenuState(nID) & MF_CHECKED) != 0 ? 1 : 0;
    EXPECT_EQ(nChecked, 1);
    EXPECT_NE(MenuState(CBaseFrameWnd::ID_FRAME_FIRST + 5) & MF_CHECKED, 0U);
}
