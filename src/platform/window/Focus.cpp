// Focus, capture, activation. Each change is made first and told afterwards, so that a handler that changes
// it again wins.
#include "platform/window/Focus.h"
#include "platform/window/Dispatch.h"
#include "platform/window/MenuTracking.h"
#include "platform/window/WindowManager.h"
#include "platform/window/WindowTree.h"

#include <utility>

namespace splitframe {

namespace {

// One user, one keyboard, one mouse: process-wide by nature.
HWND g_hFocus = nullptr;
HWND g_hCapture = nullptr;
HWND g_hActive = nullptr;
HWND g_hFocusWhenActive = nullptr; // what had the focus when the application was left

WPARAM AsParameter(HWND hWnd)
{
    return reinterpret_cast<WPARAM>(hWnd);
}

void Tell(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam)
{
    if (WindowRecord* pRecord = FindWindowRecord(hWnd))
        Dispatcher::Send(*pRecord, nMessage, wParam, lParam);
}

bool HoldsWindow(HWND hOuter, HWND hInner)
{
    const WindowRecord* pOuter = FindWindowRecord(hOuter);
    const WindowRecord* pInner = FindWindowRecord(hInner);
    return pOuter && pInner && IsSelfOrAncestor(*pOuter, *pInner);
}

// The topmost other top-level window that can be seen.
HWND OtherTopLevel(const WindowRecord& record)
{
    const WindowRecord* pEach = Desktop().pFirst;
    while (pEach && (pEach == &record || !pEach->IsShown() || pEach->bDying))
        pEach = pEach->pBelow;
    return pEach ? pEach->Handle() : nullptr;
}

// The nearest ancestor that may take the focus; of a top-level window its owner, or another one.
HWND HeirOf(HWND hWnd)
{
    const WindowRecord* pRecord = FindWindowRecord(hWnd);
    if (!pRecord)
        return nullptr;
    const WindowRecord* pHeir = pRecord->pParent;
    if (pHeir == &Desktop())
        pHeir = FindWindowRecord(pRecord->hOwner);
    if (!pHeir)
        return OtherTopLevel(*pRecord);
    return pHeir && !IsInDyingTree(*pHeir) ? pHeir->Handle() : nullptr;
}

} // namespace

void LeaveFocus(HWND hWnd)
{
    if (HoldsWindow(hWnd, g_hFocus))
        SetFocus(HeirOf(hWnd));
}

void LeaveCapture(HWND hWnd)
{
    if (HoldsWindow(hWnd, g_hCapture))
        ReleaseCapture();
}

void LeaveActivation(HWND hWnd)
{
    if (HoldsWindow(hWnd, g_hActive))
        SetActiveWindow(HeirOf(hWnd));
}

void LeaveInput(HWND hWnd)
{
    LeaveCapture(hWnd);
    LeaveActivation(hWnd);
    LeaveFocus(hWnd);
}

void ForgetInput(HWND hWnd)
{
    if (g_hFocus == hWnd)
        g_hFocus = nullptr;
    if (g_hCapture == hWnd)
        g_hCapture = nullptr;
    if (g_hActive == hWnd)
        g_hActive = nullptr;
}

void ActivateByDisplay(bool bActive)
{
    if (bActive) {
        SetActiveWindow(MainTopLevel());
        if (IsWindow(g_hFocusWhenActive))
            SetFocus(std::exchange(g_hFocusWhenActive, nullptr));
        return;
    }
    g_hFocusWhenActive = g_hFocus;
    SetActiveWindow(nullptr);
    SetFocus(nullptr);
    ReleaseCapture();
}

HWND MainTopLevel()
{
    if (FindWindowRecord(g_hActive))
        return g_hActive;
    const WindowRecord* pFound = Desktop().pFirst;
    while (pFound && (pFound->dwStyle & WS_POPUP) != 0)
        pFound = pFound->pBelow;
    return pFound ? pFound->Handle() : nullptr;
}

} // namespace splitframe

using namespace splitframe;

HWND GetFocus()
{
    return g_hFocus;
}

HWND SetFocus(HWND hWnd)
{
    const HWND hBefore = g_hFocus;
    const WindowRecord* pRecord = FindWindowRecord(hWnd);
    if (hWnd == hBefore || (hWnd && (!pRecord || IsInDyingTree(*pRecord))))
        return hBefore;
    const CCallScope scope;
    g_hFocus = hWnd;
    Tell(hBefore, WM_KILLFOCUS, AsParameter(hWnd), 0);
    if (g_hFocus == hWnd)
        Tell(hWnd, WM_SETFOCUS, AsParameter(IsWindow(hBefore) ? hBefore : nullptr), 0);
    return hBefore;
}

HWND GetCapture()
{
    return g_hCapture;
}

HWND SetCapture(HWND hWnd)
{
    const HWND hBefore = g_hCapture;
    const WindowRecord* pRecord = FindWindowRecord(hWnd);
    if (hWnd == hBefore || (hWnd && (!pRecord || IsInDyingTree(*pRecord))))
        return hBefore;
    g_hCapture = hWnd;
    Tell(hBefore, WM_CAPTURECHANGED, 0, reinterpret_cast<LPARAM>(hWnd));
    return hBefore;
}

BOOL ReleaseCapture()
{
    SetCapture(nullptr);
    return TRUE;
}

HWND GetActiveWindow()
{
    return g_hActive;
}

HWND SetActiveWindow(HWND hWnd)
{
    const HWND hBefore = g_hActive;
    const WindowRecord* pRecord = FindWindowRecord(hWnd);
    if (hWnd && (!pRecord || pRecord->pParent != &Desktop() || IsInDyingTree(*pRecord)))
        return hBefore;
    if (hWnd == hBefore)
        return hBefore;
    const CCallScope scope;
    g_hActive = hWnd;
    LeaveCapture(hBefore); // a drag ends when its window is left
    MenuTracking::The().End();
    Tell(hBefore, WM_ACTIVATE, WA_INACTIVE, reinterpret_cast<LPARAM>(hWnd));
    if (g_hActive == hWnd)
        Tell(hWnd, WM_ACTIVATE, WA_ACTIVE, reinterpret_cast<LPARAM>(IsWindow(hBefore) ? hBefore : nullptr));
    return hBefore;
}
