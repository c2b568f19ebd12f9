// Global units as one frame sees them. The main frame owns their windows and lends them: a window stands in
// the view that adopted it last, and the pane that another frame keeps for it counts as empty meanwhile.
// Before a view's window dies its global units go home, so that the next frame gets a live window.
#include "definition/FrameStyle.h"
#include "definition/UnitInfo.h"
#include "document/BaseFrameDoc.h"
#include "document/BaseFrameView.h"
#include "document/MainFrame.h"
#include "document/UnitWatch.h"
#include "frame/BaseFrameWnd.h"
#include "layout/SplitLine.h"
#include "platform/window/CallScope.h"

#include <algorithm>

using splitframe::FindMainFrame;
using splitframe::UnitWatch;

namespace {

bool StandsIn(const CBaseUnitWnd* pUnit, HWND hParent)
{
    return hParent && pUnit->GetSafeHwnd() && ::GetParent(pUnit->GetSafeHwnd()) == hParent;
}

} // namespace

int CBaseFrameDoc::GetBaseUnitWndGlobalCache(CString strName, CBaseUnitWnd** ppUnit, bool bHandleStyle)
{
    CBaseFrameWnd* pMain = FindMainFrame();
    CBaseUnitWnd* pUnit = pMain ? pMain->FindGlobalBaseUnitWnd(strName) : nullptr;
    const UnitWatch watch(pUnit);
    if (pUnit)
        MoveIntoView(pUnit);
    if (watch.Get() && bHandleStyle)
        pUnit->HandleStyle(m_strName);
    *ppUnit = watch.Get();
    return watch.Get() ? 1 : 0;
}

// Makes a window that stands elsewhere a child of the view: hidden, until a layout of this frame shows it.
void CBaseFrameDoc::MoveIntoView(CBaseUnitWnd* pUnit)
{
    if (IsViewGone())
        return;
    const UnitWatch watch(pUnit);
    const HWND hUnit = pUnit->GetSafeHwnd();
    if (::GetParent(hUnit) != m_hView) {
        pUnit->m_pParent = nullptr;
        ::ShowWindow(hUnit, SW_HIDE);
        ::SetParent(hUnit, m_hView);
    }
    if (watch.Get())
        pUnit->m_pHostWnd = m_pView;
}

CBaseUnitWnd* CBaseFrameDoc::AdoptGlobalUnit(const CString& strName)
{
    CBaseUnitWnd* pUnit = nullptr;
    GetBaseUnitWndGlobalCache(strName, &pUnit, false);
    if (pUnit)
        pUnit->SetNotifyFunc(&CBaseFrameView::OnBaseUnitNotify);
    return pUnit;
}

// The names of the global units that the frame places: listed by its style, or named by a line only.
std::vector<CString> CBaseFrameDoc::GlobalNames()
{
    std::vector<CString> arrName;
    if (const CBaseFrameStyle* pStyle = FindCurrentStyle()) {
        for (const CBaseUnitInfo* pInfo : pStyle->m_arrBaseUnitInfo) {
            if (pInfo->m_bGlobal)
                arrName.push_back(pInfo->m_strName);
        }
    }
    for (const GlobalPane& pane : m_arrGlobalPane)
        arrName.push_back(pane.strName);
    return arrName;
}

CBaseUnitWnd* CBaseFrameDoc::FindGlobalInView(const CString& strName)
{
    CBaseFrameWnd* pMain = FindMainFrame();
    CBaseUnitWnd* pUnit = pMain ? pMain->FindGlobalBaseUnitWnd(strName) : nullptr;
    return pUnit && StandsIn(pUnit, m_hView) ? pUnit : nullptr;
}

void CBaseFrameDoc::AdoptGlobalUnits()
{
    const CCallScope scope;
    if (!m_pView)
        return;
    for (const CString& strName : GlobalNames()) {
        if (IsViewGone())
            return;
        CBaseUnitWnd* pUnit = AdoptGlobalUnit(strName);
        if (!pUnit)
            continue;
        const UnitWatch watch(pUnit);
        if (m_pRoot)
            PutIntoPane(strName, pUnit);
        else
            pUnit->ShowWindow(SW_SHOW);
        if (watch.Get() && !m_pRoot)
            pUnit->m_bActivated = true;
    }
}

// A pane that has been given to another unit meanwhile stays with that one.
void CBaseFrameDoc::PutIntoPane(const CString& strName, CBaseUnitWnd* pUnit)
{
    CSplitLine* pLeaf = pUnit;
    for (GlobalPane& pane : m_arrGlobalPane) {
        if (!pane.line || !(pane.strName == strName))
            continue;
        auto& side = pane.bFirst ? pane.line->m_pFirst : pane.line->m_pSecond;
        if (!side)
            side = pLeaf;
        if (side == pLeaf)
            pLeaf->m_pParent = pane.line;
    }
}

bool CBaseFrameDoc::HasUnitsToLayOut()
{
    if (!m_arrBaseUnitWnd.IsEmpty())
        return true;
    const CBaseFrameWnd* pMain = FindMainFrame();
    return pMain && std::any_of(pMain->m_arrGlobalBaseUnitWnd.begin(), pMain->m_arrGlobalBaseUnitWnd.end(),
                                [this](const CBaseUnitWnd* pUnit) { return StandsIn(pUnit, m_hView); });
}

bool CBaseFrameDoc::SendGlobalUnitsHome()
{
    CBaseFrameWnd* pMain = FindMainFrame();
    if (!pMain)
        return false;
    bool bAny = false;
    const std::vector<CBaseUnitWnd*> arrUnit(pMain->m_arrGlobalBaseUnitWnd.begin(),
                                             pMain->m_arrGlobalBaseUnitWnd.end());
    for (CBaseUnitWnd* pUnit : arrUnit) {
        if (!pMain->ListsGlobalUnit(pUnit) || !StandsIn(pUnit, m_hView))
            continue;
        pMain->TakeHome(pUnit);
        bAny = true;
    }
    return bAny;
}
