#include "power/EnergyMeter.h"

#include <cmath>

namespace zpsg::power {

void EnergyMeter::add(std::optional<double> watts, Time now) {
    constexpr double kSecondsPerHour = 3600.0;
    constexpr double kWattsPerKilowatt = 1000.0;
    if (watts && (!std::isfinite(*watts) || *watts < 0.0)) {
        watts.reset();
    }
    const auto passed = now - last_;
    if (watts && lastWatts_ && passed > std::chrono::steady_clock::duration::zero() &&
        passed <= kLongestGap) {
        const double hours = std::chrono::duration<double>(passed).count() / kSecondsPerHour;
        kwh_ += (*watts + *lastWatts_) / 2.0 * hours / kWattsPerKilowatt;
    }
    lastWatts_ = watts;
    last_ = now;
}

} // namespace zpsg::power
