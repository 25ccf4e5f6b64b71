// A clock that runs faster than time, for a demo of days in minutes. It goes on in whole minutes and only
// when it is told to, so that what is recorded against it can be checked to the minute.
#pragma once

#include <QDateTime>

#include <atomic>
#include <chrono>

namespace zpsg::simulator {

/// Any thread.
class FastClock {
public:
    explicit FastClock(const QDateTime &start) : ms_(start.toMSecsSinceEpoch()) {}

    [[nodiscard]] QDateTime now() const { return QDateTime::fromMSecsSinceEpoch(ms_); }
    [[nodiscard]] std::chrono::system_clock::time_point timePoint() const {
        return std::chrono::system_clock::time_point(std::chrono::milliseconds(ms_));
    }
    void passMinute() { ms_ += std::chrono::milliseconds(std::chrono::minutes(1)).count(); }

private:
    std::atomic<qint64> ms_; ///< since the epoch
};

} // namespace zpsg::simulator
