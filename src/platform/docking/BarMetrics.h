// What the bars of the main frame have in common: font, distances and colours, so that they look like one
// thing.
#pragma once

#include "platform/base/Types.h"

class CDC;
class CString;

namespace splitframe {

inline constexpr int MENU_BAR_HEIGHT = 28;
inline constexpr int MENU_BAR_INDENT = 4;
inline constexpr int MENU_ITEM_PADDING = 10;

inline constexpr int TAB_STRIP_HEIGHT = 32;
inline constexpr int TAB_STRIP_INDENT = 4;
inline constexpr int TAB_TOP = 4;         // room above the tabs
inline constexpr int TAB_PADDING = 14;    // room on both sides of a tab's text
inline constexpr int TAB_MIN_WIDTH = 72;  // of a tab with a short text, while there is room
inline constexpr int TAB_MAX_WIDTH = 220; // of a tab with a long text
inline constexpr int TAB_ACCENT = 2;      // thickness of the mark on the active tab

/// A colour between two others. @param nPart how much of the first, in hundredths
COLORREF MixColors(COLORREF first, COLORREF second, int nPart);

/// Selects the font of the bars.
void SelectBarFont(CDC& dc);

/// Width of a label in the bars' font, in pixels. @param nFormat DT_NOPREFIX, or 0 for a label with "&"
int MeasureLabel(const CString& strLabel, UINT nFormat);

} // namespace splitframe
