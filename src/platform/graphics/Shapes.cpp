// Paths are cut to the clip's bounds plus a margin, then drawn by the drawing library; for exclusive or it
// draws a mask, whose pixels make an area.
#include "platform/graphics/Shapes.h"

#include "platform/graphics/CairoContext.h"
#include "platform/graphics/RegionWalk.h"

#include <cairo.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace splitframe {

namespace {

struct Box
{
    double left, top, right, bottom;
};

Box BoxAround(const RECT& rc, double dMargin)
{
    return {rc.left - dMargin, rc.top - dMargin, rc.right + dMargin, rc.bottom + dMargin};
}

using Segment = std::pair<ShapePoint, ShapePoint>;

// One side of the box for a segment p0 + t * d: narrows [t0, t1] to where d * t <= q.
bool Narrow(double d, double q, double& t0, double& t1)
{
    if (d == 0.0)
        return q >= 0.0;
    const double t = q / d;
    if (d < 0.0)
        t0 = std::max(t0, t);
    else
        t1 = std::min(t1, t);
    return t0 <= t1;
}

std::optional<Segment> CutSegment(ShapePoint from, ShapePoint to, const Box& box)
{
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    double t0 = 0.0;
    double t1 = 1.0;
    if (!Narrow(-dx, from.x - box.left, t0, t1) || !Narrow(dx, box.right - from.x, t0, t1) ||
        !Narrow(-dy, from.y - box.top, t0, t1) || !Narrow(dy, box.bottom - from.y, t0, t1))
        return std::nullopt;
    const ShapePoint start = t0 > 0.0 ? ShapePoint{from.x + t0 * dx, from.y + t0 * dy} : from;
    const ShapePoint end = t1 < 1.0 ? ShapePoint{from.x + t1 * dx, from.y + t1 * dy} : to;
    return Segment{start, end};
}

// Keeps the part of a polygon where dSign * coordinate <= dSign * dLimit.
std::vector<ShapePoint> CutPolygon(const std::vector<ShapePoint>& points, double ShapePoint::*axis,
                                   double dLimit, double dSign)
{
    std::vector<ShapePoint> kept;
    kept.reserve(points.size() + 4);
    const auto inside = [&](const ShapePoint& pt) { return dSign * (pt.*axis) <= dSign * dLimit; };
    for (std::size_t i = 0; i < points.size(); ++i) {
        const ShapePoint& from = points[i == 0 ? points.size() - 1 : i - 1];
        const ShapePoint& to = points[i];
        if (inside(from) != inside(to)) {
            const double t = (dLimit - from.*axis) / (to.*axis - from.*axis);
            ShapePoint cut{from.x + t * (to.x - from.x), from.y + t * (to.y - from.y)};
            cut.*axis = dLimit;
            kept.push_back(cut);
        }
        if (inside(to))
            kept.push_back(to);
    }
    return kept;
}

void AddArea(cairo_t* pCairo, const Shape& shape, const Box& box)
{
    std::vector<ShapePoint> points = CutPolygon(shape.points, &ShapePoint::x, box.right, 1.0);
    points = CutPolygon(points, &ShapePoint::x, box.left, -1.0);
    points = CutPolygon(points, &ShapePoint::y, box.bottom, 1.0);
    points = CutPolygon(points, &ShapePoint::y, box.top, -1.0);
    for (const ShapePoint& pt : points)
        cairo_line_to(pCairo, pt.x, pt.y);
    cairo_close_path(pCairo);
}

bool SamePoint(const ShapePoint& a, const ShapePoint& b)
{
    return a.x == b.x && a.y == b.y;
}

// Segments that were not cut stay joined; a closed path of which nothing was cut is closed, so that its first
// corner is joined as well.
void AddLines(cairo_t* pCairo, const Shape& shape, const Box& box)
{
    const std::size_t nPoints = shape.points.size();
    const std::size_t nSegments = shape.bClosed ? nPoints : nPoints - 1;
    bool bWhole = shape.bClosed;
    bool bOpen = false;
    for (std::size_t i = 0; i < nSegments; ++i) {
        const ShapePoint& from = shape.points[i];
        const ShapePoint& to = shape.points[(i + 1) % nPoints];
        const std::optional<Segment> seen = CutSegment(from, to, box);
        bWhole = bWhole && seen && SamePoint(seen->first, from) && SamePoint(seen->second, to);
        if (!seen) {
            bOpen = false;
            continue;
        }
        if (!bOpen || !SamePoint(seen->first, from))
            cairo_move_to(pCairo, seen->first.x, seen->first.y);
        if (bWhole && i + 1 == nSegments)
            cairo_close_path(pCairo);
        else
            cairo_line_to(pCairo, seen->second.x, seen->second.y);
        bOpen = SamePoint(seen->second, to);
    }
}

void Draw(cairo_t* pCairo, const Shape& shape, const RECT& rcSeen)
{
    // Joins of a line reach out by a few widths.
    const Box box = BoxAround(rcSeen, 4.0 * shape.dWidth + 16.0);
    if (shape.dWidth <= 0.0) {
        AddArea(pCairo, shape, box);
        cairo_set_fill_rule(pCairo, CAIRO_FILL_RULE_EVEN_ODD);
        cairo_fill(pCairo);
        return;
    }
    AddLines(pCairo, shape, box);
    cairo_set_line_width(pCairo, shape.dWidth);
    cairo_set_line_cap(pCairo, CAIRO_LINE_CAP_BUTT);
    cairo_set_line_join(pCairo, CAIRO_LINE_JOIN_MITER);
    cairo_set_miter_limit(pCairo, 4.0);
    cairo_set_dash(pCairo, shape.dashes.data(), static_cast<int>(shape.dashes.size()), 0.0);
    cairo_stroke(pCairo);
}

bool Drawable(const Shape& shape)
{
    return shape.points.size() >= (shape.dWidth > 0.0 ? 2U : 3U);
}

RECT SeenPart(const Shape& shape, const RECT& rcClip)
{
    return SharedRect(ShapeBounds(shape), rcClip);
}

// The pixels of a mask that are not black; its first one lies at pt.
Region DrawnPixels(const Surface& mask, const POINT& pt)
{
    const auto isDrawn = [](std::uint32_t n) { return (n & 0x00FFFFFFU) != 0; };
    std::vector<RECT> runs;
    for (int y = 0; y < mask.Height(); ++y) {
        const std::uint32_t* pRow = mask.Row(y);
        const std::uint32_t* pEnd = pRow + mask.Width();
        for (const std::uint32_t* pFrom = std::find_if(pRow, pEnd, isDrawn); pFrom != pEnd;) {
            const std::uint32_t* pTo = std::find_if_not(pFrom, pEnd, isDrawn);
            runs.push_back({pt.x + static_cast<LONG>(pFrom - pRow), pt.y + y,
                            pt.x + static_cast<LONG>(pTo - pRow), pt.y + y + 1});
            pFrom = std::find_if(pTo, pEnd, isDrawn);
        }
    }
    return Region::FromRects(runs);
}

} // namespace

