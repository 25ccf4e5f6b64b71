#include "platform/linux/TitleReceiver.h"

#include "platform/linux/FileDescriptor.h"
#include "platform/linux/Log.h"
#include "platform/linux/TitleMessage.h"

#include <cerrno>
#include <cstring>
#include <QPointer>
#include <sys/socket.h>

namespace zpsg::platform {
namespace {

bool isOwnProcess(int socket) {
    ucred peer{};
    socklen_t size = sizeof(peer);
    return getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == geteuid();
}

} // namespace

/// One open connection; the receiver, its parent, owns it.
class TitleReceiver::Client : public QObject {
public:
    Client(FileDescriptor socket, TitleReceiver &receiver)
        : QObject(&receiver)
        , receiver_(receiver)
        , socket_(std::move(socket))
        , readable_(socket_.get(), QSocketNotifier::Read) {
        connect(&readable_, &QSocketNotifier::activated, this, [this] { read(); });
        connect(&patience_, &QTimer::timeout, this, [this] { drop(); });
        patience_.start(kClientPatience);
    }

private:
    void read() {
        const ssize_t count = recv(socket_.get(), bytes_.data() + size_, bytes_.size() - size_, 0);
        if (count < 0 && (errno == EAGAIN || errno == EINTR)) {
            return;
        }
        if (count <= 0) {
            drop();
            return;
        }
        size_ += static_cast<std::size_t>(count);
        if (size_ < bytes_.size()) {
            return;
        }
        if (const auto message = decodeTitleMessage(bytes_)) {
            answer(*message);
        } else {
            qCDebug(lcPlatform, "a client sent something that is no message");
            drop();
        }
    }

    void answer(const WindowMessage &message) {
        readable_.setEnabled(false);
        patience_.stop();
        // The handler may run an event loop of its own or end the claim, and this object with it.
        const QPointer<Client> self(this);
        const MessageHandler handler = receiver_.handler_;
        const std::uint8_t answer = handler && handler(message) ? kAnswerHandled : kAnswerNotHandled;
        if (self) {
            // The sender may have run out of patience and be gone; that is its own affair.
            send(socket_.get(), &answer, sizeof(answer), MSG_NOSIGNAL);
            drop();
        }
    }

    void drop() {
        if (!socket_) {
            return;
        }
        readable_.setEnabled(false);
        socket_ = FileDescriptor();
        --receiver_.open_;
        receiver_.incoming_.setEnabled(true);
        deleteLater();
    }

    TitleReceiver &receiver_;
    FileDescriptor socket_;
    QSocketNotifier readable_;
    QTimer patience_; // for the whole message
    TitleMessageBytes bytes_{};
    std::size_t size_ = 0;
};

TitleReceiver::TitleReceiver(int listener, MessageHandler handler)
    : incoming_(listener, QSocketNotifier::Read), handler_(std::move(handler)) {
    connect(&incoming_, &QSocketNotifier::activated, this, [this] { acceptAll(); });
    resume_.setSingleShot(true);
    resume_.setInterval(kClientPatience);
    connect(&resume_, &QTimer::timeout, this, [this] { incoming_.setEnabled(true); });
}

void TitleReceiver::acceptAll() {
    while (open_ < kMostClients) {
        FileDescriptor socket(
            accept4(static_cast<int>(incoming_.socket()), nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
        if (!socket) {
            if (errno == EINTR || errno == ECONNABORTED) {
                continue;
            }
            if (errno != EAGAIN) {
                qCDebug(lcPlatform, "accept: %s", std::strerror(errno));
                pauseAccepting();
            }
            return;
        }
        if (isOwnProcess(socket.get())) {
            ++open_;
            new Client(std::move(socket), *this); // this, its parent, owns it
        }
    }
    incoming_.setEnabled(false); // until one of them is done
}

// Out of descriptors or memory: the queue stays readable, and looking at it again at once would burn time.
void TitleReceiver::pauseAccepting() {
    incoming_.setEnabled(false);
    resume_.start();
}

} // namespace zpsg::platform
