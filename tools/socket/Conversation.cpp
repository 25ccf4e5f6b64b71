#include "socket/Conversation.h"

#include "socket/Line.h"

#include <QCoreApplication>
#include <QJsonDocument>

#include <array>
#include <cstdio>
#include <unistd.h>

namespace zpsg::socket {
namespace {

constexpr int kLongestMessage = 1 << 20; // bytes

} // namespace

Conversation::Conversation(const QString &host, quint16 port, const QStringList &lines, int patience)
    : input_(STDIN_FILENO, QSocketNotifier::Read), lines_(lines), framing_(kLongestMessage) {
    patience_.setSingleShot(true);
    patience_.setInterval(patience);
    input_.setEnabled(false);
    connect(&socket_, &QTcpSocket::readyRead, this, &Conversation::received);
    connect(&socket_, &QAbstractSocket::errorOccurred, this, &Conversation::failed);
    connect(&input_, &QSocketNotifier::activated, this, &Conversation::inputReady);
    connect(&patience_, &QTimer::timeout, this, &Conversation::end);
    socket_.connectToHost(host, port);
    patience_.start();
}

void Conversation::received() {
    framing_.append(socket_.readAll());
    while (const auto piece = framing_.next()) {
        print(*piece);
    }
    if (greeted_ && patience_.isActive()) {
        patience_.start();
    }
}

void Conversation::print(const QByteArray &piece) {
    if (greeted_) {
        const auto text = QByteArray::fromBase64(piece);
        const auto document = QJsonDocument::fromJson(text);
        std::printf("%s\n", (document.isNull() ? text : document.toJson(QJsonDocument::Compact)).constData());
    } else {
        // Plain text, and only now are commands of use.
        std::printf("%s\n", piece.constData());
        greeted_ = true;
        patience_.stop();
        for (const auto &line : std::as_const(lines_)) {
            take(line);
        }
        input_.setEnabled(lines_.isEmpty());
        if (!lines_.isEmpty()) {
            expectNoMore();
        }
    }
    std::fflush(stdout);
}

void Conversation::inputReady() {
    std::array<char, 4096> buffer{};
    const auto count = ::read(STDIN_FILENO, buffer.data(), buffer.size());
    if (count <= 0) {
        input_.setEnabled(false);
        take(QString::fromUtf8(typed_));
        expectNoMore();
        return;
    }
    typed_.append(buffer.data(), static_cast<int>(count));
    for (int end = typed_.indexOf('\n'); end >= 0; end = typed_.indexOf('\n')) {
        const QByteArray line = typed_.left(end);
        typed_.remove(0, end + 1);
        take(QString::fromUtf8(line));
    }
}

void Conversation::take(const QString &line) {
    const Line parsed = parseLine(line);
    switch (parsed.kind) {
    case Line::Kind::Nothing:
        break;
    case Line::Kind::Send:
        socket_.write(remote::framed(parsed.text));
        break;
    case Line::Kind::Help:
        std::printf("%s", lineHelp());
        std::fflush(stdout);
        break;
    case Line::Kind::Quit:
        input_.setEnabled(false);
        expectNoMore();
        break;
    case Line::Kind::Wrong:
        std::fprintf(stderr, "zpsg-socket: %s\n", parsed.text.constData());
        break;
    }
}

void Conversation::expectNoMore() {
    ending_ = true;
    patience_.start();
}

void Conversation::failed() {
    const bool refused = greeted_ && socket_.error() == QAbstractSocket::RemoteHostClosedError;
    std::fprintf(stderr, "zpsg-socket: %s\n",
                 refused ? "the other side closed the connection" : qPrintable(socket_.errorString()));
    QCoreApplication::exit(1);
}

void Conversation::end() const {
    if (!ending_) {
        std::fprintf(stderr, "zpsg-socket: nobody answered\n");
    }
    QCoreApplication::exit(ending_ ? 0 : 1);
}

} // namespace zpsg::socket
