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
inline constexpr UINT ID_PLANT_PAUSE = 1021;
inline constexpr UINT ID_PLANT_ACKNOWLEDGE = 1022;
inline constexpr UINT ID_HELP_ABOUT = 1031;

// Notifications: CBaseUnitWnd::Notify, received by the helper's OnBaseUnitNotify.
inline constexpr UINT NOTIFY_INSTRUMENT_SELECTED = 1; // parameter: position of the instrument
inline constexpr UINT NOTIFY_SETTINGS_APPLIED = 2;

// Messages to the helper: CBaseUnitWnd::ProcessHelperMessage. 1177 to 1180 belong to the library.
inline constexpr DWORD HELPER_MSG_ACKNOWLEDGE = 3001; // marks all alarms as seen; answers how many

// Commands to units: CBaseUnitWnd::OnProcessCommand. 10, 16 and 18 belong to the library.
inline constexpr UINT UNIT_CMD_SHOW_INSTRUMENT = 2001; // parameter: position of the instrument
inline constexpr UINT UNIT_CMD_SETTINGS_CHANGED = 2002;
inline constexpr UINT UNIT_CMD_JOURNAL_CHANGED = 2003;
