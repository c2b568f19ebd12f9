// Where a line divides its extent. The one place of this arithmetic: the layout follows it, and who looks for
// a share that leads to a position asks it.
#pragma once

#include "layout/internal/NodeTable.h"
#include "platform/base/Number.h"

#include <cstdint>

namespace splitframe {

/// The position at which a line with the share dRate divides the extent [nFrom, nTo).
inline int DividingPos(int nFrom, int nTo, double dRate, const Extent& first, const Extent& second,
                       const Extent& line)
{
    if (first.IsFixed())
        return AddClamped(nFrom, first.nFixed);
    if (second.IsFixed())
        return SubtractClamped(nTo, second.nFixed);
    const std::int64_t nFree = std::int64_t{nTo} - nFrom - line.nFixed;
    const std::int64_t nTaken = std::int64_t{first.nFixed} + nFrom;
    return ClampToInt(static_cast<double>(nFree) * dRate + static_cast<double>(nTaken));
}

} // namespace splitframe
