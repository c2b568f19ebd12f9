// What a new rectangle costs: the whole layout (both passes, records, all windows moved, painting not) beside
// the bare computation of the rectangles of the same tree by plain recursion. Trees: balanced, and chains
// whose lines hang on the second or the first side of the line above. The ratio to watch is
// ModifyWindow/SHAPE/N over PlainRectangles/SHAPE/N.
#include "definition/UnitInfo.h"
#include "layout/SplitLine.h"
#include "platform/window/Wnd.h"
#include "unit/BaseUnitWnd.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace {

enum class Shape
{
    Balanced,
    ChainOnSecond,
    ChainOnFirst
};

// A tree of real windows in a visible host window. Every fourth pane is of fixed size.
class Scene
{
public:
    Scene(Shape shape, int nPanes)
    {
        m_host.CreateEx(0, AfxRegisterWndClass(0), L"bench", WS_POPUP | WS_VISIBLE, CRect(0, 0, 1000, 700),
                        nullptr, 0);
        for (int i = 0; i < nPanes; ++i) {
            m_infos.push_back(std::make_unique<CBaseUnitInfo>());
            if (i % 4 == 0)
                m_infos.back()->m_nMinWidth = m_infos.back()->m_nMaxWidth = 3;
            m_units.push_back(std::make_unique<CBaseUnitWnd>());
            m_units.back()->Create(&m_host, m_infos.back().get());
        }
        m_pRoot.reset(shape == Shape::Balanced ? Balanced(0, nPanes, 0) : Chain(shape, nPanes));
        m_pRoot->ModifyWindow(CRect(0, 0, 1000, 700));
    }
    ~Scene() { m_pRoot.reset(); }

    CSplitLine& Root() { return *m_pRoot; }

private:
    CSplitLine* Join(CSplitLine::NodeType nType, CSplitLine* pFirst, CSplitLine* pSecond)
    {
        auto* pLine = new CSplitLine(nType, true, &m_host);
        pLine->m_pFirst = pFirst;
        pLine->m_pSecond = pSecond;
        pFirst->m_pParent = pLine;
        pSecond->m_pParent = pLine;
        return pLine;
    }
    static CSplitLine::NodeType TypeAt(int nDepth)
    {
        return nDepth % 2 ? CSplitLine::NT_HLINE : CSplitLine::NT_VLINE;
    }
    CSplitLine* Balanced(int nFrom, int nTo, int nDepth)
    {
        if (nTo - nFrom == 1)
            return m_units[static_cast<std::size_t>(nFrom)].get();
        const int nMiddle = (nFrom + nTo) / 2;
        return Join(TypeAt(nDepth), Balanced(nFrom, nMiddle, nDepth + 1), Balanced(nMiddle, nTo, nDepth + 1));
    }
    CSplitLine* Chain(Shape shape, int nPanes)
    {
        CSplitLine* pChain = m_units.back().get();
        for (int i = nPanes - 2; i >= 0; --i) {
            CSplitLine* pUnit = m_units[static_cast<std::size_t>(i)].get();
            pChain = shape == Shape::ChainOnSecond ? Join(TypeAt(i), pUnit, pChain)
                                                   : Join(TypeAt(i), pChain, pUnit);
        }
        return pChain;
    }

    CWnd m_host;
    std::vector<std::unique_ptr<CBaseUnitInfo>> m_infos;
    std::vector<std::unique_ptr<CBaseUnitWnd>> m_units;
    std::unique_ptr<CSplitLine> m_pRoot;
};

// --- the bare computation

struct Sizes
{
    int nMin[2], nMax[2], nFixed[2]; // widths, heights
};

// The sizes of each node, sides before their line, in the order in which Divide asks for them.
std::size_t Measure(const CSplitLine& node, std::vector<Sizes>& arrSizes)
{
    const std::size_t nAt = arrSizes.size();
    arrSizes.emplace_back();
    Sizes sizes;
    if (node.m_nType == CSplitLine::NT_UNIT) {
        const CBaseUnitInfo& info = *static_cast<const CBaseUnitWnd&>(node).m_pBaseUnitInfo;
        sizes = {{info.m_nMinWidth, info.m_nMinHeight}, {info.m_nMaxWidth, info.m_nMaxHeight}, {0, 0}};
        for (int axis = 0; axis < 2; ++axis)
            sizes.nFixed[axis] = sizes.nMin[axis] == sizes.nMax[axis] ? sizes.nMin[axis] : 0;
    } else {
        const Sizes first = arrSizes[Measure(*node.m_pFirst, arrSizes)];
        const Sizes second = arrSizes[Measure(*node.m_pSecond, arrSizes)];
        for (int axis = 0; axis < 2; ++axis) {
            const bool bAlong = (node.m_nType == CSplitLine::NT_HLINE) == (axis == 1);
            const auto join = [bAlong](int a, int b) { return bAlong ? a + b : std::max(a, b); };
            sizes.nMin[axis] = join(first.nMin[axis], second.nMin[axis]);
            sizes.nMax[axis] = join(first.nMax[axis], second.nMax[axis]);
            sizes.nFixed[axis] = sizes.nMin[axis] == sizes.nMax[axis]
                                     ? sizes.nMin[axis]
                                     : join(first.nFixed[axis], second.nFixed[axis]);
        }
    }
    arrSizes[nAt] = sizes;
    return nAt;
}

