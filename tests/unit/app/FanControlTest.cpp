// The fan with everything behind it: settings file, the supply's link and the simulated supply.
#include "app/FanControl.h"
#include "fan/FanReports.h"
#include "simulator/SimulatedBus.h"

#include <QSignalSpy>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace zpsg;
using namespace std::chrono_literals;
using app::Setting;
using fan::FanMode;
using simulator::SupplyModel;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr const char *kPlain = "CVD-0650-F"; // variant 0, takes a custom speed
constexpr const char *kPlus = "CVG-0850-Z";
constexpr const char *kDuo = "CVX-1000-D";
constexpr const char *kRaw = "CVE-0850-A";

QStringList chosen(const char *text) { return {QString::fromLatin1(text), QStringLiteral("button")}; }

class FanControlTest : public ::testing::Test {
protected:
    void start(const char *model, std::uint16_t product = psu::kMainProductId) {
        if (model != nullptr) {
            bus->plug(SupplyModel(model), product);
        }
        settings = std::make_unique<app::Settings>(dir.path());
        supply = std::make_unique<app::Supply>(bus->backend(), psu::MonitorTiming{{200ms, 10ms, 5ms}, 5s},
                                               QStringList(dir.path()));
        control = std::make_unique<app::FanControl>(*supply, *settings);
        supply->identifyModel();
    }

    void stop() {
        control.reset();
        supply.reset();
        settings.reset();
    }

    /// Payloads of the fan's reports since the last call: the bytes up to the last that is not zero.
    std::vector<std::vector<int>> sent() {
        EXPECT_TRUE(supply->monitor().waitSent(5s));
        std::vector<std::vector<int>> reports;
        bus->withModel([&reports](SupplyModel &model) {
            for (const auto &payload : model.log()) {
                if ((payload.at(0) == 0x30 && payload.at(1) == 0x41) || payload.at(0) == 0x20) {
                    std::vector<int> bytes(payload.begin(), payload.end());
                    while (bytes.size() > 2 && bytes.back() == 0) {
                        bytes.pop_back();
                    }
                    reports.push_back(bytes);
                }
            }
            model.clearLog();
        });
        return reports;
    }

    void setCelsius(double celsius) {
        bus->withModel([celsius](SupplyModel &model) {
            auto quantities = model.quantities();
            quantities.celsius = celsius;
            model.setQuantities(quantities);
        });
    }

    /// A reading at this temperature, and the step that follows it.
    void tick(double celsius, std::chrono::seconds passed = 1s) {
        setCelsius(celsius);
        supply->monitor().readInfo();
        now += passed;
        control->tick(now);
    }

    QTemporaryDir dir;
    std::shared_ptr<simulator::SimulatedBus> bus = simulator::SimulatedBus::create();
    std::unique_ptr<app::Settings> settings;
    std::unique_ptr<app::Supply> supply;
    std::unique_ptr<app::FanControl> control;
    std::chrono::steady_clock::time_point now = std::chrono::steady_clock::now();
};

using Bytes = std::vector<int>;

TEST_F(FanControlTest, EachModeInEachVariant) {
    struct Case {
        const char *text;
        FanMode mode;
        std::vector<Bytes> main;
        std::vector<Bytes> raw;
    };
    const std::vector<Case> cases{
        {"0", FanMode::Silent, {{0x30, 0x41, 1}}, {{0x20, 1}}},
        {"1", FanMode::Performance, {{0x30, 0x41, 2}}, {{0x20, 0}}},
        {"2", FanMode::ZeroFan, {{0x30, 0x41, 3}}, {{0x20, 2}}},
        {"3", FanMode::Custom, {}, {}},
        {"fast", FanMode::Silent, {{0x30, 0x41, 1}}, {{0x20, 1}}},
        {"", FanMode::Silent, {{0x30, 0x41, 1}}, {{0x20, 1}}},
        {"17", FanMode::Silent, {{0x30, 0x41, 1}}, {{0x20, 1}}},
    };
    for (const char *model : {kPlain, kPlus, kDuo, kRaw}) {
        const bool raw = model == kRaw;
        start(model, raw ? psu::kRawProductId : psu::kMainProductId);
        EXPECT_THAT(sent(), IsEmpty()) << "the supply keeps its own mode";
        for (const auto &[text, mode, mainReports, rawReports] : cases) {
            SCOPED_TRACE(std::string(model) + " " + text);
            QSignalSpy wanted(control.get(), &app::FanControl::speedWanted);
            const int lightingMode = settings->integer(Setting::CustomFanDuty);
            control->selectMode(chosen(text));
            EXPECT_EQ(sent(), raw ? rawReports : mainReports);
            EXPECT_EQ(control->mode(), mode);
            EXPECT_EQ(wanted.count(), mode == FanMode::Custom ? 1 : 0);
            EXPECT_EQ(control->mayStand(), mode == FanMode::ZeroFan);
            if (control->variant() == 0) {
                EXPECT_EQ(settings->integer(Setting::FanDuty), static_cast<int>(mode));
            } else {
                EXPECT_EQ(settings->integer(Setting::CustomFanDuty),
                          mode == FanMode::Custom ? lightingMode : static_cast<int>(mode));
            }
        }
        control->selectMode({});
        EXPECT_EQ(control->mode(), FanMode::Silent);
        stop();
    }
    start(kPlus);
    control->selectLightingFanMode(chosen("3"));
    EXPECT_EQ(settings->integer(Setting::CustomFanDuty), 3);
    control->selectLightingFanMode(chosen("1"));
    EXPECT_THAT(sent(), ElementsAre(Bytes{0x30, 0x41, 2}));
}

