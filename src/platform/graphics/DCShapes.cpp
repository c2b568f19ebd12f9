// The device context's lines, shapes and areas.
#include "platform/graphics/DCPainter.h"
#include "platform/graphics/RegionWalk.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

using splitframe::PenData;
using splitframe::Region;
using splitframe::ShapePoint;

namespace {

bool IsStraight(POINT from, POINT to)
{
    return from.x == to.x || from.y == to.y;
}

RECT Normalized(const RECT& rc)
{
    return {std::min(rc.left, rc.right), std::min(rc.top, rc.bottom), std::max(rc.left, rc.right),
            std::max(rc.top, rc.bottom)};
}

struct Oval
{
    double left, top, right, bottom; // of the box
    double rx, ry;                   // radii of the corners

    void Inset(double d)
    {
        left += d;
        top += d;
        right = std::max(left, right - d);
        bottom = std::max(top, bottom - d);
        rx = std::max(0.0, rx - d);
        ry = std::max(0.0, ry - d);
    }
};

// A box with elliptic corners as a polygon fine enough that its sides are not seen.
std::vector<ShapePoint> Outline(const Oval& oval)
{
    const double dRadius = std::max(oval.rx, oval.ry);
    const int nSteps = static_cast<int>(std::clamp(4.0 * std::sqrt(dRadius), 2.0, 2000.0));
    const double dStep = std::numbers::pi / 2.0 / nSteps;
    std::vector<ShapePoint> points;
    points.reserve(4 * (static_cast<std::size_t>(nSteps) + 1));
    for (int nCorner = 0; nCorner < 4; ++nCorner) {
        // Clockwise from the right end of the box: lower right, lower left, upper left, upper right corner.
        const double x = nCorner == 0 || nCorner == 3 ? oval.right - oval.rx : oval.left + oval.rx;
        const double y = nCorner < 2 ? oval.bottom - oval.ry : oval.top + oval.ry;
        for (int i = 0; i <= nSteps; ++i) {
            const double dAngle = nCorner * std::numbers::pi / 2.0 + i * dStep;
            points.push_back({x + oval.rx * std::cos(dAngle), y + oval.ry * std::sin(dAngle)});
        }
    }
    return points;
}

Oval MakeOval(const RECT& rc, double rx, double ry)
{
    const double cx = static_cast<double>(rc.right) - rc.left;
    const double cy = static_cast<double>(rc.bottom) - rc.top;
    return {static_cast<double>(rc.left),   static_cast<double>(rc.top), static_cast<double>(rc.right),
            static_cast<double>(rc.bottom), std::min(rx, cx / 2.0),      std::min(ry, cy / 2.0)};
}

// What the outline covers of a rectangle whose edge pixels the pen's line runs along.
Region FrameRegion(const RECT& rc, int nWidth)
{
    const int nOut = nWidth / 2;
    const int nIn = nWidth - nOut;
    const auto wide = [](LONG n, int d) { return std::int64_t{n} + d; };
    const auto make = [](std::int64_t left, std::int64_t top, std::int64_t right, std::int64_t bottom) {
        const auto cut = [](std::int64_t n) {
            return static_cast<LONG>(std::clamp<std::int64_t>(n, INT32_MIN, INT32_MAX));
        };
        return RECT{cut(left), cut(top), cut(right), cut(bottom)};
    };
    Region frame(
        make(wide(rc.left, -nOut), wide(rc.top, -nOut), wide(rc.right, nIn - 1), wide(rc.bottom, nIn - 1)));
    frame.Subtract(
        make(wide(rc.left, nIn), wide(rc.top, nIn), wide(rc.right, -1 - nOut), wide(rc.bottom, -1 - nOut)));
    return frame;
}

} // namespace

CPoint CDC::MoveTo(int x, int y)
{
    return std::exchange(m_state.ptPosition, POINT{x, y});
}

CPoint CDC::GetCurrentPosition() const
{
    return m_state.ptPosition;
}

BOOL CDC::LineTo(int x, int y)
{
    const POINT to{x, y};
    const POINT from = std::exchange(m_state.ptPosition, to);
    const Painter painter(*this);
    const PenData* pPen = painter.Pen();
    if (!pPen || !painter.CanDraw())
        return TRUE;
    if (IsStraight(from, to))
        painter.Combine(painter.StraightLine(from, to, *pPen), pPen->color);
    else
        painter.Combine(Painter::LineShape({painter.Center(from), painter.Center(to)}, false, *pPen),
                        pPen->color);
    return TRUE;
}

