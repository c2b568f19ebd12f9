// The screen: the one surface that all windows paint into, what of it has changed since it was last shown,
// and showing it on the display. What is drawn on the screen by exclusive or lies in a plane beside the
// surface and is combined with it only while it is shown: windows that repaint beneath it never mix with it.
#pragma once

#include "platform/graphics/Canvas.h"

namespace splitframe {

struct WindowRecord;

struct Screen
{
    // Made at the display's size when the first top-level window is; contexts that are open when it is
    // replaced keep the old one.
    std::shared_ptr<Surface> pSurface;
    XorPlane xorPlane;          // what is drawn over all windows
    Region damage;              // changed since it was last shown
    unsigned long nDisplay = 0; // the display that it is shown on
};

Screen& TheScreen();

/// Makes surface and desktop fit the display.
void PrepareScreen();
/// Shows what has changed.
void PresentDamage();
/// Shows all of it with the next change: the display has lost what it showed.
void PresentEverything();
/// The display's title is the text of the application's main window; that of other windows changes nothing.
void ShowTitle(const WindowRecord& record);
/// What a context of a window draws on: origin at (0, 0) of its client area.
Canvas CanvasFor(const POINT& ptOrigin, Region clip, bool bNoteDamage);
/// What a context of the whole screen draws on, over all windows.
/// @param drawn  gets what it draws; outlives the canvas and goes to NoteDrawnOnScreen at the end
Canvas CanvasForScreen(Region& drawn);
void NoteDrawnOnScreen(const Region& drawn);

} // namespace splitframe
