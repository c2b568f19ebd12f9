// Taking samples over, looking them up, raising alarms.
#include "plant/Record.h"

#include <algorithm>
#include <vector>

int CPlantRecord::Update()
{
    std::vector<PlantSample> arrNew;
    m_feed.TakeNew(m_nNext, arrNew);
    for (const PlantSample& sample : arrNew)
        Append(sample);
    return static_cast<int>(arrNew.size());
}

void CPlantRecord::Append(const PlantSample& sample)
{
    if (m_arrSample.empty())
        m_journal.Add(sample.dTime, Severity::Info, L"Plant", L"Batch 0417 started, feeding phase");
    m_arrSample.push_back(sample);
    if (m_arrSample.size() > CPlantFeed::CAPACITY)
        m_arrSample.pop_front();
    for (int n = 0; n < INSTRUMENT_COUNT; ++n)
        CheckLimits(n, sample);
}

void CPlantRecord::CheckLimits(int nInstrument, const PlantSample& sample)
{
    const Instrument& instrument = GetInstrument(nInstrument);
    AlarmState& state = m_arrState[static_cast<std::size_t>(nInstrument)];
    const AlarmState before = state;
    state = NextAlarmState(instrument, before, sample.arrValue[static_cast<std::size_t>(nInstrument)]);
    if (state == before)
        return;
    CString strText;
    if (state == AlarmState::Normal) {
        strText.Format(L"%s back to normal", instrument.pszName);
        m_journal.Add(sample.dTime, Severity::Info, instrument.pszTag, strText);
        return;
    }
    const bool bHigh = state == AlarmState::High;
    strText.Format(L"%s %s %s", instrument.pszName, bHigh ? L"above" : L"below",
                   FormatValueAndUnit(instrument, bHigh ? instrument.dAlarmHigh : instrument.dAlarmLow));
    m_journal.Add(sample.dTime, bHigh ? Severity::Alarm : Severity::Warning, instrument.pszTag, strText);
}

const PlantSample& CPlantRecord::GetSample(int nSample) const
{
    return m_arrSample[static_cast<std::size_t>(nSample)];
}

int CPlantRecord::FindSample(double dTime) const
{
    const auto it = std::lower_bound(m_arrSample.begin(), m_arrSample.end(), dTime,
                                     [](const PlantSample& sample, double d) { return sample.dTime < d; });
    return static_cast<int>(it - m_arrSample.begin());
}

double CPlantRecord::GetTime() const
{
    return m_arrSample.empty() ? 0.0 : m_arrSample.back().dTime;
}

double CPlantRecord::GetValue(int nInstrument) const
{
    return m_arrSample.empty() ? 0.0 : m_arrSample.back().arrValue[static_cast<std::size_t>(nInstrument)];
}

Statistics CPlantRecord::GetStatistics(int nInstrument, double dSpan) const
{
    Statistics result;
    double dSum = 0.0;
    for (int n = FindSample(GetTime() - dSpan); n < GetSampleCount(); ++n) {
        const double dValue = GetSample(n).arrValue[static_cast<std::size_t>(nInstrument)];
        result.dMin = result.nSamples == 0 ? dValue : std::min(result.dMin, dValue);
        result.dMax = result.nSamples == 0 ? dValue : std::max(result.dMax, dValue);
        dSum += dValue;
        ++result.nSamples;
    }
    if (result.nSamples > 0)
        result.dMean = dSum / result.nSamples;
    return result;
}

AlarmState CPlantRecord::GetState(int nInstrument) const
{
    return m_arrState[static_cast<std::size_t>(nInstrument)];
}

int CPlantRecord::CountAlarms() const
{
    return static_cast<int>(std::count_if(m_arrState.begin(), m_arrState.end(),
                                          [](AlarmState state) { return state != AlarmState::Normal; }));
}
