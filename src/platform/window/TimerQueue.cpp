// Timers as a short list: a program has few.
#include "platform/window/TimerQueue.h"
#include "platform/display/Display.h"
#include "platform/window/Timer.h"
#include "platform/window/WindowRecord.h"

#include <algorithm>
#include <vector>

namespace splitframe {

namespace {

constexpr UINT SHORTEST = 10; // milliseconds: more often, and painting would never be over

struct Running
{
    HWND hWnd;
    UINT_PTR nID;
    UINT nElapse;
    ULONGLONG nDue;
};

std::vector<Running>& Timers()
{
    static std::vector<Running> timers;
    return timers;
}

std::vector<Running>::iterator Earliest()
{
    return std::min_element(Timers().begin(), Timers().end(),
                            [](const Running& a, const Running& b) { return a.nDue < b.nDue; });
}

} // namespace

bool TakeTimer(ULONGLONG nNow, MSG& msg, bool bRemove)
{
    const auto it = Earliest();
    if (it == Timers().end() || it->nDue > nNow)
        return false;
    msg = {it->hWnd, WM_TIMER, it->nID, 0, static_cast<DWORD>(nNow), {0, 0}};
    if (bRemove)
        it->nDue = nNow + it->nElapse;
    return true;
}

std::optional<ULONGLONG> NextTimer()
{
    const auto it = Earliest();
    if (it == Timers().end())
        return std::nullopt;
    return it->nDue;
}

void ForgetTimers(HWND hWnd)
{
    std::erase_if(Timers(), [hWnd](const Running& each) { return each.hWnd == hWnd; });
}

} // namespace splitframe

using namespace splitframe;

UINT_PTR SetTimer(HWND hWnd, UINT_PTR nIDEvent, UINT nElapse)
{
    if (!FindWindowRecord(hWnd))
        return 0;
    KillTimer(hWnd, nIDEvent);
    nElapse = std::max(nElapse, SHORTEST);
    Timers().push_back({hWnd, nIDEvent, nElapse, CurrentDisplay().Now() + nElapse});
    return nIDEvent ? nIDEvent : 1;
}

BOOL KillTimer(HWND hWnd, UINT_PTR nIDEvent)
{
    const auto bSame = [=](const Running& each) { return each.hWnd == hWnd && each.nID == nIDEvent; };
    return std::erase_if(Timers(), bSame) != 0 ? TRUE : FALSE;
}

DWORD GetTickCount()
{
    return static_cast<DWORD>(CurrentDisplay().Now());
}
