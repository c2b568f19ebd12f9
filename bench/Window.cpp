// What placing and painting many panes costs.
#include "platform/display/Headless.h"
#include "platform/window/PaintDC.h"
#include "platform/window/Wnd.h"

#include <benchmark/benchmark.h>
#include <memory>
#include <vector>

namespace {

class CPane : public CWnd
{
protected:
    void OnPaint()
    {
        CPaintDC dc(this);
        dc.FillSolidRect(&dc.m_ps.rcPaint, RGB(200, 210, 220));
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPane, CWnd)
ON_WM_PAINT()
END_MESSAGE_MAP()

/// A main window of 1,000 panes in a grid.
struct Panes
{
    explicit Panes(int nCount)
    {
        splitframe::SetDisplay(std::make_unique<splitframe::HeadlessDisplay>(1280, 800));
        wndMain.Create(nullptr, L"", WS_VISIBLE | WS_CLIPCHILDREN, CRect(0, 0, 1280, 800), nullptr, 0);
        for (int n = 0; n < nCount; ++n) {
            panes.push_back(std::make_unique<CPane>());
            panes.back()->Create(nullptr, L"", WS_CHILD | WS_CLIPSIBLINGS, Place(n, 0), &wndMain, 0);
        }
    }
    static CRect Place(int n, int nShift)
    {
        const int x = n % 40 * 32;
        const int y = n / 40 * 32;
        return {x, y, x + 32 - nShift, y + 32 - nShift};
    }
    void Layout(int nShift)
    {
        for (std::size_t n = 0; n < panes.size(); ++n) {
            const CRect rc = Place(static_cast<int>(n), nShift);
            ::SetWindowPos(*panes[n], HWND_TOP, rc.left, rc.top, rc.Width(), rc.Height(), SWP_SHOWWINDOW);
        }
    }
    CWnd wndMain;
    std::vector<std::unique_ptr<CPane>> panes;
};

void PlacePanesAnew(benchmark::State& state)
{
    Panes panes(1000);
    int nShift = 0;
    for (auto _ : state)
        panes.Layout(nShift ^= 1);
    state.SetItemsProcessed(state.iterations() * 1000);
}
BENCHMARK(PlacePanesAnew);

void PlacePanesUnchanged(benchmark::State& state)
{
    Panes panes(1000);
    panes.Layout(0);
    for (auto _ : state)
        panes.Layout(0);
    state.SetItemsProcessed(state.iterations() * 1000);
}
BENCHMARK(PlacePanesUnchanged);

void MarkPanes(benchmark::State& state)
{
    Panes panes(1000);
    panes.Layout(0);
    for (auto _ : state) {
        for (const auto& pPane : panes.panes)
            pPane->Invalidate();
    }
    state.SetItemsProcessed(state.iterations() * 1000);
}
BENCHMARK(MarkPanes);

void PaintAllPanes(benchmark::State& state)
{
    Panes panes(1000);
    panes.Layout(0);
    splitframe::PaintNow();
    for (auto _ : state) {
        for (const auto& pPane : panes.panes)
            pPane->Invalidate();
        splitframe::PaintNow();
    }
    state.SetItemsProcessed(state.iterations() * 1000);
}
BENCHMARK(PaintAllPanes)->Unit(benchmark::kMicrosecond);

void PaintOneOfManyPanes(benchmark::State& state)
{
    Panes panes(1000);
    panes.Layout(0);
    splitframe::PaintNow();
    for (auto _ : state) {
        panes.panes[500]->Invalidate();
        splitframe::PaintNow();
    }
}
BENCHMARK(PaintOneOfManyPanes)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
