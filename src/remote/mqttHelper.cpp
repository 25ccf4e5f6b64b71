#include "remote/mqttHelper.h"

#include "remote/Logging.h"
#include "remote/MqttCommands.h"

#include <QTextCodec>

#include <optional>

namespace zpsg::remote {
namespace {

// Codes and words of the messages that this program sends of its own accord.
const QLatin1String kPresence("05");
const QLatin1String kOnline("online");
const QLatin1String kOffline("offline");

std::optional<QString> decoded(const QByteArray &payload) {
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    QString text = QTextCodec::codecForName("UTF-8")->toUnicode(payload.constData(), payload.size(), &state);
    if (payload.isEmpty() || state.invalidChars > 0 || state.remainingChars > 0) {
        return std::nullopt;
    }
    return text;
}

} // namespace

mqttHelper::mqttHelper(QObject *parent, const QString &publishPrefix, const QString &subscribePrefix,
                       MqttTiming timing, const HostLookup::Resolver &resolver)
    : QObject(parent)
    , publishPrefix_(publishPrefix)
    , subscribePrefix_(subscribePrefix)
    , client_(timing, resolver) {
    qCDebug(lcRemote).noquote().nospace() << "projectName:" << publishPrefix;
    qCDebug(lcRemote).noquote().nospace() << "count:" << subscribePrefix;
    connect(&client_, &MqttClient::connected, this, &mqttHelper::onConnect);
    connect(&client_, &MqttClient::disconnected, this, &mqttHelper::onDisconnect);
    connect(&client_, &MqttClient::error, this, &mqttHelper::error);
    connect(&client_, &MqttClient::subscribed, this, &mqttHelper::subscribed);
    connect(&client_, &MqttClient::unsubscribed, this, &mqttHelper::unsubscribed);
    connect(&client_, &MqttClient::published, this, &mqttHelper::published);
    connect(&client_, &MqttClient::pingresp, this, &mqttHelper::pingresp);
    connect(&client_, &MqttClient::received, this, &mqttHelper::received);
}

mqttHelper::~mqttHelper() {
    client_.disconnect(this);
    Disconnect();
}

void mqttHelper::setBroker(const QString &address, quint16 port) {
    client_.settings().host = address;
    client_.settings().port = port;
}

void mqttHelper::setCredentials(const QString &user, const QString &password) {
    client_.settings().user = user;
    client_.settings().password = password;
}

void mqttHelper::setCaFile(const QString &path) { client_.settings().caFile = path; }

void mqttHelper::Connect(const QStringList &ids) {
    Disconnect();
    machine_ = ids.value(0);
    person_ = ids.value(1);
    auto &settings = client_.settings();
    settings.clientId = answerTopic() + QLatin1Char('!') + commandTopic();
    settings.willTopic = answerTopic();
    settings.will = messageBytes(machine_, person_, kPresence, kOffline);
    client_.setAutoReconnect(true);
    client_.connectToBroker();
}

void mqttHelper::Disconnect() {
    if (client_.isConnected()) {
        emit aboutToDisconnect();
    }
    client_.setAutoReconnect(false);
    client_.disconnectFromBroker();
}

void mqttHelper::sentMqttMessage(const QStringList &message) {
    client_.publish(answerTopic(), messageBytes(machine_, person_, message.value(0), message.value(1)));
}

void mqttHelper::onConnect() {
    qCDebug(lcRemote) << "mqtt connect";
    lastError_.clear();
    client_.subscribe(commandTopic());
    sentMqttMessage({kPresence, kOnline});
}

void mqttHelper::onDisconnect() { qCDebug(lcRemote) << "mqtt disconnect"; }

void mqttHelper::error(const QString &name) {
    qCDebug(lcRemote).noquote().nospace() << "ERROR:" << name;
    lastError_ = name;
}

void mqttHelper::subscribed() { qCDebug(lcRemote) << "subscribed"; }

void mqttHelper::unsubscribed() { qCDebug(lcRemote) << "unsubscribed"; }

void mqttHelper::published(int id) { qCDebug(lcRemote).nospace() << "published::" << id; }

void mqttHelper::pingresp() { qCDebug(lcRemote) << "pingresp"; }

void mqttHelper::received(const QString &topic, const QByteArray &payload) {
    if (topic != commandTopic()) {
        return;
    }
    const auto text = decoded(payload);
    if (text) {
        emit mqttHelperToMain(*text);
    } else {
        qCDebug(lcRemote) << "dropped a payload that is no text," << payload.size() << "bytes";
    }
}

} // namespace zpsg::remote
