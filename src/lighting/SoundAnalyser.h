// From samples to what effects need: loudness and a spectrum in bands.
#pragma once

#include "lighting/Sound.h"

#include <memory>
#include <span>

namespace zpsg::lighting {

/// Twelve bands from 50 Hz to 12 kHz, each two thirds of an octave wide. Values are decibels, linearly on a
/// scale of 40 dB whose top is the loudest of late, so that an effect looks the same at any volume: the top
/// rises at once, falls by 2 dB a second of sound (never in silence), and not below 40 dB under full scale.
/// feed() on one thread, the others on any.
class SoundAnalyser {
public:
    /// `rate` samples a second.
    explicit SoundAnalyser(int rate);
    ~SoundAnalyser();
    SoundAnalyser(const SoundAnalyser &) = delete;
    SoundAnalyser &operator=(const SoundAnalyser &) = delete;

    /// Mono samples, -1 to 1, any number. What is out of range is clipped, what is not finite is silence.
    /// Allocates nothing.
    void feed(std::span<const float> samples);
    /// Forgets what was heard: silence.
    void reset();
    /// As of the latest samples, which are a quarter of a window (21 ms at 48 kHz) at a time.
    [[nodiscard]] Sound sound() const;

private:
    struct Core;
    std::unique_ptr<Core> core_;
};

} // namespace zpsg::lighting
