// What the user can set: how charts look, and who is on duty. One object for the whole workbench; the
// settings unit edits a copy and hands it over when the user applies it.
#pragma once

#include <platform/base/String.h>

#include <array>
#include <cstddef>

struct TimeSpan
{
    const wchar_t* pszName;
    double dSeconds;
};

inline constexpr std::array<TimeSpan, 4> TIME_SPANS = {
    {{L"1 minute", 60.0}, {L"2 minutes", 120.0}, {L"5 minutes", 300.0}, {L"15 minutes", 900.0}}};

struct Settings
{
    CString strOperator = L"M. Larsen";
    CString strBatch = L"0417";
    int nTimeSpan = 2; // position in TIME_SPANS
    bool bGrid = true;
    bool bLimits = true;
    bool bFill = true;
    bool bFahrenheit = false;

    double GetTimeSpan() const { return TIME_SPANS[static_cast<std::size_t>(nTimeSpan)].dSeconds; }
    bool operator==(const Settings&) const = default;
};
