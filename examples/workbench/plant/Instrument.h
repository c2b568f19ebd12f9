// The instruments of the plant: what each one is called, what it measures, and where its alarm limits lie.
// Plain data; knows nothing of windows or threads.
#pragma once

#include <platform/base/String.h>

#include <limits>

/// One measuring point.
struct Instrument
{
    const wchar_t* pszTag;  // short name on the drawings, e.g. "TI-101"
    const wchar_t* pszName; // what it measures
    const wchar_t* pszArea; // part of the plant
    const wchar_t* pszUnit; // unit of measure
    int nDecimals;          // digits shown after the point
    double dLow;            // measuring range
    double dHigh;
    double dAlarmLow; // alarm limits; infinite: none
    double dAlarmHigh;
};

enum class AlarmState
{
    Normal,
    Low,
    High
};

inline constexpr int INSTRUMENT_COUNT = 18;
inline constexpr double NO_LIMIT_LOW = -std::numeric_limits<double>::infinity();
inline constexpr double NO_LIMIT_HIGH = std::numeric_limits<double>::infinity();

/// The instrument at a position; a position outside the list is moved to its nearest end.
const Instrument& GetInstrument(int nInstrument);

/// The position of the instrument with that tag, case ignored, or -1.
int FindInstrument(const CString& strTag);

/// Temperatures are measured in degrees Celsius; the user may read them in Fahrenheit. One choice for the
/// whole process, because every value on the screen follows it.
void ShowFahrenheit(bool bOn);

/// A measured value, and the unit of measure, as they are shown.
double ShownValue(const Instrument& instrument, double dValue);
const wchar_t* ShownUnit(const Instrument& instrument);

/// A measured value as it is shown, with the instrument's number of digits, without or with its unit.
CString FormatValue(const Instrument& instrument, double dValue);
CString FormatValueAndUnit(const Instrument& instrument, double dValue);

/// Whether a value raises or keeps an alarm. A value must come back inside a limit by 2 % of the range before
/// its alarm ends, so that noise at the limit does not fill the journal.
AlarmState NextAlarmState(const Instrument& instrument, AlarmState state, double dValue);
