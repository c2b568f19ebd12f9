// The main frame's two bars: their windows, their place, and what they are told.
#include "platform/docking/BCGPMDIFrameWnd.h"

#include "platform/docking/MenuBar.h"
#include "platform/docking/TabStrip.h"
#include "platform/docview/View.h"
#include "platform/window/CallScope.h"
#include "platform/window/Menu.h"

IMPLEMENT_DYNCREATE(CBCGPMDIFrameWnd, CMDIFrameWnd)

BEGIN_MESSAGE_MAP(CBCGPMDIFrameWnd, CMDIFrameWnd)
ON_WM_KEYDOWN()
ON_MESSAGE(WM_SYSCOMMAND, &CBCGPMDIFrameWnd::OnSysCommand)
END_MESSAGE_MAP()

CBCGPMDIFrameWnd::CBCGPMDIFrameWnd() = default;

CBCGPMDIFrameWnd::~CBCGPMDIFrameWnd()
{
    EndFromDestructor();
    ::DestroyMenu(m_hMenuBar);
}

BOOL CBCGPMDIFrameWnd::OnCreateClient(CREATESTRUCT* lpcs, CCreateContext* pContext)
{
    m_pMenuBar = std::make_unique<splitframe::CMenuBar>();
    m_pTabStrip = std::make_unique<splitframe::CTabStrip>(this);
    if (!m_pMenuBar->CreateBar(this) || !m_pTabStrip->CreateStrip())
        return FALSE;
    m_pMenuBar->SetMenu(m_hMenuBar);
    return CMDIFrameWnd::OnCreateClient(lpcs, pContext);
}

// --- the menu bar

void CBCGPMDIFrameWnd::SetMenuBar(HMENU hMenu)
{
    if (hMenu == m_hMenuBar)
        return UpdateMenuBar();
    ::DestroyMenu(m_hMenuBar);
    m_hMenuBar = ::IsMenu(hMenu) ? hMenu : nullptr;
    UpdateMenuBar();
}

void CBCGPMDIFrameWnd::SetMenuBar(CMenu* pMenu)
{
    SetMenuBar(pMenu ? pMenu->Detach() : nullptr);
}

BOOL CBCGPMDIFrameWnd::AppendMenuBarPopup(HMENU hPopup, const wchar_t* pszLabel)
{
    if (!::IsMenu(hPopup))
        return FALSE;
    if (!::IsMenu(m_hMenuBar))
        m_hMenuBar = ::CreateMenu();
    const BOOL bAppended =
        ::AppendMenuW(m_hMenuBar, MF_POPUP, reinterpret_cast<UINT_PTR>(hPopup), pszLabel ? pszLabel : L"");
    UpdateMenuBar();
    return bAppended;
}

HMENU CBCGPMDIFrameWnd::GetMenuBar() const
{
    return ::IsMenu(m_hMenuBar) ? m_hMenuBar : nullptr;
}

void CBCGPMDIFrameWnd::UpdateMenuBar()
{
    if (!m_pMenuBar)
        return;
    m_pMenuBar->SetMenu(GetMenuBar());
    RecalcLayout(TRUE);
}

CWnd* CBCGPMDIFrameWnd::GetMenuBarWnd() const
{
    return m_pMenuBar.get();
}

CWnd* CBCGPMDIFrameWnd::GetTabStripWnd() const
{
    return m_pTabStrip.get();
}

// --- layout

namespace {

// Takes the top of the room for a bar; one of no height has nothing to show and is hidden.
void PlaceBar(HWND hBar, int nHeight, CRect& rcRoom)
{
    if (nHeight == 0) {
        ::ShowWindow(hBar, SW_HIDE);
        return;
    }
    const int nBottom = rcRoom.top + nHeight < rcRoom.bottom ? rcRoom.top + nHeight : rcRoom.bottom;
    ::SetWindowPos(hBar, nullptr, rcRoom.left, rcRoom.top, rcRoom.Width(), nBottom - rcRoom.top,
                   SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    rcRoom.top = nBottom;
}

} // namespace

void CBCGPMDIFrameWnd::LayoutBars(CRect& rcRoom)
{
    if (!m_pMenuBar || !m_pTabStrip)
        return;
    const int nMenuHeight = m_pMenuBar->IsEmpty() ? 0 : m_pMenuBar->Arrange(rcRoom.Width());
    PlaceBar(m_pMenuBar->GetSafeHwnd(), nMenuHeight, rcRoom);
    const int nTabHeight = m_pTabStrip->IsEmpty() ? 0 : splitframe::CTabStrip::GetHeight();
    PlaceBar(m_pTabStrip->GetSafeHwnd(), nTabHeight, rcRoom);
}

void CBCGPMDIFrameWnd::OnChildFramesChanged()
{
    const CCallScope scope;
    CMDIFrameWnd::OnChildFramesChanged();
    if (m_pTabStrip && m_pTabStrip->GetSafeHwnd() && m_pTabStrip->Refresh())
        RecalcLayout(TRUE);
}

// --- keys

void CBCGPMDIFrameWnd::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    CView* pView = nChar == VK_TAB ? GetActiveFrame()->GetActiveView() : nullptr;
    if (pView)
        pView->SendMessage(WM_KEYDOWN, nChar,
                           MAKELPARAM(static_cast<int>(nRepCnt), static_cast<int>(nFlags)));
    else
        CMDIFrameWnd::OnKeyDown(nChar, nRepCnt, nFlags);
}

LRESULT CBCGPMDIFrameWnd::OnSysCommand(WPARAM wParam, LPARAM lParam)
{
    if (wParam != SC_KEYMENU || !m_pMenuBar)
        return Default();
    return splitframe::TrackMenuBarByKey(m_pMenuBar->GetSafeHwnd(), static_cast<wchar_t>(lParam)) ? 1 : 0;
}
