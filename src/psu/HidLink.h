// The thread that owns the supply's handle. Every exchange is a job on it, so exchanges from any number of
// callers are serialised, each write with its read; and nobody who waits is held longer than it wants to be,
// whatever the device does.
#pragma once

#include "psu/HidPort.h"

#include <chrono>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

namespace zpsg::psu {

/// A piece of work on the port. Made by a caller, run by the link; results are read after wait().
class LinkJob {
public:
    virtual ~LinkJob() = default;
    LinkJob(const LinkJob &) = delete;
    LinkJob &operator=(const LinkJob &) = delete;

protected:
    LinkJob() = default;

    /// Does one step on the link's thread; true when the job is finished. Between two steps other jobs get
    /// their turn, so a step is one exchange.
    virtual bool step(HidPort &port) = 0;

private:
    friend class HidLink;
    bool finished_ = false; // guarded by the link
    bool watched_ = false;  // somebody gave up waiting and wants to be told
};

/// Opens the supply.
class ConnectJob : public LinkJob {
public:
    explicit ConnectJob(OpenOrder order) : order_(order) {}
    /// Valid once finished.
    [[nodiscard]] const Connected &result() const { return result_; }

private:
    bool step(HidPort &port) override;
    OpenOrder order_;
    Connected result_;
};

/// Asks one question after the other and keeps the answers; ends early when one is not answered.
class ExchangeJob : public LinkJob {
public:
    explicit ExchangeJob(std::vector<Request> requests) : requests_(std::move(requests)) {}
    /// Valid once finished: the answers so far, in the order of the questions.
    [[nodiscard]] const std::vector<Reply> &replies() const { return replies_; }
    /// Valid once finished: the device was lost on the way.
    [[nodiscard]] bool lost() const { return lost_; }

private:
    bool step(HidPort &port) override;
    std::vector<Request> requests_;
    std::vector<Reply> replies_;
    bool lost_ = false;
};

/// Fetches one input report of the raw device.
class RawReadJob : public LinkJob {
public:
    RawReadJob(std::uint8_t id, std::size_t size) : report_(size) { report_.at(0) = id; }
    /// Valid once finished.
    [[nodiscard]] bool succeeded() const { return succeeded_; }
    /// The whole report, id first.
    [[nodiscard]] const std::vector<std::uint8_t> &report() const { return report_; }

private:
    bool step(HidPort &port) override;
    std::vector<std::uint8_t> report_;
    bool succeeded_ = false;
};

/// Hands one output report to the raw device.
class RawWriteJob : public LinkJob {
public:
    explicit RawWriteJob(std::vector<std::uint8_t> report) : report_(std::move(report)) {}
    /// Valid once finished.
    [[nodiscard]] bool succeeded() const { return succeeded_; }

private:
    bool step(HidPort &port) override;
    std::vector<std::uint8_t> report_;
    bool succeeded_ = false;
};

class HidLink {
public:
    explicit HidLink(std::unique_ptr<HidBackend> backend, PortTiming timing = {});
    /// Ends the thread. One that sits in a device call which does not return is left to itself: it keeps what
    /// it uses and ends with that call or with the process.
    ~HidLink();
    HidLink(const HidLink &) = delete;
    HidLink &operator=(const HidLink &) = delete;

    /// Queues a job; never blocks. A job is submitted once.
    void submit(const std::shared_ptr<LinkJob> &job);

    /// Waits at most `patience` for the job to finish; true when it has. A job that is not finished by then
    /// goes on, and onLateFinish is called when it ends. Any thread.
    bool wait(const std::shared_ptr<LinkJob> &job, std::chrono::milliseconds patience);

    /// Whether the job has finished. Any thread.
    [[nodiscard]] bool finished(const LinkJob &job) const;

    /// Called on the link's thread when a job ends that somebody had stopped waiting for. Set before the
    /// first job.
    void onLateFinish(std::function<void()> callback);

private:
    struct Core;
    static void run(const std::shared_ptr<Core> &core);
    std::shared_ptr<Core> core_;
    std::thread thread_;
};

} // namespace zpsg::psu
