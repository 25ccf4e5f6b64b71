// Whether this user may open a device that the system lists.
#pragma once

#include <string>

namespace zpsg::platform {

enum class DeviceAccess {
    Allowed,
    Denied,  ///< it is there, but the user lacks the permission
    Missing, ///< it is gone
};

/// `path` is the device path that the enumeration gave (a /dev node on Linux). Where the system keeps no
/// permissions on device interfaces the answer is Allowed.
DeviceAccess deviceAccess(const std::string &path);

/// What the user does about Denied, as one shell command; empty where it can't happen. `resourceDir` is the
/// folder of what ships with the program: the rule that grants access stands in it, unless a package has put
/// it in force already.
std::string deviceAccessRemedy(const std::string &resourceDir);

} // namespace zpsg::platform
