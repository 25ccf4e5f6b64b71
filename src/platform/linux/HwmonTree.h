// The kernel's sensors below /sys/class/hwmon.
#pragma once

#include "platform/linux/PcSensorsInput.h"

#include <sys/types.h>
#include <utility>

namespace zpsg::platform {

/// Volts, amps, watts and temperatures of every chip; a counter of energy is a sensor of watts.
class HwmonTree {
public:
    explicit HwmonTree(const std::string &root) : folder_(root + "/sys/class/hwmon/") {}

    /// Whether chips have come, gone or been numbered anew since the last call. Costs one stat() a chip.
    bool changed();

    /// Reads the names and labels of all; no value, so no driver is kept busy and no device woken. Of two
    /// files of one power sensor the average comes before the momentary value.
    [[nodiscard]] std::vector<FoundSensor> scan() const;

private:
    struct Chip {
        std::string entry; // "hwmon3"
        dev_t filesystem;
        ino_t folder; // a chip that comes back has a new one
        bool operator==(const Chip &) const = default;
    };

    std::string folder_;
    std::optional<std::vector<Chip>> chips_;
};

} // namespace zpsg::platform
