// Timers by the display's clock: each has at most one message pending, taken when nothing else waits.
#pragma once

#include "platform/base/Export.h"
#include "platform/base/Types.h"

/// Starts or restarts the window's timer of that number; WM_TIMER comes every nElapse milliseconds, at the
/// earliest after 10. Ends with the window. @return the number, or 0 for a handle without window
SPLITFRAME_PLATFORM_API UINT_PTR SetTimer(HWND hWnd, UINT_PTR nIDEvent, UINT nElapse);
/// FALSE when there is no such timer.
SPLITFRAME_PLATFORM_API BOOL KillTimer(HWND hWnd, UINT_PTR nIDEvent);
/// The display's clock in milliseconds.
SPLITFRAME_PLATFORM_API DWORD GetTickCount();