// @return the position in arrSizes after this subtree
std::size_t Divide(const CSplitLine& node, const CRect& rc, const std::vector<Sizes>& arrSizes,
                   std::size_t nAt, std::vector<CRect>& arrRects);

std::size_t DivideLine(const CSplitLine& line, const CRect& rc, const std::vector<Sizes>& arrSizes,
                       std::size_t nAt, std::vector<CRect>& arrRects)
{
    const int axis = line.m_nType == CSplitLine::NT_HLINE ? 1 : 0;
    const int nFrom = axis ? rc.top : rc.left, nTo = axis ? rc.bottom : rc.right;
    const Sizes& both = arrSizes[nAt];
    const Sizes& first = arrSizes[nAt + 1];
    CRect rcFirst = rc, rcSecond = rc;
    int nAtLine = nFrom + first.nFixed[axis];
    if (first.nMin[axis] != first.nMax[axis])
        nAtLine += static_cast<int>((nTo - nFrom - both.nFixed[axis]) * line.m_dLRate);
    (axis ? rcFirst.bottom : rcFirst.right) = nAtLine;
    (axis ? rcSecond.top : rcSecond.left) = nAtLine;
    const std::size_t nSecond = Divide(*line.m_pFirst, rcFirst, arrSizes, nAt + 1, arrRects);
    return Divide(*line.m_pSecond, rcSecond, arrSizes, nSecond, arrRects);
}

std::size_t Divide(const CSplitLine& node, const CRect& rc, const std::vector<Sizes>& arrSizes,
                   std::size_t nAt, std::vector<CRect>& arrRects)
{
    if (node.m_nType != CSplitLine::NT_UNIT)
        return DivideLine(node, rc, arrSizes, nAt, arrRects);
    arrRects.push_back(rc);
    return nAt + 1;
}

CRect NewRect(int nRound)
{
    return {0, 0, 900 + nRound % 97, 600 + nRound % 89};
}

void PlainRectangles(benchmark::State& state, Shape shape)
{
    Scene scene(shape, static_cast<int>(state.range(0)));
    std::vector<Sizes> arrSizes;
    std::vector<CRect> arrRects;
    int nRound = 0;
    for (auto _ : state) {
        arrSizes.clear();
        arrRects.clear();
        Measure(scene.Root(), arrSizes);
        Divide(scene.Root(), NewRect(++nRound), arrSizes, 0, arrRects);
        benchmark::DoNotOptimize(arrRects.data());
    }
    state.counters["per_pane"] =
        benchmark::Counter(static_cast<double>(state.range(0)),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void ModifyWindow(benchmark::State& state, Shape shape)
{
    Scene scene(shape, static_cast<int>(state.range(0)));
    int nRound = 0;
    for (auto _ : state)
        scene.Root().ModifyWindow(NewRect(++nRound));
    state.counters["per_pane"] =
        benchmark::Counter(static_cast<double>(state.range(0)),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void PaneCounts(benchmark::internal::Benchmark* pBench)
{
    pBench->Arg(10)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
}

BENCHMARK_CAPTURE(PlainRectangles, balanced, Shape::Balanced)->Apply(PaneCounts);
BENCHMARK_CAPTURE(ModifyWindow, balanced, Shape::Balanced)->Apply(PaneCounts);
BENCHMARK_CAPTURE(PlainRectangles, chain_second, Shape::ChainOnSecond)->Apply(PaneCounts);
BENCHMARK_CAPTURE(ModifyWindow, chain_second, Shape::ChainOnSecond)->Apply(PaneCounts);
BENCHMARK_CAPTURE(PlainRectangles, chain_first, Shape::ChainOnFirst)->Apply(PaneCounts);
BENCHMARK_CAPTURE(ModifyWindow, chain_first, Shape::ChainOnFirst)->Apply(PaneCounts);

} // namespace

BENCHMARK_MAIN();
