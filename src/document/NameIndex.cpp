#include "document/NameIndex.h"

#include "definition/FrameStyle.h"
#include "definition/UnitInfo.h"
#include "unit/BaseUnitWnd.h"

namespace splitframe {

CBaseUnitWnd* FindUnit(const CArray<CBaseUnitWnd*, CBaseUnitWnd*>& arrUnit, const CString& strName)
{
    for (CBaseUnitWnd* pUnit : arrUnit) {
        if (pUnit->m_pBaseUnitInfo && pUnit->m_pBaseUnitInfo->m_strName == strName)
            return pUnit;
    }
    return nullptr;
}

UnitNames::UnitNames(const CArray<CBaseUnitWnd*, CBaseUnitWnd*>& arrUnit)
{
    for (CBaseUnitWnd* pUnit : arrUnit) {
        if (pUnit->m_pBaseUnitInfo)
            m_mapUnit.try_emplace(pUnit->m_pBaseUnitInfo->m_strName, pUnit);
    }
}

CBaseUnitWnd* UnitNames::Find(const CString& strName) const
{
    const auto it = m_mapUnit.find(strName);
    return it == m_mapUnit.end() ? nullptr : it->second;
}

RecordNames::RecordNames(const CArray<CBaseUnitInfo*, CBaseUnitInfo*>& arrInfo)
{
    m_mapInfo.reserve(static_cast<std::size_t>(arrInfo.GetSize()));
    for (CBaseUnitInfo* pInfo : arrInfo)
        m_mapInfo.try_emplace(pInfo->m_strName.View(), pInfo);
}

CBaseUnitInfo* RecordNames::Find(const CString& strName) const
{
    const auto it = m_mapInfo.find(strName.View());
    return it == m_mapInfo.end() ? nullptr : it->second;
}

LineNames::LineNames(const CBaseFrameStyle& style)
{
    for (int i = 0; i < style.m_arrSplitInfo.GetSize(); ++i)
        m_mapLine.try_emplace(CString(style.m_arrSplitInfo[i]->szName), i);
}

int LineNames::Find(const CString& strName) const
{
    const auto it = m_mapLine.find(strName);
    return it == m_mapLine.end() ? -1 : it->second;
}

EntryNames::EntryNames(const CBaseFrameStyle& style)
{
    for (int i = 0; i < style.m_arrBaseUnitInfo.GetSize(); ++i)
        m_mapEntry[style.m_arrBaseUnitInfo[i]->m_strName].push_back(i);
}

const std::vector<int>& EntryNames::Find(const CString& strName) const
{
    const auto it = m_mapEntry.find(strName);
    return it == m_mapEntry.end() ? m_arrNone : it->second;
}

} // namespace splitframe
