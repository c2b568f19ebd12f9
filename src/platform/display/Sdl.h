// The display in a window on the screen, made with the SDL library.
#pragma once

#include "platform/display/Display.h"

namespace splitframe {

/// Opens a window, which appears with the first picture. One at a time.
/// @param dScale     device pixels per logical pixel
/// @param strReason  set to why there is no window
/// @return null when there is no screen to show it on
std::unique_ptr<Display> OpenSdlDisplay(double dScale, CString& strReason);

} // namespace splitframe
