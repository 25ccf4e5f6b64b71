// The autostart desktop entry as text.
#pragma once

#include <string>

namespace zpsg::platform {

/// The Exec value that starts `"<executable>"`, with the argument "open" when it is to come up hidden, quoted
/// and escaped by the rules for desktop entries.
std::string execValue(const std::string &executable, bool hidden);

/// A whole entry with this Exec value.
std::string desktopEntry(const std::string &exec);

/// Whether the entry's main group takes effect: it is there and neither the user nor the desktop has marked
/// it as switched off.
bool entryInEffect(const std::string &entry);

/// Whether the entry takes effect and has this Exec value. Whatever else the user added to it doesn't matter.
bool entryStarts(const std::string &entry, const std::string &exec);

} // namespace zpsg::platform
