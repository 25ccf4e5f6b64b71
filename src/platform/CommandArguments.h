// The program's arguments, where main() does not get them whole.
#pragma once

#include <string>
#include <vector>

namespace zpsg::platform {

/// What follows the program's name, as UTF-16. On Windows main() gets them in the language's own 8-bit
/// characters, in which a path need not be expressible. Empty elsewhere: there main()'s are the ones.
std::vector<std::u16string> unicodeArguments();

} // namespace zpsg::platform
