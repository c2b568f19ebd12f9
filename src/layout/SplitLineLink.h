// A link from one place to a node of a split tree that empties itself when the node dies.
// Nodes are linked by hosts, documents and hooks in any order and may be deleted by anyone at any moment;
// with such links no node is ever reached after its end, nor deleted twice, whatever the order.
#pragma once

#include "platform/base/Export.h"

class CSplitLine;

namespace splitframe {

/// Reads and writes like a CSplitLine*. Owns nothing. Null when never set, set to null, or when the node it
/// named has been deleted.
class SPLITFRAME_API CSplitLineLink
{
public:
    CSplitLineLink() = default;
    CSplitLineLink(CSplitLine* pNode)
    {
        if (pNode)
            Attach(pNode);
    }
    CSplitLineLink(const CSplitLineLink& other) : CSplitLineLink(other.m_pNode) {}
    ~CSplitLineLink()
    {
        if (m_pNode)
            Detach();
    }

    CSplitLineLink& operator=(const CSplitLineLink& other)
    {
        if (this != &other)
            Set(other.m_pNode);
        return *this;
    }
    CSplitLineLink& operator=(CSplitLine* pNode)
    {
        Set(pNode);
        return *this;
    }

    operator CSplitLine*() const { return m_pNode; }
    /// To the unit, as from the pointer itself: the caller knows that the node is a unit's leaf.
    template <class T> explicit operator T*() const { return static_cast<T*>(m_pNode); }
    CSplitLine* operator->() const { return m_pNode; }
    CSplitLine* Get() const { return m_pNode; }

private:
    friend class ::CSplitLine;

    void Attach(CSplitLine* pNode);
    void Detach();
    void Set(CSplitLine* pNode);

    CSplitLine* m_pNode = nullptr;
    // Neighbours among the links to the same node.
    CSplitLineLink* m_pPrev = nullptr;
    CSplitLineLink* m_pNext = nullptr;
};

} // namespace splitframe
