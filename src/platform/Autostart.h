// Starting the program when the user signs in: a value of the registry Run key on Windows, a desktop entry in
// the user's autostart folder on Linux.
#pragma once

#include <string>

namespace zpsg::platform {

enum class Autostart {
    Off,
    Shown,  ///< `"<executable>"`
    Hidden, ///< `"<executable>" open`
};

/// Brings the entry in line: present and starting this command, or absent. Does nothing when it is so
/// already. False (and `error` in plain words) when the system refused. Paths are UTF-8.
bool setAutostart(Autostart mode, const std::string &executable, std::string &error);

/// Whether the entry is there now, whatever program it names.
bool autostartEnabled();

/// Whether it is there and starts this program, shown or hidden.
bool autostartStarts(const std::string &executable);

} // namespace zpsg::platform
