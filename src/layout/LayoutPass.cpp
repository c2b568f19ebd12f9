// The division of a rectangle and the moving of windows.
//
// Host code may run whenever a unit is activated, moved, sized or shown, and may change records, shares,
// flags, visibility and the tree itself, or destroy any of it. What a line is divided by is what holds at the
// moment it is divided. So sizes are computed for the whole subtree in one run, and again for a line's part
// of it only when host code has run since; the list of nodes is made anew when links have changed. Without
// host code a pass is linear.
#include "layout/internal/LayoutPass.h"

#include "definition/UnitInfo.h"
#include "layout/internal/DividingPos.h"
#include "layout/internal/TreeEpoch.h"
#include "platform/window/WindowManager.h"
#include "unit/BaseUnitWnd.h"

#include <algorithm>

namespace splitframe {

namespace {

// The innermost layout under way; user-interface thread only.
CLayoutPass* g_pInnermost = nullptr;
// Numbers passes, for CSplitLine::m_nLayoutPass.
std::uint64_t g_nPasses = 0;

struct SideRects
{
    CRect rcFirst;
    CRect rcSecond;
};

SideRects Divide(const CSplitLine& line, const CRect& rc, const NodeSizes& first, const NodeSizes& second,
                 const NodeSizes& both)
{
    if (line.m_nType == CSplitLine::NT_HLINE) {
        const int y = DividingPos(rc.top, rc.bottom, line.m_dLRate, first.height, second.height, both.height);
        return {{rc.left, rc.top, rc.right, y}, {rc.left, y, rc.right, rc.bottom}};
    }
    const int x = DividingPos(rc.left, rc.right, line.m_dLRate, first.width, second.width, both.width);
    return {{rc.left, rc.top, x, rc.bottom}, {x, rc.top, rc.right, rc.bottom}};
}

void WriteRecord(CBaseUnitInfo* pInfo, const CRect& rc)
{
    if (!pInfo)
        return;
    pInfo->m_x = rc.left;
    pInfo->m_y = rc.top;
    pInfo->m_cx = rc.Width();
    pInfo->m_cy = rc.Height();
}

} // namespace

CLayoutPass::CLayoutPass(CSplitLine& start) : m_pStart(&start), m_pOuter(g_pInnermost)
{
    BuildTable(start);
    g_pInnermost = this;
}

CLayoutPass::~CLayoutPass()
{
    g_pInnermost = m_pOuter;
}

void CLayoutPass::Forget(const CSplitLine* pNode)
{
    for (CLayoutPass* pPass = g_pInnermost; pPass; pPass = pPass->m_pOuter) {
        if (pPass->m_pStart == pNode)
            pPass->m_pStart = nullptr;
        pPass->m_arrDead.push_back(pNode);
    }
}

bool CLayoutPass::IsTableGood() const
{
    return m_nEpoch == g_nTreeEpoch;
}

void CLayoutPass::BuildTable(CSplitLine& start)
{
    m_table.Build(start);
    m_nEpoch = g_nTreeEpoch;
    ++m_nTable;
}

void CLayoutPass::FoldSizesAt(int nIndex)
{
    FoldSizes(m_table, nIndex, m_arrSizes);
}

// Moves whenever host code may have run.
unsigned long CLayoutPass::HostCode() const
{
    return HostCallCount() + m_nHookCalls;
}

CRect CLayoutPass::GetViewRect()
{
    std::vector<CRect> arrRect;
    FoldViewRects(m_table, arrRect);
    return arrRect[0];
}

void CLayoutPass::LayOut(const CRect& rc)
{
    if (!m_pStart)
        return;
    m_nPass = ++g_nPasses;
    m_arrWaiting.clear();
    m_arrDead.clear();
    if (!IsTableGood() || m_table[0].pNode != m_pStart)
        BuildTable(*m_pStart);
    FoldSizesAt(0);
    Descend(0, rc, HostCode());
    while (!m_arrWaiting.empty()) {
        DropDeadLines();
        const Waiting side = m_arrWaiting.back();
        m_arrWaiting.pop_back();
        if (side.pLine)
            Resume(side);
    }
}

// Lines that died while they waited. At once, before another node is made at the same address.
void CLayoutPass::DropDeadLines()
{
    if (m_arrDead.empty())
        return;
    std::sort(m_arrDead.begin(), m_arrDead.end());
    for (Waiting& side : m_arrWaiting) {
        if (std::binary_search(m_arrDead.begin(), m_arrDead.end(), side.pLine))
            side.pLine = nullptr;
    }
    m_arrDead.clear();
}

void CLayoutPass::Resume(const Waiting& side)
{
    if (IsTableGood() && side.nTable == m_nTable) {
        if (side.nFirst >= 0)
            Descend(side.nFirst, side.rc, side.nSeen);
        return;
    }
    if (CSplitLine* pFirst = CNodeTable::SideOf(*side.pLine, true, *side.pLine)) {
        BuildTable(*pFirst);
        FoldSizesAt(0);
        Descend(0, side.rc, HostCode());
    }
}

// From line to second side, leaving the first sides waiting, down to one unit.
// nSeen: what HostCode() was when the sizes at nIndex were computed.
void CLayoutPass::Descend(int nIndex, CRect rc, unsigned long nSeen)
{
    const NodeSizes none;
    while (nIndex >= 0) {
        CSplitLine& node = *m_table[nIndex].pNode;
        if (node.m_nType == CSplitLine::NT_UNIT)
            return Place(node, rc);
        if (node.m_nLayoutPass == m_nPass)
            return;
        node.m_nLayoutPass = m_nPass;
        if (nSeen != HostCode()) {
            FoldSizesAt(nIndex);
            nSeen = HostCode();
        }
        const int nFirst = m_table.FirstOf(nIndex);
        const int nSecond = m_table[nIndex].nSecond;
        const auto sizes = [&](int n) -> const NodeSizes& {
            return n < 0 ? none : m_arrSizes[static_cast<std::size_t>(n)];
        };
        const SideRects rects = Divide(node, rc, sizes(nFirst), sizes(nSecond), sizes(nIndex));
        m_arrWaiting.push_back({&node, nFirst, m_nTable, nSeen, rects.rcFirst});
        nIndex = nSecond;
        rc = rects.rcSecond;
    }
}

void CLayoutPass::Place(CSplitLine& leaf, const CRect& rc)
{
    CBaseUnitWnd* pUnit = leaf.GetUnitWnd();
    if (!pUnit)
        return;
    WriteRecord(pUnit->m_pBaseUnitInfo, rc);
    if (!pUnit->m_bActivated && !Activate(*pUnit))
        return; // it is gone, or has no place in this layout any more
    const HWND hUnit = pUnit->m_hWnd;
    if (!::IsWindow(hUnit))
        return;
    // Showing a unit shows units that are its children, without a call of theirs.
    if (!(pUnit->GetStyle() & WS_VISIBLE) && ::GetWindow(hUnit, GW_CHILD))
        ++m_nHookCalls;
    ::SetWindowPos(hUnit, HWND_TOP, rc.left, rc.top, rc.Width(), rc.Height(), SWP_SHOWWINDOW);
}

// @return whether the unit lived through it and stands where it stood
bool CLayoutPass::Activate(CBaseUnitWnd& unit)
{
    const CSplitLineLink self(&unit);
    const CSplitLineLink line(unit.m_pParent);
    const bool bHadLine = line.Get();
    ++m_nHookCalls;
    unit.m_bActivated = true;
    unit.ProcessActivate2(true);
    return self && unit.m_pParent == line && (line || !bHadLine);
}

} // namespace splitframe
