// Points, sizes and rectangles of 32-bit coordinates. Right and bottom lie just outside a rectangle. All
// arithmetic stops at the ends of the 32-bit range, so that no coordinates, however wild, overflow.
#pragma once

#include "platform/base/Export.h"
#include "platform/base/Number.h"
#include "platform/base/Types.h"

#include <algorithm>

struct CSize : SIZE
{
    constexpr CSize() : CSize(0, 0) {}
    constexpr CSize(int nWidth, int nHeight) : SIZE({nWidth, nHeight}) {}
    constexpr CSize(const SIZE& size) : SIZE(size) {}
    constexpr bool operator==(const CSize& size) const { return cx == size.cx && cy == size.cy; }
};

struct CPoint : POINT
{
    constexpr CPoint() : CPoint(0, 0) {}
    constexpr CPoint(int nX, int nY) : POINT({nX, nY}) {}
    constexpr CPoint(const POINT& pt) : POINT(pt) {}
    constexpr bool operator==(const CPoint& pt) const { return x == pt.x && y == pt.y; }
    constexpr void Offset(int dx, int dy)
    {
        x = splitframe::AddClamped(x, dx);
        y = splitframe::AddClamped(y, dy);
    }
    constexpr CPoint operator+(const POINT& pt) const
    {
        return {splitframe::AddClamped(x, pt.x), splitframe::AddClamped(y, pt.y)};
    }
    constexpr CPoint operator-(const POINT& pt) const
    {
        return {splitframe::SubtractClamped(x, pt.x), splitframe::SubtractClamped(y, pt.y)};
    }
};

/// A rectangle. It is empty when it has no width or no height, also when its sides are swapped.
struct SPLITFRAME_PLATFORM_API CRect : RECT
{
    constexpr CRect() : CRect(0, 0, 0, 0) {}
    constexpr CRect(int nLeft, int nTop, int nRight, int nBottom) : RECT({nLeft, nTop, nRight, nBottom}) {}
    constexpr CRect(const RECT& rc) : RECT(rc) {}
    constexpr CRect(const POINT& pt, const SIZE& size)
        : CRect(pt.x, pt.y, splitframe::AddClamped(pt.x, size.cx), splitframe::AddClamped(pt.y, size.cy))
    {
    }

    operator LPRECT() { return this; }
    operator LPCRECT() const { return this; }
    constexpr bool operator==(const CRect& rc) const
    {
        return left == rc.left && top == rc.top && right == rc.right && bottom == rc.bottom;
    }

    /// May be negative, when the sides are swapped.
    constexpr int Width() const { return splitframe::SubtractClamped(right, left); }
    constexpr int Height() const { return splitframe::SubtractClamped(bottom, top); }
    constexpr CSize Size() const { return {Width(), Height()}; }
    constexpr CPoint TopLeft() const { return {left, top}; }
    constexpr CPoint BottomRight() const { return {right, bottom}; }
    constexpr CPoint CenterPoint() const
    {
        return {static_cast<int>((std::int64_t{left} + right) / 2),
                static_cast<int>((std::int64_t{top} + bottom) / 2)};
    }
    constexpr bool IsRectEmpty() const { return left >= right || top >= bottom; }
    constexpr bool IsRectNull() const { return left == 0 && top == 0 && right == 0 && bottom == 0; }
    /// Left and top edge are inside, right and bottom edge are not.
    constexpr bool PtInRect(const POINT& pt) const
    {
        return pt.x >= left && pt.x < right && pt.y >= top && pt.y < bottom;
    }

    constexpr void SetRect(int nLeft, int nTop, int nRight, int nBottom)
    {
        *this = {nLeft, nTop, nRight, nBottom};
    }
    constexpr void SetRectEmpty() { *this = CRect(); }
    constexpr void OffsetRect(int dx, int dy)
    {
        left = splitframe::AddClamped(left, dx);
        top = splitframe::AddClamped(top, dy);
        right = splitframe::AddClamped(right, dx);
        bottom = splitframe::AddClamped(bottom, dy);
    }
    constexpr void OffsetRect(const POINT& pt) { OffsetRect(pt.x, pt.y); }
    /// Moves every side outwards; negative values move inwards.
    constexpr void InflateRect(int dx, int dy) { InflateRect(dx, dy, dx, dy); }
    constexpr void InflateRect(int nLeft, int nTop, int nRight, int nBottom)
    {
        left = splitframe::SubtractClamped(left, nLeft);
        top = splitframe::SubtractClamped(top, nTop);
        right = splitframe::AddClamped(right, nRight);
        bottom = splitframe::AddClamped(bottom, nBottom);
    }
    constexpr void DeflateRect(int dx, int dy) { DeflateRect(dx, dy, dx, dy); }
    constexpr void DeflateRect(int nLeft, int nTop, int nRight, int nBottom)
    {
        left = splitframe::AddClamped(left, nLeft);
        top = splitframe::AddClamped(top, nTop);
        right = splitframe::SubtractClamped(right, nRight);
        bottom = splitframe::SubtractClamped(bottom, nBottom);
    }
    /// Becomes what two rectangles share. @return false, and the empty rectangle, when they share nothing
    constexpr bool IntersectRect(const RECT& a, const RECT& b)
    {
        const CRect rc(std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
                       std::min(a.bottom, b.bottom));
        *this = rc.IsRectEmpty() ? CRect() : rc;
        return !IsRectEmpty();
    }
    /// Becomes the smallest rectangle around two; an empty one adds nothing. @return false when both are
    /// empty
    constexpr bool UnionRect(const RECT& a, const RECT& b)
    {
        const CRect rcA(a), rcB(b);
        *this = rcA.IsRectEmpty()   ? (rcB.IsRectEmpty() ? CRect() : rcB)
                : rcB.IsRectEmpty() ? rcA
                                    : CRect(std::min(a.left, b.left), std::min(a.top, b.top),
                                            std::max(a.right, b.right), std::max(a.bottom, b.bottom));
        return !IsRectEmpty();
    }
    /// Swaps sides where needed, so that width and height are not negative.
    constexpr void NormalizeRect()
    {
        if (left > right)
            std::swap(left, right);
        if (top > bottom)
            std::swap(top, bottom);
    }
};
