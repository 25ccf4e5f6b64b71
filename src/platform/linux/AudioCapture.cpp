#include "platform/AudioCapture.h"

#include "platform/AudioFeed.h"
#include "platform/linux/PulseRecorder.h"

#include <condition_variable>
#include <mutex>
#include <thread>

namespace zpsg::platform {
namespace {

class PulseCapture final : public AudioCapture {
public:
    explicit PulseCapture(AudioListener listener)
        : feed_(std::move(listener)), thread_([this] { capture(); }) {}
    ~PulseCapture() override {
        {
            const std::scoped_lock lock(mutex_);
            stop_ = true;
            if (recorder_ != nullptr) {
                recorder_->wake();
            }
        }
        stopped_.notify_one();
        thread_.join();
    }
    PulseCapture(const PulseCapture &) = delete;
    PulseCapture &operator=(const PulseCapture &) = delete;

private:
    void capture() {
        const PulseLibrary *pulse = PulseLibrary::load();
        if (pulse == nullptr) {
            feed_.tell(AudioState::NoDevice);
            return;
        }
        while (!stop_) {
            if (record(*pulse) == PulseRecorder::End::Lost) {
                feed_.tell(AudioState::NoDevice);
                std::unique_lock lock(mutex_);
                stopped_.wait_for(lock, kAudioRetry, [this] { return stop_.load(); });
            }
        }
    }

    PulseRecorder::End record(const PulseLibrary &pulse) {
        PulseRecorder recorder(pulse, feed_);
        reachable(&recorder);
        const PulseRecorder::End end = recorder.run(stop_);
        reachable(nullptr);
        return end;
    }

    void reachable(const PulseRecorder *recorder) {
        const std::scoped_lock lock(mutex_);
        recorder_ = recorder;
    }

    AudioFeed feed_; // the thread's
    std::mutex mutex_;
    std::condition_variable stopped_;
    std::atomic<bool> stop_{false};
    const PulseRecorder *recorder_ = nullptr; // the thread's own, while it can be woken
    std::thread thread_;                      // last: it uses the others
};

} // namespace

std::unique_ptr<AudioCapture> AudioCapture::start(AudioListener listener) {
    return std::make_unique<PulseCapture>(std::move(listener));
}

} // namespace zpsg::platform
