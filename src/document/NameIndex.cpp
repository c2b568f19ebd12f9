#include "document/NameIndex.h"

#include "definition/FrameStyle.h"
#include "definition/UnitInfo.h"
#include "unit/BaseUnitWnd.h"

#include <bit>

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
    : m_arrSlot(std::bit_ceil(2 * static_cast<std::size_t>(arrInfo.GetSize()) + 1))
{
    for (CBaseUnitInfo* pInfo : arrInfo) {
        CBaseUnitInfo*& pSlot = m_arrSlot[SlotOf(pInfo->m_strName.View())];
        if (!pSlot)
            pSlot = pInfo;
    }
}

// Where the record of that name stands, or where it would go.
std::size_t RecordNames::SlotOf(std::wstring_view name) const
{
    const std::size_t nMask = m_arrSlot.size() - 1;
    const std::hash<std::wstring_view> hash;
    std::size_t n = hash(name) & nMask;
    while (m_arrSlot[n] && m_arrSlot[n]->m_strName.View() != name)
        n = (n + 1) & nMask;
    return n;
}

CBaseUnitInfo* RecordNames::Find(const CString& strName) const
{
    return m_arrSlot.empty() ? nullptr : m_arrSlot[SlotOf(strName.View())];
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
