// A window's procedure: map look-up, commands, default processing, and the default handlers.
#include "platform/graphics/DC.h"
#include "platform/graphics/SystemColors.h"
#include "platform/window/Dispatch.h"
#include "platform/window/Input.h"
#include "platform/window/Screen.h"
#include "platform/window/WindowClass.h"
#include "platform/window/WindowTree.h"
#include "platform/window/Wnd.h"

#include <algorithm>

using namespace splitframe;

const AFX_MSGMAP* CWnd::GetMessageMap() const
{
    return GetThisMessageMap();
}

const AFX_MSGMAP* CWnd::GetThisMessageMap()
{
    static constexpr AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, nullptr}};
    static constinit MessageMapCache cache;
    static constinit AFX_MSGMAP map = {&CCmdTarget::GetThisMessageMap, entries, &cache};
    return &map;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT&)
{
    return TRUE;
}

void CWnd::OnBeginDestroy() {}

void CWnd::PostNcDestroy() {}

LRESULT CWnd::WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam)
{
    LRESULT nResult = 0;
    if (!OnWndMsg(nMessage, wParam, lParam, &nResult))
        nResult = DefWindowProc(nMessage, wParam, lParam);
    return nResult;
}

BOOL CWnd::OnWndMsg(UINT nMessage, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (nMessage == WM_COMMAND) {
        if (!OnCommand(wParam, lParam))
            return FALSE;
        if (pResult)
            *pResult = 1;
        return TRUE;
    }
    const AFX_MSGMAP_ENTRY* pEntry = FindMessageEntry(GetMessageMap(), nMessage);
    if (!pEntry)
        return FALSE;
    const LRESULT nResult = pEntry->pfn(this, nMessage, wParam, lParam);
    if (pResult)
        *pResult = nResult;
    return TRUE;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM)
{
    return OnCmdMsg(LOWORD(wParam), CN_COMMAND, nullptr, nullptr);
}

LRESULT CWnd::Default()
{
    const MessageFrame* pFrame = Dispatcher::Current();
    if (!pFrame || !m_hWnd || pFrame->msg.hwnd != m_hWnd)
        return 0;
    return DefWindowProc(pFrame->msg.message, pFrame->msg.wParam, pFrame->msg.lParam);
}

namespace {

LRESULT SetText(WindowRecord& record, LPARAM lParam)
{
    record.strText = AddressIn<const wchar_t>(lParam);
    ShowTitle(record);
    return 1;
}

// wParam: room in characters, the final zero included.
LRESULT GetText(const WindowRecord& record, WPARAM wParam, LPARAM lParam)
{
    wchar_t* pszRoom = AddressIn<wchar_t>(lParam);
    if (!pszRoom || wParam == 0)
        return 0;
    const auto nLength =
        std::min<std::size_t>(static_cast<std::size_t>(record.strText.GetLength()), wParam - 1);
    const wchar_t* pszText = record.strText;
    std::copy_n(pszText, nLength, pszRoom);
    pszRoom[nLength] = 0;
    return static_cast<LRESULT>(nLength);
}

LRESULT EraseWithBrush(const WindowRecord& record, WPARAM wParam)
{
    CDC* pDC = AddressIn<CDC>(static_cast<LPARAM>(wParam));
    COLORREF color = 0;
    if (!pDC || !record.pClass->hBrush || !GetBrushColor(record.pClass->hBrush, color))
        return 0;
    const CRect rc(0, 0, record.rc.right - record.rc.left, record.rc.bottom - record.rc.top);
    pDC->FillSolidRect(rc, color);
    return 1;
}

LRESULT SetClassCursor(const WindowRecord& record)
{
    if (!record.pClass->hCursor)
        return 0;
    SetCursor(record.pClass->hCursor);
    return 1;
}

// The right button asks for a context menu; a window that has none passes the question to its parent.
LRESULT AskForContextMenu(HWND hWnd, LPARAM lParam)
{
    POINT pt = PointIn(lParam);
    ClientToScreen(hWnd, &pt);
    return SendMessage(hWnd, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(hWnd), MAKELPARAM(pt.x, pt.y));
}

LRESULT PassToParent(const WindowRecord& record, UINT nMessage, WPARAM wParam, LPARAM lParam)
{
    return record.pParent == &Desktop() ? 0 : SendMessage(record.pParent->Handle(), nMessage, wParam, lParam);
}

// By key: the window has to choose the place.
LRESULT AskForContextMenuByKey(HWND hWnd)
{
    return SendMessage(hWnd, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(hWnd), MAKELPARAM(-1, -1));
}

LRESULT AskForMenuBar(WindowRecord& record, WPARAM wLetter)
{
    return SendMessage(TopLevelOf(record).Handle(), WM_SYSCOMMAND, SC_KEYMENU, static_cast<LPARAM>(wLetter));
}

// F10 is the key of the menu bar, with Shift that of the context menu. It may have been handed on to this
// window by the one that has the focus.
LRESULT OnKey(WindowRecord& record, WPARAM wKey)
{
    if (wKey != VK_F10 || GetKeyState(VK_CONTROL) < 0)
        return 0;
    if (GetKeyState(VK_SHIFT) >= 0)
        return AskForMenuBar(record, 0);
    const HWND hWnd = record.Handle();
    return AskForContextMenuByKey(IsChild(hWnd, ::GetFocus()) ? ::GetFocus() : hWnd);
}

LRESULT OnSystemKeyUp(WindowRecord& record, WPARAM wKey)
{
    return wKey == VK_MENU && AltWasPressedAlone() ? AskForMenuBar(record, 0) : 0;
}

LRESULT OnSystemKey(WindowRecord& record, WPARAM wParam, LPARAM lParam)
{
    constexpr LPARAM altIsDown = LPARAM{1} << 29;
    if (wParam == VK_F4 && (lParam & altIsDown) != 0)
        PostMessage(TopLevelOf(record).Handle(), WM_CLOSE);
    return 0;
}

// A window that becomes active takes the focus, unless a window in it has it already.
LRESULT FocusWhenActive(HWND hWnd, WPARAM wParam)
{
    if (LOWORD(wParam) != WA_INACTIVE && GetFocus() != hWnd && !IsChild(hWnd, GetFocus()))
        SetFocus(hWnd);
    return 0;
}

} // namespace

