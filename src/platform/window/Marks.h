// Marks of what waits for painting. Setting one takes no memory, walks no list and computes no region:
// rectangles on the window and a flag on its ancestors. What of it can be seen is worked out when it is
// painted.
#pragma once

#include "platform/window/WindowTree.h"

namespace splitframe {

/// Tells the ancestors that a mark waits below them.
inline void TellAncestors(WindowRecord& record)
{
    // All of them: one that was covered or hidden at the last painting may have the flag left over.
    for (WindowRecord* pEach = record.pParent; pEach; pEach = pEach->pParent)
        pEach->bBelow = true;
}

/// Marks a part of a window and of all that stands in it; client coordinates.
inline void MarkTree(WindowRecord& record, const RECT& rc)
{
    Enlarge(record.rcTree, rc);
    TellAncestors(record);
}

/// Marks a part of the window alone.
inline void MarkOwn(WindowRecord& record, const RECT& rc, bool bErase)
{
    Enlarge(record.rcOwn, rc);
    record.bErase = record.bErase || bErase;
    TellAncestors(record);
}

inline RECT WholeOf(const WindowRecord& record)
{
    return {0, 0, record.rc.right - record.rc.left, record.rc.bottom - record.rc.top};
}

/// A shown window and all in it, as after being shown or moved.
inline void MarkWhole(WindowRecord& record)
{
    record.rcTree = WholeOf(record);
    TellAncestors(record);
}

/// What a shown window leaves bare in its parent.
inline void MarkUncovered(WindowRecord& record, const RECT& rcLeft)
{
    MarkTree(*record.pParent, rcLeft);
}

/// The order of a window's siblings has changed.
inline void MarkRestacked(WindowRecord& parent)
{
    parent.bRestacked = true;
    TellAncestors(parent);
}

/// The marks of one window are dealt with.
inline void ClearMarks(WindowRecord& record)
{
    record.rcOwn = RECT{};
    record.rcTree = RECT{};
    record.bErase = false;
    record.bRestacked = false;
    record.bBelow = false;
}

} // namespace splitframe
