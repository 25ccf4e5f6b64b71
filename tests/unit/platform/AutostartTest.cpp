#include "PlatformFixture.h"

#include "platform/Autostart.h"

#include <csignal>
#include <fstream>
#include <sstream>
#include <sys/resource.h>
#include <vector>

namespace zpsg::platform {
namespace {

namespace fs = std::filesystem;

class AutostartTest : public PlatformTest {
protected:
    [[nodiscard]] fs::path entry() const { return folder() / "autostart" / "zpsg.desktop"; }

    [[nodiscard]] std::string text() const {
        std::ostringstream all;
        all << std::ifstream(entry()).rdbuf();
        return all.str();
    }

    void write(const std::string &text) const {
        fs::create_directories(entry().parent_path());
        std::ofstream(entry()) << text;
    }

    bool enable(const std::string &executable) { return setAutostart(Autostart::Hidden, executable, error_); }

    std::string error_;
};

TEST_F(AutostartTest, PathsAreQuotedByTheRulesForDesktopEntries) {
    const std::vector<std::pair<const char *, const char *>> cases = {
        {"/opt/zpsg", R"("/opt/zpsg" open)"},
        {"/home/j d/my apps/zpsg", R"("/home/j d/my apps/zpsg" open)"},
        {"/a\"b", R"("/a\\"b" open)"},
        {"/a$HOME`b`", R"("/a\\$HOME\\`b\\`" open)"},
        {"/100%f", R"("/100%%f" open)"},
        {R"(/back\slash)", R"("/back\\\\slash" open)"},
        {"/line\nbreak\ttab", R"("/line\nbreak\ttab" open)"},
        {"/\xC3\xA4/'q'&;<>", "\"/\xC3\xA4/'q'&;<>\" open"},
    };
    for (const auto &[executable, exec] : cases) {
        ASSERT_TRUE(enable(executable)) << error_;
        EXPECT_NE(text().find(std::string("\nExec=") + exec + '\n'), std::string::npos) << text();
        EXPECT_EQ(text().rfind("[Desktop Entry]\nType=Application\n", 0), 0U);
    }
}

TEST_F(AutostartTest, WhatIsInLineAlreadyIsNotTouched) {
    const auto longAgo = fs::file_time_type::clock::now() - std::chrono::hours(24);
    const auto untouched = [&](const std::string &executable) {
        const std::string before = text();
        fs::last_write_time(entry(), longAgo);
        const auto stamp = fs::last_write_time(entry());
        EXPECT_TRUE(enable(executable)) << error_;
        return fs::last_write_time(entry()) == stamp && text() == before;
    };
    ASSERT_TRUE(enable("/opt/zpsg"));
    EXPECT_TRUE(untouched("/opt/zpsg"));
    write("# mine\n[Desktop Entry]\nName=Meter\nExec = \"/opt/zpsg\" open\nX-Delay=10\n");
    EXPECT_TRUE(untouched("/opt/zpsg")) << "what the user added stays";
    EXPECT_FALSE(untouched("/opt/elsewhere/zpsg")) << "the program has moved";
    ASSERT_TRUE(setAutostart(Autostart::Shown, "/opt/zpsg", error_));
    EXPECT_NE(text().find("Exec=\"/opt/zpsg\"\n"), std::string::npos) << "not hidden any more";
    EXPECT_FALSE(untouched("/opt/zpsg")) << "hidden again";
    write("[Other]\nExec=\"/opt/zpsg\" open\n");
    EXPECT_FALSE(untouched("/opt/zpsg")) << "the line is in another group";
}

TEST_F(AutostartTest, SwitchedOnAndOff) {
    EXPECT_FALSE(autostartEnabled());
    EXPECT_TRUE(setAutostart(Autostart::Off, "/opt/zpsg", error_)) << "nothing to remove";
    for (const auto mode : {Autostart::Shown, Autostart::Hidden}) {
        EXPECT_TRUE(setAutostart(mode, "/opt/zpsg", error_));
        EXPECT_TRUE(autostartStarts("/opt/zpsg"));
        EXPECT_FALSE(autostartStarts("/opt/zps"));
    }
    EXPECT_TRUE(setAutostart(Autostart::Off, "/opt/zpsg", error_));
    EXPECT_FALSE(autostartStarts("/opt/zpsg"));
    ASSERT_TRUE(enable("/opt/zpsg"));
    EXPECT_TRUE(autostartEnabled());
    EXPECT_TRUE(setAutostart(Autostart::Off, "/opt/zpsg", error_));
    EXPECT_FALSE(fs::exists(entry()));
    EXPECT_FALSE(autostartEnabled());

    // Desktops switch an entry off by a mark in it.
    for (const char *mark : {"Hidden=true\n", "X-GNOME-Autostart-enabled=false\n"}) {
        write(std::string("[Desktop Entry]\nExec=\"/opt/zpsg\" open\n") + mark);
        EXPECT_FALSE(autostartEnabled()) << mark;
        EXPECT_TRUE(enable("/opt/zpsg"));
        EXPECT_TRUE(autostartEnabled()) << mark;
    }
}

TEST_F(AutostartTest, AFailedWriteLeavesTheOldEntryWhole) {
    ASSERT_TRUE(enable("/opt/old"));
    const std::string before = text();
    // A full disk, as the process sees it.
    rlimit normal{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &normal), 0);
    const rlimit tiny{20, normal.rlim_max};
    const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &tiny), 0);
    const bool written = enable("/opt/new");
    setrlimit(RLIMIT_FSIZE, &normal);
    std::signal(SIGXFSZ, oldHandler);
    EXPECT_FALSE(written);
    EXPECT_NE(error_.find("zpsg.desktop: "), std::string::npos) << error_;
    EXPECT_EQ(text(), before);
    EXPECT_EQ(std::distance(fs::directory_iterator(entry().parent_path()), {}), 1) << "left-over files";
}

TEST_F(AutostartTest, ARefusalIsToldInWords) {
    std::ofstream(folder() / "autostart") << "not a folder";
    EXPECT_FALSE(enable("/opt/zpsg"));
    EXPECT_NE(error_.find("autostart: "), std::string::npos) << error_;
}

} // namespace
} // namespace zpsg::platform
