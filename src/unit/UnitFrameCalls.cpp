// What a unit asks of the frame around it, and of other frames. The only place of this room that knows
// frames: a frame knows its units, and a unit reaches its frame through the application's windows.
#include "document/BaseFrameDoc.h"
#include "document/BaseFrameHelper.h"
#include "frame/BaseFrameChildWnd.h"
#include "frame/BaseFrameWnd.h"
#include "platform/docview/FrameWnd.h"
#include "platform/docview/WinApp.h"
#include "platform/window/CallScope.h"
#include "unit/BaseUnitWnd.h"

void CBaseUnitWnd::BroadcastCommand(UINT nCmd, LPARAM lParam)
{
    auto* pMain = DynamicDownCast<CFrameWnd>(AfxGetMainWnd());
    if (!pMain)
        return;
    if (auto* pFrame = DynamicDownCast<CBaseFrameChildWnd>(pMain->GetActiveFrame()))
        pFrame->ProcessCommand(nCmd, lParam);
}

void CBaseUnitWnd::OpenBaseFrame(CString strName)
{
    if (auto* pMain = DynamicDownCast<CBaseFrameWnd>(AfxGetMainWnd()))
        pMain->OnBaseFrameOpen(strName.GetString());
}

namespace {

// The frame that a unit stands in; for a global unit at home the one in front. Null when there is none.
CBaseFrameChildWnd* FrameOf(const CBaseUnitWnd& unit)
{
    CFrameWnd* pParentFrame = unit.GetParentFrame();
    return pParentFrame ? DynamicDownCast<CBaseFrameChildWnd>(pParentFrame->GetActiveFrame()) : nullptr;
}

template <class T> T AddressOf(CString& str)
{
    return reinterpret_cast<T>(&str);
}

} // namespace

LRESULT CBaseUnitWnd::ProcessHelperMessage(DWORD nMsg, WPARAM wParam, LPARAM lParam)
{
    CBaseFrameChildWnd* pFrame = FrameOf(*this);
    return pFrame ? pFrame->ProcessHelperMessage(nMsg, wParam, lParam) : -1;
}

bool CBaseUnitWnd::ReplaceBaseUnit(CString strNew, CString strOld)
{
    return FrameOf(*this) && ProcessHelperMessage(HELPER_MSG_REPLACE_OR_MOVE, AddressOf<WPARAM>(strOld),
                                                  AddressOf<LPARAM>(strNew)) != 0;
}

bool CBaseUnitWnd::ReplaceBaseUnit(CString strNew, CString strSplitName, bool bFirst)
{
    CString strSide;
    strSide.Format(L"%s,%d", strSplitName.GetString(), bFirst ? 1 : 0);
    return FrameOf(*this) && ProcessHelperMessage(HELPER_MSG_REPLACE_SIDE, AddressOf<WPARAM>(strSide),
                                                  AddressOf<LPARAM>(strNew)) != 0;
}

bool CBaseUnitWnd::ReplaceBaseUnit(CString strNew, CBaseUnitWnd* pOld)
{
    const CCallScope scope;
    CBaseFrameChildWnd* pFrame = FrameOf(*this);
    CBaseFrameDoc* pDoc = pFrame ? pFrame->GetFrameDoc() : nullptr;
    if (!pDoc || !pDoc->m_pRoot || !pDoc->m_pRoot->Replace(pOld, FindBaseUnitWnd(strNew)))
        return false;
    if (pDoc->m_pRoot) // a hook may have taken the tree down
        pDoc->m_pRoot->ModifyWindow();
    return true;
}

CBaseUnitWnd* CBaseUnitWnd::FindBaseUnitWnd(CString strName)
{
    CFrameWnd* pFrame = GetParentFrame();
    auto* pDoc = pFrame ? DynamicDownCast<CBaseFrameDoc>(pFrame->GetActiveDocument()) : nullptr;
    return pDoc ? pDoc->GetBaseUnitWnd(strName) : nullptr;
}

CBaseUnitWnd* CBaseUnitWnd::FindBaseUnitWnd2(CString strFrame, CString strUnit)
{
    auto* pMain = DynamicDownCast<CBaseFrameWnd>(AfxGetMainWnd());
    CBaseFrameDoc* pDoc = pMain ? pMain->FindBaseFrameDoc(strFrame) : nullptr;
    return pDoc ? pDoc->CreateBaseUnitWnd(strUnit) : nullptr;
}
