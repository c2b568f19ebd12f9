// The lines that a message map may hold. Each expands to one table entry whose small function unpacks the
// message's parameters and calls the member function; nothing is reinterpreted, so a handler of the wrong
// type does not compile. Included by CmdTarget.h.
#pragma once

#include "platform/base/Geometry.h"

namespace splitframe {
/// The window of a handle, for handlers that take one; null for a handle without window.
SPLITFRAME_PLATFORM_API CWnd* WindowFromParameter(std::uintptr_t handle);
SPLITFRAME_PLATFORM_API UINT RepeatCountOf(LPARAM lParam);
SPLITFRAME_PLATFORM_API UINT KeyFlagsOf(LPARAM lParam);

/// Reads the address that a parameter carries.
template <class T> T* AddressIn(LPARAM lParam)
{
    return reinterpret_cast<T*>(lParam);
}
inline CPoint PointIn(LPARAM lParam)
{
    return CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
}
} // namespace splitframe

#define SPLITFRAME_MAP_ENTRY(message, code, id, lastId, body)                                                \
    {message, code, id, lastId,                                                                              \
     [](CCmdTarget* pTarget, [[maybe_unused]] UINT nMessage, [[maybe_unused]] WPARAM wParam,                 \
        [[maybe_unused]] LPARAM lParam) -> LRESULT {                                                         \
         [[maybe_unused]] auto* pThis = static_cast<ThisClass*>(pTarget);                                    \
         body                                                                                                \
     }},
#define SPLITFRAME_WM_VOID(message, call) SPLITFRAME_MAP_ENTRY(message, 0, 0, 0, pThis->call; return 0;)
#define SPLITFRAME_WM_RESULT(message, call)                                                                  \
    SPLITFRAME_MAP_ENTRY(message, 0, 0, 0, return static_cast<LRESULT>(pThis->call);)

// void OnX()
#define ON_WM_PAINT() SPLITFRAME_WM_VOID(WM_PAINT, OnPaint())
#define ON_WM_CLOSE() SPLITFRAME_WM_VOID(WM_CLOSE, OnClose())
#define ON_WM_DESTROY() SPLITFRAME_WM_VOID(WM_DESTROY, OnDestroy())
#define ON_WM_NCDESTROY() SPLITFRAME_WM_VOID(WM_NCDESTROY, OnNcDestroy())
#define ON_WM_MOUSELEAVE() SPLITFRAME_WM_VOID(WM_MOUSELEAVE, OnMouseLeave())
#define ON_WM_CANCELMODE() SPLITFRAME_WM_VOID(WM_CANCELMODE, OnCancelMode())
/// int OnCreate(LPCREATESTRUCT): -1 refuses the creation
#define ON_WM_CREATE() SPLITFRAME_WM_RESULT(WM_CREATE, OnCreate(splitframe::AddressIn<CREATESTRUCT>(lParam)))
/// void OnSize(UINT nType, int cx, int cy): the client area's size
#define ON_WM_SIZE()                                                                                         \
    SPLITFRAME_WM_VOID(WM_SIZE, OnSize(static_cast<UINT>(wParam), static_cast<int>(LOWORD(lParam)),          \
                                       static_cast<int>(HIWORD(lParam))))
/// void OnMove(int x, int y): in the parent's client coordinates
#define ON_WM_MOVE() SPLITFRAME_WM_VOID(WM_MOVE, OnMove(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)))
// void OnKey...(UINT nChar, UINT nRepCnt, UINT nFlags)
#define SPLITFRAME_WM_KEY(message, handler)                                                                  \
    SPLITFRAME_WM_VOID(message, handler(static_cast<UINT>(wParam), splitframe::RepeatCountOf(lParam),        \
                                        splitframe::KeyFlagsOf(lParam)))
#define ON_WM_KEYDOWN() SPLITFRAME_WM_KEY(WM_KEYDOWN, OnKeyDown)
#define ON_WM_KEYUP() SPLITFRAME_WM_KEY(WM_KEYUP, OnKeyUp)
#define ON_WM_CHAR() SPLITFRAME_WM_KEY(WM_CHAR, OnChar)
#define ON_WM_SYSKEYDOWN() SPLITFRAME_WM_KEY(WM_SYSKEYDOWN, OnSysKeyDown)
#define ON_WM_SYSKEYUP() SPLITFRAME_WM_KEY(WM_SYSKEYUP, OnSysKeyUp)
#define ON_WM_SYSCHAR() SPLITFRAME_WM_KEY(WM_SYSCHAR, OnSysChar)
// void OnMouse...(UINT nFlags, CPoint pt): client coordinates
#define SPLITFRAME_WM_MOUSE(message, handler)                                                                \
    SPLITFRAME_WM_VOID(message, handler(static_cast<UINT>(wParam), splitframe::PointIn(lParam)))
#define ON_WM_MOUSEMOVE() SPLITFRAME_WM_MOUSE(WM_MOUSEMOVE, OnMouseMove)
#define ON_WM_LBUTTONDOWN() SPLITFRAME_WM_MOUSE(WM_LBUTTONDOWN, OnLButtonDown)
#define ON_WM_LBUTTONUP() SPLITFRAME_WM_MOUSE(WM_LBUTTONUP, OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK() SPLITFRAME_WM_MOUSE(WM_LBUTTONDBLCLK, OnLButtonDblClk)
#define ON_WM_RBUTTONDOWN() SPLITFRAME_WM_MOUSE(WM_RBUTTONDOWN, OnRButtonDown)
#define ON_WM_RBUTTONUP() SPLITFRAME_WM_MOUSE(WM_RBUTTONUP, OnRButtonUp)
#define ON_WM_RBUTTONDBLCLK() SPLITFRAME_WM_MOUSE(WM_RBUTTONDBLCLK, OnRButtonDblClk)
#define ON_WM_MBUTTONDOWN() SPLITFRAME_WM_MOUSE(WM_MBUTTONDOWN, OnMButtonDown)
#define ON_WM_MBUTTONUP() SPLITFRAME_WM_MOUSE(WM_MBUTTONUP, OnMButtonUp)
#define ON_WM_MBUTTONDBLCLK() SPLITFRAME_WM_MOUSE(WM_MBUTTONDBLCLK, OnMButtonDblClk)
/// BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt): pt in screen coordinates; zero passes the turn on
#define ON_WM_MOUSEWHEEL()                                                                                   \
    SPLITFRAME_WM_RESULT(WM_MOUSEWHEEL, OnMouseWheel(LOWORD(wParam), static_cast<short>(HIWORD(wParam)),     \
                                                     splitframe::PointIn(lParam)))
