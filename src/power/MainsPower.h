// What a supply takes from the mains, by its output and its efficiency.
#pragma once

#include <optional>

namespace zpsg::power {

struct MainsPower {
    double inputWatts; ///< taken from the wall
    double heatWatts;  ///< of it, what does not come out again
};

/// Nothing unless both are known and the efficiency is above 0 and at most 100 percent.
[[nodiscard]] constexpr std::optional<MainsPower> mainsPower(std::optional<double> outputWatts,
                                                             std::optional<double> efficiencyPercent) {
    if (!outputWatts || !efficiencyPercent || !(*efficiencyPercent > 0.0) || *efficiencyPercent > 100.0) {
        return std::nullopt;
    }
    const double input = *outputWatts * 100.0 / *efficiencyPercent;
    return MainsPower{input, input - *outputWatts};
}

} // namespace zpsg::power
