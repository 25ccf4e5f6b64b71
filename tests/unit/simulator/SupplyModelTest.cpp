#include "simulator/SupplyModel.h"
#include "psu/Reports.h"
#include "simulator/DayScript.h"
#include "simulator/DemoSupply.h"

#include <gmock/gmock.h>

#include <map>

using namespace zpsg::simulator;
using namespace std::chrono_literals;
using ::testing::ElementsAre;

namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes head(SupplyModel &model, std::initializer_list<std::uint8_t> payload, std::size_t count = 4) {
    Bytes report(65, 0);
    std::copy(payload.begin(), payload.end(), report.begin() + 1);
    auto answer = model.output(report);
    if (!answer) {
        return {};
    }
    answer->bytes.resize(std::min(count, answer->bytes.size()));
    return answer->bytes;
}

TEST(SupplyModel, AnswersEveryKnownReportAndNoOther) {
    SupplyModel model("CVX-1000-D", "AB12");
    EXPECT_THAT(head(model, {0xFE, 0x31}), ElementsAre(0xFE, 0x31, 0, 0));
    EXPECT_THAT(head(model, {0x31, 0x3D}, 6), ElementsAre(0x31, 0x3D, 'C', 'V', 'X', '-'));
    EXPECT_THAT(head(model, {0x31, 0x3E}, 7), ElementsAre(0x31, 0x3E, 'A', 'B', '1', '2', 0));
    EXPECT_THAT(head(model, {0x30, 0x43, 0x01}, 2), ElementsAre(0x30, 0x43));
    for (const auto &[first, second] :
         std::map<int, int>{{0x00, 0x00}, {0x31, 0x3C}, {0x32, 0x34}, {0x30, 0x44}}) {
        EXPECT_TRUE(
            head(model, {static_cast<std::uint8_t>(first), static_cast<std::uint8_t>(second)}).empty());
    }
    SupplyModel unnamed;
    EXPECT_THAT(head(unnamed, {0x31, 0x3E}, 6), ElementsAre(0x31, 0x3E, 'n', 'o', 'S', 'N'));
}

TEST(SupplyModel, KeepsFanModeSpeedAndLights) {
    SupplyModel model;
    head(model, {0x30, 0x41, 0x03});
    EXPECT_EQ(model.fanMode(), FanMode::ZeroFan);
    head(model, {0x30, 0x41, 0x04, 75});
    EXPECT_EQ(model.fanMode(), FanMode::Custom);
    EXPECT_EQ(model.customFanPercent(), 75);
    head(model, {0x30, 0x41, 0x09});
    EXPECT_EQ(model.fanMode(), FanMode::Custom); // no such mode
    EXPECT_TRUE(model.rawOutput(Bytes{0x20, 0}));
    EXPECT_EQ(model.fanMode(), FanMode::Performance);
    EXPECT_FALSE(model.rawOutput(Bytes{0x21, 1}));
    EXPECT_FALSE(model.rawOutput(Bytes{0x20}));

    head(model, {0x30, 0x42, 0x18, 1, 2, 3});
    EXPECT_EQ(model.ledFrame()[3], 3);
    EXPECT_EQ(model.storedLedFrame()[3], 0);
    head(model, {0x30, 0x43, 0x01});
    EXPECT_EQ(model.storedLedFrame()[3], 3);
}

TEST(SupplyModel, TakesTheRatingFromItsName) {
    const std::map<std::string, double> ratings{{"CVX-1000-D", 1000}, {"CVG0850", 850},   {"CV-08-50-G", 850},
                                                {"AX1600i", 1600},    {"NoNumber", 1000}, {"", 1000}};
    for (const auto &[name, watts] : ratings) {
        EXPECT_EQ(SupplyModel(name).ratedWatts(), watts) << name;
    }
    EXPECT_EQ(SupplyModel(std::string(200, 'X')).modelText().size(), 62U);
}

TEST(SupplyModel, SagsUnderLoadAndTheFanFollowsTheHeat) {
    SupplyModel model;
    model.advance(1h, 60.0);
    const auto idle = model.quantities();
    EXPECT_NEAR(idle.outputWatts(), 60.0, 0.5);
    model.advance(1h, 900.0);
    const auto busy = model.quantities();
    EXPECT_NEAR(busy.outputWatts(), 900.0, 5.0);
    EXPECT_LT(busy.volts12, idle.volts12 - 0.05);
    EXPECT_GT(busy.volts12, 11.4); // within the rail's own limits
    EXPECT_GT(busy.celsius, idle.celsius + 8.0);
    EXPECT_LT(busy.celsius, 60.0); // no alarm of its own making
    EXPECT_GT(busy.fanRpm, idle.fanRpm + 200.0);

    head(model, {0x30, 0x41, 0x03});
    model.advance(1h, 30.0);
    EXPECT_LT(model.quantities().fanRpm, 1.0);
    head(model, {0x30, 0x41, 0x04, 100});
    model.advance(1min, 30.0);
    EXPECT_NEAR(model.quantities().fanRpm, kFullFanRpm, 1.0);
}

TEST(DayScript, IsTheSameForTheSameSecondAndBelievable) {
    std::map<std::string, std::pair<double, int>> sums;
    for (int second = 0; second < 86400; second += 7) {
        const double load = scriptedLoad(second, 1000.0, 12);
        ASSERT_EQ(load, scriptedLoad(second, 1000.0, 12));
        ASSERT_GE(load, 20.0);
        ASSERT_LE(load, 900.0);
        ASSERT_NEAR(load, scriptedLoad(second + 0.1, 1000.0, 12), 60.0) << "a step at " << second;
        auto &[sum, count] = sums[scriptedActivity(second)];
        sum += load;
        ++count;
    }
    const auto mean = [&](const char *activity) { return sums[activity].first / sums[activity].second; };
    EXPECT_LT(mean("standby"), mean("idle"));
    EXPECT_LT(mean("idle"), mean("work"));
    EXPECT_LT(mean("work"), mean("game"));
    EXPECT_EQ(scriptedLoad(-1.0, 1000.0), scriptedLoad(86399.0, 1000.0));
    EXPECT_NE(scriptedLoad(40000.0, 1000.0, 1), scriptedLoad(40000.0, 1000.0, 2));
}

TEST(DemoSupply, LetsTimePassAlsoWhenTheClockJumps) {
    auto now = std::chrono::system_clock::time_point(1'700'000'000s);
    const auto bus = makeDemoBus("CVA-0750-G", [&now] { return now; });
    const auto backend = bus->backend();
    const auto device = backend->open(zpsg::psu::kVendorId, zpsg::psu::kMainProductId);
    ASSERT_TRUE(device);
    for (const auto step : {1s, 3600s, -7200s, 86400s * 400}) {
        now += step;
        ASSERT_EQ(device->write(zpsg::psu::kWakeUp), 65);
        bus->withModel([](SupplyModel &model) {
            EXPECT_GT(model.quantities().celsius, 20.0);
            EXPECT_LT(model.quantities().celsius, 60.0);
        });
    }
}

} // namespace
