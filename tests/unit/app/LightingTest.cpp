// The lights with everything behind them: settings files, the supply's link and the simulated supply.
#include "app/Lighting.h"
#include "app/LightingSettings.h"
#include "simulator/SimulatedBus.h"
#include "support/DebugLines.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>

using namespace zpsg;
using namespace std::chrono_literals;
using app::Setting;
using lighting::Colour;
using lighting::RingKind;
using platform::SessionEvent;
using simulator::SupplyModel;
using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

namespace {

constexpr const char *kSingleModel = "CVD-0650-F";
constexpr const char *kPlusModel = "CVG-0850-Z";
constexpr const char *kDuoModel = "CVX-1000-D";
constexpr const char *kRawModel = "CVE-0850-A";

class LightingTest : public ::testing::Test {
protected:
    void plug(const char *model, std::uint16_t product = psu::kMainProductId) {
        bus->plug(SupplyModel(model), product);
    }

    void start() {
        settings = std::make_unique<app::Settings>(dir.path());
        supply = std::make_unique<app::Supply>(bus->backend(), psu::MonitorTiming{{200ms, 10ms, 5ms}, 5s},
                                               QStringList(dir.path()));
        lights = std::make_unique<app::Lighting>(*supply, *settings);
        supply->identifyModel();
    }

    void start(const char *model) {
        plug(model);
        start();
        sent();
    }

    void stop() {
        lights.reset();
        supply.reset();
        settings.reset();
    }

    /// The lighting reports that the supply took since the last call, report id first.
    std::vector<psu::Request> sent() {
        EXPECT_TRUE(supply->monitor().waitSent(5s));
        std::vector<psu::Request> reports;
        bus->withModel([&reports](SupplyModel &model) {
            for (const auto &payload : model.log()) {
                if (payload.at(0) == 0x30) {
                    psu::Request report{};
                    std::copy(payload.begin(), payload.end(), report.begin() + 1);
                    reports.push_back(report);
                }
            }
            model.clearLog();
        });
        return reports;
    }

    /// Whether more than `count` reports come in time.
    bool sends(std::size_t count) {
        std::size_t came = 0;
        return QTest::qWaitFor([&] { return (came += sent().size()) > count; });
    }

    std::vector<Colour> heldBySupply(RingKind ring) {
        EXPECT_TRUE(supply->monitor().waitSent(5s));
        psu::Request report = psu::makeRequest({0x30, 0x42});
        bus->withModel([&report](SupplyModel &model) {
            std::copy(model.ledFrame().begin(), model.ledFrame().end(), report.begin() + 3);
        });
        return lighting::pictured(*lighting::heldBy(report, ring), 0);
    }

    [[nodiscard]] QByteArray file() const {
        QFile ini(dir.filePath(QStringLiteral("config_12LED.ini")));
        return ini.open(QIODevice::ReadOnly) ? ini.readAll() : QByteArray();
    }

    void putFile(const QByteArray &content) const {
        QFile ini(dir.filePath(QStringLiteral("config_12LED.ini")));
        ASSERT_TRUE(ini.open(QIODevice::WriteOnly));
        ini.write(content);
    }