// void OnXFocus(CWnd* pOther)
#define ON_WM_SETFOCUS() SPLITFRAME_WM_VOID(WM_SETFOCUS, OnSetFocus(splitframe::WindowFromParameter(wParam)))
#define ON_WM_KILLFOCUS()                                                                                    \
    SPLITFRAME_WM_VOID(WM_KILLFOCUS, OnKillFocus(splitframe::WindowFromParameter(wParam)))
/// BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message): nonzero when the cursor has been set
#define ON_WM_SETCURSOR()                                                                                    \
    SPLITFRAME_WM_RESULT(                                                                                    \
        WM_SETCURSOR, OnSetCursor(splitframe::WindowFromParameter(wParam), LOWORD(lParam), HIWORD(lParam)))
#define ON_WM_TIMER() SPLITFRAME_WM_VOID(WM_TIMER, OnTimer(static_cast<UINT_PTR>(wParam)))
/// BOOL OnEraseBkgnd(CDC* pDC): nonzero when the background has been painted
#define ON_WM_ERASEBKGND()                                                                                   \
    SPLITFRAME_WM_RESULT(WM_ERASEBKGND, OnEraseBkgnd(splitframe::AddressIn<CDC>(static_cast<LPARAM>(wParam))))
/// void OnActivate(UINT nState, CWnd* pOther, BOOL bMinimized)
#define ON_WM_ACTIVATE()                                                                                     \
    SPLITFRAME_WM_VOID(WM_ACTIVATE,                                                                          \
                       OnActivate(LOWORD(wParam),                                                            \
                                  splitframe::WindowFromParameter(static_cast<std::uintptr_t>(lParam)),      \
                                  static_cast<BOOL>(HIWORD(wParam))))
/// void OnMDIActivate(BOOL bActivate, CWnd* pActivateWnd, CWnd* pDeactivateWnd)
#define ON_WM_MDIACTIVATE()                                                                                  \
    SPLITFRAME_WM_VOID(                                                                                      \
        WM_MDIACTIVATE,                                                                                      \
        OnMDIActivate(lParam == reinterpret_cast<LPARAM>(pThis->GetSafeHwnd()) ? TRUE : FALSE,               \
                      splitframe::WindowFromParameter(static_cast<std::uintptr_t>(lParam)),                  \
                      splitframe::WindowFromParameter(wParam)))
/// void OnShowWindow(BOOL bShow, UINT nStatus)
#define ON_WM_SHOWWINDOW()                                                                                   \
    SPLITFRAME_WM_VOID(WM_SHOWWINDOW, OnShowWindow(static_cast<BOOL>(wParam), static_cast<UINT>(lParam)))
/// void OnEnable(BOOL bEnable)
#define ON_WM_ENABLE() SPLITFRAME_WM_VOID(WM_ENABLE, OnEnable(static_cast<BOOL>(wParam)))
/// void OnCaptureChanged(CWnd* pNew)
#define ON_WM_CAPTURECHANGED()                                                                               \
    SPLITFRAME_WM_VOID(WM_CAPTURECHANGED, OnCaptureChanged(splitframe::WindowFromParameter(                  \
                                              static_cast<std::uintptr_t>(lParam))))
/// void OnContextMenu(CWnd* pWnd, CPoint pt): screen coordinates; (-1, -1) when asked for by key
#define ON_WM_CONTEXTMENU()                                                                                  \
    SPLITFRAME_WM_VOID(WM_CONTEXTMENU,                                                                       \
                       OnContextMenu(splitframe::WindowFromParameter(wParam), splitframe::PointIn(lParam)))

/// LRESULT memberFxn(WPARAM, LPARAM)
#define ON_MESSAGE(message, memberFxn)                                                                       \
    SPLITFRAME_MAP_ENTRY(message, 0, 0, 0, return (pThis->*(memberFxn))(wParam, lParam);)
/// void memberFxn()
#define ON_COMMAND(id, memberFxn)                                                                            \
    SPLITFRAME_MAP_ENTRY(WM_COMMAND, CN_COMMAND, id, id, (pThis->*(memberFxn))(); return 1;)
/// void memberFxn(UINT nID)
#define ON_COMMAND_RANGE(id, lastId, memberFxn)                                                              \
    SPLITFRAME_MAP_ENTRY(WM_COMMAND, CN_COMMAND, id, lastId, (pThis->*(memberFxn))(nMessage); return 1;)
/// void memberFxn(CCmdUI*)
#define ON_UPDATE_COMMAND_UI(id, memberFxn) ON_UPDATE_COMMAND_UI_RANGE(id, id, memberFxn)
#define ON_UPDATE_COMMAND_UI_RANGE(id, lastId, memberFxn)                                                    \
    SPLITFRAME_MAP_ENTRY(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, lastId,                                       \
                         (pThis->*(memberFxn))(splitframe::AddressIn<CCmdUI>(lParam));                       \
                         return 1;)
