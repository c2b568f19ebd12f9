// The screen: the one surface that all windows paint into, what of it has changed since it was last shown,
// and showing it on the display. Drawing on the screen by exclusive or will have a plane beside the surface
// that is combined here.
#pragma once

#include "platform/graphics/Canvas.h"

namespace splitframe {

struct Screen
{
    // Made at the display's size when the first top-level window is; contexts that are open when it is
    // replaced keep the old one.
    std::shared_ptr<Surface> pSurface;
    Region damage;              // changed since it was last shown
    unsigned long nDisplay = 0; // the display that it is shown on
};

Screen& TheScreen();

/// Makes surface and desktop fit the display.
void PrepareScreen();
/// Shows what has changed.
void PresentDamage();
/// What a context of a window draws on: origin at (0, 0) of its client area.
Canvas CanvasFor(const POINT& ptOrigin, Region clip, bool bNoteDamage);

} // namespace splitframe
