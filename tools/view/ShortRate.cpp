// Tries one decimal more until a number fits.
#include "ShortRate.h"

#include <charconv>
#include <cmath>
#include <string>

namespace viewer {
namespace {

// nDigits behind the point, as a reader of the file gets it: the double that is nearest to nValue /
// 10^nDigits.
double Decimal(long long nValue, int nDigits)
{
    const std::string strText = std::to_string(nValue) + "e-" + std::to_string(nDigits);
    double dValue = 0.0;
    std::from_chars(strText.data(), strText.data() + strText.size(), dValue);
    return dValue;
}

} // namespace

double ShortestRate(double dFrom, double dTo)
{
    constexpr int kMostDigits = 17; // any double is met by then
    double dScale = 1.0;
    for (int nDigits = 0; nDigits <= kMostDigits; ++nDigits, dScale *= 10.0) {
        const auto nFirst = static_cast<long long>(std::fmax(0.0, std::floor(dFrom * dScale)));
        for (long long nValue = nFirst; nValue <= nFirst + 2; ++nValue) {
            const double dValue = Decimal(nValue, nDigits);
            if (dValue >= dFrom && dValue < dTo)
                return dValue;
        }
    }
    return dFrom;
}

} // namespace viewer
