// The supply as Home Assistant sees it: discovery, state and commands as topics and JSON.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>

namespace zpsg::remote {

struct HaDevice {
    QString model;
    QString serial; ///< tells supplies apart; without one the model does
    double ratedWatts = 0.0;
    bool customSpeed = false;
    QStringList ringEffects; ///< empty: there is no ring

    bool operator==(const HaDevice &) const = default;
    /// Letters, digits, "_" and "-".
    [[nodiscard]] QString objectId() const;
    [[nodiscard]] QString base() const { return QStringLiteral("zpsg/") + objectId(); }
    [[nodiscard]] QString configTopic() const;
    [[nodiscard]] QString stateTopic() const { return base() + QStringLiteral("/state"); }
    [[nodiscard]] QString lightTopic() const { return base() + QStringLiteral("/light"); }
    [[nodiscard]] QString fanModeCommand() const { return base() + QStringLiteral("/fan_mode/set"); }
    [[nodiscard]] QString fanSpeedCommand() const { return base() + QStringLiteral("/fan_speed/set"); }
    [[nodiscard]] QString lightCommand() const { return base() + QStringLiteral("/light/set"); }
};

struct Rgb {
    int red = 0, green = 0, blue = 0; ///< 0 to 255
    bool operator==(const Rgb &) const = default;
};

struct HaLight {
    bool on = false;
    int brightness = 255; ///< 0 to 255
    Rgb colour;
    QString effect; ///< empty for none
};

/// What is missing is shown as unknown.
struct HaState {
    std::optional<double> mainsVolts, volts12, amps12, volts5, amps5, volts33, amps33;
    std::optional<double> outputWatts, efficiency; ///< W, %; the load follows from the rated power
    std::optional<double> temperature, fanRpm;     ///< °C, rpm
    std::optional<double> energy;                  ///< kWh, never falling but for a reset to 0
    std::optional<int> fanMode;                    ///< 0 Silent, 1 Performance, 2 Zero Fan, 3 Custom
    std::optional<int> fanSpeed;                   ///< the custom speed, 30 to 100 %
    std::optional<HaLight> light;
};

/// What is missing stays as it is.
struct LightCommand {
    std::optional<bool> on;
    std::optional<int> brightness; ///< 0 to 255
    std::optional<Rgb> rgb;
    std::optional<QString> effect; ///< one of the device's
};

/// The retained payload of the config topic. `answerTopic` is where the last will goes.
[[nodiscard]] QByteArray discoveryConfig(const HaDevice &device, const QString &answerTopic);

/// `available` false: the same with a farewell in it.
[[nodiscard]] QByteArray statePayload(const HaDevice &device, const HaState &state, bool available = true);
[[nodiscard]] QByteArray lightPayload(const HaLight &light);

/// The index of the mode; Custom only for a device that has it.
[[nodiscard]] std::optional<int> parseFanMode(const HaDevice &device, const QByteArray &payload);
/// A whole number from 30 to 100.
[[nodiscard]] std::optional<int> parseFanSpeed(const QByteArray &payload);
/// Nothing when a part of it is out of range, or when it asks for nothing.
[[nodiscard]] std::optional<LightCommand> parseLight(const HaDevice &device, const QByteArray &payload);

/// Lets a payload through when it is another one, at most once a second, and when it is the same every ten
/// seconds: who comes later waits no longer than that. Time is passed in, from any start, never backwards.
class StateThrottle {
public:
    static constexpr std::chrono::milliseconds kLeast{1'000};
    static constexpr std::chrono::milliseconds kRefresh{10'000};

    void offer(const QByteArray &payload) { wanted_ = payload; }
    /// The next one goes out at once.
    void forget() { sentAt_.reset(); }
    [[nodiscard]] bool empty() const { return wanted_.isEmpty(); }
    /// Until something is due.
    [[nodiscard]] std::chrono::milliseconds wait(std::chrono::milliseconds now) const;
    /// What goes out now.
    [[nodiscard]] QByteArray take(std::chrono::milliseconds now);

private:
    QByteArray wanted_;
    QByteArray sent_;
    std::optional<std::chrono::milliseconds> sentAt_;
};

} // namespace zpsg::remote
