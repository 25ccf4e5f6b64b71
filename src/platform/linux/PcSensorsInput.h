// What stands behind one sensor of the list.
#pragma once

#include "platform/PcSensors.h"

namespace zpsg::platform {

class SensorInput {
public:
    virtual ~SensorInput() = default;
    SensorInput(const SensorInput &) = delete;
    SensorInput &operator=(const SensorInput &) = delete;

    virtual std::optional<double> read(PcChips::Time now) = 0;

protected:
    SensorInput() = default;
};

struct FoundSensor {
    PcSensor sensor;
    std::unique_ptr<SensorInput> input;
};

} // namespace zpsg::platform
