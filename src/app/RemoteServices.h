// What is reachable over the network beside the control socket: MQTT with its commands, Home Assistant,
// metrics.
#pragma once

#include "app/Alarms.h"
#include "app/FanControl.h"
#include "app/Lighting.h"
#include "app/Usage.h"
#include "power/Efficiency.h"
#include "remote/HomeAssistantLink.h"
#include "remote/MetricsServer.h"
#include "remote/mqttHelper.h"

#include <QObject>

#include <memory>

namespace zpsg::app {

/// GUI thread only. Nothing is reached or served that the settings do not name.
class RemoteServices : public QObject {
    Q_OBJECT

public:
    /// What the services tell of and act on; all of it outlives them.
    struct Parts {
        Supply &supply;
        const Settings &settings;
        const Alarms &alarms;
        FanControl &fan;
        Lighting &lighting;
        const Usage &usage;
        power::RandomSource random;
    };

    RemoteServices(Parts parts, QObject *parent = nullptr);
    /// Says goodbye to the broker.
    ~RemoteServices() override;

    /// Carries a received command out, and answers it.
    void analyse(const QString &text);
    /// Tells of an alarm that has begun.
    void tellAlarm(const psu::AlarmEntry &entry);
    /// Once a second, after the latest reading.
    void takeReading();

    /// Null while no broker is set.
    [[nodiscard]] remote::mqttHelper *mqtt() { return mqtt_.get(); }
    /// Takes the broker from the settings again: says goodbye to the old one, connects to the new.
    void restartMqtt();
    /// The same for the metrics.
    void restartMetrics();
    /// 0 while no metrics are served.
    [[nodiscard]] quint16 metricsPort() const { return metrics_ ? metrics_->port() : quint16{0}; }

signals:
    /// The broker's command topic has said something.
    void received(const QString &text);
    /// A command asks the PC to "shutdown", "restart" or "sleep"; only while the settings allow it.
    void powerRequested(const QString &what);

private:
    void startMqtt();
    void stopMqtt();
    void startDiscovery();
    void startMetrics();
    void answer(const char *code, const QString &status);
    void introduce();
    void setLight(const remote::LightCommand &command);
    [[nodiscard]] remote::HaState haState() const;
    [[nodiscard]] std::optional<remote::HaLight> haLight() const;
    [[nodiscard]] remote::MetricValues metricValues() const;

    Parts parts_;
    std::unique_ptr<remote::mqttHelper> mqtt_;
    std::unique_ptr<remote::HomeAssistantLink> hub_;
    std::unique_ptr<remote::MetricsServer> metrics_;
};

} // namespace zpsg::app