BOOL CDC::Polyline(const POINT* pPoints, int nCount)
{
    if (!pPoints || nCount < 2)
        return FALSE;
    const Painter painter(*this);
    const PenData* pPen = painter.Pen();
    if (!pPen || !painter.CanDraw())
        return TRUE;
    const std::span<const POINT> points(pPoints, static_cast<std::size_t>(nCount));
    bool bStraight = true;
    std::vector<ShapePoint> path;
    path.reserve(points.size());
    for (const POINT& pt : points) {
        bStraight = bStraight && (path.empty() || IsStraight(*(&pt - 1), pt));
        path.push_back(painter.Center(pt));
    }
    if (!bStraight) {
        painter.Combine(Painter::LineShape(std::move(path), false, *pPen), pPen->color);
        return TRUE;
    }
    // United first: where lines cross, exclusive or must hit a pixel once.
    std::vector<RECT> pieces;
    for (std::size_t i = 1; i < points.size(); ++i) {
        const Region line = painter.StraightLine(points[i - 1], points[i], *pPen);
        pieces.insert(pieces.end(), line.Rects().begin(), line.Rects().end());
        if (i + 1 < points.size() && pPen->nWidth > 1 && pPen->nStyle == PS_SOLID) // the corner
        {
            const std::int64_t nX = painter.X(points[i].x) - pPen->nWidth / 2;
            const std::int64_t nY = painter.Y(points[i].y) - pPen->nWidth / 2;
            pieces.push_back(Painter::MakeRect(nX, nY, nX + pPen->nWidth, nY + pPen->nWidth));
        }
    }
    painter.Combine(Region::FromRects(pieces), pPen->color);
    return TRUE;
}

BOOL CDC::Polygon(const POINT* pPoints, int nCount)
{
    if (!pPoints || nCount < 2)
        return FALSE;
    const Painter painter(*this);
    if (!painter.CanDraw())
        return TRUE;
    std::vector<ShapePoint> path;
    path.reserve(static_cast<std::size_t>(nCount));
    for (const POINT& pt : std::span<const POINT>(pPoints, static_cast<std::size_t>(nCount)))
        path.push_back(painter.Center(pt));
    painter.FillAndOutline(path, path);
    return TRUE;
}

BOOL CDC::Rectangle(LPCRECT pRect)
{
    const Painter painter(*this);
    const RECT rc = painter.Place(Normalized(*pRect));
    if (!splitframe::HasArea(rc) || !painter.CanDraw())
        return TRUE;
    Region inside(rc);
    Region frame;
    if (const PenData* pPen = painter.Pen()) {
        frame = FrameRegion(rc, pPen->nWidth);
        inside.Subtract(frame);
        if (pPen->nStyle == PS_SOLID)
            painter.Combine(frame, pPen->color);
        else {
            const Oval box{rc.left + 0.5, rc.top + 0.5, rc.right - 0.5, rc.bottom - 0.5, 0.0, 0.0};
            painter.Combine(Painter::LineShape({{box.left, box.top},
                                                {box.right, box.top},
                                                {box.right, box.bottom},
                                                {box.left, box.bottom}},
                                               true, *pPen),
                            pPen->color);
        }
    }
    if (const std::optional<COLORREF> color = painter.BrushColor())
        painter.Combine(inside, *color);
    return TRUE;
}

BOOL CDC::Rectangle(int left, int top, int right, int bottom)
{
    const RECT rc{left, top, right, bottom};
    return Rectangle(&rc);
}

BOOL CDC::Ellipse(LPCRECT pRect)
{
    const RECT rc = Normalized(*pRect);
    return RoundRect(
        &rc, {static_cast<LONG>(std::min<std::int64_t>(std::int64_t{rc.right} - rc.left, INT32_MAX)),
              static_cast<LONG>(std::min<std::int64_t>(std::int64_t{rc.bottom} - rc.top, INT32_MAX))});
}

BOOL CDC::RoundRect(LPCRECT pRect, POINT ptCorner)
{
    const Painter painter(*this);
    const RECT rc = painter.Place(Normalized(*pRect));
    if (!splitframe::HasArea(rc) || !painter.CanDraw())
        return TRUE;
    const Oval area = MakeOval(rc, std::abs(static_cast<double>(ptCorner.x)) / 2.0,
                               std::abs(static_cast<double>(ptCorner.y)) / 2.0);
    Oval line = area;
    if (const PenData* pPen = painter.Pen())
        line.Inset(pPen->nWidth / 2.0);
    painter.FillAndOutline(Outline(area), Outline(line));
    return TRUE;
}

