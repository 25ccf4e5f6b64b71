// The command that lets a user open the device, by what is there already.
#pragma once

#include <span>
#include <string>

namespace zpsg::platform {

/// While no folder of `ruleFolders` holds the rule, it is copied from `resourceDir`. Where it is in force,
/// `user` lacks the seat that it asks for, and the group that it names is another way; without such a group
/// the rule is applied once more.
std::string deviceAccessRemedy(const std::string &resourceDir, std::span<const std::string> ruleFolders,
                               const std::string &user, const std::string &group);

} // namespace zpsg::platform
