// A broker of the test's own on a free port of the loopback, and a stranger that watches it.
#pragma once

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTimer>

#include <chrono>

namespace zpsg::test {

constexpr std::chrono::milliseconds kDeadline{15'000};

/// Runs the event loop, without a pause, until `condition` holds; false when it never did.
template <typename Condition>
bool eventually(Condition condition, std::chrono::milliseconds deadline = kDeadline) {
    QElapsedTimer clock;
    clock.start();
    QEventLoop loop;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        if (condition() || clock.hasExpired(deadline.count())) {
            loop.quit();
        }
    });
    poll.start(5);
    loop.exec();
    return condition();
}

inline quint16 freePort() {
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

class MqttBroker {
public:
    MqttBroker() = default;
    ~MqttBroker() { kill(); }
    MqttBroker(const MqttBroker &) = delete;
    MqttBroker &operator=(const MqttBroker &) = delete;

    /// `options` are lines of its configuration, besides the port.
    bool start(const QByteArray &options = "allow_anonymous true\n") {
        QFile file(path("conf"));
        if (!file.open(QIODevice::WriteOnly)) {
            return false;
        }
        file.write("listener " + QByteArray::number(port_) + " 127.0.0.1\nuser root\n" + options);
        file.close();
        QString program = QStandardPaths::findExecutable(QStringLiteral("mosquitto"));
        if (program.isEmpty()) {
            program = QStringLiteral("/usr/sbin/mosquitto"); // not in everybody's path
        }
        process_.setProcessChannelMode(QProcess::MergedChannels);
        process_.start(program, {QStringLiteral("-c"), path("conf")});
        return process_.waitForStarted() && eventually([this] {
                   QTcpSocket probe;
                   probe.connectToHost(QHostAddress::LocalHost, port_);
                   return probe.waitForConnected(200);
               });
    }
    void kill() {
        process_.kill();
        process_.waitForFinished();
    }
    [[nodiscard]] quint16 port() const { return port_; }
    [[nodiscard]] QString path(const char *name) const { return folder_.filePath(QLatin1String(name)); }

    /// Runs one of the clients' programs to its end.
    [[nodiscard]] bool run(const char *program, const QStringList &arguments) const {
        QProcess client;
        client.start(QLatin1String(program), address() + arguments);
        return eventually([&] { return client.state() == QProcess::NotRunning; }) && client.exitCode() == 0;
    }
    [[nodiscard]] bool send(const QString &topic, const QString &payload, bool retain = false) const {
        QStringList arguments{QStringLiteral("-t"), topic, QStringLiteral("-m"), payload};
        return run("mosquitto_pub", retain ? arguments << QStringLiteral("-r") : arguments);
    }
    [[nodiscard]] QStringList address() const {
        return {QStringLiteral("-h"), QStringLiteral("127.0.0.1"), QStringLiteral("-p"),
                QString::number(port_)};
    }

private:
    QTemporaryDir folder_;
    quint16 port_ = freePort();
    QProcess process_;
};

/// mosquitto_sub on everything: one line "retain topic payload" a message.
class MqttWatcher {
public:
    explicit MqttWatcher(const MqttBroker &broker, const char *format = "%r %t %p") {
        const bool ready = broker.send(QStringLiteral("watcher/ready"), QStringLiteral("1"), true);
        process_.start(QStringLiteral("mosquitto_sub"),
                       broker.address() + QStringList{QStringLiteral("-t"), QStringLiteral("#"),
                                                      QStringLiteral("-F"), QLatin1String(format)});
        ready_ = ready && eventually([this] { return output().contains("watcher/ready"); });
    }
    ~MqttWatcher() {
        process_.kill();
        process_.waitForFinished();
    }
    MqttWatcher(const MqttWatcher &) = delete;
    MqttWatcher &operator=(const MqttWatcher &) = delete;

    [[nodiscard]] bool ready() const { return ready_; }
    const QByteArray &output() {
        output_ += process_.readAllStandardOutput();
        return output_;
    }
    bool sees(const QByteArray &line) {
        return eventually([&] { return output().contains(line + '\n'); });
    }
    int count(const QByteArray &piece) { return output().count(piece); }

private:
    QProcess process_;
    QByteArray output_;
    bool ready_ = false;
};

} // namespace zpsg::test
