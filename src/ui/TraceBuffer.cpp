#include "ui/TraceBuffer.h"

#include <algorithm>
#include <cmath>

namespace zpsg::ui {

void TraceBuffer::append(const TraceSample &sample) {
    while (size_ > 0 && latest().ms >= sample.ms) {
        --size_;
    }
    while (size_ > 0 && (size_ == kCapacity || at(0).ms < sample.ms - kWindowMs)) {
        first_ = (first_ + 1) % kCapacity;
        --size_;
    }
    ring_[(first_ + size_) % kCapacity] = sample;
    ++size_;
}

std::vector<std::vector<TraceBuffer::Point>> TraceBuffer::stretches() const {
    std::vector<std::vector<Point>> result;
    bool broken = true;
    std::int64_t before = 0;
    for (std::size_t i = 0; i < size_; ++i) {
        const TraceSample &sample = at(i);
        if (!sample.value) {
            broken = true;
            continue;
        }
        if (broken || sample.ms - before > kGapMs) {
            result.emplace_back();
            broken = false;
        }
        before = sample.ms;
        result.back().push_back({static_cast<double>(latest().ms - sample.ms) / 1000.0, *sample.value});
    }
    return result;
}

std::optional<TraceBuffer::Summary> TraceBuffer::summary() const {
    Summary result{0.0, 0.0};
    std::size_t readings = 0;
    for (std::size_t i = 0; i < size_; ++i) {
        if (const std::optional<double> &value = at(i).value) {
            result.peak = readings == 0 ? *value : std::max(result.peak, *value);
            result.average += *value;
            ++readings;
        }
    }
    if (readings == 0) {
        return std::nullopt;
    }
    result.average /= static_cast<double>(readings);
    return result;
}

double axisTop(double peak, double current) {
    constexpr double kHeadRoom = 1.15;
    constexpr double kLeast = 40.0;
    const double wanted = std::max(peak * kHeadRoom, kLeast);
    if (current >= kLeast && peak * 1.05 <= current && wanted >= current * 0.55) {
        return current;
    }
    const double division = wanted / 4.0;
    const double decade = std::pow(10.0, std::floor(std::log10(division)));
    for (const double step : {1.0, 1.5, 2.0, 2.5, 3.0, 4.0, 5.0, 7.5}) {
        if (division <= step * decade * (1.0 + 1e-9)) {
            return 4.0 * step * decade;
        }
    }
    return 40.0 * decade;
}

} // namespace zpsg::ui
