// Keyboard focus, mouse capture and activation, and who gets them when a window goes.
#pragma once

#include "platform/base/Types.h"

namespace splitframe {

/// A window is about to be destroyed, or hidden: what it or a window in it holds moves on while all of them
/// live.
void LeaveCapture(HWND hWnd);
void LeaveInput(HWND hWnd);
void LeaveFocus(HWND hWnd);
void LeaveActivation(HWND hWnd);
/// A window is gone: nothing may name it any more.
void ForgetInput(HWND hWnd);

/// The display's window was activated or deactivated by the user.
void ActivateByDisplay(bool bActive);

/// The window that stands for the application: the active top-level window, else the topmost one that is not
/// a popup.
HWND MainTopLevel();

} // namespace splitframe