    QTemporaryDir dir;
    std::shared_ptr<simulator::SimulatedBus> bus = simulator::SimulatedBus::create();
    std::unique_ptr<app::Settings> settings;
    std::unique_ptr<app::Supply> supply;
    std::unique_ptr<app::Lighting> lights;
};

// By hand: the reports as the supply got them, all 65 bytes; zeros at the end are those of makeRequest().
TEST_F(LightingTest, TheSupplyGetsEveryReport) {
    using psu::makeRequest;
    start(kSingleModel);
    lights->changeColour({QStringLiteral("255"), QStringLiteral("100"), QStringLiteral("1")});
    EXPECT_THAT(sent(), ElementsAre(makeRequest({0x30, 0x42, 0x00, 0xFF, 0x64, 0x01})));
    lights->changeBrightness(50);
    EXPECT_THAT(sent(), ElementsAre(makeRequest({0x30, 0x42, 0x00, 0x7F, 0x32, 0x00})));
    lights->turnOff(true);
    EXPECT_THAT(sent(), ElementsAre(makeRequest({0x30, 0x42, 0x00})));
    lights->turnOff(false);
    EXPECT_THAT(sent(), ElementsAre(makeRequest({0x30, 0x42, 0x00, 0x7F, 0x32, 0x00})));
    lights->changeLightMode(1);
    EXPECT_THAT(sent(), ElementsAre(makeRequest({0x30, 0x42, 0x01})));
    lights->changeLightMode(2);
    lights->selfBlink();
    EXPECT_THAT(sent(), ElementsAre(makeRequest({0x30, 0x42, 0x00, 0xFF, 0x64, 0x01})));
    stop();

    start(kPlusModel);
    lighting::PlusRingState state;
    state.colourMode = lighting::kColourModeSingle;
    state.red[12] = 0x11;
    state.green[12] = 0x22;
    state.blue[12] = 0x44;
    state.brightness[12] = 0.5F;
    state.lightMode = 3;
    state.lightSpeed = 2;
    lights->changePlus(state);
    const auto all = [](std::uint8_t code, std::uint8_t green, std::uint8_t red, std::uint8_t blue,
                        std::size_t leds) {
        auto report = makeRequest({0x30, 0x42, code});
        for (std::size_t i = 0; i < leds; ++i) {
            report.at(4 + 3 * i) = green;
            report.at(5 + 3 * i) = red;
            report.at(6 + 3 * i) = blue;
        }
        return report;
    };
    EXPECT_THAT(sent(), ElementsAre(all(0x0E, 0x11, 0x08, 0x22, 12)));
    EXPECT_TRUE(lights->saveLED());
    EXPECT_THAT(sent(), ElementsAre(makeRequest({0x30, 0x43, 0x01})));
    state.colourMode = lighting::kColourModeEach;
    state.lightMode = lighting::kPlusThermal;
    supply->monitor().readInfo(); // 30 degrees
    lights->changePlus(state);
    lights->thermalUpdate();
    EXPECT_EQ(sent().back(), all(0x19, 0x00, 0x00, 0xFF, 12));
    stop();

    start(kDuoModel);
    lighting::DuoState duo;
    duo.lightMode = {6, 6};
    duo.colourMode = {1, 1};
    duo.singleRed = {0x12, 0x12};
    duo.singleGreen = {0x34, 0x34};
    duo.singleBlue = {0x56, 0x56};
    lights->changeDuo(duo);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        const auto reports = sent();
        return std::count(reports.begin(), reports.end(), all(0x18, 0x34, 0x12, 0x56, 18)) > 0;
    }));
}

TEST_F(LightingTest, ThePictureIsWhatTheSupplyHolds) {
    start(kPlusModel);
    lighting::PlusRingState state;
    for (const int mode : {0, 2, 6, 7}) {
        state.lightMode = mode;
        state.brightness[3] = 0.3F;
        lights->changePlus(state);
        EXPECT_EQ(heldBySupply(RingKind::Plus), lights->leds(0)) << mode;
    }
    state.off = true;
    lights->changePlus(state);
    EXPECT_EQ(heldBySupply(RingKind::Plus), lights->leds(0));
    EXPECT_THAT(lights->leds(0), Each(lighting::kDark));
    stop();

    start(kDuoModel);
    lighting::DuoState duo;
    duo.lightMode = {6, 6};
    lights->changeDuo(duo);
    const auto expected = lighting::duoLeds(duo, {}, 0, 0);
    const std::vector leds(expected.begin(), expected.end());
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return heldBySupply(RingKind::Duo) == leds && lights->leds(0) == leds; }));
    stop();

    start(kSingleModel);
    lights->changeBrightness(20);
    EXPECT_EQ(heldBySupply(RingKind::Single), lights->leds(0));
    bus->unplug();
    supply->connectPsu();
    lights->changeBrightness(100);
    EXPECT_THAT(lights->leds(0), ElementsAre(lights->single().colour)) << "what will be sent when it is back";
}

