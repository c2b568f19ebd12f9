// Showing a drag's indicator in a real window, and what the window library needs for the same rectangles
// alone. Needs a screen: Xvfb -displayfd 5 ...; DISPLAY=:N SPLITFRAME_DISPLAY=sdl
// build/bench/bench/bench-Present
#include "platform/display/Display.h"
#include "platform/graphics/DC.h"
#include "platform/graphics/Pen.h"
#include "platform/window/PaintDC.h"
#include "platform/window/WindowManager.h"
#include "platform/window/Wnd.h"

#include <SDL.h>
#include <benchmark/benchmark.h>

#include <array>

namespace {

constexpr int WIDTH = 1600;
constexpr int HEIGHT = 900;

class CPlainWnd : public CWnd
{
};

CWnd& Window()
{
    static CPlainWnd wnd;
    if (!wnd.m_hWnd) {
        splitframe::CurrentDisplay().Resize(WIDTH, HEIGHT);
        wnd.Create(nullptr, L"bench", WS_OVERLAPPED | WS_VISIBLE, CRect(CW_USEDEFAULT, 0, 0, 0), nullptr, 0);
        splitframe::DrainMessages();
    }
    return wnd;
}

// The line where it was and where it is now: upright, or lying.
std::array<RECT, 2> Indicator(bool bUpright, int n)
{
    const LONG nPlace = 100 + n % 700;
    if (bUpright)
        return {{{nPlace, 0, nPlace + 3, HEIGHT}, {nPlace + 10, 0, nPlace + 13, HEIGHT}}};
    return {{{0, nPlace, WIDTH, nPlace + 3}, {0, nPlace + 10, WIDTH, nPlace + 13}}};
}

void Library(benchmark::State& state)
{
    Window();
    SDL_Window* pWindow = SDL_CreateWindow("alone", 0, 0, WIDTH, HEIGHT, 0);
    SDL_GetWindowSurface(pWindow);
    SDL_UpdateWindowSurface(pWindow);
    int n = 0;
    for (auto _ : state) {
        std::array<SDL_Rect, 2> rects;
        int i = 0;
        for (const RECT& rc : Indicator(state.range(0) != 0, n++))
            rects[static_cast<std::size_t>(i++)] = {rc.left, rc.top, rc.right - rc.left, rc.bottom - rc.top};
        SDL_UpdateWindowSurfaceRects(pWindow, rects.data(), 2);
    }
    SDL_DestroyWindow(pWindow);
}
BENCHMARK(Library)->ArgName("upright")->Arg(1)->Arg(0)->Unit(benchmark::kMicrosecond);

// The same rectangles of a picture in memory: copied and shown.
void Showing(benchmark::State& state)
{
    Window();
    const splitframe::Surface surface(WIDTH, HEIGHT, 1.0, RGB(10, 20, 30));
    int n = 0;
    for (auto _ : state) {
        const std::array<RECT, 2> rects = Indicator(state.range(0) != 0, n++);
        splitframe::CurrentDisplay().Present(surface, splitframe::Region::FromRects(rects));
    }
}
BENCHMARK(Showing)->ArgName("upright")->Arg(1)->Arg(0)->Unit(benchmark::kMicrosecond);

// A step of a drag: the line taken away and drawn elsewhere by exclusive or, the plane combined, copied,
// shown.
void DragStep(benchmark::State& state)
{
    Window();
    const bool bUpright = state.range(0) != 0;
    CPen pen(PS_SOLID, 3, RGB(255, 255, 255));
    int n = 0;
    const auto draw = [&](const RECT& rc) {
        const HDC hScreen = ::GetDC(nullptr);
        CDC& dc = *CDC::FromHandle(hScreen);
        CPen* pOld = dc.SelectObject(&pen);
        dc.SetROP2(R2_XORPEN);
        dc.MoveTo(bUpright ? rc.left + 1 : 0, bUpright ? 0 : rc.top + 1);
        dc.LineTo(bUpright ? rc.left + 1 : rc.right, bUpright ? rc.bottom : rc.top + 1);
        dc.SelectObject(pOld);
        ::ReleaseDC(nullptr, hScreen);
    };
    draw(Indicator(bUpright, 0)[0]);
    for (auto _ : state) {
        draw(Indicator(bUpright, n)[0]);
        draw(Indicator(bUpright, ++n)[0]);
        splitframe::PaintNow();
    }
    draw(Indicator(bUpright, n)[0]); // nothing is left for the next run
    splitframe::PaintNow();
}
BENCHMARK(DragStep)->ArgName("upright")->Arg(1)->Arg(0)->Unit(benchmark::kMicrosecond);

void WholeWindow(benchmark::State& state)
{
    Window();
    splitframe::Surface surface(WIDTH, HEIGHT, 1.0, RGB(10, 20, 30));
    for (auto _ : state)
        splitframe::CurrentDisplay().Present(surface, splitframe::Region(surface.Bounds()));
}
BENCHMARK(WholeWindow)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
