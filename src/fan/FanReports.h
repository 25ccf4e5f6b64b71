// The reports that set the fan.
#pragma once

#include "fan/FanMode.h"
#include "psu/Reports.h"

#include <array>
#include <optional>

namespace zpsg::fan {

/// Selects a fixed mode on the main path; nothing for Custom, which has no mode command.
[[nodiscard]] constexpr std::optional<psu::Request> modeReport(FanMode mode) {
    const auto &row = kFanModes.at(static_cast<std::size_t>(mode));
    if (row.modeByte == 0) {
        return std::nullopt;
    }
    return psu::makeRequest({0x30, 0x41, row.modeByte});
}

/// Sets a custom speed on the main path; `percent` is clamped to what the supply takes.
[[nodiscard]] constexpr psu::Request speedReport(int percent) {
    return psu::makeRequest({0x30, 0x41, 0x04, static_cast<std::uint8_t>(fittedPercent(percent))});
}

/// Output report of the raw path: its id, then the mode's value.
using RawFanReport = std::array<std::uint8_t, 2>;
inline constexpr std::uint8_t kRawFanReport = 0x20;
[[nodiscard]] constexpr std::optional<RawFanReport> rawModeReport(FanMode mode) {
    const auto &row = kFanModes.at(static_cast<std::size_t>(mode));
    if (row.rawValue < 0) {
        return std::nullopt;
    }
    return RawFanReport{kRawFanReport, static_cast<std::uint8_t>(row.rawValue)};
}

} // namespace zpsg::fan
