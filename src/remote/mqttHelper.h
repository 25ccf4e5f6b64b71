// The remote control over MQTT: commands come in on one topic, answers go out on another.
#pragma once

#include "remote/MqttClient.h"

#include <QObject>
#include <QString>
#include <QStringList>

namespace zpsg::remote {

class mqttHelper : public QObject {
    Q_OBJECT
public:
    mqttHelper(QObject *parent, const QString &publishPrefix, const QString &subscribePrefix,
               MqttTiming timing = {}, const HostLookup::Resolver &resolver = {});
    /// Says goodbye to the broker, so that the last will is not sent.
    ~mqttHelper() override;

    /// Host name or address.
    void setBroker(const QString &address, quint16 port = 1883);
    /// An empty user switches both off.
    void setCredentials(const QString &user, const QString &password);
    /// PEM; connects with TLS, empty without.
    void setCaFile(const QString &path);

    /// {m_id, p_id}. From now on there is a connection whenever the broker allows.
    void Connect(const QStringList &ids);
    /// Until the next Connect().
    void Disconnect();
    /// {code, status} to the answer topic; dropped without a connection.
    void sentMqttMessage(const QStringList &message);

    [[nodiscard]] QString answerTopic() const { return publishPrefix_ + QLatin1Char('!') + machine_; }
    [[nodiscard]] QString commandTopic() const { return subscribePrefix_ + person_; }
    /// Why there is no connection; empty while there is one, or none was tried.
    [[nodiscard]] const QString &lastError() const { return lastError_; }
    /// For what else wants to go over the same connection.
    [[nodiscard]] MqttClient &client() { return client_; }

signals:
    /// A payload of the command topic: 1 byte to 64 KiB of valid UTF-8.
    void mqttHelperToMain(const QString &text);
    /// The last moment to send something before a deliberate end of the connection.
    void aboutToDisconnect();

private slots:
    void onConnect();
    void onDisconnect();
    void error(const QString &name);
    void subscribed();
    void unsubscribed();
    void published(int id);
    void pingresp();
    void received(const QString &topic, const QByteArray &payload);

private:
    QString publishPrefix_;
    QString subscribePrefix_;
    QString machine_; // m_id
    QString person_;  // p_id
    QString lastError_;
    MqttClient client_;
};

} // namespace zpsg::remote
