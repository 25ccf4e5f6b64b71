// The processor's own energy counter below /sys/class/powercap, of Intel's and AMD's alike.
#pragma once

#include "platform/linux/PcSensorsInput.h"

namespace zpsg::platform {

class RaplZone {
public:
    explicit RaplZone(const std::string &root) : folder_(root + "/sys/class/powercap/") {}

    /// Whether the counter of the first processor has come, gone or become readable since the last call.
    bool changed();

    /// The sensor "package-0" of "intel-rapl"; nothing where there is none, or none for this user: as a rule
    /// only root may read it.
    [[nodiscard]] std::vector<FoundSensor> scan() const;

private:
    std::string folder_;
    std::optional<std::string> zone_; // its folder, empty when there is none to read
};

} // namespace zpsg::platform
