// Real and simulated input alike, from what the display hands in to messages for windows: who gets it, double
// clicks, keys that are held, the cursor.
#pragma once

#include "platform/window/Messages.h"

namespace splitframe {

/// Takes the next input for a window. Input for nobody is used up on the way; so is what the manager itself
/// answers (activation, a new size). @param bRemove  false leaves the message for the next call
bool TakeInput(MSG& msg, bool bRemove);

/// While a message of the Alt key going up is handled: whether it was pressed and released with nothing
/// between, no other key, button or loss of the application's focus.
bool AltWasPressedAlone();

/// Keys that type a letter or a digit: their codes are the upper-case letters and the digits.
constexpr bool IsLetterOrDigitKey(WPARAM nKey)
{
    return (nKey >= '0' && nKey <= '9') || (nKey >= 'A' && nKey <= 'Z');
}

/// Where the pointer is, for messages that are not input.
POINT PointerPosition();

} // namespace splitframe
