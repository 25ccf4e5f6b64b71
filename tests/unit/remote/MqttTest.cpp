#include "remote/mqttHelper.h"
#include "support/DebugLines.h"
#include "support/MqttBroker.h"

#include <gtest/gtest.h>
#include <QElapsedTimer>
#include <QSignalSpy>

#include <algorithm>
#include <atomic>
#include <thread>

using namespace zpsg::remote;
using namespace zpsg::test;
using namespace std::chrono_literals;

namespace {

constexpr MqttTiming kQuick{200ms, 400ms, 5s};
const QByteArray kOnline = R"(0 pub!m {"comm":"05","m_id":"m","p_id":"p","status":"online"})";
const QByteArray kOffline = R"(0 pub!m {"comm":"05","m_id":"m","p_id":"p","status":"offline"})";

/// The longest time for which the event loop was away.
class LoopWatch : public QObject {
public:
    LoopWatch() {
        clock_.start();
        startTimer(1, Qt::PreciseTimer);
    }
    /// Forgets what was before, a test's own delays among it.
    void begin() {
        clock_.restart();
        longest_ = 0;
    }
    [[nodiscard]] qint64 longest() const { return longest_; } // ms

protected:
    void timerEvent(QTimerEvent *) override { longest_ = std::max(longest_, clock_.restart()); }

private:
    QElapsedTimer clock_;
    qint64 longest_ = 0;
};

// An instrumented program on a busy machine is slower by itself.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr qint64 kLongestTurn = 250;
#else
constexpr qint64 kLongestTurn = 50;
#endif

struct Remote {
    explicit Remote(quint16 port, const HostLookup::Resolver &resolver = {})
        : helper(nullptr, QStringLiteral("pub"), QStringLiteral("sub"), kQuick, resolver) {
        helper.setBroker(QStringLiteral("127.0.0.1"), port);
    }
    void open() { helper.Connect({QStringLiteral("m"), QStringLiteral("p")}); }
    bool fails(const char *name, int times = 1) {
        return eventually([&] {
            return std::count_if(errors.begin(), errors.end(), [name](const QList<QVariant> &error) {
                       return error.first() == QLatin1String(name);
                   }) >= times;
        });
    }

    mqttHelper helper;
    MqttClient &client = helper.client();
    QSignalSpy connected{&client, &MqttClient::connected};
    QSignalSpy disconnected{&client, &MqttClient::disconnected};
    QSignalSpy subscribed{&client, &MqttClient::subscribed};
    QSignalSpy published{&client, &MqttClient::published};
    QSignalSpy errors{&client, &MqttClient::error};
    QSignalSpy texts{&helper, &mqttHelper::mqttHelperToMain};
};

/// Greets, sends `bytes`, and reads nothing.
class HostileBroker {
public:
    explicit HostileBroker(const QByteArray &bytes) {
        server_.listen(QHostAddress::LocalHost);
        QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this, bytes] {
            auto *const peer = server_.nextPendingConnection();
            peer->setReadBufferSize(100);
            peer->write(QByteArray::fromHex("20020000") + bytes); // CONNACK: accepted
        });
    }
    [[nodiscard]] quint16 port() const { return server_.serverPort(); }

private:
    QTcpServer server_;
};

class Mqtt : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(broker.start()); }
    MqttBroker broker;
};

} // namespace

