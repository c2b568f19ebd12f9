// Message-map search, command routing to one target, and the look of commands.
#include "platform/window/CmdTarget.h"
#include "platform/window/CallScope.h"
#include "platform/window/Menu.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

namespace splitframe {

const AFX_MSGMAP_ENTRY* SearchMessageMap(const AFX_MSGMAP* pMap, UINT nMessage)
{
    const AFX_MSGMAP_ENTRY* pFound = nullptr;
    const AFX_MSGMAP* pEach = pMap;
    do {
        for (const AFX_MSGMAP_ENTRY* pEntry = pEach->lpEntries; pEntry->pfn && !pFound; ++pEntry) {
            if (pEntry->nMessage == nMessage && nMessage != WM_COMMAND)
                pFound = pEntry;
        }
        pEach = pEach->pfnGetBaseMap ? pEach->pfnGetBaseMap() : nullptr;
    } while (pEach && !pFound);
    pMap->pCache->slots[nMessage % MessageMapCache::SLOTS] = {nMessage, true, pFound};
    return pFound;
}

namespace {

const AFX_MSGMAP_ENTRY* FindCommandEntry(const AFX_MSGMAP* pMap, UINT nID, int nCode)
{
    for (; pMap; pMap = pMap->pfnGetBaseMap ? pMap->pfnGetBaseMap() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* pEntry = pMap->lpEntries; pEntry->pfn; ++pEntry) {
            if (pEntry->nMessage == WM_COMMAND && pEntry->nCode == nCode && nID >= pEntry->nID &&
                nID <= pEntry->nLastID)
                return pEntry;
        }
    }
    return nullptr;
}

} // namespace
} // namespace splitframe

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap()
{
    static constexpr AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, nullptr}};
    static constinit splitframe::MessageMapCache cache;
    static constinit AFX_MSGMAP map = {nullptr, entries, &cache};
    return &map;
}

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    const AFX_MSGMAP_ENTRY* pEntry = splitframe::FindCommandEntry(GetMessageMap(), nID, nCode);
    if (!pEntry)
        return FALSE;
    if (pHandlerInfo) {
        pHandlerInfo->pTarget = this;
        pHandlerInfo->pEntry = pEntry;
        return TRUE;
    }
    ++splitframe::g_nHostCalls;
    const CCallScope scope;
    pEntry->pfn(this, nID, 0, reinterpret_cast<LPARAM>(pExtra));
    return TRUE;
}

void CCmdUI::Enable(BOOL bOn)
{
    m_bEnableChanged = true;
    if (m_pMenu)
        m_pMenu->EnableMenuItem(m_nIndex, MF_BYPOSITION | (bOn ? MF_ENABLED : MF_GRAYED));
}

void CCmdUI::SetCheck(int nCheck)
{
    if (m_pMenu)
        m_pMenu->CheckMenuItem(m_nIndex, MF_BYPOSITION | (nCheck ? MF_CHECKED : MF_UNCHECKED));
}

void CCmdUI::SetText(LPCWSTR pszText)
{
    if (!m_pMenu || !pszText)
        return;
    const UINT nState =
        m_pMenu->GetMenuState(m_nIndex, MF_BYPOSITION) & (MF_GRAYED | MF_DISABLED | MF_CHECKED);
    m_pMenu->ModifyMenu(m_nIndex, MF_BYPOSITION | nState, m_nID, pszText);
}

BOOL CCmdUI::DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHandler)
{
    if (!pTarget)
        return FALSE;
    m_bEnableChanged = false;
    const BOOL bFound = pTarget->OnCmdMsg(m_nID, CN_UPDATE_COMMAND_UI, this, nullptr);
    if (bDisableIfNoHandler && !m_bEnableChanged) {
        AFX_CMDHANDLERINFO info;
        Enable(pTarget->OnCmdMsg(m_nID, CN_COMMAND, nullptr, &info));
    }
    return bFound;
}
