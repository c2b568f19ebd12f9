// What a user does to the workbench, and what comes of it.
#include "Commands.h"
#include "Theme.h"
#include "Workbench.h"
#include "units/BannerUnit.h"
#include "units/ChartUnit.h"
#include "units/ClockUnit.h"
#include "units/DetailUnit.h"
#include "units/DiagramUnit.h"
#include "units/FiguresUnit.h"
#include "units/LogUnit.h"
#include "units/SettingsUnit.h"
#include "units/TableUnit.h"

#include "platform/docview/MDIChildWnd.h"
#include "platform/window/MessageLoop.h"

class BehaviourTest : public WorkbenchTest
{
};

TEST_F(BehaviourTest, AClickOnARowShowsItsInstrumentEverywhere)
{
    Open(L"Table and details");
    auto& table = Unit<CTableUnit>(L"Table");
    Click(table, table.GetInstrumentRect(3).CenterPoint());

    EXPECT_EQ(table.GetSelection(), 3);
    EXPECT_EQ(CWnd::GetFocus(), &table);
    EXPECT_EQ(Unit<CDetailUnit>(L"Details").GetInstrumentShown(), 3);
    EXPECT_EQ(Unit<CChartUnit>(L"Trend").GetInstruments(), std::vector<int>{3});
    EXPECT_EQ(Newest().strText, L"Broth pH selected");
    const CRect rcRow = table.GetInstrumentRect(3);
    EXPECT_EQ(Pixel(table, {rcRow.right - 12, rcRow.top + 2}), theme::SELECTION);
}

TEST_F(BehaviourTest, KeysMoveTheSelectionAndScroll)
{
    Open(L"Table and journal");
    auto& table = Unit<CTableUnit>(L"Table");
    Frame().MoveWindow(0, 0, 900, 420); // so that not all rows fit
    splitframe::DrainMessages();
    table.SetFocus();
    const struct
    {
        UINT nKey;
        int nSelected;
    } steps[] = {{VK_HOME, 0}, {VK_UP, 0},    {VK_DOWN, 1}, {VK_DOWN, 2},
                 {VK_END, 17}, {VK_DOWN, 17}, {VK_UP, 16}};
    for (const auto& step : steps) {
        Press(step.nKey);
        EXPECT_EQ(table.GetSelection(), step.nSelected);
    }
    EXPECT_GT(table.GetRows().GetFirst(), 0);
    Press(VK_HOME);
    EXPECT_EQ(table.GetRows().GetFirst(), 0);
    Press(VK_NEXT);
    EXPECT_EQ(table.GetSelection(), table.GetRows().GetPage());
}

TEST_F(BehaviourTest, TheWheelScrollsWithoutSelecting)
{
    Open(L"Table and journal");
    auto& table = Unit<CTableUnit>(L"Table");
    Frame().MoveWindow(0, 0, 900, 420);
    splitframe::DrainMessages();
    const int nSelected = table.GetSelection();
    Wheel(table, -1);
    EXPECT_EQ(table.GetRows().GetFirst(), 3);
    Wheel(table, -100);
    EXPECT_EQ(table.GetRows().GetEnd(), INSTRUMENT_COUNT);
    Wheel(table, 100);
    EXPECT_EQ(table.GetRows().GetFirst(), 0);
    EXPECT_EQ(table.GetSelection(), nSelected);
}

TEST_F(BehaviourTest, ADoubleClickOpensTheTrends)
{
    Open(L"Table and journal");
    auto& table = Unit<CTableUnit>(L"Table");
    const CPoint pt = table.GetInstrumentRect(2).CenterPoint();
    Click(table, pt);
    Click(table, pt);
    EXPECT_EQ(ActiveName(), L"Trends");
}

TEST_F(BehaviourTest, LabelsAndTilesSelectToo)
{
    Open(L"Process");
    auto& diagram = Unit<CDiagramUnit>(L"Diagram");
    Click(diagram, diagram.GetLabelRect(7).CenterPoint());
    EXPECT_EQ(Unit<CDetailUnit>(L"Details").GetInstrumentShown(), 7);
    ActiveDoc()->Close();

    Open(L"Figures and trend");
    EXPECT_EQ(Unit<CChartUnit>(L"Trend").GetInstruments(), std::vector<int>{7}) << "remembered by the helper";
    auto& figures = Unit<CFiguresUnit>(L"Figures");
    Click(figures, figures.GetTileRect(2).CenterPoint());
    EXPECT_EQ(Unit<CChartUnit>(L"Trend").GetInstruments(), std::vector<int>{3});
}

TEST_F(BehaviourTest, SettingsTakeEffectWhenTheyAreApplied)
{
    Open(L"One trend");
    auto& form = Unit<CSettingsUnit>(L"Settings");
    auto& chart = Unit<CChartUnit>(L"Trend");
    EXPECT_EQ(chart.GetTimeSpan(), 300.0);

    Click(form, form.GetFieldRect(CSettingsUnit::FIELD_OPERATOR).CenterPoint());
    Display().TypeText(L" Ödegård");
    splitframe::DrainMessages();
    Press(VK_BACK);
    Click(form, form.GetFieldRect(CSettingsUnit::FIELD_TIME_SPAN).CenterPoint());
    Press(VK_LEFT);
    Press(VK_LEFT);
    EXPECT_TRUE(form.IsEdited());
    EXPECT_EQ(chart.GetTimeSpan(), 300.0);

    Click(form, form.GetFieldRect(CSettingsUnit::FIELD_APPLY).CenterPoint());
    EXPECT_FALSE(form.IsEdited());
    EXPECT_EQ(chart.GetTimeSpan(), 120.0);
    EXPECT_EQ(Newest().strText, L"Settings applied");
}

