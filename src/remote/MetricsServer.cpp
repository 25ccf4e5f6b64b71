#include "remote/MetricsServer.h"

#include "platform/Network.h"
#include "remote/Logging.h"

#include <microhttpd.h>
#include <QRegularExpression>
#include <QSocketNotifier>

#include <algorithm>
#include <cstring>

namespace zpsg::remote {
namespace {

/// All that a request and the head of its answer may take, bytes.
constexpr std::size_t kRequestMemory = std::size_t{8} * 1024;

/// Whether a request's Host names this machine, with or without a port.
bool isThisMachine(const char *host) {
    static const QRegularExpression ours(QStringLiteral(R"(\A(localhost|127\.0\.0\.1|\[::1\])(:\d{1,5})?\z)"),
                                         QRegularExpression::CaseInsensitiveOption);
    return host != nullptr && ours.match(QString::fromUtf8(host)).hasMatch();
}

int respond(MHD_Connection *connection, unsigned status, const QByteArray &body, const char *contentType) {
    // The library copies the body and only reads it.
    MHD_Response *response = MHD_create_response_from_buffer(
        static_cast<std::size_t>(body.size()), const_cast<char *>(body.constData()), MHD_RESPMEM_MUST_COPY);
    const auto add = [response](const char *name, const char *value) {
        MHD_add_response_header(response, name, value);
    };
    add(MHD_HTTP_HEADER_CONTENT_TYPE, contentType);
    add(MHD_HTTP_HEADER_CONNECTION, "close");
    add(MHD_HTTP_HEADER_CACHE_CONTROL, "no-store");
    add("X-Content-Type-Options", "nosniff");
    add("Cross-Origin-Resource-Policy", "same-origin");
    if (status == MHD_HTTP_METHOD_NOT_ALLOWED) {
        add(MHD_HTTP_HEADER_ALLOW, MHD_HTTP_METHOD_GET);
    }
    const MHD_Result result = MHD_queue_response(connection, status, response);
    MHD_destroy_response(response);
    return result;
}

int refuse(MHD_Connection *connection, unsigned status, const char *why) {
    return respond(connection, status, why, "text/plain; charset=utf-8");
}

qintptr socketOf(MHD_Connection *connection) {
    return static_cast<qintptr>(
        MHD_get_connection_info(connection, MHD_CONNECTION_INFO_CONNECTION_FD)->connect_fd);
}

} // namespace

class MetricsServer::Listener : public QTcpServer {
public:
    explicit Listener(MetricsServer &server) : server_(server) {}

protected:
    void incomingConnection(qintptr socket) override { server_.take(socket); }

private:
    MetricsServer &server_;
};

struct Callbacks {
    static MHD_Result answer(void *server, MHD_Connection *connection, const char *path, const char *method,
                             const char * /*version*/, const char * /*body*/, std::size_t * /*bodySize*/,
                             void ** /*state*/) {
        return static_cast<MHD_Result>(
            static_cast<MetricsServer *>(server)->answer(connection, path, method));
    }
    static void note(void *server, MHD_Connection *connection, void ** /*state*/,
                     MHD_ConnectionNotificationCode what) {
        static_cast<MetricsServer *>(server)->noteClient(connection, what == MHD_CONNECTION_NOTIFY_STARTED);
    }
};

void MetricsServer::Stop::operator()(MHD_Daemon *daemon) const { MHD_stop_daemon(daemon); }

MetricsServer::MetricsServer(std::function<MetricValues()> source, QObject *parent,
                             std::chrono::milliseconds patience)
    : QObject(parent), source_(std::move(source)), patience_(patience) {
    due_.setSingleShot(true);
    connect(&due_, &QTimer::timeout, this, &MetricsServer::process);
}

MetricsServer::~MetricsServer() { close(); }

bool MetricsServer::listen(quint16 port) {
    close();
    listener4_ = std::make_unique<Listener>(*this);
    if (!listener4_->listen(QHostAddress::LocalHost, port) || !startDaemon()) {
        qCWarning(lcRemote) << "no metrics on port" << port << listener4_->errorString();
        close();
        return false;
    }
    listener6_ = std::make_unique<Listener>(*this);
    if (!listener6_->listen(QHostAddress::LocalHostIPv6, this->port())) {
        qCInfo(lcRemote) << "no metrics over IPv6:" << listener6_->errorString();
    }
    return true;
}

bool MetricsServer::startDaemon() {
    // The sockets come from the listeners, so that both addresses share one count of connections.
    daemon_.reset(MHD_start_daemon(MHD_USE_NO_LISTEN_SOCKET, 0, nullptr, nullptr, &Callbacks::answer, this,
                                   MHD_OPTION_CONNECTION_LIMIT, kMostConnections,
                                   MHD_OPTION_CONNECTION_MEMORY_LIMIT, kRequestMemory,
                                   MHD_OPTION_NOTIFY_CONNECTION, &Callbacks::note, this, MHD_OPTION_END));
    return daemon_ != nullptr;
}

quint16 MetricsServer::port() const { return listener4_ ? listener4_->serverPort() : 0; }

void MetricsServer::close() {
    due_.stop();
    listener4_.reset();
    listener6_.reset();
    daemon_.reset();
    clients_.clear();
}

void MetricsServer::take(qintptr socket) {
    // Who it is makes no difference here: everybody comes from this machine.
    sockaddr nobody{};
    nobody.sa_family = AF_INET;
    if (MHD_add_connection(daemon_.get(), static_cast<MHD_socket>(socket), &nobody, sizeof(nobody)) !=
        MHD_YES) {
        qCDebug(lcRemote) << "a connection too many";
    }
    due_.start(0);
}

void MetricsServer::noteClient(MHD_Connection *connection, bool opened) {
    if (!opened) {
        // Before the socket is closed, so that its number is watched no longer when somebody else gets it.
        std::erase_if(clients_,
                      [connection](const Client &client) { return client.connection == connection; });
        return;
    }
    Client client{connection, socketOf(connection), std::chrono::steady_clock::now() + patience_, {}, {}};
    const auto watch = [this, &client](QSocketNotifier::Type what) {
        auto notifier = std::make_unique<QSocketNotifier>(client.socket, what);
        notifier->setEnabled(false);
        connect(notifier.get(), &QSocketNotifier::activated, this, &MetricsServer::wake);
        return notifier;
    };
    client.readable = watch(QSocketNotifier::Read);
    client.writable = watch(QSocketNotifier::Write);
    clients_.push_back(std::move(client));
}

// Not at once: a notifier must outlive its own signal, and the connection may end now.
void MetricsServer::wake() {
    for (const Client &client : clients_) {
        client.readable->setEnabled(false);
        client.writable->setEnabled(false);
    }
    due_.start(0);
}

void MetricsServer::process() {
    endOverdue();
    MHD_run(daemon_.get());
    watchClients();
    MHD_UNSIGNED_LONG_LONG soon = 0; // milliseconds
    if (MHD_get_timeout(daemon_.get(), &soon) == MHD_YES && soon == 0) {
        due_.start(0);
    } else if (!clients_.empty()) {
        const auto next =
            std::min_element(clients_.begin(), clients_.end(), [](const Client &one, const Client &other) {
                return one.deadline < other.deadline;
            });
        const auto left = next->deadline - std::chrono::steady_clock::now();
        due_.start(
            std::max(std::chrono::ceil<std::chrono::milliseconds>(left), std::chrono::milliseconds(0)));
    }
}

// Each socket for what the library waits for there.
void MetricsServer::watchClients() {
    fd_set readable;
    fd_set writable;
    fd_set failed;
    FD_ZERO(&readable);
    FD_ZERO(&writable);
    FD_ZERO(&failed);
    MHD_get_fdset(daemon_.get(), &readable, &writable, &failed, nullptr);
    for (const Client &client : clients_) {
        const auto socket = static_cast<MHD_socket>(client.socket);
        client.readable->setEnabled(FD_ISSET(socket, &readable) != 0);
        client.writable->setEnabled(FD_ISSET(socket, &writable) != 0);
    }
}

// The library's own timeout starts anew with each byte, which is all that somebody who sends them one by one
// needs. It notices a connection that is shut down as one that the client has ended.
void MetricsServer::endOverdue() {
    const auto now = std::chrono::steady_clock::now();
    for (Client &client : clients_) {
        if (client.deadline <= now) {
            client.deadline = now + patience_;
            // Where the end of a connection that this side has shut down goes unnoticed, in seconds.
            MHD_set_connection_option(client.connection, MHD_CONNECTION_OPTION_TIMEOUT, 1U);
            platform::endConnection(client.socket);
        }
    }
}

int MetricsServer::answer(MHD_Connection *connection, const char *path, const char *method) {
    if (!isThisMachine(MHD_lookup_connection_value(connection, MHD_HEADER_KIND, MHD_HTTP_HEADER_HOST))) {
        return refuse(connection, MHD_HTTP_FORBIDDEN, "Only for this machine.\n");
    }
    if (std::strcmp(path, "/metrics") != 0) {
        return refuse(connection, MHD_HTTP_NOT_FOUND, "There is /metrics only.\n");
    }
    if (std::strcmp(method, MHD_HTTP_METHOD_GET) != 0) {
        return refuse(connection, MHD_HTTP_METHOD_NOT_ALLOWED, "GET only.\n");
    }
    return respond(connection, MHD_HTTP_OK, metricsText(source_()), kMetricsContentType);
}

} // namespace zpsg::remote
