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

std::string deviceAccessRemedy() {
    return "sudo cp 71-zpsg.rules /etc/udev/rules.d/ && sudo udevadm control --reload && "
           "sudo udevadm trigger --subsystem-match=hidraw";
}

} // namespace zpsg::platform
