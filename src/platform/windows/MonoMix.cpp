#include "platform/windows/MonoMix.h"

#include <cmath>
#include <cstring>

namespace zpsg::platform {
namespace {

template <class Sample>
float mean(const void *data, std::size_t frame, std::size_t channels) {
    float sum = 0;
    for (std::size_t channel = 0; channel < channels; ++channel) {
        Sample sample{};
        std::memcpy(&sample, static_cast<const char *>(data) + (frame * channels + channel) * sizeof(sample),
                    sizeof(sample));
        sum += static_cast<float>(sample);
    }
    return sum / static_cast<float>(channels);
}

} // namespace

MonoMix::MonoMix(SampleType type, std::size_t channels, int fromRate, int toRate)
    : type_(type), channels_(channels), step_(static_cast<double>(fromRate) / toRate) {}

float MonoMix::mixed(const void *data, std::size_t frame) const {
    constexpr float kFullInt16 = 32768;
    return type_ == SampleType::Float ? mean<float>(data, frame, channels_)
                                      : mean<std::int16_t>(data, frame, channels_) / kFullInt16;
}

std::span<const float> MonoMix::convert(const void *data, std::size_t frames) {
    result_.clear();
    if (frames == 0) {
        return result_;
    }
    const auto at = [&](std::size_t index) { // 0 is the previous call's last
        if (index == 0) {
            return last_;
        }
        return data != nullptr ? mixed(data, index - 1) : 0.0F;
    };
    const auto end = static_cast<double>(frames);
    while (position_ < end) {
        const auto index = static_cast<std::size_t>(position_);
        const float before = at(index);
        const auto part = static_cast<float>(position_ - std::floor(position_));
        result_.push_back(part > 0 ? before + (at(index + 1) - before) * part : before);
        position_ += step_;
    }
    position_ -= end;
    last_ = at(frames);
    return result_;
}

} // namespace zpsg::platform
