// Surface, damage, presenting.
#include "platform/window/Screen.h"
#include "platform/display/Display.h"
#include "platform/graphics/SystemColors.h"
#include "platform/window/Placement.h"
#include "platform/window/WindowManager.h"
#include "platform/window/WindowTree.h"

#include <algorithm>
#include <utility>

namespace splitframe {

namespace {

bool IsBlack(const Surface& plane, const RECT& rc)
{
    const RECT rcDevice = plane.ToDevice(rc);
    for (int y = rcDevice.top; y < rcDevice.bottom; ++y) {
        const std::uint32_t* pRow = plane.Row(y);
        if (std::any_of(pRow + rcDevice.left, pRow + rcDevice.right, [](std::uint32_t n) { return n != 0; }))
            return false;
    }
    return true;
}

// Combines the plane into the surface for as long as it lives: done twice, it restores every pixel. Costs the
// pixels that are drawn in the plane, whatever the screen's size.
class CombinedPlane
{
public:
    explicit CombinedPlane(Screen& screen) : m_screen(screen)
    {
        if (screen.arrXor.empty())
            return;
        std::erase_if(screen.arrXor, [&](const RECT& rc) { return IsBlack(*screen.pXorPlane, rc); });
        m_drawn = Region::FromRects(screen.arrXor); // once each, where they overlap
        Combine();
    }
    ~CombinedPlane() { Combine(); }
    CombinedPlane(const CombinedPlane&) = delete;
    CombinedPlane& operator=(const CombinedPlane&) = delete;

private:
    void Combine()
    {
        for (const RECT& rc : m_drawn.Rects())
            m_screen.pSurface->Combine(*m_screen.pSurface, *m_screen.pXorPlane, rc);
    }

    Screen& m_screen;
    Region m_drawn;
};

std::shared_ptr<Surface> MakePlane(const Surface& surface)
{
    return std::make_shared<Surface>(surface.Width(), surface.Height(), surface.Scale());
}

// What is drawn on a display that changes its size stays drawn, so that drawing it again still removes it.
void ReplacePlane(Screen& screen, bool bSameDisplay)
{
    const std::shared_ptr<Surface> pBefore = std::exchange(screen.pXorPlane, nullptr);
    if (!bSameDisplay || !pBefore || pBefore->Scale() != screen.pSurface->Scale()) {
        screen.arrXor.clear();
        return;
    }
    screen.pXorPlane = MakePlane(*screen.pSurface);
    screen.pXorPlane->Copy(*pBefore, pBefore->Bounds(), {0, 0});
}

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
    ReplacePlane(TheScreen(), TheScreen().nDisplay == DisplaySerial());
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
    if (!screen.pXorPlane)
        screen.pXorPlane = MakePlane(*screen.pSurface);
    Canvas canvas = CanvasFor({0, 0}, Region(screen.pSurface->Bounds()), false);
    canvas.pXorPlane = screen.pXorPlane.get();
    canvas.pKeepXor = screen.pXorPlane;
    canvas.pDamage = &drawn;
    return canvas;
}

bool IsScreenDrawnOver()
{
    const Screen& screen = TheScreen();
    return std::any_of(screen.arrXor.begin(), screen.arrXor.end(),
                       [&](const RECT& rc) { return !IsBlack(*screen.pXorPlane, rc); });
}

void NoteDrawnOnScreen(const Region& drawn)
{
    Screen& screen = TheScreen();
    if (screen.pXorPlane)
        screen.arrXor.insert(screen.arrXor.end(), drawn.Rects().begin(), drawn.Rects().end());
    screen.damage.Union(drawn);
}

} // namespace splitframe
