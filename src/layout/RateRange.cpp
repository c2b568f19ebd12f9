// The shares of a position: about k/n to (k+1)/n for k of n pixels, moved by single steps of a double to
// where the layout's own arithmetic, which truncates, goes over to the next pixel.
#include "layout/RateRange.h"

#include "layout/internal/DividingPos.h"
#include "layout/internal/NodeTable.h"

#include <numeric>
#include <vector>

namespace splitframe {
namespace {

// One axis of a line as it stands now.
struct Division
{
    int nFrom;
    int nTo;
    int nAt; // where the sides meet
    Extent first;
    Extent second;
    Extent line;

    int PosOf(double dRate) const { return DividingPos(nFrom, nTo, dRate, first, second, line); }
};

// The least share that divides at nAt or behind it: by halving the distance between one that does not and one
// that does, dPixel being one pixel's share.
double LeastRate(const Division& division, int nAt, double dRate, double dPixel)
{
    double dBefore = dRate - 2 * dPixel;
    double dThere = dRate + dPixel;
    for (;;) {
        const double dMiddle = std::midpoint(dBefore, dThere);
        if (dMiddle <= dBefore || dMiddle >= dThere)
            return dThere;
        (division.PosOf(dMiddle) < nAt ? dBefore : dThere) = dMiddle;
    }
}

} // namespace

bool FindRateRange(const CSplitLine& line, double& dFrom, double& dTo)
{
    CNodeTable table;
    table.Build(const_cast<CSplitLine&>(line)); // a question: nothing is changed through it
    const int nFirst = table.FirstOf(0);
    const int nSecond = table[0].nSecond;
    if (line.m_nType == CSplitLine::NT_UNIT || nFirst < 0 || nSecond < 0)
        return false;
    std::vector<NodeSizes> arrSizes;
    std::vector<CRect> arrRect;
    FoldSizes(table, 0, arrSizes);
    FoldViewRects(table, arrRect);
    const CRect& rc = arrRect[0];
    const CRect& rcFirst = arrRect[static_cast<std::size_t>(nFirst)];
    const NodeSizes& first = arrSizes[static_cast<std::size_t>(nFirst)];
    const NodeSizes& second = arrSizes[static_cast<std::size_t>(nSecond)];
    const Division division =
        line.m_nType == CSplitLine::NT_HLINE
            ? Division{rc.top, rc.bottom, rcFirst.bottom, first.height, second.height, arrSizes[0].height}
            : Division{rc.left, rc.right, rcFirst.right, first.width, second.width, arrSizes[0].width};
    const int nFree = division.nTo - division.nFrom - division.line.nFixed;
    const int nPart = division.nAt - division.nFrom - division.first.nFixed;
    if (rcFirst.IsRectEmpty() || division.first.IsFixed() || division.second.IsFixed() || nFree <= 0 ||
        nPart < 0)
        return false;
    const double dPixel = 1.0 / nFree;
    dFrom = LeastRate(division, division.nAt, nPart * dPixel, dPixel);
    dTo = LeastRate(division, division.nAt + 1, (nPart + 1) * dPixel, dPixel);
    return true;
}

} // namespace splitframe
