// Decides what speed a fan curve asks for, now: calmly, and never at the cost of the supply.
#pragma once

#include "fan/FanCurve.h"

#include <chrono>
#include <optional>

namespace zpsg::fan {

/// How calm the curve is driven.
struct GovernorTuning {
    /// Of the source (degrees Celsius, percent of load): how far it has to fall before the fan slows down.
    int hysteresis = 3;
    /// Between two changes.
    int minSeconds = 10;
};

/// Ranges of the tuning.
inline constexpr int kMostHysteresis = 15;
inline constexpr int kLeastMinSeconds = 2;
inline constexpr int kMostMinSeconds = 120;

/// Without a temperature for this long the supply is left to itself.
inline constexpr std::chrono::seconds kBlindTime{10};
/// Above this temperature, degrees Celsius, as well; it is the limit of the temperature alarm. The curve
/// comes back when it is cooler by kCoolDown.
inline constexpr double kLimitCelsius = 60.0;
inline constexpr double kCoolDown = 5.0;

enum class Governing {
    Driving,   ///< the curve sets the speed
    NoReading, ///< no temperature: the supply's own mode
    TooHot,    ///< above the limit: the supply's own mode
};

/// One step of the governor. Clock and readings are passed in; it sends nothing itself.
class FanGovernor {
public:
    using Time = std::chrono::steady_clock::time_point;

    struct Reading {
        std::optional<double> celsius;
        std::optional<double> loadPercent;
    };

    struct Decision {
        Governing governing = Governing::NoReading;
        int percent = 0;      ///< while Driving: the speed that holds
        bool changed = false; ///< it has to be sent; or the supply's own mode, when not Driving
    };

    /// Begins anew: the first reading is followed at once.
    void start(Time now);
    void setCurve(const FanCurve &curve, GovernorTuning tuning);
    /// Once a second. `reading` is empty where nothing fresh was read.
    Decision tick(const Reading &reading, Time now);

private:
    [[nodiscard]] int wanted(double at);
    Decision stepBack(Governing why);

    FanCurve curve_;
    GovernorTuning tuning_;
    Governing governing_ = Governing::NoReading;
    bool told_ = false;          ///< the supply has its own mode because of governing_
    std::optional<int> percent_; ///< what was sent last
    std::optional<double> high_; ///< what the speed follows: rises at once, falls by the hysteresis
    Time lastReading_{};
    Time lastChange_{};
};

} // namespace zpsg::fan
