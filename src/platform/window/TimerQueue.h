// The running timers. A due one is taken as a message when nothing else waits, so that each has one message
// pending at most, however late it is.
#pragma once

#include "platform/base/Types.h"

#include <optional>

struct MSG;

namespace splitframe {

/// Takes the timer that has been due longest. @return false when none is due
bool TakeTimer(ULONGLONG nNow, MSG& msg, bool bRemove);
/// When the next timer is due, nothing without timers.
std::optional<ULONGLONG> NextTimer();
void ForgetTimers(HWND hWnd);

} // namespace splitframe
