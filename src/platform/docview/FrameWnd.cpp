// The frame's creation, its active view, its title and the commands that pass through it. Layout and closing
// have files of their own.
#include "platform/docview/FrameWnd.h"

#include "platform/docview/Document.h"
#include "platform/docview/FrameStorage.h"
#include "platform/docview/View.h"
#include "platform/docview/WinApp.h"
#include "platform/window/CallScope.h"

#include <vector>

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
ON_WM_CREATE()
ON_WM_CLOSE()
ON_WM_SIZE()
ON_WM_SETFOCUS()
ON_WM_ACTIVATE()
ON_MESSAGE(WM_INITMENUPOPUP, &CFrameWnd::OnInitMenuPopup)
END_MESSAGE_MAP()

const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0);

CFrameWnd::CFrameWnd() : m_bAutoDelete(splitframe::framestorage::TakeAllocated(this)) {}

CFrameWnd::~CFrameWnd()
{
    EndFromDestructor();
    LinkActiveView(nullptr);
}

void* CFrameWnd::operator new(std::size_t nSize)
{
    return splitframe::framestorage::Allocate(nSize);
}

void CFrameWnd::operator delete(void* pBlock) noexcept
{
    splitframe::framestorage::Free(pBlock);
}

// --- creation

BOOL CFrameWnd::Create(const wchar_t* pszClassName, const wchar_t* pszWindowName, DWORD dwStyle,
                       const RECT& rect, CWnd* pParentWnd, const wchar_t* /*pszMenuName*/, DWORD dwExStyle,
                       CCreateContext* pContext)
{
    m_strTitle = pszWindowName;
    const HWND hWndParent = pParentWnd ? pParentWnd->GetSafeHwnd() : nullptr;
    return CreateFrameWindow(pszClassName, dwStyle, dwExStyle, CRect(rect), hWndParent, pContext);
}

BOOL CFrameWnd::CreateFrameWindow(const wchar_t* pszClassName, DWORD dwStyle, DWORD dwExStyle,
                                  const CRect& rc, HWND hWndParent, CCreateContext* pContext)
{
    const CCallScope scope;
    const bool bDefaultPlace = rc.left == CW_USEDEFAULT;
    const int cx = bDefaultPlace ? CW_USEDEFAULT : rc.Width();
    const int cy = bDefaultPlace ? CW_USEDEFAULT : rc.Height();
    BOOL bCreated = FALSE;
    try {
        bCreated = CreateEx(dwExStyle, pszClassName, m_strTitle, dwStyle, rc.left, rc.top, cx, cy, hWndParent,
                            nullptr, pContext);
    } catch (...) {
        EndWithoutWindow();
        throw;
    }
    if (!bCreated)
        EndWithoutWindow();
    return bCreated;
}

BOOL CFrameWnd::LoadFrame(UINT /*nIDResource*/, DWORD dwDefaultStyle, CWnd* pParentWnd,
                          CCreateContext* pContext)
{
    const CWinApp* pApp = AfxGetApp();
    const CString strTitle = pApp ? pApp->GetAppName() : CString();
    return Create(nullptr, strTitle, dwDefaultStyle, rectDefault, pParentWnd, nullptr, 0, pContext);
}

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!cs.lpszClass)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW));
    cs.style |= static_cast<LONG>(WS_CLIPCHILDREN);
    return CWnd::PreCreateWindow(cs);
}

int CFrameWnd::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    auto* pContext = static_cast<CCreateContext*>(lpCreateStruct->lpCreateParams);
    if (!OnCreateClient(lpCreateStruct, pContext))
        return -1;
    if (auto* pView = DYNAMIC_DOWNCAST(CView, FindPane()))
        SetActiveView(pView, FALSE);
    return 0;
}

BOOL CFrameWnd::OnCreateClient(CREATESTRUCT* /*lpcs*/, CCreateContext* pContext)
{
    return !pContext || !pContext->m_pNewViewClass || CreateView(pContext) != nullptr;
}

CWnd* CFrameWnd::CreateView(CCreateContext* pContext, UINT nID)
{
    if (!pContext || !pContext->m_pNewViewClass)
        return nullptr;
    const CCallScope scope;
    CObject* pObject = pContext->m_pNewViewClass->CreateObject();
    auto* pView = DYNAMIC_DOWNCAST(CView, pObject);
    if (!pView) {
        delete pObject;
        return nullptr;
    }
    if (!pView->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this, nID, pContext)) {
        DeleteLater(pView);
        return nullptr;
    }
    if (pContext->m_pCurrentDoc)
        pContext->m_pCurrentDoc->AddView(pView); // a derived class may have kept WM_CREATE to itself
    return pView;
}

// --- the active view

void CFrameWnd::LinkActiveView(CView* pView)
{
    if (m_pViewActive)
        m_pViewActive->m_pActiveIn = nullptr;
    if (pView && pView->m_pActiveIn)
        pView->m_pActiveIn->m_pViewActive = nullptr;
    m_pViewActive = pView;
    if (pView)
        pView->m_pActiveIn = this;
}

