// The plan and its execution.
// Cost: windows without marks are passed over; a covered window costs one look. Siblings above a window are
// taken away only where something is to be painted.
#include "platform/window/Painting.h"
#include "platform/graphics/Brush.h"
#include "platform/graphics/DC.h"
#include "platform/graphics/SystemColors.h"
#include "platform/window/Dispatch.h"
#include "platform/window/Marks.h"
#include "platform/window/Screen.h"
#include "platform/window/WindowClass.h"
#include "platform/window/WindowManager.h"
#include "platform/window/WindowTree.h"

#include <utility>

namespace splitframe {

namespace {

unsigned long g_nPaintSteps = 0;

// The step under way; its window's CPaintDC draws in its part.
struct CurrentStep
{
    HWND hWnd = nullptr;
    const Region* pClip = nullptr;
};
CurrentStep g_current;

class Planner
{
public:
    explicit Planner(std::vector<PaintStep>& steps) : m_steps(steps) {}

    // visible: what is seen of the window, children included. exposed: what is to be painted of it whatever
    // its marks.
    void Plan(WindowRecord& record, const POINT& pt, const Region& visible, Region exposed);

private:
    static void AddOverlaps(const WindowRecord& parent, const POINT& pt, const Region& visible,
                            Region& exposed);
    static RECT BoundsOfWork(const WindowRecord& record, const POINT& pt, const Region& exposed);
    Region PlanChildren(WindowRecord& record, const POINT& pt, const Region& visible, const Region& exposed,
                        const RECT& rcWork, std::vector<PaintStep>& later);