TEST_F(Mqtt, saysOnlineAnswersAndTakesCommands) {
    MqttWatcher watcher(broker);
    MqttWatcher bytes(broker, "%t %x");
    ASSERT_TRUE(watcher.ready() && bytes.ready());
    const support::DebugLines lines(QStringLiteral("zpsg.remote.debug=true"));
    Remote remote(broker.port());
    remote.helper.sentMqttMessage({QStringLiteral("01"), QStringLiteral("too early")});
    remote.open();
    ASSERT_TRUE(watcher.sees(kOnline));
    ASSERT_TRUE(eventually([&] { return remote.subscribed.count() == 1; }));
    EXPECT_EQ(support::DebugLines::text(),
              QStringLiteral("projectName:pub\ncount:sub\nmqtt connect\npublished::0\nsubscribed"));
    remote.helper.sentMqttMessage({QStringLiteral("01"), QString::fromUtf8("40!é")});
    EXPECT_TRUE(bytes.sees("pub!m " +
                           QByteArray(R"({"comm":"01","m_id":"m","p_id":"p","status":"40!)").toHex() + "e9" +
                           QByteArray("\"}").toHex()));
    EXPECT_EQ(watcher.count("too early"), 0);
    EXPECT_EQ(remote.published.last().first().toInt(), 0);
    EXPECT_TRUE(broker.send(QStringLiteral("subp"), QString::fromUtf8("{\"comm\":3} ü")));
    EXPECT_TRUE(eventually([&] { return remote.texts.count() == 1; }));
    EXPECT_EQ(remote.texts.first().first().toString(), QString::fromUtf8("{\"comm\":3} ü"));
    EXPECT_EQ(watcher.count(kOnline), 1);
}

TEST_F(Mqtt, withoutAMachineTheTopicEndsWithItsSeparator) {
    MqttWatcher watcher(broker);
    Remote remote(broker.port());
    remote.helper.Connect({});
    EXPECT_TRUE(watcher.sees(R"(0 pub! {"comm":"05","m_id":"","p_id":"","status":"online"})"));
}

TEST_F(Mqtt, deliberateEndStaysAndSendsNoWill) {
    MqttWatcher watcher(broker);
    Remote remote(broker.port());
    remote.open();
    ASSERT_TRUE(watcher.sees(kOnline));
    remote.helper.Disconnect();
    EXPECT_EQ(remote.disconnected.count(), 1);
    EXPECT_FALSE(eventually([&] { return remote.connected.count() > 1; }, 3 * kQuick.reconnect));
    ASSERT_TRUE(broker.send(QStringLiteral("end"), QStringLiteral("1")));
    ASSERT_TRUE(watcher.sees("0 end 1"));
    EXPECT_EQ(watcher.count("offline"), 0);
    remote.open();
    EXPECT_TRUE(eventually([&] { return watcher.count(kOnline) == 2; }));
}

TEST_F(Mqtt, willIsSentWhenTheProgramIsKilled) {
    MqttWatcher watcher(broker);
    // A connection that ends without a farewell: the client is gone before it could say one.
    auto client = std::make_unique<MqttClient>(kQuick);
    client->settings() = {QStringLiteral("127.0.0.1"), broker.port(),  QStringLiteral("id"), {}, {}, {},
                          QStringLiteral("pub!m"),     kOffline.mid(8)};
    client->connectToBroker();
    ASSERT_TRUE(eventually([&] { return client->isConnected(); }));
    client.reset();
    EXPECT_TRUE(watcher.sees(kOffline));

    Remote remote(broker.port());
    remote.open();
    ASSERT_TRUE(watcher.sees(kOnline));
    // The next one with the same identifier makes the broker throw the first one out.
    remote.client.setAutoReconnect(false);
    MqttClient twin(kQuick);
    twin.settings() = remote.client.settings();
    twin.settings().willTopic.clear();
    twin.connectToBroker();
    EXPECT_TRUE(remote.fails("SocketRemoteHostClosedError"));
    EXPECT_TRUE(eventually([&] { return watcher.count(kOffline) == 2; }));
}

TEST_F(Mqtt, brokerThatComesBackIsGreetedOnceAndListenedTo) {
    Remote remote(broker.port());
    remote.open();
    ASSERT_TRUE(eventually([&] { return remote.subscribed.count() == 1; }));
    broker.kill();
    ASSERT_TRUE(eventually([&] { return remote.disconnected.count() == 1; }));
    ASSERT_TRUE(remote.fails("SocketConnectionRefusedError", 2));
    ASSERT_TRUE(broker.start());
    ASSERT_TRUE(eventually([&] { return remote.subscribed.count() == 2; }));
    EXPECT_EQ(remote.connected.count(), 2);
    EXPECT_TRUE(eventually([&] { return remote.published.count() == 2; }));
    EXPECT_TRUE(broker.send(QStringLiteral("subp"), QStringLiteral("again")));
    EXPECT_TRUE(eventually([&] { return remote.texts.count() == 1; }));
    EXPECT_EQ(remote.published.count(), 2);
}