TEST_F(BehaviourTest, TheFormIsLentWithWhatIsHalfTyped)
{
    Open(L"One trend");
    CWnd* pTrendsView = Unit<CSettingsUnit>(L"Settings").GetParent();
    Unit<CSettingsUnit>(L"Settings").SetFocus();
    Press(VK_DOWN);
    Press(VK_DOWN);
    Press(VK_DOWN);
    Press(VK_SPACE); // grid lines off
    Open(L"Setup");

    auto& form = Unit<CSettingsUnit>(L"Settings");
    EXPECT_NE(form.GetParent(), pTrendsView);
    EXPECT_TRUE(form.IsWindowVisible());
    EXPECT_TRUE(form.IsEdited());
    EXPECT_EQ(form.GetCurrentField(), CSettingsUnit::FIELD_GRID);
    form.SetFocus();
    Press(VK_ESCAPE);
    EXPECT_FALSE(form.IsEdited());

    Open(L"Trends");
    EXPECT_EQ(form.GetParent(), pTrendsView) << "the frame in front has it";
}

TEST_F(BehaviourTest, EnterInTheJournalAcknowledgesAlarms)
{
    Open(L"Alarms");
    CJournal& journal = Record().GetJournal();
    ASSERT_GT(journal.CountUnacknowledged(), 0);
    Unit<CLogUnit>(L"Log").SetFocus();
    Press(VK_RETURN);
    EXPECT_EQ(journal.CountUnacknowledged(), 0);
    EXPECT_NE(Newest().strText.Find(L"acknowledged"), -1);
    Press(VK_RETURN);
    EXPECT_EQ(Record().GetJournal().AcknowledgeAll(), 0);
}

TEST_F(BehaviourTest, TheBannersAlarmsOpenTheirFrame)
{
    Open(L"Process");
    auto& banner = Unit<CBannerUnit>(L"Banner");
    Click(banner, banner.GetAlarmRect().CenterPoint());
    EXPECT_EQ(ActiveName(), L"Alarms");
}

TEST_F(BehaviourTest, ASecondOfTheClockPaintsTheClockAlone)
{
    Open(L"Setup");
    auto& clock = Unit<CClockUnit>(L"Clock");
    CRect rcClock;
    clock.GetWindowRect(rcClock);
    const unsigned long nPresents = Display().PresentCount();
    Display().AdvanceClock(1000);
    splitframe::DrainMessages();
    ASSERT_GT(Display().PresentCount(), nPresents);
    CRect rcShown;
    rcShown.IntersectRect(Display().LastPresented().Bounds(), rcClock);
    EXPECT_EQ(rcShown, Display().LastPresented().Bounds());
}

TEST_F(BehaviourTest, MenuCommands)
{
    Open(L"Alarms");
    Open(L"Setup");
    const bool bGrid = m_pApp->GetSettings().bGrid;
    Command(ID_VIEW_GRID);
    EXPECT_NE(m_pApp->GetSettings().bGrid, bGrid);
    Command(ID_VIEW_NEXT_FRAME);
    EXPECT_EQ(ActiveName(), L"Alarms");
    Command(ID_PLANT_PAUSE);
    EXPECT_TRUE(m_pApp->GetFeed().IsPaused());
    Command(ID_PLANT_ACKNOWLEDGE);
    EXPECT_EQ(Record().GetJournal().CountUnacknowledged(), 0);
    Command(ID_FILE_CLOSE_FRAME);
    EXPECT_EQ(ActiveName(), L"Setup");
    Command(ID_FILE_CLOSE_FRAME);
    EXPECT_EQ(ActiveName(), L"");
    Command(ID_FILE_CLOSE_FRAME); // nothing to close
    Command(ID_HELP_ABOUT);
    EXPECT_EQ(Display().MessageBoxes().size(), 1U);
    Command(ID_FILE_EXIT);
    EXPECT_EQ(m_pApp->GetMainFrame(), nullptr);
}

TEST_F(BehaviourTest, TheWheelZoomsAChartAndKeysToo)
{
    Open(L"One trend");
    auto& chart = Unit<CChartUnit>(L"Trend");
    Wheel(chart, 1);
    EXPECT_EQ(chart.GetTimeSpan(), 120.0);
    chart.SetFocus();
    Press(VK_UP);
    EXPECT_EQ(chart.GetTimeSpan(), 60.0);
    Press(VK_UP);
    EXPECT_EQ(chart.GetTimeSpan(), 60.0);
    for (int n = 0; n < 5; ++n)
        Press(VK_DOWN);
    EXPECT_EQ(chart.GetTimeSpan(), 900.0);
    EXPECT_EQ(m_pApp->GetSettings().GetTimeSpan(), 300.0);
}
