// Each instrument follows a slow wave around its working point, with noise that remembers a little of what it
// was; every seven minutes the same small mishaps come by, so that there is something to watch.
#include "plant/Simulation.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <numbers>

namespace {

struct Behaviour
{
    double dMean;
    double dSwing;  // height of the slow wave
    double dPeriod; // its length in seconds
    double dPhase;  // where it begins, in turns
    double dNoise;  // largest step of the noise
};

constexpr Behaviour BEHAVIOURS[] = {
    {37.2, 1.6, 140, 0.10, 0.12},  {42.0, 5.0, 140, 0.25, 0.35},  {1.35, 0.18, 95, 0.00, 0.02},
    {7.02, 0.09, 180, 0.55, 0.02}, {46.0, 9.0, 75, 0.30, 0.90},   {640, 60, 210, 0.40, 6.0},
    {67.0, 3.0, 260, 0.05, 0.12},  {24.0, 5.0, 60, 0.50, 0.60},   {52.0, 14.0, 420, 0.20, 0.15},
    {18.4, 0.9, 300, 0.70, 0.10},  {112, 12, 120, 0.15, 2.0},     {4.1, 0.9, 110, 0.60, 0.08},
    {2.9, 0.5, 140, 0.30, 0.05},   {12.6, 0.6, 330, 0.80, 0.08},  {24.8, 2.6, 140, 0.35, 0.20},
    {17.5, 2.2, 210, 0.45, 0.35},  {38.0, 16.0, 600, 0.85, 0.12}, {4.6, 0.5, 240, 0.25, 0.06},
};
static_assert(std::size(BEHAVIOURS) == INSTRUMENT_COUNT);

/// A push away from the working point that rises and fades again, once in every round.
struct Mishap
{
    int nInstrument;
    double dFrom; // seconds into the round
    double dTo;
    double dHeight;
};

constexpr double ROUND = 420.0;
constexpr Mishap MISHAPS[] = {
    {3, 62, 118, -0.62},  // the acid pump doses too much
    {4, 70, 112, -21.0},  // the culture uses up its oxygen
    {7, 150, 166, 27.0},  // a flush of the feed line
    {12, 215, 385, -2.3}, // a cooling valve sticks ...
    {1, 230, 385, 34.0},  // ... and the jacket warms up
    {14, 235, 390, 25.0}, // ... and the water leaves it warm
};

double MishapAt(int nInstrument, double dTime)
{
    const double dInRound = std::fmod(dTime, ROUND);
    double dSum = 0.0;
    for (const Mishap& mishap : MISHAPS) {
        if (mishap.nInstrument != nInstrument || dInRound < mishap.dFrom || dInRound > mishap.dTo)
            continue;
        const double dPart = (dInRound - mishap.dFrom) / (mishap.dTo - mishap.dFrom);
        dSum += mishap.dHeight * std::sin(std::numbers::pi * dPart);
    }
    return dSum;
}

} // namespace

PlantSample CSimulation::Step(double dSeconds)
{
    m_dTime += m_bStarted ? dSeconds : 0.0;
    m_bStarted = true;

    PlantSample sample;
    sample.dTime = m_dTime;
    for (int n = 0; n < INSTRUMENT_COUNT; ++n) {
        const auto i = static_cast<std::size_t>(n);
        const Behaviour& behaviour = BEHAVIOURS[i];
        const double dTurn = m_dTime / behaviour.dPeriod + behaviour.dPhase;
        m_arrNoise[i] = 0.8 * m_arrNoise[i] + behaviour.dNoise * NextNoise();
        const double dValue = behaviour.dMean + behaviour.dSwing * std::sin(2.0 * std::numbers::pi * dTurn) +
                              m_arrNoise[i] + MishapAt(n, m_dTime);
        const Instrument& instrument = GetInstrument(n);
        sample.arrValue[i] = std::clamp(dValue, instrument.dLow, instrument.dHigh);
    }
    return sample;
}

/// A number from -1 to 1. An own generator: those of the standard library differ between machines.
double CSimulation::NextNoise()
{
    m_nRandom ^= m_nRandom << 13;
    m_nRandom ^= m_nRandom >> 7;
    m_nRandom ^= m_nRandom << 17;
    return static_cast<double>(m_nRandom >> 11) / 4503599627370496.0 - 1.0;
}
