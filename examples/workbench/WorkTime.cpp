// Run time and time of day.
#include "WorkTime.h"

#include <platform/window/Timer.h>

#include <cmath>
#include <ctime>

namespace {

constexpr double DAY = 86400.0;
constexpr double FIXED_NOW = 9 * 3600.0 + 41 * 60.0 + 30.0;

} // namespace

void CWorkTime::StartNow(double dBefore)
{
    static constexpr const wchar_t* DAYS[] = {L"Sunday",   L"Monday", L"Tuesday", L"Wednesday",
                                              L"Thursday", L"Friday", L"Saturday"};
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    m_strDate.Format(L"%s, %04d-%02d-%02d", DAYS[local.tm_wday], local.tm_year + 1900, local.tm_mon + 1,
                     local.tm_mday);
    Start(local.tm_hour * 3600.0 + local.tm_min * 60.0 + local.tm_sec, dBefore);
}

void CWorkTime::StartFixed(double dBefore)
{
    m_strDate = L"Thursday, 2026-03-12";
    Start(FIXED_NOW, dBefore);
}

void CWorkTime::Start(double dTimeOfDay, double dBefore)
{
    m_dDayTimeOfStart = dTimeOfDay - dBefore;
    m_dBefore = dBefore;
    m_nTickOfStart = ::GetTickCount();
}

double CWorkTime::GetRunTime() const
{
    return m_dBefore + static_cast<double>(::GetTickCount() - m_nTickOfStart) / 1000.0;
}

double CWorkTime::GetTimeOfDay(double dRunTime) const
{
    const double d = std::fmod(m_dDayTimeOfStart + dRunTime, DAY);
    return d < 0.0 ? d + DAY : d;
}

CString FormatTimeOfDay(double dTimeOfDay, bool bSeconds)
{
    const int n = static_cast<int>(dTimeOfDay);
    CString str;
    str.Format(L"%02d:%02d", n / 3600, n / 60 % 60);
    if (bSeconds)
        str.AppendFormat(L":%02d", n % 60);
    return str;
}
