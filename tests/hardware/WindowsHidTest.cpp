// The Windows code against a kernel's HID device: wine's HID bus hands on what the kernel has, to HidHelper,
// which does what it is told with the program's own code. What arrives at the supply is compared here.
#include "ChildProcess.h"
#include "GuestFixture.h"

#include "vusb/Descriptor.h"
#include "vusb/UhidEvents.h"

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <future>
#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace zpsg::hardware {
namespace {

using simulator::FanMode;
using simulator::Fault;
using simulator::SupplyModel;
using vusb::Product;

/// An emulated machine starts wine in three quarters of a minute, and makes a device known in seconds.
constexpr auto kWinePatience = 180s;

std::string shown(std::span<const std::uint8_t> bytes) {
    std::string text;
    for (const unsigned byte : bytes) {
        std::array<char, 4> buffer{};
        std::snprintf(buffer.data(), buffer.size(), " %02x", byte);
        text += buffer.data();
    }
    return text;
}

class WindowsHidTest : public GuestFixture {
protected:
    static void SetUpTestSuite() {
        GuestFixture::SetUpTestSuite();
        start();
    }
    static void TearDownTestSuite() {
        helper_.reset();
        GuestFixture::TearDownTestSuite();
    }

    void SetUp() override {
        if (!helper_) {
            start(); // the test before this got no answer
        }
        ASSERT_TRUE(helper_) << "wine does not start";
    }
    void TearDown() override {
        for (const char *command : {"raw close", "hid close", "watch stop"}) {
            does(command);
        }
        unplug();
        // The next test's device is another one.
        comesTo("raw open", "none");
        comesTo("hid open", "none");
    }

    static void start() {
        helper_ = std::make_unique<ChildProcess>(
            "/usr/bin/env", std::vector<std::string>{"wine", std::getenv("ZPSG_HID_HELPER")});
        if (!helper_->readLineWith("ready", kWinePatience)) {
            helper_.reset();
        }
    }

    /// The helper's answer to a command.
    static std::string does(const std::string &command) {
        const auto line = helper_ && helper_->write(command + '\n') ? helper_->readLine(kWinePatience)
                                                                    : std::optional<std::string>();
        if (!line) {
            helper_.reset();
            return "no answer";
        }
        return line->substr(0, line->find('\r'));
    }

    /// The last of the answers to `command`, which is asked until it is `expected`.
    static std::string comesTo(const std::string &command, const std::string &expected) {
        std::string answer;
        eventually([&] { return (answer = does(command)) == expected || !helper_; }, 3 * kPatience);
        return answer;
    }

    /// What udevd does elsewhere: the node appears at once with its rights. Wine takes a node whose rights
    /// are set later for gone.
    void makeNode(Product product) {
        std::string name;
        ASSERT_TRUE(eventually([&] { return !(name = listed(product)).empty(); })) << "no device came";
        node_ = "/dev/" + name;
        std::ifstream number("/sys/class/hidraw/" + name + "/dev");
        unsigned first = 0, second = 0;
        char colon = 0;
        ASSERT_TRUE(number >> first >> colon >> second);
        ASSERT_EQ(mknod(node_.c_str(), S_IFCHR | S_IRUSR | S_IWUSR, makedev(first, second)), 0);
    }
    void plug(Product product) {
        const auto error = supply_.plug(product);
        ASSERT_FALSE(error) << *error;
        makeNode(product);
    }
    void unplug() {
        supply_.unplug();
        unlink(node_.c_str());
    }

    void plugAndOpenThere(Product product) {
        ASSERT_NO_FATAL_FAILURE(plug(product));
        ASSERT_EQ(comesTo(product == Product::Raw ? "raw open" : "hid open", "ok"), "ok");
    }

    std::vector<std::vector<std::uint8_t>> arrived() {
        std::vector<std::vector<std::uint8_t>> reports;
        supply_.withModel([&](SupplyModel &model) {
            reports = model.log();
            model.clearLog();
        });
        return reports;
    }

    static inline std::unique_ptr<ChildProcess> helper_;

private:
    /// The name of the supply's hidraw node, whether it is there or not; empty without a device.
    static std::string listed(Product product) {
        hid_device_info *list = hid_enumerate(vusb::kVendorId, static_cast<std::uint16_t>(product));
        const std::string path = list != nullptr ? list->path : "";
        hid_free_enumeration(list);
        return path.substr(path.rfind('/') + 1);
    }

