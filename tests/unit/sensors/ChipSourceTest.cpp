// Which value of which chip is taken, in trees as different PCs have them.
#include "platform/linux/HwmonCard.h"
#include "unit/sensors/FakeTree.h"
#include "unit/sensors/ReadingText.h"

#include <gtest/gtest.h>

namespace zpsg::sensors {
namespace {

using namespace std::chrono_literals;

const std::string kRapl = "sys/class/powercap/intel-rapl:0/";

/// `entry` of /sys/class/hwmon with these files.
Files chip(const std::string &entry, const Files &files) {
    Files result;
    for (const auto &[name, content] : files) {
        result.emplace_back(FakeTree::hwmon(entry) + '/' + name, content);
    }
    return result;
}

Files operator+(Files a, const Files &b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

const Files kTctl = chip("hwmon0", {{"name", "k10temp"}, {"temp1_label", "Tctl"}, {"temp1_input", "61000"}});
const Files kApu = chip("hwmon1", {{"name", "amdgpu"},
                                   {"in0_label", "vddgfx"},
                                   {"in0_input", "950"},
                                   {"in1_label", "vddnb"},
                                   {"in1_input", "700"},
                                   {"power1_label", "PPT"},
                                   {"power1_input", "55000000"},
                                   {"temp1_label", "edge"},
                                   {"temp1_input", "40000"}});

Files card(const std::string &entry, const std::string &microwatts, const std::string &status) {
    return chip(entry, {{"name", "amdgpu"},
                        {"in0_label", "vddgfx"},
                        {"in0_input", "1100"},
                        {"power1_label", "PPT"},
                        {"power1_average", microwatts},
                        {"temp1_label", "edge"},
                        {"temp1_input", "52000"},
                        {"temp2_label", "junction"},
                        {"temp2_input", "70000"},
                        {"device/power/runtime_status", status}});
}

struct TreeCase {
    const char *what;
    Files files;
    Files aSecondLater;
    const char *expected; // of the second reading
};

const std::vector<TreeCase> kTrees{
    {"nothing at all", {}, {}, kNothing},
    {"a laptop with nothing of use",
     chip("hwmon0", {{"name", "acpitz"}, {"temp1_input", "27800"}}) +
         chip("hwmon1", {{"name", "nvme"}, {"temp1_label", "Composite"}, {"temp1_input", "36850"}}) +
         chip("hwmon2", {{"name", "BAT0"}, {"in0_input", "12100"}, {"power1_input", "9000000"}}),
     {},
     kNothing},
    {"Intel with its energy counter, beside a board chip without labels",
     chip("hwmon0", {{"name", "nct6775"}, {"in0_input", "1240"}, {"temp1_input", "35000"}}) +
         chip("hwmon10", {{"name", "coretemp"},
                          {"temp1_label", "Package id 0"},
                          {"temp1_input", "48000"},
                          {"temp2_label", "Core 0"},
                          {"temp2_input", "51000"}}) +
         Files{{kRapl + "name", "package-0"},
               {kRapl + "energy_uj", "1000000"},
               {kRapl + "max_energy_range_uj", "262143328850"},
               {kRapl + "intel-rapl:0:0/name", "core"}},
     {{kRapl + "energy_uj", "66000000"}},
     "- - 65 48 | - - - -"},
    {"the platform's sum is not the processor's",
     {{kRapl + "name", "psys"}, {kRapl + "energy_uj", "0"}},
     {{kRapl + "energy_uj", "90000000"}},
     kNothing},
    {"AMD with zenpower: Tdie before Tctl, the cores' own rail",
     chip("hwmon3", {{"name", "zenpower"},
                     {"temp1_label", "Tctl"},
                     {"temp1_input", "75000"},
                     {"temp2_label", "Tdie"},
                     {"temp2_input", "55000"},
                     {"in1_label", "SVI2_Core"},
                     {"in1_input", "1281"},
                     {"in2_label", "SVI2_SoC"},
                     {"in2_input", "1100"},
                     {"curr1_label", "SVI2_C_Core"},
                     {"curr1_input", "42500"},
                     {"curr2_label", "SVI2_C_SoC"},
                     {"curr2_input", "9000"},
                     {"power1_label", "SVI2_P_Core"},
                     {"power1_input", "54400000"},
                     {"power2_label", "SVI2_P_SoC"},
                     {"power2_input", "9900000"}}),
     {},
     "1.281 42.5 54.4 55 | - - - -"},
    {"a board that names its core voltage; the one at 0 V is not connected",
     kTctl + chip("hwmon1", {{"name", "it8686"},
                             {"in0_label", "Vcore"},
                             {"in0_input", "0"},
                             {"in3_label", "Vcore"},
                             {"in3_input", "1404"},
                             {"in4_label", "+12V"},
                             {"in4_input", "12096"}}),
     {},
     "1.404 - - 61 | - - - -"},
    {"a board computer",
     chip("hwmon0", {{"name", "cpu_thermal"}, {"temp1_input", "44312"}}),
     {},
     "- - - 44.312 | - - - -"},
    {"k10temp and a card", kTctl + card("hwmon1", "187000000", "active"), {}, "- - - 61 | 1.1 - 187 52"},
    {"a card on its own before one in the processor that takes more",
     kApu + card("hwmon2", "12000000", "active"),
     {},
     "- - - - | 1.1 - 12 52"},
    {"unless it sleeps", kApu + card("hwmon2", "12000000", "suspended"), {}, "- - - - | 0.95 - 55 40"},
    {"the card that takes more of two",
     card("hwmon2", "12000000", "active") +
         chip("hwmon4", {{"name", "nouveau"}, {"power1_input", "90000000"}, {"temp1_input", "66000"}}),
     {},
     "- - - - | - - 90 66"},
    {"a card that counts energy",
     chip("hwmon5", {{"name", "i915"}, {"in0_input", "600"}, {"energy1_input", "7000000"}}),
     chip("hwmon5", {{"energy1_input", "29500000"}}), "- - - - | 0.6 - 22.5 -"},
    {"a card with a name for each of its parts",
     chip("hwmon5", {{"name", "xe"},
                     {"energy1_label", "card"},
                     {"energy1_input", "0"},
                     {"energy2_label", "pkg"},
                     {"energy2_input", "0"},
                     {"temp2_label", "pkg"},
                     {"temp2_input", "47000"},
                     {"temp3_label", "vram"},
                     {"temp3_input", "58000"}}),
     chip("hwmon5", {{"energy1_input", "31000000"}, {"energy2_input", "20000000"}}), "- - - - | - - 31 47"},
    {"old kernels without labels; what has no meaning without one stays absent",
     chip("hwmon0", {{"name", "k10temp"}, {"temp1_input", "50500"}}) +
         chip("hwmon1", {{"name", "coretemp"}, {"temp1_input", "90000"}}) +
         chip("hwmon2", {{"name", "amdgpu"},
                         {"in0_input", "800"},
                         {"power1_average", "30000000"},
                         {"temp1_input", "45000"}}),
     {},
     "- - - 50.5 | 0.8 - 30 45"},
    {"files that can't be read or hold no sense",
     chip("hwmon0", {{"name", "coretemp"}, {"temp1_label", "Package id 0"}, {"temp1_input", "N/A"}}) +
         chip("hwmon1", {{"name", "/"}, {"temp1_input", "40000"}}) +
         chip("hwmon2", {{"temp1_input", "40000"}}) +
         chip("hwmon3", {{"name", "amdgpu"},
                         {"in0_input", "990000"},
                         {"power1_average", "/"},
                         {"power1_input", "3000000000"},
                         {"temp1_input", "-300000"},
                         {"temp2_label", "edge"},
                         {"temp2_input", "40 C"},
                         {"temp_input", "1"},
                         {"tempx_input", "1"}}),
     {},
     kNothing},
    {"the momentary power where the mean can't be read",
     chip("hwmon3", {{"name", "amdgpu"}, {"power1_average", "/"}, {"power1_input", "21000000"}}),
     {},
     "- - - - | - - 21 -"},
    {"an empty file, and one that is full again a second later",
     chip("hwmon0", {{"name", "coretemp"}, {"temp1_label", "Package id 0"}, {"temp1_input", ""}}),
     chip("hwmon0", {{"temp1_input", "151000"}}), kNothing},
};

TEST(ChipSourceTest, TakesFromEachTreeWhatItGives) {
    for (const TreeCase &tree : kTrees) {
        const FakeTree root;
        root.write(tree.files);
        ChipSource source = root.source();
        TestClock clock;
        source.read(clock.after(0ms));
        root.write(tree.aSecondLater);
        EXPECT_EQ(text(source.read(clock.after(1s)).reading), tree.expected) << tree.what;
    }
}

TEST(ChipSourceTest, NamesProcessorAndCard) {
    const FakeTree root;
    EXPECT_EQ(platform::processorName({root.root(), {}}), "");
    root.write({{"proc/cpuinfo", "processor\t: 0\nmodel\t\t: 33\nmodel name\t: AMD Ryzen 9 5950X\n\n"
                                 "processor\t: 1\nmodel name\t: another"}});
    EXPECT_EQ(platform::processorName({root.root(), {}}), "AMD Ryzen 9 5950X");
    root.write({{"proc/cpuinfo", "Processor\t: ARM\nmodel name\t:\n"}});
    EXPECT_EQ(platform::processorName({root.root(), {}}), "");

    EXPECT_EQ(platform::boxName("Navi 21 [Radeon RX 6800/6800 XT]"), "Radeon RX 6800/6800 XT");
    EXPECT_EQ(platform::boxName("Raphael"), "Raphael");
    EXPECT_EQ(platform::boxName("[]"), "[]");
    EXPECT_EQ(platform::cardName("pci:v0000144Dd0000A80Asv0000144Dsd0000A801bc01sc08i02"), "") << "a disk";
}

} // namespace
} // namespace zpsg::sensors
