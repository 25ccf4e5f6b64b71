#pragma once

#include <string>

namespace zpsg::platform {

/// The command line `"<executable>"` for the registry's Run key, with the argument "open" when it is to come
/// up hidden, and with backslashes whichever way the path was written.
std::wstring runCommand(std::wstring executable, bool hidden);

} // namespace zpsg::platform
