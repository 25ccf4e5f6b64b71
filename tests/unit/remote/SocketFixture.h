// A control socket on a port of its own, clients of it, and a record of what it raises.
#pragma once

#include "remote/SocketFraming.h"
#include "remote/SocketHelper.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QHostInfo>
#include <QJsonDocument>
#include <QMetaMethod>
#include <QStringList>
#include <QTcpSocket>
#include <QTest>

#include <gmock/gmock.h>

#include <memory>

namespace zpsg::remote {

/// Every signal of a SocketHelper as a line: its name, and what it carries.
class SignalRecord : public QObject {
    Q_OBJECT

public:
    explicit SignalRecord(SocketHelper &helper) {
        const QMetaObject &from = SocketHelper::staticMetaObject;
        for (int i = from.methodOffset(); i < from.methodCount(); ++i) {
            const QMetaMethod signal = from.method(i);
            if (signal.methodType() != QMetaMethod::Signal) {
                continue;
            }
            const QByteArray carried = signal.parameterTypes().value(0);
            const QByteArray slot = "heard(" + carried + ')';
            connect(&helper, signal, this, metaObject()->method(metaObject()->indexOfSlot(slot)));
        }
    }

    QStringList lines;

public slots:
    void heard() { note(QString()); }
    void heard(const QByteArray &text) { note(QLatin1Char(' ') + QString::fromUtf8(text)); }
    void heard(const QVariantMap &data) {
        const auto json = QJsonDocument::fromVariant(data).toJson(QJsonDocument::Compact);
        note(QLatin1Char(' ') + QString::fromUtf8(json));
    }

private:
    void note(const QString &what) {
        const auto signal = sender()->metaObject()->method(senderSignalIndex());
        lines.append(QString::fromLatin1(signal.name()) + what);
    }
};

inline QByteArray command(int number, const QByteArray &data = "{}") {
    return framed(R"({"command":)" + QByteArray::number(number) + R"(,"Data":)" + data + '}');
}

class SocketFixture : public ::testing::Test {
protected:
    using Client = std::unique_ptr<QTcpSocket>;

    explicit SocketFixture(const SocketLimits &limits = {}) : helper(0, limits) {}

    /// Connected, with the greeting read, or closed by the other side.
    [[nodiscard]] Client client() const {
        auto socket = connecting();
        eventually([&] { return socket->bytesAvailable() > 0 || closed(socket); });
        socket->readAll();
        return socket;
    }
    [[nodiscard]] Client connecting() const {
        auto socket = std::make_unique<QTcpSocket>();
        socket->connectToHost(QHostAddress(QHostAddress::LocalHost), helper.port());
        eventually([&] { return socket->state() == QAbstractSocket::ConnectedState; });
        return socket;
    }
    static bool closed(const Client &socket) { return socket->state() == QAbstractSocket::UnconnectedState; }
    /// False after twenty seconds.
    template <typename Condition>
    static bool eventually(Condition condition) {
        const QDeadlineTimer deadline(20'000);
        while (!condition() && !deadline.hasExpired()) {
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QTest::qSleep(1);
        }
        return condition();
    }
    bool heard(int count) {
        return eventually([&] { return record.lines.size() >= count; });
    }
    /// The payload of the next message.
    static QByteArray reply(const Client &socket) {
        eventually([&] { return socket->peek(65'536).contains('&'); });
        const int length = socket->peek(65'536).indexOf('&');
        const QByteArray message = socket->read(length + 1);
        return QByteArray::fromBase64(message.left(length));
    }

    SocketHelper helper;
    SignalRecord record{helper};
};

} // namespace zpsg::remote
