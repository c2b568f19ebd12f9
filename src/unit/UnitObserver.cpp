// The list of those who want to hear of deleted units.
#include "unit/UnitObserver.h"

#include <utility>

namespace splitframe {

namespace {

// All observers, and the walks along them that are under way: an observer that leaves is stepped over.
// User-interface thread only.
CUnitObserver* g_pFirst = nullptr;

struct Walk
{
    CUnitObserver* pNext;
    Walk* pOuter;
};
Walk* g_pWalk = nullptr;

} // namespace

CUnitObserver::CUnitObserver(std::function<void(CBaseUnitWnd*)> onDeleted)
    : m_onDeleted(std::move(onDeleted)), m_pNext(g_pFirst)
{
    if (g_pFirst)
        g_pFirst->m_pPrev = this;
    g_pFirst = this;
}

CUnitObserver::~CUnitObserver()
{
    for (Walk* pWalk = g_pWalk; pWalk; pWalk = pWalk->pOuter) {
        if (pWalk->pNext == this)
            pWalk->pNext = m_pNext;
    }
    if (m_pNext)
        m_pNext->m_pPrev = m_pPrev;
    (m_pPrev ? m_pPrev->m_pNext : g_pFirst) = m_pNext;
}

void CUnitObserver::UnitDeleted(CBaseUnitWnd* pUnit)
{
    Walk walk{g_pFirst, g_pWalk};
    g_pWalk = &walk;
    while (CUnitObserver* pObserver = walk.pNext) {
        walk.pNext = pObserver->m_pNext;
        const auto onDeleted = pObserver->m_onDeleted; // the observer may end inside
        onDeleted(pUnit);
    }
    g_pWalk = walk.pOuter;
}

} // namespace splitframe
