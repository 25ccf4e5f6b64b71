#include "remote/SocketHelper.h"

#include "remote/Logging.h"
#include "remote/OwnAddress.h"
#include "remote/SocketFraming.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QHostInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPointer>
#include <QTcpSocket>

#include <algorithm>
#include <array>
#include <utility>

namespace zpsg::remote {
namespace {

constexpr qint64 kChunk = 8192;         // bytes
constexpr qint64 kReadAhead = 65'536;   // bytes the toolkit takes from the system before they are wanted
constexpr int kPiecesPerTurn = 500;     // of one client, before others and the window get their turn
constexpr int kMillisecondsPerTurn = 4; // likewise

} // namespace

struct SocketHelper::Client {
    Client(QTcpSocket *itsSocket, int longestPiece) : socket(itsSocket), framing(longestPiece) {
        heard.start();
    }

    QPointer<QTcpSocket> socket; ///< null when it has left; what it sent before is still carried out
    QPointer<QTcpSocket> left;   ///< to be deleted when no handler is inside its signal any more
    SocketFraming framing;
    QByteArray opening;   ///< its first bytes, until it is known not to be a browser
    QElapsedTimer heard;  ///< since it last sent something that was understood
    bool reading = false; ///< drain() is at work, maybe further up the stack
    bool more = false;    ///< drain() stopped before the end
    bool dropped = false; ///< disconnected by this side: what it sent is not carried out any more

