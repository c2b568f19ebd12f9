// What a unit asks of the frame around it. The only place of this room that knows frames: a frame knows its
// units, and a unit reaches its frame through the application's windows.
#include "frame/BaseFrameChildWnd.h"
#include "frame/BaseFrameWnd.h"
#include "platform/docview/FrameWnd.h"
#include "platform/docview/WinApp.h"
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

LRESULT CBaseUnitWnd::ProcessHelperMessage(DWORD nMsg, WPARAM wParam, LPARAM lParam)
{
    CFrameWnd* pParentFrame = GetParentFrame();
    if (!pParentFrame)
        return -1;
    if (auto* pFrame = DynamicDownCast<CBaseFrameChildWnd>(pParentFrame->GetActiveFrame()))
        return pFrame->ProcessHelperMessage(nMsg, wParam, lParam);
    return -1;
}
