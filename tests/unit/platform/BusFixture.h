// A message bus of the test's own, and a login service on it.
#pragma once

#include "PlatformFixture.h"

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <fstream>
#include <memory>
#include <poll.h>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QDBusVirtualObject>
#include <QStandardPaths>
#include <unistd.h>

namespace zpsg::platform {

/// Both of a session's buses in one.
class BusDaemon {
public:
    explicit BusDaemon(const std::filesystem::path &folder) : folder_(folder) {
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", address().toUtf8());
        qputenv("DBUS_SESSION_BUS_ADDRESS", address().toUtf8());
    }
    ~BusDaemon() { kill(); }
    BusDaemon(const BusDaemon &) = delete;
    BusDaemon &operator=(const BusDaemon &) = delete;

    static bool installed() {
        return !QStandardPaths::findExecutable(QStringLiteral("dbus-daemon")).isEmpty();
    }
    [[nodiscard]] std::string socket() const { return (folder_ / "bus").string(); }
    [[nodiscard]] QString address() const { return QString::fromStdString("unix:path=" + socket()); }

    void start() {
        const std::string config = (folder_ / "bus.conf").string();
        std::ofstream(config) << "<busconfig><type>session</type><listen>" << address().toStdString()
                              << R"(</listen><auth>EXTERNAL</auth><policy context="default">
                                 <allow send_destination="*"/><allow receive_sender="*"/><allow own="*"/>
                                 </policy></busconfig>)";
        std::filesystem::remove(socket());
        process_.setReadChannel(QProcess::StandardOutput);
        process_.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--config-file=") + QString::fromStdString(config),
                        QStringLiteral("--nofork"), QStringLiteral("--print-address")});
        ASSERT_TRUE(process_.waitForReadyRead(kTestPatience)) << process_.readAllStandardError().constData();
    }
    void kill() {
        process_.kill();
        process_.waitForFinished(kTestPatience);
    }

private:
    std::filesystem::path folder_;
    QProcess process_;
};

/// As much of a login service as is asked for.
class LoginService : public QDBusVirtualObject {
public:
    /// What finds the session; the others fail.
    enum class Finds { Process, Display, Name };

    explicit LoginService(const BusDaemon &daemon, Finds finds = Finds::Process)
        : finds_(finds), connection_(QDBusConnection::connectToBus(daemon.address(), name())) {
        EXPECT_TRUE(connection_.registerVirtualObject(QLatin1String(kPath), this, QDBusConnection::SubPath));
        EXPECT_TRUE(connection_.registerService(QStringLiteral("org.freedesktop.login1")));
    }
    ~LoginService() override {
        connection_.unregisterService(QStringLiteral("org.freedesktop.login1"));
        QDBusConnection::disconnectFromBus(name());
        closeDelay();
    }
    LoginService(const LoginService &) = delete;
    LoginService &operator=(const LoginService &) = delete;

    static constexpr const char *kPath = "/org/freedesktop/login1";
    static constexpr const char *kOurs = "/org/freedesktop/login1/session/_32";

    bool lockedHint = false;
    int hintsAsked = 0;
    int delays = 0; ///< taken so far
    QStringList delayArguments;

    /// Whether somebody still delays the sleep.
    [[nodiscard]] bool delayed() const {
        pollfd end{delay_, 0, 0};
        return delay_ >= 0 && poll(&end, 1, 0) == 0;
    }
    void signal(const char *path, const char *interface, const char *member,
                const QVariantList &arguments = {}) {
        QDBusMessage message =
            QDBusMessage::createSignal(QLatin1String(path), QLatin1String(interface), QLatin1String(member));
        message.setArguments(arguments);
        connection_.send(message);
    }
    void sessionSignal(const char *member, const char *path = kOurs) {
        signal(path, "org.freedesktop.login1.Session", member);
    }
    void prepareForSleep(bool start) {
        signal(kPath, "org.freedesktop.login1.Manager", "PrepareForSleep", {start});
    }
    void changeHint(bool locked) {
        lockedHint = locked;
        signal(kOurs, "org.freedesktop.DBus.Properties", "PropertiesChanged",
               {QStringLiteral("org.freedesktop.login1.Session"),
                QVariantMap{{QStringLiteral("LockedHint"), locked}}, QStringList()});
    }
    QDBusConnection &connection() { return connection_; }

    [[nodiscard]] QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override {
        const QVariantList answer = answerTo(message);
        return connection.send(answer.isEmpty() ? message.createErrorReply(QDBusError::Failed, QString())
                                                : message.createReply(answer));
    }

private:
    static QString name() { return QStringLiteral("login service"); }
    static QVariant path(const char *text) {
        return QVariant::fromValue(QDBusObjectPath(QLatin1String(text)));
    }
    QVariantList answerTo(const QDBusMessage &message) {
        const QString member = message.member();
        if (member == QLatin1String("Inhibit")) {
            for (const QVariant &argument : message.arguments()) {
                delayArguments << argument.toString();
            }
            return {takeDelay()};
        }
        if (member == QLatin1String("GetUser")) {
            return {path("/org/freedesktop/login1/user/_0")};
        }
        if ((member == QLatin1String("GetSessionByPID") && finds_ == Finds::Process) ||
            (member == QLatin1String("GetSession") && message.arguments().at(0) == QStringLiteral("2"))) {
            return {path(kOurs)};
        }
        if (message.arguments().value(1) == QStringLiteral("LockedHint")) {
            ++hintsAsked;
            return {QVariant::fromValue(QDBusVariant(lockedHint))};
        }
        if (message.arguments().value(1) == QStringLiteral("Display")) {
            const bool known = finds_ == Finds::Display;
            QDBusArgument display;
            display.beginStructure();
            display << (known ? QStringLiteral("2") : QString())
                    << QDBusObjectPath(QLatin1String(known ? kOurs : "/"));
            display.endStructure();
            return {QVariant::fromValue(QDBusVariant(QVariant::fromValue(display)))};
        }
        return {};
    }
    QVariant takeDelay() {
        closeDelay();
        std::array<int, 2> ends{};
        EXPECT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
        delay_ = ends[0];
        ++delays;
        QDBusUnixFileDescriptor given;
        given.giveFileDescriptor(ends[1]);
        return QVariant::fromValue(given);
    }
    void closeDelay() {
        if (delay_ >= 0) {
            close(delay_);
        }
    }

    const Finds finds_;
    QDBusConnection connection_;
    int delay_ = -1; // hangs up when the other end is closed
};

} // namespace zpsg::platform
