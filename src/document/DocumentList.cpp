#include "document/DocumentList.h"

#include "definition/FrameStyle.h"
#include "definition/UnitInfo.h"
#include "document/BaseFrameDoc.h"
#include "document/Listed.h"
#include "document/UnitWatch.h"

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

// Takes the records out of a style, together with the parameters that stand at the same places.
void RemoveEntries(CBaseFrameStyle& style, const std::unordered_set<const CBaseUnitInfo*>& setDoomed)
{
    int nKept = 0;
    int nKeptParams = 0;
    for (int i = 0; i < style.m_arrBaseUnitInfo.GetSize(); ++i) {
        if (setDoomed.contains(style.m_arrBaseUnitInfo[i]))
            continue;
        style.m_arrBaseUnitInfo[nKept++] = style.m_arrBaseUnitInfo[i];
        if (i < style.m_arrParam.GetSize())
            style.m_arrParam[nKeptParams++] = style.m_arrParam[i];
    }
    style.m_arrBaseUnitInfo.SetSize(nKept);
    style.m_arrParam.SetSize(nKeptParams);
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
    const std::unordered_set<const CBaseFrameStyle*> setStyle(pDefinition->m_arrStyle.begin(),
                                                              pDefinition->m_arrStyle.end());
    const std::unordered_set<const CBaseUnitInfo*> setUnit(pDefinition->m_arrBaseUnitInfo.begin(),
                                                           pDefinition->m_arrBaseUnitInfo.end());
    for (CBaseFrameDoc* pDoc : Documents()) {
        if (pDoc != pDefinition && pDoc->m_pDefinition == pDefinition) {
            RemoveListed(pDoc->m_arrStyle, setStyle);
            RemoveListed(pDoc->m_arrBaseUnitInfo, setUnit);
        }
    }
    RecordsAreDeleted(setUnit);
}

void DocumentList::RecordsAreDeleted(const std::unordered_set<const CBaseUnitInfo*>& setDoomed)
{
    if (setDoomed.empty())
        return;
    const auto detachOne = [&](CBaseUnitWnd* pUnit) {
        if (pUnit && setDoomed.contains(pUnit->m_pBaseUnitInfo))
            pUnit->m_pBaseUnitInfo = nullptr;
    };
    const auto detach = [&](const CArray<CBaseUnitWnd*, CBaseUnitWnd*>& arrUnit) {
        std::for_each(arrUnit.begin(), arrUnit.end(), detachOne);
    };
    for (const NewUnit* pNew = NewUnit::GetInnermost(); pNew; pNew = pNew->GetOuter())
        detachOne(pNew->Get());
    for (CBaseFrameDoc* pDoc : Documents()) {
        detach(pDoc->m_arrBaseUnitWnd);
        detach(pDoc->m_arrWndCache);
        // All other styles end together with the records that they list.
        for (CBaseFrameStyle* pStyle : StillListed(pDoc->m_arrReadStyle, pDoc->m_arrStyle))
            RemoveEntries(*pStyle, setDoomed);
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
