// The window object: creation, family, place, text, messages.
#include "platform/window/Wnd.h"
#include "platform/base/Diagnostics.h"
#include "platform/window/Dispatch.h"
#include "platform/window/Lifetime.h"
#include "platform/window/Marks.h"
#include "platform/window/PaintDC.h"

IMPLEMENT_DYNAMIC(CWnd, CCmdTarget)

using namespace splitframe;

const CWnd CWnd::wndTop{HWND_TOP};
const CWnd CWnd::wndBottom{reinterpret_cast<HWND>(std::uintptr_t{1})};

namespace splitframe {

CWnd* WindowFromParameter(std::uintptr_t handle)
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(handle));
}

UINT RepeatCountOf(LPARAM lParam)
{
    return LOWORD(lParam);
}

UINT KeyFlagsOf(LPARAM lParam)
{
    return HIWORD(lParam);
}

namespace {

HWND HandleOf(const CWnd* pWnd)
{
    return pWnd ? pWnd->GetSafeHwnd() : nullptr;
}

} // namespace
} // namespace splitframe

CWnd::CWnd() = default;

CWnd::~CWnd()
{
    DestroyWithoutObject(m_hWnd);
}

CWnd* CWnd::FromHandle(HWND hWnd)
{
    const WindowRecord* pRecord = FindWindowRecord(hWnd);
    return pRecord ? pRecord->pWnd : nullptr;
}

BOOL CWnd::Create(LPCWSTR pszClassName, LPCWSTR pszWindowName, DWORD dwStyle, const RECT& rect,
                  CWnd* pParentWnd, UINT nID, CCreateContext* pContext)
{
    return CreateEx(0, pszClassName, pszWindowName, dwStyle, rect, pParentWnd, nID, pContext);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCWSTR pszClassName, LPCWSTR pszWindowName, DWORD dwStyle,
                    const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam)
{
    const bool bWhole = rect.left == CW_USEDEFAULT;
    const CRect rc(rect);
    return CreateEx(dwExStyle, pszClassName, pszWindowName, dwStyle, rect.left, rect.top,
                    bWhole ? 0 : rc.Width(), bWhole ? 0 : rc.Height(), HandleOf(pParentWnd),
                    reinterpret_cast<HMENU>(std::uintptr_t{nID}), lpParam);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCWSTR pszClassName, LPCWSTR pszWindowName, DWORD dwStyle, int x, int y,
                    int cx, int cy, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam)
{
    if (m_hWnd)
        return FALSE;
    CREATESTRUCT cs{
        lpParam,       nullptr,      nIDorHMenu, hWndParent, cy, cx, y, x, static_cast<LONG>(dwStyle),
        pszWindowName, pszClassName, dwExStyle};
    if (!PreCreateWindow(cs))
        return FALSE;
    if ((static_cast<DWORD>(cs.style) & WS_CHILD) == 0 && !IsMenu(cs.hMenu))
        cs.hMenu = nullptr; // a number is no menu: there are no resources
    return CreateWindowFor(*this, cs) ? TRUE : FALSE;
}

BOOL CWnd::DestroyWindow()
{
    return ::DestroyWindow(m_hWnd);
}

CWnd* CWnd::GetParent() const
{
    return FromHandle(::GetParent(m_hWnd));
}

CWnd* CWnd::SetParent(CWnd* pWndNewParent)
{
    return FromHandle(::SetParent(m_hWnd, HandleOf(pWndNewParent)));
}

CWnd* CWnd::GetWindow(UINT nCmd) const
{
    return FromHandle(::GetWindow(m_hWnd, nCmd));
}

CWnd* CWnd::GetTopWindow() const
{
    return FromHandle(::GetWindow(m_hWnd, GW_CHILD));
}

BOOL CWnd::IsChild(const CWnd* pWnd) const
{
    return ::IsChild(m_hWnd, HandleOf(pWnd));
}

CWnd* CWnd::GetTopLevelParent() const
{
    WindowRecord* pRecord = FindWindowRecord(m_hWnd);
    return pRecord ? TopLevelOf(*pRecord).pWnd : nullptr;
}

CWnd* CWnd::GetDlgItem(int nID) const
{
    const WindowRecord* pRecord = FindWindowRecord(m_hWnd);
    for (const WindowRecord* pEach = pRecord ? pRecord->pFirst : nullptr; pEach; pEach = pEach->pBelow) {
        if (static_cast<int>(pEach->nID) == nID)
            return pEach->pWnd;
    }
    return nullptr;
}

int CWnd::GetDlgCtrlID() const
{
    return ::GetDlgCtrlID(m_hWnd);
}

