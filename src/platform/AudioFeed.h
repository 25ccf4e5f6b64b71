// What the captures of both systems have in common: how they tell their listener.
#pragma once

#include "platform/AudioCapture.h"

#include <array>
#include <chrono>

namespace zpsg::platform {

/// How long until the output is looked for again.
inline constexpr std::chrono::seconds kAudioRetry{3};

/// Tells each state once, and ends what was heard with silence: a system that has nothing to play hands on no
/// samples at all, and what was heard last must not seem to go on. One thread at a time.
class AudioFeed {
public:
    using Clock = std::chrono::steady_clock;
    /// Without samples for that long, nothing plays.
    static constexpr std::chrono::milliseconds kPause{200};
    static constexpr std::chrono::milliseconds kSlice{50}; ///< of the silence
    static constexpr int kSlices = 20;

    explicit AudioFeed(AudioListener listener) : listener_(std::move(listener)) {}

    void tell(AudioState state) {
        if (state != state_) {
            state_ = state;
            listener_.state(state);
        }
        while (state == AudioState::NoDevice && fading()) {
            quiet(due_);
        }
    }
    void heard(std::span<const float> samples, Clock::time_point now) {
        listener_.samples(samples);
        slicesLeft_ = kSlices;
        due_ = now + kPause;
    }
    /// Hands on the silence that is due.
    void quiet(Clock::time_point now) {
        static constexpr std::array<float, kAudioRate / 1000 * kSlice.count()> kSilence{};
        if (fading() && now >= due_) {
            listener_.samples(kSilence);
            --slicesLeft_;
            due_ = now + kSlice;
        }
    }
    /// Whether quiet() has something to do, at due().
    [[nodiscard]] bool fading() const { return slicesLeft_ > 0; }
    [[nodiscard]] Clock::time_point due() const { return due_; }

private:
    AudioListener listener_;
    AudioState state_ = AudioState::Starting;
    int slicesLeft_ = 0;
    Clock::time_point due_;
};

} // namespace zpsg::platform
