// The palette: white work areas on light grey, one blue for what is selected or active.
#include "platform/graphics/SystemColors.h"

#include <array>

namespace {

constexpr COLORREF kUnused = 0xFFFFFFFF;

constexpr std::array<COLORREF, 31> kColors = {
    RGB(225, 227, 230), // scroll bar
    RGB(198, 203, 209), // background
    RGB(214, 228, 245), // active caption
    RGB(232, 234, 237), // inactive caption
    RGB(250, 250, 251), // menu
    RGB(255, 255, 255), // window
    RGB(176, 181, 188), // window frame
    RGB(32, 36, 41),    // menu text
    RGB(32, 36, 41),    // window text
    RGB(27, 46, 72),    // caption text
    RGB(142, 170, 206), // active border
    RGB(205, 209, 214), // inactive border
    RGB(218, 221, 226), // workspace behind the child frames
    RGB(38, 110, 194),  // highlight
    RGB(255, 255, 255), // highlight text
    RGB(240, 241, 243), // face
    RGB(190, 195, 201), // shadow
    RGB(137, 143, 151), // grey text
    RGB(32, 36, 41),    // button text
    RGB(98, 104, 112),  // inactive caption text
    RGB(255, 255, 255), // face highlight
    RGB(128, 134, 142), // dark shadow
    RGB(228, 230, 233), // light
    RGB(32, 36, 41),    // information text
    RGB(255, 251, 226), // information background
    kUnused,
    RGB(20, 92, 178), // hot light
    kUnused,
    kUnused,
    RGB(221, 233, 248), // menu highlight
    RGB(246, 247, 248), // menu bar
};

} // namespace

COLORREF GetSysColor(int nIndex)
{
    if (nIndex < 0 || nIndex >= static_cast<int>(kColors.size()))
        return 0;
    const COLORREF color = kColors[static_cast<std::size_t>(nIndex)];
    return color == kUnused ? 0 : color;
}
