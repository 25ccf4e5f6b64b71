#include "app/RemoteServices.h"

#include "app/Logging.h"
#include "app/RingLight.h"
#include "remote/MqttCommands.h"

#include <QCoreApplication>

#include <cmath>

namespace zpsg::app {
namespace {

/// What a presence query is answered with.
const QString kPresence = QStringLiteral("online");
constexpr double kPercent = 100.0;
constexpr double kJoulesPerKwh = 3.6e6;

enum Command { kPresent = 1, kNothing = 2, kPower = 4, kPresentAgain = 6, kReadings = 7 };

} // namespace

RemoteServices::RemoteServices(Parts parts, QObject *parent) : QObject(parent), parts_(std::move(parts)) {
    startMqtt();
    startMetrics();
}

RemoteServices::~RemoteServices() { stopMqtt(); }

void RemoteServices::stopMqtt() {
    if (mqtt_) {
        mqtt_->Disconnect();
    }
    hub_.reset();
    mqtt_.reset();
}

void RemoteServices::restartMqtt() {
    stopMqtt();
    startMqtt();
}

void RemoteServices::restartMetrics() {
    metrics_.reset();
    startMetrics();
}

void RemoteServices::startMqtt() {
    const auto &settings = parts_.settings;
    const QString host = settings.text(Setting::MqttHost);
    if (host.isEmpty()) {
        return;
    }
    mqtt_ = std::make_unique<remote::mqttHelper>(nullptr, settings.text(Setting::MqttPublishPrefix),
                                                 settings.text(Setting::MqttSubscribePrefix));
    connect(mqtt_.get(), &remote::mqttHelper::mqttHelperToMain, this, &RemoteServices::received);
    mqtt_->setBroker(host, static_cast<quint16>(settings.integer(Setting::MqttPort)));
    mqtt_->setCredentials(settings.text(Setting::MqttUser), settings.text(Setting::MqttPassword));
    mqtt_->setCaFile(settings.text(Setting::MqttCaFile));
    if (settings.flag(Setting::MqttDiscovery)) {
        startDiscovery();
    }
    mqtt_->Connect({settings.text(Setting::MqttAccountId), settings.text(Setting::MqttProductId)});
}

void RemoteServices::startDiscovery() {
    hub_ = std::make_unique<remote::HomeAssistantLink>(*mqtt_);
    connect(hub_.get(), &remote::HomeAssistantLink::fanModeRequested, this,
            [this](int index) { parts_.fan.selectMode({QString::number(index)}); });
    connect(hub_.get(), &remote::HomeAssistantLink::fanSpeedRequested, &parts_.fan,
            &FanControl::controlableFanSpeed);
    connect(hub_.get(), &remote::HomeAssistantLink::lightRequested, this, &RemoteServices::setLight);
    connect(&parts_.supply, &Supply::profileChanged, hub_.get(), [this] { introduce(); });
    introduce();
}

void RemoteServices::startMetrics() {
    const int port = parts_.settings.integer(Setting::MetricsPort);
    if (port != 0) {
        metrics_ = std::make_unique<remote::MetricsServer>([this] { return metricValues(); });
        metrics_->listen(static_cast<quint16>(port));
    }
}

void RemoteServices::introduce() {
    const auto &monitor = parts_.supply.monitor();
    if (parts_.supply.identified()) {
        hub_->setDevice(monitor.modelText(), monitor.serialText(), parts_.supply.profile().ratedWatts,
                        parts_.fan.takesCustomSpeed(), ringEffects(parts_.lighting));
    }
}

void RemoteServices::analyse(const QString &text) {
    const auto command = remote::parseCommand(text);
    if (!command) {
        return;
    }
    qCDebug(lcApp) << "mqtt get";
    qCDebug(lcApp) << "comm get:" << command->comm;
    switch (command->comm) {
    case kPresent:
        qCDebug(lcApp) << "sentMqttMessage(01, online);";
        answer("01", kPresence);
        break;
    case kPresentAgain:
        answer("06", kPresence);
        break;
    case kPower:
        if (parts_.settings.integer(Setting::RemotePower) == 1) {
            emit powerRequested(command->status);
        }
        break;
    case kReadings: {
        const auto &record = parts_.supply.monitor().record();
        const double plausible =
            power::plausibleEfficiency(record.number(QStringLiteral("EFF")), parts_.random);
        answer("07", remote::readingsText(record, parts_.supply.profile().ratedWatts, plausible));
        break;
    }
    case kNothing:
    default:
        break;
    }
}

void RemoteServices::answer(const char *code, const QString &status) {
    if (mqtt_) {
        mqtt_->sentMqttMessage({QString::fromLatin1(code), status});
    }
}

void RemoteServices::tellAlarm(const psu::AlarmEntry &entry) {
    if (entry.kind == psu::AlarmKind::Temperature) {
        answer("03", QStringLiteral("PSU_Temp_Error"));
    }
}

void RemoteServices::takeReading() {
    if (hub_) {
        hub_->setState(haState());
    }
}

void RemoteServices::setLight(const remote::LightCommand &command) {
    RingLight light = ringLight(parts_.lighting);
    light.on = command.on.value_or(light.on);
    light.brightness = command.brightness ? *command.brightness / 255.0 : light.brightness;
    if (command.rgb) {
        light.colour = lighting::Colour{static_cast<std::uint8_t>(command.rgb->red),
                                        static_cast<std::uint8_t>(command.rgb->green),
                                        static_cast<std::uint8_t>(command.rgb->blue)};
    }
    light.effect = command.effect.value_or(light.effect);
    setRingLight(parts_.lighting, light, command.rgb.has_value());
}

std::optional<remote::HaLight> RemoteServices::haLight() const {
    if (!parts_.lighting.ring()) {
        return std::nullopt;
    }
    const RingLight light = ringLight(parts_.lighting);
    return remote::HaLight{light.on,
                           static_cast<int>(std::lround(light.brightness * 255.0)),
                           {light.colour.red, light.colour.green, light.colour.blue},
                           light.effect};
}

remote::HaState RemoteServices::haState() const {
    const auto &supply = parts_.supply;
    const auto quantity = [&supply](const char *key) { return supply.fresh(key); };
    remote::HaState state;
    state.mainsVolts = quantity("VIN");
    state.volts12 = quantity("VVOut12");
    state.amps12 = quantity("VIOut12");
    state.volts5 = quantity("VVOut5");
    state.amps5 = quantity("VIOut5");
    state.volts33 = quantity("VVOut33");
    state.amps33 = quantity("VIOut33");
    state.outputWatts = quantity("WATTS");
    state.efficiency = quantity("EFF");
    state.temperature = quantity("Temp");
    state.fanRpm = quantity("FanSpeed");
    state.energy = parts_.usage.kwh();
    state.fanMode = static_cast<int>(parts_.fan.mode());
    if (parts_.fan.takesCustomSpeed()) {
        state.fanSpeed = parts_.fan.customPercent();
    }
    state.light = haLight();
    return state;
}

remote::MetricValues RemoteServices::metricValues() const {
    const auto &supply = parts_.supply;
    const auto &monitor = supply.monitor();
    const auto quantity = [&supply](const char *key) { return supply.fresh(key); };
    remote::MetricValues values;
    values.mainsVolts = quantity("VIN");
    values.rail12 = {quantity("VVOut12"), quantity("VIOut12")};
    values.rail5 = {quantity("VVOut5"), quantity("VIOut5")};
    values.rail33 = {quantity("VVOut33"), quantity("VIOut33")};
    values.outputWatts = quantity("WATTS");
    values.loadRatio = supply.freshLoad();
    if (const auto efficiency = quantity("EFF")) {
        values.efficiencyRatio = *efficiency / kPercent;
    }
    values.celsius = quantity("Temp");
    values.fanRpm = quantity("FanSpeed");
    values.fanMode = static_cast<std::size_t>(parts_.fan.mode());
    values.energyJoules = parts_.usage.kwh() * kJoulesPerKwh;
    values.connected = monitor.hasReading() && monitor.state() == psu::LinkState::Live;
    std::array<bool, psu::kAlarmKinds> holding{};
    for (const auto &entry : parts_.alarms.log().holding()) {
        holding.at(static_cast<std::size_t>(entry.kind)) = true;
    }
    values.alarms = holding;
    values.model = monitor.modelText();
    values.serial = monitor.serialText();
    values.version = QCoreApplication::applicationVersion();
    return values;
}

} // namespace zpsg::app
