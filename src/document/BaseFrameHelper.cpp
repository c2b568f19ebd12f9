#include "document/BaseFrameHelper.h"

#include "definition/UnitInfo.h"
#include "document/BaseFrameDoc.h"
#include "document/NameIndex.h"
#include "document/UnitWatch.h"
#include "platform/base/Number.h"
#include "platform/window/CallScope.h"
#include "platform/window/WindowManager.h"
#include "unit/BaseUnitWnd.h"

#include <deque>

using splitframe::AddClamped;
using splitframe::ClampToInt;

IMPLEMENT_DYNCREATE(CBaseFrameHelper, CObject)

namespace {

constexpr int BORDER_PLACED_BY_RATES = 1;

CRect RectByRate(const CBaseUnitInfo& info, const RECT& rcSource)
{
    const auto edge = [](int nFrom, int nExtent, double dRate) {
        return AddClamped(nFrom, ClampToInt(nExtent * dRate));
    };
    const CRect rc(rcSource);
    return {edge(rc.left, rc.Width(), info.m_dLeftRate), edge(rc.top, rc.Height(), info.m_dTopRate),
            edge(rc.left, rc.Width(), info.m_dRightRate), edge(rc.top, rc.Height(), info.m_dBottomRate)};
}

// A limit of 0 or less does not count; the smallest size has the last word.
int LimitSize(int nSize, int nMin, int nMax)
{
    if (nSize < nMin && nMin > 0)
        return nMin;
    return nSize > nMax && nMax > 0 ? nMax : nSize;
}

void PlaceByRates(CBaseUnitWnd* pUnit, const RECT& rcSource)
{
    const CBaseUnitInfo* pInfo = pUnit->m_pBaseUnitInfo;
    if (!pInfo || pInfo->m_nBorderStyle != BORDER_PLACED_BY_RATES)
        return;
    const CRect rc = RectByRate(*pInfo, rcSource);
    const int nWidth = LimitSize(rc.Width(), pInfo->m_nMinWidth, pInfo->m_nMaxWidth);
    const int nHeight = LimitSize(rc.Height(), pInfo->m_nMinHeight, pInfo->m_nMaxHeight);

    const splitframe::UnitWatch watch(pUnit);
    ::MoveWindow(pUnit->GetSafeHwnd(), rc.left, rc.top, nWidth, nHeight, TRUE);
    CBaseUnitInfo* pPlaced = watch.Get() ? pUnit->m_pBaseUnitInfo : nullptr;
    if (!pPlaced)
        return;
    pPlaced->m_x = rc.left;
    pPlaced->m_y = rc.top;
    pPlaced->m_cx = nWidth;
    pPlaced->m_cy = nHeight;
}

} // namespace

CBaseFrameHelper::CBaseFrameHelper() = default;
CBaseFrameHelper::~CBaseFrameHelper() = default;

void CBaseFrameHelper::ProcessActivate2(bool /*bActivate*/) {}

GUID CBaseFrameHelper::GetGUID()
{
    return {0x8B7ABE7C, 0xD4E1, 0x43B5, {0xBC, 0x2E, 0xA7, 0x07, 0x13, 0xBC, 0xCA, 0xA9}};
}

void CBaseFrameHelper::OnStyleInitial() {}

void CBaseFrameHelper::OnBaseUnitNotify(UINT /*nCode*/, LPARAM /*lParam*/) {}

CBaseUnitWnd* CBaseFrameHelper::GetBaseUnitWnd(const wchar_t* pszName)
{
    return m_pDoc ? splitframe::FindUnit(m_pDoc->m_arrBaseUnitWnd, pszName) : nullptr;
}

void CBaseFrameHelper::CalcRectByRate(CBaseUnitInfo* pInfo, LPRECT lpSource, CRect& rcDest)
{
    rcDest = RectByRate(*pInfo, *lpSource);
}

// Moving a unit runs host code, which may delete units: the list is taken once, and each unit is looked for
// again before its turn.
void CBaseFrameHelper::OnCalcWindowRect(LPRECT lpRect)
{
    const CCallScope scope;
    if (!m_pDoc || !lpRect)
        return;
    const RECT rcSource = *lpRect;
    std::deque<splitframe::UnitWatch> arrUnit; // watches do not move
    for (int i = 0; i < m_pDoc->GetBaseUnitWndCount(); ++i)
        arrUnit.emplace_back(m_pDoc->GetBaseUnitWnd(i));
    for (int i = 0; i < m_pDoc->GetWndCacheCount(); ++i)
        arrUnit.emplace_back(m_pDoc->GetWndCache(i));
    for (const splitframe::UnitWatch& watch : arrUnit) {
        if (watch.Get())
            PlaceByRates(watch.Get(), rcSource);
    }
}
