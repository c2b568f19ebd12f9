// The tree of --list: one node a line, branches drawn in front of the names.
#include "Listing.h"
#include "Printable.h"
#include "TextTable.h"
#include "document/BaseFrameDoc.h"
#include "layout/SplitLine.h"
#include "platform/base/Number.h"
#include "unit/BaseUnitWnd.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace viewer {
namespace {

// Branches are drawn down to this level; below it the level is written as a number, so that a chain of
// thousands of lines does not make lines of thousands of columns.
constexpr int kDrawnLevels = 32;

struct Node
{
    const CSplitLine* pLine; // null: an empty side
    std::size_t nUpper;      // the line that holds it; the root holds itself
    int nLevel;              // 0 is the root
    std::string strBranch;   // what stands in front of the name
    std::string strBelow;    // what stands in front of the branches of its sides
    CRect rc;
};

bool IsUnit(const Node& node)
{
    return node.pLine && node.pLine->GetNodeType() == CSplitLine::NT_UNIT;
}

Node SideOf(const std::vector<Node>& nodes, std::size_t nUpper, const CSplitLine* pSide, bool bLast)
{
    const Node& upper = nodes[nUpper];
    Node side{upper.pLine->Holds(pSide) ? pSide : nullptr, nUpper, upper.nLevel + 1, {}, {}, {}};
    if (side.nLevel > kDrawnLevels) {
        side.strBranch = upper.strBelow + "(" + std::to_string(side.nLevel) + ") ";
        side.strBelow = upper.strBelow;
    } else {
        side.strBranch = upper.strBelow + (bLast ? "└─ " : "├─ ");
        side.strBelow = upper.strBelow + (bLast ? "   " : "│  ");
    }
    return side;
}

// All nodes, each before its sides, the first side with all below it before the second.
std::vector<Node> NodesOf(const CSplitLine& root)
{
    std::vector<Node> nodes;
    std::vector<Node> open{{&root, 0, 0, {}, {}, {}}};
    while (!open.empty()) {
        const std::size_t nNode = nodes.size();
        nodes.push_back(std::move(open.back()));
        open.pop_back();
        const CSplitLine* pLine = nodes[nNode].pLine;
        if (!pLine || IsUnit(nodes[nNode]))
            continue;
        open.push_back(SideOf(nodes, nNode, pLine->m_pSecond, true));
        open.push_back(SideOf(nodes, nNode, pLine->m_pFirst, false));
    }
    return nodes;
}

// From the leaves upwards: asking every line for its rectangle would cost the square of a deep tree.
void MeasureNodes(std::vector<Node>& nodes)
{
    for (std::size_t nNode = nodes.size(); nNode-- > 0;) {
        Node& node = nodes[nNode];
        if (!node.pLine || !node.pLine->m_bShow)
            node.rc = CRect();
        else if (IsUnit(node))
            node.rc = node.pLine->GetViewRect();
        if (nNode > 0)
            nodes[node.nUpper].rc.UnionRect(nodes[node.nUpper].rc, node.rc);
    }
}

std::string RectText(const CRect& rc)
{
    return std::to_string(rc.left) + "," + std::to_string(rc.top) + " " + std::to_string(rc.Width()) + "x" +
           std::to_string(rc.Height());
}

std::string RemarkText(const Node& node)
{
    if (!IsUnit(node))
        return node.pLine->m_bMobile ? "movable" : "";
    const bool bWidth = node.pLine->IsWidthFixed();
    const bool bHeight = node.pLine->IsHeightFixed();
    return bWidth && bHeight ? "fixed size" : bWidth ? "fixed width" : bHeight ? "fixed height" : "";
}

std::vector<std::string> RowOf(const Node& node)
{
    if (!node.pLine)
        return {node.strBranch + "(nothing)", "", "", "", ""};
    const bool bHorizontal = node.pLine->GetNodeType() == CSplitLine::NT_HLINE;
    return {node.strBranch + Printable(node.pLine->m_strName),
            IsUnit(node)  ? "unit"
            : bHorizontal ? "horizontal"
                          : "vertical",
            IsUnit(node) ? "" : splitframe::RealToText(node.pLine->m_dLRate).ToUtf8(), RectText(node.rc),
            RemarkText(node)};
}

std::string TreeTable(const CSplitLine& root)
{
    std::vector<Node> nodes = NodesOf(root);
    MeasureNodes(nodes);
    TextTable table({"TREE", "KIND", ">RATE", "PLACE", "REMARKS"});
    for (const Node& node : nodes)
        table.AddRow(RowOf(node));
    return table.ToText(6);
}

bool StandsInTree(const CBaseUnitWnd& unit)
{
    return unit.m_pParent && unit.m_pParent->Holds(&unit);
}

} // namespace

std::string ListTree(const CBaseFrameDoc& document)
{
    std::string strText = "\n";
    if (document.m_pRoot)
        strText += TreeTable(*document.m_pRoot);
    TextTable loose({document.m_pRoot ? "UNIT IN NO LINE" : "UNIT", "PLACE"});
    for (const CBaseUnitWnd* pUnit : document.m_arrBaseUnitWnd)
        if (!StandsInTree(*pUnit))
            loose.AddRow({Printable(pUnit->m_strName), RectText(pUnit->GetViewRect())});
    if (!loose.IsEmpty())
        strText += (document.m_pRoot ? "\n" : "") + loose.ToText(6);
    return strText;
}

} // namespace viewer
