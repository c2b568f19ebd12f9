// One window as the manager sees it, and the table that finds it by handle.
// A handle is a slot and that slot's generation, so that a stale handle never finds a later window. Records
// stay where they are; a freed one is used again under the next generation.
#pragma once

#include "platform/base/String.h"
#include "platform/base/Types.h"
#include "platform/window/Messages.h"

class CWnd;

namespace splitframe {

struct WindowClass;

// Between any two calls: a window is in its parent's list of children, topmost first; top-level windows are
// children of the desktop record. Rectangles have no negative sides and stay within WINDOW_COORDINATE_LIMIT.
// rcOwn and rcTree are what waits for painting, in client coordinates: of the window alone, and of it and all
// below it. bBelow: a mark waits somewhere below. Every visible ancestor of a mark that can be seen has it
// set; in hidden or covered parts it may be left over, for showing and uncovering mark the whole part anew.
struct WindowRecord
{
    CWnd* pWnd = nullptr; // not owned; null once the object is gone
    WindowRecord* pParent = nullptr;
    WindowRecord* pFirst = nullptr; // topmost child
    WindowRecord* pLast = nullptr;
    WindowRecord* pAbove = nullptr;
    WindowRecord* pBelow = nullptr;
    RECT rc{};
    RECT rcOwn{};
    RECT rcTree{};
    DWORD dwStyle = 0;
    bool bBelow = false;
    bool bErase = false;       // what rcOwn marks is erased first
    bool bRestacked = false;   // children changed places: where they overlap is painted anew
    bool bDying = false;       // DestroyWindow is under way for it
    bool bToldDestroy = false; // WM_DESTROY has been sent
    bool bToldEnd = false;     // WM_NCDESTROY has been sent
    DWORD dwExStyle = 0;
    const WindowClass* pClass = nullptr;
    std::uint64_t nGeneration = 1;
    UINT nSlot = 0;
    HWND hOwner = nullptr; // of a top-level window
    UINT_PTR nID = 0;      // control ID of a child
    HMENU hMenu = nullptr; // of a top-level window, owned
    CString strText;

    HWND Handle() const { return reinterpret_cast<HWND>((nGeneration << 24) | nSlot); }
    bool IsShown() const { return (dwStyle & WS_VISIBLE) != 0; }
    bool HasArea() const { return rc.right > rc.left && rc.bottom > rc.top; }
    bool IsMarked() const
    {
        return bBelow || bRestacked || rcOwn.right > rcOwn.left || rcTree.right > rcTree.left;
    }
};

/// The process's windows. Not destroyed at exit, so that objects that outlive it may still ask.
class WindowTable
{
public:
    static constexpr UINT CHUNK = 256;
    static constexpr UINT MAX_CHUNKS = 1024;

    WindowRecord* Find(HWND hWnd) const
    {
        const auto nValue = reinterpret_cast<std::uintptr_t>(hWnd);
        const UINT nSlot = static_cast<UINT>(nValue & 0xFFFFFFU);
        if (nSlot >= m_nSlots)
            return nullptr;
        WindowRecord* pRecord = &m_chunks[nSlot / CHUNK][nSlot % CHUNK];
        return pRecord->nGeneration == nValue >> 24 && pRecord->pParent ? pRecord : nullptr;
    }
    /// A fresh record, not yet in the tree; null when there are too many windows.
    WindowRecord* Allocate();
    void Free(WindowRecord* pRecord);
    UINT LiveCount() const { return m_nLive; }
    void ReleaseMemory();

private:
    WindowRecord* m_chunks[MAX_CHUNKS] = {};
    WindowRecord* m_pFree = nullptr; // linked by pBelow
    UINT m_nSlots = 0;
    UINT m_nLive = 0;
};

extern WindowTable g_windows;

/// The parent of all top-level windows: the display's area, always shown. In no table.
WindowRecord& Desktop();

inline WindowRecord* FindWindowRecord(HWND hWnd)
{
    return g_windows.Find(hWnd);
}

} // namespace splitframe
