// The workbench's model and arithmetic, without windows: feed, record, journal, parameters, scales, rows.
#include "Parameters.h"
#include "plant/Record.h"
#include "units/ChartScale.h"
#include "units/ScrollList.h"

#include "platform/window/Messages.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(Simulation, RepeatsItselfAndStaysInRange)
{
    CSimulation a, b;
    for (int n = 0; n < 2000; ++n) {
        const PlantSample sample = a.Step(0.5);
        EXPECT_EQ(sample.arrValue, b.Step(0.5).arrValue);
        EXPECT_DOUBLE_EQ(sample.dTime, n * 0.5);
        for (int i = 0; i < INSTRUMENT_COUNT; ++i) {
            EXPECT_GE(sample.arrValue[static_cast<std::size_t>(i)], GetInstrument(i).dLow);
            EXPECT_LE(sample.arrValue[static_cast<std::size_t>(i)], GetInstrument(i).dHigh);
        }
    }
}

TEST(Instrument, AlarmsEndOnlyWellInsideTheirLimit)
{
    Instrument instrument = GetInstrument(0);
    instrument.dLow = 0;
    instrument.dHigh = 100; // a dead band of 2
    instrument.dAlarmLow = 10;
    instrument.dAlarmHigh = 90;
    const struct
    {
        AlarmState before;
        double dValue;
        AlarmState after;
    } cases[] = {
        {AlarmState::Normal, 90.0, AlarmState::Normal}, {AlarmState::Normal, 90.1, AlarmState::High},
        {AlarmState::High, 88.5, AlarmState::High},     {AlarmState::High, 88.0, AlarmState::Normal},
        {AlarmState::Normal, 9.9, AlarmState::Low},     {AlarmState::Low, 11.9, AlarmState::Low},
        {AlarmState::Low, 12.0, AlarmState::Normal},    {AlarmState::High, 5.0, AlarmState::Low},
    };
    for (const auto& c : cases)
        EXPECT_EQ(NextAlarmState(instrument, c.before, c.dValue), c.after) << c.dValue;
}

TEST(Feed, TheRecordTakesEachSampleOverOnce)
{
    CPlantFeed feed;
    CPlantRecord record(feed);
    EXPECT_EQ(record.Update(), 0);
    feed.Start(120, false);
    feed.WaitForBacklog();
    EXPECT_EQ(record.Update(), 120);
    EXPECT_EQ(record.Update(), 0);
    EXPECT_DOUBLE_EQ(record.GetTime(), 59.5);
    EXPECT_EQ(record.FindSample(10.0), 20);
    feed.Stop();
    feed.Stop();
}

TEST(Feed, GoesOnUntilItIsStopped)
{
    CPlantFeed feed;
    feed.Start(10, true);
    feed.WaitForBacklog();
    feed.SetPaused(true);
    EXPECT_TRUE(feed.IsPaused());
    feed.Stop(); // comes back at once, however long the step
    std::uint64_t nNext = 0;
    std::vector<PlantSample> arrSample;
    feed.TakeNew(nNext, arrSample);
    EXPECT_GE(arrSample.size(), 10U);
    feed.Start(5, false);
    feed.Stop();
}

TEST(Record, CountsAndStatistics)
{
    CPlantFeed feed;
    CPlantRecord record(feed);
    feed.Start(601, false);
    feed.WaitForBacklog();
    record.Update();
    const Statistics all = record.GetStatistics(0, 300.0), none = record.GetStatistics(0, -1.0);
    EXPECT_EQ(all.nSamples, 601);
    EXPECT_LE(all.dMin, all.dMean);
    EXPECT_LE(all.dMean, all.dMax);
    EXPECT_EQ(none.nSamples, 0);
    // The acid pump's mishap is in the journal, and over.
    CJournal& journal = record.GetJournal();
    EXPECT_EQ(record.GetState(3), AlarmState::Normal);
    int nRaised = 0, nEnded = 0;
    for (int n = 0; n < journal.GetCount(); ++n) {
        nRaised += journal.GetByAge(n).strText == L"Broth pH below 6.60 pH";
        nEnded += journal.GetByAge(n).strText == L"Broth pH back to normal";
    }
    EXPECT_EQ(nRaised, 1);
    EXPECT_EQ(nEnded, 1);
}

