#include "power/EnergyMeter.h"

#include <gtest/gtest.h>

#include <cmath>

using zpsg::power::EnergyMeter;
using namespace std::chrono_literals;

namespace {

TEST(EnergyMeterTest, CountsWhatWasReadOverTheTimeThatPassed) {
    EnergyMeter meter(10.0);
    EnergyMeter::Time now{1h};
    const auto pass = [&](std::optional<double> watts, std::chrono::milliseconds time) {
        now += time;
        meter.add(watts, now);
    };
    pass(1000.0, 0ms);
    EXPECT_EQ(meter.kwh(), 10.0) << "one reading is no time";
    for (int i = 0; i < 3600; ++i) {
        pass(1000.0, 1s);
    }
    EXPECT_NEAR(meter.kwh(), 11.0, 1e-9);
    pass(1000.0, 3h); // asleep
    EXPECT_NEAR(meter.kwh(), 11.0, 1e-9);
    pass(0.0, 3600ms);
    EXPECT_NEAR(meter.kwh(), 11.0 + 0.0005, 1e-9) << "the mean of both";
    const double before = meter.kwh();
    for (const auto watts : {std::optional<double>(), std::optional(std::nan("")), std::optional(-5.0)}) {
        pass(watts, 1s);
        pass(500.0, 1s);
    }
    pass(500.0, -10s); // a clock that jumps
    pass(500.0, 0ms);
    EXPECT_EQ(meter.kwh(), before);
}

} // namespace
