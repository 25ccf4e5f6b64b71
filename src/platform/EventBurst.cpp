#include "platform/EventBurst.h"

#include <algorithm>

namespace zpsg::platform {

std::chrono::milliseconds EventBurst::note(Clock::time_point now) {
    if (!first_) {
        first_ = now;
    }
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*first_ + kLimit - now);
    return std::clamp(left, std::chrono::milliseconds::zero(), kQuiet);
}

} // namespace zpsg::platform
