// Window messages that a unit accepts from outside, and the commands that every unit acts on itself.
#pragma once

#include "platform/base/Types.h"

/// To a unit: data, both parameters as its class defines them. May be posted from any thread.
inline constexpr UINT UNIT_MSG_ENGINE_DATA = 0x052D;
/// To a unit: fill a menu. First parameter a CMenu*, second a terminated wide text.
inline constexpr UINT UNIT_MSG_UPDATE_MENU = 0x0487;

namespace splitframe {

/// The application was activated (second parameter 1) or deactivated (0): a visible unit takes the focus.
inline constexpr UINT UNIT_CMD_APP_ACTIVATE = 10;
/// Take the focus.
inline constexpr UINT UNIT_CMD_SET_FOCUS = 16;
/// Run the activation hooks again, if they have run before.
inline constexpr UINT UNIT_CMD_REACTIVATE = 18;

} // namespace splitframe
