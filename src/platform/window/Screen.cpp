// Surface, damage, presenting.
#include "platform/window/Screen.h"
#include "platform/display/Display.h"
#include "platform/graphics/SystemColors.h"
#include "platform/window/Placement.h"
#include "platform/window/WindowManager.h"
#include "platform/window/WindowTree.h"

#include <utility>

namespace splitframe {

namespace {

// The plane is combined into the surface for as long as this lives. All of it: a display may show more than
// has changed. Costs the pixels that are drawn, whatever the screen's size.
class CombinedPlane
{
public:
    explicit CombinedPlane(Screen& screen) : m_screen(screen)
    {
        m_screen.xorPlane.Combine(*m_screen.pSurface);
    }
    ~CombinedPlane() { m_screen.xorPlane.Combine(*m_screen.pSurface); } // done twice it restores every pixel
    CombinedPlane(const CombinedPlane&) = delete;
    CombinedPlane& operator=(const CombinedPlane&) = delete;

private:
    Screen& m_screen;
};

} // namespace

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
    // What is drawn on a display that changes its size stays drawn, so that drawing it again still removes
    // it.
    const bool bSameDisplay = TheScreen().nDisplay == DisplaySerial();
    TheScreen().xorPlane.CutTo(bSameDisplay ? TheScreen().pSurface->Bounds() : RECT{});
    TheScreen().nDisplay = DisplaySerial();
    TheScreen().damage = Region(RECT{0, 0, size.cx, size.cy});
    FollowDisplaySize(size);
}

void PresentEverything()
{
    if (TheScreen().pSurface)
        TheScreen().damage = Region(TheScreen().pSurface->Bounds());
}

void PresentDamage()
{
    Screen& screen = TheScreen();
    if (!screen.pSurface || screen.damage.IsEmpty())
        return;
    Region damage = std::exchange(screen.damage, Region());
    damage.Intersect(screen.pSurface->Bounds());
    if (damage.IsEmpty())
        return;
    const CombinedPlane combined(screen);
    CurrentDisplay().Present(*screen.pSurface, damage);
}

void ShowTitle(const WindowRecord& record)
{
    if (record.pParent == &Desktop() && (record.dwStyle & WS_POPUP) == 0)
        CurrentDisplay().SetTitle(record.strText);
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

Canvas CanvasForScreen(Region& drawn)
{
    Screen& screen = TheScreen();
    if (!screen.pSurface)
        return {};
    Canvas canvas = CanvasFor({0, 0}, Region(screen.pSurface->Bounds()), false);
    canvas.pXorPlane = &screen.xorPlane;
    canvas.pDamage = &drawn;
    return canvas;
}

bool IsScreenDrawnOver()
{
    return !TheScreen().xorPlane.IsEmpty();
}

void NoteDrawnOnScreen(const Region& drawn)
{
    TheScreen().damage.Union(drawn);
}

} // namespace splitframe
