// Energy from power readings and the time that really passed between them.
#pragma once

#include <chrono>
#include <optional>

namespace zpsg::power {

/// Readings further apart than this have a gap between them, which counts as nothing used.
inline constexpr std::chrono::seconds kLongestGap{5};

/// Clock and readings are passed in.
class EnergyMeter {
public:
    using Time = std::chrono::steady_clock::time_point;

    /// Goes on from `kwh` kilowatt-hours.
    explicit EnergyMeter(double kwh = 0.0) : kwh_(kwh) {}

    /// A fresh reading; nothing (and what is no number) for a moment without one. Counts the mean of this and
    /// the last reading over the time between them.
    void add(std::optional<double> watts, Time now);
    [[nodiscard]] double kwh() const { return kwh_; }

private:
    double kwh_;
    std::optional<double> lastWatts_;
    Time last_{};
};

} // namespace zpsg::power