    std::vector<PaintStep>& m_steps;
};

// Where children overlap after their order has changed, another one may be seen now.
void Planner::AddOverlaps(const WindowRecord& parent, const POINT& pt, const Region& visible, Region& exposed)
{
    Region covered;
    Region overlaps;
    for (const WindowRecord* pChild = parent.pFirst; pChild; pChild = pChild->pBelow) {
        if (!pChild->IsShown() || !pChild->HasArea())
            continue;
        const RECT rc = Moved(pChild->rc, pt.x, pt.y);
        if (covered.Intersects(rc)) {
            Region overlap = covered;
            overlap.Intersect(rc);
            overlaps.Union(overlap);
        }
        covered.Union(rc);
    }
    overlaps.Intersect(visible);
    exposed.Union(overlaps);
}

// Around all that may be painted in a window: what lies outside of it needs no look at all.
RECT Planner::BoundsOfWork(const WindowRecord& record, const POINT& pt, const Region& exposed)
{
    RECT rcWork = exposed.Bounds();
    Enlarge(rcWork, Moved(record.rcOwn, pt.x, pt.y));
    for (const WindowRecord* pChild = record.pFirst; pChild; pChild = pChild->pBelow) {
        if (pChild->IsShown() && pChild->IsMarked())
            Enlarge(rcWork, Moved(pChild->rc, pt.x, pt.y));
    }
    return rcWork;
}

// Plans the children from the top down. @return what of the window no child covers, as far as it matters
Region Planner::PlanChildren(WindowRecord& record, const POINT& pt, const Region& visible,
                             const Region& exposed, const RECT& rcWork, std::vector<PaintStep>& later)
{
    Region left = visible;
    left.Intersect(rcWork);
    for (WindowRecord* pChild = record.pFirst; pChild && !left.IsEmpty(); pChild = pChild->pBelow) {
        const RECT rc = Moved(pChild->rc, pt.x, pt.y);
        if (!pChild->IsShown() || !RectsMeet(rc, left.Bounds()))
            continue;
        if (pChild->IsMarked() || exposed.Intersects(rc)) {
            Region seen = left;
            seen.Intersect(rc);
            Region exposedHere = exposed;
            exposedHere.Intersect(seen);
            if (!seen.IsEmpty())
                Planner(later).Plan(*pChild, {rc.left, rc.top}, seen, std::move(exposedHere));
        }
        left.Subtract(rc);
    }
    return left;
}

void Planner::Plan(WindowRecord& record, const POINT& pt, const Region& visible, Region exposed)
{
    if (!IsEmptyRect(record.rcTree)) {
        Region tree = visible;
        tree.Intersect(Moved(record.rcTree, pt.x, pt.y));
        exposed.Union(tree);
    }
    if (record.bRestacked)
        AddOverlaps(record, pt, visible, exposed);
    Region part = exposed;
    if (!IsEmptyRect(record.rcOwn)) {
        Region own = visible;
        own.Intersect(Moved(record.rcOwn, pt.x, pt.y));
        part.Union(own);
    }
    const bool bErase = record.bErase || !exposed.IsEmpty();
    std::vector<PaintStep> children;
    if (record.pFirst) {
        const RECT rcWork = BoundsOfWork(record, pt, exposed);
        const Region bare = PlanChildren(record, pt, visible, exposed, rcWork, children);
        if ((record.dwStyle & WS_CLIPCHILDREN) != 0)
            part.Intersect(bare);
    }
    ClearMarks(record);
    if (!part.IsEmpty())
        m_steps.push_back({&record == &Desktop() ? nullptr : record.Handle(), std::move(part), bErase});
    m_steps.insert(m_steps.end(), std::make_move_iterator(children.begin()),
                   std::make_move_iterator(children.end()));
}

void FillWithFace(const Region& part)
{
    for (const RECT& rc : part.Rects())
        TheScreen().pSurface->Fill(rc, GetSysColor(COLOR_3DFACE));
}

void Erase(HWND hWnd, const Region& part)
{
    WindowRecord* pRecord = FindWindowRecord(hWnd);
    if (!FillBackground(*pRecord, part))
        FillWithFace(part);
    if (!pRecord->pWnd || !Dispatcher::IsHandled(*pRecord->pWnd, WM_ERASEBKGND))
        return;
    CDC dc;
    dc.AttachCanvas(CanvasFor(ScreenOrigin(*pRecord), part, false));
    Dispatcher::Send(*pRecord, WM_ERASEBKGND, reinterpret_cast<WPARAM>(&dc), 0);
}

void RunStep(const PaintStep& step)
{
    if (step.bErase)
        Erase(step.hWnd, step.clip);
    const CurrentStep outer = std::exchange(g_current, {step.hWnd, &step.clip});
    if (WindowRecord* pRecord = FindWindowRecord(step.hWnd)) {
        ++g_nPaintSteps;
        Dispatcher::Send(*pRecord, WM_PAINT, 0, 0);
    }
    g_current = outer;
}

// The steps that a change of the tree has overtaken: their windows are marked again.
void PutBack(const PaintStep& step)
{
    WindowRecord* pRecord = FindWindowRecord(step.hWnd);
    if (!pRecord)
        return;
    const POINT pt = ScreenOrigin(*pRecord);
    MarkOwn(*pRecord, Intersection(Moved(step.clip.Bounds(), -pt.x, -pt.y), WholeOf(*pRecord)), step.bErase);
}

void NoteDamage(const std::vector<PaintStep>& steps, std::size_t nDone)
{
    std::vector<RECT> rects;
    for (std::size_t n = 0; n < nDone; ++n) {
        const auto part = steps[n].clip.Rects();
        rects.insert(rects.end(), part.begin(), part.end());
    }
    TheScreen().damage.Union(Region::FromRects(rects));
}

} // namespace

std::vector<PaintStep> PlanPainting(WindowRecord& root)
{
    std::vector<PaintStep> steps;
    const Region visible = &root == &Desktop() ? Region(root.rc) : VisibleFrame(root);
    // What waits in an ancestor for the whole of a part is painted by that ancestor later; here it counts as
    // marked too.
    Region exposed;
    for (const WindowRecord* pEach = root.pParent; pEach; pEach = pEach->pParent) {
        const POINT pt = ScreenOrigin(*pEach);
        exposed.Union(Moved(pEach->rcTree, pt.x, pt.y));
    }
    exposed.Intersect(visible);
    if (visible.IsEmpty())
        ClearMarks(root);
    else
        Planner(steps).Plan(root, ScreenOrigin(root), visible, std::move(exposed));
    return steps;
}

bool IsPaintingDue()
{
    return Desktop().IsMarked() && TheScreen().pSurface != nullptr;
}

void PaintTree(WindowRecord& root)
{
    if (!TheScreen().pSurface)
        return;
    const CCallScope scope;
    const std::vector<PaintStep> steps = PlanPainting(root);
    const unsigned long nTreeChanges = g_nTreeChanges;
    std::size_t nDone = 0;
    while (nDone < steps.size() && nTreeChanges == g_nTreeChanges) {
        const PaintStep& step = steps[nDone++];
        if (!step.hWnd)
            FillWithFace(step.clip);
        else
            RunStep(step);
    }
    for (std::size_t n = nDone; n < steps.size(); ++n)
        PutBack(steps[n]);
    NoteDamage(steps, nDone);
}

Region TakePaintPart(HWND hWnd)
{
    if (hWnd && g_current.hWnd == hWnd && g_current.pClip)
        return *std::exchange(g_current.pClip, nullptr);
    WindowRecord* pRecord = FindWindowRecord(hWnd);
    if (!pRecord)
        return {};
    Region part = VisibleRegion(*pRecord);
    RECT rcMarked = pRecord->rcOwn;
    Enlarge(rcMarked, pRecord->rcTree);
    const POINT pt = ScreenOrigin(*pRecord);
    part.Intersect(Moved(rcMarked, pt.x, pt.y));
    pRecord->rcOwn = RECT{};
    TheScreen().damage.Union(part);
    return part;
}

bool FillBackground(const WindowRecord& record, const Region& part)
{
    COLORREF color = 0;
    if (!record.pClass->hBrush || !GetBrushColor(record.pClass->hBrush, color))
        return false;
    for (const RECT& rc : part.Rects())
        TheScreen().pSurface->Fill(rc, color);
    return true;
}

unsigned long PaintStepCount()
{
    return g_nPaintSteps;
}

} // namespace splitframe

