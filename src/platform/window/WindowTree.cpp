// Links, z-order and positions.
#include "platform/window/WindowTree.h"
#include "platform/window/WindowManager.h"

#include <algorithm>

namespace splitframe {

unsigned long g_nTreeChanges = 0;

namespace {

// Behind pAbove, or on top when that is null.
void LinkBehind(WindowRecord& record, WindowRecord& parent, WindowRecord* pAbove)
{
    record.pParent = &parent;
    record.pAbove = pAbove;
    record.pBelow = pAbove ? pAbove->pBelow : parent.pFirst;
    (pAbove ? pAbove->pBelow : parent.pFirst) = &record;
    (record.pBelow ? record.pBelow->pAbove : parent.pLast) = &record;
}

} // namespace

void LinkOnTop(WindowRecord& record, WindowRecord& parent)
{
    LinkBehind(record, parent, nullptr);
    ++g_nTreeChanges;
}

void Unlink(WindowRecord& record)
{
    WindowRecord& parent = *record.pParent;
    (record.pAbove ? record.pAbove->pBelow : parent.pFirst) = record.pBelow;
    (record.pBelow ? record.pBelow->pAbove : parent.pLast) = record.pAbove;
    record.pAbove = nullptr;
    record.pBelow = nullptr;
    ++g_nTreeChanges;
}

bool Restack(WindowRecord& record, HWND hInsertAfter)
{
    WindowRecord& parent = *record.pParent;
    WindowRecord* pAbove = nullptr;
    if (hInsertAfter == HWND_BOTTOM) {
        if (parent.pLast == &record)
            return false;
        pAbove = parent.pLast;
    } else if (hInsertAfter != HWND_TOP) {
        pAbove = FindWindowRecord(hInsertAfter);
        if (!pAbove || pAbove == &record || pAbove->pParent != &parent)
            return false;
    }
    if (record.pAbove == pAbove)
        return false;
    Unlink(record);
    LinkBehind(record, parent, pAbove);
    return true;
}

bool IsSelfOrAncestor(const WindowRecord& a, const WindowRecord& b)
{
    const WindowRecord* pEach = &b;
    while (pEach && pEach != &a)
        pEach = pEach->pParent;
    return pEach != nullptr;
}

int DepthOf(const WindowRecord& record)
{
    int nDepth = 0;
    for (const WindowRecord* pEach = record.pParent; pEach; pEach = pEach->pParent)
        ++nDepth;
    return nDepth;
}

int HeightOf(const WindowRecord& record)
{
    const int nOwn = DepthOf(record);
    int nDeepest = nOwn;
    for (const WindowRecord* pEach = &record; pEach; pEach = NextInTree(pEach, &record))
        nDeepest = std::max(nDeepest, DepthOf(*pEach));
    return nDeepest - nOwn;
}

bool IsInDyingTree(const WindowRecord& record)
{
    for (const WindowRecord* pEach = &record; pEach; pEach = pEach->pParent) {
        if (pEach->bDying)
            return true;
    }
    return false;
}

bool IsVisibleOnScreen(const WindowRecord& record)
{
    for (const WindowRecord* pEach = &record; pEach->pParent; pEach = pEach->pParent) {
        if (!pEach->IsShown())
            return false;
    }
    return true;
}

WindowRecord& TopLevelOf(WindowRecord& record)
{
    WindowRecord* pEach = &record;
    while (pEach->pParent != &Desktop())
        pEach = pEach->pParent;
    return *pEach;
}

POINT ScreenOrigin(const WindowRecord& record)
{
    POINT pt{0, 0};
    for (const WindowRecord* pEach = &record; pEach; pEach = pEach->pParent) {
        pt.x += pEach->rc.left;
        pt.y += pEach->rc.top;
    }
    return pt;
}

RECT ScreenRect(const WindowRecord& record)
{
    const POINT pt = ScreenOrigin(record);
    return {pt.x, pt.y, pt.x + record.rc.right - record.rc.left, pt.y + record.rc.bottom - record.rc.top};
}

Region VisibleFrame(const WindowRecord& record)
{
    if (!IsVisibleOnScreen(record))
        return {};
    Region visible(ScreenRect(record));
    for (const WindowRecord* pEach = &record; pEach->pParent && !visible.IsEmpty(); pEach = pEach->pParent) {
        const POINT ptParent = ScreenOrigin(*pEach->pParent);
        visible.Intersect(ScreenRect(*pEach->pParent));
        for (const WindowRecord* pAbove = pEach->pAbove; pAbove; pAbove = pAbove->pAbove) {
            const RECT rc = Moved(pAbove->rc, ptParent.x, ptParent.y);
            if (pAbove->IsShown() && RectsMeet(rc, visible.Bounds()))
                visible.Subtract(rc);
        }
    }
    return visible;
}

Region VisibleRegion(const WindowRecord& record)
{
    Region visible = VisibleFrame(record);
    if ((record.dwStyle & WS_CLIPCHILDREN) == 0 || visible.IsEmpty())
        return visible;
    const POINT pt = ScreenOrigin(record);
    for (const WindowRecord* pChild = record.pFirst; pChild; pChild = pChild->pBelow) {
        const RECT rc = Moved(pChild->rc, pt.x, pt.y);
        if (pChild->IsShown() && RectsMeet(rc, visible.Bounds()))
            visible.Subtract(rc);
    }
    return visible;
}

const WindowRecord* NextInTree(const WindowRecord* pRecord, const WindowRecord* pRoot)
{
    if (pRecord->pFirst)
        return pRecord->pFirst;
    while (pRecord != pRoot && !pRecord->pBelow)
        pRecord = pRecord->pParent;
    return pRecord == pRoot ? nullptr : pRecord->pBelow;
}

} // namespace splitframe
