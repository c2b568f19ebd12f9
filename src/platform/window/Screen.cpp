// Surface, damage, presenting.
#include "platform/window/Screen.h"
#include "platform/display/Display.h"
#include "platform/graphics/SystemColors.h"
#include "platform/window/Placement.h"
#include "platform/window/WindowTree.h"

#include <utility>

namespace splitframe {

Screen& TheScreen()
{
    static Screen screen; // one display, one screen
    return screen;
}

void PrepareScreen()
{
    Desktop().dwStyle = WS_VISIBLE | WS_CLIPCHILDREN;
    const Display& display = CurrentDisplay();
    const SIZE size = display.Size();
    const Surface* pSurface = TheScreen().pSurface.get();
    if (pSurface && TheScreen().nDisplay == DisplaySerial() && pSurface->Width() == size.cx &&
        pSurface->Height() == size.cy && pSurface->Scale() == display.Scale())
        return;
    TheScreen().pSurface =
        std::make_shared<Surface>(size.cx, size.cy, display.Scale(), GetSysColor(COLOR_3DFACE));
    TheScreen().nDisplay = DisplaySerial();
    TheScreen().damage = Region(RECT{0, 0, size.cx, size.cy});
    FollowDisplaySize(size);
}

void PresentDamage()
{
    Screen& screen = TheScreen();
    if (!screen.pSurface || screen.damage.IsEmpty())
        return;
    Region damage = std::exchange(screen.damage, Region());
    damage.Intersect(screen.pSurface->Bounds());
    if (!damage.IsEmpty())
        CurrentDisplay().Present(*screen.pSurface, damage);
}

Canvas CanvasFor(const POINT& ptOrigin, Region clip, bool bNoteDamage)
{
    Screen& screen = TheScreen();
    if (!screen.pSurface)
        return {};
    clip.Intersect(screen.pSurface->Bounds());
    Canvas canvas;
    canvas.pSurface = screen.pSurface.get();
    canvas.pKeep = screen.pSurface;
    canvas.ptOrigin = ptOrigin;
    canvas.clip = std::move(clip);
    canvas.pDamage = bNoteDamage ? &screen.damage : nullptr;
    return canvas;
}

} // namespace splitframe