int CWnd::SetDlgCtrlID(int nID)
{
    const int nBefore = GetDlgCtrlID();
    if (WindowRecord* pRecord = FindWindowRecord(m_hWnd))
        pRecord->nID = static_cast<UINT_PTR>(nID);
    return nBefore;
}

DWORD CWnd::GetStyle() const
{
    const WindowRecord* pRecord = FindWindowRecord(m_hWnd);
    return pRecord ? pRecord->dwStyle : 0;
}

DWORD CWnd::GetExStyle() const
{
    const WindowRecord* pRecord = FindWindowRecord(m_hWnd);
    return pRecord ? pRecord->dwExStyle : 0;
}

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    constexpr DWORD fixed =
        WS_VISIBLE | WS_CHILD | WS_POPUP; // these have functions of their own, or never change
    WindowRecord* pRecord = FindWindowRecord(m_hWnd);
    if (!pRecord)
        return FALSE;
    const DWORD dwBefore = pRecord->dwStyle;
    pRecord->dwStyle = (dwBefore & ~(dwRemove & ~fixed)) | (dwAdd & ~fixed);
    if (pRecord->dwStyle == dwBefore)
        return FALSE;
    if (nFlags != 0 && pRecord->IsShown())
        MarkWhole(*pRecord);
    return TRUE;
}

BOOL CWnd::IsFrameWnd() const
{
    return FALSE;
}

BOOL CWnd::SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags)
{
    return ::SetWindowPos(m_hWnd, HandleOf(pWndInsertAfter), x, y, cx, cy, nFlags);
}

void CWnd::BringWindowToTop()
{
    ::SetWindowPos(m_hWnd, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}

void CWnd::MoveWindow(int x, int y, int cx, int cy, BOOL bRepaint)
{
    ::MoveWindow(m_hWnd, x, y, cx, cy, bRepaint);
}

void CWnd::MoveWindow(LPCRECT pRect, BOOL bRepaint)
{
    if (!pRect)
        return;
    const CRect rc(*pRect);
    ::MoveWindow(m_hWnd, rc.left, rc.top, rc.Width(), rc.Height(), bRepaint);
}

BOOL CWnd::ShowWindow(int nCmdShow)
{
    return ::ShowWindow(m_hWnd, nCmdShow);
}

BOOL CWnd::IsWindowVisible() const
{
    return ::IsWindowVisible(m_hWnd);
}

BOOL CWnd::IsZoomed() const
{
    return (GetStyle() & WS_MAXIMIZE) != 0 ? TRUE : FALSE;
}

BOOL CWnd::IsIconic() const
{
    return (GetStyle() & WS_MINIMIZE) != 0 ? TRUE : FALSE;
}

BOOL CWnd::EnableWindow(BOOL bEnable)
{
    return ::EnableWindow(m_hWnd, bEnable);
}

BOOL CWnd::IsWindowEnabled() const
{
    return ::IsWindowEnabled(m_hWnd);
}

void CWnd::GetWindowRect(LPRECT pRect) const
{
    ::GetWindowRect(m_hWnd, pRect);
}

void CWnd::GetClientRect(LPRECT pRect) const
{
    ::GetClientRect(m_hWnd, pRect);
}

void CWnd::ClientToScreen(POINT* pPoint) const
{
    ::ClientToScreen(m_hWnd, pPoint);
}

void CWnd::ClientToScreen(LPRECT pRect) const
{
    MapWindowPoints(nullptr, pRect);
}

void CWnd::ScreenToClient(POINT* pPoint) const
{
    ::ScreenToClient(m_hWnd, pPoint);
}

void CWnd::ScreenToClient(LPRECT pRect) const
{
    CPoint pt;
    ScreenToClient(&pt);
    if (pRect) {
        CRect rc(*pRect);
        rc.OffsetRect(pt);
        *pRect = rc;
    }
}

void CWnd::MapWindowPoints(CWnd* pWndTo, LPRECT pRect) const
{
    CPoint pt;
    MapWindowPoints(pWndTo, &pt, 1);
    if (pRect) {
        CRect rc(*pRect);
        rc.OffsetRect(pt);
        *pRect = rc;
    }
}

void CWnd::MapWindowPoints(CWnd* pWndTo, POINT* pPoints, UINT nCount) const
{
    for (UINT n = 0; pPoints && n < nCount; ++n) {
        ClientToScreen(&pPoints[n]);
        if (pWndTo)
            pWndTo->ScreenToClient(&pPoints[n]);
    }
}

void CWnd::CalcWindowRect(LPRECT, UINT) {}

void CWnd::Invalidate(BOOL bErase)
{
    ::InvalidateRect(m_hWnd, nullptr, bErase);
}

void CWnd::InvalidateRect(LPCRECT pRect, BOOL bErase)
{
    ::InvalidateRect(m_hWnd, pRect, bErase);
}

void CWnd::ValidateRect(LPCRECT pRect)
{
    ::ValidateRect(m_hWnd, pRect);
}

void CWnd::UpdateWindow()
{
    ::UpdateWindow(m_hWnd);
}

BOOL CWnd::RedrawWindow(LPCRECT pRectUpdate, void*, UINT nFlags)
{
    return ::RedrawWindow(m_hWnd, pRectUpdate, nFlags);
}

BOOL CWnd::GetUpdateRect(LPRECT pRect) const
{
    RECT rc{};
    if (const WindowRecord* pRecord = FindWindowRecord(m_hWnd)) {
        rc = pRecord->rcOwn;
        Enlarge(rc, pRecord->rcTree);
    }
    if (pRect)
        *pRect = rc;
    return IsEmptyRect(rc) ? FALSE : TRUE;
}

CDC* CWnd::GetDC()
{
    return FindWindowRecord(m_hWnd) ? new CClientDC(this) : nullptr;
}

int CWnd::ReleaseDC(CDC* pDC)
{
    delete pDC;
    return pDC ? 1 : 0;
}

void CWnd::SetWindowText(LPCWSTR pszText)
{
    SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(pszText));
}