void CFrameWnd::SetActiveView(CView* pViewNew, BOOL bNotify)
{
    CView* const pViewOld = m_pViewActive;
    if (pViewNew == pViewOld)
        return;
    const CCallScope scope; // both views can be told even if a hook destroys one
    LinkActiveView(pViewNew);
    if (bNotify && pViewOld)
        pViewOld->OnActivateView(FALSE, pViewNew, pViewOld);
    if (m_pViewActive != pViewNew)
        return; // a hook chose another one
    if (bNotify && pViewNew)
        pViewNew->OnActivateView(TRUE, pViewNew, pViewOld);
    OnUpdateFrameTitle(TRUE);
}

CFrameWnd* CFrameWnd::GetActiveFrame()
{
    return this;
}

CDocument* CFrameWnd::GetActiveDocument()
{
    const CView* pView = GetActiveView();
    return pView ? pView->GetDocument() : nullptr;
}

void CFrameWnd::ActivateFrame(int nCmdShow)
{
    const CCallScope scope;
    const HWND hWnd = GetSafeHwnd();
    if (nCmdShow == -1)
        nCmdShow = IsWindowVisible() ? SW_SHOW : SW_SHOWNORMAL;
    ::ShowWindow(hWnd, nCmdShow);
    if (nCmdShow == SW_HIDE || !::IsWindow(hWnd))
        return;
    BringWindowToTop();
    if (!(GetStyle() & WS_CHILD))
        ::SetActiveWindow(hWnd);
    const HWND hFocus = ::GetFocus();
    if (::IsWindow(hWnd) && hFocus != hWnd && !::IsChild(hWnd, hFocus))
        ::SetFocus(hWnd);
}

void CFrameWnd::InitialUpdateFrame(CDocument* /*pDoc*/, BOOL bMakeVisible)
{
    const CCallScope scope;
    const HWND hWnd = GetSafeHwnd();
    InitialiseViews();
    if (bMakeVisible && ::IsWindow(hWnd))
        ActivateFrame(-1);
    if (::IsWindow(hWnd))
        OnUpdateFrameTitle(TRUE);
}

// Handles, not pointers: a view's hook may destroy another view.
void CFrameWnd::InitialiseViews()
{
    std::vector<HWND> arrWnd;
    for (HWND hChild = ::GetWindow(GetSafeHwnd(), GW_CHILD); hChild;
         hChild = ::GetWindow(hChild, GW_HWNDNEXT))
        arrWnd.push_back(hChild);
    for (const HWND hChild : arrWnd) {
        if (auto* pView = DYNAMIC_DOWNCAST(CView, CWnd::FromHandle(hChild)))
            pView->OnInitialUpdate();
    }
}

// --- title

void CFrameWnd::SetTitle(const wchar_t* pszTitle)
{
    m_strTitle = pszTitle;
    OnUpdateFrameTitle(TRUE);
}

void CFrameWnd::OnUpdateFrameTitle(BOOL bAddToTitle)
{
    const CDocument* pDocument = bAddToTitle ? GetActiveDocument() : nullptr;
    CString strText = m_strTitle;
    if (pDocument && !pDocument->GetTitle().IsEmpty()) {
        if (!strText.IsEmpty())
            strText += L" - ";
        strText += pDocument->GetTitle();
    }
    if (GetSafeHwnd() && GetWindowText() != strText)
        SetWindowText(strText);
}

// --- messages and commands

BOOL CFrameWnd::IsFrameWnd() const
{
    return TRUE;
}

BOOL CFrameWnd::PreTranslateMessage(MSG* pMsg)
{
    return ::TranslateAcceleratorW(GetSafeHwnd(), m_hAccel, pMsg) || CWnd::PreTranslateMessage(pMsg);
}

BOOL CFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    const CCallScope scope;
    if (OfferInside(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    CWinApp* pApp = AfxGetApp();
    return pApp && pApp->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CFrameWnd::OfferInside(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    const CCallScope scope;
    CView* pView = GetActiveView();
    return (pView && pView->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) ||
           CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

// A handler may change the menu, or destroy it or the frame.
LRESULT CFrameWnd::OnInitMenuPopup(WPARAM wParam, LPARAM /*lParam*/)
{
    const CCallScope scope;
    const HMENU hMenu = reinterpret_cast<HMENU>(wParam);
    const HWND hWnd = GetSafeHwnd();
    for (int n = 0; ::IsWindow(hWnd) && n < ::GetMenuItemCount(hMenu); ++n) {
        CCmdUI ui;
        ui.m_nID = ::GetMenuItemID(hMenu, n);
        ui.m_nIndex = static_cast<UINT>(n);
        ui.m_pMenu = CMenu::FromHandle(hMenu);
        const bool bCommand = ui.m_nID != 0 && ui.m_nID != 0xFFFFFFFF;
        if (bCommand)
            ui.DoUpdate(this, TRUE);
    }
    return 0;
}

void CFrameWnd::OnSetFocus(CWnd* pOldWnd)
{
    CView* pView = GetActiveView();
    if (pView && pView->GetSafeHwnd())
        pView->SetFocus();
    else
        CWnd::OnSetFocus(pOldWnd);
}

void CFrameWnd::OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized)
{
    CWnd::OnActivate(nState, pWndOther, bMinimized);
}

// --- windows inside a frame

// Stands here because only this room knows what a frame window is.
CFrameWnd* CWnd::GetParentFrame() const
{
    for (CWnd* pWnd = GetParent(); pWnd; pWnd = pWnd->GetParent()) {
        if (pWnd->IsFrameWnd())
            return static_cast<CFrameWnd*>(pWnd);
    }
    return nullptr;
}
