#include "remote/HomeAssistant.h"

#include "remote/JsonKeys.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <cmath>

namespace zpsg::remote {
namespace {

constexpr int kLeastPercent = 30;
constexpr int kMostPercent = 100;
constexpr int kMostLevel = 255;

// Names as Home Assistant shows them and sends them back, by the mode's index. The last one is Custom.
constexpr std::array kModes{"Silent", "Performance", "Zero Fan", "Custom"};

struct Quantity {
    const char *key;
    const char *name;
    const char *deviceClass; ///< null where Home Assistant has none that fits: it refuses any other word
    const char *unit;
    const char *stateClass;
    int decimals; ///< noise below them is no change
    std::optional<double> HaState::*value;
};

constexpr auto kMeasured = "measurement";
constexpr std::array kQuantities{
    Quantity{"mains_voltage", "Mains voltage", "voltage", "V", kMeasured, 1, &HaState::mainsVolts},
    Quantity{"voltage_12", "12 V voltage", "voltage", "V", kMeasured, 2, &HaState::volts12},
    Quantity{"current_12", "12 V current", "current", "A", kMeasured, 2, &HaState::amps12},
    Quantity{"voltage_5", "5 V voltage", "voltage", "V", kMeasured, 2, &HaState::volts5},
    Quantity{"current_5", "5 V current", "current", "A", kMeasured, 2, &HaState::amps5},
    Quantity{"voltage_33", "3.3 V voltage", "voltage", "V", kMeasured, 2, &HaState::volts33},
    Quantity{"current_33", "3.3 V current", "current", "A", kMeasured, 2, &HaState::amps33},
    Quantity{"output_power", "Output power", "power", "W", kMeasured, 1, &HaState::outputWatts},
    Quantity{"load", "Load", nullptr, "%", kMeasured, 1, nullptr},
    Quantity{"efficiency", "Efficiency", nullptr, "%", kMeasured, 1, &HaState::efficiency},
    Quantity{"temperature", "Temperature", "temperature", "°C", kMeasured, 1, &HaState::temperature},
    Quantity{"fan_rpm", "Fan speed", nullptr, "rpm", kMeasured, 0, &HaState::fanRpm},
    Quantity{"energy", "Energy", "energy", "kWh", "total_increasing", 3, &HaState::energy},
};

QString key(const char *name) { return QLatin1String(name); }
QString text(const char *value) { return QString::fromUtf8(value); }

QByteArray compact(const QJsonObject &object) { return QJsonDocument(object).toJson(QJsonDocument::Compact); }

QString valueTemplate(const char *name) {
    return QStringLiteral("{{ value_json.%1 }}").arg(QLatin1String(name));
}

int modeCount(const HaDevice &device) {
    return static_cast<int>(kModes.size()) - (device.customSpeed ? 0 : 1);
}

QJsonObject component(const HaDevice &device, const char *platform, const char *id, const char *name) {
    return {{key("p"), key(platform)},
            {key("name"), text(name)},
            {key("unique_id"), device.objectId() + QLatin1Char('_') + QLatin1String(id)}};
}

QJsonObject sensor(const HaDevice &device, const Quantity &quantity) {
    auto result = component(device, "sensor", quantity.key, quantity.name);
    if (quantity.deviceClass != nullptr) {
        result.insert(key("device_class"), key(quantity.deviceClass));
    }
    result.insert(key("unit_of_measurement"), text(quantity.unit));
    result.insert(key("state_class"), key(quantity.stateClass));
    result.insert(key("suggested_display_precision"), quantity.decimals);
    result.insert(key("value_template"), valueTemplate(quantity.key));
    return result;
}

QJsonObject fanModeSelect(const HaDevice &device) {
    QJsonArray options;
    for (int i = 0; i < modeCount(device); ++i) {
        options.append(key(kModes.at(static_cast<std::size_t>(i))));
    }
    auto result = component(device, "select", "fan_mode", "Fan mode");
    result.insert(key("options"), options);
    result.insert(key("command_topic"), device.fanModeCommand());
    result.insert(key("value_template"), valueTemplate("fan_mode"));
    return result;
}

QJsonObject fanSpeedNumber(const HaDevice &device) {
    auto result = component(device, "number", "fan_speed", "Custom fan speed");
    result.insert(key("min"), kLeastPercent);
    result.insert(key("max"), kMostPercent);
    result.insert(key("step"), 1);
    result.insert(key("unit_of_measurement"), key("%"));
    result.insert(key("command_topic"), device.fanSpeedCommand());
    result.insert(key("value_template"), valueTemplate("fan_speed"));
    return result;
}

QJsonObject ring(const HaDevice &device) {
    auto result = component(device, "light", "ring", "Ring");
    result.insert(key("schema"), key("json"));
    result.insert(key("state_topic"), device.lightTopic());
    result.insert(key("command_topic"), device.lightCommand());
    result.insert(key("brightness"), true);
    result.insert(key("supported_color_modes"), QJsonArray{key("rgb")});
    result.insert(key("effect"), true);
    result.insert(key("effect_list"), QJsonArray::fromStringList(device.ringEffects));
    return result;
}

/// State messages and the "05" of the answer topic, whose will is the only one a connection can have. Other
/// answers render as nothing, which Home Assistant leaves out of account.
QJsonArray availability(const HaDevice &device, const QString &answerTopic) {
    return {
        QJsonObject{{key("topic"), device.stateTopic()}, {key("value_template"), valueTemplate("status")}},
        QJsonObject{
            {key("topic"), answerTopic},
            {key("value_template"), key("{{ value_json.status if value_json.comm == '05' else '' }}")}}};
}

QJsonValue rounded(const std::optional<double> &value, int decimals) {
    if (!value || !std::isfinite(*value)) {
        return QJsonValue::Null;
    }
    const double scale = std::pow(10.0, decimals);
    return std::round(*value * scale) / scale;
}

std::optional<double> loadOf(const HaDevice &device, const HaState &state) {
    if (!state.outputWatts || device.ratedWatts <= 0.0) {
        return std::nullopt;
    }
    return *state.outputWatts / device.ratedWatts * 100.0;
}

/// -1 for anything but a whole number from 0 to 255.
int level(const QJsonValue &value) {
    const double number = value.toDouble(-1.0);
    return number >= 0.0 && number <= kMostLevel && number == std::trunc(number) ? static_cast<int>(number)
                                                                                 : -1;
}

} // namespace

QString HaDevice::objectId() const {
    QString id = QStringLiteral("zpsg_") + (serial.isEmpty() ? model : serial);
    for (QChar &character : id) {
        const auto code = character.unicode();
        const bool plain = (code >= u'a' && code <= u'z') || (code >= u'A' && code <= u'Z') ||
                           (code >= u'0' && code <= u'9') || code == u'-';
        if (!plain) {
            character = QLatin1Char('_');
        }
    }
    return id;
}

QString HaDevice::configTopic() const {
    return QStringLiteral("homeassistant/device/%1/config").arg(objectId());
}

QByteArray discoveryConfig(const HaDevice &device, const QString &answerTopic) {
    QJsonObject components;
    for (const Quantity &quantity : kQuantities) {
        components.insert(key(quantity.key), sensor(device, quantity));
    }
    components.insert(key("fan_mode"), fanModeSelect(device));
    if (device.customSpeed) {
        components.insert(key("fan_speed"), fanSpeedNumber(device));
    }
    if (!device.ringEffects.isEmpty()) {
        components.insert(key("ring"), ring(device));
    }
    QJsonObject described{
        {key("ids"), QJsonArray{device.objectId()}}, {key("name"), device.model}, {key("mdl"), device.model}};
    if (!device.serial.isEmpty()) {
        described.insert(key("sn"), device.serial);
    }
    QJsonObject origin{{key("name"), key("ZPS G")}};
    if (!QCoreApplication::applicationVersion().isEmpty()) {
        origin.insert(key("sw"), QCoreApplication::applicationVersion());
    }
    return compact({{key("dev"), described},
                    {key("o"), origin},
                    {key("cmps"), components},
                    {key("state_topic"), device.stateTopic()},
                    {key("avty"), availability(device, answerTopic)},
                    {key("avty_mode"), key("latest")},
                    {key("qos"), 0}});
}

QByteArray statePayload(const HaDevice &device, const HaState &state, bool available) {
    QJsonObject object{{key("status"), key(available ? "online" : "offline")}};
    for (const Quantity &quantity : kQuantities) {
        const auto value = quantity.value != nullptr ? state.*quantity.value : loadOf(device, state);
        object.insert(key(quantity.key), rounded(value, quantity.decimals));
    }
    const bool known = state.fanMode && *state.fanMode >= 0 && *state.fanMode < modeCount(device);
    object.insert(key("fan_mode"), known
                                       ? QJsonValue(key(kModes.at(static_cast<std::size_t>(*state.fanMode))))
                                       : QJsonValue(QJsonValue::Null));
    object.insert(key("fan_speed"),
                  state.fanSpeed ? QJsonValue(*state.fanSpeed) : QJsonValue(QJsonValue::Null));
    return compact(object);
}

QByteArray lightPayload(const HaLight &light) {
    const QJsonObject colour{
        {key("r"), light.colour.red}, {key("g"), light.colour.green}, {key("b"), light.colour.blue}};
    QJsonObject object{{key("state"), key(light.on ? "ON" : "OFF")},
                       {key("brightness"), light.brightness},
                       {key("color_mode"), key("rgb")},
                       {key("color"), colour}};
    if (!light.effect.isEmpty()) {
        object.insert(key("effect"), light.effect);
    }
    return compact(object);
}

std::optional<int> parseFanMode(const HaDevice &device, const QByteArray &payload) {
    for (int i = 0; i < modeCount(device); ++i) {
        if (payload == kModes.at(static_cast<std::size_t>(i))) {
            return i;
        }
    }
    return std::nullopt;
}

std::optional<int> parseFanSpeed(const QByteArray &payload) {
    bool valid = false;
    const double percent = payload.toDouble(&valid); // Home Assistant may send "45.0"
    const bool fits = valid && percent >= kLeastPercent && percent <= kMostPercent;
    return fits && percent == std::trunc(percent) ? std::optional(static_cast<int>(percent)) : std::nullopt;
}

std::optional<LightCommand> parseLight(const HaDevice &device, const QByteArray &payload) {
    if (hasRepeatedKey(payload)) {
        return std::nullopt;
    }
    const auto object = QJsonDocument::fromJson(payload).object();
    LightCommand command;
    if (const auto state = object.value(key("state")); !state.isUndefined()) {
        if (state != key("ON") && state != key("OFF")) {
            return std::nullopt;
        }
        command.on = state == key("ON");
    }
    if (const auto brightness = object.value(key("brightness")); !brightness.isUndefined()) {
        command.brightness = level(brightness);
        if (*command.brightness < 0) {
            return std::nullopt;
        }
    }
    if (const auto colour = object.value(key("color")); !colour.isUndefined()) {
        const auto parts = colour.toObject();
        command.rgb = {level(parts.value(key("r"))), level(parts.value(key("g"))),
                       level(parts.value(key("b")))};
        if (std::min({command.rgb->red, command.rgb->green, command.rgb->blue}) < 0) {
            return std::nullopt;
        }
    }
    if (const auto effect = object.value(key("effect")); !effect.isUndefined()) {
        command.effect = effect.toString();
        if (!device.ringEffects.contains(*command.effect)) {
            return std::nullopt;
        }
    }
    const bool asks = command.on || command.brightness || command.rgb || command.effect;
    return asks ? std::optional(command) : std::nullopt;
}

std::chrono::milliseconds StateThrottle::wait(std::chrono::milliseconds now) const {
    const auto due = !sentAt_ ? now : *sentAt_ + (wanted_ == sent_ ? kRefresh : kLeast);
    return std::max(due - now, std::chrono::milliseconds(0));
}

QByteArray StateThrottle::take(std::chrono::milliseconds now) {
    sentAt_ = now;
    sent_ = wanted_;
    return sent_;
}

} // namespace zpsg::remote
