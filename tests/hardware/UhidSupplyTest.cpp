// The supply as hidapi finds it on a kernel's HID bus.
#include "GuestFixture.h"

#include <atomic>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <sys/syscall.h>
#include <vector>

namespace zpsg::hardware {
namespace {

using simulator::FanMode;
using simulator::Quantities;
using simulator::SupplyModel;
using vusb::Product;

const Quantities kTold{.acVolts = 231.0,
                       .volts12 = 12.09,
                       .volts5 = 5.03,
                       .volts33 = 3.31,
                       .amps12 = 41.5,
                       .amps5 = 7.25,
                       .amps33 = 3.875,
                       .celsius = 47.5,
                       .fanRpm = 1234.0};

std::uint16_t wordAt(const std::uint8_t *bytes) {
    return static_cast<std::uint16_t>(bytes[0] | (static_cast<unsigned>(bytes[1]) << 8U));
}

/// A two's-complement exponent of five bits over a mantissa: both paths' words, as far as the device uses
/// them.
double decoded(std::uint16_t word) {
    const int index = word >> 11U;
    return std::ldexp(word & 0x3FFU, index < 16 ? index : index - 32);
}

/// A word carries ten bits of the value.
void expectCarried(double carried, double value) { EXPECT_NEAR(carried, value, value / 512.0); }

std::ptrdiff_t openDescriptors() {
    const std::filesystem::directory_iterator entries("/proc/self/fd");
    return std::distance(begin(entries), end(entries));
}

using UhidSupplyTest = GuestFixture;

TEST_F(UhidSupplyTest, IsListedWhilePluggedIn) {
    for (const Product product : {Product::Main, Product::Raw, Product::Main}) {
        SCOPED_TRACE(static_cast<unsigned>(product));
        ASSERT_NO_FATAL_FAILURE(plug(product));
        hid_device_info *list = hid_enumerate(vusb::kVendorId, 0);
        ASSERT_NE(list, nullptr);
        EXPECT_EQ(list->product_id, static_cast<unsigned short>(product));
        EXPECT_EQ(list->usage_page, 0xFF00);
        EXPECT_EQ(list->next, nullptr);
        hid_free_enumeration(list);
        supply_.unplug();
        EXPECT_EQ(hid_enumerate(vusb::kVendorId, 0), nullptr);
    }
}

TEST_F(UhidSupplyTest, AnswersTheWakeUp) {
    const Hid device = plugAndOpen(Product::Main);
    ASSERT_TRUE(device);
    Reply reply{};
    ASSERT_TRUE(ask(device.get(), 0xFE, 0x31));
    ASSERT_EQ(answer(device.get(), reply), static_cast<int>(kReport));
    EXPECT_EQ(reply[0], 0xFE);
    EXPECT_EQ(reply[1], 0x31);
    supply_.withModel([](const SupplyModel &model) {
        ASSERT_EQ(model.log().size(), 1U);
        EXPECT_EQ(model.log().front().size(), kReport);
        EXPECT_EQ(model.log().front()[0], 0xFE);
    });
}

TEST_F(UhidSupplyTest, AnswersTelemetryRequestsWithItsQuantities) {
    struct Row {
        std::uint8_t command;
        double Quantities::*quantity;
    };
    constexpr std::array kRows{
        Row{0x33, &Quantities::acVolts}, Row{0x34, &Quantities::volts12}, Row{0x35, &Quantities::volts5},
        Row{0x36, &Quantities::volts33}, Row{0x37, &Quantities::amps12},  Row{0x38, &Quantities::amps5},
        Row{0x39, &Quantities::amps33},  Row{0x3A, &Quantities::celsius}, Row{0x3B, &Quantities::fanRpm}};
    const Hid device = plugAndOpen(Product::Main);
    ASSERT_TRUE(device);
    supply_.withModel([](SupplyModel &model) { model.setQuantities(kTold); });
    for (const Row &row : kRows) {
        SCOPED_TRACE(static_cast<unsigned>(row.command));
        Reply reply{};
        ASSERT_TRUE(ask(device.get(), 0x31, row.command));
        ASSERT_EQ(answer(device.get(), reply), static_cast<int>(kReport));
        EXPECT_EQ(reply[0], 0x31);
        EXPECT_EQ(reply[1], row.command);
        expectCarried(decoded(wordAt(&reply[2])), kTold.*row.quantity);
    }
}

TEST_F(UhidSupplyTest, RawSampleCarriesItsQuantities) {
    const Hid device = plugAndOpen(Product::Raw);
    ASSERT_TRUE(device);
    supply_.withModel([](SupplyModel &model) { model.setQuantities(kTold); });
    std::array<std::uint8_t, 31> sample{0x10};
    ASSERT_EQ(hid_get_input_report(device.get(), sample.data(), sample.size()),
              static_cast<int>(sample.size()));
    EXPECT_EQ(sample[0], 0x10);
    const std::vector<double> expected{kTold.volts12, kTold.amps12, kTold.volts5,        kTold.amps5,
                                       kTold.volts33, kTold.amps33, kTold.outputWatts(), kTold.fanRpm};
    for (std::size_t i = 0; i < expected.size(); ++i) {
        SCOPED_TRACE(i);
        expectCarried(decoded(wordAt(&sample[1 + 2 * i])), expected[i]);
    }
}

TEST_F(UhidSupplyTest, RawBlocksCarryModelAndSerialNumber) {
    const Hid device = plugAndOpen(Product::Raw);
    ASSERT_TRUE(device);
    struct Row {
        std::uint8_t id;
        std::string text;
    };
    for (const Row &row : {Row{0x11, "CVX-1000-D"}, Row{0x12, "SN-4711"}}) {
        SCOPED_TRACE(row.text);
        std::array<std::uint8_t, 33> block{row.id};
        ASSERT_EQ(hid_get_input_report(device.get(), block.data(), block.size()),
                  static_cast<int>(block.size()));
        EXPECT_EQ(block[0], row.id);
        EXPECT_STREQ(reinterpret_cast<const char *>(&block[1]), row.text.c_str());
    }
    std::array<std::uint8_t, 33> unknown{0x13};
    EXPECT_EQ(hid_get_input_report(device.get(), unknown.data(), unknown.size()), -1);
}

TEST_F(UhidSupplyTest, TakesFanModesOfTheRawPath) {
    struct Row {
        std::uint8_t value;
        FanMode mode;
    };
    const Hid device = plugAndOpen(Product::Raw);
    ASSERT_TRUE(device);
    for (const Row &row : {Row{2, FanMode::ZeroFan}, Row{1, FanMode::Silent}, Row{0, FanMode::Performance}}) {
        SCOPED_TRACE(static_cast<unsigned>(row.value));
        const std::array<std::uint8_t, 2> report{0x20, row.value};
        ASSERT_EQ(hid_write(device.get(), report.data(), report.size()), 2);
        EXPECT_TRUE(eventually([&] {
            bool taken = false;
            supply_.withModel([&](const SupplyModel &model) { taken = model.fanMode() == row.mode; });
            return taken;
        }));
    }
}

TEST_F(UhidSupplyTest, UnpluggingEndsARead) {
    const Hid device = plugAndOpen(Product::Main);
    ASSERT_TRUE(device);
    std::atomic<long> reader = 0;
    int result = 0;
    std::thread thread([&] {
        Reply reply{};
        reader = syscall(SYS_gettid);
        result = answer(device.get(), reply);
    });
    EXPECT_TRUE(eventually([&] { // the reader sleeps in the system
        std::ifstream file("/proc/self/task/" + std::to_string(reader) + "/syscall");
        std::string number;
        file >> number;
        return number == std::to_string(SYS_poll);
    }));
    const auto pulled = std::chrono::steady_clock::now();
    supply_.unplug();
    thread.join();
    EXPECT_EQ(result, -1);
    EXPECT_LT(std::chrono::steady_clock::now() - pulled, kPatience / 2);
    EXPECT_FALSE(ask(device.get(), 0xFE, 0x31));
}

TEST_F(UhidSupplyTest, PluggingInAHundredTimesLeaksNothing) {
    ASSERT_NO_FATAL_FAILURE(plug(Product::Main)); // what hidapi and udev open once is open from here on
    supply_.unplug();
    const auto before = openDescriptors();
    for (int i = 0; i < 100; ++i) {
        SCOPED_TRACE(i);
        const Hid device = plugAndOpen(i % 2 == 0 ? Product::Main : Product::Raw);
        ASSERT_TRUE(device);
        ASSERT_EQ(supply_.plugged(), i % 2 == 0 ? Product::Main : Product::Raw);
        // Half of them pulled out, half of them plugged over.
        if (i % 4 < 2) {
            supply_.unplug();
        }
    }
    supply_.unplug();
    EXPECT_EQ(openDescriptors(), before);
}

TEST(UhidSupplyError, SaysWhatIsMissing) {
    struct Row {
        const char *path;
        const char *told;
    };
    for (const Row &row : {Row{"/dev/no-such-node", "modprobe uhid"}, Row{"/dev/full", "takes no device"}}) {
        SCOPED_TRACE(row.path);
        vusb::UhidSupply supply(SupplyModel(), row.path);
        const auto before = openDescriptors();
        const auto error = supply.plug(Product::Main);
        ASSERT_TRUE(error);
        EXPECT_NE(error->find(row.told), std::string::npos) << *error;
        EXPECT_FALSE(supply.plugged());
        EXPECT_EQ(openDescriptors(), before);
    }
}

} // namespace
} // namespace zpsg::hardware