void CDC::FillRect(LPCRECT pRect, CBrush* pBrush)
{
    if (pBrush)
        FillRect(pRect, static_cast<HBRUSH>(*pBrush));
}

void CDC::FillRect(LPCRECT pRect, HBRUSH hBrush)
{
    COLORREF color = 0;
    if (splitframe::GetBrushColor(hBrush, color))
        FillSolidRect(pRect, color);
}

void CDC::FillSolidRect(LPCRECT pRect, COLORREF color)
{
    const Painter painter(*this);
    painter.Fill(painter.Place(*pRect), color);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF color)
{
    const Painter painter(*this);
    painter.Fill(Painter::MakeRect(painter.X(x), painter.Y(y), painter.X(x) + cx, painter.Y(y) + cy), color);
}

void CDC::FrameRect(LPCRECT pRect, CBrush* pBrush)
{
    COLORREF color = 0;
    if (!pBrush || !splitframe::GetBrushColor(*pBrush, color))
        return;
    const Painter painter(*this);
    const RECT rc = painter.Place(*pRect);
    if (!splitframe::HasArea(rc))
        return;
    const Region frame = FrameRegion(rc, 1);
    for (const RECT& rcSide : frame.Rects())
        painter.Fill(rcSide, color);
}

COLORREF CDC::GetPixel(int x, int y) const
{
    const Painter painter(*this);
    const RECT rc = Painter::MakeRect(painter.X(x), painter.Y(y), painter.X(x) + 1, painter.Y(y) + 1);
    if (!painter.CanDraw() || !m_state.clip.Intersects(rc))
        return 0xFFFFFFFF;
    return m_canvas.pSurface->GetPixel(rc.left, rc.top);
}

void CDC::SetPixel(int x, int y, COLORREF color)
{
    FillSolidRect(x, y, 1, 1, color);
}

BOOL CDC::BitBlt(int x, int y, int cx, int cy, CDC* pSource, int xSource, int ySource)
{
    if (!pSource || !pSource->m_canvas.pSurface || !m_canvas.pSurface)
        return FALSE;
    const Painter painter(*this);
    const Painter from(*pSource);
    const RECT rcTo = Painter::MakeRect(painter.X(x), painter.Y(y), painter.X(x) + cx, painter.Y(y) + cy);
    const std::int64_t dx = from.X(xSource) - painter.X(x);
    const std::int64_t dy = from.Y(ySource) - painter.Y(y);
    // Pixels that overlap are read before any is written: a clip of several pieces could spoil them.
    splitframe::Surface* pFrom = pSource->m_canvas.pSurface;
    std::optional<splitframe::Surface> copy;
    const RECT rcSeen = splitframe::SharedRect(rcTo, m_state.clip.Bounds());
    if (!splitframe::HasArea(rcSeen))
        return TRUE;
    const RECT rcFrom =
        Painter::MakeRect(rcSeen.left + dx, rcSeen.top + dy, rcSeen.right + dx, rcSeen.bottom + dy);
    POINT ptShift{rcFrom.left - rcSeen.left, rcFrom.top - rcSeen.top};
    if (pFrom == m_canvas.pSurface && !m_state.clip.IsRect()) {
        copy.emplace(rcSeen.right - rcSeen.left, rcSeen.bottom - rcSeen.top, pFrom->Scale());
        copy->Copy(*pFrom, rcFrom, {0, 0});
        pFrom = &*copy;
        ptShift = {-rcSeen.left, -rcSeen.top};
    }
    splitframe::ForEachOverlap(m_state.clip, rcSeen, [&](const RECT& rc) {
        m_canvas.pSurface->Copy(
            *pFrom,
            Painter::MakeRect(std::int64_t{rc.left} + ptShift.x, std::int64_t{rc.top} + ptShift.y,
                              std::int64_t{rc.right} + ptShift.x, std::int64_t{rc.bottom} + ptShift.y),
            {rc.left, rc.top});
    });
    painter.AddDamage(rcTo);
    return TRUE;
}

int FillRect(HDC hDC, LPCRECT pRect, HBRUSH hBrush)
{
    CDC* pDC = CDC::FromHandle(hDC);
    if (!pDC)
        return 0;
    pDC->FillRect(pRect, hBrush);
    return 1;
}
