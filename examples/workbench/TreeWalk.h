// Going through a split tree.
#pragma once

#include <layout/SplitLine.h>

/// Calls a function for a node and for all below it, the node before its sides. Null: nothing.
template <class Function> void ForEachNode(CSplitLine* pNode, const Function& function)
{
    if (!pNode)
        return;
    function(*pNode);
    ForEachNode(pNode->m_pFirst.Get(), function);
    ForEachNode(pNode->m_pSecond.Get(), function);
}
