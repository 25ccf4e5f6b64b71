#include "platform/PowerAction.h"

#include "BusFixture.h"
#include "platform/linux/FileDescriptor.h"

#include <cstring>
#include <future>
#include <gmock/gmock.h>
#include <QDBusConnectionInterface>
#include <QDBusReply>
#include <QElapsedTimer>
#include <sys/socket.h>
#include <sys/un.h>

namespace zpsg::platform {
namespace {

/// A login service that notes what it is asked for.
class PowerService : public LoginService {
public:
    enum class Answers { Yes, No, Never };

    using LoginService::LoginService;
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override {
        asked << message.interface() + QLatin1Char('.') + message.member();
        arguments = message.arguments();
        switch (answers) {
        case Answers::Yes:
            return bus.send(message.createReply());
        case Answers::No:
            return bus.send(message.createErrorReply(QDBusError::AccessDenied, QStringLiteral("Not you.")));
        case Answers::Never:
            asker = message.service();
            break;
        }
        return true;
    }

    Answers answers = Answers::Yes;
    QStringList asked;
    QVariantList arguments;
    QString asker;
};

class PowerActionTest : public PlatformTest {
protected:
    void SetUp() override {
        if (!BusDaemon::installed()) {
            GTEST_SKIP() << "dbus-daemon is not installed";
        }
    }
    /// The answer and the error. On a thread of its own, because the service is served by this one.
    static std::pair<bool, std::string> request(PowerAction action) {
        qint64 milliseconds = 0;
        auto answer = std::async(std::launch::async, [&] {
            QElapsedTimer timer;
            timer.start();
            std::string error;
            const bool willing = requestPower(action, error);
            milliseconds = timer.elapsed();
            return std::pair(willing, error);
        });
        EXPECT_TRUE(
            loopUntil([&] { return answer.wait_for(std::chrono::seconds(0)) == std::future_status::ready; }));
        auto result = answer.get();
        EXPECT_LT(milliseconds, 2000) << "it waits 200 ms; this allows for a machine that is busy";
        return result;
    }

    BusDaemon daemon_{folder()};
};

TEST_F(PowerActionTest, AsksTheLoginServiceWithoutAskingTheUser) {
    daemon_.start();
    PowerService login(daemon_);
    for (const auto &[action, method] : {std::pair{PowerAction::Shutdown, "PowerOff"},
                                         {PowerAction::Restart, "Reboot"},
                                         {PowerAction::Sleep, "Suspend"}}) {
        login.asked.clear();
        EXPECT_EQ(request(action), std::pair(true, std::string())) << method;
        EXPECT_EQ(login.asked, QStringList(QStringLiteral("org.freedesktop.login1.Manager.") +
                                           QString::fromLatin1(method)));
        EXPECT_EQ(login.arguments, QVariantList{false});
    }
    login.answers = PowerService::Answers::No;
    EXPECT_EQ(request(PowerAction::Shutdown), std::pair(false, std::string("Not you.")));
}

TEST_F(PowerActionTest, AServiceThatThinksItOverStillFindsWhoAsked) {
    daemon_.start();
    PowerService login(daemon_);
    login.answers = PowerService::Answers::Never;
    EXPECT_TRUE(request(PowerAction::Sleep).first);
    ASSERT_FALSE(login.asker.isEmpty());
    const QDBusReply<bool> there = login.connection().interface()->isServiceRegistered(login.asker);
    EXPECT_TRUE(there.value());
}

TEST_F(PowerActionTest, NobodyToAskIsAFailureWithWords) {
    EXPECT_FALSE(request(PowerAction::Shutdown).first) << "no bus";
    daemon_.start();
    const auto [willing, error] = request(PowerAction::Shutdown);
    EXPECT_FALSE(willing) << "no login service";
    EXPECT_FALSE(error.empty());
}

TEST_F(PowerActionTest, ABusThatHangsIsGivenUp) {
    const FileDescriptor listening(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, daemon_.socket().c_str(), sizeof(address.sun_path) - 1);
    ASSERT_EQ(bind(listening.get(), reinterpret_cast<sockaddr *>(&address), sizeof(address)), 0);
    ASSERT_EQ(listen(listening.get(), 8), 0);
    const auto [willing, error] = request(PowerAction::Shutdown);
    EXPECT_FALSE(willing);
    EXPECT_FALSE(error.empty());
}

} // namespace
} // namespace zpsg::platform
