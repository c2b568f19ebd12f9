// Where drawing meets the surface: clip, exclusive-or plane, damage. Straight lines are whole rectangles
// here.
#include "platform/graphics/DCPainter.h"

#include "platform/graphics/RegionWalk.h"

#include <limits>

using splitframe::FindObject;
using splitframe::ForEachOverlap;
using splitframe::PenData;
using splitframe::Region;
using splitframe::Shape;
using splitframe::ShapePoint;

RECT CDC::Painter::MakeRect(std::int64_t left, std::int64_t top, std::int64_t right, std::int64_t bottom)
{
    const auto cut = [](std::int64_t n) {
        return static_cast<LONG>(
            std::clamp<std::int64_t>(n, std::numeric_limits<LONG>::min(), std::numeric_limits<LONG>::max()));
    };
    return {cut(left), cut(top), cut(right), cut(bottom)};
}

void CDC::Painter::Fill(const RECT& rc, COLORREF color) const
{
    if (!CanDraw())
        return;
    ForEachOverlap(Clip(), rc, [&](const RECT& rcPart) { Target().Fill(rcPart, color); });
    AddDamage(rc);
}

void CDC::Painter::Combine(const Region& area, COLORREF color) const
{
    if (!CanDraw())
        return;
    if (IsXor() && m_dc.m_canvas.pXorPlane) {
        Region seen = area;
        seen.Intersect(Clip());
        m_dc.m_canvas.pXorPlane->Toggle(seen, color);
    } else {
        for (const RECT& rc : area.Rects()) {
            ForEachOverlap(Clip(), rc, [&](const RECT& rcPart) {
                IsXor() ? Target().Xor(rcPart, color) : Target().Fill(rcPart, color);
            });
        }
    }
    AddDamage(area.Bounds());
}

void CDC::Painter::Combine(const Shape& shape, COLORREF color) const
{
    if (!CanDraw() || shape.points.empty())
        return;
    if (IsXor())
        return Combine(
            splitframe::ShapeRegion(shape, splitframe::SharedRect(Clip().Bounds(), Target().Bounds())),
            color);
    splitframe::PaintShape(Target(), Clip(), shape, color);
    if (m_dc.m_canvas.pDamage)
        AddDamage(splitframe::ShapeBounds(shape));
}

void CDC::Painter::AddDamage(const RECT& rc) const
{
    if (m_dc.m_canvas.pDamage)
        m_dc.m_canvas.pDamage->Union(splitframe::SharedRect(rc, Clip().Bounds()));
}

const PenData* CDC::Painter::Pen() const
{
    const auto* pPen = FindObject<PenData>(m_dc.m_state.hPen);
    return pPen && pPen->nStyle != PS_NULL ? pPen : nullptr;
}

std::optional<COLORREF> CDC::Painter::BrushColor() const
{
    COLORREF color = 0;
    if (!splitframe::GetBrushColor(m_dc.m_state.hBrush, color))
        return std::nullopt;
    return color;
}

Region CDC::Painter::StraightLine(POINT from, POINT to, const PenData& pen) const
{
    const int nBefore = pen.nWidth / 2;
    const int nAfter = pen.nWidth - nBefore;
    const bool bVertical = from.x == to.x;
    const std::int64_t nFrom = bVertical ? Y(from.y) : X(from.x);
    const std::int64_t nTo = bVertical ? Y(to.y) : X(to.x);
    // Drawn backwards the last pixel, which is left out, is the upper or left one.
    const std::int64_t nStart = nFrom <= nTo ? nFrom : nTo + 1;
    const std::int64_t nEnd = nFrom <= nTo ? nTo : nFrom + 1;
    const std::int64_t nAcross = bVertical ? X(from.x) : Y(from.y);
    const RECT rc = bVertical ? MakeRect(nAcross - nBefore, nStart, nAcross + nAfter, nEnd)
                              : MakeRect(nStart, nAcross - nBefore, nEnd, nAcross + nAfter);
    return pen.nStyle == PS_SOLID ? Region(rc) : Dashes(rc, bVertical, nFrom > nTo, pen);
}

// Only the dashes inside the clip are made, so that a line of any length costs what is seen of it.
Region CDC::Painter::Dashes(const RECT& rc, bool bVertical, bool bBackwards, const PenData& pen) const
{
    const std::int64_t nOn = std::int64_t{pen.nWidth} * (pen.nStyle == PS_DASH ? 4 : 1);
    const std::int64_t nPeriod = nOn + std::int64_t{pen.nWidth} * (pen.nStyle == PS_DASH ? 3 : 1);
    const RECT rcSeen = splitframe::SharedRect(rc, Clip().Bounds());
    if (!splitframe::HasArea(rcSeen))
        return {};
    const std::int64_t nStart = bVertical ? rc.top : rc.left;
    const std::int64_t nEnd = bVertical ? rc.bottom : rc.right;
    const std::int64_t nSeenFrom = bVertical ? rcSeen.top : rcSeen.left;
    const std::int64_t nSeenTo = bVertical ? rcSeen.bottom : rcSeen.right;
    // Distances from the end where the line begins.
    const std::int64_t nFirst = bBackwards ? nEnd - nSeenTo : nSeenFrom - nStart;
    const std::int64_t nLast = bBackwards ? nEnd - nSeenFrom : nSeenTo - nStart;
    std::vector<RECT> rects;
    for (std::int64_t n = nFirst / nPeriod * nPeriod; n < nLast; n += nPeriod) {
        const std::int64_t nA = bBackwards ? nEnd - std::min(n + nOn, nEnd - nStart) : nStart + n;
        const std::int64_t nB = bBackwards ? nEnd - n : std::min(nStart + n + nOn, nEnd);
        rects.push_back(bVertical ? MakeRect(rc.left, nA, rc.right, nB)
                                  : MakeRect(nA, rc.top, nB, rc.bottom));
    }
    return Region::FromRects(rects);
}

Shape CDC::Painter::LineShape(std::vector<ShapePoint> points, bool bClosed, const PenData& pen)
{
    Shape shape;
    shape.points = std::move(points);
    shape.bClosed = bClosed;
    shape.dWidth = pen.nWidth;
    if (pen.nStyle == PS_DASH)
        shape.dashes = {4.0 * pen.nWidth, 3.0 * pen.nWidth};
    else if (pen.nStyle == PS_DOT)
        shape.dashes = {1.0 * pen.nWidth, 1.0 * pen.nWidth};
    return shape;
}

void CDC::Painter::FillAndOutline(std::vector<ShapePoint> area, std::vector<ShapePoint> outline) const
{
    if (const std::optional<COLORREF> color = BrushColor()) {
        Shape shape;
        shape.points = std::move(area);
        Combine(shape, *color);
    }
    if (const PenData* pPen = Pen())
        Combine(LineShape(std::move(outline), true, *pPen), pPen->color);
}
