// Making the units of an opened frame. Between any two units host code may have run: it may close the frame,
// delete units or clear the styles, so everything is looked up again, and a view that is gone ends the work.
#include "definition/FrameStyle.h"
#include "definition/UnitInfo.h"
#include "document/BaseFrameDoc.h"
#include "document/BaseFrameHelper.h"
#include "document/BaseFrameView.h"
#include "document/DocumentList.h"
#include "document/NameIndex.h"
#include "document/ObjectFactory.h"
#include "document/UnitID.h"
#include "document/UnitWatch.h"
#include "platform/docview/ScopedFlag.h"
#include "platform/window/CallScope.h"

void CBaseFrameDoc::Create(CBaseFrameView* pView)
{
    const CCallScope scope;
    m_pView = pView;
    m_hView = pView ? pView->GetSafeHwnd() : nullptr;
    m_bViewDying = false;
    if (!FindCurrentStyle())
        AfxThrowInvalidArgException();
    {
        const splitframe::ScopedFlag exchanging(m_bExchanging);
        CreateStyle();
    }
    if (!m_bExchanging)
        RunStyleRequests();
}

void CBaseFrameDoc::CreateStyle()
{
    CBaseFrameStyle* pStyle = FindCurrentStyle();
    const splitframe::EntryNames entries(*pStyle);
    for (int i = 0; !IsViewGone() && (pStyle = FindCurrentStyle()) && i < pStyle->m_arrBaseUnitInfo.GetSize();
         ++i) {
        CBaseUnitInfo* pInfo = pStyle->m_arrBaseUnitInfo[i];
        const CString strParam = pStyle->m_arrParam.GetAt(i);
        if (pInfo->m_bGlobal) {
            AdoptGlobalUnit(pInfo->m_strName, false);
        } else if (CBaseUnitWnd* pUnit = CreateOwnUnit(pInfo, strParam)) {
            const splitframe::UnitWatch watch(pUnit);
            const GUID guid = pUnit->GetGUID();
            if (watch.Get() && (pStyle = FindCurrentStyle()))
                SetUnitID(pUnit,
                          splitframe::UnitIDInStyle(*pStyle, entries.Find(pUnit->CSplitLine::m_strName), guid,
                                                    pUnit->CSplitLine::m_strName));
        }
    }
    FocusFirstUnit();
    if (m_pHelper)
        m_pHelper->m_pDoc = this;
    pStyle = FindCurrentStyle();
    if (IsViewGone() || !pStyle)
        return;
    BuildTree(*pStyle);
    if (!m_pRoot && !IsViewGone())
        ShowStyleWithoutLines();
}

// A unit taken from the cache or made from its class, with its parameters, in the list. Null when there is no
// usable class, or when a hook deleted the unit.
CBaseUnitWnd* CBaseFrameDoc::CreateOwnUnit(CBaseUnitInfo* pInfo, const CString& strParam)
{
    CBaseUnitWnd* pCached = GetBaseUnitWndCache(pInfo->m_strName);
    if (!pCached)
        return MakeOwnUnit(pInfo, strParam);
    splitframe::NewUnit unit(pCached);
    splitframe::DocumentList::ForgetCached(pCached, this);
    if (pCached->GetSafeHwnd())
        MoveIntoView(pCached);
    else // a host has destroyed it
        pCached->Create(m_pView, pInfo);
    return ListOwnUnit(unit, strParam);
}

CBaseUnitWnd* CBaseFrameDoc::MakeOwnUnit(CBaseUnitInfo* pInfo, const CString& strParam)
{
    splitframe::NewUnit unit(splitframe::MakeUnit(pInfo->m_guid).release());
    if (!unit.Get()) {
        if (!m_bFaultsTold)
            Report(L"no usable unit class has this GUID; the unit is skipped", pInfo->m_strName);
        return nullptr;
    }
    unit.Get()->Create(m_pView, pInfo);
    return ListOwnUnit(unit, strParam);
}

CBaseUnitWnd* CBaseFrameDoc::ListOwnUnit(splitframe::NewUnit& unit, const CString& strParam)
{
    if (unit.Get() && !IsViewGone())
        unit.Get()->Init(strParam);
    if (!unit.Get())
        return nullptr;
    unit.Get()->SetNotifyFunc(&CBaseFrameView::OnBaseUnitNotify);
    AppendUnit(unit.Get(), splitframe::NO_UNIT_ID);
    return unit.Release();
}

void CBaseFrameDoc::AppendUnit(CBaseUnitWnd* pUnit, int nID)
{
    m_arrBaseUnitWnd.Add(pUnit);
    m_arrBaseUnitWndID.Add(nID);
}

void CBaseFrameDoc::FocusFirstUnit()
{
    if (!m_arrBaseUnitWnd.IsEmpty() && !IsViewGone())
        m_arrBaseUnitWnd[0]->OnProcessCommand(splitframe::UNIT_CMD_SET_FOCUS, 0);
}

// Without lines there is no layout that would show the units.
void CBaseFrameDoc::ShowStyleWithoutLines()
{
    const auto show = [](CBaseUnitWnd* pUnit) {
        const splitframe::UnitWatch watch(pUnit);
        pUnit->ShowWindow(SW_SHOW);
        if (watch.Get())
            pUnit->m_bActivated = true;
    };
    ForEachUnit(show);
    for (const CString& strName : GlobalNames()) {
        CBaseUnitWnd* pUnit = FindGlobalInView(strName);
        if (pUnit)
            show(pUnit);
    }
}
