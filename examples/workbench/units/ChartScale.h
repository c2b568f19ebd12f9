// The scales of a chart: which round numbers stand at its grid lines, and where a value lies between two
// edges. Numbers only.
#pragma once

#include <vector>

/// Round numbers (1, 2 or 5 times a power of ten apart) between two ends.
struct TickList
{
    double dStep = 1.0;
    int nDecimals = 0; // digits after the point that tell neighbours apart
    std::vector<double> arrTick;
};

/// @param nMost  at most about this many; below 1 gives none
TickList ChooseTicks(double dLow, double dHigh, int nMost);

/// The time between two marks of a time axis, in seconds: a part of a minute or some minutes.
double ChooseTimeStep(double dSpan, int nMost);

/// One axis: values from dLow to dHigh run from pixel nFrom to pixel nTo (which may be smaller).
struct Axis
{
    double dLow = 0.0;
    double dHigh = 1.0;
    int nFrom = 0;
    int nTo = 0;

    int ToPixel(double dValue) const;
};
