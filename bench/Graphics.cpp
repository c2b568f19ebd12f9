// What painting costs: fills, exclusive-or lines, labels, regions of many windows.
#include "platform/graphics/DC.h"

#include <benchmark/benchmark.h>

using splitframe::Region;
using splitframe::Surface;

namespace {

constexpr int kWidth = 1920;
constexpr int kHeight = 1080;

struct Screen
{
    Surface surface{kWidth, kHeight, 1.0, RGB(255, 255, 255)};
    CDC dc;
    Screen()
    {
        splitframe::Canvas canvas;
        canvas.pSurface = &surface;
        canvas.clip = Region(surface.Bounds());
        dc.AttachCanvas(canvas);
    }
};

void FillWhole(benchmark::State& state)
{
    Screen screen;
    for (auto _ : state)
        screen.dc.FillSolidRect(0, 0, kWidth, kHeight, RGB(1, 2, 3));
}
BENCHMARK(FillWhole)->Unit(benchmark::kMicrosecond);

void FillSmall(benchmark::State& state)
{
    Screen screen;
    for (auto _ : state)
        screen.dc.FillSolidRect(100, 100, 60, 16, RGB(1, 2, 3));
}
BENCHMARK(FillSmall);

void DragIndicator(benchmark::State& state)
{
    Screen screen;
    CPen pen(PS_SOLID, 3, RGB(92, 92, 92));
    screen.dc.SelectObject(&pen);
    screen.dc.SetROP2(R2_XORPEN);
    for (auto _ : state) {
        screen.dc.MoveTo(500, 0);
        screen.dc.LineTo(500, kHeight);
    }
}
BENCHMARK(DragIndicator);

CString Label(int i)
{
    CString str;
    str.Format(i % 4 == 0 ? L"\x6570\x636E %d" : L"Label %d", i);
    return str;
}

// 200 labels, a quarter of them in another script; the argument says whether they are in the cache.
void Labels(benchmark::State& state)
{
    Screen screen;
    CString labels[200];
    for (int i = 0; i < 200; ++i)
        labels[i] = Label(i);
    int nRound = 0;
    for (auto _ : state) {
        ++nRound;
        for (int i = 0; i < 200; ++i) {
            // The rectangle's width is part of no key as long as the text fits.
            RECT rc{i % 10 * 150, i / 10 * 20, i % 10 * 150 + 140, i / 10 * 20 + 20};
            if (state.range(0) != 0)
                screen.dc.DrawText(labels[i], &rc, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS);
            else
                screen.dc.DrawText(Label(nRound * 200 + i), &rc, DT_SINGLELINE | DT_VCENTER);
        }
    }
    state.SetItemsProcessed(state.iterations() * 200);
}
BENCHMARK(Labels)->ArgName("cached")->Arg(1)->Arg(0)->Unit(benchmark::kMicrosecond);

void MeasureCached(benchmark::State& state)
{
    Screen screen;
    const CString str(L"A cached caption");
    for (auto _ : state)
        benchmark::DoNotOptimize(screen.dc.GetTextExtent(str));
}
BENCHMARK(MeasureCached);

std::vector<RECT> Children(int nCount)
{
    std::vector<RECT> rects;
    for (int i = 0; i < nCount; ++i)
        rects.push_back({i % 40 * 48 + 1, i / 40 * 43 + i % 3, i % 40 * 48 + 46, i / 40 * 43 + 40});
    return rects;
}

void WholeMinusChildrenOneByOne(benchmark::State& state)
{
    const std::vector<RECT> children = Children(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        Region region(RECT{0, 0, kWidth, kHeight});
        for (const RECT& rc : children)
            region.Subtract(rc);
        benchmark::DoNotOptimize(region.Bounds());
    }
}
BENCHMARK(WholeMinusChildrenOneByOne)->Arg(20)->Arg(1000)->Unit(benchmark::kMicrosecond);

void WholeMinusChildrenAtOnce(benchmark::State& state)
{
    const std::vector<RECT> children = Children(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        Region region(RECT{0, 0, kWidth, kHeight});
        region.Subtract(Region::FromRects(children));
        benchmark::DoNotOptimize(region.Bounds());
    }
}
BENCHMARK(WholeMinusChildrenAtOnce)->Arg(20)->Arg(1000)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
