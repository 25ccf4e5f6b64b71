#include "lighting/Overlay.h"
#include "lighting/PlusRing.h"
#include "lighting/SingleRing.h"

#include <gmock/gmock.h>

using namespace zpsg;
using namespace zpsg::lighting;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class Output : public LightOutput {
public:
    [[nodiscard]] bool supplyPresent() const override { return supply; }
    void send(const psu::Request &report) override { sent.push_back(report); }
    [[nodiscard]] bool secondPresent() const override { return second; }
    void sendSecond(const SecondReport &report) override { sentSecond.push_back(report); }

    std::vector<psu::Request> take() { return std::exchange(sent, {}); }
    std::vector<SecondReport> takeSecond() { return std::exchange(sentSecond, {}); }

    bool supply = true;
    bool second = false;
    std::vector<psu::Request> sent;
    std::vector<SecondReport> sentSecond;
};

QStringList rgb(const char *text) { return QString::fromLatin1(text).split(QLatin1Char(' ')); }

TEST(SingleRingTest, SendsColourAndBrightness) {
    Output output;
    SingleRing ring(output);
    EXPECT_TRUE(ring.changeColour(rgb("255 100 1")));
    EXPECT_THAT(output.take(), ElementsAre(colourReport({255, 100, 1})));
    EXPECT_TRUE(ring.changeBrightness(50));
    EXPECT_THAT(output.take(), ElementsAre(colourReport({127, 50, 0})));
    // Dark, and back without a new choice of colour.
    ring.changeBrightness(-5);
    ring.changeBrightness(900);
    EXPECT_THAT(output.take(), ElementsAre(colourReport(kDark), colourReport({255, 100, 1})));
    for (const char *bad : {"255 100", "255 100 1 7", "red green blue", ""}) {
        EXPECT_FALSE(ring.changeColour(rgb(bad))) << bad;
    }
    EXPECT_THAT(output.take(), IsEmpty());
    EXPECT_TRUE(ring.changeColour(rgb("300 -1 5")));
    EXPECT_EQ(ring.state().colour, (Colour{255, 0, 5}));
}

TEST(SingleRingTest, GoesThroughItsModes) {
    Output output;
    SingleRing ring(output);
    ring.restore({.colour = {200, 100, 50}, .brightness = 0.5});
    struct Case {
        int mode;
        std::vector<psu::Request> sent;
        BlinkTimer timer;
        bool adjustable;
        double brightness;
    };
    const std::vector<Case> cases{
        {0, {colourReport({100, 50, 25})}, BlinkTimer::None, true, 0.5},
        {3, {}, BlinkTimer::Auto, true, 0.5},
        {1, {kSpectrumReport}, BlinkTimer::None, false, 1.0},
        {2, {}, BlinkTimer::Self, false, 1.0},
    };
    for (const auto &[mode, sent, timer, adjustable, brightness] : cases) {
        SCOPED_TRACE(mode);
        EXPECT_TRUE(ring.changeLightMode(mode));
        EXPECT_EQ(output.take(), sent);
        EXPECT_EQ(ring.blinkTimer(), timer);
        EXPECT_EQ(ring.brightnessAdjustable(), adjustable);
        EXPECT_EQ(ring.state().brightness, brightness);
    }
    ring.selfBlink();
    ring.selfBlink();
    EXPECT_THAT(output.take(), ElementsAre(colourReport({200, 100, 50}), colourReport(kDark)));
    ring.changeLightMode(3);
    ring.changeBrightness(50);
    EXPECT_THAT(output.take(), IsEmpty()) << "kept for later";
    ring.autoBlink();
    ring.autoBlink();
    const auto blinks = output.take();
    ASSERT_EQ(blinks.size(), 2U);
    EXPECT_EQ(blinks[0], colourReport({127, 0, 0}));
    EXPECT_NE(blinks[0], blinks[1]);
    for (const int none : {-1, 4, 1000}) {
        EXPECT_FALSE(ring.changeLightMode(none));
    }
    EXPECT_EQ(ring.state().lightMode, 3);
}

TEST(SingleRingTest, KeepsItsColourWhileItIsOff) {
    Output output;
    SingleRing ring(output);
    ring.restore({.colour = {9, 8, 7}});
    EXPECT_TRUE(ring.turnOff(true));
    ring.changeColour(rgb("6 5 4"));
    ring.changeLightMode(2);
    EXPECT_THAT(output.take(), ElementsAre(colourReport(kDark)));
    EXPECT_EQ(ring.blinkTimer(), BlinkTimer::None);
    ring.changeLightMode(0);
    EXPECT_TRUE(ring.turnOff(false));
    EXPECT_THAT(output.take(), ElementsAre(colourReport({6, 5, 4})));
}

