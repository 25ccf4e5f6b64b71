// The fan's modes as data.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace zpsg::fan {

/// The index that selectors and settings carry.
enum class FanMode { Silent = 0, Performance = 1, ZeroFan = 2, Custom = 3 };

struct FanModeRow {
    FanMode mode;
    const char *objectName; ///< of its button; selectors find the pressed one by it
    const char *textKey;    ///< translation key, or null for a name that is shown as it stands
    const char *name;
    std::uint8_t modeByte; ///< of the main path's report; 0: none, the speed command does it
    int rawValue;          ///< of the raw path's report; -1: none
};

/// In the order of the index. "btnSlient" is spelled as it has always been: other programs look for it.
inline constexpr std::array kFanModes{
    FanModeRow{FanMode::Silent, "btnSlient", "MAIN_STR_FAN_SILENT", "Silent", 0x01, 1},
    FanModeRow{FanMode::Performance, "btnPerformance", "MAIN_STR_FAN_PERFORMANCE", "Performance", 0x02, 0},
    FanModeRow{FanMode::ZeroFan, "btnZeroFan", "MAIN_STR_ZERO_FAN", "Zero Fan", 0x03, 2},
    FanModeRow{FanMode::Custom, "btnCustom", nullptr, "Custom", 0x00, -1},
};

constexpr bool modesAreInOrder() {
    for (std::size_t i = 0; i < kFanModes.size(); ++i) {
        if (kFanModes[i].mode != static_cast<FanMode>(i)) {
            return false;
        }
    }
    return true;
}
static_assert(modesAreInOrder());

// A custom speed, percent of the fan's full speed.
inline constexpr int kLeastPercent = 30;
inline constexpr int kMostPercent = 100;
inline constexpr int kFirstPercent = 60; ///< until one is chosen

constexpr int fittedPercent(int percent) { return std::clamp(percent, kLeastPercent, kMostPercent); }

/// Revolutions a minute at 100 %, when the model's data sheet says nothing else.
inline constexpr float kFullRpm = 2250.0F;

} // namespace zpsg::fan
