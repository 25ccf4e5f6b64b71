// The fan's keys in the settings files.
#pragma once

#include "app/Settings.h"
#include "fan/FanGovernor.h"

namespace zpsg::app {

/// Writes the custom speed of a first run with the mark that it is written.
void writeFanDefaultsOnce(Settings &settings);

// Whatever the file holds comes as a curve that can be driven.
[[nodiscard]] fan::FanCurve loadFanCurve(const Settings &settings);
bool saveFanCurve(Settings &settings, const fan::FanCurve &curve);
[[nodiscard]] fan::GovernorTuning loadGovernorTuning(const Settings &settings);

} // namespace zpsg::app
