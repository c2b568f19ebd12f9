// Every message to a child and every move runs host code, which may close, open or activate children or
// destroy the main frame: after each the state is looked at again.
#include "platform/docview/MDIClient.h"

#include "platform/docview/MDIChildWnd.h"
#include "platform/docview/MDIFrameWnd.h"
#include "platform/graphics/SystemColors.h"
#include "platform/window/CallScope.h"

#include <algorithm>

namespace splitframe {

BEGIN_MESSAGE_MAP(CMDIClient, CWnd)
ON_WM_SIZE()
END_MESSAGE_MAP()

CMDIClient::CMDIClient(CMDIFrameWnd* pMainFrame) : m_pMainFrame(pMainFrame) {}

CMDIClient::~CMDIClient() = default;

BOOL CMDIClient::CreateClient()
{
    const LPCWSTR pszClass =
        AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW), ::GetSysColorBrush(COLOR_APPWORKSPACE));
    return Create(pszClass, nullptr, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS,
                  CRect(0, 0, 0, 0), m_pMainFrame, AFX_IDW_PANE_FIRST);
}

// The list keeps the order of creation, which the window tree does not know. Frames that moved in or out by
// other ways are found here.
std::vector<HWND> CMDIClient::ListChildren()
{
    const HWND hClient = GetSafeHwnd();
    std::erase_if(m_arrChild, [hClient](HWND hChild) { return ::GetParent(hChild) != hClient; });
    std::vector<HWND> arrNew;
    for (HWND hChild = ::GetWindow(hClient, GW_CHILD); hChild; hChild = ::GetWindow(hChild, GW_HWNDNEXT)) {
        if (std::ranges::find(m_arrChild, hChild) == m_arrChild.end())
            arrNew.push_back(hChild);
    }
    m_arrChild.insert(m_arrChild.end(), arrNew.begin(), arrNew.end());
    return m_arrChild;
}

std::vector<CMDIChildWnd*> CMDIClient::GetChildFrames()
{
    std::vector<CMDIChildWnd*> arrFrame;
    for (const HWND hChild : ListChildren()) {
        if (auto* pFrame = DYNAMIC_DOWNCAST(CMDIChildWnd, CWnd::FromHandle(hChild)))
            arrFrame.push_back(pFrame);
    }
    return arrFrame;
}

void CMDIClient::Activate(HWND hChild)
{
    const CCallScope scope;
    if (hChild != m_hActive || hChild != m_hTold) {
        if (!SwitchTo(hChild))
            return;
        m_pMainFrame->OnChildFramesChanged();
    } else {
        Raise(hChild); // whoever restacked the children, the active one is topmost again
    }
    const HWND hFocus = ::GetFocus();
    if (m_hActive == hChild && ::IsWindow(hChild) && hFocus != hChild && !::IsChild(hChild, hFocus))
        ::SetFocus(hChild);
}

void CMDIClient::Raise(HWND hChild)
{
    ::SetWindowPos(hChild, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

// @return whether the child is still the one to be active when all have been told
bool CMDIClient::SwitchTo(HWND hChild)
{
    m_hActive = hChild;
    Raise(hChild);
    const HWND hOld = m_hTold;
    if (hOld && hOld != hChild) {
        m_hTold = nullptr;
        ::SendMessage(hOld, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(hOld), reinterpret_cast<LPARAM>(hChild));
        if (m_hActive != hChild)
            return false;
    }
    if (m_hTold == hChild)
        return true;
    m_hTold = hChild;
    ::SendMessage(hChild, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(hOld), reinterpret_cast<LPARAM>(hChild));
    return m_hActive == hChild;
}

void CMDIClient::TakeIn(HWND hChild)
{
    ListChildren();
    ::SetWindowPos(hChild, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void CMDIClient::Leave(HWND hChild)
{
    if (hChild == m_hActive)
        Activate(FindShownBeside(hChild));
}

void CMDIClient::Forget(HWND hChild)
{
    if (!hChild)
        return;
    if (m_hTold == hChild)
        m_hTold = nullptr;
    if (m_hActive == hChild)
        Activate(FindShownBeside(hChild)); // a hook had chosen the child that died
    else
        m_pMainFrame->OnChildFramesChanged();
}

HWND CMDIClient::FindShownBeside(HWND hChild) const
{
    for (HWND hNext = ::GetWindow(GetSafeHwnd(), GW_CHILD); hNext; hNext = ::GetWindow(hNext, GW_HWNDNEXT)) {
        const CWnd* pWnd = CWnd::FromHandle(hNext);
        if (hNext != hChild && (pWnd->GetStyle() & WS_VISIBLE) && pWnd->IsKindOf(RUNTIME_CLASS(CMDIChildWnd)))
            return hNext;
    }
    return nullptr;
}

// All children, not only the active one: each has its final size before it is activated.
void CMDIClient::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    for (const HWND hChild : ListChildren())
        ::SetWindowPos(hChild, nullptr, 0, 0, cx, cy, SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace splitframe
