// The distances of the main frame's bars, in pixels.
#pragma once

namespace splitframe {

inline constexpr int MENU_ROW_HEIGHT = 28;
inline constexpr int MENU_BAR_INDENT = 4;
inline constexpr int MENU_ITEM_PADDING = 10;

inline constexpr int TAB_STRIP_HEIGHT = 32;
inline constexpr int TAB_STRIP_INDENT = 4;
inline constexpr int TAB_TOP = 4;              // room above the tabs
inline constexpr int TAB_PADDING = 14;         // room on both sides of a tab's text
inline constexpr int TAB_MIN_WIDTH = 80;       // of a tab with a short text
inline constexpr int TAB_READABLE_WIDTH = 112; // longer texts are not cut below that: the strip scrolls
inline constexpr int TAB_MAX_WIDTH = 220;      // of a tab with a long text
inline constexpr int TAB_CLOSE_SIZE = 16;      // of the close mark
inline constexpr int TAB_CLOSE_GAP = 6;        // between the mark and the tab's edge
inline constexpr int TAB_ARROW_WIDTH = 24;
inline constexpr int TAB_ACCENT = 2; // thickness of the mark on the active tab

} // namespace splitframe
