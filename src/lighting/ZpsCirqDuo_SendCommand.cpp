#include "lighting/ZpsCirqDuo_SendCommand.h"

#include <algorithm>

namespace zpsg::lighting {

using namespace std::chrono_literals;

namespace {

/// A frame that took longer than its own time is followed by this many times as long a rest, so that a slow
/// or silent supply gives at most a tenth of its time to the lights.
constexpr int kRest = 9;
constexpr auto kSlow = std::chrono::milliseconds(kFrameMilliseconds);
/// After a frame that was not taken at all.
constexpr auto kLongRest = 10s;
constexpr int kOverlaySteps = 1 << 20; // some half a day

} // namespace

ZpsCirqDuo_SendCommand::ZpsCirqDuo_SendCommand(SendFrame sendFrame, Now now, QObject *parent)
    : QThread(parent), sendFrame_(std::move(sendFrame)), now_(std::move(now)) {}

ZpsCirqDuo_SendCommand::~ZpsCirqDuo_SendCommand() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    end_.notify_all();
    wait();
    const std::lock_guard lock(mutex_); // see run()
}

void ZpsCirqDuo_SendCommand::setState(const DuoState &state) {
    const std::lock_guard lock(mutex_);
    state_ = state;
    restUntil_ = {};
}

void ZpsCirqDuo_SendCommand::setCelsius(std::optional<float> celsius) {
    const std::lock_guard lock(mutex_);
    surroundings_.celsius = celsius;
}

void ZpsCirqDuo_SendCommand::setOverlay(const Overlay &overlay) {
    const std::lock_guard lock(mutex_);
    surroundings_.overlay = overlay;
}

void ZpsCirqDuo_SendCommand::setSoundSource(std::function<Sound()> source) {
    const std::lock_guard lock(mutex_);
    soundSource_ = std::move(source);
}

void ZpsCirqDuo_SendCommand::showFrame(const DuoLeds &leds) {
    const auto until = now_() + kFrameLasts;
    const std::lock_guard lock(mutex_);
    frame_ = leds;
    frameUntil_ = until;
}

DuoLeds ZpsCirqDuo_SendCommand::shown() const {
    const std::lock_guard lock(mutex_);
    return shown_;
}

void ZpsCirqDuo_SendCommand::run() {
    // The clock itself: an event loop with a timer costs more than twice as much, day and night.
    using Clock = std::chrono::steady_clock;
    std::unique_lock lock(
        mutex_); // at the end it hands what this thread used over to whoever destroys it, visibly
    auto due = Clock::now();
    for (;;) {
        due = std::max(due + kSlow, Clock::now()); // what was missed is not made up for
        if (end_.wait_until(lock, due, [this] { return ending_; })) {
            return;
        }
        lock.unlock();
        runEffect();
        lock.lock();
    }
}

void ZpsCirqDuo_SendCommand::runEffect() {
    const auto begin = now_();
    const auto leds = nextFrame(begin);
    if (!leds) {
        return;
    }
    const bool sent = sendFrame_(duoFrame(*leds, DuoLayout::EachSlot));
    const auto end = now_();
    const auto taken = end - begin;
    const std::lock_guard lock(mutex_);
    if (!sent || taken > kSlow) {
        restUntil_ = end + (sent ? kRest * taken : kLongRest);
    }
    shown_ = *leds;
}

std::optional<DuoLeds> ZpsCirqDuo_SendCommand::nextFrame(std::chrono::steady_clock::time_point now) {
    step_ = (step_ + 1) % kEffectSteps;
    overlayStep_ = (overlayStep_ + 1) % kOverlaySteps;
    const std::lock_guard lock(mutex_);
    if (now < restUntil_) {
        return std::nullopt;
    }
    if (now < frameUntil_ && state_.on && surroundings_.overlay.kind == Overlay::Kind::None) {
        return frame_;
    }
    surroundings_.sound = soundSource_ && needsSound(state_) ? soundSource_() : Sound{};
    return duoLeds(state_, surroundings_, step_, overlayStep_);
}

} // namespace zpsg::lighting
