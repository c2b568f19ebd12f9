// The layout written down as plainly as can be: recursive, every size asked for where it is needed. Slow, and
// lost when a hook destroys something; what the library does is compared with it.
#pragma once

#include "definition/UnitInfo.h"
#include "layout/SplitLine.h"
#include "platform/base/Number.h"
#include "platform/window/WindowManager.h"
#include "unit/BaseUnitWnd.h"

#include <algorithm>
#include <cmath>

namespace literal {

using splitframe::AddClamped;
using splitframe::SubtractClamped;

inline bool IsUnit(const CSplitLine* p)
{
    return p->m_nType == CSplitLine::NT_UNIT;
}
inline bool IsStacked(const CSplitLine* p)
{
    return p->m_nType == CSplitLine::NT_HLINE;
}

inline int MinWidth(const CSplitLine* p)
{
    if (!p || !p->m_bShow)
        return 0;
    if (IsUnit(p))
        return p->GetUnitWnd()->m_pBaseUnitInfo->m_nMinWidth;
    const int a = MinWidth(p->m_pFirst), b = MinWidth(p->m_pSecond);
    return IsStacked(p) ? std::max(a, b) : AddClamped(a, b);
}
inline int MaxWidth(const CSplitLine* p)
{
    if (!p || !p->m_bShow)
        return 0;
    if (IsUnit(p))
        return p->GetUnitWnd()->m_pBaseUnitInfo->m_nMaxWidth;
    const int a = MaxWidth(p->m_pFirst), b = MaxWidth(p->m_pSecond);
    return IsStacked(p) ? std::max(a, b) : AddClamped(a, b);
}
inline int MinHeight(const CSplitLine* p)
{
    if (!p || !p->m_bShow)
        return 0;
    if (IsUnit(p))
        return p->GetUnitWnd()->IsWindowVisible() ? p->GetUnitWnd()->m_pBaseUnitInfo->m_nMinHeight : 0;
    const int a = MinHeight(p->m_pFirst), b = MinHeight(p->m_pSecond);
    return IsStacked(p) ? AddClamped(a, b) : std::max(a, b);
}
inline int MaxHeight(const CSplitLine* p)
{
    if (!p || !p->m_bShow)
        return 0;
    if (IsUnit(p))
        return p->GetUnitWnd()->m_pBaseUnitInfo->m_nMaxHeight;
    const int a = MaxHeight(p->m_pFirst), b = MaxHeight(p->m_pSecond);
    return IsStacked(p) ? AddClamped(a, b) : std::max(a, b);
}
inline int WidthFixed(const CSplitLine* p)
{
    if (MinWidth(p) == MaxWidth(p))
        return MinWidth(p);
    if (IsUnit(p))
        return 0;
    const int a = WidthFixed(p->m_pFirst), b = WidthFixed(p->m_pSecond);
    return IsStacked(p) ? std::max(a, b) : AddClamped(a, b);
}
inline int HeightFixed(const CSplitLine* p)
{
    if (MinHeight(p) == MaxHeight(p))
        return MinHeight(p);
    if (IsUnit(p))
        return 0;
    const int a = HeightFixed(p->m_pFirst), b = HeightFixed(p->m_pSecond);
    return IsStacked(p) ? AddClamped(a, b) : std::max(a, b);
}

inline CRect ViewRect(const CSplitLine* p)
{
    if (!p || !p->m_bShow)
        return {};
    if (IsUnit(p)) {
        CRect rc;
        if (!p->GetUnitWnd()->m_hWnd)
            return rc;
        p->GetUnitWnd()->GetWindowRect(rc);
        p->GetUnitWnd()->GetParent()->ScreenToClient(rc);
        return rc;
    }
    const CRect a = ViewRect(p->m_pFirst), b = ViewRect(p->m_pSecond);
    if (a.IsRectEmpty())
        return b;
    if (b.IsRectEmpty())
        return a;
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
            std::max(a.bottom, b.bottom)};
}

inline int Truncated(double dFree, double dRate, double dTaken)
{
    return splitframe::ClampToInt(dFree * dRate + dTaken);
}

