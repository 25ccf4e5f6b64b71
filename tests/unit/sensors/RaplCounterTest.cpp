#include "platform/linux/RaplCounter.h"

#include <gtest/gtest.h>
#include <vector>

namespace zpsg::platform {
namespace {

TEST(RaplCounterTest, GivesTheMeanSinceTheLastValueAndNothingElse) {
    struct Step {
        int milliseconds; // since the start
        std::optional<std::int64_t> joules;
        std::optional<double> watts;
    };
    struct Case {
        const char *what;
        std::optional<std::int64_t> range; // joules
        std::vector<Step> steps;
    };
    constexpr auto kNone = std::nullopt;
    const std::vector<Case> cases{
        {"steady", 1000, {{0, 100, kNone}, {1000, 165, 65.0}, {3000, 365, 100.0}, {4000, 365, 0.0}}},
        {"round", 1000, {{0, 990, kNone}, {1000, 20, 30.0}, {2000, 50, 30.0}}},
        {"backwards without a range", kNone, {{0, 990, kNone}, {1000, 20, kNone}, {2000, 50, 30.0}}},
        {"beyond its range", 500, {{0, 990, kNone}, {1000, 20, kNone}, {2000, 30, 10.0}}},
        {"a gap", 1000, {{0, 0, kNone}, {1000, 50, 50.0}, {6001, 60, kNone}, {7001, 70, 10.0}}},
        {"the longest that is none", 1000, {{0, 0, kNone}, {5000, 50, 10.0}}},
        {"unreadable once", 1000, {{0, 0, kNone}, {1000, kNone, kNone}, {2000, 60, kNone}, {3000, 90, 30.0}}},
        {"never readable", 1000, {{0, kNone, kNone}, {1000, kNone, kNone}}},
        {"no energy", 1000, {{0, -5, kNone}, {1000, 60, kNone}, {2000, 90, 30.0}}},
        {"twice in a moment",
         1000,
         {{0, 0, kNone}, {50, 7, kNone}, {1000, 40, 40.0}, {1001, 41, 40.0}, {2000, 50, 10.0}}},
        {"a clock that goes back", 1000, {{2000, 0, kNone}, {1000, 10, kNone}, {2000, 25, 15.0}}},
    };
    constexpr std::int64_t kMicro = 1000000;
    for (const Case &run : cases) {
        RaplCounter counter(run.range ? std::optional(*run.range * kMicro) : kNone);
        for (const Step &step : run.steps) {
            const RaplCounter::Time now{std::chrono::hours(1) + std::chrono::milliseconds(step.milliseconds)};
            const auto watts = counter.add(step.joules ? std::optional(*step.joules * kMicro) : kNone, now);
            ASSERT_EQ(watts.has_value(), step.watts.has_value()) << run.what << ' ' << step.milliseconds;
            EXPECT_DOUBLE_EQ(watts.value_or(0), step.watts.value_or(0))
                << run.what << ' ' << step.milliseconds;
        }
    }
}

} // namespace
} // namespace zpsg::platform
