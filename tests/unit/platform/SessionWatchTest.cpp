#include "BusFixture.h"

#include "platform/SessionWatch.h"

#include <cstring>
#include <gmock/gmock.h>
#include <QElapsedTimer>
#include <sys/socket.h>
#include <sys/un.h>
#include <vector>

namespace zpsg::platform {
namespace {

using testing::ElementsAre;
using enum SessionEvent;

class SessionWatchTest : public PlatformTest {
protected:
    void SetUp() override {
        if (!BusDaemon::installed()) {
            GTEST_SKIP() << "dbus-daemon is not installed";
        }
        qunsetenv("XDG_SESSION_ID");
    }
    void startWatch() {
        watch_ = SessionWatch::start([this](SessionEvent event) {
            events_.push_back(event);
            if (onEvent_) {
                onEvent_(event);
            }
        });
    }
    bool waitFor(std::size_t events) {
        return loopUntil([&] { return events_.size() >= events; });
    }

    BusDaemon daemon_{folder()};
    std::vector<SessionEvent> events_;
    std::function<void(SessionEvent)> onEvent_;
    std::unique_ptr<SessionWatch> watch_;
};

TEST_F(SessionWatchTest, OurSessionIsFoundAndItsLockToldOnceWhoeverReportsIt) {
    daemon_.start();
    using Finds = LoginService::Finds;
    for (const auto finds : {Finds::Process, Finds::Display, Finds::Name}) {
        if (finds == Finds::Name) {
            qputenv("XDG_SESSION_ID", "2");
        }
        LoginService login(daemon_, finds);
        events_.clear();
        startWatch();
        ASSERT_TRUE(loopUntil([&] { return login.hintsAsked == 1; })) << static_cast<int>(finds);

        EXPECT_TRUE(login.connection().registerService(QStringLiteral("org.gnome.ScreenSaver")));
        const auto screenSaver = [&](bool active) {
            login.signal("/org/gnome/ScreenSaver", "org.gnome.ScreenSaver", "ActiveChanged", {active});
        };
        login.sessionSignal("Lock", "/org/freedesktop/login1/session/_33"); // somebody else's
        screenSaver(true);
        login.sessionSignal("Lock");
        login.changeHint(true);
        ASSERT_TRUE(waitFor(1));
        ASSERT_TRUE(loopUntil([&] { return login.hintsAsked == 2; }));
        login.changeHint(false);
        screenSaver(false);
        login.sessionSignal("Unlock");
        ASSERT_TRUE(waitFor(2));
        login.sessionSignal("Lock"); // behind all of them
        ASSERT_TRUE(waitFor(3));
        screenSaver(false);
        ASSERT_TRUE(waitFor(4));
        login.changeHint(true);
        ASSERT_TRUE(waitFor(5));
        EXPECT_THAT(events_, ElementsAre(Locked, Unlocked, Locked, Unlocked, Locked))
            << static_cast<int>(finds);
        watch_.reset();
    }
}

TEST_F(SessionWatchTest, ASessionThatIsLockedAlreadyIsTold) {
    daemon_.start();
    LoginService login(daemon_);
    login.lockedHint = true;
    startWatch();
    ASSERT_TRUE(waitFor(1));
    EXPECT_THAT(events_, ElementsAre(Locked));
}

TEST_F(SessionWatchTest, SleepWaitsForTheHandler) {
    daemon_.start();
    LoginService login(daemon_);
    startWatch();
    for (int round = 1; round <= 2; ++round) {
        ASSERT_TRUE(loopUntil([&] { return login.delays == round && login.delayed(); }));
        bool waited = false;
        onEvent_ = [&](SessionEvent event) { waited = waited || (event == GoingToSleep && login.delayed()); };
        login.prepareForSleep(true);
        ASSERT_TRUE(loopUntil([&] { return !login.delayed(); }));
        EXPECT_TRUE(waited);
        login.prepareForSleep(false);
        ASSERT_TRUE(waitFor(static_cast<std::size_t>(round) * 2));
    }
    EXPECT_THAT(events_, ElementsAre(GoingToSleep, Resumed, GoingToSleep, Resumed));
    EXPECT_EQ(login.delayArguments.value(0), QStringLiteral("sleep"));
    EXPECT_EQ(login.delayArguments.value(3), QStringLiteral("delay"));

    ASSERT_TRUE(loopUntil([&] { return login.delays == 3 && login.delayed(); }));
    onEvent_ = [&](SessionEvent) { watch_.reset(); };
    login.prepareForSleep(true);
    ASSERT_TRUE(loopUntil([&] { return !login.delayed(); })) << "ended by its own handler";
}

TEST_F(SessionWatchTest, TheServiceMayComeLateAndGo) {
    daemon_.start();
    startWatch();
    for (std::size_t round = 1; round <= 2; ++round) {
        LoginService login(daemon_);
        ASSERT_TRUE(loopUntil([&] { return login.delayed() && login.hintsAsked > 0; }));
        login.prepareForSleep(true);
        ASSERT_TRUE(waitFor(2 * round - 1));
    }
    ASSERT_TRUE(waitFor(4)) << "a service that dies can't say that the PC is awake";
    EXPECT_THAT(events_, ElementsAre(GoingToSleep, Resumed, GoingToSleep, Resumed));
}

TEST_F(SessionWatchTest, TheBusItselfMayComeLateAndGo) {
    startWatch();
    QTest::qWait(0); // it has looked for one by now
    for (std::size_t round = 1; round <= 2; ++round) {
        daemon_.start();
        {
            LoginService login(daemon_);
            ASSERT_TRUE(loopUntil([&] { return login.delayed() && login.hintsAsked > 0; }));
            login.prepareForSleep(true);
            ASSERT_TRUE(waitFor(2 * round - 1));
            daemon_.kill();
            ASSERT_TRUE(waitFor(2 * round));
        }
    }
    EXPECT_THAT(events_, ElementsAre(GoingToSleep, Resumed, GoingToSleep, Resumed));
}

TEST_F(SessionWatchTest, ABusThatHangsHoldsUpNothing) {
    const int listening = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, daemon_.socket().c_str(), sizeof(address.sun_path) - 1);
    ASSERT_EQ(bind(listening, reinterpret_cast<sockaddr *>(&address), sizeof(address)), 0);
    ASSERT_EQ(listen(listening, 8), 0);
    QElapsedTimer timer;
    timer.start();
    startWatch();
    pollfd connected{listening, POLLIN, 0};
    ASSERT_TRUE(loopUntil([&] { return poll(&connected, 1, 0) == 1; })) << "it never tried";
    for (int i = 0; i < 20; ++i) {
        QTest::qWait(1);
    }
    watch_.reset();
    EXPECT_LT(timer.elapsed(), 5000);
    EXPECT_THAT(events_, ElementsAre());
    close(listening);
}

} // namespace
} // namespace zpsg::platform
