// Walks the part of a region near a rectangle, for the sources of this folder.
#pragma once

#include "platform/graphics/Region.h"

#include <algorithm>

namespace splitframe {

inline bool HasArea(const RECT& rc)
{
    return rc.left < rc.right && rc.top < rc.bottom;
}

inline RECT SharedRect(const RECT& a, const RECT& b)
{
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
            std::min(a.bottom, b.bottom)};
}

/// Calls fn with each piece of the region inside the rectangle; bands outside cost nothing.
template <class Fn> void ForEachOverlap(const Region& region, const RECT& rc, Fn fn)
{
    const std::span<const RECT> rects = region.Rects();
    auto it = std::partition_point(rects.begin(), rects.end(),
                                   [&](const RECT& rcBand) { return rcBand.bottom <= rc.top; });
    for (; it != rects.end() && it->top < rc.bottom; ++it) {
        const RECT rcPart = SharedRect(*it, rc);
        if (HasArea(rcPart))
            fn(rcPart);
    }
}

} // namespace splitframe
