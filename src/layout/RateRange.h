// Which shares of a split line lead to where its sides meet now: for who writes shares down, so that they are
// neither longer nor less exact than need be.
#pragma once

#include "platform/base/Export.h"

class CSplitLine;

namespace splitframe {

/// Finds the shares with which a layout of the same extent divides a line at the pixel where its sides meet
/// now: dFrom <= share < dTo. Rounding in the layout is part of it.
/// @return false, and nothing is set, when the share has no say: for a unit, beside a side that is empty,
/// collapsed or of fixed size, and where nothing is free to divide
SPLITFRAME_API bool FindRateRange(const CSplitLine& line, double& dFrom, double& dTo);

} // namespace splitframe
