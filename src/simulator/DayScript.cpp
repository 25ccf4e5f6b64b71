#include "simulator/DayScript.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace zpsg::simulator {
namespace {

constexpr double kDay = 86400.0;
constexpr double kHour = 3600.0;

/// Load as a share of the rating: a floor, slow waves over minutes, and bursts of some seconds.
struct Phase {
    double untilHour;
    const char *activity;
    double floor, wave, burst;
};

constexpr std::array kPhases{
    Phase{7.5, "standby", 0.030, 0.004, 0.05}, Phase{9.0, "idle", 0.075, 0.020, 0.10},
    Phase{12.25, "work", 0.140, 0.050, 0.28},  Phase{13.25, "idle", 0.080, 0.015, 0.08},
    Phase{17.5, "work", 0.150, 0.060, 0.30},   Phase{19.0, "idle", 0.085, 0.025, 0.12},
    Phase{22.75, "game", 0.430, 0.110, 0.20},  Phase{24.0, "idle", 0.075, 0.020, 0.08},
};

const Phase &phaseAt(double secondOfDay) {
    const double hour = secondOfDay / kHour;
    return *std::find_if(kPhases.begin(), kPhases.end() - 1,
                         [hour](const Phase &phase) { return hour < phase.untilHour; });
}

double wrapped(double secondOfDay) {
    const double second = std::fmod(secondOfDay, kDay);
    return second < 0.0 ? second + kDay : second;
}

/// 0 to 1, the same for the same arguments on every machine.
double hashed(std::uint32_t slot, std::uint32_t salt) {
    std::uint32_t x = slot * 0x9E3779B1U ^ salt * 0x85EBCA77U;
    x ^= x >> 15U;
    x *= 0x2C1B3C6DU;
    x ^= x >> 12U;
    x *= 0x297A2D39U;
    x ^= x >> 15U;
    return x / 4294967296.0;
}

/// A value that wanders smoothly between the hashes of neighbouring slots of `width` seconds.
double wander(double second, double width, std::uint32_t salt) {
    const double position = second / width;
    const double whole = std::floor(position);
    const double t = position - whole;
    const double smooth = t * t * (3.0 - 2.0 * t);
    const auto slot = static_cast<std::uint32_t>(whole);
    return std::lerp(hashed(slot, salt), hashed(slot + 1, salt), smooth);
}

} // namespace

const char *scriptedActivity(double secondOfDay) { return phaseAt(wrapped(secondOfDay)).activity; }

double scriptedLoad(double secondOfDay, double ratedWatts, unsigned dayOfYear) {
    const double second = wrapped(secondOfDay);
    const Phase &phase = phaseAt(second);
    const auto salt = static_cast<std::uint32_t>(dayOfYear);
    const double wave = wander(second, 97.0, salt) + 0.35 * wander(second, 11.0, salt + 1000U);
    // A burst is there for about a third of the 23-second slots and fades in and out.
    const double urge = wander(second, 23.0, salt + 2000U);
    const double burst = std::clamp((urge - 0.62) * 4.0, 0.0, 1.0);
    const double flicker = 0.004 * wander(second, 1.3, salt + 3000U);
    return ratedWatts * (phase.floor + phase.wave * wave + phase.burst * burst + flicker);
}

} // namespace zpsg::simulator
