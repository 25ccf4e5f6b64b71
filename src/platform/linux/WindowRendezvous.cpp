#include "platform/WindowRendezvous.h"

#include "platform/linux/Log.h"
#include "platform/linux/TitleLock.h"
#include "platform/linux/TitleMessage.h"
#include "platform/linux/TitlePaths.h"
#include "platform/linux/TitleSocket.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <thread>

namespace zpsg::platform {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

// How often to look again for a holder that is still starting, or whose queue is full.
constexpr milliseconds kRetryInterval{10};
// Keeps the arithmetic with the clock within its range.
constexpr milliseconds kLongestPatience = std::chrono::hours(1);

milliseconds until(Clock::time_point deadline) {
    return std::max(std::chrono::ceil<milliseconds>(deadline - Clock::now()), milliseconds::zero());
}

// A program that only binds the socket counts as well as one that holds the lock.
bool exists(const TitlePaths &paths) {
    return titleLockHeld(paths.lock) || connectTo(paths.socket) || errno == EAGAIN;
}

bool waitForAnswer(int socket, Clock::time_point deadline) {
    for (;;) {
        pollfd waiting{socket, POLLIN, 0};
        const int ready = poll(&waiting, 1, static_cast<int>(until(deadline).count()));
        if (ready >= 0 || errno != EINTR) {
            return ready > 0;
        }
    }
}

enum class Answer { Handled, NotHandled, Late, Closed };

Answer ask(int socket, const WindowMessage &message, Clock::time_point deadline) {
    const TitleMessageBytes bytes = encodeTitleMessage(message);
    // A fresh connection has room for the whole message; the holder may have died already.
    if (send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL) != static_cast<ssize_t>(bytes.size())) {
        return Answer::Closed;
    }
    if (!waitForAnswer(socket, deadline)) {
        return Answer::Late;
    }
    std::uint8_t answer = kAnswerNotHandled;
    if (recv(socket, &answer, sizeof(answer), 0) != sizeof(answer)) {
        return Answer::Closed;
    }
    return answer == kAnswerHandled ? Answer::Handled : Answer::NotHandled;
}

} // namespace

bool windowExists(const std::string &title) {
    const auto paths = titlePaths(title);
    return paths && exists(*paths);
}

Delivery sendToWindow(const std::string &title, const WindowMessage &message, milliseconds patience) {
    const auto deadline = Clock::now() + std::clamp(patience, milliseconds::zero(), kLongestPatience);
    const auto paths = titlePaths(title);
    if (!paths) {
        return Delivery::NoWindow;
    }
    for (;;) {
        const FileDescriptor socket = connectTo(paths->socket);
        if (socket) {
            switch (ask(socket.get(), message, deadline)) {
            case Answer::Handled:
                return Delivery::Handled;
            case Answer::NotHandled:
                return Delivery::NotHandled;
            case Answer::Late:
                return Delivery::NoAnswer;
            case Answer::Closed:
                return exists(*paths) ? Delivery::NoAnswer : Delivery::NoWindow;
            }
        }
        const int reason = errno;
        if (reason != EAGAIN && !titleLockHeld(paths->lock)) {
            qCDebug(lcPlatform, "no window \"%s\": %s", title.c_str(), std::strerror(reason));
            return Delivery::NoWindow;
        }
        const milliseconds left = until(deadline);
        if (left == milliseconds::zero()) {
            return Delivery::NoAnswer;
        }
        std::this_thread::sleep_for(std::min(left, kRetryInterval));
    }
}

} // namespace zpsg::platform
