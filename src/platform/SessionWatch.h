// Notice of the user's session being locked and of the PC going to sleep.
#pragma once

#include <functional>
#include <memory>

namespace zpsg::platform {

enum class SessionEvent { Locked, Unlocked, GoingToSleep, Resumed };

class SessionWatch {
public:
    virtual ~SessionWatch() = default;
    SessionWatch(const SessionWatch &) = delete;
    SessionWatch &operator=(const SessionWatch &) = delete;

    /// `handler` runs on the calling thread's event loop. The system waits with going to sleep until it has
    /// returned (a second at most). Never null; where the system tells nothing, nothing is called.
    static std::unique_ptr<SessionWatch> start(std::function<void(SessionEvent)> handler);

protected:
    SessionWatch() = default;
};

} // namespace zpsg::platform
