// The vocabulary of windows: message numbers, styles, commands, key codes and the structures that travel with
// messages. Values only; knows nothing of how windows work.
// Enumerations without a name keep the values usable wherever a UINT, DWORD or int is asked for.
#pragma once

#include "platform/base/Types.h"

// Messages. WM_ERASEBKGND carries the address of a CDC in its first parameter; mouse messages carry the point
// in the window's client coordinates (WM_MOUSEWHEEL and WM_CONTEXTMENU: screen coordinates).
inline constexpr UINT WM_NULL = 0x0000;
inline constexpr UINT WM_CREATE = 0x0001;
inline constexpr UINT WM_DESTROY = 0x0002;
inline constexpr UINT WM_MOVE = 0x0003;
inline constexpr UINT WM_SIZE = 0x0005;
inline constexpr UINT WM_ACTIVATE = 0x0006;
inline constexpr UINT WM_SETFOCUS = 0x0007;
inline constexpr UINT WM_KILLFOCUS = 0x0008;
inline constexpr UINT WM_ENABLE = 0x000A;
inline constexpr UINT WM_SETTEXT = 0x000C;
inline constexpr UINT WM_GETTEXT = 0x000D;
inline constexpr UINT WM_GETTEXTLENGTH = 0x000E;
inline constexpr UINT WM_PAINT = 0x000F;
inline constexpr UINT WM_CLOSE = 0x0010;
inline constexpr UINT WM_QUIT = 0x0012;
inline constexpr UINT WM_ERASEBKGND = 0x0014;
inline constexpr UINT WM_SHOWWINDOW = 0x0018;
inline constexpr UINT WM_CANCELMODE = 0x001F;
inline constexpr UINT WM_SETCURSOR = 0x0020;
inline constexpr UINT WM_CONTEXTMENU = 0x007B;
inline constexpr UINT WM_NCCREATE = 0x0081;
inline constexpr UINT WM_NCDESTROY = 0x0082;
inline constexpr UINT WM_KEYFIRST = 0x0100;
inline constexpr UINT WM_KEYDOWN = 0x0100;
inline constexpr UINT WM_KEYUP = 0x0101;
inline constexpr UINT WM_CHAR = 0x0102;
inline constexpr UINT WM_SYSKEYDOWN = 0x0104;
inline constexpr UINT WM_SYSKEYUP = 0x0105;
inline constexpr UINT WM_SYSCHAR = 0x0106;
inline constexpr UINT WM_KEYLAST = 0x0109;
inline constexpr UINT WM_COMMAND = 0x0111;
inline constexpr UINT WM_SYSCOMMAND = 0x0112;
inline constexpr UINT WM_TIMER = 0x0113;
inline constexpr UINT WM_INITMENUPOPUP = 0x0117;
inline constexpr UINT WM_MOUSEFIRST = 0x0200;
inline constexpr UINT WM_MOUSEMOVE = 0x0200;
inline constexpr UINT WM_LBUTTONDOWN = 0x0201;
inline constexpr UINT WM_LBUTTONUP = 0x0202;
inline constexpr UINT WM_LBUTTONDBLCLK = 0x0203;
inline constexpr UINT WM_RBUTTONDOWN = 0x0204;
inline constexpr UINT WM_RBUTTONUP = 0x0205;
inline constexpr UINT WM_RBUTTONDBLCLK = 0x0206;
inline constexpr UINT WM_MBUTTONDOWN = 0x0207;
inline constexpr UINT WM_MBUTTONUP = 0x0208;
inline constexpr UINT WM_MBUTTONDBLCLK = 0x0209;
inline constexpr UINT WM_MOUSEWHEEL = 0x020A;
inline constexpr UINT WM_MOUSELAST = 0x020A;
inline constexpr UINT WM_CAPTURECHANGED = 0x0215;
inline constexpr UINT WM_MOUSELEAVE = 0x02A3; // sent when mouse input goes to another window from now on
inline constexpr UINT WM_MDIACTIVATE = 0x0222;
inline constexpr UINT WM_USER = 0x0400;
inline constexpr UINT WM_APP = 0x8000;