void CWnd::GetWindowText(CString& strText) const
{
    const WindowRecord* pRecord = FindWindowRecord(m_hWnd);
    strText = pRecord ? pRecord->strText : CString();
}

CString CWnd::GetWindowText() const
{
    CString strText;
    GetWindowText(strText);
    return strText;
}

LRESULT CWnd::SendMessage(UINT nMessage, WPARAM wParam, LPARAM lParam)
{
    return ::SendMessage(m_hWnd, nMessage, wParam, lParam);
}

BOOL CWnd::PostMessage(UINT nMessage, WPARAM wParam, LPARAM lParam)
{
    return ::PostMessage(m_hWnd, nMessage, wParam, lParam);
}

CWnd* CWnd::SetFocus()
{
    return FromHandle(::SetFocus(m_hWnd));
}

CWnd* CWnd::GetFocus()
{
    return FromHandle(::GetFocus());
}

CWnd* CWnd::SetCapture()
{
    return FromHandle(::SetCapture(m_hWnd));
}

CWnd* CWnd::GetCapture()
{
    return FromHandle(::GetCapture());
}

CWnd* CWnd::SetActiveWindow()
{
    return FromHandle(::SetActiveWindow(m_hWnd));
}

CWnd* CWnd::GetActiveWindow()
{
    return FromHandle(::GetActiveWindow());
}

UINT_PTR CWnd::SetTimer(UINT_PTR nIDEvent, UINT nElapse, void*)
{
    return ::SetTimer(m_hWnd, nIDEvent, nElapse);
}

BOOL CWnd::KillTimer(UINT_PTR nIDEvent)
{
    return ::KillTimer(m_hWnd, nIDEvent);
}

CMenu* CWnd::GetMenu() const
{
    const WindowRecord* pRecord = FindWindowRecord(m_hWnd);
    return pRecord ? CMenu::FromHandle(pRecord->hMenu) : nullptr;
}

BOOL CWnd::SetMenu(CMenu* pMenu)
{
    WindowRecord* pRecord = FindWindowRecord(m_hWnd);
    if (!pRecord || pRecord->pParent != &Desktop())
        return FALSE;
    pRecord->hMenu = pMenu ? pMenu->GetSafeHmenu() : nullptr;
    return TRUE;
}

BOOL CWnd::WalkPreTranslateTree(HWND hWndStop, MSG* pMsg)
{
    if (!pMsg)
        return FALSE;
    HWND hEach = pMsg->hwnd;
    while (hEach) {
        CWnd* pWnd = FromHandle(hEach);
        if (pWnd && pWnd->PreTranslateMessage(pMsg))
            return TRUE;
        hEach = hEach == hWndStop ? nullptr : ::GetParent(hEach);
    }
    return FALSE;
}

BOOL CWnd::PreTranslateMessage(MSG*)
{
    return FALSE;
}

const MSG* CWnd::GetCurrentMessage()
{
    const MessageFrame* pFrame = Dispatcher::Current();
    return pFrame ? &pFrame->msg : nullptr;
}
