// The numbers by which the workbench's parts talk to each other, in the four directions there are: the user
// to the main frame, a unit to its helper, the helper to units, and the settings to everybody.
#pragma once

#include <platform/base/Types.h>

// Menu commands. 500 to 600 belong to the frames menu.
inline constexpr UINT ID_FILE_CLOSE_FRAME = 1001;
inline constexpr UINT ID_FILE_EXIT = 1002;
inline constexpr UINT ID_VIEW_NEXT_FRAME = 1011;
inline constexpr UINT ID_VIEW_PREVIOUS_FRAME = 1012;
inline constexpr UINT ID_VIEW_GRID = 1013;
inline constexpr UINT ID_VIEW_LIMITS = 1014;
inline constexpr UINT ID_VIEW_LOCK = 1015;
inline constexpr const wchar_t* TEXT_LOCK = L"&Lock layout\tCtrl+L"; // in menu bar and context menus
inline constexpr UINT ID_VIEW_FAHRENHEIT = 1016;
inline constexpr UINT ID_VIEW_SETTINGS = 1017;
inline constexpr UINT ID_PLANT_PAUSE = 1021;
inline constexpr UINT ID_PLANT_ACKNOWLEDGE = 1022;
inline constexpr UINT ID_HELP_KEYS = 1030;
inline constexpr UINT ID_HELP_ABOUT = 1031;
// Those that the pane with the keyboard carries out; disabled where it can't.
inline constexpr UINT ID_PANE_NEIGHBOUR = 1041;
inline constexpr UINT ID_PANE_SWAP = 1042;
inline constexpr UINT ID_PANE_WATCH = 1043;
// What two of them say where there is nothing to do for them; a pane knows better.
inline constexpr const wchar_t* TEXT_NEIGHBOUR = L"&Hide neighbour\tF9";
inline constexpr const wchar_t* TEXT_SWAP = L"Show as &table\tF11";
inline constexpr UINT ID_SETTINGS_APPLY = 1051;
inline constexpr UINT ID_SETTINGS_REVERT = 1052;
inline constexpr UINT ID_CHART_SPAN_FIRST = 1061; // one for each of TIME_SPANS
inline constexpr UINT ID_CHART_SPAN_LAST = 1069;

// Notifications: CBaseUnitWnd::Notify, received by the helper's OnBaseUnitNotify.
inline constexpr UINT NOTIFY_INSTRUMENT_SELECTED = 1; // parameter: position of the instrument
inline constexpr UINT NOTIFY_SETTINGS_APPLIED = 2;
inline constexpr UINT NOTIFY_NEIGHBOUR_TOGGLED = 3; // parameter: the direction, a DIRECT_VALUE
inline constexpr UINT NOTIFY_INSTRUMENT_WATCHED =
    4; // parameter: position of the instrument; again: no longer

// Messages to the helper: CBaseUnitWnd::ProcessHelperMessage. 1177 to 1180 belong to the library.
inline constexpr DWORD HELPER_MSG_ACKNOWLEDGE = 3001; // marks all alarms as seen; answers how many
inline constexpr DWORD HELPER_MSG_NEXT_PANE = 3002;  // the focus to the next pane in sight; parameter 1: back
inline constexpr DWORD HELPER_MSG_IS_WATCHED = 3003; // parameter: position of the instrument; answers 0 or 1

// Commands to units: CBaseUnitWnd::OnProcessCommand. 10, 16 and 18 belong to the library.
inline constexpr UINT UNIT_CMD_SHOW_INSTRUMENT = 2001; // parameter: position of the instrument
inline constexpr UINT UNIT_CMD_SETTINGS_CHANGED = 2002;
inline constexpr UINT UNIT_CMD_JOURNAL_CHANGED = 2003;
inline constexpr UINT UNIT_CMD_WATCH = 2004; // parameter: position of the instrument; -1: none
