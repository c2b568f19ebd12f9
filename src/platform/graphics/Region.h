// A set of pixels as disjoint rectangles: clips, visible parts of windows, update regions. Knows coordinates
// only: no surface, no window. Safe for any 32-bit coordinates; no width or height is ever computed in 32
// bits.
//
// Invariant: the rectangles are sorted top to bottom, then left to right; those of one band share top and
// bottom; within a band they do not touch; two bands that touch differ. So equal sets have equal lists.
#pragma once

#include "platform/base/Export.h"
#include "platform/base/Types.h"

#include <cstddef>
#include <span>
#include <vector>

namespace splitframe {

class SPLITFRAME_PLATFORM_API Region
{
public:
    /// The empty set.
    Region() = default;
    /// One rectangle; a rectangle with no area (or with right < left, bottom < top) gives the empty set.
    explicit Region(const RECT& rc);
    /// The union of any number of rectangles, which may overlap; cheaper than uniting them one by one.
    static Region FromRects(std::span<const RECT> rects);

    bool IsEmpty() const { return m_rcBounds.right <= m_rcBounds.left; }
    /// True when the set is one rectangle (not for the empty set).
    bool IsRect() const { return !IsEmpty() && m_rects.empty(); }
    /// The smallest rectangle that holds the set; all zero for the empty set.
    const RECT& Bounds() const { return m_rcBounds; }
    /// The rectangles in order of the invariant; valid until the region changes.
    std::span<const RECT> Rects() const;

    bool Contains(POINT pt) const;
    /// True when every pixel of the rectangle is in the set. A rectangle with no area is in every set.
    bool Contains(const RECT& rc) const;
    /// True when at least one pixel of the rectangle is in the set.
    bool Intersects(const RECT& rc) const;

    void Clear();
    void Union(const RECT& rc);
    void Union(const Region& other);
    void Subtract(const RECT& rc);
    void Subtract(const Region& other);
    void Intersect(const RECT& rc);
    void Intersect(const Region& other);
    /// What is in one of the two sets, but not in both.
    void Xor(const Region& other);
    /// Moves the set; what would leave the 32-bit range is cut off there.
    void Offset(int dx, int dy);

    friend SPLITFRAME_PLATFORM_API bool operator==(const Region& a, const Region& b);

private:
    void Assign(std::vector<RECT>&& rects);
    void Settle();
    template <class Rule> void CombineRows(const RECT& rc, Rule rule);
    template <class Rule> void CombineAll(const Region& other, Rule rule);

    RECT m_rcBounds{};
    std::vector<RECT> m_rects; // empty when the set is empty or is the bounds themselves
};

} // namespace splitframe
