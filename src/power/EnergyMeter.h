// Energy and its cost from power readings and the time that really passed between them.
#pragma once

#include <chrono>
#include <optional>

namespace zpsg::power {

/// Readings further apart than this have a gap between them, which counts as nothing used.
inline constexpr std::chrono::seconds kLongestGap{5};

/// What was used in some time. Sums of it are never rounded.
struct Energy {
    double seconds = 0.0; ///< that were metered
    double outputKwh = 0.0;
    double wallKwh = 0.0; ///< taken from the mains
    double cost = 0.0;    ///< of wallKwh; money

    Energy &operator+=(const Energy &other);
    friend Energy operator+(Energy left, const Energy &right) { return left += right; }
    bool operator==(const Energy &) const = default;
};

/// One reading.
struct Load {
    double outputWatts = 0.0;
    std::optional<double> efficiencyPercent; ///< nothing while it is not known
};

/// Clock, readings and rate are passed in. Without a known efficiency (see mainsPower()) the wall counts as
/// the output: too little, and never an invention.
class EnergyMeter {
public:
    using Time = std::chrono::steady_clock::time_point;

    /// A fresh reading and the rate of its moment, money for a kWh; nothing for a moment without one. Watts
    /// below 0, or no number, are no reading. Gives what was used since the last reading: the mean of both
    /// over the time between them, and nothing across a gap.
    Energy add(const std::optional<Load> &load, double rate, Time now);

    /// What this reading uses in `duration`, for time that is simulated. add() knows nothing of it.
    Energy use(const std::optional<Load> &load, double rate, std::chrono::duration<double> duration);

    /// The latest reading had an efficiency. False before the first.
    [[nodiscard]] bool efficiencyKnown() const { return efficiencyKnown_; }

private:
    struct Power {
        double outputWatts = 0.0;
        double wallWatts = 0.0;
    };
    std::optional<Power> take(const std::optional<Load> &load);

    std::optional<Power> last_;
    Time lastTime_{};
    bool efficiencyKnown_ = false;
};

} // namespace zpsg::power
