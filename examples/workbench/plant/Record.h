// The record: what the user-interface thread knows of the plant. It takes new samples out of the feed's
// mailbox, remembers an hour of them, and raises alarms. All windows read from it without locks, because only
// the user-interface thread touches it.
#pragma once

#include "plant/Feed.h"
#include "plant/Journal.h"

#include <array>
#include <cstdint>
#include <deque>

/// What an instrument did during a stretch of time.
struct Statistics
{
    double dMin = 0.0;
    double dMean = 0.0;
    double dMax = 0.0;
    int nSamples = 0;
};

class CPlantRecord
{
public:
    /// @param feed  outlives the record
    explicit CPlantRecord(const CPlantFeed& feed) : m_feed(feed) {}

    /// Takes over what is new. Every window that hears of new data calls this; the first one does the work.
    /// @return how many samples were new
    int Update();

    int GetSampleCount() const { return static_cast<int>(m_arrSample.size()); }
    /// A sample by its position, 0 the oldest; the position must be inside.
    const PlantSample& GetSample(int nSample) const;
    /// The position of the first sample that is not older than dTime.
    int FindSample(double dTime) const;

    /// Time and value of the newest sample; 0 before the first one.
    double GetTime() const;
    double GetValue(int nInstrument) const;
    /// Over the last dSpan seconds.
    Statistics GetStatistics(int nInstrument, double dSpan) const;

    AlarmState GetState(int nInstrument) const;
    int CountAlarms() const;

    CJournal& GetJournal() { return m_journal; }

private:
    void Append(const PlantSample& sample);
    void CheckLimits(int nInstrument, const PlantSample& sample);

    const CPlantFeed& m_feed;
    std::uint64_t m_nNext = 0; // first sample that has not been taken over
    std::deque<PlantSample> m_arrSample;
    std::array<AlarmState, INSTRUMENT_COUNT> m_arrState{};
    CJournal m_journal;
};
