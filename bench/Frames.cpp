// What frames cost, on the headless display: reading a definition of 100 frames with 20 units, opening a
// frame of many units with its first painting, and switching between two of 20 open frames.
#include "FrameHost.h"

#include <benchmark/benchmark.h>

using namespace bench;

namespace {

void LoadDefinition(benchmark::State& state)
{
    const std::wstring strXml = LayoutXml(100, 20);
    for (auto _ : state) {
        FrameHost host;
        host.Load(RUNTIME_CLASS(CBaseUnitWnd), strXml);
    }
    state.counters["characters"] = static_cast<double>(strXml.size());
}

void OpenFrame(benchmark::State& state)
{
    FrameHost host;
    host.Load(RUNTIME_CLASS(CBaseUnitWnd), LayoutXml(1, static_cast<int>(state.range(0))));
    for (auto _ : state) {
        host.Open(0);
        state.PauseTiming();
        host.CloseActive();
        state.ResumeTiming();
    }
}

void SwitchFrames(benchmark::State& state)
{
    FrameHost host;
    host.Load(RUNTIME_CLASS(CBaseUnitWnd), LayoutXml(20, static_cast<int>(state.range(0))));
    for (int i = 0; i < 20; ++i)
        host.Open(i);
    int nNext = 0;
    for (auto _ : state) {
        host.Open(nNext);
        nNext = nNext == 0 ? 10 : 0;
    }
}

} // namespace

BENCHMARK(LoadDefinition)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenFrame)->Arg(20)->Arg(200)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(SwitchFrames)->Arg(20)->Arg(200)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
