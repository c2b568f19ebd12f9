// Place, size, stacking and visibility of windows.
#pragma once

#include "platform/window/WindowRecord.h"

#include <algorithm>

namespace splitframe {

constexpr int LegalCoordinate(int n)
{
    return n < -WINDOW_COORDINATE_LIMIT ? -WINDOW_COORDINATE_LIMIT
                                        : (n > WINDOW_COORDINATE_LIMIT ? WINDOW_COORDINATE_LIMIT : n);
}

/// Negative sizes count as 0; all is kept within WINDOW_COORDINATE_LIMIT.
constexpr RECT LegalRect(int x, int y, int cx, int cy)
{
    x = LegalCoordinate(x);
    y = LegalCoordinate(y);
    return {x, y, x + (cx < 0 ? 0 : LegalCoordinate(cx)), y + (cy < 0 ? 0 : LegalCoordinate(cy))};
}

/// Sends WM_MOVE and WM_SIZE as asked, with the place and size that hold when each is sent.
/// @return whether the window is still there
bool SendPlace(HWND hWnd, bool bMoved, bool bSized);

/// Hides a window without telling anybody.
void HideQuietly(WindowRecord& record);

/// The display has a new size: the desktop and the top-level windows that covered it follow.
void FollowDisplaySize(const SIZE& size);
/// The display's window became an icon, or is none any more, and with it the application's main window.
void FollowDisplayIcon(bool bIcon);

} // namespace splitframe
