// NVIDIA's library, played by a library of the test's own that is really loaded.
#include "unit/sensors/FakeNvml.h"
#include "unit/sensors/FakeTree.h"
#include "unit/sensors/ReadingText.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

namespace zpsg::sensors {
namespace {

using namespace std::chrono_literals;

class NvmlTest : public testing::Test {
protected:
    NvmlTest() {
        nvml() = {};
        nvml().count = 1;
        nvml().cards = {{{"NVIDIA GeForce RTX 4070", 63, 172500}, {"NVIDIA T400", 41, 9000}}};
        tree_.write({{kDriver, "NVRM version"}});
    }

    /// Held by the test, so that the state outlives what the program loads and unloads.
    static FakeNvml &nvml() {
        static void *library = dlopen(ZPSG_FAKE_NVML, RTLD_NOW | RTLD_LOCAL);
        static auto *state = reinterpret_cast<FakeNvmlFunction *>(dlsym(library, "zpsgFakeNvml"));
        return *state();
    }

    std::string readAfter(std::chrono::milliseconds passed) {
        return text(source_.read(clock_.after(passed)).reading);
    }

    static constexpr const char *kDriver = "proc/driver/nvidia/version";
    static constexpr const char *kStatus = "sys/bus/pci/drivers/nvidia/0000:01:00.0/power/runtime_status";
    FakeTree tree_;
    TestClock clock_;
    ChipSource source_ = tree_.source(ZPSG_FAKE_NVML);
};

TEST_F(NvmlTest, ReadsTheCardAndItsName) {
    {
        ChipSource source = tree_.source(ZPSG_FAKE_NVML);
        const auto result = source.read(clock_.after(0s));
        EXPECT_EQ(text(result.reading), "- - - - | - - 172.5 63");
        EXPECT_EQ(result.reading.gpuName, QStringLiteral("NVIDIA GeForce RTX 4070"));
    }
    EXPECT_EQ(nvml().inits, 1);
    EXPECT_EQ(nvml().shutdowns, 1);
}

TEST_F(NvmlTest, WithoutLibraryOrFunctionsThereIsNoCard) {
    for (const char *library : {"/nowhere/libnvidia-ml.so", "libm.so.6", ""}) {
        ChipSource source = tree_.source(library);
        EXPECT_EQ(source.read(clock_.after(0s)).state, SourceState::Gone) << library;
    }
}

TEST_F(NvmlTest, LeavesTheLibraryAloneWithoutItsDriver) {
    std::filesystem::remove(tree_.at(kDriver));
    EXPECT_EQ(readAfter(0s), kNothing);
    EXPECT_EQ(nvml().inits, 0);
    nvml().initResult = 9;
    tree_.write({{kDriver, "NVRM version"}});
    EXPECT_EQ(readAfter(30s), kNothing);
    nvml().initResult = 0;
    EXPECT_EQ(readAfter(30s), "- - - - | - - 172.5 63");
    std::filesystem::remove(tree_.at(kDriver));
    EXPECT_EQ(readAfter(30s), kNothing);
    EXPECT_EQ(nvml().shutdowns, 1);
}

TEST_F(NvmlTest, LoadsAnewWhenItHasGoneSilent) {
    EXPECT_EQ(readAfter(0s), "- - - - | - - 172.5 63");
    nvml().answerResult = 15; // the card is lost
    EXPECT_EQ(readAfter(30s), kNothing);
    nvml().count = 0;
    EXPECT_EQ(readAfter(30s), kNothing);
    nvml().answerResult = 0;
    nvml().count = 2;
    std::swap(nvml().cards[0], nvml().cards[1]);
    EXPECT_EQ(readAfter(30s), "- - - - | - - 172.5 63") << "the card with the higher power, now the second";
    EXPECT_EQ(nvml().inits, nvml().shutdowns + 1);
}

TEST_F(NvmlTest, WakesNoCard) {
    tree_.write({{kStatus, "suspended"}, {"sys/bus/pci/drivers/nvidia/bind", ""}});
    EXPECT_EQ(readAfter(0s), kNothing);
    EXPECT_EQ(nvml().inits, 0);
    tree_.write({{kStatus, "active"}});
    EXPECT_EQ(readAfter(30s), "- - - - | - - 172.5 63");
    tree_.write({{kStatus, "suspended"}});
    const int asked = nvml().asked;
    EXPECT_EQ(readAfter(1s), kNothing);
    EXPECT_EQ(readAfter(60s), kNothing);
    EXPECT_EQ(nvml().asked, asked);
    tree_.write({{kStatus, "active"}});
    EXPECT_EQ(readAfter(1s), "- - - - | - - 172.5 63");
}

TEST_F(NvmlTest, WhatBlocksIsLeftAloneUntilTheNextLook) {
    tree_.chip("hwmon0", {{"name", "cpu_thermal"}, {"temp1_input", "44000"}});
    EXPECT_EQ(readAfter(0s), "- - - 44 | - - 172.5 63");
    readAfter(1s);
    nvml().milliseconds = 110;
    EXPECT_EQ(readAfter(1s), "- - - 44 | - - 172.5 63");
    const int asked = nvml().asked;
    EXPECT_EQ(readAfter(1s), "- - - 44 | - - - -");
    EXPECT_EQ(nvml().asked, asked);
    nvml().milliseconds = 0;
    EXPECT_EQ(readAfter(30s), "- - - 44 | - - 172.5 63");
}

} // namespace
} // namespace zpsg::sensors
