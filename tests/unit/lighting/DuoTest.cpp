#include "lighting/ZpsCirqDuo_SendCommand.h"

#include <gmock/gmock.h>

#include <condition_variable>
#include <thread>

using namespace zpsg;
using namespace zpsg::lighting;
using namespace std::chrono_literals;
using ::testing::Each;

namespace {

constexpr int kFullLighted = 6;
constexpr int kCopyColor = 7;
constexpr int kParty = 10;

DuoState still() {
    DuoState state;
    state.lightMode = {kFullLighted, kFullLighted};
    return state;
}

template <std::size_t N>
std::vector<Colour> part(const DuoLeds &leds, std::size_t from) {
    return {leds.begin() + static_cast<std::ptrdiff_t>(from),
            leds.begin() + static_cast<std::ptrdiff_t>(from + N)};
}

std::vector<Colour> front(const DuoLeds &leds) { return part<kFrontLeds>(leds, 0); }
std::vector<Colour> middle(const DuoLeds &leds) { return part<kMiddleLeds>(leds, kFrontLeds); }

TEST(DuoEngineTest, EachRingShowsItsEntries) {
    DuoState state = still();
    state.brightness[1] = 0.5;
    const auto leds = duoLeds(state, {}, 0, 0);
    for (std::size_t i = 0; i < kFrontLeds; ++i) {
        const std::size_t entry = 2 * i + 1;
        const double factor = i == 0 ? 0.5 : 1.0;
        EXPECT_EQ(leds.at(i), scaled({static_cast<std::uint8_t>(state.red.at(entry)),
                                      static_cast<std::uint8_t>(state.green.at(entry)),
                                      static_cast<std::uint8_t>(state.blue.at(entry))},
                                     factor))
            << i;
    }
    EXPECT_EQ(leds[6], (Colour{0, 127, 255}));
    EXPECT_EQ(leds[13], (Colour{255, 0, 0}));
    EXPECT_EQ(leds[17], (Colour{0, 0, 255}));
}

TEST(DuoEngineTest, TheRingsAreSetApart) {
    DuoState state = still();
    state.colourMode = {kColourModeSingle, kColourModeEach};
    state.singleBrightness = {0.5, 1};
    auto leds = duoLeds(state, {}, 0, 0);
    EXPECT_THAT(front(leds), Each(Colour{127, 0, 0}));
    EXPECT_NE(leds[6], leds[7]);

    state.lightMode[kMiddle] = kCopyColor;
    leds = duoLeds(state, {}, 0, 0);
    EXPECT_THAT(middle(leds), Each(Colour{127, 0, 0}));
    state.lightMode = {kCopyColor, kFullLighted};
    state.colourMode = {kColourModeEach, kColourModeSingle};
    EXPECT_THAT(front(duoLeds(state, {}, 0, 0)), Each(Colour{0, 255, 0}));
    state.lightMode = {kCopyColor, kCopyColor};
    leds = duoLeds(state, {}, 0, 0);
    EXPECT_NE(leds[0], leds[1]) << "its own colours";

    state.lightMode = {9999, -3}; // no effect of that number
    EXPECT_NE(duoLeds(state, {}, 94, 0), DuoLeds());
}

TEST(DuoEngineTest, OffIsDarkAndAnOverlayComesFirst) {
    DuoState state = still();
    DuoSurroundings around;
    around.overlay = {Overlay::Kind::Gauge, 1.0F};
    const auto gauge = duoLeds(state, around, 0, 0);
    EXPECT_NE(gauge, duoLeds(state, {}, 0, 0));
    EXPECT_THAT(gauge, ::testing::Not(::testing::Contains(kDark))) << "both rings are full";
    around.overlay = {Overlay::Kind::Dark};
    EXPECT_THAT(duoLeds(state, around, 0, 0), Each(kDark));
    state.on = false;
    around.overlay = {Overlay::Kind::Alarm};
    EXPECT_THAT(duoLeds(state, around, 5, 5), Each(kDark));

    EXPECT_FALSE(needsSound(state));
    state.lightMode[kMiddle] = kParty;
    EXPECT_FALSE(needsSound(state)) << "off";
    state.on = true;
    EXPECT_TRUE(needsSound(state));
}

/// The thread's slot, called by hand, with a clock that a test sets.
class SendCommandTest : public ::testing::Test {
protected:
    ZpsCirqDuo_SendCommand command{[this](const psu::Request &report) {
                                       sent.push_back(report);
                                       now += takes;
                                       return taken;
                                   },
                                   [this] { return now; }};

