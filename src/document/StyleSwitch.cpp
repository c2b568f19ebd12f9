// Switching an open frame between its styles: the old units retire into the cache, the new style's units are
// gathered from there, from the global units, or made, and a new tree arranges them.
//
// Every step calls host code, which may close the frame, delete units or clear the styles: between any two
// calls everything is looked up again, and a view that is gone ends the switch. A hook that asks for another
// style meanwhile is heard when the switch is over, so that no unit is ever told of two switches at once.
#include "definition/FrameStyle.h"
#include "definition/UnitInfo.h"
#include "document/BaseFrameDoc.h"
#include "document/BaseFrameHelper.h"
#include "document/BaseFrameView.h"
#include "document/UnitID.h"
#include "document/UnitWatch.h"
#include "layout/SplitLine.h"
#include "platform/docview/ScopedFlag.h"
#include "platform/window/CallScope.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

using splitframe::UnitWatch;

namespace {

// Hooks that answer every switch by another one would do so without end.
constexpr int MAX_SWITCHES_IN_A_ROW = 16;

// The unit IDs that a style gives to its units. A parameter that is missing is found out when the units are
// gathered; one too many belongs to no unit.
std::unordered_set<int> UnitIDsOf(const CBaseFrameStyle& style)
{
    std::unordered_set<int> setID;
    const int nCount = std::min(style.m_arrBaseUnitInfo.GetSize(), style.m_arrParam.GetSize());
    for (int i = 0; i < nCount; ++i)
        setID.insert(splitframe::UnitIDOf(style.m_arrParam[i]));
    setID.erase(splitframe::NO_UNIT_ID);
    return setID;
}

} // namespace

void CBaseFrameDoc::ChangeStyle(int nStyle, bool bHandleStyle)
{
    const CCallScope scope;
    if (!FindStyle(nStyle))
        AfxThrowInvalidArgException();
    m_styleRequest = StyleRequest{nStyle, bHandleStyle};
    if (!m_bExchanging)
        RunStyleRequests();
}

bool CBaseFrameDoc::ChangeStyle(const wchar_t* pszStyle)
{
    const CString strStyle(pszStyle);
    const auto* pAt = std::find_if(m_arrStyle.begin(), m_arrStyle.end(), [&](const CBaseFrameStyle* pStyle) {
        return pStyle->m_strName.CompareNoCase(strStyle) == 0;
    });
    if (pAt == m_arrStyle.end())
        return false;
    const int nStyle = static_cast<int>(pAt - m_arrStyle.begin());
    if (nStyle != m_nCurStyle || m_bExchanging)
        ChangeStyle(nStyle, false);
    return true;
}

void CBaseFrameDoc::RunStyleRequests()
{
    const splitframe::ScopedFlag exchanging(m_bExchanging);
    for (int i = 0; m_styleRequest && i < MAX_SWITCHES_IN_A_ROW; ++i)
        SwitchTo(*std::exchange(m_styleRequest, std::nullopt));
    if (std::exchange(m_styleRequest, std::nullopt))
        Report(L"every change of style asks for another one; the last one is not made", m_strName);
}

void CBaseFrameDoc::SwitchTo(const StyleRequest& request)
{
    const bool bWasInFront = m_bActive;
    AdoptListedGlobals(request);
    if (IsViewGone())
        return;
    SetRoot();
    if (request.nStyle != m_nCurStyle)
        ExchangeUnits(request.nStyle);
    // A hook has brought another frame to the front, which misses what was taken since.
    if (bWasInFront && !m_bActive)
        GiveFrontItsOwn();
}

void CBaseFrameDoc::ExchangeUnits(int nStyle)
{
    try {
        RetireUnits(nStyle);
        if (IsViewGone())
            return;
        m_nCurStyle = nStyle;
        m_nCurBaseUnitWnd = 0;
        GatherUnits();
        TellHelperOfStyle();
        TellUnitsOfStyle();
    } catch (...) {
        BreakOff(nStyle);
        throw;
    }
    if (IsViewGone())
        return;
    if (CBaseFrameStyle* pStyle = FindCurrentStyle())
        BuildTree(*pStyle);
    else
        DeleteTree(); // a hook has cleared the definition
    ReturnGlobals();
    HideCachedUnits();
    ShowNewStyle();
}

// What the old style had waits in the cache, and there is nothing to lay out until the next switch.
void CBaseFrameDoc::BreakOff(int nStyle)
{
    if (IsViewGone())
        return;
    m_nCurStyle = nStyle;
    m_nCurBaseUnitWnd = 0;
    for (const CBaseUnitWnd* pUnit : m_arrWndCache)
        RemoveUnit(pUnit);
    DeleteTree();
    HideCachedUnits();
}

void CBaseFrameDoc::AdoptListedGlobals(const StyleRequest& request)
{
    const CBaseFrameStyle* pStyle = nullptr;
    for (int i = 0;
         !IsViewGone() && (pStyle = FindStyle(request.nStyle)) && i < pStyle->m_arrBaseUnitInfo.GetSize();
         ++i) {
        const CBaseUnitInfo& info = *pStyle->m_arrBaseUnitInfo[i];
        if (info.m_bGlobal)
            AdoptGlobalUnit(info.m_strName, request.bHandleStyle);
    }
}

// --- the old units

