// Links to nodes: each node keeps the list of the links that name it, and empties them when it dies.
#include "layout/SplitLineLink.h"

#include "layout/SplitLine.h"
#include "layout/internal/TreeEpoch.h"

namespace splitframe {

std::uint64_t g_nTreeEpoch = 0;

void CSplitLineLink::Attach(CSplitLine* pNode)
{
    m_pNode = pNode;
    m_pPrev = nullptr;
    m_pNext = pNode->m_pLinks;
    if (m_pNext)
        m_pNext->m_pPrev = this;
    pNode->m_pLinks = this;
}

void CSplitLineLink::Detach()
{
    if (m_pNext)
        m_pNext->m_pPrev = m_pPrev;
    (m_pPrev ? m_pPrev->m_pNext : m_pNode->m_pLinks) = m_pNext;
    m_pNode = nullptr;
}

void CSplitLineLink::Set(CSplitLine* pNode)
{
    if (pNode == m_pNode)
        return;
    ++g_nTreeEpoch;
    if (m_pNode)
        Detach();
    if (pNode)
        Attach(pNode);
}

} // namespace splitframe
