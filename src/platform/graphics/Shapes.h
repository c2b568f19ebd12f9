// Smooth lines and areas of any direction, for the device context. Sources of this folder only.
#pragma once

#include "platform/graphics/Region.h"
#include "platform/graphics/Surface.h"

#include <vector>

namespace splitframe {

struct ShapePoint
{
    double x;
    double y;
};

/// A path in surface coordinates (logical pixels, pixel n spans n .. n + 1), of any size: it is cut to what
/// can be seen before it reaches the drawing library, whose own coordinates end early.
struct Shape
{
    std::vector<ShapePoint> points;
    bool bClosed = false;
    double dWidth = 0.0;        // of the line; 0: the area is filled, by the even-odd rule
    std::vector<double> dashes; // lengths drawn and left out in turn; empty: solid
};

/// The pixels that the shape may touch.
RECT ShapeBounds(const Shape& shape);

/// Draws the shape smoothed in one colour inside the clip.
void PaintShape(Surface& surface, const Region& clip, const Shape& shape, COLORREF color);

/// The whole pixels of the shape inside a rectangle, for exclusive or: nothing is smoothed.
Region ShapeRegion(const Shape& shape, const RECT& rcClip);

} // namespace splitframe
