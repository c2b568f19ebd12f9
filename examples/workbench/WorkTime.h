// The time of day in the workbench: when the run began, and how the display's clock counts on from there.
// Pictures and tests begin at a fixed moment and a clock that stands still, so that they can be repeated.
#pragma once

#include <platform/base/String.h>
#include <platform/base/Types.h>

class CWorkTime
{
public:
    /// The run began dBefore seconds ago, by the machine's clock.
    void StartNow(double dBefore);
    /// The run began at a fixed moment, and dBefore seconds of it are over.
    void StartFixed(double dBefore);

    /// Seconds of the run that are over.
    double GetRunTime() const;
    /// The time of day at a moment of the run, in seconds since midnight.
    double GetTimeOfDay(double dRunTime) const;

    const CString& GetDate() const { return m_strDate; }

private:
    void Start(double dTimeOfDay, double dBefore);

    double m_dDayTimeOfStart = 0.0;
    double m_dBefore = 0.0;
    DWORD m_nTickOfStart = 0;
    CString m_strDate;
};

/// "09:41:30"; without seconds "09:41".
CString FormatTimeOfDay(double dTimeOfDay, bool bSeconds);