// They stand in both lists until their turn: a hook finds them in the frame until then.
void CBaseFrameDoc::RetireUnits(int nStyle)
{
    const CBaseFrameStyle* pStyle = FindStyle(nStyle);
    if (!pStyle)
        return;
    const std::unordered_set<int> setKept = UnitIDsOf(*pStyle);
    UpdateBaseUnitWndCache();
    while (!m_arrBaseUnitWnd.IsEmpty() && !IsViewGone()) {
        CBaseUnitWnd* pUnit = m_arrBaseUnitWnd[0];
        const UnitWatch watch(pUnit);
        if (!setKept.contains(m_arrBaseUnitWndID.GetAt(0)))
            pUnit->ShowWindowEx(SW_HIDE);
        if (watch.Get())
            pUnit->StyleChange(false);
        if (watch.Get())
            RemoveUnit(pUnit);
    }
}

// A layout of the old tree that a hook asked for may have shown units again that had left; of two units with
// one ID the second one stays behind.
void CBaseFrameDoc::HideCachedUnits()
{
    std::vector<CBaseUnitWnd*> arrVisible;
    std::copy_if(m_arrWndCache.begin(), m_arrWndCache.end(), std::back_inserter(arrVisible),
                 [](const CBaseUnitWnd* pUnit) { return pUnit->GetStyle() & WS_VISIBLE; });
    for (CBaseUnitWnd* pUnit : arrVisible) {
        if (std::find(m_arrWndCache.begin(), m_arrWndCache.end(), pUnit) != m_arrWndCache.end())
            pUnit->ShowWindowEx(SW_HIDE);
    }
}

// --- the new units

void CBaseFrameDoc::GatherUnits()
{
    m_arrCarried.clear();
    m_arrGlobalStandIn.clear();
    const CBaseFrameStyle* pStyle = nullptr;
    for (int i = 0; !IsViewGone() && (pStyle = FindCurrentStyle()) && i < pStyle->m_arrBaseUnitInfo.GetSize();
         ++i)
        GatherUnit(i);
}

// A cached window of the entry's ID, or the global unit of its name, or a new window.
void CBaseFrameDoc::GatherUnit(int nEntry)
{
    const CBaseFrameStyle* pStyle = FindCurrentStyle();
    const CString strName = pStyle->m_arrBaseUnitInfo[nEntry]->m_strName;
    const CString strParam = pStyle->m_arrParam.GetAt(nEntry);
    const int nID = splitframe::UnitIDOf(strParam);
    CBaseUnitWnd* pUnit = nullptr;
    if (GetBaseUnitWndCache(nID, &pUnit) != 0)
        return CarryUnit(pUnit, nID, strName, strParam);
    if (IsViewGone())
        return;
    if (AdoptGlobalUnit(strName, false)) {
        m_arrGlobalStandIn.push_back(strName);
        return;
    }
    pStyle = FindCurrentStyle();
    if (IsViewGone() || !pStyle || nEntry >= pStyle->m_arrBaseUnitInfo.GetSize())
        return;
    if ((pUnit = MakeOwnUnit(pStyle->m_arrBaseUnitInfo[nEntry], strParam)))
        SetUnitID(pUnit, nID);
}

// The window keeps its record, its parameters and its notification function. One that was made before its
// frame was opened has neither of the last two yet; one that has parameters only was muted by its host.
void CBaseFrameDoc::CarryUnit(CBaseUnitWnd* pUnit, int nID, const CString& strEntry, const CString& strParam)
{
    AppendUnit(pUnit, nID);
    if (!(pUnit->CSplitLine::m_strName == strEntry))
        m_arrCarried.push_back({strEntry, pUnit});
    if (pUnit->m_pfnNotify || !pUnit->m_strParam.IsEmpty())
        return;
    const UnitWatch watch(pUnit);
    pUnit->Init(strParam);
    if (watch.Get() && !pUnit->m_pfnNotify)
        pUnit->SetNotifyFunc(&CBaseFrameView::OnBaseUnitNotify);
}

CBaseUnitWnd* CBaseFrameDoc::FindCarried(const CString& strEntry) const
{
    for (const CarriedUnit& carried : m_arrCarried) {
        if (carried.unit && carried.strEntry == strEntry)
            return carried.unit->GetUnitWnd();
    }
    return nullptr;
}

// --- telling and showing

void CBaseFrameDoc::TellHelperOfStyle()
{
    if (!IsViewGone() && m_pHelper)
        m_pHelper->OnStyleInitial();
    CRect rc;
    ::GetClientRect(m_hView, &rc);
    if (!IsViewGone() && m_pHelper)
        m_pHelper->OnCalcWindowRect(&rc);
}

// The first unit gets the focus and is the current one, whatever a hook has made the current one meanwhile.
void CBaseFrameDoc::TellUnitsOfStyle()
{
    bool bFirst = true;
    ForEachUnit([&](CBaseUnitWnd* pUnit) {
        if (IsViewGone())
            return;
        const UnitWatch watch(pUnit);
        pUnit->StyleChange(true);
        if (std::exchange(bFirst, false) && watch.Get() && !IsViewGone()) {
            m_nCurBaseUnitWnd = 0;
            pUnit->OnProcessCommand(splitframe::UNIT_CMD_SET_FOCUS, 0);
        }
    });
}

void CBaseFrameDoc::ShowNewStyle()
{
    if (!m_pView || IsViewGone())
        return;
    if (!m_pRoot)
        return ShowStyleWithoutLines();
    CRect rc;
    ::GetClientRect(m_hView, &rc);
    m_pRoot->ModifyWindow(rc);
}