TEST_F(FanControlTest, ACustomSpeedIsKeptOnlyWhenItReachedTheSupply) {
    start(kDuo);
    EXPECT_EQ(control->customPercent(), 60);
    EXPECT_EQ(settings->integer(Setting::CustomFanPercent), 60);
    EXPECT_TRUE(settings->flag(Setting::FanDataWritten));
    for (const auto &[asked, percent] : {std::pair{45, 45}, {29, 30}, {-8, 30}, {250, 100}}) {
        EXPECT_TRUE(control->controlableFanSpeed(asked));
        EXPECT_THAT(sent(), ElementsAre(Bytes{0x30, 0x41, 4, percent}));
        EXPECT_EQ(settings->integer(Setting::CustomFanPercent), percent);
    }
    EXPECT_EQ(settings->integer(Setting::CustomFanDuty), 3);
    bus->unplug();
    supply->connectPsu();
    EXPECT_FALSE(control->controlableFanSpeed(80));
    EXPECT_EQ(settings->integer(Setting::CustomFanPercent), 100);
    EXPECT_EQ(control->customPercent(), 100);
    control->selectMode(chosen("1"));
    EXPECT_EQ(settings->integer(Setting::CustomFanDuty), 1) << "a mode is kept all the same";
}

TEST_F(FanControlTest, IsRestoredAndSentAgainAfterAReconnect) {
    start(kDuo);
    control->selectMode(chosen("2"));
    control->controlableFanSpeed(70);
    stop();
    start(kDuo);
    EXPECT_EQ(control->mode(), FanMode::Custom);
    EXPECT_EQ(control->customPercent(), 70);
    EXPECT_THAT(sent(), IsEmpty());
    supply->connectPsu();
    EXPECT_THAT(sent(), ElementsAre(Bytes{0x30, 0x41, 4, 70}));
    stop();
    // Another supply, on which nobody has ever chosen anything.
    start(kPlain);
    supply->connectPsu();
    EXPECT_THAT(sent(), IsEmpty());
    control->selectMode(chosen("1"));
    sent();
    supply->connectPsu();
    EXPECT_THAT(sent(), ElementsAre(Bytes{0x30, 0x41, 2}));
    control->selectMode(chosen("3")); // and the pop-up closed
    supply->connectPsu();
    EXPECT_THAT(sent(), IsEmpty()) << "no speed was confirmed";
}

TEST_F(FanControlTest, TheCurveDrivesAndGivesBack) {
    start(kDuo);
    control->selectMode(chosen("1"));
    sent();
    tick(40);
    EXPECT_THAT(sent(), IsEmpty()) << "off by default";
    control->setCurveOn(true);
    tick(40);
    EXPECT_THAT(sent(), ElementsAre(Bytes{0x30, 0x41, 4, 40}));
    tick(40, 60s);
    EXPECT_THAT(sent(), IsEmpty()) << "only when it changes";
    tick(61, 60s);
    EXPECT_THAT(sent(), ElementsAre(Bytes{0x30, 0x41, 2}));
    tick(50, 60s);
    EXPECT_EQ(sent().size(), 1U);
    bus->withModel([](SupplyModel &model) { model.setFault(simulator::Fault::Silent); });
    supply->monitor().readInfo();
    QSignalSpy state(&supply->monitor(), &psu::SupplyMonitor::stateChanged);
    ASSERT_TRUE(supply->monitor().state() == psu::LinkState::Silent || state.wait());
    now += 10s;
    control->tick(now);
    ASSERT_TRUE(control->driven());
    EXPECT_EQ(control->driven()->governing, fan::Governing::NoReading);
    bus->withModel([](SupplyModel &model) { model.setFault(simulator::Fault::None); });
    supply->connectPsu();
    sent();
    tick(50);
    EXPECT_EQ(sent().size(), 1U) << "after a reconnect at once";
    control.reset(); // the end of the program
    EXPECT_THAT(sent(), ElementsAre(Bytes{0x30, 0x41, 2}));
    stop();
    start(kDuo);
    EXPECT_TRUE(control->curveOn());
    control->selectMode(chosen("0"));
    EXPECT_FALSE(control->curveOn()) << "who chooses a mode wants that mode";
    sent();
    tick(50, 60s);
    EXPECT_THAT(sent(), IsEmpty());
}

TEST_F(FanControlTest, ACurveFromAnywhereCanBeDriven) {
    start(kDuo);
    fan::FanCurve curve;
    curve.temperature = {{50, 20}, {25, 500}};
    curve.source = fan::CurveSource::Load;
    control->setCurve(curve);
    control->setTuning({99, 0});
    stop();
    start(kDuo);
    EXPECT_EQ(control->curve().source, fan::CurveSource::Load);
    EXPECT_THAT(control->curve().temperature,
                ElementsAre(fan::CurvePoint{25, 100}, fan::CurvePoint{50, 100}));
    EXPECT_EQ(control->tuning().hysteresis, 15);
    EXPECT_EQ(control->tuning().minSeconds, 2);
    settings->write({{Setting::FanCurveTemperature, QStringLiteral("x:1 40:50:60 :: 30 nan:3 50:nan")}});
    stop();
    start(kDuo);
    EXPECT_EQ(control->curve().temperature, fan::FanCurve().temperature);
}

TEST_F(FanControlTest, AStandingFanIsWrongWhenItIsHot) {
    start(kDuo);
    control->selectMode(chosen("2"));
    tick(60);
    EXPECT_TRUE(control->mayStand());
    tick(60.5);
    EXPECT_FALSE(control->mayStand());
}

} // namespace
