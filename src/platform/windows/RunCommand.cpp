#include "platform/windows/RunCommand.h"

#include <algorithm>

namespace zpsg::platform {

std::wstring runCommand(std::wstring executable, bool hidden) {
    std::replace(executable.begin(), executable.end(), L'/', L'\\');
    // A path here holds no quotes: the file system has none.
    return L'"' + executable + (hidden ? L"\" open" : L"\"");
}

} // namespace zpsg::platform
