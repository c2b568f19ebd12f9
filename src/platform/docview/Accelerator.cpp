// Tables behind checked handles: a handle is a number that is never given out twice.
#include "platform/docview/Accelerator.h"

#include "platform/window/WindowManager.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <vector>

namespace {

using Table = std::vector<ACCEL>;

constexpr WPARAM FROM_ACCELERATOR = 1;

// Process-wide, as handles are; user-interface thread only.
std::map<std::uintptr_t, Table>& Tables()
{
    static std::map<std::uintptr_t, Table> mapTable;
    return mapTable;
}

std::uintptr_t NumberOf(HACCEL hAccel)
{
    return reinterpret_cast<std::uintptr_t>(hAccel);
}

bool IsDown(UINT nKey)
{
    return ::GetKeyState(static_cast<int>(nKey)) < 0;
}

bool Matches(const ACCEL& accel, const MSG& msg)
{
    if (!(accel.fVirt & FVIRTKEY))
        return msg.message == WM_CHAR && msg.wParam == accel.key;
    const bool bKey = msg.message == WM_KEYDOWN || msg.message == WM_SYSKEYDOWN;
    return bKey && msg.wParam == accel.key && IsDown(VK_SHIFT) == ((accel.fVirt & FSHIFT) != 0) &&
           IsDown(VK_CONTROL) == ((accel.fVirt & FCONTROL) != 0) &&
           IsDown(VK_MENU) == ((accel.fVirt & FALT) != 0);
}

} // namespace

HACCEL CreateAcceleratorTable(const ACCEL* pEntries, int nCount)
{
    static std::uintptr_t nLast = 0;
    if (!pEntries || nCount < 1)
        return nullptr;
    Tables().emplace(++nLast, Table(pEntries, pEntries + nCount));
    return reinterpret_cast<HACCEL>(nLast);
}

BOOL DestroyAcceleratorTable(HACCEL hAccel)
{
    return Tables().erase(NumberOf(hAccel)) != 0;
}

int TranslateAcceleratorW(HWND hWnd, HACCEL hAccel, const MSG* pMsg)
{
    const auto found = Tables().find(NumberOf(hAccel));
    if (!pMsg || found == Tables().end() || !::IsWindowEnabled(hWnd))
        return 0;
    const auto entry =
        std::ranges::find_if(found->second, [pMsg](const ACCEL& accel) { return Matches(accel, *pMsg); });
    if (entry == found->second.end())
        return 0;
    const WPARAM wParam = entry->cmd | (FROM_ACCELERATOR << 16); // the command may destroy the table
    ::SendMessage(hWnd, WM_COMMAND, wParam, 0);
    return 1;
}
