// Which sensors of which chips are which value.
#pragma once

#include "sensors/PcValues.h"

#include <vector>

namespace zpsg::sensors {

/// The sensors, as indices, that may give the value, best first; of those that are equally good in the order
/// of `sensors`. For a value of a graphics card only those of `device`.
std::vector<std::size_t> candidates(const PcValue &value, const std::vector<platform::PcSensor> &sensors,
                                    const std::string &device = {});

/// The devices that have a sensor for a value of a graphics card, each once.
std::vector<std::string> cardDevices(const std::vector<platform::PcSensor> &sensors);

/// Whether the card is part of the processor.
bool isIntegrated(const std::vector<platform::PcSensor> &sensors, const std::string &device);

} // namespace zpsg::sensors
