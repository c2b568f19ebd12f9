// What a unit asks of the split tree around it: its neighbours by direction, hidden and shown, and their
// shares. Acts on the active tree; without one nothing is found and nothing changes.
#include "platform/docview/FrameWnd.h"
#include "unit/BaseUnitWnd.h"

using splitframe::CSplitLineLink;

namespace {

bool IsDirection(CSplitLine::DIRECT_VALUE d)
{
    return d >= CSplitLine::DV_RIGHT && d <= CSplitLine::DV_BOTTOM;
}

// The part in that direction is the second side of its line, whose share is what the first one leaves.
bool IsSecondSide(CSplitLine::DIRECT_VALUE d)
{
    return d == CSplitLine::DV_RIGHT || d == CSplitLine::DV_BOTTOM;
}

} // namespace

CBaseUnitWnd* CBaseUnitWnd::FindBaseUnitWnd(CString strSplitName, bool bFirst)
{
    return m_pRoot ? m_pRoot->FindBaseUnitWnd(strSplitName, bFirst) : nullptr;
}

bool CBaseUnitWnd::Hide(DIRECT_VALUE d)
{
    return IsDirection(d) && ProcessModifyWindow(d, false);
}

bool CBaseUnitWnd::Show(DIRECT_VALUE d)
{
    return IsDirection(d) && ProcessModifyWindow(d, true);
}

bool CBaseUnitWnd::ProcessModifyWindow(DIRECT_VALUE d, bool bShow)
{
    CSplitLine* pNeighbour = m_pRoot ? GetSplitLine(d) : nullptr;
    if (!pNeighbour)
        return !bShow;
    const CCallScope scope;
    const CSplitLineLink self(this);
    const CRect rc = m_pRoot->GetViewRect();
    pNeighbour->m_bShow = bShow;
    CFrameWnd* pFrame = rc.IsRectEmpty() ? GetParentFrame() : nullptr;
    if (pFrame) // all of the tree was collapsed: only the frame knows its room
        pFrame->RecalcLayout();
    else
        m_pRoot->ModifyWindow(rc);
    if (self && m_hWnd)
        InvalidateRect(nullptr, TRUE);
    return bShow;
}

double CBaseUnitWnd::HideShow(DIRECT_VALUE d)
{
    if (!IsDirection(d))
        return 0.0;
    const CSplitLineLink self(this);
    const bool bShown = ProcessModifyWindow(d, !m_bShowSide[d]);
    if (self)
        m_bShowSide[d] = bShown;
    return bShown ? 1.0 : 0.0;
}

bool CBaseUnitWnd::GetHideShowState(DIRECT_VALUE d)
{
    const CSplitLine* pNeighbour = GetSplitLine(d);
    const bool bHidden = pNeighbour && !pNeighbour->m_bShow;
    if (IsDirection(d))
        m_bShowSide[d] = !bHidden;
    return bHidden;
}

// A line without a name is set itself: a search would find any node that has none.
double CBaseUnitWnd::ProcessModifyWindow(DIRECT_VALUE d, double dRate)
{
    if (!m_pRoot)
        return dRate;
    CSplitLine* pLine = FindDivider(d);
    CSplitLine* pFrom = pLine && pLine->m_strName.IsEmpty() ? pLine : m_pRoot;
    const double dFirst = IsSecondSide(d) ? 1.0 - dRate : dRate;
    const double dBefore = pLine ? pFrom->ModifyWindow(pLine->m_strName, dFirst) : -1.0;
    return IsSecondSide(d) ? 1.0 - dBefore : dBefore;
}
