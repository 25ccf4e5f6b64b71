// The two ends of a title's socket. Every descriptor here is non-blocking and closed on exec.
#pragma once

#include "platform/linux/FileDescriptor.h"

#include <string>

namespace zpsg::platform {

/// Binds and listens, replacing whatever a dead holder left at `path`: only for who holds the title's lock.
/// None when the system refused (errno).
FileDescriptor listenAt(const std::string &path);

/// Connects. None on failure: errno ENOENT or ECONNREFUSED when nobody listens, EAGAIN when the holder's
/// queue is full.
FileDescriptor connectTo(const std::string &path);

} // namespace zpsg::platform
