// Hit testing, double clicks, key state, and the messages that input becomes.
#include "platform/window/Input.h"
#include "platform/display/Display.h"
#include "platform/window/Dispatch.h"
#include "platform/window/Focus.h"
#include "platform/window/MessageQueue.h"
#include "platform/window/Placement.h"
#include "platform/window/Screen.h"
#include "platform/window/WindowClass.h"
#include "platform/window/WindowManager.h"
#include "platform/window/WindowTree.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <optional>
#include <utility>
#include <vector>

namespace splitframe {

namespace {

using Kind = InputEvent::Kind;

constexpr int DOUBLE_CLICK_DISTANCE = 4; // pixels, in each direction
constexpr LPARAM KEY_WAS_DOWN = LPARAM{1} << 30;
constexpr LPARAM KEY_GOES_UP = LPARAM{1} << 31;
constexpr LPARAM ALT_IS_DOWN = LPARAM{1} << 29;

struct Press
{
    HWND hWnd = nullptr;
    UINT nButton = 0;
    POINT pt{};
    ULONGLONG nTime = 0;
};

// One keyboard and one mouse.
struct InputState
{
    bool keys[256] = {};
    bool bAltAlone = false; // Alt is down, or just went up, and nothing came between
    POINT pt{};
    Press last;
    HWND hUnderMouse = nullptr; // what mouse input went to last
    std::optional<MSG> peeked;
    std::vector<MSG> text; // the rest of a typed text, in reverse
};

InputState& State()
{
    static InputState state;
    return state;
}

bool IsDown(UINT nKey)
{
    return nKey < 256 && State().keys[nKey];
}

UINT HeldFlags()
{
    return (IsDown(VK_LBUTTON) ? MK_LBUTTON : 0U) | (IsDown(VK_RBUTTON) ? MK_RBUTTON : 0U) |
           (IsDown(VK_MBUTTON) ? MK_MBUTTON : 0U) | (IsDown(VK_SHIFT) ? MK_SHIFT : 0U) |
           (IsDown(VK_CONTROL) ? MK_CONTROL : 0U);
}

WindowRecord* HitTest(const POINT& ptScreen)
{
    WindowRecord* pHit = nullptr;
    WindowRecord* pChild = Desktop().pFirst;
    POINT pt = ptScreen;
    while (pChild) {
        const RECT& rc = pChild->rc;
        const bool bInside = pt.x >= rc.left && pt.x < rc.right && pt.y >= rc.top && pt.y < rc.bottom;
        if (bInside && pChild->IsShown() && (pChild->dwStyle & WS_DISABLED) == 0) {
            pHit = pChild;
            pt = {pt.x - rc.left, pt.y - rc.top};
            pChild = pHit->pFirst;
        } else {
            pChild = pChild->pBelow;
        }
    }
    return pHit;
}

WindowRecord* MouseTarget(const POINT& pt)
{
    WindowRecord* pCapture = FindWindowRecord(GetCapture());
    return pCapture ? pCapture : HitTest(pt);
}

bool IsDoubleClick(const WindowRecord& target, UINT nButton, const POINT& pt, ULONGLONG nNow)
{
    const Press& last = State().last;
    return last.hWnd == target.Handle() && last.nButton == nButton &&
           std::abs(pt.x - last.pt.x) <= DOUBLE_CLICK_DISTANCE &&
           std::abs(pt.y - last.pt.y) <= DOUBLE_CLICK_DISTANCE &&
           nNow - last.nTime <= CurrentDisplay().DoubleClickTime() &&
           (target.pClass->nStyle & CS_DBLCLKS) != 0;
}

UINT PressMessage(const WindowRecord& target, UINT nButton, const POINT& pt)
{
    const UINT nDown = nButton == VK_LBUTTON   ? WM_LBUTTONDOWN
                       : nButton == VK_RBUTTON ? WM_RBUTTONDOWN
                                               : WM_MBUTTONDOWN;
    const ULONGLONG nNow = CurrentDisplay().Now();
    if (IsDoubleClick(target, nButton, pt, nNow)) {
        State().last = {};
        return nDown + (WM_LBUTTONDBLCLK - WM_LBUTTONDOWN);
    }
    State().last = {target.Handle(), nButton, pt, nNow};
    return nDown;
}

UINT ReleaseMessage(UINT nButton)
{
    return nButton == VK_LBUTTON ? WM_LBUTTONUP : nButton == VK_RBUTTON ? WM_RBUTTONUP : WM_MBUTTONUP;
}

MSG MakeMessage(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam)
{
    return {hWnd, nMessage, wParam, lParam, static_cast<DWORD>(CurrentDisplay().Now()), State().pt};
}

void AskForCursor(HWND hTarget, UINT nMessage)
{
    if (GetCapture())
        return;
    if (WindowRecord* pTarget = FindWindowRecord(hTarget))
        Dispatcher::Send(*pTarget, WM_SETCURSOR, reinterpret_cast<WPARAM>(hTarget),
                         MAKELPARAM(HTCLIENT, static_cast<int>(nMessage)));
}

void TellLeft(HWND hTarget)
{
    const HWND hLeft = std::exchange(State().hUnderMouse, hTarget);
    if (WindowRecord* pLeft = hLeft != hTarget ? FindWindowRecord(hLeft) : nullptr)
        Dispatcher::Send(*pLeft, WM_MOUSELEAVE, 0, 0);
}

bool FromMouse(const InputEvent& event, MSG& msg)
{
    State().pt = event.pt;
    if (event.kind != Kind::MouseMove)
        State().bAltAlone = false;
    if ((event.kind == Kind::ButtonDown || event.kind == Kind::ButtonUp) && event.nButton < 256)
        State().keys[event.nButton] = event.kind == Kind::ButtonDown;
    const WindowRecord* pTarget = MouseTarget(event.pt);
    const HWND hTarget = pTarget ? pTarget->Handle() : nullptr;
    TellLeft(hTarget);
    pTarget = FindWindowRecord(hTarget);
    if (!pTarget)
        return false;
    if (event.kind == Kind::Wheel) {
        const WPARAM wParam = static_cast<WPARAM>(MAKELPARAM(static_cast<int>(HeldFlags()), event.nDelta));
        msg = MakeMessage(hTarget, WM_MOUSEWHEEL, wParam, MAKELPARAM(event.pt.x, event.pt.y));
        return true;
    }
    const UINT nMessage = event.kind == Kind::MouseMove    ? WM_MOUSEMOVE
                          : event.kind == Kind::ButtonDown ? PressMessage(*pTarget, event.nButton, event.pt)
                                                           : ReleaseMessage(event.nButton);
    AskForCursor(hTarget, nMessage);
    pTarget = FindWindowRecord(hTarget);
    if (!pTarget)
        return false;
    const POINT pt = ScreenOrigin(*pTarget);
    msg = MakeMessage(hTarget, nMessage, HeldFlags(), MAKELPARAM(event.pt.x - pt.x, event.pt.y - pt.y));
    return true;
}

bool FromKey(const InputEvent& event, MSG& msg)
{
    if (event.nKey >= 256)
        return false;
    const bool bDown = event.kind == Kind::KeyDown;
    const bool bAltBefore = IsDown(VK_MENU);
    const bool bWasDown = IsDown(event.nKey) || event.bRepeat;
    if (bDown)
        State().bAltAlone = event.nKey == VK_MENU && (bWasDown ? State().bAltAlone : HeldFlags() == 0);
    State().keys[event.nKey] = bDown;
    const bool bSystem = bAltBefore || IsDown(VK_MENU); // F10 alone is a key that panes hand on
    const HWND hTarget = GetFocus() ? GetFocus() : GetActiveWindow();
    if (!hTarget)
        return false;
    const UINT nMessage = (bSystem ? WM_SYSKEYDOWN : WM_KEYDOWN) + (bDown ? 0U : 1U);
    LPARAM lParam = 1;
    lParam |= bDown ? (bWasDown ? KEY_WAS_DOWN : 0) : (KEY_WAS_DOWN | KEY_GOES_UP);
    lParam |= bAltBefore || IsDown(VK_MENU) ? ALT_IS_DOWN : 0;
    msg = MakeMessage(hTarget, nMessage, event.nKey, lParam);
    return true;
}

bool FromText(const InputEvent& event, MSG& msg)
{
    const HWND hTarget = GetFocus();
    // With Alt alone the key itself makes a WM_SYSCHAR; Ctrl and Alt together type what the keyboard has
    // there.
    const bool bSystem = IsDown(VK_MENU) && !IsDown(VK_CONTROL);
    if (!hTarget || event.strText.IsEmpty() || bSystem)
        return false;
    for (int n = event.strText.GetLength(); n-- > 0;)
        State().text.push_back(MakeMessage(hTarget, WM_CHAR, static_cast<WPARAM>(event.strText.GetAt(n)), 1));
    msg = State().text.back();
    State().text.pop_back();
    return true;
}

bool Translate(const InputEvent& event, MSG& msg)
{
    switch (event.kind) {
    case Kind::MouseMove:
    case Kind::ButtonDown:
    case Kind::ButtonUp:
    case Kind::Wheel:
        return FromMouse(event, msg);
    case Kind::KeyDown:
    case Kind::KeyUp:
        return FromKey(event, msg);
    case Kind::Text:
        return FromText(event, msg);
    case Kind::Deactivate:
        // Keys that are released elsewhere are not heard of.
        std::fill(std::begin(State().keys), std::end(State().keys), false);
        State().bAltAlone = false;
        ActivateByDisplay(false);
        return false;
    case Kind::Activate:
        ActivateByDisplay(true);
        return false;
    case Kind::Resize:
        ReleaseCapture(); // a drag across windows that are about to move has lost its sense
        PrepareScreen();
        PresentEverything(); // also when it is back at the size it had
        return false;
    case Kind::Expose:
        PresentEverything();
        return false;
    case Kind::Minimize:
    case Kind::Restore:
        FollowDisplayIcon(event.kind == Kind::Minimize);
        return false;
    case Kind::Close:
        msg = MakeMessage(MainTopLevel(), WM_CLOSE, 0, 0);
        return msg.hwnd != nullptr;
    }
    return false;
}

bool NextMessage(MSG& msg)
{
    if (!State().text.empty()) {
        msg = State().text.back();
        State().text.pop_back();
        return true;
    }
    InputEvent event;
    while (CurrentDisplay().NextInput(event)) {
        if (Translate(event, msg))
            return true;
    }
    return false;
}

} // namespace

bool TakeInput(MSG& msg, bool bRemove)
{
    std::optional<MSG>& peeked = State().peeked;
    if (peeked && !FindWindowRecord(peeked->hwnd))
        peeked.reset();
    if (!peeked) {
        MSG next{};
        do {
            if (!NextMessage(next))
                return false;
        } while (!FindWindowRecord(next.hwnd));
        peeked = next;
    }
    msg = *peeked;
    if (bRemove)
        peeked.reset();
    return true;
}

bool AltWasPressedAlone()
{
    return State().bAltAlone;
}

POINT PointerPosition()
{
    return State().pt;
}

} // namespace splitframe

using namespace splitframe;

HWND WindowFromPoint(POINT ptScreen)
{
    const WindowRecord* pHit = HitTest(ptScreen);
    return pHit ? pHit->Handle() : nullptr;
}

BOOL GetCursorPos(POINT* pPoint)
{
    if (!pPoint)
        return FALSE;
    *pPoint = State().pt;
    return TRUE;
}

short GetKeyState(int nVirtKey)
{
    return nVirtKey >= 0 && IsDown(static_cast<UINT>(nVirtKey)) ? static_cast<short>(-32768) : short{0};
}

short GetAsyncKeyState(int nVirtKey)
{
    return GetKeyState(nVirtKey);
}
