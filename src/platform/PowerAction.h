// Ending or pausing the PC's work.
#pragma once

#include <string>

namespace zpsg::platform {

enum class PowerAction { Shutdown, Restart, Sleep };

/// Asks the system, which asks nobody in return and may let other programs delay it. Takes 200 ms at most: a
/// system that has the request by then and hasn't refused it counts as willing. False (and `error` in plain
/// words) when it refused or can't be asked.
bool requestPower(PowerAction action, std::string &error);

} // namespace zpsg::platform