RECT ShapeBounds(const Shape& shape)
{
    Box box{shape.points[0].x, shape.points[0].y, shape.points[0].x, shape.points[0].y};
    for (const ShapePoint& pt : shape.points) {
        box = {std::min(box.left, pt.x), std::min(box.top, pt.y), std::max(box.right, pt.x),
               std::max(box.bottom, pt.y)};
    }
    const double dMargin = 4.0 * shape.dWidth + 1.0; // joins reach out by a few widths
    const auto edge = [](double d) { return static_cast<LONG>(std::clamp(d, -2147483648.0, 2147483647.0)); };
    return {edge(std::floor(box.left - dMargin)), edge(std::floor(box.top - dMargin)),
            edge(std::ceil(box.right + dMargin)), edge(std::ceil(box.bottom + dMargin))};
}

void PaintShape(Surface& surface, const Region& clip, const Shape& shape, COLORREF color)
{
    if (!Drawable(shape))
        return;
    const RECT rcSeen = SeenPart(shape, clip.Bounds());
    if (!clip.Intersects(rcSeen))
        return;
    const CairoContext context(surface, clip, rcSeen);
    cairo_t* pCairo = context.Get();
    if (!pCairo)
        return;
    cairo_set_antialias(pCairo, CAIRO_ANTIALIAS_DEFAULT);
    cairo_set_source_rgb(pCairo, GetRValue(color) / 255.0, GetGValue(color) / 255.0,
                         GetBValue(color) / 255.0);
    Draw(pCairo, shape, rcSeen);
}

Region ShapeRegion(const Shape& shape, const RECT& rcClip)
{
    if (!Drawable(shape))
        return {};
    const RECT rcSeen = SeenPart(shape, rcClip);
    if (!HasArea(rcSeen))
        return {};
    Surface mask(rcSeen.right - rcSeen.left, rcSeen.bottom - rcSeen.top);
    {
        const CairoContext context(mask, Region(mask.Bounds()), mask.Bounds());
        cairo_t* pCairo = context.Get();
        if (!pCairo)
            return {};
        cairo_translate(pCairo, -rcSeen.left, -rcSeen.top);
        cairo_set_antialias(pCairo, CAIRO_ANTIALIAS_NONE);
        cairo_set_source_rgb(pCairo, 1.0, 1.0, 1.0);
        Draw(pCairo, shape, rcSeen);
    }
    return DrawnPixels(mask, {rcSeen.left, rcSeen.top});
}

} // namespace splitframe
