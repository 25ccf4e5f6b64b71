#include "power/EnergyMeter.h"

#include "power/MainsPower.h"

#include <cmath>

namespace zpsg::power {
namespace {

Energy energyOf(double outputWatts, double wallWatts, double rate, double seconds) {
    constexpr double kWattSecondsPerKwh = 3.6e6;
    const double wallKwh = wallWatts * seconds / kWattSecondsPerKwh;
    return {seconds, outputWatts * seconds / kWattSecondsPerKwh, wallKwh, wallKwh * rate};
}

} // namespace

Energy &Energy::operator+=(const Energy &other) {
    seconds += other.seconds;
    outputKwh += other.outputKwh;
    wallKwh += other.wallKwh;
    cost += other.cost;
    return *this;
}

std::optional<EnergyMeter::Power> EnergyMeter::take(const std::optional<Load> &load) {
    if (!load || !std::isfinite(load->outputWatts) || load->outputWatts < 0.0) {
        return std::nullopt;
    }
    const auto mains = mainsPower(load->outputWatts, load->efficiencyPercent);
    efficiencyKnown_ = mains && std::isfinite(mains->inputWatts);
    return Power{load->outputWatts, efficiencyKnown_ ? mains->inputWatts : load->outputWatts};
}

Energy EnergyMeter::add(const std::optional<Load> &load, double rate, Time now) {
    const auto present = take(load);
    const auto passed = now - lastTime_;
    Energy used;
    if (present && last_ && passed > Time::duration::zero() && passed <= kLongestGap) {
        used = energyOf((present->outputWatts + last_->outputWatts) / 2.0,
                        (present->wallWatts + last_->wallWatts) / 2.0, rate,
                        std::chrono::duration<double>(passed).count());
    }
    last_ = present;
    lastTime_ = now;
    return used;
}

Energy EnergyMeter::use(const std::optional<Load> &load, double rate,
                        std::chrono::duration<double> duration) {
    const auto present = take(load);
    return present ? energyOf(present->outputWatts, present->wallWatts, rate, duration.count()) : Energy{};
}

} // namespace zpsg::power
