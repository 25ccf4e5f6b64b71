// The supply's faults, as they arrive through the kernel at hidapi.
#include "GuestFixture.h"

#include <functional>
#include <gmock/gmock.h>

namespace zpsg::hardware {
namespace {

using simulator::Fault;
using simulator::SupplyModel;
using vusb::Product;

using UhidFaultTest = GuestFixture;

TEST_F(UhidFaultTest, ArrivesAsItIs) {
    struct Row {
        const char *name;
        Fault fault;
        std::size_t length;
        std::chrono::milliseconds wait;
        int count;
    };
    constexpr std::array kRows{
        Row{"none", Fault::None, 0, kPatience, kReport},
        Row{"silent", Fault::Silent, 0, 500ms, 0},
        Row{"two bytes", Fault::Short, 2, kPatience, 2},
        Row{"one less", Fault::Short, 63, kPatience, 63},
        Row{"no bytes", Fault::Short, 0, 500ms, 0},
        Row{"garbage", Fault::Garbage, 0, kPatience, kReport},
        Row{"none again", Fault::None, 0, kPatience, kReport},
    };
    const Hid device = plugAndOpen(Product::Main, vusb::InputLength::Loose);
    ASSERT_TRUE(device);
    for (const Row &row : kRows) {
        SCOPED_TRACE(row.name);
        supply_.withModel([&](SupplyModel &model) {
            model.setFault(row.fault);
            model.setFaultLength(row.length);
        });
        Reply reply{};
        ASSERT_TRUE(ask(device.get(), 0x31, 0x34));
        EXPECT_EQ(answer(device.get(), reply, row.wait), row.count);
        if (row.fault == Fault::None) {
            EXPECT_EQ(reply[1], 0x34);
        }
    }
}

TEST_F(UhidFaultTest, ShortReportIsNeverFilledUp) {
    // With the device's own descriptor it depends on the kernel whether a short report comes or is dropped.
    const Hid device = plugAndOpen(Product::Main);
    ASSERT_TRUE(device);
    supply_.withModel([](SupplyModel &model) {
        model.setFault(Fault::Short);
        model.setFaultLength(7);
    });
    ASSERT_TRUE(ask(device.get(), 0x31, 0x34));
    Reply reply{};
    EXPECT_THAT(answer(device.get(), reply, 500ms), ::testing::AnyOf(0, 7));
    supply_.withModel([](SupplyModel &model) { model.setFault(Fault::None); });
    ASSERT_TRUE(ask(device.get(), 0x31, 0x35));
    ASSERT_EQ(answer(device.get(), reply), static_cast<int>(kReport));
    EXPECT_EQ(reply[1], 0x35);
}

TEST_F(UhidFaultTest, SlowAnswersKeepTheirOrder) {
    constexpr auto kDelay = 300ms;
    const Hid device = plugAndOpen(Product::Main);
    ASSERT_TRUE(device);
    supply_.withModel([&](SupplyModel &model) {
        model.setFault(Fault::Slow);
        model.setFaultDelay(kDelay);
    });
    const auto asked = std::chrono::steady_clock::now();
    ASSERT_TRUE(ask(device.get(), 0x31, 0x34));
    ASSERT_TRUE(eventually([this] {
        std::size_t taken = 0;
        supply_.withModel([&](const SupplyModel &model) { taken = model.log().size(); });
        return taken == 1;
    }));
    supply_.withModel([](SupplyModel &model) { model.setFault(Fault::None); });
    ASSERT_TRUE(ask(device.get(), 0x31, 0x35)); // at once by itself, but it stands behind the slow one
    for (const std::uint8_t command : {0x34, 0x35}) {
        Reply reply{};
        ASSERT_EQ(answer(device.get(), reply), static_cast<int>(kReport));
        EXPECT_EQ(reply[1], command);
        EXPECT_GE(std::chrono::steady_clock::now() - asked, kDelay);
    }
}

TEST_F(UhidFaultTest, RawRequestsFail) {
    struct Row {
        const char *name;
        std::function<void(SupplyModel &)> act;
        int count;
    };
    const std::array rows{
        Row{"silent", [](SupplyModel &model) { model.setFault(Fault::Silent); }, -1},
        Row{"short",
            [](SupplyModel &model) {
                model.setFault(Fault::Short);
                model.setFaultLength(5);
            },
            5},
        Row{"none", [](SupplyModel &model) { model.setFault(Fault::None); }, 31},
    };
    const Hid device = plugAndOpen(Product::Raw);
    ASSERT_TRUE(device);
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        supply_.withModel(row.act);
        std::array<std::uint8_t, 31> sample{0x10};
        EXPECT_EQ(hid_get_input_report(device.get(), sample.data(), sample.size()), row.count);
    }
}

} // namespace
} // namespace zpsg::hardware
