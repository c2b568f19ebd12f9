// What one step of dragging a split line costs: the mouse is over the next pixel, the outline is erased and
// drawn there, and what has changed is shown. The line cuts a balanced tree of 1,000 real panes in two. The
// step should cost the outline's pixels and a look at each pane, whatever the window's size. And what it
// costs to find the line under the mouse, which is done while nothing is dragged.
#include "definition/UnitInfo.h"
#include "layout/SplitLine.h"
#include "platform/display/Headless.h"
#include "platform/window/MessageLoop.h"
#include "platform/window/Wnd.h"
#include "unit/BaseUnitWnd.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

namespace {

constexpr int PANES = 1000;

class Scene
{
public:
    Scene(int cx, int cy) : m_rc(0, 0, cx, cy)
    {
        splitframe::SetDisplay(std::make_unique<splitframe::HeadlessDisplay>(cx, cy));
        m_host.CreateEx(0, AfxRegisterWndClass(0), L"bench", WS_POPUP | WS_VISIBLE, m_rc, nullptr, 0);
        m_pRoot.reset(Tree(PANES, 0));
        m_pRoot->ModifyWindow(m_rc);
        splitframe::DrainMessages();
    }
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;
    ~Scene()
    {
        m_pRoot.reset();
        m_units.clear();
        m_host.DestroyWindow();
        splitframe::SetDisplay(nullptr);
    }

    CSplitLine& Root() { return *m_pRoot; }
    /// A point of a drag to and fro around the middle.
    CPoint PointAt(int nStep) const { return {m_rc.right / 2 + nStep % 200 - 100, 10}; }
    /// Shows what has changed. @return its pixels
    static double Show()
    {
        splitframe::DrainMessages();
        double dPixels = 0;
        for (const RECT& rc : splitframe::CurrentHeadless()->LastPresented().Rects())
            dPixels += static_cast<double>(rc.right - rc.left) * (rc.bottom - rc.top);
        return dPixels;
    }

private:
    CSplitLine* Tree(int nPanes, int nDepth)
    {
        if (nPanes == 1) {
            m_infos.push_back(std::make_unique<CBaseUnitInfo>());
            m_units.push_back(std::make_unique<CBaseUnitWnd>());
            m_units.back()->Create(&m_host, m_infos.back().get());
            return m_units.back().get();
        }
        auto* pLine = new CSplitLine(nDepth % 2 ? CSplitLine::NT_HLINE : CSplitLine::NT_VLINE, true, &m_host);
        pLine->m_pFirst = Tree(nPanes / 2, nDepth + 1);
        pLine->m_pSecond = Tree(nPanes - nPanes / 2, nDepth + 1);
        pLine->m_pFirst->m_pParent = pLine;
        pLine->m_pSecond->m_pParent = pLine;
        return pLine;
    }

    CRect m_rc;
    CWnd m_host;
    std::vector<std::unique_ptr<CBaseUnitInfo>> m_infos;
    std::vector<std::unique_ptr<CBaseUnitWnd>> m_units;
    std::unique_ptr<CSplitLine> m_pRoot;
};

void DragStep(benchmark::State& state)
{
    Scene scene(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    int nStep = 0;
    double dPixels = 0;
    for (auto _ : state) {
        scene.Root().DrawSplitLineByPos(scene.PointAt(nStep++));
        dPixels = Scene::Show();
    }
    state.counters["pixels"] = dPixels;
}

void FindLine(benchmark::State& state)
{
    Scene scene(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    int nStep = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(scene.Root().HitTest(scene.PointAt(nStep++)));
}

} // namespace

BENCHMARK(DragStep)->Args({1000, 700})->Args({4000, 3000})->Unit(benchmark::kMicrosecond);
BENCHMARK(FindLine)->Args({1000, 700})->Args({4000, 3000})->Unit(benchmark::kMicrosecond);

BENCHMARK_MAIN();
