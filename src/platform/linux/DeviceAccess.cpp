#include "platform/DeviceAccess.h"

#include "platform/linux/DeviceRemedy.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <grp.h>
#include <pwd.h>
#include <unistd.h>

namespace zpsg::platform {
namespace {

constexpr const char *kRule = "/71-zpsg.rules";
constexpr const char *kTrigger = "sudo udevadm trigger --subsystem-match=hidraw";

/// Where udev(7) looks for rules.
const std::array<std::string, 5> &ruleFolders() {
    static const std::array<std::string, 5> folders{"/etc/udev/rules.d", "/run/udev/rules.d",
                                                    "/usr/local/lib/udev/rules.d", "/usr/lib/udev/rules.d",
                                                    "/lib/udev/rules.d"};
    return folders;
}

/// In single quotes nothing but the quote itself means anything to a shell.
std::string quoted(std::string text) {
    for (auto at = text.find('\''); at != std::string::npos; at = text.find('\'', at + 4)) {
        text.replace(at, 1, "'\\''");
    }
    return '\'' + text + '\'';
}

// Large enough for an entry of any sane size; a larger one is as good as none.
using EntryBuffer = std::array<char, 16384>;

/// Empty when the account has no name.
std::string userName() {
    EntryBuffer buffer{};
    passwd entry{};
    passwd *found = nullptr;
    return getpwuid_r(geteuid(), &entry, buffer.data(), buffer.size(), &found) == 0 && found != nullptr
               ? entry.pw_name
               : std::string();
}

bool groupExists(const char *name) {
    EntryBuffer buffer{};
    group entry{};
    group *found = nullptr;
    return getgrnam_r(name, &entry, buffer.data(), buffer.size(), &found) == 0 && found != nullptr;
}

} // namespace

DeviceAccess deviceAccess(const std::string &path) {
    if (access(path.c_str(), R_OK | W_OK) == 0) {
        return DeviceAccess::Allowed;
    }
    const bool gone = errno == ENOENT || errno == ENOTDIR || errno == ENODEV || errno == ENXIO;
    return gone ? DeviceAccess::Missing : DeviceAccess::Denied;
}

std::string deviceAccessRemedy(const std::string &resourceDir, std::span<const std::string> ruleFolders,
                               const std::string &user, const std::string &group) {
    const bool inForce = std::ranges::any_of(
        ruleFolders, [](const std::string &folder) { return access((folder + kRule).c_str(), F_OK) == 0; });
    if (!inForce) {
        return "sudo cp " + quoted(resourceDir + kRule) +
               " /etc/udev/rules.d/ && sudo udevadm control --reload && " + kTrigger;
    }
    if (user.empty() || group.empty()) {
        return kTrigger;
    }
    return std::string(kTrigger) + " && sudo usermod -aG " + group + ' ' + quoted(user) +
           " && echo 'Now sign out and in again.'";
}

std::string deviceAccessRemedy(const std::string &resourceDir) {
    constexpr const char *kGroup = "plugdev"; // as in the rule
    return deviceAccessRemedy(resourceDir, ruleFolders(), userName(), groupExists(kGroup) ? kGroup : "");
}

} // namespace zpsg::platform
