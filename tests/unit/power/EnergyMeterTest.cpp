#include "power/EnergyMeter.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace zpsg::power;
using namespace std::chrono_literals;

namespace {

class EnergyMeterTest : public ::testing::Test {
protected:
    void pass(const std::optional<Load> &load, std::chrono::milliseconds time) {
        now += time;
        sum += meter.add(load, rate, now);
    }

    EnergyMeter meter;
    EnergyMeter::Time now{1h};
    double rate = 0.5;
    Energy sum;
};

TEST_F(EnergyMeterTest, CountsOutputWallAndCostOverTheTimeThatPassed) {
    pass(Load{900.0, 90.0}, 0ms);
    EXPECT_EQ(sum, Energy{}) << "one reading is no time";
    for (int i = 0; i < 3600; ++i) {
        rate = i < 1800 ? 0.5 : 0.25;
        pass(Load{900.0, 90.0}, 1s);
    }
    EXPECT_NEAR(sum.seconds, 3600.0, 1e-6);
    EXPECT_NEAR(sum.outputKwh, 0.9, 1e-9);
    EXPECT_NEAR(sum.wallKwh, 1.0, 1e-9);
    EXPECT_NEAR(sum.cost, 0.375, 1e-9);
    sum = {};
    pass(Load{0.0, 50.0}, 3600ms);
    EXPECT_NEAR(sum.outputKwh, 0.00045, 1e-12) << "the mean of both";
    EXPECT_NEAR(sum.wallKwh, 0.0005, 1e-12);
    pass(Load{0.0, 50.0}, 1400ms);
    EXPECT_NEAR(sum.seconds, 5.0, 1e-9) << "nothing used is metered as well";
}

TEST_F(EnergyMeterTest, NothingIsCountedAcrossAGap) {
    pass(Load{500.0, 90.0}, 0ms);
    pass(Load{500.0, 90.0}, 5001ms); // asleep
    for (const auto watts : {std::nan(""), HUGE_VAL, -5.0}) {
        pass(Load{watts, 90.0}, 1s);
        pass(Load{500.0, 90.0}, 1s);
    }
    pass(std::nullopt, 1s);
    pass(Load{500.0, 90.0}, 1s);
    pass(Load{500.0, 90.0}, -10s); // no steady clock does that
    pass(Load{500.0, 90.0}, 0ms);
    EXPECT_EQ(sum, Energy{});
    pass(Load{500.0, 90.0}, 5s);
    EXPECT_NEAR(sum.seconds, 5.0, 1e-9);
}

TEST_F(EnergyMeterTest, TheWallCountsAsTheOutputWhileTheEfficiencyIsNotKnown) {
    EXPECT_FALSE(meter.efficiencyKnown());
    struct Case {
        std::optional<double> percent;
        double wallFactor;
    };
    for (const auto &[percent, wallFactor] :
         {Case{std::nullopt, 1.0}, Case{80.0, 1.25}, Case{0.0, 1.0}, Case{100.0, 1.0}, Case{100.1, 1.0},
          Case{-80.0, 1.0}, Case{std::nan(""), 1.0}, Case{5e-324, 1.0}, Case{50.0, 2.0}}) {
        SCOPED_TRACE(percent.value_or(-1.0));
        const auto used = meter.use(Load{1000.0, percent}, 2.0, 6min);
        EXPECT_NEAR(used.outputKwh, 0.1, 1e-12);
        EXPECT_NEAR(used.wallKwh, 0.1 * wallFactor, 1e-12);
        EXPECT_NEAR(used.cost, 0.2 * wallFactor, 1e-12);
        EXPECT_EQ(meter.efficiencyKnown(), wallFactor > 1.0 || percent == 100.0);
    }
    meter.use(std::nullopt, 2.0, 6min);
    EXPECT_TRUE(meter.efficiencyKnown()) << "of the latest reading; a silent moment is none";
    pass(Load{1000.0, std::nullopt}, 1s);
    pass(Load{1000.0, 50.0}, 3600ms);
    EXPECT_NEAR(sum.wallKwh, 0.0015, 1e-12) << "from the output's watts to the wall's";
    EXPECT_NEAR(sum.outputKwh, 0.001, 1e-12);
}

} // namespace
