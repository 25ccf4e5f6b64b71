// The supply behind --demo: a simulated one whose load follows the day on the user's own clock.
#pragma once

#include "simulator/SimulatedBus.h"

#include <chrono>
#include <functional>

namespace zpsg::simulator {

/// Where a demo gets its time from.
using WallClock = std::function<std::chrono::system_clock::time_point()>;

/// A bus with a supply of this model plugged in. Time passes for it whenever a report reaches it.
std::shared_ptr<SimulatedBus> makeDemoBus(const std::string &modelText,
                                          WallClock clock = std::chrono::system_clock::now);

/// The model that --demo shows when none is named.
inline constexpr const char *kDemoModel = "CVX-1000-D";

} // namespace zpsg::simulator
