// The document's cache of unit windows: kept for reuse by ID when the style changes, and by name when the
// frame is opened. A window and its unit ID stand at the same index of the two lists and leave together.
#include "definition/FrameStyle.h"
#include "definition/UnitInfo.h"
#include "document/BaseFrameDoc.h"
#include "document/BaseFrameView.h"
#include "document/DocumentList.h"
#include "document/ObjectFactory.h"
#include "document/UnitID.h"
#include "document/UnitWatch.h"
#include "platform/base/Diagnostics.h"
#include "platform/docview/WinApp.h"
#include "platform/window/CallScope.h"

#include <algorithm>
#include <unordered_set>

using splitframe::NO_UNIT_ID;

int CBaseFrameDoc::GetWndCacheCount()
{
    return m_arrWndCache.GetSize();
}

CBaseUnitWnd* CBaseFrameDoc::GetWndCache(int nIndex)
{
    return m_arrWndCache.GetAt(nIndex);
}

void CBaseFrameDoc::GetCurrentBaseUnitWndID(CBaseUnitWnd* pUnit, int& nID)
{
    if (!FindCurrentStyle())
        AfxThrowInvalidArgException();
    const splitframe::UnitWatch watch(pUnit);
    const GUID guid = pUnit->GetGUID();
    const CBaseFrameStyle* pStyle = FindCurrentStyle();
    if (!watch.Get() || !pStyle)
        return;
    for (int i = 0; i < pStyle->m_arrBaseUnitInfo.GetSize(); ++i) {
        if (splitframe::EntryGivesID(*pStyle, i, guid, pUnit->CSplitLine::m_strName, nID))
            return;
    }
}

int CBaseFrameDoc::CurrentUnitID(CBaseUnitWnd* pUnit)
{
    int nID = NO_UNIT_ID;
    GetCurrentBaseUnitWndID(pUnit, nID);
    return nID;
}

void CBaseFrameDoc::SetUnitID(const CBaseUnitWnd* pUnit, int nID)
{
    // Nearly always the last one: IDs are set as units are appended.
    for (int i = m_arrBaseUnitWnd.GetSize() - 1; i >= 0; --i) {
        if (m_arrBaseUnitWnd[i] == pUnit) {
            m_arrBaseUnitWndID.SetAt(i, nID);
            return;
        }
    }
}

int CBaseFrameDoc::IsSameWnd(int nStyle, int nID)
{
    const CBaseFrameStyle* pStyle = m_arrStyle.GetAt(nStyle);
    for (int i = 0; i < pStyle->m_arrBaseUnitInfo.GetSize(); ++i) {
        const int nStyleID = splitframe::UnitIDOf(pStyle->m_arrParam.GetAt(i));
        if (nStyleID != NO_UNIT_ID && nStyleID == nID)
            return 1;
    }
    return 0;
}

// A window that stood in the cache twice would be handed out twice.
void CBaseFrameDoc::UpdateBaseUnitWndCache()
{
    const std::unordered_set<const CBaseUnitWnd*> setCached(m_arrWndCache.begin(), m_arrWndCache.end());
    for (int i = 0, nCount = m_arrBaseUnitWnd.GetSize(); i < nCount; ++i) {
        const int nID = m_arrBaseUnitWndID.GetAt(i);
        if (setCached.contains(m_arrBaseUnitWnd[i]))
            continue;
        m_arrWndCache.Add(m_arrBaseUnitWnd[i]);
        m_arrWndCacheID.Add(nID);
    }
}

CBaseUnitWnd* CBaseFrameDoc::GetBaseUnitWndCache(CString strName)
{
    for (int i = 0; i < m_arrWndCache.GetSize(); ++i) {
        CBaseUnitWnd* pUnit = m_arrWndCache[i];
        if (!pUnit->m_pBaseUnitInfo || !(pUnit->m_pBaseUnitInfo->m_strName == strName))
            continue;
        RemoveCachedAt(i);
        return pUnit;
    }
    return nullptr;
}

int CBaseFrameDoc::GetBaseUnitWndCache(int nID, CBaseUnitWnd** ppUnit)
{
    if (nID == NO_UNIT_ID)
        return 0;
    const int* pAt = std::find(m_arrWndCacheID.begin(), m_arrWndCacheID.end(), nID);
    if (pAt == m_arrWndCacheID.end())
        return 0;
    CBaseUnitWnd* pUnit = m_arrWndCache.GetAt(static_cast<int>(pAt - m_arrWndCacheID.begin()));
    const splitframe::UnitWatch watch(pUnit);
    if (!pUnit->GetSafeHwnd())
        pUnit->Create(m_pView, pUnit->m_pBaseUnitInfo); // a host has destroyed it
    else
        MoveIntoView(pUnit);
    if (watch.Get() && !pUnit->IsWindowVisible()) {
        pUnit->ShowWindowEx(SW_SHOW);
        if (watch.Get())
            pUnit->m_bActivated = true;
    }
    if (!watch.Get())
        return 0;
    splitframe::DocumentList::ForgetCached(pUnit, nullptr);
    *ppUnit = pUnit;
    return 1;
}