    std::string node_;
};

TEST_F(WindowsHidTest, NothingIsThereWithoutADevice) {
    EXPECT_EQ(does("raw open"), "none");
    EXPECT_EQ(does("hid initialise"), "ok");
    EXPECT_EQ(does("hid open"), "none");
    EXPECT_EQ(does("hid presence"), "absent");
}

TEST_F(WindowsHidTest, RawInputReportsArriveWhole) {
    // Asked for an input report, wine tells the last one that the device has sent by itself.
    SupplyModel model("CVX-1000-D", "SN-4711");
    const vusb::Descriptor uhid(open("/dev/uhid", O_RDWR | O_CLOEXEC));
    ASSERT_TRUE(vusb::tell(uhid.get(), vusb::creationEvent(Product::Raw, vusb::InputLength::Exact)));
    ASSERT_NO_FATAL_FAILURE(makeNode(Product::Raw));
    ASSERT_EQ(comesTo("raw open", "ok"), "ok");
    for (const std::uint8_t id : {0x10, 0x11, 0x12}) {
        SCOPED_TRACE(static_cast<unsigned>(id));
        const auto report = model.inputReport(id)->bytes;
        ASSERT_TRUE(vusb::tell(uhid.get(), vusb::inputEvent(report)));
        const std::string asked = "raw get" + shown({&id, 1}) + ' ';
        EXPECT_TRUE(
            eventually([&] { return does(asked + std::to_string(report.size())) == "ok" + shown(report); }));
        EXPECT_EQ(does(asked + std::to_string(report.size() - 1)), "failed");
    }
    EXPECT_EQ(does("raw get 13 33"), "failed");
}

TEST_F(WindowsHidTest, RawOutputReportsArriveAsSent) {
    ASSERT_NO_FATAL_FAILURE(plugAndOpenThere(Product::Raw));
    const std::vector<std::vector<std::uint8_t>> reports{
        {0x20, 0x02},
        {0x1E, 0x01, 0x01, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0},
        {0x1E, 0x00, 0xFF, 0x80, 0x01, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0x5A},
    };
    for (const auto &report : reports) {
        EXPECT_EQ(does("raw set" + shown(report)), "ok");
    }
    EXPECT_EQ(does("raw set 1e 00 ff"), "failed");
    EXPECT_EQ(arrived(), reports);
    supply_.withModel([&](const SupplyModel &model) {
        EXPECT_EQ(model.fanMode(), FanMode::ZeroFan);
        EXPECT_TRUE(std::equal(reports.back().begin(), reports.back().end(), model.secondLight().begin()));
    });
    unplug();
    EXPECT_EQ(comesTo("raw set" + shown(reports.front()), "failed"), "failed");
    EXPECT_EQ(does("raw get 10 31"), "failed");
    EXPECT_EQ(does("raw close"), "ok");
    EXPECT_EQ(comesTo("raw open", "none"), "none");
}

TEST_F(WindowsHidTest, TheMainPathIsAskedAndAnswers) {
    ASSERT_NO_FATAL_FAILURE(plugAndOpenThere(Product::Main));
    EXPECT_EQ(does("hid presence"), "present");
    std::vector<std::uint8_t> frame{0x30, 0x42, 0x18};
    for (std::uint8_t byte = 0xC0; frame.size() < kReport; ++byte) {
        frame.push_back(byte);
    }
    for (const auto &question : {std::vector<std::uint8_t>{0xFE, 0x31}, {0x31, 0x33}, {0x31, 0x3D}, frame}) {
        SCOPED_TRACE(shown(question));
        auto sent = question;
        sent.resize(kReport);
        EXPECT_EQ(does("hid write 00" + shown(question)), "65");
        const std::string answer = does("hid read 20000");
        EXPECT_EQ(arrived(), std::vector(1, sent));
        std::vector<std::uint8_t> expected;
        supply_.withModel([&](SupplyModel &model) {
            expected = model.output(sent, false)->bytes;
            model.clearLog();
        });
        EXPECT_EQ(answer, "64" + shown(expected));
    }
    EXPECT_EQ(does("hid read 300"), "0");
}

TEST_F(WindowsHidTest, SilenceAndUnpluggingEndARead) {
    ASSERT_NO_FATAL_FAILURE(plugAndOpenThere(Product::Main));
    supply_.withModel([](SupplyModel &model) { model.setFault(Fault::Silent); });
    EXPECT_EQ(does("hid write 00 31 34"), "65");
    EXPECT_EQ(does("hid read 500"), "0");
    supply_.withModel([](SupplyModel &model) { model.setFault(Fault::None); });
    EXPECT_EQ(does("hid write 00 31 35"), "65");
    EXPECT_EQ(does("hid read 20000").substr(0, 8), "64 31 35");

    const auto asked = std::chrono::steady_clock::now();
    auto read = std::async(std::launch::async, [] { return does("hid read 60000"); });
    EXPECT_EQ(read.wait_for(2s), std::future_status::timeout);
    unplug();
    EXPECT_EQ(read.get(), "-1");
    EXPECT_LT(std::chrono::steady_clock::now() - asked, 30s);
    EXPECT_EQ(does("hid write 00 31 34"), "-1");
    EXPECT_EQ(does("hid close"), "ok");
    EXPECT_EQ(comesTo("hid open", "none"), "none");
    EXPECT_EQ(does("hid presence"), "absent");
}

TEST_F(WindowsHidTest, ComingAndGoingIsNoticed) {
    ASSERT_EQ(does("watch start"), "ok");
    EXPECT_EQ(does("watch wait 1000"), "0");
    ASSERT_NO_FATAL_FAILURE(plug(Product::Main));
    EXPECT_EQ(does("watch wait 60000"), "1");
    EXPECT_EQ(does("hid presence"), "present");
    unplug();
    EXPECT_EQ(does("watch wait 60000"), "1");
    EXPECT_EQ(does("hid presence"), "absent");
}

} // namespace
} // namespace zpsg::hardware
