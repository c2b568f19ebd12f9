// The plainest way to write a share down.
#pragma once

namespace viewer {

/// The number with the fewest decimals among those from dFrom up to, but not including, dTo; of several the
/// least one. Only for 0 <= dTo <= 2, dFrom < dTo.
double ShortestRate(double dFrom, double dTo);

} // namespace viewer
