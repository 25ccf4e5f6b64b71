#include "fan/FanGovernor.h"
#include "fan/FanReports.h"
#include "simulator/SupplyModel.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

using namespace zpsg;
using namespace zpsg::fan;
using namespace std::chrono_literals;
using ::testing::ElementsAre;

namespace {

TEST(FanReportsTest, AreTheDevicesOwn) {
    EXPECT_EQ(modeReport(FanMode::Silent), psu::makeRequest({0x30, 0x41, 0x01}));
    EXPECT_EQ(modeReport(FanMode::Performance), psu::makeRequest({0x30, 0x41, 0x02}));
    EXPECT_EQ(modeReport(FanMode::ZeroFan), psu::makeRequest({0x30, 0x41, 0x03}));
    EXPECT_FALSE(modeReport(FanMode::Custom));
    struct Case {
        int percent;
        std::uint8_t sent;
    };
    for (const auto &[percent, sent] :
         {Case{60, 60}, Case{30, 30}, Case{100, 100}, Case{29, 30}, Case{-1, 30}, Case{101, 100},
          Case{1 << 30, 100}, Case{256 + 40, 100}}) {
        EXPECT_EQ(speedReport(percent), psu::makeRequest({0x30, 0x41, 0x04, sent})) << percent;
    }
    EXPECT_EQ(rawModeReport(FanMode::Silent), (RawFanReport{0x20, 1}));
    EXPECT_EQ(rawModeReport(FanMode::Performance), (RawFanReport{0x20, 0}));
    EXPECT_EQ(rawModeReport(FanMode::ZeroFan), (RawFanReport{0x20, 2}));
    EXPECT_FALSE(rawModeReport(FanMode::Custom));
}

TEST(FanCurveTest, IsStraightBetweenItsPointsAndLevelBeyond) {
    const std::vector<CurvePoint> points{{30, 40}, {40, 60}, {50, 60}, {60, 100}};
    struct Case {
        double at;
        double percent;
    };
    for (const auto &[at, percent] : {Case{-300, 40}, Case{30, 40}, Case{35, 50}, Case{40, 60}, Case{45, 60},
                                      Case{55, 80}, Case{60, 100}, Case{9000, 100}}) {
        EXPECT_DOUBLE_EQ(percentAt(points, at), percent) << at;
    }
}

TEST(FanCurveTest, PointsFromAnywhereBecomeACurve) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const auto fitted = [](std::vector<CurvePoint> points) {
        return fittedPoints(std::move(points), CurveSource::Temperature);
    };
    const FanCurve usual;
    EXPECT_EQ(fitted({}), usual.temperature);
    EXPECT_EQ(fitted({{30, 50}}), usual.temperature);
    EXPECT_EQ(fitted({{30, 50}, {nan, 60}, {40, nan}}), usual.temperature);
    EXPECT_EQ(fittedPoints({}, CurveSource::Load), usual.load);
    EXPECT_THAT(fitted({{50, 80}, {30, 50}}), ElementsAre(CurvePoint{30, 50}, CurvePoint{50, 80}))
        << "in order";
    EXPECT_THAT(fitted({{-5, 5}, {500, 500}}), ElementsAre(CurvePoint{20, 30}, CurvePoint{60, 100}));
    EXPECT_THAT(fitted({{30, 80}, {40, 50}}), ElementsAre(CurvePoint{30, 80}, CurvePoint{40, 80}))
        << "never falls";
    EXPECT_THAT(fitted({{30, 40}, {30.5, 50}, {31, 60}}),
                ElementsAre(CurvePoint{30, 40}, CurvePoint{31, 60}));
    std::vector<CurvePoint> many;
    many.reserve(40);
    for (int i = 0; i < 40; ++i) {
        many.push_back({20.0 + i, 50});
    }
    EXPECT_EQ(fitted(many).size(), kMostPoints);
}

class GovernorTest : public ::testing::Test {
protected:
    GovernorTest() {
        FanCurve curve;
        curve.temperature = {{30, 30}, {50, 70}}; // 2 % a degree
        governor.setCurve(curve, {4, 10});
        governor.start(now);
    }

