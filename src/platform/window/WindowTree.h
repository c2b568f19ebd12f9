// The window tree's shape: links, z-order, positions on the screen, and who may be seen. Sends no message and
// paints nothing.
#pragma once

#include "platform/graphics/Region.h"
#include "platform/window/WindowRecord.h"

namespace splitframe {

/// Windows nest no deeper: what walks the tree may recurse.
inline constexpr int MAX_WINDOW_DEPTH = 64;

/// Counts every change of shape, place or visibility: what was worked out before is good as long as it stands
/// still.
extern unsigned long g_nTreeChanges;

/// Puts a window that hangs nowhere on top of its new parent's children.
void LinkOnTop(WindowRecord& record, WindowRecord& parent);
void Unlink(WindowRecord& record);
/// Restacks: hInsertAfter as in SetWindowPos. Constant time. @return whether the order has changed
bool Restack(WindowRecord& record, HWND hInsertAfter);

/// Whether a is b or an ancestor of b.
bool IsSelfOrAncestor(const WindowRecord& a, const WindowRecord& b);
/// Number of ancestors, the desktop included.
int DepthOf(const WindowRecord& record);
/// Levels below a window: 0 without children.
int HeightOf(const WindowRecord& record);
/// Whether DestroyWindow is under way for the window or an ancestor.
bool IsInDyingTree(const WindowRecord& record);
bool IsVisibleOnScreen(const WindowRecord& record);
WindowRecord& TopLevelOf(WindowRecord& record);

POINT ScreenOrigin(const WindowRecord& record);
RECT ScreenRect(const WindowRecord& record);
/// What can be seen of a window: less its ancestors' edges, visible siblings above and, with WS_CLIPCHILDREN,
/// its children. Screen coordinates; empty for a hidden window.
Region VisibleRegion(const WindowRecord& record);
/// As VisibleRegion, children not taken away.
Region VisibleFrame(const WindowRecord& record);

/// The next window of a subtree in pre-order, topmost child first; null at the end.
const WindowRecord* NextInTree(const WindowRecord* pRecord, const WindowRecord* pRoot);

constexpr bool IsEmptyRect(const RECT& rc)
{
    return rc.right <= rc.left || rc.bottom <= rc.top;
}
constexpr bool RectsMeet(const RECT& a, const RECT& b)
{
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}
constexpr RECT Intersection(const RECT& a, const RECT& b)
{
    return {a.left > b.left ? a.left : b.left, a.top > b.top ? a.top : b.top,
            a.right < b.right ? a.right : b.right, a.bottom < b.bottom ? a.bottom : b.bottom};
}
constexpr RECT Moved(const RECT& rc, int dx, int dy)
{
    return {rc.left + dx, rc.top + dy, rc.right + dx, rc.bottom + dy};
}
/// The rectangle around both; one without area adds nothing.
constexpr void Enlarge(RECT& rc, const RECT& by)
{
    if (IsEmptyRect(by))
        return;
    if (IsEmptyRect(rc)) {
        rc = by;
        return;
    }
    rc = {rc.left < by.left ? rc.left : by.left, rc.top < by.top ? rc.top : by.top,
          rc.right > by.right ? rc.right : by.right, rc.bottom > by.bottom ? rc.bottom : by.bottom};
}

} // namespace splitframe
