// The program in a real window: needs an X server of its own, which this starts.

#include "Program.h"

#include "platform/WindowMessage.h"

#include <algorithm>
#include <csignal>
#include <vector>

using namespace zpsg::test;

namespace {

/// An X server without a screen, for as long as it lives.
class Screen {
public:
    Screen() {
        server_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        server_.start(QStringLiteral("Xvfb"),
                      {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                       QStringLiteral("0"), QStringLiteral("1366x768x24"), QStringLiteral("-noreset"),
                       QStringLiteral("-nolisten"), QStringLiteral("tcp")});
        name_ = QLatin1Char(':') + QString::fromLatin1(nextLine(server_));
    }
    ~Screen() {
        server_.terminate();
        server_.waitForFinished(kPatience);
    }
    [[nodiscard]] const QString &name() const { return name_; }

private:
    QProcess server_;
    QString name_;
};

class WindowTest : public ::testing::Test {
protected:
    WindowTest() { home.set("DISPLAY", screen.name()); }

    [[nodiscard]] int visibleWindows() const {
        QProcess search;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DISPLAY"), screen.name());
        search.setProcessEnvironment(environment);
        search.start(QStringLiteral("xdotool"),
                     {QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--name"),
                      QStringLiteral("^CorvaneZPSPOWER$")});
        search.waitForFinished(kPatience);
        return static_cast<int>(search.readAllStandardOutput().count('\n'));
    }

    std::unique_ptr<QProcess> startDemo(QStringList arguments = {}) {
        arguments.append({QStringLiteral("--demo"), QStringLiteral("--data-dir"), home.path("data")});
        return home.start(arguments);
    }

    Screen screen;
    Home home;
};

TEST_F(WindowTest, ASecondStartShowsTheFirstWindowAndExitsWithZero) {
    const auto first = startDemo({QStringLiteral("open")});
    ASSERT_TRUE(waitUntil([this] { return visibleWindows() == 1; }));
    ASSERT_TRUE(waitUntil([this] { return visibleWindows() == 0; })); // started by the system: it hides
    const auto second = startDemo();
    const auto outcome = Home::finish(*second);
    EXPECT_EQ(outcome.code, 0);
    EXPECT_TRUE(outcome.err.isEmpty()) << outcome.err.constData();
    EXPECT_TRUE(waitUntil([this] { return visibleWindows() == 1; }));
    EXPECT_EQ(first->state(), QProcess::Running);
    first->terminate();
    EXPECT_EQ(Home::finish(*first).code, 0);
}

TEST_F(WindowTest, StaysShownForAnyOtherWord) {
    const auto shown = startDemo({QStringLiteral("opened")});
    ASSERT_TRUE(waitUntil([this] { return visibleWindows() == 1; }));
    QThread::msleep(1500); // well past the moment at which "open" hides it
    EXPECT_EQ(visibleWindows(), 1);
    shown->terminate();
    EXPECT_EQ(Home::finish(*shown).code, 0);
}

TEST_F(WindowTest, OfTwentyStartsAtOnceOneStays) {
    std::vector<std::unique_ptr<QProcess>> starts(20);
    for (auto &start : starts) {
        start = startDemo();
    }
    const auto running = [&starts] {
        return std::count_if(starts.begin(), starts.end(), [](const auto &process) {
            process->waitForFinished(1);
            return process->state() == QProcess::Running;
        });
    };
    ASSERT_TRUE(waitUntil([&] { return running() == 1; }));
    EXPECT_TRUE(waitUntil([this] { return visibleWindows() == 1; }));
    EXPECT_EQ(running(), 1);
    for (const auto &process : starts) {
        if (process->state() == QProcess::Running) {
            process->terminate();
        }
        EXPECT_EQ(Home::finish(*process).code, 0);
    }
}

TEST_F(WindowTest, ANewStartTakesOverFromAKilledOne) {
    const auto killed = startDemo();
    ASSERT_TRUE(waitUntil([this] { return visibleWindows() == 1; }));
    killed->kill();
    killed->waitForFinished(kPatience);
    const auto next = startDemo();
    ASSERT_TRUE(waitUntil([this] { return visibleWindows() == 1; }));
    EXPECT_EQ(next->state(), QProcess::Running);
    next->terminate();
    EXPECT_EQ(Home::finish(*next).code, 0);
}

TEST_F(WindowTest, TellsTheCompanionWhoTakesTheDevice) {
    const auto companion = home.start({}, ZPSG_COMPANION);
    ASSERT_EQ(nextLine(*companion), "ready");
    const auto first =
        home.start({QStringLiteral("--data-dir"), home.path("data")}); // no supply on this machine
    EXPECT_EQ(nextLine(*companion), "9012 0 1");
    EXPECT_EQ(nextLine(*companion), "9012 0 0");
    const auto second = home.start({QStringLiteral("--data-dir"), home.path("data")});
    EXPECT_EQ(nextLine(*companion), "9012 0 1"); // a second instance says so before it looks for the first
    EXPECT_EQ(Home::finish(*second).code, 0);
    const auto reader = home.run({QStringLiteral("--headless")});
    EXPECT_EQ(reader.code, 1); // the supply is taken
    first->terminate();
    EXPECT_EQ(Home::finish(*first).code, 0);
    companion->kill();
    companion->waitForFinished(kPatience);
}

} // namespace