    FanGovernor::Decision at(std::optional<double> celsius, std::chrono::seconds passed = 1s) {
        now += passed;
        return governor.tick({celsius, 50.0}, now);
    }

    FanGovernor governor;
    FanGovernor::Time now{1h};
};

TEST_F(GovernorTest, FollowsUpAtOnceAndDownWithHysteresis) {
    EXPECT_TRUE(at(40).changed) << "the first reading is followed at once";
    EXPECT_EQ(at(40).percent, 50);
    EXPECT_FALSE(at(45).changed) << "not sooner than ten seconds after";
    const auto up = at(45, 10s);
    EXPECT_TRUE(up.changed);
    EXPECT_EQ(up.percent, 60);
    EXPECT_FALSE(at(41.5, 60s).changed) << "within the hysteresis";
    const auto down = at(39, 60s);
    EXPECT_TRUE(down.changed);
    EXPECT_EQ(down.percent, 56);
    EXPECT_FALSE(at(39.4, 60s).changed);
    EXPECT_FALSE(at(39, 60s).changed) << "a speed that holds is not sent again";
    EXPECT_EQ(at(100 - 41, 60s).percent, 70);
    EXPECT_EQ(at(-20, 600s).percent, 30);
}

TEST_F(GovernorTest, LeavesTheSupplyToItselfWhenItMust) {
    at(40);
    EXPECT_EQ(at(std::nullopt, 9s).governing, Governing::Driving) << "a gap";
    const auto blind = at(std::nullopt, 1s);
    EXPECT_EQ(blind.governing, Governing::NoReading);
    EXPECT_TRUE(blind.changed);
    EXPECT_FALSE(at(std::nullopt, 30s).changed) << "told once";
    const auto back = at(40);
    EXPECT_EQ(back.governing, Governing::Driving);
    EXPECT_TRUE(back.changed);
    EXPECT_EQ(at(60).governing, Governing::Driving) << "at the limit";
    const auto hot = at(60.1);
    EXPECT_EQ(hot.governing, Governing::TooHot);
    EXPECT_TRUE(hot.changed);
    EXPECT_EQ(at(56).governing, Governing::TooHot) << "not cool enough yet";
    EXPECT_TRUE(at(std::nullopt, 20s).changed) << "blind now, and told";
    EXPECT_EQ(at(54).governing, Governing::Driving);
}

TEST_F(GovernorTest, GoesByLoadButWatchesTheTemperature) {
    FanCurve curve;
    curve.source = CurveSource::Load;
    governor.setCurve(curve, {4, 10});
    EXPECT_EQ(at(30).percent, 45);
    EXPECT_EQ(at(61).governing, Governing::TooHot);
    EXPECT_EQ(at(std::nullopt, 10s).governing, Governing::NoReading) << "load alone is not enough";
}

// The simulated supply under a load that rises and falls: the curve holds the temperature and does not hunt.
TEST(GovernorSimulationTest, AHotAfternoonPassesCalmly) {
    simulator::SupplyModel supply("CVX-1000-D");
    FanGovernor governor;
    FanGovernor::Time now{1h};
    governor.setCurve({}, {});
    governor.start(now);
    int changes = 0;
    int turns = 0; // from faster to slower or back
    int last = 0;
    int direction = 0;
    double hottest = 0;
    const auto run = [&](double watts, std::chrono::seconds time) {
        for (const auto end = now + time; now < end; now += 1s) {
            supply.advance(1s, watts);
            const auto decision = governor.tick({supply.quantities().celsius, watts / 10.0}, now);
            if (decision.changed) {
                ++changes;
                const int step = decision.percent > last ? 1 : -1;
                turns += direction != 0 && step != direction ? 1 : 0;
                direction = step;
                last = decision.percent;
                const auto report = speedReport(decision.percent);
                supply.output(report);
            }
            hottest = std::max(hottest, supply.quantities().celsius);
        }
    };
    run(150, 30min);
    run(650, 60min);
    changes = turns = 0;
    run(650, 60min);
    EXPECT_LE(changes, 2) << "a load that holds is a speed that holds";
    run(150, 60min);
    EXPECT_LE(turns, 1);
    EXPECT_LT(hottest, kLimitCelsius);
    EXPECT_EQ(last, supply.customFanPercent());
}

} // namespace
