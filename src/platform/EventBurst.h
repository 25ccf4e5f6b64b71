// Folds a burst of events into one notification.
#pragma once

#include <chrono>
#include <optional>

namespace zpsg::platform {

/// One plugged device makes a dozen events within a few milliseconds, and a hub full of them keeps going for
/// longer. The notification is due once the events have paused for kQuiet, or kLimit after the first of them,
/// whichever comes first.
class EventBurst {
public:
    using Clock = std::chrono::steady_clock;
    static constexpr std::chrono::milliseconds kQuiet{150};
    static constexpr std::chrono::milliseconds kLimit{500};

    /// An event came at `now`. Gives how long after `now` the notification is due, unless more events come;
    /// never negative.
    std::chrono::milliseconds note(Clock::time_point now);

    /// The notification was given: the next event begins a new burst.
    void told() { first_.reset(); }

private:
    std::optional<Clock::time_point> first_;
};

} // namespace zpsg::platform
