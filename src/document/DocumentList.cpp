#include "document/DocumentList.h"

#include "definition/UnitInfo.h"
#include "document/BaseFrameDoc.h"
#include "unit/BaseUnitWnd.h"

#include <algorithm>
#include <unordered_set>
#include <vector>

namespace splitframe {
namespace {

// Shared by the whole process, because a unit or a definition may be named by any document.
std::vector<CBaseFrameDoc*>& Documents()
{
    static std::vector<CBaseFrameDoc*> arrDoc;
    return arrDoc;
}

template <class LIST, class ITEM> bool Contains(const LIST& list, const ITEM& item)
{
    return std::find(list.begin(), list.end(), item) != list.end();
}

} // namespace

void DocumentList::Add(CBaseFrameDoc* pDoc)
{
    Documents().push_back(pDoc);
}

void DocumentList::Remove(CBaseFrameDoc* pDoc)
{
    std::erase(Documents(), pDoc);
}

void DocumentList::ForgetCached(const CBaseUnitWnd* pUnit, const CBaseFrameDoc* pKeeper)
{
    for (CBaseFrameDoc* pDoc : Documents()) {
        if (pDoc != pKeeper)
            pDoc->ForgetCached(pUnit);
    }
}

bool DocumentList::IsListedElsewhere(const CBaseUnitWnd* pUnit, const CBaseFrameDoc* pDoc)
{
    return std::any_of(Documents().begin(), Documents().end(), [&](const CBaseFrameDoc* pOther) {
        return pOther != pDoc &&
               (Contains(pOther->m_arrWndCache, pUnit) || Contains(pOther->m_arrBaseUnitWnd, pUnit));
    });
}

void DocumentList::DefinitionIsCleared(CBaseFrameDoc* pDefinition)
{
    const std::unordered_set<const CBaseUnitInfo*> setDoomed(pDefinition->m_arrBaseUnitInfo.begin(),
                                                             pDefinition->m_arrBaseUnitInfo.end());
    const auto detach = [&](const CArray<CBaseUnitWnd*, CBaseUnitWnd*>& arrUnit) {
        for (CBaseUnitWnd* pUnit : arrUnit) {
            if (setDoomed.contains(pUnit->m_pBaseUnitInfo))
                pUnit->m_pBaseUnitInfo = nullptr;
        }
    };
    for (CBaseFrameDoc* pDoc : Documents()) {
        detach(pDoc->m_arrBaseUnitWnd);
        detach(pDoc->m_arrWndCache);
        if (pDoc != pDefinition && pDoc->m_pDefinition == pDefinition) {
            pDoc->m_arrStyle.RemoveAll();
            pDoc->m_arrBaseUnitInfo.RemoveAll();
        }
    }
}

void DocumentList::DefinitionIsDeleted(CBaseFrameDoc* pDefinition)
{
    for (CBaseFrameDoc* pDoc : Documents()) {
        if (pDoc->m_pDefinition == pDefinition)
            pDoc->ForgetDefinition();
    }
}

} // namespace splitframe
