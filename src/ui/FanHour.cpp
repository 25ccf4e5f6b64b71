#include "ui/FanHour.h"

#include <algorithm>
#include <cmath>

namespace zpsg::ui {
namespace {

/// The points of one column, of which at most four are kept.
class Column {
public:
    explicit Column(FanStretch &into) : into_(into) {}

    void add(std::int64_t column, const FanPoint &point) {
        if (held_ == 0 || column != column_) {
            flush();
            column_ = column;
            first_ = least_ = most_ = last_ = point;
        }
        least_ = point.value < least_.value ? point : least_;
        most_ = point.value > most_.value ? point : most_;
        last_ = point;
        ++held_;
    }

    void flush() {
        if (held_ > 0) {
            into_.push_back(first_);
        }
        if (held_ > 2) {
            const bool rising = least_.seconds <= most_.seconds;
            into_.push_back(rising ? least_ : most_);
            into_.push_back(rising ? most_ : least_);
        }
        if (held_ > 1) {
            into_.push_back(last_);
        }
        held_ = 0;
    }

private:
    FanStretch &into_;
    std::int64_t column_ = 0;
    FanPoint first_{}, least_{}, most_{}, last_{};
    int held_ = 0;
};

} // namespace

void FanHour::append(const FanSample &sample) {
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

std::optional<std::size_t> FanHour::nearest(double seconds, double reachSeconds) const {
    if (size_ == 0) {
        return std::nullopt;
    }
    std::size_t low = 0;
    std::size_t high = size_ - 1;
    while (low < high) {
        const std::size_t middle = (low + high) / 2;
        if (secondsAt(middle) < seconds) {
            low = middle + 1;
        } else {
            high = middle;
        }
    }
    if (low > 0 && seconds - secondsAt(low - 1) < std::abs(secondsAt(low) - seconds)) {
        --low;
    }
    return std::abs(secondsAt(low) - seconds) <= reachSeconds ? std::optional(low) : std::nullopt;
}

std::optional<FanHour::Range> FanHour::range(float FanSample::*value) const {
    std::optional<Range> result;
    for (std::size_t i = 0; i < size_; ++i) {
        const auto now = static_cast<double>(at(i).*value);
        if (!std::isnan(now)) {
            result =
                result ? Range{std::min(result->least, now), std::max(result->most, now)} : Range{now, now};
        }
    }
    return result;
}

std::vector<FanStretch> FanHour::stretches(float FanSample::*value, std::int64_t columnMs) const {
    std::vector<FanStretch> result;
    FanStretch stretch;
    Column column(stretch);
    const auto finish = [&] {
        column.flush();
        if (!stretch.empty()) {
            result.push_back(std::move(stretch));
            stretch = {};
        }
    };
    const std::int64_t wide = std::max<std::int64_t>(columnMs, 1);
    for (std::size_t i = 0; i < size_; ++i) {
        const auto now = static_cast<double>(at(i).*value);
        if (std::isnan(now) || gapBefore(i)) {
            finish();
        }
        if (!std::isnan(now)) {
            column.add(at(i).ms / wide, {secondsAt(i), now});
        }
    }
    finish();
    return result;
}

std::vector<FanModeSpan> FanHour::modes() const {
    std::vector<FanModeSpan> result;
    bool broken = true;
    for (std::size_t i = 0; i < size_; ++i) {
        const FanSample &sample = at(i);
        if (std::isnan(sample.rpm) && std::isnan(sample.celsius)) {
            broken = true;
            continue;
        }
        if (broken || gapBefore(i)) {
            result.push_back({{secondsAt(i), secondsAt(i)}, sample.mode});
        } else {
            result.back().span.toSeconds = secondsAt(i);
            if (result.back().mode != sample.mode) {
                result.push_back({{secondsAt(i), secondsAt(i)}, sample.mode});
            }
        }
        broken = false;
    }
    return result;
}

std::vector<FanSpan> FanHour::stops() const {
    std::vector<FanSpan> result;
    bool stands = false;
    for (std::size_t i = 0; i < size_; ++i) {
        const bool before = stands && !gapBefore(i);
        stands = at(i).rpm == 0.0F;
        if (stands && before) {
            result.back().toSeconds = secondsAt(i);
        } else if (stands) {
            result.push_back({secondsAt(i), secondsAt(i)});
        }
    }
    return result;
}

} // namespace zpsg::ui