    int framesIn(std::chrono::milliseconds time) {
        const std::size_t before = sent.size();
        for (const auto end = now + time; now < end; now += 40ms) {
            command.runEffect();
        }
        return static_cast<int>(sent.size() - before);
    }

    std::vector<psu::Request> sent;
    std::chrono::steady_clock::time_point now{1h};
    std::chrono::milliseconds takes{0};
    bool taken = true;
};

TEST_F(SendCommandTest, ACycleHas95Steps) {
    DuoState state;
    state.speedMode = {3, 3};
    command.setState(state);
    for (int i = 0; i < 2 * kEffectSteps; ++i) {
        command.runEffect();
    }
    EXPECT_EQ(std::vector(sent.begin(), sent.begin() + kEffectSteps),
              std::vector(sent.begin() + kEffectSteps, sent.end()));
    EXPECT_NE(sent[10], sent[30]);
    EXPECT_EQ(sent[0], duoFrame(duoLeds(state, {}, 1, 1), DuoLayout::EachSlot));
    EXPECT_EQ(duoFrame(command.shown(), DuoLayout::EachSlot), sent.back());
}

TEST_F(SendCommandTest, GoesOnSendingDarknessWhileItIsOff) {
    DuoState state;
    state.on = false;
    command.setState(state);
    command.runEffect();
    command.runEffect();
    EXPECT_THAT(sent, ::testing::ElementsAre(psu::makeRequest({0x30, 0x42, 0x18}),
                                             psu::makeRequest({0x30, 0x42, 0x18})));
}

TEST_F(SendCommandTest, LeavesASlowSupplyItsTimeForTelemetry) {
    EXPECT_EQ(framesIn(4s), 100);
    takes = 2ms; // as the real device: no rest
    EXPECT_GE(framesIn(4200ms), 99);
    takes = 300ms;
    EXPECT_LE(framesIn(30s), 11); // a tenth of the time
    takes = 200ms;
    taken = false;
    EXPECT_LE(framesIn(30s), 4);
    // Back, and lit at once.
    takes = 0ms;
    taken = true;
    EXPECT_EQ(framesIn(40ms), 0);
    command.setState({});
    EXPECT_EQ(framesIn(40ms), 1);
}

TEST_F(SendCommandTest, AnotherProgramsFrameStaysTwoSeconds) {
    DuoLeds frame{};
    frame.fill({1, 2, 3});
    command.showFrame(frame);
    framesIn(1960ms);
    EXPECT_EQ(sent.back(), duoFrame(frame, DuoLayout::EachSlot));
    framesIn(80ms);
    EXPECT_NE(sent.back(), duoFrame(frame, DuoLayout::EachSlot));
    command.showFrame(frame);
    command.setOverlay({Overlay::Kind::Dark});
    framesIn(40ms);
    EXPECT_THAT(command.shown(), Each(kDark)) << "an overlay comes first";
}

TEST_F(SendCommandTest, ListensOnlyWhileAnEffectDoes) {
    int asked = 0;
    command.setSoundSource([&asked] {
        ++asked;
        Sound loud;
        loud.level = 1.0F;
        loud.bands.fill(1.0F);
        return loud;
    });
    command.runEffect();
    EXPECT_EQ(asked, 0);
    DuoState state;
    state.lightMode = {11, 11};
    command.setState(state);
    command.runEffect();
    EXPECT_EQ(asked, 1);
    EXPECT_NE(sent[0], sent[1]);
    command.setSoundSource(nullptr);
    command.runEffect();
    EXPECT_NE(sent[1], sent[2]) << "silence";
}

// Under ThreadSanitizer: the window changes everything while the thread streams.
TEST(SendCommandThreadTest, StreamsWhileItIsChanged) {
    std::mutex mutex;
    std::condition_variable came;
    int frames = 0;
    {
        ZpsCirqDuo_SendCommand command([&](const psu::Request &) {
            const std::lock_guard lock(mutex);
            ++frames;
            came.notify_all();
            return true;
        });
        command.start();
        for (int round = 1; round <= 5; ++round) {
            DuoState state;
            state.lightMode = {round, 20 - round};
            command.setState(state);
            command.setCelsius(static_cast<float>(round));
            command.setOverlay({round % 2 == 0 ? Overlay::Kind::Gauge : Overlay::Kind::None, 0.5F});
            command.setSoundSource([] { return Sound(); });
            EXPECT_LE(command.shown().size(), kDuoLeds);
            std::unique_lock lock(mutex);
            ASSERT_TRUE(came.wait_for(lock, 30s, [&] { return frames >= round; }));
        }
    }
    const int atEnd = frames;
    std::this_thread::sleep_for(100ms);
    EXPECT_EQ(frames, atEnd) << "the thread has ended with its object";
}

} // namespace
