#include "sensors/HwinfoLabels.h"
#include "unit/sensors/HwinfoBytes.h"
#include "unit/sensors/ReadingText.h"

#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace zpsg::sensors {
namespace {

using State = HwinfoBlock::State;

PcReading read(const FakeHwinfo &pc, std::string card = {}) {
    const auto bytes = pc.bytes();
    return fromHwinfo(decodeHwinfo(bytes), card);
}

/// Everything that a decoded block refers to, so that a sanitizer sees each byte.
std::size_t weigh(const HwinfoBlock &block) {
    std::size_t sum = 0;
    for (const HwinfoReading &reading : block.readings) {
        for (const auto part : {reading.sensor, reading.label, reading.unit}) {
            sum += static_cast<std::size_t>(std::count(part.begin(), part.end(), 'x'));
        }
    }
    return sum;
}

TEST(HwinfoBlockTest, ReadsAPcWhateverTheElementsAreFollowedBy) {
    for (const std::uint32_t more : {0U, 1U, 144U}) {
        for (const char *signature : {"HWiS", "SiWH"}) {
            FakeHwinfo pc = ryzenPc();
            pc.more = more;
            pc.signature = signature;
            const PcReading reading = read(pc);
            EXPECT_EQ(text(reading), "1.375 41.5 88.25 64.5 | 1.05 - 301.5 70") << more << signature;
            EXPECT_EQ(reading.cpuName, QStringLiteral("AMD Ryzen 7 5800X"));
            EXPECT_EQ(reading.gpuName, QStringLiteral("NVIDIA GeForce RTX 3080"));
        }
    }
}

TEST(HwinfoBlockTest, MapsWhatOtherPcsShow) {
    struct Case {
        const char *what;
        std::vector<FakeHwinfo::Reading> readings;
        const char *expected;
    };
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    const std::string full(128, 'x');
    const std::vector<Case> cases{
        {"nothing", {}, kNothing},
        {"Intel, in Fahrenheit",
         {{HwinfoType::Temperature, 0, "CPU Package",
           "\xB0"
           "F",
           122},
          {HwinfoType::Watts, 0, "CPU Package Power", "W", 65},
          {HwinfoType::Volts, 0, "Core 0 VID", "V", 1.2},
          {HwinfoType::Volts, 0, "Vcore", "V", 1.3}},
         "1.3 - 65 50 | - - - -"},
        {"the board's power before the chip's",
         {{HwinfoType::Watts, 0, "GPU ASIC Power", "W", 180},
          {HwinfoType::Watts, 0, "Total Graphics Power (TGP)", "W", 200},
          {HwinfoType::Watts, 0, "Total Board Power (TBP)", "W", 240},
          {HwinfoType::Amps, 0, "GPU Core Current", "A", 150}},
         "- - - - | - 150 240 -"},
        {"a senseless value loses to the next best",
         {{HwinfoType::Watts, 0, "GPU Power", "W", kNan}, {HwinfoType::Watts, 0, "GPU ASIC Power", "W", 20}},
         "- - - - | - - 20 -"},
        {"other types, units and sensors",
         {{HwinfoType::Usage, 0, "CPU Package Power", "W", 65},
          {HwinfoType::Watts, 0, "CPU Package Power", "%", 65},
          {HwinfoType::Watts, 0, "CPU Package Power", "", 65},
          {HwinfoType::Temperature, 0, "CPU Package", "K", 300},
          {HwinfoType::Temperature, 0, "CPU Package", "", 30},
          {HwinfoType::Temperature, 0, "CPU Package Limit", "C", 95},
          {HwinfoType{77}, 0, "GPU Temperature", "C", 50},
          {HwinfoType::Temperature, 9, "GPU Temperature", "C", 50},
          {HwinfoType::Temperature, 0xFFFFFFFF, "GPU Temperature", "C", 50},
          {HwinfoType::Temperature, 0, full, "C", 50}},
         kNothing},
    };
    for (const Case &one : cases) {
        FakeHwinfo pc;
        pc.sensors = {"a sensor"};
        pc.readings = one.readings;
        EXPECT_EQ(text(read(pc)), one.expected) << one.what;
    }
}

TEST(HwinfoBlockTest, KeepsTheCardThatWasShown) {
    FakeHwinfo pc = ryzenPc();
    pc.readings.at(12).value = 20; // the shown one's watts have fallen
    EXPECT_EQ(read(pc, "GPU [#1]").gpuName, QStringLiteral("NVIDIA T400"));
    EXPECT_EQ(read(pc, "GPU [#0]").gpuName, QStringLiteral("NVIDIA GeForce RTX 3080"));
}

TEST(HwinfoBlockTest, NeverLeavesTheBlock) {
    struct Poke {
        const char *what;
        std::size_t at;
        std::uint32_t value;
        State expected;
    };
    constexpr std::uint32_t kMost = 0xFFFFFFFF;
    const std::vector<Poke> pokes{
        {"ended", 0, 0x44414544, State::Ended},
        {"ended, the other way round", 0, 0x44454144, State::Ended},
        {"no signature", 0, 0, State::Torn},
        {"sensors beyond the end", 20, kMost, State::Torn},
        {"sensors inside the header", 20, 8, State::Torn},
        {"sensors too small", 24, 263, State::Torn},
        {"sensors of no size", 24, 0, State::Torn},
        {"sensors too large", 24, kMost, State::Torn},
        {"too many sensors", 28, kMost, State::Torn},
        {"readings beyond the end", 32, kMost - 4, State::Torn},
        {"readings too small", 36, 315, State::Torn},
        {"readings too large", 36, 317, State::Torn},
        {"one reading too many", 40, 14, State::Torn},
        {"a product of 2^32", 40, 0x80000000, State::Torn},
        {"no readings", 40, 0, State::Good},
        {"sections that overlap", 32, 44, State::Good},
    };
    const auto good = ryzenPc().bytes();
    for (const Poke &poke : pokes) {
        auto bytes = good;
        FakeHwinfo::put(bytes, poke.at, poke.value);
        const HwinfoBlock block = decodeHwinfo(bytes);
        weigh(block);
        EXPECT_EQ(block.state, poke.expected) << poke.what;
        EXPECT_TRUE(poke.expected == State::Good || block.readings.empty()) << poke.what;
    }
    for (std::size_t size = 0; size < good.size(); ++size) {
        const std::vector<std::byte> cut(good.begin(), good.begin() + static_cast<std::ptrdiff_t>(size));
        EXPECT_EQ(decodeHwinfo(cut).state, State::Torn) << size;
    }
    std::mt19937 random(1); // NOLINT: the same bytes in every run
    for (int round = 0; round < 20000; ++round) {
        auto bytes = good;
        for (int change = 0; change < 3; ++change) {
            // Half of them in the header.
            const std::size_t reach = random() % 2 == 0 ? 44 : bytes.size();
            bytes.at(random() % reach) = static_cast<std::byte>(random());
        }
        const HwinfoBlock block = decodeHwinfo(bytes);
        weigh(block);
        std::string card;
        fromHwinfo(block, card);
    }
}

} // namespace
} // namespace zpsg::sensors
