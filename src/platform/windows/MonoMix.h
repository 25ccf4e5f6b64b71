// From the output's own format to mono at the rate that is handed on. Knows no system calls.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace zpsg::platform {

enum class SampleType { Float, Int16 };

class MonoMix {
public:
    /// `channels` and `fromRate` (samples a second) are positive.
    MonoMix(SampleType type, std::size_t channels, int fromRate, int toRate);

    /// `frames` of interleaved samples of the type; null is silence. The result lasts until the next call.
    /// Between two samples it is a straight line, also from one call to the next.
    std::span<const float> convert(const void *data, std::size_t frames);

private:
    float mixed(const void *data, std::size_t frame) const;

    SampleType type_;
    std::size_t channels_;
    double step_;         // from one result to the next, in frames
    double position_ = 0; // of the next result, in frames after `last_`
    float last_ = 0;      // frame of the previous call
    std::vector<float> result_;
};

} // namespace zpsg::platform
