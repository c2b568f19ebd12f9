// The beginning and end of windows.
#pragma once

#include "platform/window/WindowRecord.h"

namespace splitframe {

/// Makes a window for the object, as the structure says: see CWnd::CreateEx. @return null on refusal
HWND CreateWindowFor(CWnd& wnd, const CREATESTRUCT& cs);

/// The object is going: its window, if any, is destroyed without it.
void DestroyWithoutObject(HWND hWnd);

} // namespace splitframe
