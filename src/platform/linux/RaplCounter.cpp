#include "platform/linux/RaplCounter.h"

#include <utility>

namespace zpsg::platform {

std::optional<double> RaplCounter::add(std::optional<std::int64_t> microjoules, Time now) {
    using namespace std::chrono_literals;
    constexpr auto kShortest = 100ms;
    constexpr auto kLongest = 5s;
    constexpr double kMicro = 1e-6;
    if (!microjoules || *microjoules < 0) {
        last_.reset();
        watts_.reset();
        return std::nullopt;
    }
    const auto passed = now - at_;
    if (last_ && passed >= decltype(passed)::zero() && passed < kShortest) {
        return watts_;
    }
    const auto before = std::exchange(last_, microjoules);
    at_ = now;
    watts_.reset();
    if (!before || passed < kShortest || passed > kLongest) {
        return watts_;
    }
    // A difference of two numbers that aren't negative can't overflow; what comes round adds less than
    // range_.
    std::int64_t used = *microjoules - *before;
    if (used < 0) {
        if (!range_ || *before > *range_) {
            return watts_;
        }
        used += *range_;
    }
    watts_ = static_cast<double>(used) * kMicro / std::chrono::duration<double>(passed).count();
    return watts_;
}

} // namespace zpsg::platform
