#include "SocketFixture.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTimer>

using namespace zpsg::remote;
using namespace std::chrono_literals;

namespace {

using SocketLimitsTest = SocketFixture;

class ShortPatience : public SocketFixture {
protected:
    ShortPatience() : SocketFixture({.clients = 3, .patience = 500ms}) {}
};

/// Of this process, in KiB. A sanitiser keeps what was freed, so there it is no measure.
long residentMemory() {
#ifdef __SANITIZE_ADDRESS__
    return 0;
#endif
    QFile status(QStringLiteral("/proc/self/statm"));
    return status.open(QIODevice::ReadOnly) ? status.readAll().split(' ').value(1).toLong() * 4 : 0;
}

TEST_F(SocketLimitsTest, ASeventeenthClientIsClosed) {
    std::vector<Client> clients(16);
    for (auto &each : clients) {
        each = client();
    }
    const auto late = connecting();
    EXPECT_TRUE(eventually([&] { return closed(late); }));
    EXPECT_EQ(late->bytesAvailable(), 0) << "it was greeted";
    EXPECT_EQ(helper.clientCount(), 16);
    clients.front()->write(command(0));
    EXPECT_TRUE(heard(1));
    clients.pop_back();
    EXPECT_TRUE(eventually([&] { return helper.clientCount() == 15; }));
    EXPECT_FALSE(closed(client()));
}

TEST_F(ShortPatience, TheQuietestGivesWay) {
    std::array<Client, 3> clients{client(), client(), client()};
    QTest::qWait(600);
    clients[0]->write(framed("07"));
    clients[1]->write("e"); // not a command yet
    clients[2]->write(command(0));
    EXPECT_TRUE(heard(1));
    QTest::qWait(50);
    EXPECT_FALSE(closed(client()));
    EXPECT_TRUE(eventually([&] { return closed(clients[1]); }));
    EXPECT_FALSE(closed(clients[0]));
    EXPECT_FALSE(closed(clients[2]));
    EXPECT_TRUE(closed(client())) << "all were heard of just now";
}

TEST_F(SocketLimitsTest, WhatIsTooLongEndsTheConnection) {
    const auto longest = client();
    longest->write(QByteArray(65'536, ' ') + '&' + command(2));
    EXPECT_TRUE(heard(1)) << "64 KiB are allowed";
    const auto socket = client();
    const long before = residentMemory();
    socket->write(QByteArray(10'000'000, 'x'));
    EXPECT_TRUE(eventually([&] { return closed(socket); }));
    socket->abort();
    EXPECT_EQ(helper.clientCount(), 1);
    EXPECT_LT(residentMemory() - before, 20'000) << "10 MB are the sender's own";
    const auto finished = client();
    finished->write(QByteArray(65'537, ' ') + '&' + command(2));
    EXPECT_TRUE(eventually([&] { return closed(finished); }));
    EXPECT_EQ(record.lines.size(), 1);
}

TEST_F(SocketLimitsTest, ABrowserIsClosedAtOnce) {
    for (const QByteArray method : {"GET", "POST", "PUT", "OPTIONS", "HEAD", "CONNECT", "DELETE", "PATCH"}) {
        const QByteArray request = method + " / HTTP/1.1\r\nHost: x\r\n\r\n&" + command(0);
        for (int cut = 0; cut <= method.size() + 1; ++cut) {
            const auto socket = client();
            socket->write(request.left(cut));
            socket->flush();
            QTest::qWait(2);
            socket->write(request.mid(cut));
            EXPECT_TRUE(eventually([&] { return closed(socket); })) << method.constData() << cut;
        }
    }
    EXPECT_TRUE(record.lines.isEmpty());
    const auto socket = client();
    socket->write("GETTING&get &" + command(0)); // no request
    EXPECT_TRUE(heard(1));
}

TEST_F(SocketLimitsTest, OneThatNeverReadsIsDropped) {
    QObject::connect(&helper, &SocketHelper::socketHelperToMain, &helper,
                     [&] { helper.init_Duo(QString(4000, QLatin1Char('s'))); });
    const auto socket = client();
    socket->setReadBufferSize(1024);
    const auto other = client();
    const QByteArray query = command(0);
    int asked = 0;
    const bool dropped = eventually([&] {
        for (int i = 0; i < 200 && asked < 100'000; ++i, ++asked) {
            socket->write(query);
        }
        return helper.clientCount() == 1;
    });
    EXPECT_TRUE(dropped) << asked;
    const auto answered = record.lines.size();
    QTest::qWait(20);
    EXPECT_EQ(record.lines.size(), answered) << "its questions outlive it";
    other->write(query);
    EXPECT_EQ(reply(other).size(), 4000);
}

TEST_F(SocketLimitsTest, AFloodKeepsItsOrder) {
    constexpr int kCommands = 40'000;
    const auto socket = client();
    for (int i = 0; i < kCommands; ++i) {
        socket->write(command(3, R"({"n":)" + QByteArray::number(i) + '}'));
    }
    ASSERT_TRUE(heard(kCommands));
    for (int i = 0; i < kCommands; ++i) {
        ASSERT_TRUE(record.lines[i].endsWith(QStringLiteral(":%1}").arg(i))) << i;
    }
}

TEST_F(SocketLimitsTest, AFloodLeavesTimeForTheWindow) {
    QObject::connect(&helper, &SocketHelper::socketHelperToMain, &helper, [] {
        QElapsedTimer work;
        work.start();
        while (work.nsecsElapsed() < 50'000) {
        }
    });
    QTimer window;
    QElapsedTimer since;
    qint64 worst = 0; // milliseconds without a turn
    QObject::connect(&window, &QTimer::timeout, &window, [&] { worst = std::max(worst, since.restart()); });
    const auto socket = client();
    socket->write(framed("{}").repeated(30'000)); // the shortest there is: command 0
    window.start(0);
    since.start();
    EXPECT_TRUE(heard(30'000));
    EXPECT_LT(worst, 300);
}

TEST_F(SocketLimitsTest, AThousandConnectionsLeaveNothing) {
    const auto cycle = [this](int count) {
        for (int i = 0; i < count; ++i) {
            const auto socket = client();
            socket->write(command(0) + "half");
        }
        EXPECT_TRUE(eventually([&] { return helper.clientCount() == 0; }));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        record.lines.clear();
    };
    EXPECT_EQ(helper.findChildren<QTcpSocket *>().size(), 0);
    auto present = client();
    EXPECT_EQ(helper.findChildren<QTcpSocket *>().size(), 1);
    present.reset();
    cycle(100);
    const long before = residentMemory();
    cycle(1000);
    EXPECT_LT(residentMemory() - before, 2000);
    EXPECT_TRUE(helper.findChildren<QTcpSocket *>().isEmpty());
}

TEST_F(SocketLimitsTest, AReceiverMayRunAnEventLoop) {
    const auto socket = client();
    const auto other = client();
    bool once = false;
    QObject::connect(&helper, &SocketHelper::socketHelperToMain_RGBA, &helper, [&] {
        if (!std::exchange(once, true)) { // such as a dialogue
            socket->write(command(1));
            socket->disconnectFromHost();
            other->write(command(4));
            QEventLoop loop;
            QTimer::singleShot(100, &loop, SLOT(quit()));
            loop.exec();
        }
    });
    socket->write(command(3) + command(2));
    EXPECT_TRUE(heard(4));
    QStringList names;
    for (const auto &line : record.lines) {
        names.append(line.section(QLatin1Char(' '), 0, 0).section(QLatin1Char('_'), 1));
    }
    EXPECT_EQ(names, QStringList({QStringLiteral("RGBA"), QStringLiteral("Music"),
                                  QStringLiteral("LightModel"), QStringLiteral("LightOnClick")}));
}

} // namespace