LRESULT CWnd::DefWindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam)
{
    WindowRecord* pRecord = FindWindowRecord(m_hWnd);
    if (!pRecord)
        return 0;
    switch (nMessage) {
    case WM_CLOSE:
        DestroyWindow();
        return 0;
    case WM_ERASEBKGND:
        return EraseWithBrush(*pRecord, wParam);
    case WM_SETTEXT:
        return SetText(*pRecord, lParam);
    case WM_GETTEXT:
        return GetText(*pRecord, wParam, lParam);
    case WM_GETTEXTLENGTH:
        return pRecord->strText.GetLength();
    case WM_SETCURSOR:
        return SetClassCursor(*pRecord);
    case WM_RBUTTONUP:
        return AskForContextMenu(m_hWnd, lParam);
    case WM_CONTEXTMENU:
        return PassToParent(*pRecord, nMessage, wParam, lParam);
    case WM_KEYDOWN:
        return OnKey(*pRecord, wParam);
    case WM_KEYUP:
        return wParam == VK_APPS ? AskForContextMenuByKey(m_hWnd) : 0;
    case WM_SYSKEYDOWN:
        return OnSystemKey(*pRecord, wParam, lParam);
    case WM_SYSKEYUP:
        return OnSystemKeyUp(*pRecord, wParam);
    case WM_SYSCHAR:
        return AskForMenuBar(*pRecord, wParam);
    case WM_ACTIVATE:
        return FocusWhenActive(m_hWnd, wParam);
    case WM_CANCELMODE:
        if (::GetCapture() == m_hWnd)
            ReleaseCapture();
        return 0;
    default:
        return 0;
    }
}

int CWnd::OnCreate(LPCREATESTRUCT)
{
    return static_cast<int>(Default());
}

BOOL CWnd::OnEraseBkgnd(CDC*)
{
    return static_cast<BOOL>(Default());
}

BOOL CWnd::OnSetCursor(CWnd*, UINT, UINT)
{
    return static_cast<BOOL>(Default());
}

BOOL CWnd::OnMouseWheel(UINT, short, CPoint)
{
    return static_cast<BOOL>(Default());
}

// The rest differ only in their parameters.
// clang-format off
void CWnd::OnDestroy() { Default(); }
void CWnd::OnNcDestroy() { Default(); }
void CWnd::OnClose() { Default(); }
void CWnd::OnPaint() { Default(); }
void CWnd::OnCancelMode() { Default(); }
void CWnd::OnSize(UINT, int, int) { Default(); }
void CWnd::OnMove(int, int) { Default(); }
void CWnd::OnShowWindow(BOOL, UINT) { Default(); }
void CWnd::OnEnable(BOOL) { Default(); }
void CWnd::OnActivate(UINT, CWnd*, BOOL) { Default(); }
void CWnd::OnMDIActivate(BOOL, CWnd*, CWnd*) { Default(); }
void CWnd::OnSetFocus(CWnd*) { Default(); }
void CWnd::OnKillFocus(CWnd*) { Default(); }
void CWnd::OnCaptureChanged(CWnd*) { Default(); }
void CWnd::OnTimer(UINT_PTR) { Default(); }
void CWnd::OnContextMenu(CWnd*, CPoint) { Default(); }
void CWnd::OnKeyDown(UINT, UINT, UINT) { Default(); }
void CWnd::OnKeyUp(UINT, UINT, UINT) { Default(); }
void CWnd::OnChar(UINT, UINT, UINT) { Default(); }
void CWnd::OnSysKeyDown(UINT, UINT, UINT) { Default(); }
void CWnd::OnSysKeyUp(UINT, UINT, UINT) { Default(); }
void CWnd::OnSysChar(UINT, UINT, UINT) { Default(); }
void CWnd::OnMouseMove(UINT, CPoint) { Default(); }
void CWnd::OnLButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnLButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnLButtonDblClk(UINT, CPoint) { Default(); }
void CWnd::OnRButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnRButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnRButtonDblClk(UINT, CPoint) { Default(); }
void CWnd::OnMButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnMButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnMButtonDblClk(UINT, CPoint) { Default(); }
// clang-format on