// WM_SIZE, first parameter.
inline constexpr UINT SIZE_RESTORED = 0;
inline constexpr UINT SIZE_MINIMIZED = 1;
inline constexpr UINT SIZE_MAXIMIZED = 2;

// WM_ACTIVATE, low word of the first parameter.
inline constexpr UINT WA_INACTIVE = 0;
inline constexpr UINT WA_ACTIVE = 1;
inline constexpr UINT WA_CLICKACTIVE = 2;

// Window styles.
inline constexpr DWORD WS_OVERLAPPED = 0x00000000;
inline constexpr DWORD WS_POPUP = 0x80000000;
inline constexpr DWORD WS_CHILD = 0x40000000;
inline constexpr DWORD WS_MINIMIZE = 0x20000000;
inline constexpr DWORD WS_VISIBLE = 0x10000000;
inline constexpr DWORD WS_DISABLED = 0x08000000;
inline constexpr DWORD WS_CLIPSIBLINGS = 0x04000000;
inline constexpr DWORD WS_CLIPCHILDREN = 0x02000000;
inline constexpr DWORD WS_MAXIMIZE = 0x01000000;
inline constexpr DWORD WS_CAPTION = 0x00C00000;
inline constexpr DWORD WS_BORDER = 0x00800000;
inline constexpr DWORD WS_SYSMENU = 0x00080000;
inline constexpr DWORD WS_THICKFRAME = 0x00040000;
inline constexpr DWORD WS_GROUP = 0x00020000;
inline constexpr DWORD WS_TABSTOP = 0x00010000;
inline constexpr DWORD WS_MINIMIZEBOX = 0x00020000;
inline constexpr DWORD WS_MAXIMIZEBOX = 0x00010000;
inline constexpr DWORD WS_OVERLAPPEDWINDOW =
    WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX;

// Class styles.
inline constexpr UINT CS_VREDRAW = 0x0001;
inline constexpr UINT CS_HREDRAW = 0x0002;
inline constexpr UINT CS_DBLCLKS = 0x0008;
inline constexpr UINT CS_OWNDC = 0x0020;

// ShowWindow.
inline constexpr int SW_HIDE = 0;
inline constexpr int SW_SHOWNORMAL = 1;
inline constexpr int SW_SHOWMINIMIZED = 2;
inline constexpr int SW_SHOWMAXIMIZED = 3;
inline constexpr int SW_MAXIMIZE = 3;
inline constexpr int SW_SHOWNOACTIVATE = 4;
inline constexpr int SW_SHOW = 5;
inline constexpr int SW_MINIMIZE = 6;
inline constexpr int SW_SHOWNA = 8;
inline constexpr int SW_RESTORE = 9;

// SetWindowPos.
inline constexpr UINT SWP_NOSIZE = 0x0001;
inline constexpr UINT SWP_NOMOVE = 0x0002;
inline constexpr UINT SWP_NOZORDER = 0x0004;
inline constexpr UINT SWP_NOREDRAW = 0x0008;
inline constexpr UINT SWP_NOACTIVATE = 0x0010;
inline constexpr UINT SWP_FRAMECHANGED = 0x0020;
inline constexpr UINT SWP_SHOWWINDOW = 0x0040;
inline constexpr UINT SWP_HIDEWINDOW = 0x0080;

// GetWindow. Z-order runs from the topmost (first) to the bottom (last).
inline constexpr UINT GW_HWNDFIRST = 0;
inline constexpr UINT GW_HWNDLAST = 1;
inline constexpr UINT GW_HWNDNEXT = 2;
inline constexpr UINT GW_HWNDPREV = 3;
inline constexpr UINT GW_OWNER = 4;
inline constexpr UINT GW_CHILD = 5;

// RedrawWindow.
inline constexpr UINT RDW_INVALIDATE = 0x0001;
inline constexpr UINT RDW_ERASE = 0x0004;
inline constexpr UINT RDW_VALIDATE = 0x0008;
inline constexpr UINT RDW_NOCHILDREN = 0x0040;
inline constexpr UINT RDW_ALLCHILDREN = 0x0080;
inline constexpr UINT RDW_UPDATENOW = 0x0100;

