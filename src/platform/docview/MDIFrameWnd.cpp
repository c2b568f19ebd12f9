// The MDI main frame above its client: who is the active frame, closing all of it, and what follows from
// showing it.
#include "platform/docview/MDIFrameWnd.h"

#include "platform/docview/Document.h"
#include "platform/docview/MDIChildWnd.h"
#include "platform/docview/MDIClient.h"
#include "platform/docview/ScopedFlag.h"
#include "platform/window/CallScope.h"

#include <algorithm>

namespace {
constexpr LPARAM KEY_WAS_DOWN = LPARAM{1} << 30;
}

IMPLEMENT_DYNCREATE(CMDIFrameWnd, CFrameWnd)

BEGIN_MESSAGE_MAP(CMDIFrameWnd, CFrameWnd)
ON_WM_CLOSE()
ON_WM_SIZE()
ON_WM_SHOWWINDOW()
ON_WM_SETFOCUS()
ON_WM_ACTIVATE()
END_MESSAGE_MAP()

CMDIFrameWnd::CMDIFrameWnd() = default;

CMDIFrameWnd::~CMDIFrameWnd()
{
    EndFromDestructor();
}

BOOL CMDIFrameWnd::OnCreateClient(CREATESTRUCT* /*lpcs*/, CCreateContext* /*pContext*/)
{
    m_bDying = false;
    m_pClient = std::make_unique<splitframe::CMDIClient>(this);
    if (!m_pClient->CreateClient())
        return FALSE;
    m_hWndMDIClient = m_pClient->GetSafeHwnd();
    return TRUE;
}

// --- child frames

CMDIChildWnd* CMDIFrameWnd::MDIGetActive(BOOL* pbMaximized) const
{
    CWnd* pActive = m_pClient ? CWnd::FromHandle(m_pClient->GetActive()) : nullptr;
    auto* pChild = DYNAMIC_DOWNCAST(CMDIChildWnd, pActive);
    if (pbMaximized)
        *pbMaximized = pChild != nullptr;
    return pChild;
}

std::vector<CMDIChildWnd*> CMDIFrameWnd::GetChildFrames() const
{
    return m_pClient && m_pClient->GetSafeHwnd() ? m_pClient->GetChildFrames() : std::vector<CMDIChildWnd*>();
}

void CMDIFrameWnd::MDIActivate(CWnd* pWndActivate)
{
    auto* pChild = DYNAMIC_DOWNCAST(CMDIChildWnd, pWndActivate);
    if (pChild && m_pClient && pChild->GetSafeHwnd() && pChild->GetParent() == m_pClient.get())
        pChild->ActivateFrame(-1);
}

void CMDIFrameWnd::MDINext(BOOL bPrevious)
{
    std::vector<CMDIChildWnd*> arrFrame = GetChildFrames();
    std::erase_if(arrFrame, [](const CMDIChildWnd* pFrame) { return !pFrame->IsShown(); });
    if (bPrevious)
        std::ranges::reverse(arrFrame);
    if (arrFrame.empty())
        return;
    const auto active = std::ranges::find(arrFrame, MDIGetActive());
    const bool bGoRound = active == arrFrame.end() || active + 1 == arrFrame.end();
    MDIActivate(bGoRound ? arrFrame.front() : *(active + 1));
}

void CMDIFrameWnd::MDIMaximize(CWnd* pWnd)
{
    MDIActivate(pWnd); // child frames always fill the client
}

CFrameWnd* CMDIFrameWnd::GetActiveFrame()
{
    CMDIChildWnd* pChild = MDIGetActive();
    return pChild ? static_cast<CFrameWnd*>(pChild) : this;
}

CDocument* CMDIFrameWnd::GetActiveDocument()
{
    CMDIChildWnd* pChild = MDIGetActive();
    return pChild ? pChild->GetActiveDocument() : nullptr;
}

