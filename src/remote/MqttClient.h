// An MQTT 3.1.1 client on the event loop of the thread that made it.
#pragma once

#include "remote/HostLookup.h"
#include "remote/MqttErrors.h"
#include "remote/MqttTls.h"

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>
#include <QStringList>
#include <QTimer>

#include <chrono>
#include <deque>
#include <memory>

struct mosquitto;
struct mosquitto_message;

namespace zpsg::remote {

/// Taken over with the next connection.
struct MqttSettings {
    QString host; ///< name or address
    quint16 port = 1883;
    QString clientId;
    QString user;      ///< empty for none
    QString password;  ///< sent only together with a user
    QString caFile;    ///< PEM; empty for a connection without TLS
    QString willTopic; ///< empty for no last will; QoS 0, not retained
    QByteArray will;
};

struct MqttTiming {
    std::chrono::milliseconds reconnect{10'000}; ///< from a loss or a failed attempt to the next attempt
    std::chrono::milliseconds giveUp{10'000};    ///< on an attempt that got no answer from the broker
    std::chrono::seconds keepAlive{30};          ///< at least 5; a silent broker is lost after twice that
};

/// Nothing here blocks. All messages are QoS 0. Signals come from the event loop or from publish(),
/// subscribe(), unsubscribe() and disconnectFromBroker(); a slot may destroy the client.
class MqttClient : public QObject {
    Q_OBJECT
public:
    /// A longer payload is dropped, bytes.
    static constexpr int kMostPayload = 64 * 1024;

    explicit MqttClient(MqttTiming timing = {}, HostLookup::Resolver resolver = {},
                        QObject *parent = nullptr);
    ~MqttClient() override;

    [[nodiscard]] MqttSettings &settings() { return settings_; }
    [[nodiscard]] bool isConnected() const { return state_ == State::Connected; }
    void setAutoReconnect(bool on) { autoReconnect_ = on; }

    /// Ends what connection there is, without a word to the broker's will, and begins anew.
    void connectToBroker();
    /// Ends the connection, or the attempts to get one.
    void disconnectFromBroker();

    /// False when there is no connection, the topic is none, or the broker takes nothing any more.
    bool publish(const QString &topic, const QByteArray &payload, bool retain = false);
    bool subscribe(const QString &filter);
    bool unsubscribe(const QString &filter);

signals:
    void connected();
    void disconnected();
    void error(const QString &name);
    void subscribed();
    void unsubscribed();
    /// Written to the socket. The identifier is 0: messages of QoS 0 have none.
    void published(int id);
    void pingresp();
    /// Not of what the broker had retained.
    void received(const QString &topic, const QByteArray &payload);

private slots:
    void beginAttempt();
    void useAddresses(const QStringList &addresses);
    void giveUp();
    void readSome();
    void writeSome();
    void lookAfter();

private:
    enum class State { Idle, LookingUp, Connecting, Connected };
    enum class Kind { Connected, Subscribed, Unsubscribed, Published, PingResponse, Received };
    struct Event {
        Kind kind;
        QString topic;
        QByteArray payload;
    };
    struct Deleter {
        void operator()(mosquitto *client) const;
    };
    struct Callbacks; // what libmosquitto calls; they only note events

    void tryNextAddress();
    [[nodiscard]] bool prepare(MqttError &error);
    void watch();
    void settle(int code, int systemError);
    void deliver();
    void announce(const Event &event);
    void lost(MqttError why);
    void drop();

    MqttSettings settings_;
    MqttTiming timing_;
    HostLookup lookup_;
    State state_ = State::Idle;
    bool autoReconnect_ = false;
    QStringList addresses_;                         // still to be tried
    QByteArray tlsHost_;                            // what the context points to
    std::unique_ptr<mosquitto, Deleter> mosquitto_; // one for each connection
    std::unique_ptr<QSocketNotifier> readable_;
    std::unique_ptr<QSocketNotifier> writable_;
    QTimer retry_;
    QTimer deadline_;
    QTimer care_; // keep-alive
    QTimer more_; // goes on with what one turn left
    std::deque<Event> events_;
    bool delivering_ = false;
    int handled_ = 0;   // packets taken in this turn
    int unwritten_ = 0; // messages given to libmosquitto and not yet to the socket
    int refusal_ = 0;   // CONNACK's return code
};

} // namespace zpsg::remote