// The unit leaves the list of the frame's own units; the current unit stays the current one. When it was the
// last and current one, the first one is current.
void CBaseFrameDoc::RemoveUnit(const CBaseUnitWnd* pUnit)
{
    const bool bCurrentIsListed = m_nCurBaseUnitWnd < m_arrBaseUnitWnd.GetSize();
    for (int i = m_arrBaseUnitWnd.GetSize() - 1; i >= 0; --i) {
        if (m_arrBaseUnitWnd[i] != pUnit)
            continue;
        m_arrBaseUnitWnd.RemoveAt(i);
        if (i < m_arrBaseUnitWndID.GetSize())
            m_arrBaseUnitWndID.RemoveAt(i);
        if (i < m_nCurBaseUnitWnd)
            --m_nCurBaseUnitWnd;
    }
    if (bCurrentIsListed && m_nCurBaseUnitWnd >= m_arrBaseUnitWnd.GetSize())
        m_nCurBaseUnitWnd = 0;
}

void CBaseFrameDoc::RemoveCachedAt(int nIndex)
{
    m_arrWndCache.RemoveAt(nIndex);
    if (nIndex < m_arrWndCacheID.GetSize())
        m_arrWndCacheID.RemoveAt(nIndex);
}

void CBaseFrameDoc::ForgetCached(const CBaseUnitWnd* pUnit)
{
    for (int i = m_arrWndCache.GetSize() - 1; i >= 0; --i) {
        if (m_arrWndCache[i] == pUnit)
            RemoveCachedAt(i);
    }
}

CBaseUnitWnd* CBaseFrameDoc::CreateBaseUnitWnd(const wchar_t* pszName)
{
    const CCallScope scope;
    const CString strName(pszName);
    for (int i = 0; i < m_arrWndCache.GetSize(); ++i) {
        CBaseUnitWnd* pUnit = m_arrWndCache[i];
        if (!pUnit->m_pBaseUnitInfo || !(pUnit->m_pBaseUnitInfo->m_strName == strName))
            continue;
        const splitframe::UnitWatch watch(pUnit);
        if (!pUnit->GetSafeHwnd())
            pUnit->Create(AfxGetMainWnd(), pUnit->m_pBaseUnitInfo); // a host has destroyed it
        if (!watch.Get())
            return nullptr;
        const int nID = CurrentUnitID(pUnit); // before the window leaves the list: this may throw
        return watch.Get() ? PutIntoCache(pUnit, nID) : nullptr;
    }
    CBaseUnitInfo* pInfo = FindOwnRecord(strName);
    return pInfo ? CreateCachedUnit(pInfo) : nullptr;
}

// The first record that a style lists under this name, case ignored, for a unit of the frame's own.
CBaseUnitInfo* CBaseFrameDoc::FindOwnRecord(const CString& strName)
{
    for (const CBaseFrameStyle* pStyle : m_arrStyle) {
        for (CBaseUnitInfo* pInfo : pStyle->m_arrBaseUnitInfo) {
            if (!pInfo->m_bGlobal && pInfo->m_strName.CompareNoCase(strName) == 0)
                return pInfo;
        }
    }
    return nullptr;
}

CBaseUnitWnd* CBaseFrameDoc::CreateCachedUnit(CBaseUnitInfo* pInfo)
{
    splitframe::NewUnit unit(splitframe::MakeUnit(pInfo->m_guid).release());
    if (!unit.Get()) {
        if (!m_bFaultsTold)
            Report(L"no usable unit class has this GUID; the unit is skipped", pInfo->m_strName);
        return nullptr;
    }
    unit.Get()->Create(AfxGetMainWnd(), pInfo);
    if (!unit.Get())
        return nullptr;
    const int nID = CurrentUnitID(unit.Get());
    return unit.Get() ? PutIntoCache(unit.Release(), nID) : nullptr;
}

// Makes the window the cache's last one.
CBaseUnitWnd* CBaseFrameDoc::PutIntoCache(CBaseUnitWnd* pUnit, int nID)
{
    ForgetCached(pUnit);
    m_arrWndCache.Add(pUnit);
    m_arrWndCacheID.Add(nID);
    return pUnit;
}