// PeekMessage.
inline constexpr UINT PM_NOREMOVE = 0x0000;
inline constexpr UINT PM_REMOVE = 0x0001;

// Buttons and modifiers held, first parameter of mouse messages.
inline constexpr UINT MK_LBUTTON = 0x0001;
inline constexpr UINT MK_RBUTTON = 0x0002;
inline constexpr UINT MK_SHIFT = 0x0004;
inline constexpr UINT MK_CONTROL = 0x0008;
inline constexpr UINT MK_MBUTTON = 0x0010;

inline constexpr int WHEEL_DELTA = 120;
inline constexpr int HTNOWHERE = 0;
inline constexpr int HTCLIENT = 1;

// Virtual keys. Digits and upper-case letters are their own codes.
inline constexpr UINT VK_LBUTTON = 0x01;
inline constexpr UINT VK_RBUTTON = 0x02;
inline constexpr UINT VK_MBUTTON = 0x04;
inline constexpr UINT VK_BACK = 0x08;
inline constexpr UINT VK_TAB = 0x09;
inline constexpr UINT VK_RETURN = 0x0D;
inline constexpr UINT VK_SHIFT = 0x10;
inline constexpr UINT VK_CONTROL = 0x11;
inline constexpr UINT VK_MENU = 0x12;
inline constexpr UINT VK_PAUSE = 0x13;
inline constexpr UINT VK_CAPITAL = 0x14;
inline constexpr UINT VK_ESCAPE = 0x1B;
inline constexpr UINT VK_SPACE = 0x20;
inline constexpr UINT VK_PRIOR = 0x21;
inline constexpr UINT VK_NEXT = 0x22;
inline constexpr UINT VK_END = 0x23;
inline constexpr UINT VK_HOME = 0x24;
inline constexpr UINT VK_LEFT = 0x25;
inline constexpr UINT VK_UP = 0x26;
inline constexpr UINT VK_RIGHT = 0x27;
inline constexpr UINT VK_DOWN = 0x28;
inline constexpr UINT VK_INSERT = 0x2D;
inline constexpr UINT VK_DELETE = 0x2E;
inline constexpr UINT VK_APPS = 0x5D;
inline constexpr UINT VK_NUMPAD0 = 0x60;
inline constexpr UINT VK_NUMPAD9 = 0x69;
inline constexpr UINT VK_MULTIPLY = 0x6A;
inline constexpr UINT VK_ADD = 0x6B;
inline constexpr UINT VK_SUBTRACT = 0x6D;
inline constexpr UINT VK_DECIMAL = 0x6E;
inline constexpr UINT VK_DIVIDE = 0x6F;
inline constexpr UINT VK_F1 = 0x70;
inline constexpr UINT VK_F4 = 0x73;
inline constexpr UINT VK_F6 = 0x75;
inline constexpr UINT VK_F7 = 0x76;
inline constexpr UINT VK_F8 = 0x77;
inline constexpr UINT VK_F9 = 0x78;
inline constexpr UINT VK_F10 = 0x79;
inline constexpr UINT VK_F11 = 0x7A;
inline constexpr UINT VK_F12 = 0x7B;

// Menus.
inline constexpr UINT MF_BYCOMMAND = 0x0000;
inline constexpr UINT MF_BYPOSITION = 0x0400;
inline constexpr UINT MF_STRING = 0x0000;
inline constexpr UINT MF_ENABLED = 0x0000;
inline constexpr UINT MF_UNCHECKED = 0x0000;
inline constexpr UINT MF_GRAYED = 0x0001;
inline constexpr UINT MF_DISABLED = 0x0002;
inline constexpr UINT MF_CHECKED = 0x0008;
inline constexpr UINT MF_POPUP = 0x0010;
inline constexpr UINT MF_SEPARATOR = 0x0800;

