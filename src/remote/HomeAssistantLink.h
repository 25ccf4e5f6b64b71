// Shows the supply to Home Assistant over the remote control's connection, and takes its commands.
#pragma once

#include "remote/HomeAssistant.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <optional>

namespace zpsg::remote {

class mqttHelper;

/// Nothing is sent before setDevice(). Must be destroyed before `helper`; call the helper's Disconnect()
/// while both are there, so that Home Assistant hears of the end at once.
class HomeAssistantLink : public QObject {
    Q_OBJECT
public:
    explicit HomeAssistantLink(mqttHelper &helper, QObject *parent = nullptr);

    /// An empty list of effects: there is no ring. Another device than before starts without a state.
    void setDevice(const QString &model, const QString &serial, double ratedWatts, bool customSpeed,
                   const QStringList &ringEffects);
    /// As often as one likes; goes out when something changed, at most once a second.
    void setState(const HaState &state);

signals:
    void fanModeRequested(int index);
    void fanSpeedRequested(int percent);
    void lightRequested(const zpsg::remote::LightCommand &command);

private slots:
    void introduce();
    void sayGoodbye();
    void sendDue();
    void receive(const QString &topic, const QByteArray &payload);

private:
    mqttHelper &helper_;
    std::optional<HaDevice> device_;
    HaState last_;
    StateThrottle state_;
    StateThrottle light_;
    QElapsedTimer clock_;
    QTimer due_;
};

} // namespace zpsg::remote
