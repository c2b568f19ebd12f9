// What a subtree needs and takes: the single queries. Each looks at the records, flags and windows as they
// are now; nothing is remembered. A layout asks for all of them at once instead (NodeTable).
#include "definition/UnitInfo.h"
#include "layout/SplitLine.h"
#include "layout/internal/NodeTable.h"
#include "unit/BaseUnitWnd.h"

using splitframe::CNodeTable;
using splitframe::Combine;
using splitframe::NodeSizes;

namespace {

// A question changes nothing; the table it works through is the one that layouts use, which do.
CNodeTable TableOf(const CSplitLine& node)
{
    CNodeTable table;
    table.Build(const_cast<CSplitLine&>(node));
    return table;
}

NodeSizes SizesOf(const CSplitLine& node)
{
    std::vector<NodeSizes> arrSizes;
    FoldSizes(TableOf(node), 0, arrSizes);
    return arrSizes[0];
}

// One field of the records over a subtree: lines of kind nAlong add up, others take the larger.
template <class T>
T FoldField(const CSplitLine& node, T CBaseUnitInfo::*pField, T none, CSplitLine::NodeType nAlong)
{
    std::vector<T> arrValue;
    TableOf(node).FoldUp(
        0, arrValue,
        [=](const CSplitLine& leaf) {
            const CBaseUnitWnd* pUnit = leaf.GetUnitWnd();
            if (!pUnit)
                return T{};
            return pUnit->m_pBaseUnitInfo ? pUnit->m_pBaseUnitInfo->*pField : none;
        },
        [=](const CSplitLine& line, T first, T second) {
            return Combine(first, second, line.m_nType == nAlong);
        });
    return arrValue[0];
}

} // namespace

int CSplitLine::GetMinWidth() const
{
    return SizesOf(*this).width.nMin;
}
int CSplitLine::GetMinHeight() const
{
    return SizesOf(*this).height.nMin;
}
int CSplitLine::GetMaxWidth() const
{
    return SizesOf(*this).width.nMax;
}
int CSplitLine::GetMaxHeight() const
{
    return SizesOf(*this).height.nMax;
}
bool CSplitLine::IsWidthFixed() const
{
    return SizesOf(*this).width.IsFixed();
}
bool CSplitLine::IsHeightFixed() const
{
    return SizesOf(*this).height.IsFixed();
}
int CSplitLine::GetWidthFixed() const
{
    return SizesOf(*this).width.nFixed;
}
int CSplitLine::GetHeightFixed() const
{
    return SizesOf(*this).height.nFixed;
}

int CSplitLine::GetMinWidth(NodeType nAlong) const
{
    return FoldField(*this, &CBaseUnitInfo::m_nMinWidth, 0, nAlong);
}
int CSplitLine::GetMinHeight(NodeType nAlong) const
{
    return FoldField(*this, &CBaseUnitInfo::m_nMinHeight, 0, nAlong);
}

double CSplitLine::GetWidthRate() const
{
    return FoldField(*this, &CBaseUnitInfo::m_dWidthRate, 10.0, NT_VLINE);
}
double CSplitLine::GetHeightRate() const
{
    return FoldField(*this, &CBaseUnitInfo::m_dHeightRate, 10.0, NT_HLINE);
}
