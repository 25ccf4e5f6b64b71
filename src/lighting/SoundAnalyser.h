// From samples to what effects need: loudness and a spectrum in bands.
#pragma once

#include "lighting/Sound.h"

#include <memory>
#include <span>

namespace zpsg::lighting {

/// feed() on one thread, the others on any.
class SoundAnalyser {
public:
    /// `rate` samples a second.
    explicit SoundAnalyser(int rate);
    ~SoundAnalyser();
    SoundAnalyser(const SoundAnalyser &) = delete;
    SoundAnalyser &operator=(const SoundAnalyser &) = delete;

    /// Mono samples, -1 to 1, any number.
    void feed(std::span<const float> samples);
    /// Forgets what was heard: silence.
    void reset();
    /// As of the latest samples.
    [[nodiscard]] Sound sound() const;

private:
    struct Core;
    std::unique_ptr<Core> core_;
};

} // namespace zpsg::lighting
