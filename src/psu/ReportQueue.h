// Reports whose replies nobody examines (fan and lighting), on their way to the device.
#pragma once

#include "psu/HidLink.h"

#include <chrono>
#include <cstdint>
#include <deque>
#include <memory>
#include <vector>

namespace zpsg::psu {

/// One report is under way at a time. While others wait, a report replaces the last one that waits when that
/// has the same command: of a slider that is dragged the device gets as many values as it can take, and the
/// last one always. One thread only.
class ReportQueue {
public:
    /// `link` outlives this.
    explicit ReportQueue(HidLink &link) : link_(link) {}

    /// An output report of the main path.
    void send(const Request &request);
    /// An output report of the raw path, id first.
    void sendRaw(std::vector<std::uint8_t> report);
    /// Hands the next report to the link when the last one is through. To be called when the link tells that
    /// a job has ended.
    void goOn();
    /// Forgets what waits: the device that it was meant for is gone.
    void clear();
    /// Waits at most `patience` until everything is sent; true when it is.
    bool waitSent(std::chrono::milliseconds patience);

private:
    struct Waiting {
        int command;
        std::shared_ptr<LinkJob> job;
    };
    void add(Waiting waiting);

    HidLink &link_;
    std::shared_ptr<LinkJob> underWay_;
    std::deque<Waiting> waiting_;
};

/// Sends frames from a thread of its own and paces it: a frame is one transaction, and none is queued while
/// the one before is not through.
class FrameSender {
public:
    /// `link` outlives this. `patience` bounds one call.
    FrameSender(HidLink &link, std::chrono::milliseconds patience) : link_(link), patience_(patience) {}

    /// True when the device took the frame, or there is none; false when it is taking longer than the caller
    /// may be held, or has not finished with an earlier frame, and this one is dropped.
    bool send(const Request &frame);

private:
    HidLink &link_;
    std::chrono::milliseconds patience_;
    std::shared_ptr<LinkJob> last_;
};

} // namespace zpsg::psu