TEST_F(LightingTest, TheSecondDeviceStandsIn) {
    plug(kRawModel, psu::kRawProductId);
    start();
    ASSERT_EQ(lights->ring(), RingKind::Single);
    const auto light = [this] {
        std::array<std::uint8_t, 16> report{};
        EXPECT_TRUE(supply->monitor().waitSent(5s));
        bus->withModel([&report](SupplyModel &model) { report = model.secondLight(); });
        return report;
    };
    lights->changeColour({QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")});
    EXPECT_EQ(light(), (lighting::SecondReport{0x1E, 0x00, 1, 2, 3}));
    bus->withModel([](SupplyModel &model) { model.clearLog(); });
    lights->changeLightMode(1);
    EXPECT_EQ(light(), (lighting::SecondReport{0x1E, 0x03}));
    bus->withModel([](SupplyModel &model) {
        ASSERT_EQ(model.log().size(), 2U);
        EXPECT_EQ(model.log()[0],
                  (std::vector<std::uint8_t>{0x1E, 0x01, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    });
    lights->turnOff(true);
    EXPECT_EQ(light(), (lighting::SecondReport{0x1E}));
}

TEST_F(LightingTest, IsRestoredAtTheNextStartAndAfterAReconnect) {
    start(kSingleModel);
    lights->changeColour({QStringLiteral("9"), QStringLiteral("8"), QStringLiteral("7")});
    lights->changeBrightness(50);
    stop(); // saved on the way out
    plug(kSingleModel);
    start();
    const auto expected = lighting::colourReport({4, 4, 3});
    EXPECT_THAT(sent(), ElementsAre(expected));
    bus->unplug();
    EXPECT_FALSE(supply->connectPsu());
    plug(kSingleModel);
    EXPECT_TRUE(supply->connectPsu());
    EXPECT_THAT(sent(), ElementsAre(expected));
    lights->sessionEvent(SessionEvent::Resumed);
    EXPECT_THAT(sent(), ElementsAre(expected));
    // A supply that was silent may have forgotten.
    bus->withModel([](SupplyModel &model) { model.setFault(simulator::Fault::Silent); });
    supply->monitor().readInfo();
    QSignalSpy live(&supply->monitor(), &psu::SupplyMonitor::stateChanged);
    bus->withModel([](SupplyModel &model) { model.setFault(simulator::Fault::None); });
    EXPECT_TRUE(QTest::qWaitFor([&] {
        supply->monitor().readInfo();
        return live.count() > 0 && supply->monitor().state() == psu::LinkState::Live;
    }));
    EXPECT_THAT(sent(), Contains(expected));
}

TEST_F(LightingTest, TheFileHasItsKeysAndTheDefaultsOnce) {
    start();
    const QByteArray written = file();
    for (const char *line :
         {"[18LED_Color]", "isWriteData=true", "isLEDTurnOn=true", "lightMode=\"0,0\"", "speedMode=\"0,0\"",
          "RColor=\"0,0,0,0,127,255,255,255,255,255,127,0,0,0,0,0,127,255,255,255,255,255,127,0\"",
          "GColor=\"127,255,255,255,255,255,127,0,0,0,0,0,127,255,255,255,255,255,127,0,0,0,0,0\"",
          "BColor=\"255,255,127,0,0,0,0,0,127,255,255,255,255,255,127,0,0,0,0,0,127,255,255,255\"",
          "SingleRColor=\"255,0\"", "SingleGColor=\"0,255\"", "SingleBColor=\"0,0\"",
          "SingleBright=\"1,1\""}) {
        EXPECT_THAT(written.toStdString(), HasSubstr(line));
    }
    stop();
    start(kDuoModel);
    lighting::DuoState duo;
    duo.brightness[23] = 1.0 / 3.0;
    duo.on = false;
    lights->changeDuo(duo);
    EXPECT_TRUE(lights->saveLED());
    stop();
    start();
    EXPECT_THAT(file().toStdString(), HasSubstr(",0.333333\""));
    EXPECT_FALSE(lights->duo().on);
    stop();

    start(kPlusModel);
    auto state = lights->plus();
    state.colourMode = lighting::kColourModeSingle;
    state.red[5] = 77;
    state.brightness[12] = 0.25F;
    lights->changePlus(state);
    EXPECT_TRUE(lights->saveLED());
    stop();
    start();
    state.panelBrightness = 25; // of the slot that is shown
    EXPECT_EQ(lights->plus(), state) << "all thirteen slots";
    EXPECT_THAT(file().toStdString(), HasSubstr("[12LED_Color]"));
    EXPECT_THAT(file().toStdString(), HasSubstr("Bright=\"1,1,1,1,1,1,1,1,1,1,1,1,0.25\""));
    EXPECT_THAT(file().toStdString(), HasSubstr("isLEDTurnOn=false")) << "what another ring has kept stays";
}

TEST_F(LightingTest, AMissingFileBlocksTwoOfTheThreeSaves) {
    struct Case {
        const char *model;
        bool saved;
    };
    for (const auto &[model, saved] :
         {Case{kSingleModel, true}, Case{kPlusModel, false}, Case{kDuoModel, false}}) {
        SCOPED_TRACE(model);
        start(model);
        QSignalSpy missing(lights.get(), &app::Lighting::missingFile);
        QFile::remove(dir.filePath(QStringLiteral("config_12LED.ini")));
        sent();
        EXPECT_EQ(lights->saveLED(), saved);
        EXPECT_EQ(missing.count(), saved ? 0 : 1);
        EXPECT_EQ(file().isEmpty(), !saved);
        EXPECT_THAT(sent(), ::testing::Not(Contains(lighting::kStoreReport)));
        stop();
    }
}

TEST_F(LightingTest, ADamagedFileIsMendedEntryByEntry) {
    putFile("[single_LED_Color]\nCOLOR_RGB=300, blue\nBright=-7\ncolorMode=9\nisTurnOffLed=perhaps\n"
            "[12LED_Color]\nRColor=\"1,x,3\"\nGColor=9, 8, 7, 6, 5, 4, 3, 2, 1, 0, 1, 2, 3, 4, "
            "5\nBright=\"0.5,nan,7,-1\"\n"
            "lightMode=99\nlightSpeed=-1\ncolorMode=purple\n"
            "[18LED_Color]\nisWriteData=true\nlightMode=\"20,21\"\nSingleBright=\"0.5\"\nsomething=else\n");
    const support::DebugLines lines(QStringLiteral("zpsg.app.debug=true"));
    start();
    EXPECT_EQ(lights->single().colour, (Colour{255, 127, 255}));
    EXPECT_EQ(lights->single().brightness, 0.0);
    EXPECT_FALSE(lights->single().off);
    const auto &plus = lights->plus();
    EXPECT_THAT((std::vector<int>{plus.red[0], plus.red[1], plus.red[2], plus.red[3], plus.red[4]}),
                ElementsAre(1, 0, 3, 0, 127));
    EXPECT_EQ(plus.green[12], 3);
    EXPECT_THAT((std::vector<float>{plus.brightness[0], plus.brightness[1], plus.brightness[2],
                                    plus.brightness[3], plus.brightness[4]}),
                ElementsAre(0.5F, 1.0F, 1.0F, 0.0F, 1.0F));
    EXPECT_EQ(plus.lightMode, 0);
    EXPECT_EQ(plus.lightSpeed, 2);
    EXPECT_THAT(lights->duo().lightMode, ElementsAre(20, 0));
    EXPECT_THAT(lights->duo().singleBrightness, ElementsAre(0.5, 1.0));
    EXPECT_THAT(support::DebugLines::text().toStdString(), HasSubstr("/12LED_Color/RColor"));
    plug(kSingleModel);
    supply->connectPsu();
    EXPECT_TRUE(lights->saveLED());
    EXPECT_THAT(file().toStdString(), HasSubstr("something=else")) << "what nobody knows is kept";
    EXPECT_THAT(file().toStdString(), HasSubstr("RColor=\"1,x,3\"")) << "only what is saved is written";
}

TEST_F(LightingTest, WhatIsMoreUrgentCoversTheLightAndGivesItBack) {
    start(kPlusModel);
    lighting::PlusRingState state;
    state.lightMode = 6;
    lights->changePlus(state);
    const auto own = sent().back();
    supply->monitor().readInfo();
    lights->setOverlayOptions(lighting::GaugeKind::Load, lighting::Palette::ColourBlindSafe, true, true);
    lights->takeReading();
    const auto gauge = sent();
    ASSERT_EQ(gauge.size(), 1U);
    EXPECT_NE(gauge[0], own);
    lights->takeReading();
    EXPECT_TRUE(sent().empty()) << "nothing has changed";
    lights->setAlarmHolds(true);
    EXPECT_TRUE(sends(1)) << "it pulses";
    state.red.fill(0);
    lights->changePlus(state); // kept for later
    lights->sessionEvent(SessionEvent::Locked);
    EXPECT_EQ(sent().back(), psu::makeRequest({0x30, 0x42, 0x18}));
    lights->setAlarmHolds(false);
    lights->setOverlayOptions(lighting::GaugeKind::None, lighting::Palette::Usual, true, true);
    EXPECT_TRUE(sent().empty()) << "still locked";
    lights->sessionEvent(SessionEvent::Unlocked);
    EXPECT_THAT(sent(), ElementsAre(lighting::panelFrame(state)));
    state.off = true;
    lights->changePlus(state);
    sent();
    lights->setAlarmHolds(true);
    EXPECT_TRUE(sent().empty()) << "off is off";
    stop();
    start();
    EXPECT_EQ(lights->overlay().gauge, lighting::GaugeKind::None);
    lights->setOverlayOptions(lighting::GaugeKind::Temperature, lighting::Palette::ColourBlindSafe, false,
                              false);
    stop();
    start();
    EXPECT_EQ(lights->overlay().gauge, lighting::GaugeKind::Temperature);
    EXPECT_EQ(lights->overlay().palette, lighting::Palette::ColourBlindSafe);
    EXPECT_FALSE(lights->overlay().alarmOnRing);
    EXPECT_FALSE(lights->overlay().offWhenLocked);
}

TEST_F(LightingTest, AnotherProgramsFramesComeAndGo) {
    start(kPlusModel);
    const auto own = sent();
    const std::vector<Colour> frame(12, Colour{1, 2, 3});
    lights->showFrame(frame);
    EXPECT_THAT(sent(), ElementsAre(lighting::streamedFrame(frame)));
    lights->showFrame(std::vector<Colour>(18));
    EXPECT_TRUE(sent().empty()) << "another ring's";
    lights->showOwnLight();
    EXPECT_THAT(sent(), ElementsAre(lighting::panelFrame(lights->plus())));
    auto off = lights->plus();
    off.off = true;
    lights->changePlus(off);
    sent();
    lights->showFrame(frame);
    EXPECT_TRUE(sent().empty()) << "off is off";
    stop();

    start(kSingleModel);
    lights->changeLightMode(2); // a blink, which must not go on beside the frames
    sent();
    lights->showFrame({Colour{1, 2, 3}});
    EXPECT_THAT(sent(), ElementsAre(lighting::colourReport({1, 2, 3})));
    QTest::qWait(3 * lighting::kSelfBlinkMilliseconds / 2);
    EXPECT_TRUE(sent().empty());
    EXPECT_TRUE(sends(1)) << "nobody sends any more, so it blinks again";
}

TEST_F(LightingTest, TheDuoSetGoesDarkBeforeThePcSleeps) {
    start(kDuoModel);
    EXPECT_TRUE(sends(3));
    lights->sessionEvent(SessionEvent::GoingToSleep);
    EXPECT_THAT(heldBySupply(RingKind::Duo), Each(lighting::kDark));
    lights->sessionEvent(SessionEvent::Resumed);
    EXPECT_TRUE(QTest::qWaitFor([this] {
        const auto leds = heldBySupply(RingKind::Duo);
        return std::any_of(leds.begin(), leds.end(), [](Colour led) { return led != lighting::kDark; });
    }));
}

TEST_F(LightingTest, StreamsOnWithoutHelpAfterAReplug) {
    start(kDuoModel);
    EXPECT_TRUE(sends(3));
    bus->unplug();
    EXPECT_FALSE(supply->connectPsu());
    plug(kDuoModel);
    EXPECT_TRUE(supply->connectPsu());
    EXPECT_TRUE(sends(3));
}

TEST_F(LightingTest, HasNoRingWithoutALightingFan) {
    start("CVB-0450-S");
    EXPECT_FALSE(lights->ring());
    EXPECT_TRUE(lights->saveLED());
    EXPECT_TRUE(lights->leds(0).empty());
    lights->changeBrightness(10);
    EXPECT_TRUE(sent().empty());
}

} // namespace
