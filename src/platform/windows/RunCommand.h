#pragma once

#include <string>

namespace zpsg::platform {

/// The command line `"<executable>" open` for the registry's Run key, with backslashes whichever way the path
/// was written.
std::wstring runCommand(std::wstring executable);

} // namespace zpsg::platform
