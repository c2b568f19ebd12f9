// A plant that exists only here: one sample of all instruments after another. The same steps give the same
// values on every machine and in every run, so that pictures and tests can be repeated. Knows no thread.
#pragma once

#include "plant/Instrument.h"

#include <array>
#include <cstdint>

/// What all instruments showed at one moment.
struct PlantSample
{
    double dTime = 0.0; // seconds since the run began
    std::array<double, INSTRUMENT_COUNT> arrValue{};
};

class CSimulation
{
public:
    /// The plant after another dSeconds; the first call gives the start of the run.
    PlantSample Step(double dSeconds);

private:
    double NextNoise();

    double m_dTime = 0.0;
    bool m_bStarted = false;
    std::uint64_t m_nRandom = 0x9E3779B97F4A7C15U;
    std::array<double, INSTRUMENT_COUNT> m_arrNoise{};
};
