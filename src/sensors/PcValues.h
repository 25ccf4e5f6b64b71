// The eight values of a reading as rows, for what treats them all alike.
#pragma once

#include "platform/PcSensors.h"
#include "sensors/PcReading.h"

#include <array>

namespace zpsg::sensors {

using PcMember = std::optional<double> PcReading::*;

struct PcValue {
    PcMember member;
    platform::PcQuantity quantity;
    bool ofCard; ///< of the graphics card, else of the processor
    const char *name;
};

inline constexpr std::array<PcValue, 8> kPcValues{{
    {&PcReading::cpuVolts, platform::PcQuantity::Volts, false, "processor volts"},
    {&PcReading::cpuAmps, platform::PcQuantity::Amps, false, "processor amps"},
    {&PcReading::cpuWatts, platform::PcQuantity::Watts, false, "processor watts"},
    {&PcReading::cpuCelsius, platform::PcQuantity::Celsius, false, "processor temperature"},
    {&PcReading::gpuVolts, platform::PcQuantity::Volts, true, "graphics volts"},
    {&PcReading::gpuAmps, platform::PcQuantity::Amps, true, "graphics amps"},
    {&PcReading::gpuWatts, platform::PcQuantity::Watts, true, "graphics watts"},
    {&PcReading::gpuCelsius, platform::PcQuantity::Celsius, true, "graphics temperature"},
}};

/// The value, or nothing when none of these parts can have it: no number, 0 V (not connected) or more than
/// 5 V, less than 0 or more than 1000 A, less than 0 or more than 2000 W, below absolute zero or above 150
/// °C.
std::optional<double> sensible(std::optional<double> value, platform::PcQuantity quantity);

} // namespace zpsg::sensors
