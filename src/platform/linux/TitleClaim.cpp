#include "platform/WindowRendezvous.h"

#include "platform/linux/Log.h"
#include "platform/linux/TitleLock.h"
#include "platform/linux/TitlePaths.h"
#include "platform/linux/TitleReceiver.h"
#include "platform/linux/TitleSocket.h"

#include <cerrno>
#include <cstring>

namespace zpsg::platform {
namespace {

class SocketTitleClaim final : public TitleClaim {
public:
    SocketTitleClaim(FileDescriptor lock, FileDescriptor listener, std::string socketPath)
        : lock_(std::move(lock)), listener_(std::move(listener)), socketPath_(std::move(socketPath)) {}

    // The socket goes before the lock does, so that it can't be the next holder's.
    ~SocketTitleClaim() override {
        receiver_.reset();
        unlink(socketPath_.c_str());
    }
    SocketTitleClaim(const SocketTitleClaim &) = delete;
    SocketTitleClaim &operator=(const SocketTitleClaim &) = delete;

    void deliverTo(MessageHandler handler) override {
        receiver_.reset();
        receiver_ = std::make_unique<TitleReceiver>(listener_.get(), std::move(handler));
    }

private:
    FileDescriptor lock_;
    FileDescriptor listener_; // queues messages in the kernel until there is a receiver
    std::string socketPath_;
    std::unique_ptr<TitleReceiver> receiver_;
};

} // namespace

std::unique_ptr<TitleClaim> TitleClaim::tryTake(const std::string &title) {
    auto paths = titlePaths(title);
    if (!paths) {
        qCWarning(lcPlatform, "no place for the title \"%s\": set XDG_RUNTIME_DIR to a directory of your own",
                  title.c_str());
        return nullptr;
    }
    FileDescriptor lock = takeTitleLock(paths->lock);
    if (!lock) {
        if (errno != EAGAIN) {
            qCWarning(lcPlatform, "%s: %s", paths->lock.c_str(), std::strerror(errno));
        }
        return nullptr;
    }
    FileDescriptor listener = listenAt(paths->socket);
    if (!listener) {
        qCWarning(lcPlatform, "%s: %s", paths->socket.c_str(), std::strerror(errno));
        return nullptr;
    }
    return std::make_unique<SocketTitleClaim>(std::move(lock), std::move(listener), std::move(paths->socket));
}

} // namespace zpsg::platform
