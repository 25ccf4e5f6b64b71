// The program zpsg-vusb, run as a developer would, seen by hidapi.
#include "ChildProcess.h"
#include "GuestFixture.h"

#include <csignal>

namespace zpsg::hardware {
namespace {

using vusb::Product;

/// Fails the test when the program does not print a line with `part`.
void expectLine(ChildProcess &program, const std::string &part) {
    EXPECT_TRUE(program.readLineWith(part, kPatience)) << "no line with: " << part;
}

bool listed(Product product) {
    return eventually([&] { return !nodeOf(product).empty(); });
}

class VusbProgramTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() { ASSERT_EQ(hid_init(), 0); }
    static void TearDownTestSuite() { hid_exit(); }
};

TEST_F(VusbProgramTest, ObeysItsCommands) {
    struct Row {
        const char *command;
        const char *told;
    };
    constexpr std::array kRows{
        Row{"load 450", "load 450 W"},
        Row{"mains 118", "mains 118 V"},
        Row{"day", "W, by the time of day"},
        Row{"fault short 7", "fault: short"},
        Row{"fault none", "fault: none"},
        Row{"fault silent 3", "fault: none"},      // takes no number: refused
        Row{"load lots", "W, by the time of day"}, // refused: the day goes on
        Row{"mains", "mains 118 V"},
        Row{"model ZPS-0850-RGB", "model ZPS-0850-RGB, 850 W, mains 118 V"},
        Row{"unplug", "unplugged, not in use"},
        Row{"plug raw", "plugged in as raw (264A:232A)"},
        Row{"nonsense", "plugged in as raw"},
        Row{"plug main", "plugged in as main"},
    };
    ChildProcess program(ZPSG_VUSB_PROGRAM, {"--load", "100"});
    expectLine(program, "plugged in as main");
    for (const Row &row : kRows) {
        SCOPED_TRACE(row.command);
        ASSERT_TRUE(program.write(std::string(row.command) + "\nstatus\n"));
        expectLine(program, row.told);
    }
    ASSERT_TRUE(program.write("quit\n"));
    EXPECT_EQ(program.wait(kPatience), 0);
}

TEST_F(VusbProgramTest, TellsOfFanAndLeds) {
    struct Row {
        std::array<std::uint8_t, 10> report;
        const char *told;
    };
    constexpr std::array kRows{
        Row{{0x00, 0x30, 0x41, 0x02}, "fan: performance"},
        Row{{0x00, 0x30, 0x41, 0x04, 0x2D}, "fan: custom, 45 %"},
        Row{{0x00, 0x30, 0x42, 0x00, 0x11, 0x22, 0x33}, "LEDs: single colour 112233"},
        Row{{0x00, 0x30, 0x42, 0x0E, 0x22, 0x11, 0x33, 0x00, 0xFF, 0x00}, "LEDs: effect 0e 112233 ff0000"},
    };
    ChildProcess program(ZPSG_VUSB_PROGRAM);
    ASSERT_TRUE(listed(Product::Main));
    const Hid device(hid_open_path(nodeOf(Product::Main).c_str()));
    ASSERT_TRUE(device);
    for (const Row &row : kRows) {
        SCOPED_TRACE(row.told);
        std::array<std::uint8_t, kReport + 1> report{};
        std::copy(row.report.begin(), row.report.end(), report.begin());
        ASSERT_EQ(hid_write(device.get(), report.data(), report.size()), static_cast<int>(report.size()));
        expectLine(program, row.told);
    }
}

TEST_F(VusbProgramTest, EndsCleanly) {
    struct Row {
        const char *name;
        void (*end)(ChildProcess &program);
    };
    constexpr std::array kRows{
        Row{"end of input", [](ChildProcess &program) { program.closeInput(); }},
        Row{"SIGTERM", [](ChildProcess &program) { program.signal(SIGTERM); }},
        Row{"SIGINT", [](ChildProcess &program) { program.signal(SIGINT); }},
    };
    for (const Row &row : kRows) {
        SCOPED_TRACE(row.name);
        ChildProcess program(ZPSG_VUSB_PROGRAM, {"--raw", "--model", "ZPS-1200"});
        ASSERT_TRUE(listed(Product::Raw));
        row.end(program);
        EXPECT_EQ(program.wait(kPatience), 0);
        EXPECT_EQ(nodeOf(Product::Raw), "");
    }
}

TEST_F(VusbProgramTest, RefusesWrongArguments) {
    struct Row {
        std::vector<std::string> arguments;
        int status;
    };
    const std::vector<Row> rows{
        {{"--help"}, 0},        {{"--bogus"}, 2},
        {{"stray"}, 2},         {{"--model"}, 2},
        {{"--load", "-3"}, 2},  {{"--load", "12W"}, 2},
        {{"--load", "nan"}, 2}, {{"--load", ""}, 2},
        {{"--model", ""}, 2},   {{"--model", std::string(63, 'x')}, 2},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(::testing::PrintToString(row.arguments));
        ChildProcess program(ZPSG_VUSB_PROGRAM, row.arguments);
        EXPECT_EQ(program.wait(kPatience), row.status);
        // Help is asked for and goes to the output; complaints leave it to what reads the program's results.
        EXPECT_EQ(program.readLine(kPatience).has_value(), row.status == 0);
    }
}

} // namespace
} // namespace zpsg::hardware
