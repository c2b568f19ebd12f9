// The colours of the parts of a window: one calm light palette. Knows colours only.
#pragma once

#include "platform/base/Export.h"
#include "platform/base/Types.h"

inline constexpr int COLOR_SCROLLBAR = 0;
inline constexpr int COLOR_BACKGROUND = 1;
inline constexpr int COLOR_ACTIVECAPTION = 2;
inline constexpr int COLOR_INACTIVECAPTION = 3;
inline constexpr int COLOR_MENU = 4;
inline constexpr int COLOR_WINDOW = 5;
inline constexpr int COLOR_WINDOWFRAME = 6;
inline constexpr int COLOR_MENUTEXT = 7;
inline constexpr int COLOR_WINDOWTEXT = 8;
inline constexpr int COLOR_CAPTIONTEXT = 9;
inline constexpr int COLOR_ACTIVEBORDER = 10;
inline constexpr int COLOR_INACTIVEBORDER = 11;
inline constexpr int COLOR_APPWORKSPACE = 12;
inline constexpr int COLOR_HIGHLIGHT = 13;
inline constexpr int COLOR_HIGHLIGHTTEXT = 14;
inline constexpr int COLOR_3DFACE = 15;
inline constexpr int COLOR_BTNFACE = COLOR_3DFACE;
inline constexpr int COLOR_3DSHADOW = 16;
inline constexpr int COLOR_BTNSHADOW = COLOR_3DSHADOW;
inline constexpr int COLOR_GRAYTEXT = 17;
inline constexpr int COLOR_BTNTEXT = 18;
inline constexpr int COLOR_INACTIVECAPTIONTEXT = 19;
inline constexpr int COLOR_3DHIGHLIGHT = 20;
inline constexpr int COLOR_BTNHIGHLIGHT = COLOR_3DHIGHLIGHT;
inline constexpr int COLOR_3DDKSHADOW = 21;
inline constexpr int COLOR_3DLIGHT = 22;
inline constexpr int COLOR_INFOTEXT = 23;
inline constexpr int COLOR_INFOBK = 24;
inline constexpr int COLOR_HOTLIGHT = 26;
inline constexpr int COLOR_MENUHILIGHT = 29;
inline constexpr int COLOR_MENUBAR = 30;

/// The colour of a part; 0 (black) for a number that names none.
SPLITFRAME_PLATFORM_API COLORREF GetSysColor(int nIndex);

/// A brush of that colour that lives as long as the library (deleting it does nothing); null for a number
/// that names none.
SPLITFRAME_PLATFORM_API HBRUSH GetSysColorBrush(int nIndex);
