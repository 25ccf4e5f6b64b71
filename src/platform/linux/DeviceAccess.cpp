#include "platform/DeviceAccess.h"

#include <cerrno>
#include <unistd.h>

namespace zpsg::platform {

DeviceAccess deviceAccess(const std::string &path) {
    if (access(path.c_str(), R_OK | W_OK) == 0) {
        return DeviceAccess::Allowed;
    }
    const bool gone = errno == ENOENT || errno == ENOTDIR || errno == ENODEV || errno == ENXIO;
    return gone ? DeviceAccess::Missing : DeviceAccess::Denied;
}

std::string deviceAccessRemedy(const std::string &resourceDir) {
    // In single quotes nothing but the quote itself means anything to a shell.
    std::string file = resourceDir + "/71-zpsg.rules";
    for (auto at = file.find('\''); at != std::string::npos; at = file.find('\'', at + 4)) {
        file.replace(at, 1, "'\\''");
    }
    return "sudo cp '" + file +
           "' /etc/udev/rules.d/ && sudo udevadm control --reload && "
           "sudo udevadm trigger --subsystem-match=hidraw";
}

} // namespace zpsg::platform