TEST_F(Mqtt, idleConnectionIsKeptAlive) {
    Remote remote(broker.port());
    const QSignalSpy answers(&remote.client, &MqttClient::pingresp);
    remote.open();
    EXPECT_TRUE(eventually([&] { return answers.count() > 0; }));
    EXPECT_EQ(remote.disconnected.count(), 0);
}

// A "shutdown" that the broker kept must not come back with each connection.
TEST_F(Mqtt, commandsThatTheBrokerKeptAreNotCarriedOut) {
    ASSERT_TRUE(broker.send(QStringLiteral("subp"), QStringLiteral("old"), true));
    Remote remote(broker.port());
    QSignalSpy commands(&remote.helper, &mqttHelper::mqttHelperToMain);
    remote.open();
    ASSERT_TRUE(eventually([&] { return remote.subscribed.count() == 1; }));
    ASSERT_TRUE(broker.send(QStringLiteral("subp"), QStringLiteral("new")));
    EXPECT_TRUE(eventually([&] { return commands.count() > 0; }));
    EXPECT_EQ(commands.front().front().toString(), QStringLiteral("new"));
}

TEST_F(Mqtt, payloadsThatAreNoTextAreDropped) {
    Remote remote(broker.port());
    remote.open();
    ASSERT_TRUE(eventually([&] { return remote.subscribed.count() == 1; }));
    LoopWatch watch;
    struct Row {
        QByteArray payload;
        bool taken;
    };
    for (const Row &row : {Row{QByteArray(), false}, Row{"\xC3\x28", false}, Row{"abc\xE2\x82", false},
                           Row{QByteArray(MqttClient::kMostPayload, 'x'), true},
                           Row{QByteArray(MqttClient::kMostPayload + 1, 'x'), false},
                           Row{QByteArray(10'000'000, 'x'), false}, Row{QByteArray("a\0b", 3), true}}) {
        remote.texts.clear();
        QFile file(broker.path("payload"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(row.payload);
        file.close();
        watch.begin();
        ASSERT_TRUE(broker.run("mosquitto_pub", {QStringLiteral("-t"), QStringLiteral("subp"),
                                                 QStringLiteral("-f"), file.fileName()}));
        ASSERT_TRUE(broker.send(QStringLiteral("subp"), QStringLiteral("last")));
        ASSERT_TRUE(eventually(
            [&] { return !remote.texts.isEmpty() && remote.texts.last().first() == QLatin1String("last"); }));
        EXPECT_EQ(remote.texts.count(), row.taken ? 2 : 1) << row.payload.size();
        EXPECT_LT(watch.longest(), kLongestTurn) << row.payload.size();
    }
}

TEST_F(Mqtt, userAndPasswordAreNeededWhereTheBrokerSaysSo) {
    broker.kill();
    QProcess maker;
    maker.start(QStringLiteral("mosquitto_passwd"),
                {QStringLiteral("-c"), QStringLiteral("-b"), broker.path("users"), QStringLiteral("u"),
                 QStringLiteral("geheim")});
    ASSERT_TRUE(maker.waitForFinished() && maker.exitCode() == 0);
    ASSERT_TRUE(broker.start("allow_anonymous false\npassword_file " + broker.path("users").toUtf8() + '\n'));
    Remote remote(broker.port());
    remote.open();
    EXPECT_TRUE(remote.fails("SocketAccessError"));
    remote.helper.setCredentials(QStringLiteral("u"), QStringLiteral("geheim"));
    EXPECT_TRUE(eventually([&] { return remote.subscribed.count() == 1; }))
        << "taken over by the next attempt";
}

TEST_F(Mqtt, certificateMustBeTheBrokersAndFromTheGivenAuthority) {
    broker.kill();
    QProcess maker;
    maker.setWorkingDirectory(broker.path(""));
    maker.start(QStringLiteral("sh"), {QStringLiteral("-ec"), QStringLiteral(R"(
        for ca in ca other; do
            openssl req -x509 -newkey rsa:2048 -nodes -days 2 -subj /CN=$ca -keyout $ca.key -out $ca.pem
        done
        openssl req -newkey rsa:2048 -nodes -subj /CN=broker -keyout key.pem -out request.pem
        echo subjectAltName=DNS:broker.test >names
        openssl x509 -req -in request.pem -CA ca.pem -CAkey ca.key -CAcreateserial -days 2 \
            -extfile names -out cert.pem
    )")});
    ASSERT_TRUE(maker.waitForFinished(60'000) && maker.exitCode() == 0);
    ASSERT_TRUE(broker.start("allow_anonymous true\ncertfile " + broker.path("cert.pem").toUtf8() +
                             "\nkeyfile " + broker.path("key.pem").toUtf8() + '\n'));
    const auto here = [](const QString &) { return QStringList{QStringLiteral("127.0.0.1")}; };
    struct Row {
        const char *name;
        const char *authority;
        const char *error; // null: it must succeed
    };
    for (const Row &row :
         {Row{"broker.test", "ca.pem", nullptr}, Row{"else.test", "ca.pem", "SocketSslHandshakeFailedError"},
          Row{"127.0.0.1", "ca.pem", "SocketSslHandshakeFailedError"},
          Row{"broker.test", "other.pem", "SocketSslHandshakeFailedError"},
          Row{"broker.test", "missing.pem", "SocketSslInvalidUserDataError"}}) {
        const LoopWatch watch;
        Remote remote(broker.port(), here);
        remote.helper.setBroker(QLatin1String(row.name), broker.port());
        remote.helper.setCaFile(broker.path(row.authority));
        remote.open();
        if (row.error != nullptr) {
            EXPECT_TRUE(remote.fails(row.error)) << row.name << row.authority;
            EXPECT_EQ(remote.connected.count(), 0);
            continue;
        }
        ASSERT_TRUE(eventually([&] { return remote.subscribed.count() == 1; }));
        EXPECT_TRUE(remote.client.subscribe(QStringLiteral("subp")));
        // More than TLS hands out in one piece.
        remote.client.publish(QStringLiteral("subp"), QByteArray(60'000, 'x'));
        for (int i = 0; i < 100; ++i) {
            remote.client.publish(QStringLiteral("subp"), "a");
        }
        EXPECT_TRUE(eventually([&] { return remote.texts.count() == 101; }));
        EXPECT_LT(watch.longest(), kLongestTurn);
    }
}

TEST(MqttFailures, brokersThatCannotBeHadNeverHoldTheLoop) {
    QTcpServer silent; // accepts, says nothing
    QTcpServer reset;  // accepts, resets
    ASSERT_TRUE(silent.listen(QHostAddress::LocalHost) && reset.listen(QHostAddress::LocalHost));
    QObject::connect(&reset, &QTcpServer::newConnection, &reset, [&reset] {
        auto *const socket = reset.nextPendingConnection();
        socket->setReadBufferSize(1);
        socket->abort(); // with the greeting unread: a reset
        socket->deleteLater();
    });
    struct Row {
        QString host;
        quint16 port;
        const char *error;
    };
    for (const Row &row :
         {Row{QStringLiteral("127.0.0.1"), freePort(), "SocketConnectionRefusedError"},
          Row{QStringLiteral("127.0.0.1"), silent.serverPort(), "SocketTimeoutError"},
          Row{QStringLiteral("127.0.0.1"), reset.serverPort(), "SocketRemoteHostClosedError"},
          Row{QStringLiteral("nowhere.invalid"), 1883, "SocketHostNotFoundError"},
          Row{QString(), 1883, "SocketHostNotFoundError"}}) {
        const LoopWatch watch;
        Remote remote(row.port);
        remote.helper.setBroker(row.host, row.port);
        remote.open();
        EXPECT_EQ(remote.errors.count(), 0) << "nothing happens inside the call";
        EXPECT_TRUE(remote.fails(row.error, 2)) << row.host.toStdString() << row.error;
        EXPECT_EQ(remote.connected.count() + remote.disconnected.count(), 0);
        EXPECT_LT(watch.longest(), kLongestTurn) << row.error;
        remote.helper.Disconnect();
        const int before = remote.errors.count();
        EXPECT_FALSE(eventually([&] { return remote.errors.count() > before; }, 2 * kQuick.reconnect));
    }
}

TEST(MqttFailures, nameServerThatHangsHoldsNeitherTheLoopNorTheEnd) {
    static std::atomic<int> asked{0};
    static std::atomic<bool> hang{true};
    const auto hanging = [](const QString &) {
        ++asked;
        while (hang) {
            std::this_thread::sleep_for(1ms);
        }
        return QStringList();
    };
    QElapsedTimer end;
    {
        const LoopWatch watch;
        Remote remote(1883, hanging);
        remote.helper.setBroker(QStringLiteral("broker.test"));
        remote.open();
        EXPECT_TRUE(remote.fails("SocketTimeoutError", 3));
        EXPECT_EQ(asked, 1) << "one question is open at a time";
        EXPECT_LT(watch.longest(), kLongestTurn);
        end.start();
    }
    EXPECT_LT(end.elapsed(), 50);
    hang = false;
}

TEST(MqttFailures, nextAddressOfANameIsTried) {
    MqttBroker broker;
    ASSERT_TRUE(broker.start());
    Remote remote(broker.port(), [](const QString &) {
        return QStringList{QStringLiteral("127.0.0.2"), QStringLiteral("127.0.0.1")};
    });
    remote.helper.setBroker(QStringLiteral("broker.test"), broker.port());
    remote.open();
    EXPECT_TRUE(eventually([&] { return remote.connected.count() == 1; }));
    EXPECT_EQ(remote.errors.count(), 0);
}

TEST(MqttFailures, brokerThatStopsReadingDoesNotFillTheMemory) {
    HostileBroker broker({});
    Remote remote(broker.port());
    remote.open();
    ASSERT_TRUE(eventually([&] { return remote.connected.count() == 1; }));
    int taken = 0;
    while (taken < 10'000 && remote.client.publish(QStringLiteral("t"), QByteArray(60'000, 'x'))) {
        ++taken;
    }
    EXPECT_LT(taken, 1'000);
    EXPECT_TRUE(remote.client.isConnected());
    QElapsedTimer end;
    end.start();
    remote.helper.Disconnect();
    EXPECT_LT(end.elapsed(), kLongestTurn);
}

TEST(MqttFailures, floodLeavesTheLoopItsTurns) {
    constexpr int kMessages = 100'000;
    const QByteArray message = QByteArray::fromHex("3010") + QByteArray("\0\4subp", 6) + "{\"comm\":3}";
    HostileBroker broker(message.repeated(kMessages));
    Remote remote(broker.port());
    const LoopWatch watch;
    remote.open();
    EXPECT_TRUE(eventually([&] { return remote.texts.count() == kMessages; }));
    EXPECT_LT(watch.longest(), kLongestTurn);
    EXPECT_TRUE(remote.client.isConnected());
}

TEST(MqttFailures, brokerThatTalksNonsenseIsLeft) {
    for (const char *bytes : {"ffffffffffffff", "30ffffffff7f", "3002ffff", "20020000", "9003000100"}) {
        const LoopWatch watch;
        HostileBroker broker(QByteArray::fromHex(bytes));
        Remote remote(broker.port());
        remote.open();
        EXPECT_TRUE(eventually([&] { return remote.connected.count() == 1; })) << bytes;
        eventually([&] { return remote.disconnected.count() > 0; }, kQuick.giveUp);
        EXPECT_LT(watch.longest(), kLongestTurn) << bytes;
    }
}

TEST(MqttFailures, slotMayDestroyTheClient) {
    MqttBroker broker;
    ASSERT_TRUE(broker.start());
    auto client = std::make_unique<MqttClient>(kQuick);
    client->settings().host = QStringLiteral("127.0.0.1");
    client->settings().port = broker.port();
    client->settings().clientId = QStringLiteral("short-lived");
    QObject::connect(client.get(), &MqttClient::connected, [&client] { client.reset(); });
    client->connectToBroker();
    EXPECT_TRUE(eventually([&] { return client == nullptr; }));
}
