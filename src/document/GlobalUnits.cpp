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

// The line of a tree that has the leaf on one of its sides, also while the leaf stands in another tree. Meets
// each node once: one that is held has one line above it, and only the root can close a circle.
CSplitLine* FindLineNaming(CSplitLine& root, const CSplitLine* pLeaf)
{
    std::vector<CSplitLine*> arrLine{&root};
    while (!arrLine.empty()) {
        CSplitLine* pLine = arrLine.back();
        arrLine.pop_back();
        if (pLine->m_pFirst == pLeaf || pLine->m_pSecond == pLeaf)
            return pLine;
        if (pLine->Holds(pLine->m_pFirst) && pLine->m_pFirst != &root)
            arrLine.push_back(pLine->m_pFirst);
        if (pLine->Holds(pLine->m_pSecond) && pLine->m_pSecond != &root &&
            pLine->m_pSecond != pLine->m_pFirst)
            arrLine.push_back(pLine->m_pSecond);
    }
    return nullptr;
}

} // namespace

int CBaseFrameDoc::GetBaseUnitWndGlobalCache(CString strName, CBaseUnitWnd** ppUnit, bool bHandleStyle)
{
    CBaseFrameWnd* pMain = FindMainFrame();
    CBaseUnitWnd* pUnit = pMain ? pMain->FindGlobalBaseUnitWnd(strName) : nullptr;
    const UnitWatch watch(pUnit);
    if (pUnit && !pUnit->GetSafeHwnd() && !IsViewGone()) { // a host has destroyed it, wherever it stood
        pUnit->SetNotifyFunc(nullptr);
        pUnit->m_pParent = nullptr;
        pUnit->Create(pMain, pUnit->m_pBaseUnitInfo);
    }
    if (watch.Get())
        MoveIntoView(pUnit);
    if (watch.Get() && bHandleStyle && !IsViewGone())
        pUnit->HandleStyle(m_strName);
    *ppUnit = watch.Get();
    return watch.Get() ? 1 : 0;
}

// Makes a window that stands elsewhere a child of the view: hidden, until a layout of this frame shows it. It
// leaves its pane only when it really goes: hiding it runs host code, which may close this frame.
void CBaseFrameDoc::MoveIntoView(CBaseUnitWnd* pUnit)
{
    if (IsViewGone() || !m_hView)
        return;
    const UnitWatch watch(pUnit);
    const HWND hUnit = pUnit->GetSafeHwnd();
    if (::GetParent(hUnit) != m_hView) {
        ::ShowWindow(hUnit, SW_HIDE);
        if (IsViewGone())
            return GiveFrontItsOwn();
        if (!watch.Get())
            return;
        pUnit->m_pParent = nullptr;
        ::SetParent(hUnit, m_hView);
    }
    pUnit->m_pHostWnd = m_pView;
}

void CBaseFrameDoc::GiveFrontItsOwn()
{
    if (CBaseFrameWnd* pMain = FindMainFrame())
        pMain->GiveFrontItsOwn();
}

// A global unit's leaf, which a hook has given to another frame after this one found it.
bool CBaseFrameDoc::IsLentElsewhere(const CSplitLine* pLeaf) const
{
    const CBaseUnitWnd* pUnit = pLeaf->GetUnitWnd();
    return pUnit && m_hView && !StandsIn(pUnit, m_hView);
}

CBaseUnitWnd* CBaseFrameDoc::AdoptGlobalUnit(const CString& strName, bool bHandleStyle)
{
    CBaseUnitWnd* pUnit = nullptr;
    GetBaseUnitWndGlobalCache(strName, &pUnit, bHandleStyle);
    if (pUnit && StandsIn(pUnit, m_hView))
        pUnit->SetNotifyFunc(&CBaseFrameView::OnBaseUnitNotify);
    return pUnit;
}

// The names of the global units that the frame places: listed by its style, standing in for a unit of its
// own, or named by a line only.
std::vector<CString> CBaseFrameDoc::GlobalNames()
{
    std::vector<CString> arrName;
    if (const CBaseFrameStyle* pStyle = FindCurrentStyle()) {
        for (const CBaseUnitInfo* pInfo : pStyle->m_arrBaseUnitInfo) {
            if (pInfo->m_bGlobal)
                arrName.push_back(pInfo->m_strName);
        }
    }
    arrName.insert(arrName.end(), m_arrGlobalStandIn.begin(), m_arrGlobalStandIn.end());
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
        CBaseUnitWnd* pUnit = AdoptGlobalUnit(strName, false);
        if (!pUnit || IsLentElsewhere(pUnit))
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

// The unit comes back to where it stood when it was lent, which need not be where its style put it: units
// change places. Else it takes the pane that the style gives it, unless that was given to another unit
// meanwhile.
void CBaseFrameDoc::PutIntoPane(const CString& strName, CBaseUnitWnd* pUnit)
{
    CSplitLine* pLeaf = pUnit;
    if (CSplitLine* pLine = FindLineNaming(*m_pRoot, pLeaf)) {
        pLeaf->m_pParent = pLine;
        return;
    }
    for (GlobalPane& pane : m_arrGlobalPane) {
        CSplitLine* pLine = pane.strName == strName ? pane.line.Get() : nullptr;
        auto* pSide = !pLine ? nullptr : pane.bFirst ? &pLine->m_pFirst : &pLine->m_pSecond;
        if (!pSide || *pSide)
            continue;
        *pSide = pLeaf;
        pLeaf->m_pParent = pLine;
        return;
    }
}

std::vector<CBaseUnitWnd*> CBaseFrameDoc::GlobalsInView()
{
    std::vector<CBaseUnitWnd*> arrUnit;
    if (const CBaseFrameWnd* pMain = FindMainFrame())
        std::copy_if(pMain->m_arrGlobalBaseUnitWnd.begin(), pMain->m_arrGlobalBaseUnitWnd.end(),
                     std::back_inserter(arrUnit),
                     [this](const CBaseUnitWnd* pUnit) { return StandsIn(pUnit, m_hView); });
    return arrUnit;
}

bool CBaseFrameDoc::HasUnitsToLayOut()
{
    return !m_arrBaseUnitWnd.IsEmpty() || !GlobalsInView().empty();
}

bool CBaseFrameDoc::SendGlobalUnitsHome()
{
    bool bAny = false;
    for (CBaseUnitWnd* pUnit : GlobalsInView())
        bAny |= SendHome(pUnit);
    return bAny;
}

// After a switch: those that the new style does not place go home, and one that it lists but gives no pane is
// not seen.
void CBaseFrameDoc::ReturnGlobals()
{
    const std::vector<CString> arrPlaced = GlobalNames();
    for (CBaseUnitWnd* pUnit : GlobalsInView()) {
        CBaseFrameWnd* pMain = FindMainFrame();
        if (!pMain || !pMain->ListsGlobalUnit(pUnit) || !StandsIn(pUnit, m_hView))
            continue;
        const bool bPlaced =
            std::find(arrPlaced.begin(), arrPlaced.end(), pUnit->CSplitLine::m_strName) != arrPlaced.end();
        if (!bPlaced)
            SendHome(pUnit);
        else if (m_pRoot && !pUnit->CSplitLine::m_pParent)
            pUnit->ShowWindow(SW_HIDE);
    }
}

// @return whether it stood in the view
bool CBaseFrameDoc::SendHome(CBaseUnitWnd* pUnit)
{
    CBaseFrameWnd* pMain = FindMainFrame();
    if (!pMain || !pMain->ListsGlobalUnit(pUnit) || !StandsIn(pUnit, m_hView))
        return false;
    pMain->TakeHome(pUnit);
    return true;
}
