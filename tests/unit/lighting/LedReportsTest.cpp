#include "lighting/LedReports.h"

#include <gmock/gmock.h>

#include <string>

using namespace zpsg;
using namespace zpsg::lighting;

namespace {

/// "00 30 42" and so on; zeros at the end are left out.
template <typename Report>
std::string hex(const Report &report) {
    std::string text;
    std::size_t end = report.size();
    while (end > 0 && report[end - 1] == 0) {
        --end;
    }
    for (std::size_t i = 0; i < end; ++i) {
        constexpr const char *kDigits = "0123456789abcdef";
        text += i == 0 ? "" : " ";
        text += kDigits[report[i] / 16];
        text += kDigits[report[i] % 16];
    }
    return text;
}

/// Slot i: red 10 + i, green 100 + i, blue 200 + i; factors 1.
PlusRingState numbered() {
    PlusRingState state;
    for (std::size_t i = 0; i < kPlusSlots; ++i) {
        state.red.at(i) = 10 + static_cast<int>(i);
        state.green.at(i) = 100 + static_cast<int>(i);
        state.blue.at(i) = 200 + static_cast<int>(i);
    }
    return state;
}

PlusRingState numbered(int lightMode, int colourMode, int speed) {
    PlusRingState state = numbered();
    state.lightMode = lightMode;
    state.colourMode = colourMode;
    state.lightSpeed = speed;
    return state;
}

std::string times(int count, const std::string &part) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += " " + part;
    }
    return text;
}

std::array<Colour, kDuoLeds> eighteen() {
    std::array<Colour, kDuoLeds> leds{};
    for (std::size_t i = 0; i < kDuoLeds; ++i) {
        leds.at(i) = {static_cast<std::uint8_t>(0x10 + i), static_cast<std::uint8_t>(0x40 + i),
                      static_cast<std::uint8_t>(0x80 + i)};
    }
    return leds;
}

const char *const kNumberedLeds = " 64 0a c8 65 0b c9 66 0c ca 67 0d cb 68 0e cc 69 0f cd"
                                  " 6a 10 ce 6b 11 cf 6c 12 d0 6d 13 d1 6e 14 d2 6f 15 d3";

TEST(LedReportsTest, EveryReportByteForByte) {
    PlusRingState halves = numbered(6, 0, 0);
    halves.brightness.fill(0.5F);
    PlusRingState bright = numbered(6, 1, 0);
    bright.red[12] = 255;
    bright.green[12] = 127;
    bright.blue[12] = 3;
    bright.brightness[12] = 0.29F;
    PlusRingState wide = numbered(6, 1, 0);
    wide.red[12] = 0x1FF; // of what does not fit into a byte the low byte counts
    struct Case {
        const char *name;
        psu::Request report;
        std::string bytes;
    };
    const std::vector<Case> cases{
        {"single colour", colourReport({0x12, 0x34, 0x56}), "00 30 42 00 12 34 56"},
        {"single off", colourReport(kDark), "00 30 42"},
        {"spectrum", kSpectrumReport, "00 30 42 01"},
        {"store", kStoreReport, "00 30 43 01"},
        {"panel, blink at normal speed", panelFrame(numbered(3, 0, 2)),
         std::string("00 30 42 0e") + kNumberedLeds},
        {"panel, flow at extreme", panelFrame(numbered(0, 0, 0)), std::string("00 30 42 00") + kNumberedLeds},
        {"panel, wave at slow", panelFrame(numbered(5, 0, 3)), std::string("00 30 42 17") + kNumberedLeds},
        {"panel, full lighted at any speed", panelFrame(numbered(6, 0, 3)),
         std::string("00 30 42 18") + kNumberedLeds},
        {"panel, thermal code", panelFrame(numbered(7, 0, 3)), std::string("00 30 42 19") + kNumberedLeds},
        {"panel, single colour mode", panelFrame(numbered(2, 1, 1)), "00 30 42 09" + times(12, "70 16 d4")},
        {"panel, any other colour mode", panelFrame(numbered(2, 2, 1)),
         std::string("00 30 42 09") + kNumberedLeds},
        {"panel, halves are truncated", panelFrame(halves),
         "00 30 42 18 32 05 64 32 05 64 33 06 65 33 06 65 34 07 66 34 07 66 35 08 67 35 08 67 36 09 68 36 09 "
         "68"
         " 37 0a 69 37 0a 69"},
        {"panel, single precision", panelFrame(bright), "00 30 42 18" + times(12, "24 49 00")},
        {"panel, low byte", panelFrame(wide), "00 30 42 18" + times(12, "70 ff d4")},
        {"streamed 12", streamedFrame(numbered(3, 0, 2), 100), std::string("00 30 42 18") + kNumberedLeds},
        {"streamed 12 at half of halves", streamedFrame(halves, 50),
         "00 30 42 18 19 02 32 19 02 32 19 03 32 19 03 32 1a 03 33 1a 03 33 1a 04 33 1a 04 33 1b 04 34 1b 04 "
         "34"
         " 1b 05 34 1b 05 34"},
        {"streamed 12, single", streamedFrame(numbered(3, 1, 2), 10), "00 30 42 18" + times(12, "0b 02 15")},
        {"thermal at 60", thermalFrame(numbered(7, 0, 0), 60.0F), "00 30 42 19" + times(12, "00 00 ff")},
        {"thermal above", thermalFrame(numbered(7, 0, 0), 60.1F), "00 30 42 19" + times(12, "4e f5 00")},
        {"thermal in single colour mode: slot 12 is dark", thermalFrame(numbered(7, 1, 0), 60.1F),
         "00 30 42 19"},
        {"Duo, each slot", duoFrame(eighteen(), DuoLayout::EachSlot),
         "00 30 42 18 40 10 80 41 11 81 42 12 82 43 13 83 44 14 84 45 15 85 46 16 86 47 17 87 48 18 88 49 19 "
         "89"
         " 4a 1a 8a 4b 1b 8b 4c 1c 8c 4d 1d 8d 4e 1e 8e 4f 1f 8f 50 20 90 51 21 91"},
        {"Duo, odd slots", duoFrame(eighteen(), DuoLayout::OddSlots),
         "00 30 42 18" + times(3, "41 11 81 43 13 83 45 15 85 47 17 87 49 19 89 4b 1b 8b")},
    };
    for (const auto &[name, report, bytes] : cases) {
        // Zeros at the end of the expectation are left out like those of the report.
        std::string expected = bytes;
        while (expected.size() > 3 && expected.substr(expected.size() - 3) == " 00") {
            expected.resize(expected.size() - 3);
        }
        EXPECT_EQ(hex(report), expected) << name;
        EXPECT_EQ(report.size(), 65U);
    }
    EXPECT_EQ(hex(secondColour({0x12, 0x34, 0x56})), "1e 00 12 34 56");
    EXPECT_EQ(hex(secondEnable(true)), "1e 01 01");
    EXPECT_EQ(hex(secondEnable(false)), "1e 01");
    EXPECT_EQ(hex(secondSpectrum()), "1e 03");
}

