// The questions about family and coordinates, and SendMessage, by handle.
#include "platform/base/Geometry.h"
#include "platform/window/Dispatch.h"
#include "platform/window/Marks.h"
#include "platform/window/WindowManager.h"
#include "platform/window/WindowTree.h"

using namespace splitframe;

namespace {

HWND HandleOf(const WindowRecord* pRecord)
{
    return pRecord && pRecord != &Desktop() ? pRecord->Handle() : nullptr;
}

} // namespace

BOOL IsWindow(HWND hWnd)
{
    return FindWindowRecord(hWnd) ? TRUE : FALSE;
}

HWND GetParent(HWND hWnd)
{
    const WindowRecord* pRecord = FindWindowRecord(hWnd);
    if (!pRecord)
        return nullptr;
    if (pRecord->pParent == &Desktop())
        return IsWindow(pRecord->hOwner) ? pRecord->hOwner : nullptr;
    return pRecord->pParent->Handle();
}

HWND SetParent(HWND hChild, HWND hNewParent)
{
    WindowRecord* pChild = FindWindowRecord(hChild);
    WindowRecord* pParent = FindWindowRecord(hNewParent);
    if (!pChild || !pParent || pChild->pParent == &Desktop() || IsInDyingTree(*pParent) ||
        IsSelfOrAncestor(*pChild, *pParent) || DepthOf(*pParent) + 1 + HeightOf(*pChild) > MAX_WINDOW_DEPTH)
        return nullptr;
    const HWND hBefore = HandleOf(pChild->pParent);
    if (pChild->IsShown())
        MarkUncovered(*pChild, pChild->rc);
    Unlink(*pChild);
    LinkOnTop(*pChild, *pParent);
    if (pChild->IsShown())
        MarkWhole(*pChild);
    return hBefore;
}

HWND GetWindow(HWND hWnd, UINT nCmd)
{
    const WindowRecord* pRecord = FindWindowRecord(hWnd);
    if (!pRecord)
        return nullptr;
    switch (nCmd) {
    case GW_HWNDFIRST:
        return HandleOf(pRecord->pParent->pFirst);
    case GW_HWNDLAST:
        return HandleOf(pRecord->pParent->pLast);
    case GW_HWNDNEXT:
        return HandleOf(pRecord->pBelow);
    case GW_HWNDPREV:
        return HandleOf(pRecord->pAbove);
    case GW_OWNER:
        return IsWindow(pRecord->hOwner) ? pRecord->hOwner : nullptr;
    case GW_CHILD:
        return HandleOf(pRecord->pFirst);
    default:
        return nullptr;
    }
}

HWND GetTopWindow(HWND hWnd)
{
    return hWnd ? GetWindow(hWnd, GW_CHILD) : HandleOf(Desktop().pFirst);
}

BOOL IsChild(HWND hParent, HWND hWnd)
{
    const WindowRecord* pParent = FindWindowRecord(hParent);
    const WindowRecord* pRecord = FindWindowRecord(hWnd);
    return pParent && pRecord && pParent != pRecord && IsSelfOrAncestor(*pParent, *pRecord) ? TRUE : FALSE;
}

int GetDlgCtrlID(HWND hWnd)
{
    const WindowRecord* pRecord = FindWindowRecord(hWnd);
    return pRecord ? static_cast<int>(pRecord->nID) : 0;
}

BOOL ClientToScreen(HWND hWnd, POINT* pPoint)
{
    const WindowRecord* pRecord = FindWindowRecord(hWnd);
    if (!pRecord || !pPoint)
        return FALSE;
    const POINT pt = ScreenOrigin(*pRecord);
    *pPoint = CPoint(*pPoint) + pt;
    return TRUE;
}

BOOL ScreenToClient(HWND hWnd, POINT* pPoint)
{
    const WindowRecord* pRecord = FindWindowRecord(hWnd);
    if (!pRecord || !pPoint)
        return FALSE;
    const POINT pt = ScreenOrigin(*pRecord);
    *pPoint = CPoint(*pPoint) - pt;
    return TRUE;
}

LRESULT SendMessage(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam)
{
    WindowRecord* pRecord = FindWindowRecord(hWnd);
    return pRecord ? Dispatcher::Send(*pRecord, nMessage, wParam, lParam) : 0;
}