using namespace splitframe;

BOOL InvalidateRect(HWND hWnd, LPCRECT pRect, BOOL bErase)
{
    WindowRecord* pRecord = FindWindowRecord(hWnd);
    if (!pRecord)
        return FALSE;
    const RECT rc = pRect ? Intersection(*pRect, WholeOf(*pRecord)) : WholeOf(*pRecord);
    if (IsEmptyRect(rc) || !pRecord->IsShown())
        return TRUE;
    if (pRecord->pFirst && (pRecord->dwStyle & WS_CLIPCHILDREN) == 0)
        MarkTree(*pRecord, rc);
    else
        MarkOwn(*pRecord, rc, bErase != FALSE);
    return TRUE;
}

BOOL ValidateRect(HWND hWnd, LPCRECT pRect)
{
    WindowRecord* pRecord = FindWindowRecord(hWnd);
    if (!pRecord)
        return FALSE;
    const RECT& rc = pRecord->rcOwn;
    if (!pRect || (pRect->left <= rc.left && pRect->top <= rc.top && pRect->right >= rc.right &&
                   pRect->bottom >= rc.bottom)) {
        pRecord->rcOwn = RECT{};
        pRecord->bErase = false;
    }
    return TRUE;
}

BOOL UpdateWindow(HWND hWnd)
{
    WindowRecord* pRecord = FindWindowRecord(hWnd);
    if (!pRecord)
        return FALSE;
    PaintTree(*pRecord);
    return TRUE;
}

BOOL RedrawWindow(HWND hWnd, LPCRECT pRect, UINT nFlags)
{
    WindowRecord* pRecord = FindWindowRecord(hWnd);
    if (!pRecord)
        return FALSE;
    if ((nFlags & RDW_VALIDATE) != 0)
        ValidateRect(hWnd, pRect);
    if ((nFlags & RDW_INVALIDATE) != 0 && (nFlags & RDW_ALLCHILDREN) != 0)
        MarkTree(*pRecord, pRect ? Intersection(*pRect, WholeOf(*pRecord)) : WholeOf(*pRecord));
    else if ((nFlags & RDW_INVALIDATE) != 0)
        InvalidateRect(hWnd, pRect, (nFlags & RDW_ERASE) != 0 ? TRUE : FALSE);
    if ((nFlags & RDW_UPDATENOW) != 0)
        UpdateWindow(hWnd);
    return TRUE;
}
