// From a device context's coordinates and state to the pixels of its surface. Sources of this folder only.
#pragma once

#include "platform/graphics/DC.h"
#include "platform/graphics/ObjectTable.h"
#include "platform/graphics/Shapes.h"

#include <optional>

namespace splitframe {
class TextBlock;
}

/// Made for one drawing call. All its own coordinates are surface coordinates: logical pixels, unclipped, in
/// 64 bits or cut to the 32-bit range.
class CDC::Painter
{
public:
    explicit Painter(const CDC& dc) : m_dc(dc) {}

    /// False when nothing that is drawn could be seen.
    bool CanDraw() const { return m_dc.m_canvas.pSurface && !Clip().IsEmpty(); }
    const splitframe::Region& Clip() const { return m_dc.m_state.clip; }
    splitframe::Surface& Target() const { return *m_dc.m_canvas.pSurface; }

    std::int64_t X(LONG x) const
    {
        return std::int64_t{x} + m_dc.m_state.ptViewport.x + m_dc.m_canvas.ptOrigin.x;
    }
    std::int64_t Y(LONG y) const
    {
        return std::int64_t{y} + m_dc.m_state.ptViewport.y + m_dc.m_canvas.ptOrigin.y;
    }
    RECT Place(const RECT& rc) const { return MakeRect(X(rc.left), Y(rc.top), X(rc.right), Y(rc.bottom)); }
    static RECT MakeRect(std::int64_t left, std::int64_t top, std::int64_t right, std::int64_t bottom);
    splitframe::ShapePoint Center(POINT pt) const
    {
        return {static_cast<double>(X(pt.x)) + 0.5, static_cast<double>(Y(pt.y)) + 0.5};
    }

    /// Fills a rectangle, whatever the raster operation.
    void Fill(const RECT& rc, COLORREF color) const;
    /// Draws areas by the raster operation; each pixel once.
    void Combine(const splitframe::Region& area, COLORREF color) const;
    void Combine(const splitframe::Shape& shape, COLORREF color) const;
    void AddDamage(const RECT& rc) const;

    /// The selected pen and the brush's colour, if they draw anything.
    const splitframe::PenData* Pen() const;
    std::optional<COLORREF> BrushColor() const;

    /// The pixels of an axis-parallel line without its last pixel; empty for a line without length.
    splitframe::Region StraightLine(POINT from, POINT to, const splitframe::PenData& pen) const;
    /// The pen's line along points in surface coordinates.
    static splitframe::Shape LineShape(std::vector<splitframe::ShapePoint> points, bool bClosed,
                                       const splitframe::PenData& pen);
    /// Fills with the selected brush, then outlines with the selected pen.
    void FillAndOutline(std::vector<splitframe::ShapePoint> area,
                        std::vector<splitframe::ShapePoint> outline) const;

    /// Draws the lines of a text that the clip shows. The rectangle and the flags are those of CDC::DrawText.
    void DrawLines(const splitframe::TextBlock& block, int nFont, const RECT& rc, UINT nFlags,
                   const splitframe::Region& clip) const;

private:
    bool IsXor() const { return m_dc.m_state.nRop == R2_XORPEN; }
    splitframe::Region Dashes(const RECT& rc, bool bVertical, bool bBackwards,
                              const splitframe::PenData& pen) const;

    const CDC& m_dc;
};