TEST(SingleRingTest, DrivesTheSecondDeviceOnlyWithoutTheSupply) {
    Output output;
    output.second = true;
    SingleRing ring(output);
    ring.restore({.colour = {9, 8, 7}});
    EXPECT_TRUE(ring.apply());
    EXPECT_THAT(output.takeSecond(), IsEmpty());
    output.take();
    output.supply = false;
    EXPECT_TRUE(ring.apply());
    EXPECT_TRUE(ring.changeLightMode(1));
    EXPECT_TRUE(ring.turnOff(true));
    EXPECT_THAT(output.takeSecond(), ElementsAre(secondColour({9, 8, 7}), secondEnable(true),
                                                 secondSpectrum(), secondColour(kDark)));
    EXPECT_THAT(output.take(), IsEmpty());
    output.second = false;
    EXPECT_FALSE(ring.turnOff(false));
    EXPECT_FALSE(ring.state().off);
    EXPECT_THAT(output.takeSecond(), IsEmpty());
}

TEST(PlusRingTest, SendsAFrameForEachChange) {
    Output output;
    PlusRing ring(output);
    PlusRingState state;
    state.lightMode = 3;
    ring.change(state);
    ring.store();
    EXPECT_THAT(output.take(), ElementsAre(panelFrame(state), kStoreReport));
    state.off = true;
    ring.change(state);
    const auto off = output.take();
    ASSERT_EQ(off.size(), 1U);
    // Dark in a mode that brings no colours of its own.
    EXPECT_EQ(off[0], psu::makeRequest({0x30, 0x42, 0x18}));
    EXPECT_EQ(ring.state().lightMode, 3);

    ring.thermalUpdate(70);
    state.off = false;
    ring.change(state);
    output.take();
    ring.thermalUpdate(70);
    EXPECT_THAT(output.take(), IsEmpty()) << "another mode";
    state.lightMode = kPlusThermal;
    ring.change(state);
    output.take();
    ring.thermalUpdate(70);
    EXPECT_THAT(output.take(), ElementsAre(thermalFrame(state, 70)));

    output.supply = false;
    ring.thermalUpdate(70);
    ring.change({});
    ring.store();
    EXPECT_THAT(output.take(), IsEmpty());
    EXPECT_EQ(ring.state(), PlusRingState());
}

TEST(OverlayTest, TheMostUrgentIsShown) {
    using Kind = Overlay::Kind;
    const OverlayInputs quiet;
    auto with = [](auto change) {
        OverlayInputs inputs{.gauge = GaugeKind::Load, .load = 0.25F, .celsius = 60.0F};
        change(inputs);
        return chooseOverlay(inputs);
    };
    EXPECT_EQ(chooseOverlay(quiet).kind, Kind::None);
    EXPECT_EQ(with([](auto &) {}), (Overlay{Kind::Gauge, 0.25F}));
    EXPECT_EQ(with([](auto &in) { in.load.reset(); }).kind, Kind::None);
    EXPECT_EQ(with([](auto &in) { in.load = 7.0F; }).fraction, 1.0F);
    EXPECT_EQ(with([](auto &in) { in.gauge = GaugeKind::Temperature; }).fraction, 1.0F);
    EXPECT_EQ(with([](auto &in) {
                  in.gauge = GaugeKind::Temperature;
                  in.celsius = -40.0F;
              }).fraction,
              0.0F);
    EXPECT_EQ(with([](auto &in) { in.alarmHolds = true; }).kind, Kind::Alarm);
    EXPECT_EQ(with([](auto &in) {
                  in.alarmHolds = true;
                  in.alarmOnRing = false;
              }).kind,
              Kind::Gauge);
    EXPECT_EQ(with([](auto &in) { in.alarmHolds = in.locked = true; }).kind, Kind::Dark);
    EXPECT_EQ(with([](auto &in) { in.asleep = true; }).kind, Kind::Dark);
    EXPECT_EQ(with([](auto &in) {
                  in.locked = in.asleep = true;
                  in.offWhenLocked = false;
              }).kind,
              Kind::Gauge);

    std::array<Colour, 6> leds{};
    leds.fill({1, 2, 3});
    EXPECT_FALSE(overlayFrame({}, 0, leds));
    EXPECT_EQ(leds[5], (Colour{1, 2, 3}));
    EXPECT_TRUE(overlayFrame({Kind::Dark}, 0, leds));
    EXPECT_THAT(leds, ::testing::Each(kDark));
}

} // namespace
