// The raw path over a hidapi of the test's own: this program's definitions come before the library's.
#include "platform/RawHid.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <hidapi.h>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

struct FakeHid {
    std::vector<std::string> listed;
    std::set<std::string> locked; // paths that can't be opened
    std::vector<std::string> open;
    int freedLists = 0;
    int answer = 0; // what the next exchange returns
    std::vector<unsigned char> written;
};

FakeHid fake;

} // namespace

// hidapi leaves the device opaque; here it is nothing but its path.
struct hid_device_ {
    std::string path;
};

extern "C" {

hid_device_info *hid_enumerate(unsigned short vendor, unsigned short product) {
    hid_device_info *first = nullptr;
    hid_device_info **next = &first;
    for (std::string &path : fake.listed) {
        *next = new hid_device_info{};
        (*next)->path = path.data();
        (*next)->vendor_id = vendor;
        (*next)->product_id = product;
        next = &(*next)->next;
    }
    return first;
}

void hid_free_enumeration(hid_device_info *devs) {
    ++fake.freedLists;
    while (devs != nullptr) {
        delete std::exchange(devs, devs->next);
    }
}

hid_device *hid_open_path(const char *path) {
    if (fake.locked.contains(path)) {
        return nullptr;
    }
    fake.open.emplace_back(path);
    return new hid_device_{path};
}

void hid_close(hid_device *device) {
    fake.open.erase(std::remove(fake.open.begin(), fake.open.end(), device->path), fake.open.end());
    delete device;
}

int hid_get_input_report(hid_device *, unsigned char *data, size_t length) {
    std::fill(data + 1, data + length, data[0]);
    return fake.answer;
}

int hid_write(hid_device *, const unsigned char *data, size_t length) {
    fake.written.assign(data, data + length);
    return fake.answer;
}

const wchar_t *hid_error(hid_device *) { return L"the fake's error"; }
}

namespace zpsg::platform {
namespace {

class RawHidTest : public testing::Test {
protected:
    RawHidTest() { fake = {}; }
};

TEST_F(RawHidTest, OpensTheFirstThatCanBeOpenedAndLetsGoOfEverything) {
    fake.listed = {"/dev/hidraw0", "/dev/hidraw1", "/dev/hidraw2"};
    fake.locked = {"/dev/hidraw0"};
    auto device = RawHid::open(0x264A, 0x232A);
    ASSERT_NE(device, nullptr);
    EXPECT_EQ(fake.open, std::vector<std::string>{"/dev/hidraw1"});
    EXPECT_EQ(fake.freedLists, 1);
    device.reset();
    EXPECT_TRUE(fake.open.empty());

    fake.locked.insert({"/dev/hidraw1", "/dev/hidraw2"});
    EXPECT_EQ(RawHid::open(0x264A, 0x232A), nullptr);
    EXPECT_EQ(fake.freedLists, 2);
    fake.listed.clear();
    EXPECT_EQ(RawHid::open(0x264A, 0x232A), nullptr);
}

TEST_F(RawHidTest, OnlyWholeReportsCount) {
    fake.listed = {"/dev/hidraw0"};
    const auto device = RawHid::open(0x264A, 0x232A);
    ASSERT_NE(device, nullptr);
    const std::vector<std::pair<int, bool>> cases = {{31, true}, {30, false}, {0, false}, {-1, false}};
    for (const auto &[count, good] : cases) {
        std::array<std::uint8_t, 31> report{0x10};
        fake.answer = count;
        EXPECT_EQ(device->getInputReport(report), good) << count;
        EXPECT_EQ(device->setOutputReport(report), good) << count;
        EXPECT_EQ(fake.written, std::vector<unsigned char>(31, 0x10)) << "the id asked for, and every byte";
    }
}

} // namespace
} // namespace zpsg::platform
