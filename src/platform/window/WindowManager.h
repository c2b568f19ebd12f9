// The window manager's operations on window handles. Every handle is checked: null, stale and foreign handles
// get the result that each function names and nothing happens. All of it belongs to the user-interface
// thread, PostMessage excepted. Rectangles and points are in the parent's client coordinates where nothing
// else is said; a window's client area is its whole rectangle. Screen coordinates are those of the display.
#pragma once

#include "platform/base/Export.h"
#include "platform/base/String.h"
#include "platform/base/Types.h"
#include "platform/window/CallScope.h"
#include "platform/window/Menu.h"
#include "platform/window/MessageLoop.h"
#include "platform/window/Messages.h"
#include "platform/window/Timer.h"

class CDC;
class CWnd;

/// SetWindowPos: above all siblings, below all siblings.
inline constexpr HWND HWND_TOP = nullptr;
SPLITFRAME_PLATFORM_API extern const HWND HWND_BOTTOM;

// System cursors by number, and by name as the functions take them.
inline constexpr UINT CURSOR_ARROW = 32512;
#define IDC_ARROW MAKEINTRESOURCE(32512)
#define IDC_IBEAM MAKEINTRESOURCE(32513)
#define IDC_WAIT MAKEINTRESOURCE(32514)
#define IDC_SIZEWE MAKEINTRESOURCE(32644)
#define IDC_SIZENS MAKEINTRESOURCE(32645)
#define IDC_HAND MAKEINTRESOURCE(32649)
/// A resource's number in the place of its name.
inline LPCWSTR MAKEINTRESOURCE(UINT nNumber)
{
    return reinterpret_cast<LPCWSTR>(static_cast<UINT_PTR>(nNumber));
}

// --- classes

/// Registers a window class, or answers the name of an equal one that exists.
/// @param nClassStyle   CS_ bits; double clicks only reach classes with CS_DBLCLKS
/// @param hCursor       cursor shown over the class's windows; null leaves the cursor alone
/// @param hbrBackground what WM_ERASEBKGND fills with; null: the face colour, and handlers paint over it
/// @param hIcon         without effect
/// @return the class's name; it lives as long as the process
SPLITFRAME_PLATFORM_API LPCWSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr,
                                                    HBRUSH hbrBackground = nullptr, HICON hIcon = nullptr);

// --- handles and the tree

SPLITFRAME_PLATFORM_API BOOL IsWindow(HWND hWnd);
/// Destroys a window and all below it; see CWnd::DestroyWindow. FALSE for a handle without window and for a
/// window that is being destroyed already.
SPLITFRAME_PLATFORM_API BOOL DestroyWindow(HWND hWnd);
/// The parent of a child, the owner of another window; null if there is none.
SPLITFRAME_PLATFORM_API HWND GetParent(HWND hWnd);
/// Moves a window to another parent, on top of its siblings; its position in client coordinates stays.
/// @return the old parent; null, and nothing changes, when that would make a circle, too deep a tree, or on
/// bad handles
SPLITFRAME_PLATFORM_API HWND SetParent(HWND hChild, HWND hNewParent);
/// @param nCmd  a GW_ value. GW_CHILD answers the topmost child.
SPLITFRAME_PLATFORM_API HWND GetWindow(HWND hWnd, UINT nCmd);
/// The topmost child; of null the topmost top-level window.
SPLITFRAME_PLATFORM_API HWND GetTopWindow(HWND hWnd);
/// Whether hWnd is a descendant of hParent (not hParent itself).
SPLITFRAME_PLATFORM_API BOOL IsChild(HWND hParent, HWND hWnd);
/// Class, control ID or rectangle by handle.
SPLITFRAME_PLATFORM_API int GetDlgCtrlID(HWND hWnd);

// --- place and visibility

/// Restacks, moves, sizes, shows and hides a window, as the flags ask. Constant time, and next to nothing
/// when nothing changes. Negative sizes count as 0. Sends WM_MOVE, WM_SIZE and WM_SHOWWINDOW for what has
/// changed; painting follows later. Never moves the focus.
/// @param hInsertAfter  HWND_TOP, HWND_BOTTOM, or the sibling that will be just above; another handle: not
/// restacked
/// @return FALSE for a handle without window, or when a handler destroyed the window
SPLITFRAME_PLATFORM_API BOOL SetWindowPos(HWND hWnd, HWND hInsertAfter, int x, int y, int cx, int cy,
                                          UINT nFlags);
