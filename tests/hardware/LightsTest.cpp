// The program with its window (off screen) and its lights against a kernel's HID device: the Duo set streams
// while telemetry runs, through unplugging; and the second lighting device gets its output reports.
#include "ChildProcess.h"
#include "GuestFixture.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>

namespace zpsg::hardware {
namespace {

using simulator::SupplyModel;
using vusb::Product;

constexpr std::uint8_t kStreamedCode = 0x18;
constexpr std::size_t kDuoBytes = 54;

class LightsTest : public GuestFixture {
protected:
    LightsTest() {
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        std::filesystem::remove_all(kData);
    }

    void startProgram() {
        program_ =
            std::make_unique<ChildProcess>(ZPSG_PROGRAM, std::vector<std::string>{"--data-dir", kData});
    }

    void end() {
        program_->signal(SIGTERM);
        EXPECT_EQ(program_->wait(kPatience), 0);
    }

    /// What the supply was sent since the last call.
    struct Taken {
        std::size_t frames = 0;
        std::size_t questions = 0;
        std::size_t whole = 0; ///< frames of 18 LEDs, at least one of them lit, and nothing behind them
    };
    Taken taken() {
        Taken taken;
        supply_.withModel([&taken](SupplyModel &model) {
            for (const auto &report : model.log()) {
                if (report.at(0) == 0x31) {
                    ++taken.questions;
                } else if (report.at(0) == 0x30 && report.at(1) == 0x42) {
                    ++taken.frames;
                    const auto leds = report.begin() + 3;
                    const bool lit = std::any_of(leds, leds + kDuoBytes, [](auto byte) { return byte != 0; });
                    const bool rest =
                        std::any_of(leds + kDuoBytes, report.end(), [](auto byte) { return byte != 0; });
                    taken.whole += report.at(2) == kStreamedCode && lit && !rest ? 1 : 0;
                }
            }
            model.clearLog();
        });
        return taken;
    }

    static constexpr const char *kData = "/run/zpsg-lights";
    std::unique_ptr<ChildProcess> program_;
};

TEST_F(LightsTest, TheDuoSetStreamsForAMinuteThroughUnplugging) {
    constexpr auto kRound = 20s;
    constexpr std::size_t kFramesPerSecond = 25;
    constexpr std::size_t kQuestionsPerPass = 9;
    plug(Product::Main);
    startProgram();
    for (int round = 0; round < 3; ++round) {
        SCOPED_TRACE(round);
        std::size_t seen = 0;
        ASSERT_TRUE(eventually([&] { return (seen += taken().whole) > 3; })) << "no light came";
        std::this_thread::sleep_for(kRound);
        const Taken all = taken();
        RecordProperty("frames_" + std::to_string(round), static_cast<int>(all.frames));
        // The emulated machine is slow; what is lost by stuttering or by waiting for telemetry would be more.
        EXPECT_GE(all.frames, kRound.count() * kFramesPerSecond * 9 / 10);
        EXPECT_LE(all.frames, kRound.count() * kFramesPerSecond + 3);
        EXPECT_EQ(all.whole, all.frames);
        EXPECT_GE(all.questions, (kRound.count() - 2) * kQuestionsPerPass);
        EXPECT_LE(all.questions, (kRound.count() + 2) * kQuestionsPerPass);
        supply_.unplug();
        ASSERT_TRUE(eventually([] { return nodeOf(Product::Main).empty(); }));
        plug(Product::Main);
    }
    end();
}

TEST_F(LightsTest, TheSecondDeviceIsLitAndSwitched) {
    supply_.withModel([](SupplyModel &model) { model = SupplyModel("CVE-0850-A", "SN-4711"); });
    plug(Product::Raw);
    startProgram();
    std::array<std::uint8_t, 16> light{};
    EXPECT_TRUE(eventually([&] {
        supply_.withModel([&light](SupplyModel &model) { light = model.secondLight(); });
        return light[0] == 0x1E;
    })) << "the ring's colour was not restored";
    EXPECT_EQ(light, (std::array<std::uint8_t, 16>{0x1E, 0x00, 0, 127, 255}));
    end();
}

} // namespace
} // namespace zpsg::hardware
