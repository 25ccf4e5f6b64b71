// What tests in the virtual machine share: a supply on its USB HID bus, and its hidraw node.
#pragma once

#include "vusb/UhidSupply.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <functional>
#include <gtest/gtest.h>
#include <hidapi.h>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <unistd.h>

namespace zpsg::hardware {

using namespace std::chrono_literals;

/// Emulation is slow, and what the kernel does happens a moment later: nothing is waited for longer than
/// this.
inline constexpr std::chrono::milliseconds kPatience = 20s;

/// Whether `condition` became true in time.
inline bool eventually(const std::function<bool()> &condition, std::chrono::milliseconds wait = kPatience) {
    const auto deadline = std::chrono::steady_clock::now() + wait;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline) {
            return false;
        }
        std::this_thread::sleep_for(2ms);
    }
    return true;
}

struct CloseHid {
    void operator()(hid_device *device) const { hid_close(device); }
};
using Hid = std::unique_ptr<hid_device, CloseHid>;

/// The path of the hidraw node of the supply with this product id, once it is listed and there. Empty
/// without.
inline std::string nodeOf(vusb::Product product) {
    hid_device_info *list = hid_enumerate(vusb::kVendorId, static_cast<std::uint16_t>(product));
    const std::string path = list != nullptr ? list->path : "";
    hid_free_enumeration(list);
    return path.empty() || access(path.c_str(), R_OK | W_OK) != 0 ? std::string() : path;
}

class GuestFixture : public ::testing::Test {
protected:
    static void SetUpTestSuite() { ASSERT_EQ(hid_init(), 0); }
    static void TearDownTestSuite() { hid_exit(); }

    /// Plugs the supply in and waits for its node.
    void plug(vusb::Product product, vusb::InputLength length = vusb::InputLength::Exact) {
        const auto error = supply_.plug(product, length);
        ASSERT_FALSE(error) << *error;
        ASSERT_TRUE(eventually([&] { return !nodeOf(product).empty(); })) << "no hidraw node came";
    }

    /// The supply, plugged in and opened.
    Hid plugAndOpen(vusb::Product product, vusb::InputLength length = vusb::InputLength::Exact) {
        plug(product, length);
        Hid device(hid_open_path(nodeOf(product).c_str()));
        EXPECT_TRUE(device) << "the node does not open";
        return device;
    }

    vusb::UhidSupply supply_{simulator::SupplyModel("CVX-1000-D", "SN-4711")};
};

/// The size of a main path's report.
inline constexpr std::size_t kReport = 64;
using Reply = std::array<std::uint8_t, kReport>;

/// Writes the main path's command of two bytes. False when the device is gone.
inline bool ask(hid_device *device, std::uint8_t first, std::uint8_t second) {
    std::array<std::uint8_t, kReport + 1> report{0x00, first, second};
    return hid_write(device, report.data(), report.size()) == static_cast<int>(report.size());
}

/// Reads into `reply`; as hid_read_timeout: the count of bytes, 0 when none came in time, -1 when gone.
inline int answer(hid_device *device, Reply &reply, std::chrono::milliseconds wait = kPatience) {
    return hid_read_timeout(device, reply.data(), reply.size(), static_cast<int>(wait.count()));
}

} // namespace zpsg::hardware
