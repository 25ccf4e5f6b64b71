// The lock behind a title: it decides who holds it, and the kernel drops it with the process.
#pragma once

#include "platform/linux/FileDescriptor.h"

#include <string>

namespace zpsg::platform {

/// Takes the lock file, made when missing and never removed. None when somebody else holds it (errno EAGAIN)
/// or the system refused (any other errno). Held until the descriptor is closed.
FileDescriptor takeTitleLock(const std::string &path);

/// Whether anybody holds the lock. Looking never takes it, so it can't make a simultaneous claim fail.
bool titleLockHeld(const std::string &path);

} // namespace zpsg::platform