TEST(LedReportsTest, SingleColourIsScaledInDoublePrecision) {
    struct Case {
        int percent;
        Colour shown;
    };
    for (const auto &[percent, shown] : {Case{100, {255, 100, 1}}, Case{50, {127, 50, 0}}, Case{0, {}},
                                         Case{29, {73, 28, 0}}, Case{7, {17, 7, 0}}, Case{1, {2, 0, 0}}}) {
        EXPECT_EQ(scaled({255, 100, 1}, brightnessFactor(percent)), shown) << percent;
    }
}

TEST(LedReportsTest, TellsWhatTheLedsHold) {
    const auto single = heldBy(colourReport({1, 2, 3}), RingKind::Single);
    ASSERT_TRUE(single);
    EXPECT_THAT(single->colours, ::testing::ElementsAre(Colour{1, 2, 3}));
    EXPECT_FALSE(single->spectrum);
    EXPECT_TRUE(heldBy(kSpectrumReport, RingKind::Single)->spectrum);

    const auto plus = heldBy(panelFrame(numbered(3, 0, 2)), RingKind::Plus);
    ASSERT_TRUE(plus);
    EXPECT_EQ(plus->effectCode, 0x0E);
    EXPECT_EQ(plus->colours.size(), kPlusLeds);
    EXPECT_EQ(plus->colours.back(), (Colour{21, 111, 211}));
    EXPECT_FALSE(heldBy(streamedFrame(numbered(), 100), RingKind::Plus)->effectCode);

    const auto leds = eighteen();
    EXPECT_THAT(heldBy(duoFrame(leds, DuoLayout::EachSlot), RingKind::Duo)->colours,
                ::testing::ElementsAreArray(leds));
    EXPECT_FALSE(heldBy(kStoreReport, RingKind::Plus));
    EXPECT_FALSE(heldBy(secondEnable(true)));
    EXPECT_THAT(heldBy(secondColour({7, 8, 9}))->colours, ::testing::ElementsAre(Colour{7, 8, 9}));

    // What stands still is drawn as it is held; what the device animates moves.
    EXPECT_EQ(pictured(*single, 40), single->colours);
    EXPECT_NE(pictured(*plus, 10), pictured(*plus, 20));
    EXPECT_NE(pictured(*heldBy(kSpectrumReport, RingKind::Single), 0),
              pictured(*heldBy(secondSpectrum()), 30));
}

} // namespace
