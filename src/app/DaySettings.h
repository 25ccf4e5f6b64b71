#pragma once

#include "power/DayProfile.h"

namespace zpsg::app {

class Settings;

/// Keeps the day's profile among the settings, which outlive what it is given to.
power::DayStorage dayStorage(Settings &settings);

} // namespace zpsg::app
