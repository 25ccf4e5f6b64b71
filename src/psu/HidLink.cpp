#include "psu/HidLink.h"

#include <condition_variable>
#include <deque>
#include <mutex>

namespace zpsg::psu {

using namespace std::chrono_literals;

/// What the thread and its owner share; the thread keeps it alive when it has to be left behind.
struct HidLink::Core {
    Core(std::unique_ptr<HidBackend> backend, PortTiming timing) : port(std::move(backend), timing) {}

    HidPort port; // the link's thread only, but for stop()
    std::mutex mutex;
    std::condition_variable work;
    std::condition_variable done;
    std::deque<std::shared_ptr<LinkJob>> queue;
    std::function<void()> lateFinish;
    bool stopping = false;
    bool ended = false;
};

bool ConnectJob::step(HidPort &port) {
    result_ = port.connect(order_);
    return true;
}

bool ExchangeJob::step(HidPort &port) {
    if (replies_.size() < requests_.size()) {
        const auto reply = port.exchange(requests_[replies_.size()]);
        if (!reply) {
            lost_ = port.lost();
            return true;
        }
        replies_.push_back(*reply);
    }
    return replies_.size() == requests_.size();
}

bool RawReadJob::step(HidPort &port) {
    succeeded_ = port.readRaw(report_);
    return true;
}

bool RawWriteJob::step(HidPort &port) {
    succeeded_ = port.writeRaw(report_);
    return true;
}

HidLink::HidLink(std::unique_ptr<HidBackend> backend, PortTiming timing)
    : core_(std::make_shared<Core>(std::move(backend), timing)), thread_([core = core_] { run(core); }) {}

HidLink::~HidLink() {
    constexpr auto kPatience = 500ms;
    core_->port.stop();
    std::unique_lock lock(core_->mutex);
    core_->stopping = true;
    core_->lateFinish = nullptr;
    core_->work.notify_all();
    const bool ended = core_->done.wait_for(lock, kPatience, [this] { return core_->ended; });
    lock.unlock();
    if (ended) {
        thread_.join();
    } else {
        thread_.detach();
    }
}

void HidLink::submit(const std::shared_ptr<LinkJob> &job) {
    {
        const std::lock_guard lock(core_->mutex);
        core_->queue.push_back(job);
    }
    core_->work.notify_one(); // a thread that wakes to a lock that is held goes to sleep once more
}

bool HidLink::wait(const std::shared_ptr<LinkJob> &job, std::chrono::milliseconds patience) {
    std::unique_lock lock(core_->mutex);
    core_->done.wait_for(lock, patience, [&] { return job->finished_; });
    job->watched_ = !job->finished_;
    return job->finished_;
}

bool HidLink::finished(const LinkJob &job) const {
    const std::lock_guard lock(core_->mutex);
    return job.finished_;
}

void HidLink::onLateFinish(std::function<void()> callback) {
    const std::lock_guard lock(core_->mutex);
    core_->lateFinish = std::move(callback);
}

void HidLink::run(const std::shared_ptr<Core> &core) {
    std::unique_lock lock(core->mutex);
    while (true) {
        core->work.wait(lock, [&] { return core->stopping || !core->queue.empty(); });
        if (core->stopping) {
            break;
        }
        const auto job = core->queue.front();
        core->queue.pop_front();
        lock.unlock();
        const bool finished = job->step(core->port);
        lock.lock();
        if (!finished) {
            core->queue.push_back(job);
            continue;
        }
        job->finished_ = true;
        if (job->watched_ && core->lateFinish) {
            core->lateFinish();
        }
        lock.unlock();
        core->done.notify_all();
        lock.lock();
    }
    core->queue.clear();
    core->ended = true;
    core->done.notify_all();
}

} // namespace zpsg::psu
