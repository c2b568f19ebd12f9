// Lists a subtree, and computes sizes and rectangles for all its nodes in one run each.
// Reads units' records and their windows' visibility and rectangles; changes nothing and runs no host code.
#include "layout/internal/NodeTable.h"

#include "definition/UnitInfo.h"
#include "platform/window/WindowManager.h"
#include "unit/BaseUnitWnd.h"

namespace splitframe {

CSplitLine* CNodeTable::SideOf(const CSplitLine& line, bool bFirst, const CSplitLine& start)
{
    CSplitLine* pSide = bFirst ? line.m_pFirst : line.m_pSecond;
    if (!pSide || line.m_nType == CSplitLine::NT_UNIT || pSide == &start)
        return nullptr;
    if (!bFirst && pSide == line.m_pFirst)
        return nullptr;
    if (start.m_bOwnsSides)
        return pSide->m_pParent == &line ? pSide : nullptr;
    // The sides of a copy have the original for their parent; nothing below may lead back to them.
    if (&line == &start)
        return pSide->m_pParent && pSide->m_pParent->Holds(pSide) ? pSide : nullptr;
    return line.Holds(pSide) && pSide != start.m_pFirst && pSide != start.m_pSecond ? pSide : nullptr;
}

void CNodeTable::Build(CSplitLine& start)
{
    struct Side
    {
        CSplitLine* pNode;
        int nLine; // the line whose second side this is
    };
    m_arrEntry.clear();
    std::vector<Side> arrWaiting;
    for (Side next{&start, -1};;) {
        const int nIndex = GetCount();
        if (next.nLine >= 0)
            m_arrEntry[static_cast<std::size_t>(next.nLine)].nSecond = nIndex;
        m_arrEntry.push_back({next.pNode, -1, nIndex + 1});
        if (CSplitLine* pSecond = SideOf(*next.pNode, false, start))
            arrWaiting.push_back({pSecond, nIndex});
        if (CSplitLine* pFirst = SideOf(*next.pNode, true, start)) {
            next = {pFirst, -1};
        } else if (!arrWaiting.empty()) {
            next = arrWaiting.back();
            arrWaiting.pop_back();
        } else {
            break;
        }
    }
    for (int i = GetCount() - 1; i >= 0; --i) {
        Entry& entry = m_arrEntry[static_cast<std::size_t>(i)];
        const int nLast = entry.nSecond >= 0 ? entry.nSecond : i + 1;
        const bool bHasSide = entry.nSecond >= 0 || SideOf(*entry.pNode, true, start);
        entry.nEnd = bHasSide ? (*this)[nLast].nEnd : i + 1;
    }
}

namespace {

Extent Along(const Extent& first, const Extent& second, bool bAlong)
{
    Extent extent{Combine(first.nMin, second.nMin, bAlong), Combine(first.nMax, second.nMax, bAlong), 0};
    extent.nFixed = extent.IsFixed() ? extent.nMin : Combine(first.nFixed, second.nFixed, bAlong);
    return extent;
}

Extent LeafExtent(int nMin, int nMax)
{
    return {nMin, nMax, nMin == nMax ? nMin : 0};
}

// Without a record a unit may have any usual size.
NodeSizes LeafSizes(const CSplitLine& leaf)
{
    constexpr int ANY_SIZE = 10000;
    const CBaseUnitWnd* pUnit = leaf.GetUnitWnd();
    if (!pUnit)
        return {};
    const CBaseUnitInfo* pInfo = pUnit->m_pBaseUnitInfo;
    if (!pInfo)
        return {LeafExtent(0, ANY_SIZE), LeafExtent(0, ANY_SIZE)};
    // Only heights look at visibility: a row of hidden panes needs no room, a hidden column keeps its width.
    const bool bVisible = ::IsWindowVisible(pUnit->m_hWnd);
    return {LeafExtent(pInfo->m_nMinWidth, pInfo->m_nMaxWidth),
            LeafExtent(bVisible ? pInfo->m_nMinHeight : 0, pInfo->m_nMaxHeight)};
}

// Where the client area of a window lies on the screen. Units of one tree have one parent, as a rule.
class ParentOrigin
{
public:
    POINT Of(HWND hParent)
    {
        if (hParent != m_hParent) {
            m_hParent = hParent;
            m_ptOrigin = {0, 0};
            ::ClientToScreen(hParent, &m_ptOrigin);
        }
        return m_ptOrigin;
    }

private:
    HWND m_hParent = nullptr;
    POINT m_ptOrigin{0, 0};
};

CRect LeafViewRect(const CSplitLine& leaf, ParentOrigin& origin)
{
    const CBaseUnitWnd* pUnit = leaf.GetUnitWnd();
    CRect rc;
    if (!pUnit || !::GetWindowRect(pUnit->m_hWnd, rc))
        return {};
    const POINT pt = origin.Of(::GetParent(pUnit->m_hWnd));
    rc.OffsetRect(SubtractClamped(0, pt.x), SubtractClamped(0, pt.y));
    return rc;
}

} // namespace

void FoldSizes(const CNodeTable& table, int nIndex, std::vector<NodeSizes>& arrSizes)
{
    table.FoldUp(nIndex, arrSizes, LeafSizes,
                 [](const CSplitLine& line, const NodeSizes& first, const NodeSizes& second) {
                     const bool bStacked = line.m_nType == CSplitLine::NT_HLINE;
                     return NodeSizes{Along(first.width, second.width, !bStacked),
                                      Along(first.height, second.height, bStacked)};
                 });
}

void FoldViewRects(const CNodeTable& table, std::vector<CRect>& arrRect)
{
    ParentOrigin origin;
    table.FoldUp(
        0, arrRect, [&origin](const CSplitLine& leaf) { return LeafViewRect(leaf, origin); },
        [](const CSplitLine&, const CRect& first, const CRect& second) {
            return MergeViewRects(first, second);
        });
}

CRect MergeViewRects(const CRect& a, const CRect& b)
{
    if (a.IsRectEmpty())
        return b;
    if (b.IsRectEmpty())
        return a;
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
            std::max(a.bottom, b.bottom)};
}

} // namespace splitframe
