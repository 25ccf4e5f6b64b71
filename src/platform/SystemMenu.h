// The system menu of a top-level window.
#pragma once

#include <string>

namespace zpsg::platform {

/// Deletes Close (0xF060) and Maximize (0xF030) from the system menu of the window titled `title` and redraws
/// its menu bar. False when there is no such window or it has no system menu (always so off Windows).
bool trimSystemMenu(const std::string &title);

} // namespace zpsg::platform