SPLITFRAME_PLATFORM_API BOOL MoveWindow(HWND hWnd, int x, int y, int cx, int cy, BOOL bRepaint);
/// SW_HIDE hides, all others show; the maximised and minimised commands set the style bit and leave the
/// rectangle to the window's owner. Showing activates nothing. Hiding the focus (or its ancestor) moves it to
/// the parent; hiding the active window activates its owner, else another one that is shown.
/// @return whether the window was visible (its own flag)
SPLITFRAME_PLATFORM_API BOOL ShowWindow(HWND hWnd, int nCmdShow);
/// Whether the window and all its ancestors are shown. Being covered or of no size does not matter.
SPLITFRAME_PLATFORM_API BOOL IsWindowVisible(HWND hWnd);
/// Disabled windows get no mouse input; it goes to what lies below. @return whether it was disabled
SPLITFRAME_PLATFORM_API BOOL EnableWindow(HWND hWnd, BOOL bEnable);
/// Whether the window itself is enabled.
SPLITFRAME_PLATFORM_API BOOL IsWindowEnabled(HWND hWnd);
/// In screen coordinates. FALSE, and an empty rectangle, for a handle without window.
SPLITFRAME_PLATFORM_API BOOL GetWindowRect(HWND hWnd, LPRECT pRect);
/// Left and top are 0.
SPLITFRAME_PLATFORM_API BOOL GetClientRect(HWND hWnd, LPRECT pRect);
SPLITFRAME_PLATFORM_API BOOL ClientToScreen(HWND hWnd, POINT* pPoint);
SPLITFRAME_PLATFORM_API BOOL ScreenToClient(HWND hWnd, POINT* pPoint);
/// The topmost visible, enabled window at a point of the screen, or null.
SPLITFRAME_PLATFORM_API HWND WindowFromPoint(POINT ptScreen);

// --- painting

/// Marks a part of a window for painting, in client coordinates; null: all of it. Its children are painted
/// too unless it has WS_CLIPCHILDREN. What is hidden or covered at painting time is dropped.
SPLITFRAME_PLATFORM_API BOOL InvalidateRect(HWND hWnd, LPCRECT pRect, BOOL bErase);
/// Takes a window's own mark back; a part only if it holds all that is marked.
SPLITFRAME_PLATFORM_API BOOL ValidateRect(HWND hWnd, LPCRECT pRect);
/// Paints what is marked in the window and below it now.
SPLITFRAME_PLATFORM_API BOOL UpdateWindow(HWND hWnd);
SPLITFRAME_PLATFORM_API BOOL RedrawWindow(HWND hWnd, LPCRECT pRect, UINT nFlags);

// --- messages

/// Calls the window's procedure and returns its result; 0 for a handle without window. No exception comes
/// out: it is reported as a diagnostic and the message answers 0 (WM_CREATE: -1).
SPLITFRAME_PLATFORM_API LRESULT SendMessage(HWND hWnd, UINT nMessage, WPARAM wParam = 0, LPARAM lParam = 0);
/// Queues a message; any thread. A message whose window is gone by the time of its turn is dropped.
/// @return FALSE for null or when the window is known to be gone (known on the user-interface thread only)
SPLITFRAME_PLATFORM_API BOOL PostMessage(HWND hWnd, UINT nMessage, WPARAM wParam = 0, LPARAM lParam = 0);

// --- focus, capture, cursor, keys

SPLITFRAME_PLATFORM_API HWND GetFocus();
/// Gives the keyboard focus, also to a hidden window; null takes it from all. WM_KILLFOCUS goes to the old
/// one, then WM_SETFOCUS to the new. @return the window that had it
SPLITFRAME_PLATFORM_API HWND SetFocus(HWND hWnd);
SPLITFRAME_PLATFORM_API HWND GetCapture();
/// All mouse input goes to this window until it is released. @return the window that had it
SPLITFRAME_PLATFORM_API HWND SetCapture(HWND hWnd);
/// Releases whoever holds the mouse; it is told by WM_CAPTURECHANGED.
SPLITFRAME_PLATFORM_API BOOL ReleaseCapture();
/// The top-level window that is active, or null while the application is not.
SPLITFRAME_PLATFORM_API HWND GetActiveWindow();
/// Makes a top-level window active: WM_ACTIVATE to the old and to the new. @return the one before
SPLITFRAME_PLATFORM_API HWND SetActiveWindow(HWND hWnd);
/// A system cursor by its number (IDC_); null for others. The instance is not looked at.
SPLITFRAME_PLATFORM_API HCURSOR LoadCursor(HINSTANCE hInstance, LPCWSTR pszName);
/// Sets the cursor shown now; null hides it. @return the one before
SPLITFRAME_PLATFORM_API HCURSOR SetCursor(HCURSOR hCursor);
SPLITFRAME_PLATFORM_API HCURSOR GetCursor();
/// The pointer's position in screen coordinates.
SPLITFRAME_PLATFORM_API BOOL GetCursorPos(POINT* pPoint);
/// Negative while the key or mouse button is down.
SPLITFRAME_PLATFORM_API short GetKeyState(int nVirtKey);
SPLITFRAME_PLATFORM_API short GetAsyncKeyState(int nVirtKey);

namespace splitframe {

/// The window tree as text, top-level windows and children from the top of the z-order down, one window a
/// line: class, text, rectangle in the parent's client coordinates, and what is special about it (hidden,
/// disabled, focus, capture, active, marked for painting).
SPLITFRAME_PLATFORM_API CString DumpWindowTree(HWND hRoot = nullptr);

/// The first broken rule of the window tree in words, or empty: links, z-order, marks, focus and capture.
SPLITFRAME_PLATFORM_API CString CheckWindowTree();

/// Whether something is drawn on the screen by exclusive or now, over what the windows have painted.
SPLITFRAME_PLATFORM_API bool IsScreenDrawnOver();

} // namespace splitframe