void CMDIFrameWnd::OnChildFramesChanged()
{
    OnUpdateFrameTitle(TRUE);
}

void CMDIFrameWnd::OnUpdateFrameTitle(BOOL bAddToTitle)
{
    if (!m_bDying)
        CFrameWnd::OnUpdateFrameTitle(bAddToTitle);
}

// --- closing

void CMDIFrameWnd::OnClose()
{
    const CCallScope scope;
    const HWND hWnd = GetSafeHwnd();
    if (m_bClosing || !CloseChildFrames() || !::IsWindow(hWnd))
        return;
    CFrameWnd::OnClose();
}

// One round over the frames that are open now: a frame that refuses, and one that opens meanwhile, keeps the
// main frame.
bool CMDIFrameWnd::CloseChildFrames()
{
    const splitframe::ScopedFlag closing(m_bClosing);
    std::vector<HWND> arrChild;
    for (const CMDIChildWnd* pFrame : GetChildFrames())
        arrChild.push_back(pFrame->GetSafeHwnd());
    for (const HWND hChild : arrChild) {
        ::SendMessage(hChild, WM_CLOSE);
        if (::IsWindow(hChild))
            return false;
    }
    return GetChildFrames().empty();
}

void CMDIFrameWnd::OnBeginDestroy()
{
    m_bDying = true;
    CFrameWnd::OnBeginDestroy();
}

void CMDIFrameWnd::PostNcDestroy()
{
    m_hWndMDIClient = nullptr;
    CFrameWnd::PostNcDestroy();
}

// --- layout

void CMDIFrameWnd::LayoutActiveChild()
{
    if (CMDIChildWnd* pChild = MDIGetActive())
        pChild->RecalcLayout(TRUE);
}

void CMDIFrameWnd::OnSize(UINT nType, int cx, int cy)
{
    const CCallScope scope;
    const bool bRestored = m_bMinimized && nType != SIZE_MINIMIZED;
    m_bMinimized = nType == SIZE_MINIMIZED;
    CFrameWnd::OnSize(nType, cx, cy);
    if (bRestored)
        LayoutActiveChild();
}

void CMDIFrameWnd::OnShowWindow(BOOL bShow, UINT nStatus)
{
    const CCallScope scope;
    CFrameWnd::OnShowWindow(bShow, nStatus);
    if (bShow)
        LayoutActiveChild();
}

// --- messages and commands

void CMDIFrameWnd::OnSetFocus(CWnd* pOldWnd)
{
    if (CMDIChildWnd* pChild = MDIGetActive())
        pChild->SetFocus();
    else
        CFrameWnd::OnSetFocus(pOldWnd);
}

void CMDIFrameWnd::OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized)
{
    CFrameWnd::OnActivate(nState, pWndOther, bMinimized);
}

BOOL CMDIFrameWnd::PreTranslateMessage(MSG* pMsg)
{
    if (CFrameWnd::PreTranslateMessage(pMsg))
        return TRUE;
    const bool bMine = pMsg->message == WM_KEYDOWN && ::GetKeyState(VK_CONTROL) < 0 && IsWindowEnabled();
    return bMine && OnChildFrameKey(static_cast<UINT>(pMsg->wParam), (pMsg->lParam & KEY_WAS_DOWN) != 0);
}

BOOL CMDIFrameWnd::OnChildFrameKey(UINT nKey, bool bRepeated)
{
    if (nKey == VK_TAB || nKey == VK_F6) {
        MDINext(::GetKeyState(VK_SHIFT) < 0);
        return TRUE;
    }
    CMDIChildWnd* pActive = nKey == VK_F4 && !bRepeated ? MDIGetActive() : nullptr;
    if (pActive)
        pActive->SendMessage(WM_CLOSE);
    return nKey == VK_F4;
}

BOOL CMDIFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    const CCallScope scope;
    CMDIChildWnd* pChild = MDIGetActive();
    return (pChild && pChild->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) ||
           CFrameWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}