TEST(Journal, KeepsTheNewest)
{
    CJournal journal;
    EXPECT_TRUE(journal.GetByAge(0).strText.IsEmpty());
    for (int n = 0; n < CJournal::CAPACITY + 5; ++n)
        journal.Add(n, n % 2 ? Severity::Alarm : Severity::Info, L"x", L"y");
    EXPECT_EQ(journal.GetCount(), CJournal::CAPACITY);
    EXPECT_EQ(journal.GetByAge(0).dTime, CJournal::CAPACITY + 4);
    EXPECT_EQ(journal.AcknowledgeAll(), CJournal::CAPACITY / 2);
    EXPECT_EQ(journal.AcknowledgeAll(), 0);
}

TEST(Parameters, ReadsKeysAndLists)
{
    const CParameters parameters(L"ID=4; Title = Reactor A ;TAGS=ti-101, nothing,QI-104;FOLLOW=1;EMPTY=");
    EXPECT_EQ(parameters.GetText(L"ID"), L"4");
    EXPECT_EQ(parameters.GetText(L"EMPTY"), L"");
    EXPECT_EQ(parameters.GetText(L"MISSING"), L"");
    EXPECT_TRUE(parameters.IsSet(L"follow"));
    EXPECT_EQ(parameters.GetInstruments(L"TAGS"), (std::vector<int>{0, 3}));
    EXPECT_TRUE(CParameters(nullptr).GetInstruments(L"TAGS").empty());
}

TEST(ChartScale, TicksAreRoundAndInside)
{
    const struct
    {
        double dLow, dHigh;
        int nMost;
        double dStep;
        std::size_t nTicks;
    } cases[] = {
        {0, 100, 5, 20, 6}, {34.1, 39.7, 6, 1, 5}, {6.4, 7.1, 4, 0.2, 4}, {0, 1, 0, 1, 0}, {5, 5, 3, 1, 0}};
    for (const auto& c : cases) {
        const TickList list = ChooseTicks(c.dLow, c.dHigh, c.nMost);
        EXPECT_NEAR(list.dStep, c.dStep, 1e-9);
        EXPECT_EQ(list.arrTick.size(), c.nTicks);
        for (const double dTick : list.arrTick) {
            EXPECT_GE(dTick, c.dLow - 1e-9);
            EXPECT_LE(dTick, c.dHigh + 1e-9);
        }
    }
    EXPECT_EQ(ChooseTimeStep(300, 5), 60.0);
    EXPECT_EQ(ChooseTimeStep(60, 0), 60.0);
}

TEST(ChartScale, AnAxisWithoutExtentStandsAtItsStart)
{
    EXPECT_EQ((Axis{0, 10, 100, 0}.ToPixel(5)), 50);
    EXPECT_EQ((Axis{3, 3, 10, 20}.ToPixel(3)), 10);
    EXPECT_EQ((Axis{0, 1, 0, 100}.ToPixel(1e300)), 200);
}

TEST(ScrollList, KeysAndEnds)
{
    CScrollList list;
    list.SetRows(20, 10, {0, 100, 50, 155}); // five rows and a half
    EXPECT_EQ(list.GetPage(), 5);
    EXPECT_EQ(list.GetEnd(), 6);
    EXPECT_EQ(list.HitTest({10, 154}), 5);
    EXPECT_EQ(list.HitTest({10, 99}), -1);
    EXPECT_EQ(list.RowByKey(VK_NEXT, -1), 5);
    EXPECT_EQ(list.RowByKey('A', 3), -1);
    EXPECT_TRUE(list.MakeVisible(19));
    EXPECT_EQ(list.GetFirst(), 15);
    EXPECT_FALSE(list.MakeVisible(16));
    list.SetRows(0, 10, {});
    EXPECT_EQ(list.GetFirst(), 0);
    EXPECT_EQ(list.RowByKey(VK_END, 0), -1);
    EXPECT_EQ(list.HitTest({0, 0}), -1);
}