    void drop() {
        dropped = true;
        if (socket) {
            socket->abort(); // raises disconnected()
        }
    }
};

SocketHelper::SocketHelper(quint16 port, const SocketLimits &limits, QObject *parent)
    : QObject(parent), limits_(limits) {
    readOn_.setSingleShot(true);
    connect(&readOn_, &QTimer::timeout, this, &SocketHelper::readOn);
    connect(&server_, &QTcpServer::newConnection, this, &SocketHelper::newConnection);
    if (!server_.listen(QHostAddress::Any, port)) {
        qCDebug(lcRemote).noquote() << "no control socket:" << server_.errorString();
    }
}

SocketHelper::~SocketHelper() {
    for (const auto &client : clients_) {
        if (client->socket) {
            client->socket->disconnect(this);
        }
    }
}

void SocketHelper::newConnection() {
    while (auto *socket = server_.nextPendingConnection()) {
        qCDebug(lcRemote) << "Socket:newConnection";
        if ((allowRemote_ || isOwnAddress(socket->peerAddress())) && makeRoom()) {
            welcome(socket);
        } else {
            socket->abort();
            socket->deleteLater();
        }
    }
}

void SocketHelper::setAllowRemote(bool allow) {
    allowRemote_ = allow;
    const auto clients = clients_; // one that goes leaves the list
    for (const auto &client : clients) {
        if (!allow && client->socket && !isOwnAddress(client->socket->peerAddress())) {
            client->drop();
        }
    }
}

bool SocketHelper::makeRoom() {
    if (clientCount() < limits_.clients) {
        return true;
    }
    const auto quietest =
        std::max_element(clients_.begin(), clients_.end(), [](const auto &a, const auto &b) {
            return a->heard.elapsed() < b->heard.elapsed();
        });
    const ClientPointer client = *quietest;
    if (!client->heard.hasExpired(limits_.patience.count())) {
        return false;
    }
    client->drop();
    return clientCount() < limits_.clients;
}

void SocketHelper::welcome(QTcpSocket *socket) {
    socket->setReadBufferSize(kReadAhead);
    connect(socket, &QTcpSocket::readyRead, this, &SocketHelper::readyRead);
    connect(socket, &QTcpSocket::disconnected, this, &SocketHelper::disconnected);
    const auto client = std::make_shared<Client>(socket, limits_.pieceBytes);
    clients_.push_back(client);
    newest_ = client;
    write(*client, greeting());
    // What came with the connection has no signal of its own any more.
    drain(client);
}

QByteArray SocketHelper::greeting() const {
    static constexpr std::array<const char *, 3> kNames{"CvPower!", "CvPower_12LED!", "CvPower_Duo!"};
    const QByteArray host = QHostInfo::localHostName().toUtf8();
    QByteArray text = present_ ? kNames.at(static_cast<std::size_t>(kind_)) + host : "NoPower!" + host;
    if (present_ && kind_ != LightKind::Single) {
        text += '!' + lightingState_.toUtf8();
    }
    return text + SocketFraming::kSeparator;
}

SocketHelper::ClientPointer SocketHelper::find(const QObject *socket) const {
    const auto client = std::find_if(clients_.begin(), clients_.end(),
                                     [socket](const auto &each) { return each->socket == socket; });
    return socket == nullptr || client == clients_.end() ? nullptr : *client;
}

void SocketHelper::disconnected() {
    qCDebug(lcRemote) << "Socket:disconnected";
    const ClientPointer client = find(sender());
    if (!client) {
        return;
    }
    const bool unfinished = (client->more || client->reading) && !client->dropped;
    // It may send its commands and leave without waiting for them. One that broke is not open any more.
    if (unfinished && client->socket->isOpen()) {
        client->framing.append(client->socket->readAll());
    }
    if (client->reading) {
        client->left = client->socket;
    } else {
        client->socket->deleteLater();
    }
    client->socket = nullptr;
    if (!unfinished) {
        forget(client);
    }
}

void SocketHelper::forget(const ClientPointer &client) {
    clients_.erase(std::remove(clients_.begin(), clients_.end(), client), clients_.end());
}

void SocketHelper::readyRead() {
    if (const ClientPointer client = find(sender()); client && !client->more) {
        drain(client);
    }
}

void SocketHelper::readOn() {
    const auto clients = clients_; // handling a command may change the list
    for (const auto &client : clients) {
        if (std::exchange(client->more, false)) {
            drain(client);
        }
    }
}

void SocketHelper::drain(const ClientPointer &client) {
    if (client->reading) {
        client->more = true;
        return;
    }
    client->reading = true;
    const QDeadlineTimer deadline(kMillisecondsPerTurn);
    int pieces = 0;
    bool atEnd = false;
    while (!atEnd && pieces < kPiecesPerTurn && !deadline.hasExpired()) {
        if (const auto piece = client->framing.next()) {
            ++pieces;
            handle(client, *piece);
        } else {
            atEnd = !feed(*client);
        }
        atEnd = atEnd || client->dropped;
    }
    client->reading = false;
    if (client->left) {
        std::exchange(client->left, nullptr)->deleteLater();
    }
    client->more = (client->more || !atEnd) && !client->dropped;
    if (client->more) {
        readOn_.start(0);
    } else if (!client->socket) {
        forget(client);
    }
}

bool SocketHelper::feed(Client &client) {
    if (client.framing.tooLong()) {
        client.drop();
        return false;
    }
    const QByteArray chunk = client.socket ? client.socket->read(kChunk) : QByteArray();
    if (client.opening.size() < kHttpOpening) {
        client.opening += chunk.left(kHttpOpening - client.opening.size());
        // A web page could make its visitor's browser send commands in a request's body.
        if (looksLikeHttp(client.opening)) {
            client.drop();
            return false;
        }
    }
    client.framing.append(chunk);
    return !chunk.isEmpty();
}

void SocketHelper::handle(const ClientPointer &client, const QByteArray &piece) {
    const SocketPiece decoded = decodePiece(piece);
    if (decoded.kind == SocketPiece::Kind::KeepAlive) {
        client->heard.restart();
    }
    if (decoded.kind != SocketPiece::Kind::Command) {
        return;
    }
    if (const auto *row = findCommand(kind_, decoded.command)) {
        client->heard.restart();
        const ClientPointer before = std::exchange(asking_, client);
        raise(*row, decoded.data);
        asking_ = before;
    }
}

void SocketHelper::raise(const CommandRow &row, const QVariantMap &data) {
    if (row.log != nullptr) {
        qCDebug(lcRemote) << row.log;
    }
    if (row.before != nullptr) {
        QMetaObject::invokeMethod(this, row.before, Qt::DirectConnection);
    }
    switch (row.carries) {
    case Carries::Nothing:
        QMetaObject::invokeMethod(this, row.signal, Qt::DirectConnection);
        break;
    case Carries::StateQuery:
        QMetaObject::invokeMethod(this, row.signal, Qt::DirectConnection, Q_ARG(QByteArray, "get State"));
        break;
    case Carries::Data:
        QMetaObject::invokeMethod(this, row.signal, Qt::DirectConnection, Q_ARG(QVariantMap, data));
        break;
    }
}

void SocketHelper::initMsgFromMain(const QByteArray &state) {
    static constexpr std::array kNames{"Light", "LightMode", "rColor", "gColor", "bColor", "Brightness"};
    const QList<QByteArray> fields = state.split(' ');
    if (fields.size() <= static_cast<int>(kNames.size())) {
        return;
    }
    QJsonObject data;
    int field = 0;
    for (const char *name : kNames) {
        data.insert(QLatin1String(name), QString::fromUtf8(fields[++field]));
    }
    const QJsonObject reply{{QStringLiteral("command"), QStringLiteral("1")}, {QStringLiteral("Data"), data}};
    send(framed(QJsonDocument(reply).toJson(QJsonDocument::Compact)));
}

void SocketHelper::messageFrom_controlPlus(const QString &text) { sendText(text); }

void SocketHelper::init_Duo(const QString &text) { sendText(text); }

void SocketHelper::init_RGB_State_FromMain(int present) {
    if (present == 0 || present == 1) {
        present_ = present == 1;
    }
}

void SocketHelper::init_RGB_State_FromMain_12LED(int kind) {
    if (kind == 0 || kind == 1) {
        kind_ = static_cast<LightKind>(kind);
    }
}

void SocketHelper::messageFromMainGetRGB_State(bool present, int kind) {
    present_ = present;
    kind_ = lightKind(kind).value_or(kind_);
}

void SocketHelper::sendText(const QString &text) {
    qCDebug(lcRemote).noquote() << "data:" << text;
    send(framed(text.simplified().toUtf8()));
}

void SocketHelper::send(const QByteArray &bytes) {
    if (const ClientPointer client = asking_ ? asking_ : newest_.lock()) {
        write(*client, bytes);
    }
}

void SocketHelper::write(Client &client, const QByteArray &bytes) const {
    if (!client.socket) {
        return;
    }
    if (client.socket->bytesToWrite() + bytes.size() > limits_.unsentBytes) {
        client.drop();
        return;
    }
    client.socket->write(bytes);
    // At once: one that half-closes after its question is still there now, but not when the event loop runs.
    client.socket->flush();
}

} // namespace zpsg::remote