inline void ModifyWindow2(CSplitLine* p, CRect rc)
{
    while (p && !IsUnit(p)) {
        const CSplitLine *pFirst = p->m_pFirst, *pSecond = p->m_pSecond;
        CRect rcFirst = rc, rcSecond = rc;
        if (IsStacked(p)) {
            int y;
            if (MinHeight(pFirst) == MaxHeight(pFirst))
                y = AddClamped(rc.top, HeightFixed(pFirst));
            else if (MinHeight(pSecond) == MaxHeight(pSecond))
                y = SubtractClamped(rc.bottom, HeightFixed(pSecond));
            else
                y = Truncated(double(rc.bottom) - rc.top - HeightFixed(p), p->m_dLRate,
                              double(HeightFixed(pFirst)) + rc.top);
            rcFirst.bottom = rcSecond.top = y;
        } else {
            int x;
            if (MinWidth(pFirst) == MaxWidth(pFirst))
                x = AddClamped(rc.left, WidthFixed(pFirst));
            else if (MinWidth(pSecond) == MaxWidth(pSecond))
                x = SubtractClamped(rc.right, WidthFixed(pSecond));
            else
                x = Truncated(double(rc.right) - rc.left - WidthFixed(p), p->m_dLRate,
                              double(WidthFixed(pFirst)) + rc.left);
            rcFirst.right = rcSecond.left = x;
        }
        ModifyWindow2(p->m_pSecond, rcSecond);
        p = p->m_pFirst;
        rc = rcFirst;
    }
    if (!p)
        return;
    CBaseUnitWnd* pUnit = p->GetUnitWnd();
    CBaseUnitInfo* pInfo = pUnit->m_pBaseUnitInfo;
    pInfo->m_x = rc.left;
    pInfo->m_y = rc.top;
    pInfo->m_cx = rc.Width();
    pInfo->m_cy = rc.Height();
    if (!pUnit->m_bActivated) {
        pUnit->m_bActivated = true;
        pUnit->ProcessActivate2(true);
    }
    ::SetWindowPos(pUnit->m_hWnd, nullptr, rc.left, rc.top, rc.Width(), rc.Height(), SWP_SHOWWINDOW);
}

inline void ModifyWindow(CSplitLine* p)
{
    const CRect rc = ViewRect(p);
    ModifyWindow2(p, rc);
    ModifyWindow2(p, rc);
}

inline void ModifyWindow(CSplitLine* p, const CRect& rc)
{
    const CRect rcView = ViewRect(p);
    ModifyWindow2(p, {rcView.left, rc.top, rcView.right, rc.bottom});
    ModifyWindow2(p, rc);
}

inline void ReCalRate(CSplitLine* p)
{
    if (!p || IsUnit(p) || !p->m_bShow)
        return;
    if (p->m_bMobile) {
        const CRect rcFirst = ViewRect(p->m_pFirst), rc = ViewRect(p);
        const double dFirst = IsStacked(p) ? double(rcFirst.bottom) - rcFirst.top - HeightFixed(p->m_pFirst)
                                           : double(rcFirst.right) - rcFirst.left - WidthFixed(p->m_pFirst);
        const double dAll = IsStacked(p) ? double(rc.bottom) - rc.top - HeightFixed(p)
                                         : double(rc.right) - rc.left - WidthFixed(p);
        if (!rc.IsRectEmpty() && std::isfinite(dFirst / dAll))
            p->m_dLRate = dFirst / dAll;
    }
    ReCalRate(p->m_pFirst);
    ReCalRate(p->m_pSecond);
}

inline double ModifyWindow(CSplitLine* p, const CString& strName, double dRate)
{
    if (!p)
        return -1.0;
    if (p->m_strName == strName) {
        const double dBefore = p->m_dLRate;
        const CRect rc = ViewRect(p);
        p->m_dLRate = dRate;
        ModifyWindow(p, rc);
        return dBefore;
    }
    const double dFound = ModifyWindow(p->m_pFirst, strName, dRate);
    return dFound != -1.0 ? dFound : ModifyWindow(p->m_pSecond, strName, dRate);
}

} // namespace literal
