#include "platform/ExitRequest.h"

#include "platform/linux/Log.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <QCoreApplication>
#include <QSocketNotifier>
#include <unistd.h>

namespace zpsg::platform {
namespace {

constexpr int kExitCodeOfSignals = 128; // plus the signal's number, as shells have it

// Shared with the signal handler, which may touch nothing else. The pipe stays open as long as the process.
std::array<int, 2> wakeUp{-1, -1};      // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)
std::atomic<bool> carryingOut{false};   // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)
std::atomic<bool> askedInPerson{false}; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)
static_assert(std::atomic<bool>::is_always_lock_free);

// A closing terminal or session sends several hangups, often together with a SIGTERM: only a repeated SIGINT
// or SIGTERM is somebody who has run out of patience.
extern "C" void requestExit(int signal) {
    if (signal != SIGHUP && askedInPerson.exchange(true)) {
        _exit(kExitCodeOfSignals + signal);
    }
    if (carryingOut.exchange(true)) {
        return;
    }
    const int savedErrno = errno;
    const char byte = 0;
    // It can't fail: the pipe is empty whenever nothing is being carried out.
    static_cast<void>(write(wakeUp[1], &byte, 1) == 1);
    errno = savedErrno;
}

bool isIgnored(int signal) {
    struct sigaction current {};
    return sigaction(signal, nullptr, &current) == 0 && current.sa_handler == SIG_IGN;
}

void install(int signal) {
    struct sigaction action {};
    action.sa_handler = requestExit;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    sigaction(signal, &action, nullptr);
}

} // namespace

void onExitRequest(std::function<void()> handler) {
    if (pipe2(wakeUp.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        qCWarning(lcPlatform, "exit requests end the program without saving: %s", std::strerror(errno));
        return;
    }
    auto *notifier = new QSocketNotifier(wakeUp[0], QSocketNotifier::Read, QCoreApplication::instance());
    QObject::connect(notifier, &QSocketNotifier::activated, notifier, [handler = std::move(handler)] {
        char byte = 0;
        if (read(wakeUp[0], &byte, 1) == 1) {
            handler();
            // In this order: a signal between the two must not leave askedInPerson set with nothing to carry
            // out.
            carryingOut = false;
            askedInPerson = false;
        }
    });
    install(SIGINT);
    install(SIGTERM);
    if (!isIgnored(SIGHUP)) { // nohup
        install(SIGHUP);
    }
}

} // namespace zpsg::platform
