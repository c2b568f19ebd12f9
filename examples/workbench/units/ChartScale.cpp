// Round numbers for grid lines.
#include "units/ChartScale.h"

#include <algorithm>
#include <array>
#include <cmath>

TickList ChooseTicks(double dLow, double dHigh, int nMost)
{
    TickList list;
    if (nMost < 1 || !(dHigh > dLow))
        return list;
    const double dRough = (dHigh - dLow) / nMost;
    const double dPower = std::pow(10.0, std::floor(std::log10(dRough)));
    const double dLead = dRough / dPower;
    list.dStep = dPower * (dLead <= 1.0 ? 1.0 : dLead <= 2.0 ? 2.0 : dLead <= 5.0 ? 5.0 : 10.0);
    list.nDecimals = std::clamp(static_cast<int>(std::ceil(-std::log10(list.dStep) - 1e-9)), 0, 3);
    const double dFirst = std::ceil(dLow / list.dStep - 1e-9);
    const double dLast = std::floor(dHigh / list.dStep + 1e-9);
    for (double d = dFirst; d <= dLast && list.arrTick.size() < 100; d += 1.0)
        list.arrTick.push_back(d * list.dStep + 0.0); // no negative zero
    return list;
}

double ChooseTimeStep(double dSpan, int nMost)
{
    static constexpr std::array<double, 10> STEPS = {5, 10, 15, 30, 60, 120, 300, 600, 900, 1800};
    for (const double dStep : STEPS) {
        if (dSpan / dStep <= std::max(nMost, 1))
            return dStep;
    }
    return 3600.0;
}

int Axis::ToPixel(double dValue) const
{
    const double dPart = dHigh > dLow ? (dValue - dLow) / (dHigh - dLow) : 0.0;
    return nFrom + static_cast<int>(std::lround(std::clamp(dPart, -1.0, 2.0) * (nTo - nFrom)));
}
