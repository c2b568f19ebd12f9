// Whose turn it is: posted messages, input, painting, timers.
#include "platform/window/MessageLoop.h"
#include "platform/display/Display.h"
#include "platform/window/Dispatch.h"
#include "platform/window/Input.h"
#include "platform/window/MenuTracking.h"
#include "platform/window/MessageQueue.h"
#include "platform/window/Painting.h"
#include "platform/window/Screen.h"
#include "platform/window/TimerQueue.h"
#include "platform/window/WindowManager.h"
#include "platform/window/WindowTree.h"

#include <algorithm>
#include <optional>
#include <thread>
#include <utility>

namespace splitframe {

namespace {

constexpr ULONGLONG LONGEST_BURST = 8;        // milliseconds of posted messages before others get their turn
constexpr unsigned long DRAIN_LIMIT = 200000; // messages that DrainMessages handles at most

struct LoopState
{
    std::optional<int> exitCode;
    std::optional<ULONGLONG> burstSince; // the time of the first of the posted messages taken in a row
    PreTranslateFilter pfnFilter = nullptr;
};

LoopState& State()
{
    static LoopState state; // one user-interface thread
    return state;
}

bool TakePosted(MSG& msg, bool bRemove)
{
    if (!PostedMessages().Take(msg, bRemove))
        return false;
    const ULONGLONG nNow = CurrentDisplay().Now();
    msg.time = static_cast<DWORD>(nNow);
    msg.pt = PointerPosition();
    if (!State().burstSince)
        State().burstSince = nNow;
    return true;
}

bool IsOthersTurn()
{
    return State().burstSince && CurrentDisplay().Now() - *State().burstSince >= LONGEST_BURST;
}

void EndBurst()
{
    State().burstSince.reset();
}

enum class Next
{
    Message,
    Quit,
    Nothing
};

Next TakeNext(MSG& msg, bool bRemove)
{
    if (IsOthersTurn()) {
        if (TakeInput(msg, bRemove))
            return Next::Message;
        PaintNow();
        EndBurst();
    }
    if (TakePosted(msg, bRemove))
        return Next::Message;
    EndBurst();
    if (State().exitCode) {
        msg = {nullptr, WM_QUIT, static_cast<WPARAM>(*State().exitCode), 0, 0, PointerPosition()};
        if (bRemove)
            State().exitCode.reset();
        return Next::Quit;
    }
    if (TakeInput(msg, bRemove))
        return Next::Message;
    PaintNow();
    // Painting may have posted; that goes first.
    if (TakePosted(msg, bRemove) || TakeTimer(CurrentDisplay().Now(), msg, bRemove))
        return Next::Message;
    return Next::Nothing;
}

DWORD TimeToNextTimer()
{
    const std::optional<ULONGLONG> next = NextTimer();
    if (!next)
        return Display::INFINITE_WAIT;
    const ULONGLONG nNow = CurrentDisplay().Now();
    return *next <= nNow ? 0 : static_cast<DWORD>(std::min<ULONGLONG>(*next - nNow, 60'000));
}

void FilterAndDispatch(MSG& msg)
{
    BOOL bDone = FALSE;
    if (const PreTranslateFilter pfnFilter = State().pfnFilter)
        Dispatcher::Guard(L"PreTranslateMessage", [&] { bDone = pfnFilter(&msg); });
    if (bDone)
        return;
    TranslateMessage(&msg);
    DispatchMessage(&msg);
}

} // namespace

bool IsUserInterfaceThread()
{
    static const std::thread::id owner = std::this_thread::get_id();
    return std::this_thread::get_id() == owner;
}

PreTranslateFilter SetPreTranslateFilter(PreTranslateFilter pfnFilter)
{
    return std::exchange(State().pfnFilter, pfnFilter);
}

void HandleMessage(MSG* pMsg)
{
    MenuTracking& menu = MenuTracking::The();
    if (!pMsg || menu.Takes(*pMsg))
        return;
    FilterAndDispatch(*pMsg);
    menu.Prune(); // a handler may have destroyed what it stands on
}

bool RunLoopWhile(const std::function<bool()>& goesOn)
{
    MSG msg{};
    while (goesOn()) {
        if (::GetMessage(&msg)) {
            HandleMessage(&msg);
            continue;
        }
        if (msg.message == WM_QUIT)
            ::PostQuitMessage(static_cast<int>(msg.wParam));
        return false;
    }
    return true;
}

void DrainMessages()
{
    MSG msg{};
    for (unsigned long n = 0; n < DRAIN_LIMIT && TakeNext(msg, true) == Next::Message; ++n)
        HandleMessage(&msg);
    if (msg.message == WM_QUIT && !msg.hwnd)
        PostQuitMessage(static_cast<int>(msg.wParam));
    PaintNow();
}

void PaintNow()
{
    if (IsPaintingDue())
        PaintTree(Desktop());
    PresentDamage();
}

} // namespace splitframe

using namespace splitframe;

BOOL GetMessage(MSG* pMsg)
{
    if (!pMsg)
        return FALSE;
    for (;;) {
        switch (TakeNext(*pMsg, true)) {
        case Next::Message:
            return TRUE;
        case Next::Quit:
            return FALSE;
        case Next::Nothing:
            break;
        }
        if (!IsPaintingDue() && !CurrentDisplay().Wait(TimeToNextTimer())) {
            *pMsg = MSG{};
            return FALSE;
        }
    }
}

BOOL PeekMessage(MSG* pMsg, UINT nRemove)
{
    if (!pMsg)
        return FALSE;
    return TakeNext(*pMsg, (nRemove & PM_REMOVE) != 0) != Next::Nothing ? TRUE : FALSE;
}

BOOL TranslateMessage(const MSG* pMsg)
{
    if (!pMsg || pMsg->message < WM_KEYFIRST || pMsg->message > WM_KEYLAST)
        return FALSE;
    const bool bControlCharacter = pMsg->wParam == VK_BACK || pMsg->wParam == VK_TAB ||
                                   pMsg->wParam == VK_RETURN || pMsg->wParam == VK_ESCAPE;
    if (pMsg->message == WM_KEYDOWN && bControlCharacter)
        PostMessage(pMsg->hwnd, WM_CHAR, pMsg->wParam, pMsg->lParam);
    // With Alt held displays hand in no text. Small letters, as typed.
    if (pMsg->message == WM_SYSKEYDOWN && IsLetterOrDigitKey(pMsg->wParam))
        PostMessage(pMsg->hwnd, WM_SYSCHAR, pMsg->wParam >= 'A' ? pMsg->wParam + ('a' - 'A') : pMsg->wParam,
                    pMsg->lParam);
    return TRUE;
}

LRESULT DispatchMessage(const MSG* pMsg)
{
    if (!pMsg)
        return 0;
    if (pMsg->message != WM_MOUSEWHEEL)
        return SendMessage(pMsg->hwnd, pMsg->message, pMsg->wParam, pMsg->lParam);
    // The wheel goes up from the window under the pointer to the first that uses it.
    LRESULT nResult = 0;
    for (HWND hEach = pMsg->hwnd; hEach && nResult == 0;) {
        nResult = SendMessage(hEach, WM_MOUSEWHEEL, pMsg->wParam, pMsg->lParam);
        const WindowRecord* pRecord = FindWindowRecord(hEach);
        const bool bHasParent = pRecord && pRecord->pParent != &Desktop();
        hEach = bHasParent ? pRecord->pParent->Handle() : nullptr;
    }
    return nResult;
}

void PostQuitMessage(int nExitCode)
{
    State().exitCode = nExitCode;
    WakeDisplay();
}
