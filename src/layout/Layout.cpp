// Laying subtrees out, and reading their shares back from where the windows are.
#include "layout/SplitLine.h"
#include "layout/internal/LayoutPass.h"
#include "layout/internal/NodeTable.h"

#include <cmath>

using splitframe::CLayoutPass;
using splitframe::CNodeTable;
using splitframe::Extent;
using splitframe::NodeSizes;

CRect CSplitLine::MergeRect(CRect a, CRect b)
{
    return splitframe::MergeViewRects(a, b);
}

CRect CSplitLine::GetViewRect() const
{
    CNodeTable table;
    table.Build(const_cast<CSplitLine&>(*this)); // a question: nothing is changed through it
    std::vector<CRect> arrRect;
    FoldViewRects(table, arrRect);
    return arrRect[0];
}

void CSplitLine::ModifyWindow2(CRect rc, NodeType)
{
    CLayoutPass(*this).LayOut(rc);
}

void CSplitLine::ModifyWindow()
{
    CLayoutPass pass(*this);
    const CRect rcView = pass.GetViewRect();
    // Twice: the first run shows hidden panes, whose heights count from then on.
    pass.LayOut(rcView);
    pass.LayOut(rcView);
}

void CSplitLine::ModifyWindow(CRect rc)
{
    CLayoutPass pass(*this);
    const CRect rcView = pass.GetViewRect();
    pass.LayOut({rcView.left, rc.top, rcView.right, rc.bottom});
    pass.LayOut(rc);
}

double CSplitLine::ModifyWindow(CString strName, double dRate)
{
    CNodeTable table;
    table.Build(*this);
    for (int i = 0; i < table.GetCount(); ++i) {
        CSplitLine& node = *table[i].pNode;
        if (node.m_strName != strName)
            continue;
        const double dBefore = node.m_dLRate;
        const CRect rcView = node.GetViewRect();
        if (std::isfinite(dRate))
            node.m_dLRate = dRate;
        node.ModifyWindow(rcView);
        return dBefore;
    }
    return -1.0;
}

namespace {

// The first side's share of the free extent; dRate when there is nothing to divide.
double ShareOf(int nFirstFrom, int nFirstTo, int nFrom, int nTo, const Extent& first, const Extent& line,
               double dRate)
{
    const std::int64_t nFirstFree = std::int64_t{nFirstTo} - nFirstFrom - first.nFixed;
    const std::int64_t nFree = std::int64_t{nTo} - nFrom - line.nFixed;
    if (nFree == 0)
        return dRate;
    return static_cast<double>(nFirstFree) / static_cast<double>(nFree);
}

} // namespace

void CSplitLine::ReCalRate()
{
    ReCalRate(GetViewRect());
}

// Shares do not enter sizes or rectangles, so the order of the lines does not matter. In a part without area,
// collapsed or dragged away, the panes tell nothing: those above each other in no width still have heights,
// but the rectangle around them has not. Nor do panes of a fixed size that keep it in a collapsed part. Such
// lines keep their shares, so that the part comes back as it was.
void CSplitLine::ReCalRate2(CRect)
{
    CNodeTable table;
    table.Build(*this);
    std::vector<NodeSizes> arrSizes;
    std::vector<CRect> arrRect;
    FoldSizes(table, 0, arrSizes);
    FoldViewRects(table, arrRect);
    for (int i = 0, nNext = 0; i < table.GetCount(); i = nNext) {
        CSplitLine& line = *table[i].pNode;
        nNext = line.m_bShow ? i + 1 : table[i].nEnd;
        const auto nLine = static_cast<std::size_t>(i);
        const CRect& rc = arrRect[nLine];
        if (line.m_nType == NT_UNIT || !line.m_bMobile || rc.IsRectEmpty())
            continue;
        const int nFirst = table.FirstOf(i);
        const NodeSizes first = nFirst < 0 ? NodeSizes() : arrSizes[static_cast<std::size_t>(nFirst)];
        const CRect rcFirst = nFirst < 0 ? CRect() : arrRect[static_cast<std::size_t>(nFirst)];
        line.m_dLRate = line.m_nType == NT_HLINE
                            ? ShareOf(rcFirst.top, rcFirst.bottom, rc.top, rc.bottom, first.height,
                                      arrSizes[nLine].height, line.m_dLRate)
                            : ShareOf(rcFirst.left, rcFirst.right, rc.left, rc.right, first.width,
                                      arrSizes[nLine].width, line.m_dLRate);
    }
}
