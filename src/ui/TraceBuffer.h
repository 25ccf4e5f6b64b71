// The last minutes of a value that is read once a second, with the gaps where there was no reading.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace zpsg::ui {

/// Milliseconds since the epoch and a value, or nothing for a second without a reading.
struct TraceSample {
    std::int64_t ms = 0;
    std::optional<double> value;
};

class TraceBuffer {
public:
    static constexpr std::int64_t kWindowMs = 5LL * 60 * 1000;
    /// Samples further apart than this have a gap between them: readings come every second, one may be late.
    static constexpr std::int64_t kGapMs = 2500;

    /// Takes samples in the order of time. When the clock is set back, what lies in the future then is
    /// dropped.
    void append(const TraceSample &sample);
    void clear() { size_ = 0; }

    [[nodiscard]] bool empty() const { return size_ == 0; }
    /// The latest sample; the buffer must not be empty.
    [[nodiscard]] const TraceSample &latest() const { return at(size_ - 1); }

    struct Point {
        double secondsAgo; ///< 0 to 300, counted from the latest sample
        double value;
    };
    /// The stretches without a gap, oldest first; none is empty.
    [[nodiscard]] std::vector<std::vector<Point>> stretches() const;

    struct Summary {
        double peak;
        double average; ///< of the readings, each counted once
    };
    /// Nothing when there was no reading within the window.
    [[nodiscard]] std::optional<Summary> summary() const;

private:
    /// One more than a sample a second needs, and spare for a timer that runs a little fast.
    static constexpr std::size_t kCapacity = 320;

    [[nodiscard]] const TraceSample &at(std::size_t index) const {
        return ring_[(first_ + index) % kCapacity];
    }

    std::array<TraceSample, kCapacity> ring_{};
    std::size_t first_ = 0;
    std::size_t size_ = 0;
};

/// The upper end of an axis that starts at 0 and is divided in four: head room above `peak`, round divisions.
/// It keeps `current` as long as that still fits reasonably, so that the axis does not flap. Not below 40.
[[nodiscard]] double axisTop(double peak, double current);

} // namespace zpsg::ui
