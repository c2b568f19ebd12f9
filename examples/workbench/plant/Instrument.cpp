// The list of instruments and the rules that go with it.
#include "plant/Instrument.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace {

constexpr Instrument INSTRUMENTS[] = {
    {L"TI-101", L"Reactor temperature", L"Reactor", L"°C", 1, 20, 80, 30, 68},
    {L"TI-102", L"Jacket temperature", L"Reactor", L"°C", 1, 10, 90, NO_LIMIT_LOW, 75},
    {L"PI-103", L"Head pressure", L"Reactor", L"bar", 2, 0, 4, 0.4, 2.8},
    {L"QI-104", L"Broth pH", L"Reactor", L"pH", 2, 4, 10, 6.6, 7.4},
    {L"QI-105", L"Dissolved oxygen", L"Reactor", L"%", 1, 0, 100, 25, NO_LIMIT_HIGH},
    {L"SI-106", L"Stirrer speed", L"Reactor", L"rpm", 0, 0, 1200, 120, 1050},
    {L"LI-107", L"Reactor level", L"Reactor", L"%", 1, 0, 100, 20, 90},
    {L"FI-201", L"Feed flow", L"Feed", L"L/h", 1, 0, 60, NO_LIMIT_LOW, 52},
    {L"LI-202", L"Feed tank level", L"Feed", L"%", 1, 0, 100, 15, 95},
    {L"TI-203", L"Feed temperature", L"Feed", L"°C", 1, 0, 40, NO_LIMIT_LOW, 30},
    {L"FI-301", L"Air flow", L"Gas", L"L/min", 0, 0, 200, 40, NO_LIMIT_HIGH},
    {L"QI-302", L"CO₂ in exhaust", L"Gas", L"%", 2, 0, 12, NO_LIMIT_LOW, 8},
    {L"FI-401", L"Cooling water flow", L"Cooling", L"m³/h", 2, 0, 6, 0.8, NO_LIMIT_HIGH},
    {L"TI-402", L"Cooling water in", L"Cooling", L"°C", 1, 0, 40, NO_LIMIT_LOW, 22},
    {L"TI-403", L"Cooling water out", L"Cooling", L"°C", 1, 0, 60, NO_LIMIT_LOW, 45},
    {L"EI-501", L"Power drawn", L"Utilities", L"kW", 1, 0, 40, NO_LIMIT_LOW, 32},
    {L"LI-601", L"Harvest tank level", L"Harvest", L"%", 1, 0, 100, NO_LIMIT_LOW, 92},
    {L"TI-602", L"Harvest temperature", L"Harvest", L"°C", 1, 0, 30, NO_LIMIT_LOW, 8},
};
static_assert(std::size(INSTRUMENTS) == INSTRUMENT_COUNT);

bool g_bFahrenheit = false;

bool IsShownInFahrenheit(const Instrument& instrument)
{
    return g_bFahrenheit && CString(instrument.pszUnit) == L"°C";
}

} // namespace

const Instrument& GetInstrument(int nInstrument)
{
    return INSTRUMENTS[static_cast<std::size_t>(std::clamp(nInstrument, 0, INSTRUMENT_COUNT - 1))];
}

int FindInstrument(const CString& strTag)
{
    for (int n = 0; n < INSTRUMENT_COUNT; ++n) {
        if (strTag.CompareNoCase(GetInstrument(n).pszTag) == 0)
            return n;
    }
    return -1;
}

void ShowFahrenheit(bool bOn)
{
    g_bFahrenheit = bOn;
}

double ShownValue(const Instrument& instrument, double dValue)
{
    return IsShownInFahrenheit(instrument) ? dValue * 1.8 + 32.0 : dValue;
}

const wchar_t* ShownUnit(const Instrument& instrument)
{
    return IsShownInFahrenheit(instrument) ? L"°F" : instrument.pszUnit;
}

CString FormatValue(const Instrument& instrument, double dValue)
{
    static constexpr const wchar_t* FORMATS[] = {L"%.0f", L"%.1f", L"%.2f"};
    CString str;
    str.Format(FORMATS[static_cast<std::size_t>(std::clamp(instrument.nDecimals, 0, 2))],
               ShownValue(instrument, dValue));
    return str;
}

CString FormatValueAndUnit(const Instrument& instrument, double dValue)
{
    return FormatValue(instrument, dValue) + L" " + ShownUnit(instrument);
}

AlarmState NextAlarmState(const Instrument& instrument, AlarmState state, double dValue)
{
    const double dDeadBand = 0.02 * (instrument.dHigh - instrument.dLow);
    if (dValue > instrument.dAlarmHigh)
        return AlarmState::High;
    if (dValue < instrument.dAlarmLow)
        return AlarmState::Low;
    if (state == AlarmState::High && dValue > instrument.dAlarmHigh - dDeadBand)
        return AlarmState::High;
    if (state == AlarmState::Low && dValue < instrument.dAlarmLow + dDeadBand)
        return AlarmState::Low;
    return AlarmState::Normal;
}
