// The rules of a split tree, checked one node after the other.
#include "layout/CheckTree.h"

#include "layout/internal/NodeTable.h"

#include <cmath>

namespace splitframe {

namespace {

std::string NameOf(const CSplitLine* pNode)
{
    return pNode ? "'" + pNode->m_strName.ToUtf8() + "'" : "nothing";
}

std::string CheckSide(const CSplitLine& line, const CSplitLine* pSide)
{
    if (!pSide)
        return {};
    const CSplitLine* pParent = pSide->m_pParent;
    const bool bUnit = pSide->m_nType == CSplitLine::NT_UNIT;
    if (pParent == &line || (bUnit && (!pParent || pParent->Holds(pSide))))
        return {};
    return NameOf(pSide) + " hangs on " + NameOf(&line) + ", but its parent link leads to " + NameOf(pParent);
}

std::string CheckNode(const CSplitLine& node)
{
    if (node.m_nType < CSplitLine::NT_HLINE || node.m_nType > CSplitLine::NT_UNIT)
        return NameOf(&node) + " is of no known kind";
    if (!std::isfinite(node.m_dLRate))
        return NameOf(&node) + " has a share that is no finite number";
    if (node.m_nType == CSplitLine::NT_UNIT)
        return node.IsLeaf() ? "" : NameOf(&node) + " is a unit and has sides";
    if (node.m_pFirst && node.m_pFirst == node.m_pSecond)
        return NameOf(node.m_pFirst) + " is both sides of " + NameOf(&node);
    const std::string strFault = CheckSide(node, node.m_pFirst);
    return strFault.empty() ? CheckSide(node, node.m_pSecond) : strFault;
}

} // namespace

std::string CheckTree(const CSplitLine& node)
{
    CNodeTable table;
    table.Build(const_cast<CSplitLine&>(node)); // a question: nothing is changed through it
    for (int i = 0; i < table.GetCount(); ++i) {
        std::string strFault = CheckNode(*table[i].pNode);
        if (!strFault.empty())
            return strFault;
    }
    return {};
}

} // namespace splitframe
