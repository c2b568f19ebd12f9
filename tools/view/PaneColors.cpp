// A name's hue and tone come from a hash of its characters; all tones are light and all texts dark.
#include "PaneColors.h"

#include <cmath>
#include <cstdint>
#include <iterator>

namespace viewer {
namespace {

// Degrees, closer together where the eye tells more colours apart.
constexpr int kHues[] = {0, 16, 30, 43, 56, 75, 100, 140, 165, 182, 200, 218, 240, 265, 290, 325};

struct Tone
{
    double dSaturation;
    double dLightness;
};
constexpr Tone kTones[] = {{0.60, 0.95}, {0.40, 0.92}, {0.58, 0.91}};

// FNV-1a over the UTF-16 units, then mixed: names that differ in one character lie far apart.
std::uint32_t HashOf(const CString& strName)
{
    std::uint32_t nHash = 2166136261U;
    for (const wchar_t unit : strName.View())
        nHash = (nHash ^ static_cast<std::uint32_t>(unit)) * 16777619U;
    nHash ^= nHash >> 16;
    nHash *= 0x85EBCA6BU;
    return nHash ^ (nHash >> 13);
}

// Hue in degrees, saturation and lightness from 0 to 1.
COLORREF FromHsl(double dHue, double dSaturation, double dLightness)
{
    const double dReach = dSaturation * std::fmin(dLightness, 1.0 - dLightness);
    const auto channel = [&](double dOffset) {
        const double dPlace = std::fmod(dOffset + dHue / 30.0, 12.0);
        const double dSlope = std::fmin(std::fmin(dPlace - 3.0, 9.0 - dPlace), 1.0);
        const double dValue = dLightness - dReach * std::fmax(-1.0, dSlope);
        return static_cast<COLORREF>(std::lround(dValue * 255.0));
    };
    return channel(0.0) | (channel(8.0) << 8) | (channel(4.0) << 16);
}

} // namespace

PaneColors ColorsOf(const CString& strName)
{
    const std::uint32_t nHash = HashOf(strName);
    const double dHue = kHues[nHash % std::size(kHues)];
    const Tone& tone = kTones[nHash / std::size(kHues) % std::size(kTones)];
    return {FromHsl(dHue, tone.dSaturation, tone.dLightness),
            FromHsl(dHue, tone.dSaturation, tone.dLightness - 0.08),
            FromHsl(dHue, 0.30, 0.58),
            FromHsl(dHue, 0.25, 0.36),
            FromHsl(dHue, 0.40, 0.20),
            FromHsl(dHue, 0.40, 0.20)};
}

PaneColors Stronger(const PaneColors& colors)
{
    PaneColors strong = colors;
    strong.header = colors.faintText;
    strong.headerText = RGB(255, 255, 255);
    return strong;
}

} // namespace viewer
