// Creating and destroying windows. Handlers run at every step and may destroy anything: each step looks its
// window up by handle again.
#include "platform/window/Lifetime.h"
#include "platform/base/Diagnostics.h"
#include "platform/display/Display.h"
#include "platform/window/Dispatch.h"
#include "platform/window/Focus.h"
#include "platform/window/Marks.h"
#include "platform/window/Placement.h"
#include "platform/window/Screen.h"
#include "platform/window/TimerQueue.h"
#include "platform/window/WindowClass.h"
#include "platform/window/WindowManager.h"
#include "platform/window/WindowTree.h"
#include "platform/window/Wnd.h"

#include <utility>
#include <vector>

namespace splitframe {

namespace {

bool HasDisplay()
{
    if (IsDisplayUsable())
        return true;
    Diagnostic diagnostic;
    diagnostic.strMessage = OpenDisplay();
    ReportDiagnostic(diagnostic);
    return false;
}

// Where a new window hangs, or null if it can not.
WindowRecord* ParentForNew(const CREATESTRUCT& cs)
{
    if ((static_cast<DWORD>(cs.style) & WS_CHILD) == 0) {
        if (!HasDisplay())
            return nullptr;
        PrepareScreen();
        return &Desktop();
    }
    WindowRecord* pParent = FindWindowRecord(cs.hwndParent);
    if (!pParent || IsInDyingTree(*pParent) || DepthOf(*pParent) + 1 > MAX_WINDOW_DEPTH)
        return nullptr;
    return pParent;
}

RECT RectForNew(const CREATESTRUCT& cs, const WindowRecord& parent)
{
    if (cs.x == CW_USEDEFAULT && &parent == &Desktop())
        return parent.rc;
    return LegalRect(cs.x, cs.y, cs.cx, cs.cy);
}

void Fill(WindowRecord& record, CWnd& wnd, const CREATESTRUCT& cs, const WindowRecord& parent)
{
    record.pWnd = &wnd;
    record.dwStyle = static_cast<DWORD>(cs.style) & ~WS_VISIBLE;
    record.dwExStyle = cs.dwExStyle;
    record.pClass = &FindWindowClass(cs.lpszClass);
    record.rc = RectForNew(cs, parent);
    record.strText = cs.lpszName;
    if (&parent == &Desktop()) {
        record.hOwner = cs.hwndParent;
        record.hMenu = cs.hMenu;
    } else {
        record.nID = reinterpret_cast<UINT_PTR>(cs.hMenu);
    }
}

// WM_CREATE, then the first place and size. @return whether the window lives on
bool Introduce(HWND hWnd, CREATESTRUCT& cs)
{
    if (Dispatcher::Send(*FindWindowRecord(hWnd), WM_CREATE, 0, reinterpret_cast<LPARAM>(&cs), -1) == -1) {
        DestroyWindow(hWnd);
        return false;
    }
    SendPlace(hWnd, true, true);
    return IsWindow(hWnd) != FALSE;
}

std::vector<HWND> Subtree(const WindowRecord& root)
{
    std::vector<HWND> handles;
    for (const WindowRecord* pEach = &root; pEach; pEach = NextInTree(pEach, &root))
        handles.push_back(pEach->Handle());
    return handles;
}

void TellDestroy(HWND hRoot)
{
    // Handlers may bring windows into the tree (SetParent): go on until nobody is left who was not told.
    for (bool bMore = true; bMore;) {
        bMore = false;
        const WindowRecord* pRoot = FindWindowRecord(hRoot);
        if (!pRoot)
            return;
        for (const HWND hEach : Subtree(*pRoot)) {
            WindowRecord* pEach = FindWindowRecord(hEach);
            if (!pEach || std::exchange(pEach->bToldDestroy, true))
                continue;
            bMore = true;
            Dispatcher::Send(*pEach, WM_DESTROY, 0, 0);
        }
    }
}

// The last message of one window without children; then the record is free and the object let go.
void Finish(HWND hWnd)
{
    WindowRecord* pRecord = FindWindowRecord(hWnd);
    if (!pRecord)
        return;
    pRecord->bDying = true;
    if (!std::exchange(pRecord->bToldEnd, true))
        Dispatcher::Send(*pRecord, WM_NCDESTROY, 0, 0);
    pRecord = FindWindowRecord(hWnd);
    if (!pRecord || pRecord->pFirst)
        return;
    ForgetInput(hWnd);
    ForgetTimers(hWnd);
    const HMENU hMenu = pRecord->hMenu;
    CWnd* pWnd = pRecord->pWnd;
    Unlink(*pRecord);
    g_windows.Free(pRecord);
    if (hMenu)
        DestroyMenu(hMenu);
    if (pWnd) {
        pWnd->m_hWnd = nullptr;
        Dispatcher::CallPostNcDestroy(*pWnd);
    }
}

void FinishTree(HWND hRoot)
{
    // Children first, the bottom one first; a handler may take windows out or bring them in.
    while (WindowRecord* pRoot = FindWindowRecord(hRoot)) {
        WindowRecord* pEach = pRoot;
        while (pEach->pLast)
            pEach = pEach->pLast;
        Finish(pEach->Handle());
    }
}

} // namespace

HWND CreateWindowFor(CWnd& wnd, const CREATESTRUCT& cs)
{
    IsUserInterfaceThread(); // windows belong to the thread that makes the first one
    WindowRecord* pParent = ParentForNew(cs);
    WindowRecord* pRecord = pParent ? g_windows.Allocate() : nullptr;
    if (!pRecord)
        return nullptr;
    const CCallScope scope;
    Fill(*pRecord, wnd, cs, *pParent);
    LinkOnTop(*pRecord, *pParent);
    ShowTitle(*pRecord);
    const HWND hWnd = pRecord->Handle();
    wnd.m_hWnd = hWnd;
    CREATESTRUCT csTold = cs;
    if (!Introduce(hWnd, csTold))
        return nullptr;
    if ((static_cast<DWORD>(cs.style) & WS_VISIBLE) != 0)
        ShowWindow(hWnd, SW_SHOW);
    return IsWindow(hWnd) ? hWnd : nullptr;
}

void DestroyWithoutObject(HWND hWnd)
{
    WindowRecord* pRecord = FindWindowRecord(hWnd);
    if (!pRecord)
        return;
    DestroyWindow(hWnd);
    pRecord = FindWindowRecord(hWnd);
    if (pRecord)
        pRecord->pWnd = nullptr; // being destroyed further up the stack, which finishes it
}

} // namespace splitframe

using namespace splitframe;

BOOL DestroyWindow(HWND hWnd)
{
    WindowRecord* pRecord = FindWindowRecord(hWnd);
    if (!pRecord || pRecord->bDying)
        return FALSE;
    const CCallScope scope;
    if (pRecord->pWnd)
        Dispatcher::CallBeginDestroy(*pRecord->pWnd);
    pRecord = FindWindowRecord(hWnd);
    if (!pRecord || pRecord->bDying)
        return TRUE; // the hook did it
    pRecord->bDying = true;
    HideQuietly(*pRecord);
    LeaveInput(hWnd);
    TellDestroy(hWnd);
    FinishTree(hWnd);
    return TRUE;
}
