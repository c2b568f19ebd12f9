// SetWindowPos and what builds on it. The common case, a pane placed by a layout, is a look-up, a relink, a
// rectangle and a mark.
#include "platform/window/Placement.h"
#include "platform/window/Dispatch.h"
#include "platform/window/Focus.h"
#include "platform/window/Marks.h"
#include "platform/window/WindowManager.h"

#include <vector>

const HWND HWND_BOTTOM = reinterpret_cast<HWND>(std::uintptr_t{1});

namespace splitframe {

namespace {

struct Change
{
    bool bMoved;
    bool bSized;
    bool bShown;
    bool bHidden;
    bool bRestacked;

    bool Any() const { return bMoved || bSized || bShown || bHidden || bRestacked; }
};

bool Holds(const RECT& rcOuter, const RECT& rcInner)
{
    return rcInner.left >= rcOuter.left && rcInner.top >= rcOuter.top && rcInner.right <= rcOuter.right &&
           rcInner.bottom <= rcOuter.bottom;
}

// Which marks a change leaves: what the window was bares its parent, what it is now is painted whole.
void MarkChange(WindowRecord& record, const RECT& rcBefore, const Change& change)
{
    const bool bWasShown = change.bHidden || (record.IsShown() && !change.bShown);
    const bool bPlace = change.bMoved || change.bSized;
    if (bWasShown && (change.bHidden || (bPlace && !Holds(record.rc, rcBefore))))
        MarkUncovered(record, rcBefore);
    if (!record.IsShown())
        return;
    if (bPlace || change.bShown)
        MarkWhole(record);
    if (change.bRestacked && !change.bShown)
        MarkRestacked(*record.pParent);
}

RECT NewRect(const WindowRecord& record, int x, int y, int cx, int cy, UINT nFlags)
{
    const RECT& rc = record.rc;
    const bool bMove = (nFlags & SWP_NOMOVE) == 0;
    const bool bSize = (nFlags & SWP_NOSIZE) == 0;
    return LegalRect(bMove ? x : rc.left, bMove ? y : rc.top, bSize ? cx : rc.right - rc.left,
                     bSize ? cy : rc.bottom - rc.top);
}

bool SendShow(HWND hWnd, bool bShow)
{
    if (WindowRecord* pRecord = FindWindowRecord(hWnd))
        Dispatcher::Send(*pRecord, WM_SHOWWINDOW, bShow ? 1 : 0, 0);
    return FindWindowRecord(hWnd) != nullptr;
}

} // namespace

bool SendPlace(HWND hWnd, bool bMoved, bool bSized)
{
    if (bMoved) {
        if (WindowRecord* pRecord = FindWindowRecord(hWnd))
            Dispatcher::Send(*pRecord, WM_MOVE, 0, MAKELPARAM(pRecord->rc.left, pRecord->rc.top));
    }
    WindowRecord* pRecord = FindWindowRecord(hWnd);
    if (bSized && pRecord) {
        const UINT nType = (pRecord->dwStyle & WS_MINIMIZE) != 0   ? SIZE_MINIMIZED
                           : (pRecord->dwStyle & WS_MAXIMIZE) != 0 ? SIZE_MAXIMIZED
                                                                   : SIZE_RESTORED;
        const RECT& rc = pRecord->rc;
        Dispatcher::Send(*pRecord, WM_SIZE, nType, MAKELPARAM(rc.right - rc.left, rc.bottom - rc.top));
    }
    return FindWindowRecord(hWnd) != nullptr;
}

void HideQuietly(WindowRecord& record)
{
    if (!record.IsShown())
        return;
    record.dwStyle &= ~WS_VISIBLE;
    ++g_nTreeChanges;
    MarkUncovered(record, record.rc);
}

void FollowDisplaySize(const SIZE& size)
{
    const RECT rcBefore = Desktop().rc;
    Desktop().rc = {0, 0, size.cx, size.cy};
    ++g_nTreeChanges;
    MarkWhole(Desktop());
    std::vector<HWND> covering;
    for (const WindowRecord* pEach = Desktop().pFirst; pEach; pEach = pEach->pBelow) {
        if (pEach->rc.left == 0 && pEach->rc.top == 0 && pEach->rc.right == rcBefore.right &&
            pEach->rc.bottom == rcBefore.bottom)
            covering.push_back(pEach->Handle());
    }
    for (const HWND hEach : covering)
        SetWindowPos(hEach, nullptr, 0, 0, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
}

void FollowDisplayIcon(bool bIcon)
{
    WindowRecord* pMain = FindWindowRecord(MainTopLevel());
    if (!pMain || bIcon == ((pMain->dwStyle & WS_MINIMIZE) != 0))
        return;
    pMain->dwStyle ^= WS_MINIMIZE;
    SendPlace(pMain->Handle(), false, true);
}

} // namespace splitframe

using namespace splitframe;

BOOL SetWindowPos(HWND hWnd, HWND hInsertAfter, int x, int y, int cx, int cy, UINT nFlags)
{
    WindowRecord* pRecord = FindWindowRecord(hWnd);
    if (!pRecord)
        return FALSE;
    WindowRecord& record = *pRecord;
    const RECT rcBefore = record.rc;
    const RECT rc = NewRect(record, x, y, cx, cy, nFlags);
    Change change{};
    change.bMoved = rc.left != rcBefore.left || rc.top != rcBefore.top;
    change.bSized = rc.right - rc.left != rcBefore.right - rcBefore.left ||
                    rc.bottom - rc.top != rcBefore.bottom - rcBefore.top;
    change.bShown = (nFlags & SWP_SHOWWINDOW) != 0 && !record.IsShown() && !record.bDying;
    change.bHidden = (nFlags & SWP_HIDEWINDOW) != 0 && (nFlags & SWP_SHOWWINDOW) == 0 && record.IsShown();
    change.bRestacked = (nFlags & SWP_NOZORDER) == 0 && Restack(record, hInsertAfter);
    if (!change.Any())
        return TRUE;
    ++g_nTreeChanges;
    record.rc = rc;
    if (change.bShown)
        record.dwStyle |= WS_VISIBLE;
    if (change.bHidden)
        record.dwStyle &= ~WS_VISIBLE;
    if ((nFlags & SWP_NOREDRAW) == 0)
        MarkChange(record, rcBefore, change);
    if (change.bHidden)
        LeaveCapture(hWnd);
    if ((change.bShown || change.bHidden) && !SendShow(hWnd, change.bShown))
        return FALSE;
    if (!change.bMoved && !change.bSized)
        return TRUE;
    return SendPlace(hWnd, change.bMoved, change.bSized) ? TRUE : FALSE;
}

BOOL MoveWindow(HWND hWnd, int x, int y, int cx, int cy, BOOL bRepaint)
{
    return SetWindowPos(hWnd, nullptr, x, y, cx, cy,
                        SWP_NOZORDER | SWP_NOACTIVATE | (bRepaint ? 0U : SWP_NOREDRAW));
}

BOOL ShowWindow(HWND hWnd, int nCmdShow)
{
    WindowRecord* pRecord = FindWindowRecord(hWnd);
    if (!pRecord)
        return FALSE;
    const CCallScope scope;
    const BOOL bWasShown = pRecord->IsShown() ? TRUE : FALSE;
    const bool bTopLevel = pRecord->pParent == &Desktop();
    if (nCmdShow == SW_SHOWMAXIMIZED)
        pRecord->dwStyle = (pRecord->dwStyle & ~WS_MINIMIZE) | WS_MAXIMIZE;
    else if (nCmdShow == SW_SHOWMINIMIZED || nCmdShow == SW_MINIMIZE)
        pRecord->dwStyle = (pRecord->dwStyle & ~WS_MAXIMIZE) | WS_MINIMIZE;
    else if (nCmdShow == SW_RESTORE || nCmdShow == SW_SHOWNORMAL)
        pRecord->dwStyle &= ~(WS_MAXIMIZE | WS_MINIMIZE);
    const UINT nFlags = SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER;
    SetWindowPos(hWnd, nullptr, 0, 0, 0, 0, nFlags | (nCmdShow == SW_HIDE ? SWP_HIDEWINDOW : SWP_SHOWWINDOW));
    if (nCmdShow == SW_HIDE) {
        LeaveActivation(hWnd);
        LeaveFocus(hWnd);
    } else if (bTopLevel && nCmdShow != SW_SHOWNA && nCmdShow != SW_SHOWNOACTIVATE && !GetActiveWindow()) {
        SetActiveWindow(hWnd);
    }
    return bWasShown;
}

BOOL IsWindowVisible(HWND hWnd)
{
    const WindowRecord* pRecord = FindWindowRecord(hWnd);
    return pRecord && IsVisibleOnScreen(*pRecord) ? TRUE : FALSE;
}

BOOL EnableWindow(HWND hWnd, BOOL bEnable)
{
    WindowRecord* pRecord = FindWindowRecord(hWnd);
    if (!pRecord)
        return FALSE;
    const BOOL bWasDisabled = (pRecord->dwStyle & WS_DISABLED) != 0 ? TRUE : FALSE;
    if (bWasDisabled == (bEnable ? TRUE : FALSE)) {
        pRecord->dwStyle ^= WS_DISABLED;
        if (!bEnable)
            LeaveCapture(hWnd);
        SendMessage(hWnd, WM_ENABLE, bEnable ? 1 : 0);
    }
    return bWasDisabled;
}

BOOL IsWindowEnabled(HWND hWnd)
{
    const WindowRecord* pRecord = FindWindowRecord(hWnd);
    return pRecord && (pRecord->dwStyle & WS_DISABLED) == 0 ? TRUE : FALSE;
}

BOOL GetWindowRect(HWND hWnd, LPRECT pRect)
{
    const WindowRecord* pRecord = FindWindowRecord(hWnd);
    if (pRect)
        *pRect = pRecord ? ScreenRect(*pRecord) : RECT{};
    return pRecord ? TRUE : FALSE;
}

BOOL GetClientRect(HWND hWnd, LPRECT pRect)
{
    const WindowRecord* pRecord = FindWindowRecord(hWnd);
    if (pRect)
        *pRect = pRecord ? WholeOf(*pRecord) : RECT{};
    return pRecord ? TRUE : FALSE;
}
