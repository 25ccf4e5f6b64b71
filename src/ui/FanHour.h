// The last hour of the fan: readings that come once a second, and what is drawn of them.
#pragma once

#include "fan/FanMode.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

namespace zpsg::ui {

struct FanSample {
    static constexpr float kNone = std::numeric_limits<float>::quiet_NaN();

    std::int64_t ms = 0; ///< since the epoch
    float rpm = kNone;
    float celsius = kNone;
    fan::FanMode mode = fan::FanMode::Silent;
};

/// Points in the order of time, without a gap between them.
struct FanPoint {
    double seconds; ///< from the latest sample, 0 or less
    double value;
};
using FanStretch = std::vector<FanPoint>;

/// A time from one sample to another; both within it.
struct FanSpan {
    double fromSeconds; ///< from the latest sample, 0 or less
    double toSeconds;
};
/// One of a mode.
struct FanModeSpan {
    FanSpan span;
    fan::FanMode mode;
};

class FanHour {
public:
    static constexpr std::size_t kCapacity = 3600;
    static constexpr std::int64_t kWindowMs = 60LL * 60 * 1000;
    /// Samples further apart than this have a gap between them: readings come every second, one may be late.
    static constexpr std::int64_t kGapMs = 2500;

    FanHour() : ring_(kCapacity) {}

    /// Takes samples in the order of time. When the clock is set back, what lies in the future then is
    /// dropped.
    void append(const FanSample &sample);

    [[nodiscard]] std::size_t size() const { return size_; }
    [[nodiscard]] bool empty() const { return size_ == 0; }
    /// 0 is the oldest.
    [[nodiscard]] const FanSample &at(std::size_t index) const { return ring_[(first_ + index) % kCapacity]; }
    /// The buffer must not be empty.
    [[nodiscard]] const FanSample &latest() const { return at(size_ - 1); }
    /// The sample nearest to a time, seconds from the latest one; nothing where there was none within a gap's
    /// length of it.
    [[nodiscard]] std::optional<std::size_t> nearest(double seconds, double reachSeconds) const;

    struct Range {
        double least;
        double most;
    };
    /// Of what `Value` is, of the samples that have it.
    [[nodiscard]] std::optional<Range> range(float FanSample::*value) const;
    /// The stretches without a gap, oldest first. Of the samples within `columnMs` no more is left than where
    /// the line enters, its extremes, and where it leaves. Columns stand still while time goes on.
    [[nodiscard]] std::vector<FanStretch> stretches(float FanSample::*value, std::int64_t columnMs) const;
    /// When which mode was set, as long as anything was read.
    [[nodiscard]] std::vector<FanModeSpan> modes() const;
    /// When the fan stood still.
    [[nodiscard]] std::vector<FanSpan> stops() const;

private:
    [[nodiscard]] double secondsAt(std::size_t index) const {
        return static_cast<double>(at(index).ms - latest().ms) / 1000.0;
    }
    [[nodiscard]] bool gapBefore(std::size_t index) const {
        return index == 0 || at(index).ms - at(index - 1).ms > kGapMs;
    }

    std::vector<FanSample> ring_;
    std::size_t first_ = 0;
    std::size_t size_ = 0;
};

} // namespace zpsg::ui