// TrackPopupMenu: how the menu stands to the point, and whether the owner hears of it.
inline constexpr UINT TPM_LEFTALIGN = 0x0000;
inline constexpr UINT TPM_CENTERALIGN = 0x0004;
inline constexpr UINT TPM_RIGHTALIGN = 0x0008;
inline constexpr UINT TPM_TOPALIGN = 0x0000;
inline constexpr UINT TPM_VCENTERALIGN = 0x0010;
inline constexpr UINT TPM_BOTTOMALIGN = 0x0020;
inline constexpr UINT TPM_LEFTBUTTON = 0x0000;  // either button chooses
inline constexpr UINT TPM_RIGHTBUTTON = 0x0002; // either button chooses
inline constexpr UINT TPM_NONOTIFY = 0x0080;    // no WM_INITMENUPOPUP
inline constexpr UINT TPM_RETURNCMD = 0x0100;   // the command is answered, not sent

// WM_SYSCOMMAND, first parameter: a key asks for the menu bar. Second parameter: the letter, 0 for none.
inline constexpr UINT SC_KEYMENU = 0xF100;

// Message boxes.
inline constexpr UINT MB_OK = 0x0000;
inline constexpr UINT MB_OKCANCEL = 0x0001;
inline constexpr UINT MB_ABORTRETRYIGNORE = 0x0002;
inline constexpr UINT MB_YESNOCANCEL = 0x0003;
inline constexpr UINT MB_YESNO = 0x0004;
inline constexpr UINT MB_RETRYCANCEL = 0x0005;
inline constexpr UINT MB_TYPEMASK = 0x000F;
inline constexpr UINT MB_ICONERROR = 0x0010;
inline constexpr UINT MB_ICONQUESTION = 0x0020;
inline constexpr UINT MB_ICONWARNING = 0x0030;
inline constexpr UINT MB_ICONINFORMATION = 0x0040;
inline constexpr UINT MB_ICONMASK = 0x00F0;
inline constexpr UINT MB_DEFBUTTON1 = 0x0000;
inline constexpr UINT MB_DEFBUTTON2 = 0x0100;
inline constexpr UINT MB_DEFBUTTON3 = 0x0200;
inline constexpr UINT MB_DEFMASK = 0x0F00;
inline constexpr int IDOK = 1;
inline constexpr int IDCANCEL = 2;
inline constexpr int IDABORT = 3;
inline constexpr int IDRETRY = 4;
inline constexpr int IDIGNORE = 5;
inline constexpr int IDYES = 6;
inline constexpr int IDNO = 7;

/// The largest and smallest coordinates that a window takes; what is asked beyond them is cut to them, so
/// that sums of positions along the tree never overflow.
inline constexpr int WINDOW_COORDINATE_LIMIT = 1 << 24;

/// As the x of a top-level window's rectangle: the window takes the whole display.
inline constexpr int CW_USEDEFAULT = static_cast<int>(0x80000000U);

/// A message taken from the queue.
struct MSG
{
    HWND hwnd;     ///< receiver, or null for a message to the thread (WM_QUIT)
    UINT message;  ///< message number
    WPARAM wParam; ///< meaning by message
    LPARAM lParam; ///< meaning by message
    DWORD time;    ///< the display's clock in milliseconds
    POINT pt;      ///< pointer position in screen coordinates
};

/// What a window is created with: PreCreateWindow may change it, WM_CREATE carries its address.
struct CREATESTRUCT
{
    LPVOID lpCreateParams; ///< the creation context, not owned, may be null
    HINSTANCE hInstance;   ///< always null
    HMENU hMenu;           ///< menu of a top-level window; of a child its control ID
    HWND hwndParent;       ///< parent of a child, owner of a top-level window, may be null
    int cy;                ///< height
    int cx;                ///< width
    int y;                 ///< top in the parent's client coordinates
    int x;                 ///< left in the parent's client coordinates
    LONG style;            ///< WS_ bits
    LPCWSTR lpszName;      ///< window text, may be null
    LPCWSTR lpszClass;     ///< class name, null for the plain class
    DWORD dwExStyle;       ///< kept, without effect
};
using LPCREATESTRUCT = CREATESTRUCT*;
