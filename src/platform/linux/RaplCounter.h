// Power from a counter of energy.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

namespace zpsg::platform {

class RaplCounter {
public:
    using Time = std::chrono::steady_clock::time_point;

    /// `range` is the value behind which the counter starts from 0 again, in microjoules; nothing for one
    /// that never does.
    explicit RaplCounter(std::optional<std::int64_t> range = std::nullopt) : range_(range) {}

    /// Mean watts since the last call. Nothing for the first, after a gap of more than five seconds (the mean
    /// of a gap is no present value, and the counter may have been round more than once), and when the
    /// counter itself gave nothing. Calls within a tenth of a second get the last value: the counter's steps
    /// are too coarse for more.
    std::optional<double> add(std::optional<std::int64_t> microjoules, Time now);

private:
    std::optional<std::int64_t> range_;
    std::optional<std::int64_t> last_;
    std::optional<double> watts_;
    Time at_{};
};

} // namespace zpsg::platform
