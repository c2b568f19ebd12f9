// The fields of the settings form: what kind each one is, what stands beside it, and where. Shared by the
// form's behaviour and its drawing.
#pragma once

#include "units/SettingsUnit.h"

#include <array>
#include <cstddef>

struct SettingsField
{
    enum class Kind
    {
        Text,
        Choice,
        Check,
        Button
    };
    static constexpr int LABEL_HEIGHT = 18; // above texts and choices
    static constexpr int TEXT_MARGIN = 8;   // inside their boxes

    Kind kind;
    const wchar_t* pszLabel;
    int y; // from the top of the form

    static const SettingsField& Of(CSettingsUnit::Field field);
};

inline const SettingsField& SettingsField::Of(CSettingsUnit::Field field)
{
    static constexpr std::array<SettingsField, CSettingsUnit::FIELD_COUNT> FIELDS = {{
        {Kind::Text, L"Operator on duty", 14},
        {Kind::Text, L"Batch", 68},
        {Kind::Choice, L"Time span of charts", 122},
        {Kind::Check, L"Grid lines", 184},
        {Kind::Check, L"Alarm limits", 210},
        {Kind::Check, L"Shade below single lines", 236},
        {Kind::Button, L"Apply", 274},
        {Kind::Button, L"Revert", 274},
    }};
    return FIELDS[static_cast<std::size_t>(field)];
}
