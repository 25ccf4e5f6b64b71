#include "remote/MqttClient.h"

#include "platform/Network.h"

#include "remote/Logging.h"

#include <QHostAddress>
#include <QPointer>

#include <cerrno>
#include <cstring>
#include <mosquitto.h>

namespace zpsg::remote {
namespace {

// One call of libmosquitto takes one packet. A flood gets this many a turn, and the rest of the program its
// own.
constexpr int kPacketsPerTurn = 16;
// A broker that stops reading would otherwise fill the memory.
constexpr int kMostUnwritten = 256;
constexpr int kLeastKeepAlive = 5; // s, what libmosquitto accepts

void initialise() {
    [[maybe_unused]] static const int once = [] {
        // TLS writes to the socket without MSG_NOSIGNAL: a broker that went away must not end the program.
        platform::surviveEndedConnections();
        return mosquitto_lib_init();
    }();
}

void release(std::unique_ptr<QSocketNotifier> &notifier) {
    if (notifier) {
        notifier->setEnabled(false);
        notifier.release()->deleteLater(); // its own signal may be what leads here
    }
}

} // namespace

struct MqttClient::Callbacks {
    static MqttClient &of(void *client) { return *static_cast<MqttClient *>(client); }

    static void note(void *client, Kind kind) {
        ++of(client).handled_;
        of(client).events_.push_back({kind, {}, {}});
    }
    static void connected(mosquitto *, void *client, int code) {
        of(client).refusal_ = code;
        if (code == 0) {
            note(client, Kind::Connected);
        }
    }
    static void subscribed(mosquitto *, void *client, int, int count, const int *granted) {
        if (count > 0 && granted[0] < 0x80) {
            note(client, Kind::Subscribed);
        } else {
            qCWarning(lcRemote) << "The broker refused a subscription.";
        }
    }
    static void unsubscribed(mosquitto *, void *client, int) { note(client, Kind::Unsubscribed); }
    static void published(mosquitto *, void *client, int) {
        --of(client).unwritten_;
        of(client).events_.push_back({Kind::Published, {}, {}});
    }
    static void received(mosquitto *, void *client, const mosquitto_message *message) {
        ++of(client).handled_;
        if (message->payloadlen > kMostPayload) {
            qCDebug(lcRemote) << "dropped a message of" << message->payloadlen << "bytes";
            return;
        }
        if (message->retain) {
            return; // kept by the broker: an old command would be carried out again with each connection
        }
        of(client).events_.push_back(
            {Kind::Received, QString::fromUtf8(message->topic),
             QByteArray(static_cast<const char *>(message->payload), message->payloadlen)});
    }
    /// The one place where libmosquitto tells of it.
    static void logged(mosquitto *, void *client, int, const char *text) {
        if (std::strstr(text, "received PINGRESP") != nullptr) {
            note(client, Kind::PingResponse);
        }
    }
};

void MqttClient::Deleter::operator()(mosquitto *client) const { mosquitto_destroy(client); }

MqttClient::MqttClient(MqttTiming timing, HostLookup::Resolver resolver, QObject *parent)
    : QObject(parent), timing_(timing), lookup_(std::move(resolver)) {
    initialise();
    for (QTimer *timer : {&retry_, &deadline_, &more_}) {
        timer->setSingleShot(true);
    }
    care_.setInterval(timing_.keepAlive / 5);
    connect(&lookup_, &HostLookup::finished, this, &MqttClient::useAddresses);
    connect(&retry_, &QTimer::timeout, this, &MqttClient::beginAttempt);
    connect(&deadline_, &QTimer::timeout, this, &MqttClient::giveUp);
    connect(&care_, &QTimer::timeout, this, &MqttClient::lookAfter);
    connect(&more_, &QTimer::timeout, this, &MqttClient::readSome);
}

MqttClient::~MqttClient() { drop(); }

void MqttClient::connectToBroker() {
    drop();
    state_ = State::Idle;
    retry_.start(0); // signals come only after this has returned
}

void MqttClient::beginAttempt() {
    deadline_.start(timing_.giveUp);
    state_ = State::LookingUp;
    if (QHostAddress(settings_.host).isNull()) {
        lookup_.start(settings_.host);
    } else {
        useAddresses({settings_.host});
    }
}

void MqttClient::useAddresses(const QStringList &addresses) {
    if (state_ != State::LookingUp) {
        return; // given up meanwhile
    }
    addresses_ = addresses;
    if (addresses_.isEmpty()) {
        lost(MqttError::HostNotFound);
    } else {
        tryNextAddress();
    }
}

bool MqttClient::prepare(MqttError &error) {
    mosquitto_.reset(mosquitto_new(settings_.clientId.toUtf8().constData(), true, this));
    if (!mosquitto_) {
        error = errno == ENOMEM ? MqttError::Resource : MqttError::Operation;
        return false;
    }
    auto *const raw = mosquitto_.get();
    mosquitto_connect_callback_set(raw, Callbacks::connected);
    mosquitto_subscribe_callback_set(raw, Callbacks::subscribed);
    mosquitto_unsubscribe_callback_set(raw, Callbacks::unsubscribed);
    mosquitto_publish_callback_set(raw, Callbacks::published);
    mosquitto_message_callback_set(raw, Callbacks::received);
    mosquitto_log_callback_set(raw, Callbacks::logged);
    mosquitto_int_option(raw, MOSQ_OPT_TCP_NODELAY, 1);
    if (!settings_.user.isEmpty()) {
        mosquitto_username_pw_set(raw, settings_.user.toUtf8().constData(),
                                  settings_.password.toUtf8().constData());
    }
    if (!settings_.willTopic.isEmpty() &&
        mosquitto_will_set(raw, settings_.willTopic.toUtf8().constData(), settings_.will.size(),
                           settings_.will.constData(), 0, false) != MOSQ_ERR_SUCCESS) {
        qCWarning(lcRemote) << settings_.willTopic << "can't be published to: there is no last will";
    }
    if (!settings_.caFile.isEmpty()) {
        tlsHost_ = settings_.host.toUtf8();
        const auto context = makeTlsContext(settings_.caFile, tlsHost_, error);
        if (!context) {
            return false;
        }
        mosquitto_int_option(raw, MOSQ_OPT_SSL_CTX_WITH_DEFAULTS, 0);
        mosquitto_void_option(raw, MOSQ_OPT_SSL_CTX, context.get()); // takes a reference of its own
    }
    return true;
}

void MqttClient::tryNextAddress() {
    state_ = State::Connecting;
    refusal_ = 0;
    const QByteArray address = addresses_.takeFirst().toUtf8();
    MqttError why = MqttError::Unknown;
    if (!prepare(why)) {
        lost(why);
        return;
    }
    const int keepAlive = std::max(kLeastKeepAlive, static_cast<int>(timing_.keepAlive.count()));
    const int code =
        mosquitto_connect_async(mosquitto_.get(), address.constData(), settings_.port, keepAlive);
    if (code > MOSQ_ERR_SUCCESS) { // below it: pending, which is none
        lost(errorOf(code, errno));
        return;
    }
    watch();
}

void MqttClient::watch() {
    const int socket = mosquitto_socket(mosquitto_.get());
    readable_ = std::make_unique<QSocketNotifier>(socket, QSocketNotifier::Read);
    writable_ = std::make_unique<QSocketNotifier>(socket, QSocketNotifier::Write);
    connect(readable_.get(), &QSocketNotifier::activated, this, &MqttClient::readSome);
    connect(writable_.get(), &QSocketNotifier::activated, this, &MqttClient::writeSome);
    care_.start();
}

void MqttClient::readSome() {
    if (!mosquitto_) {
        return;
    }
    handled_ = 0;
    int code = MOSQ_ERR_SUCCESS;
    int systemError = 0;
    for (int before = -1; code == MOSQ_ERR_SUCCESS && handled_ > before && handled_ < kPacketsPerTurn;) {
        before = handled_;
        errno = 0; // libmosquitto ends early on a stale EAGAIN
        code = mosquitto_loop_read(mosquitto_.get(), 1);
        systemError = errno;
    }
    if (handled_ >= kPacketsPerTurn) {
        more_.start(0); // TLS may hold packets that the socket no longer tells of
    }
    settle(code, systemError);
}

void MqttClient::writeSome() {
    if (mosquitto_) {
        errno = 0;
        const int code = mosquitto_loop_write(mosquitto_.get(), 1);
        settle(code, errno);
    }
}

void MqttClient::lookAfter() {
    if (mosquitto_) {
        const int code = mosquitto_loop_misc(mosquitto_.get());
        settle(code, errno);
    }
}

/// After each call into libmosquitto: tells what it noted, then what became of the connection.
void MqttClient::settle(int code, int systemError) {
    const QPointer<MqttClient> self(this);
    const auto *const before = mosquitto_.get();
    if (!delivering_) {
        deliver();
    }
    if (!self || mosquitto_.get() != before || before == nullptr) {
        return;
    }
    if (code > MOSQ_ERR_SUCCESS || mosquitto_socket(mosquitto_.get()) < 0) {
        lost(refusal_ != 0 ? errorOfRefusal(refusal_) : errorOf(code, systemError));
    } else {
        writable_->setEnabled(mosquitto_want_write(mosquitto_.get()));
    }
}

void MqttClient::deliver() {
    const QPointer<MqttClient> self(this);
    delivering_ = true;
    while (!events_.empty()) {
        const Event event = std::move(events_.front());
        events_.pop_front();
        announce(event);
        if (!self) {
            return;
        }
    }
    delivering_ = false;
}

void MqttClient::announce(const Event &event) {
    switch (event.kind) {
    case Kind::Connected:
        if (isConnected()) {
            break; // a broker that greets twice
        }
        state_ = State::Connected;
        deadline_.stop();
        addresses_.clear();
        emit connected();
        break;
    case Kind::Subscribed:
        emit subscribed();
        break;
    case Kind::Unsubscribed:
        emit unsubscribed();
        break;
    case Kind::Published:
        emit published(0);
        break;
    case Kind::PingResponse:
        emit pingresp();
        break;
    case Kind::Received:
        emit received(event.topic, event.payload);
        break;
    }
}

bool MqttClient::publish(const QString &topic, const QByteArray &payload, bool retain) {
    if (!isConnected() || unwritten_ >= kMostUnwritten) {
        return false;
    }
    ++unwritten_;
    const int code = mosquitto_publish(mosquitto_.get(), nullptr, topic.toUtf8().constData(), payload.size(),
                                       payload.constData(), 0, retain);
    if (code == MOSQ_ERR_INVAL || code == MOSQ_ERR_MALFORMED_UTF8 || code == MOSQ_ERR_NOMEM) {
        --unwritten_; // not taken
    }
    // A connection that broke meanwhile is noticed by the next read.
    settle(MOSQ_ERR_SUCCESS, 0);
    return code == MOSQ_ERR_SUCCESS;
}

bool MqttClient::subscribe(const QString &filter) {
    if (!isConnected()) {
        return false;
    }
    const int code = mosquitto_subscribe(mosquitto_.get(), nullptr, filter.toUtf8().constData(), 0);
    settle(MOSQ_ERR_SUCCESS, 0);
    return code == MOSQ_ERR_SUCCESS;
}

bool MqttClient::unsubscribe(const QString &filter) {
    if (!isConnected()) {
        return false;
    }
    const int code = mosquitto_unsubscribe(mosquitto_.get(), nullptr, filter.toUtf8().constData());
    settle(MOSQ_ERR_SUCCESS, 0);
    return code == MOSQ_ERR_SUCCESS;
}

void MqttClient::disconnectFromBroker() {
    const bool was = isConnected();
    if (was) {
        mosquitto_disconnect(mosquitto_.get());
    }
    drop();
    state_ = State::Idle;
    if (was) {
        emit disconnected();
    }
}

void MqttClient::giveUp() {
    addresses_.clear();
    lost(MqttError::Timeout);
}

void MqttClient::lost(MqttError why) {
    const bool was = isConnected();
    const QStringList others = was ? QStringList() : addresses_;
    const bool retrying = autoReconnect_;
    const int remaining = deadline_.remainingTime();
    drop();
    state_ = State::Idle;
    if (!others.isEmpty()) {
        addresses_ = others;
        deadline_.start(std::max(0, remaining));
        tryNextAddress();
        return;
    }
    if (retrying) {
        retry_.start(timing_.reconnect);
    }
    const QPointer<MqttClient> self(this);
    emit error(nameOf(why));
    if (self && was) {
        emit disconnected();
    }
}

void MqttClient::drop() {
    for (QTimer *timer : {&retry_, &deadline_, &care_, &more_}) {
        timer->stop();
    }
    release(readable_);
    release(writable_);
    mosquitto_.reset();
    events_.clear();
    addresses_.clear();
    unwritten_ = 0;
}

} // namespace zpsg::remote
