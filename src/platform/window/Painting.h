// Painting what is marked: first the plan, which window paints which part of the screen, without calling
// anybody; then the windows in painter's order. A handler that changes the tree meanwhile ends the plan; what
// is left waits for the next.
#pragma once

#include "platform/graphics/Region.h"
#include "platform/window/WindowRecord.h"

#include <vector>

namespace splitframe {

/// One window's part of a plan.
struct PaintStep
{
    HWND hWnd;
    Region clip; // screen coordinates
    bool bErase;
};

/// What is marked at or below a window, parents before children; clears the marks it deals with. Marks in
/// hidden parts stay, those in covered parts are dropped: showing and uncovering mark anew.
std::vector<PaintStep> PlanPainting(WindowRecord& root);

bool IsPaintingDue();
/// Paints all that is marked at and below a window.
void PaintTree(WindowRecord& root);

/// The part that a window is painting now (screen coordinates), for its CPaintDC: of the paint message under
/// way, else what is marked in it and can be seen; the mark is taken back. All of it counts as changed on the
/// screen.
Region TakePaintPart(HWND hWnd);

/// Fills a part of a window's background: with its class's brush, else with the face colour. False: no brush.
bool FillBackground(const WindowRecord& record, const Region& part);

/// Number of WM_PAINT steps so far, for tests and measurements.
SPLITFRAME_PLATFORM_API unsigned long PaintStepCount();

} // namespace splitframe
