#include "platform/windows/RunCommand.h"

#include <algorithm>

namespace zpsg::platform {

std::wstring runCommand(std::wstring executable) {
    std::replace(executable.begin(), executable.end(), L'/', L'\\');
    return L'"' + executable + L"\" open"; // a path here holds no quotes: the file system has none
}

} // namespace zpsg::platform
