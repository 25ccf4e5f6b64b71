#include "platform/linux/TitleSocket.h"

#include <cerrno>
#include <cstring>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

namespace zpsg::platform {
namespace {

// Room for the second instances and notices that come while the holder starts or is busy.
constexpr int kQueueLength = 128;

FileDescriptor newSocket() {
    return FileDescriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
}

bool setAddress(sockaddr_un &address, const std::string &path) {
    if (path.size() >= sizeof(address.sun_path)) {
        errno = ENAMETOOLONG;
        return false;
    }
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
    return true;
}

// sockaddr is what the calls take for every family.
const sockaddr *generic(const sockaddr_un &address) { return reinterpret_cast<const sockaddr *>(&address); }

FileDescriptor failed(FileDescriptor &&socket) {
    const int reason = errno;
    const FileDescriptor closed = std::move(socket);
    static_cast<void>(closed);
    errno = reason;
    return FileDescriptor();
}

} // namespace

FileDescriptor listenAt(const std::string &path) {
    sockaddr_un address{};
    FileDescriptor listener = newSocket();
    if (!listener || !setAddress(address, path)) {
        return failed(std::move(listener));
    }
    unlink(path.c_str());
    if (bind(listener.get(), generic(address), sizeof(address)) != 0 ||
        listen(listener.get(), kQueueLength) != 0) {
        return failed(std::move(listener));
    }
    chmod(path.c_str(), S_ISVTX | S_IRUSR | S_IWUSR); // sticky: see the lock file
    return listener;
}

FileDescriptor connectTo(const std::string &path) {
    sockaddr_un address{};
    FileDescriptor socket = newSocket();
    if (!socket || !setAddress(address, path) ||
        connect(socket.get(), generic(address), sizeof(address)) != 0) {
        return failed(std::move(socket));
    }
    return socket;
}

} // namespace zpsg::platform
