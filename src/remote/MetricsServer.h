// Serves the metrics over HTTP to programs on this machine.
#pragma once

#include "remote/Metrics.h"

#include <QObject>
#include <QTcpServer>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

class QSocketNotifier;
struct MHD_Connection;
struct MHD_Daemon;

namespace zpsg::remote {

/// GET /metrics on 127.0.0.1 and ::1, nothing else. Lives on the event loop and never waits. Requests that
/// name another host than this machine are refused, so that a web page whose name was made to point here
/// can't read the answer. A connection serves one request.
class MetricsServer : public QObject {
    Q_OBJECT

public:
    /// Connections at a time, of both addresses; more are closed at once.
    static constexpr unsigned kMostConnections = 20;
    /// For a connection as a whole, however busy it keeps itself.
    static constexpr std::chrono::milliseconds kPatience{10'000};

    /// `source` is asked at each request and must not destroy the server.
    explicit MetricsServer(std::function<MetricValues()> source, QObject *parent = nullptr,
                           std::chrono::milliseconds patience = kPatience);
    ~MetricsServer() override;

    /// 0: any free port. False, with a warning, when it is taken. A machine without IPv6 is served by IPv4
    /// alone. What it listened on before is closed first.
    bool listen(quint16 port);
    /// 0 while it doesn't listen.
    [[nodiscard]] quint16 port() const;
    /// Ends all connections.
    void close();

private slots:
    void wake();
    void process();

private:
    class Listener;
    struct Client {
        MHD_Connection *connection;
        qintptr socket;
        std::chrono::steady_clock::time_point deadline;
        std::unique_ptr<QSocketNotifier> readable;
        std::unique_ptr<QSocketNotifier> writable;
    };
    struct Stop {
        void operator()(MHD_Daemon *daemon) const;
    };
    friend struct Callbacks; ///< the library's functions call back through it

    bool startDaemon();
    void take(qintptr socket);
    void watchClients();
    void endOverdue();
    int answer(MHD_Connection *connection, const char *path, const char *method);
    void noteClient(MHD_Connection *connection, bool opened);

    const std::function<MetricValues()> source_;
    const std::chrono::milliseconds patience_;
    std::vector<Client> clients_; // the daemon uses it to its end
    std::unique_ptr<MHD_Daemon, Stop> daemon_;
    std::unique_ptr<Listener> listener4_;
    std::unique_ptr<Listener> listener6_;
    QTimer due_;
};

} // namespace zpsg::remote
