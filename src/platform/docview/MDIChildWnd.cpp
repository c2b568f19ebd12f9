// The child frame's life inside the MDI client: it is made below the others, shown at its final size, then
// activated; before it goes the next one is activated.
#include "platform/docview/MDIChildWnd.h"

#include "platform/docview/Document.h"
#include "platform/docview/MDIClient.h"
#include "platform/docview/MDIFrameWnd.h"
#include "platform/docview/ScopedFlag.h"
#include "platform/docview/View.h"
#include "platform/docview/WinApp.h"
#include "platform/window/CallScope.h"

IMPLEMENT_DYNCREATE(CMDIChildWnd, CFrameWnd)

BEGIN_MESSAGE_MAP(CMDIChildWnd, CFrameWnd)
ON_WM_MDIACTIVATE()
ON_MESSAGE(WM_SETTEXT, &CMDIChildWnd::OnSetText)
END_MESSAGE_MAP()

CMDIChildWnd::CMDIChildWnd() = default;

CMDIChildWnd::~CMDIChildWnd()
{
    EndFromDestructor();
}

// --- creation

BOOL CMDIChildWnd::Create(const wchar_t* pszClassName, const wchar_t* pszWindowName, DWORD dwStyle,
                          const RECT& /*rect*/, CWnd* pParentWnd, const wchar_t* /*pszMenuName*/,
                          DWORD dwExStyle, CCreateContext* pContext)
{
    const CCallScope scope;
    auto* pMain = DYNAMIC_DOWNCAST(CMDIFrameWnd, pParentWnd ? pParentWnd : AfxGetMainWnd());
    if (!pMain || !::IsWindow(pMain->m_hWndMDIClient)) {
        EndWithoutWindow();
        return FALSE;
    }
    m_strTitle = pszWindowName;
    m_hMDIFrame = pMain->GetSafeHwnd();
    CRect rc(0, 0, 0, 0);
    ::GetClientRect(pMain->m_hWndMDIClient, &rc);
    if (!CreateFrameWindow(pszClassName, dwStyle & ~WS_VISIBLE, dwExStyle, rc, pMain->m_hWndMDIClient,
                           pContext))
        return FALSE;
    if (pMain->m_pClient)
        pMain->m_pClient->TakeIn(GetSafeHwnd());
    m_hLast = GetSafeHwnd();
    return m_hLast != nullptr;
}

BOOL CMDIChildWnd::LoadFrame(UINT /*nIDResource*/, DWORD dwDefaultStyle, CWnd* pParentWnd,
                             CCreateContext* pContext)
{
    const DWORD dwStyle = (dwDefaultStyle & ~WS_POPUP) | WS_CHILD;
    return Create(nullptr, nullptr, dwStyle, rectDefault, pParentWnd, nullptr, 0, pContext);
}

BOOL CMDIChildWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.style |= static_cast<LONG>(WS_CHILD | WS_CLIPSIBLINGS);
    return CFrameWnd::PreCreateWindow(cs);
}

CMDIFrameWnd* CMDIChildWnd::GetMDIFrame() const
{
    return DYNAMIC_DOWNCAST(CMDIFrameWnd, CWnd::FromHandle(m_hMDIFrame));
}

// --- activation

void CMDIChildWnd::ActivateFrame(int nCmdShow)
{
    const CCallScope scope;
    const HWND hWnd = GetSafeHwnd();
    CMDIFrameWnd* pMain = GetMDIFrame();
    if (!hWnd || !pMain || !pMain->m_pClient)
        return;
    if (nCmdShow == SW_HIDE) {
        pMain->m_pClient->Leave(hWnd);
        ::ShowWindow(hWnd, SW_HIDE);
        pMain->OnChildFramesChanged();
        return;
    }
    if (!(GetStyle() & WS_VISIBLE))
        ShowAtFinalSize(*pMain);
    else if (pMain->MDIGetActive() == this)
        RecalcLayout(TRUE); // no activation follows that would lay it out
    if (::IsWindow(hWnd) && pMain->m_pClient)
        pMain->m_pClient->Activate(hWnd);
}

// The main frame hears of the new frame first: a bar that appears with the first frame changes the final
// size.
void CMDIChildWnd::ShowAtFinalSize(CMDIFrameWnd& main)
{
    if (m_bShowing)
        return;
    const splitframe::ScopedFlag showing(m_bShowing);
    const HWND hWnd = GetSafeHwnd();
    main.OnChildFramesChanged();
    CRect rc(0, 0, 0, 0);
    ::GetClientRect(main.m_hWndMDIClient, &rc);
    ::SetWindowPos(hWnd, nullptr, 0, 0, rc.Width(), rc.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
    ::ShowWindow(hWnd, SW_SHOWMAXIMIZED);
    if (::IsWindow(hWnd))
        RecalcLayout(TRUE);
}

bool CMDIChildWnd::IsShown() const
{
    return m_bShowing || (GetStyle() & WS_VISIBLE) != 0;
}

void CMDIChildWnd::MDIActivate()
{
    ActivateFrame(-1);
}

void CMDIChildWnd::MDIMaximize()
{
    ActivateFrame(SW_SHOWMAXIMIZED);
}

void CMDIChildWnd::MDIDestroy()
{
    DestroyWindow();
}

void CMDIChildWnd::OnMDIActivate(BOOL bActivate, CWnd* /*pActivateWnd*/, CWnd* /*pDeactivateWnd*/)
{
    if (CView* pView = GetActiveView())
        pView->OnActivateView(bActivate, pView, pView);
}

// --- title

void CMDIChildWnd::OnUpdateFrameTitle(BOOL bAddToTitle)
{
    const CDocument* pDocument = bAddToTitle ? GetActiveDocument() : nullptr;
    const CString strText = pDocument ? pDocument->GetTitle() : m_strTitle;
    if (GetSafeHwnd() && GetWindowText() != strText)
        SetWindowText(strText);
}

// However the text changes, the tabs and the main title follow.
LRESULT CMDIChildWnd::OnSetText(WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    const LRESULT nResult = Default();
    if (CMDIFrameWnd* pMain = GetMDIFrame())
        pMain->OnChildFramesChanged();
    return nResult;
}

// --- commands

BOOL CMDIChildWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    return OfferInside(nID, nCode, pExtra, pHandlerInfo);
}

// --- the end

void CMDIChildWnd::OnBeginDestroy()
{
    const CMDIFrameWnd* pMain = GetMDIFrame();
    if (pMain && pMain->m_pClient && !pMain->m_bDying)
        pMain->m_pClient->Leave(GetSafeHwnd());
    m_hLast = GetSafeHwnd();
    CFrameWnd::OnBeginDestroy();
}

void CMDIChildWnd::PostNcDestroy()
{
    const CCallScope scope;
    const CMDIFrameWnd* pMain = GetMDIFrame();
    CFrameWnd::PostNcDestroy();
    if (pMain && pMain->m_pClient && !pMain->m_bDying)
        pMain->m_pClient->Forget(m_hLast);
}
