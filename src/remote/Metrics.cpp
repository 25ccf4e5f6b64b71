#include "remote/Metrics.h"

#include <QByteArrayList>

#include <charconv>
#include <cmath>

namespace zpsg::remote {
namespace {

struct Gauge {
    const char *name;
    const char *help;
    std::optional<double> MetricValues::*value;
};

constexpr std::array kGauges{
    Gauge{"zpsg_mains_volts", "Voltage at the mains input.", &MetricValues::mainsVolts},
    Gauge{"zpsg_output_watts", "Power delivered by all rails together.", &MetricValues::outputWatts},
    Gauge{"zpsg_load_ratio", "Delivered power as a share of the rated power.", &MetricValues::loadRatio},
    Gauge{"zpsg_efficiency_ratio", "Delivered power as a share of the power taken in.",
          &MetricValues::efficiencyRatio},
    Gauge{"zpsg_temperature_celsius", "Temperature inside the supply.", &MetricValues::celsius},
    Gauge{"zpsg_fan_rpm", "Revolutions of the supply's fan in a minute.", &MetricValues::fanRpm},
};

struct Rail {
    const char *label;
    RailValues MetricValues::*values;
};

constexpr std::array kRails{Rail{"12V", &MetricValues::rail12}, Rail{"5V", &MetricValues::rail5},
                            Rail{"3.3V", &MetricValues::rail33}};

constexpr std::array kAlarmWords{"rail12", "rail5", "rail33", "fan", "temperature"};
static_assert(kAlarmWords.size() == psu::kAlarmKinds);

/// The shortest text that reads back as the same number, whatever the locale.
QByteArray numberText(double value) {
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
    return {text.data(), static_cast<int>(end - text.data())};
}

QByteArray label(const char *name, const QString &value) {
    QByteArray text = value.toUtf8();
    text.replace('\\', R"(\\)").replace('"', R"(\")").replace('\n', R"(\n)");
    return QByteArray(name) + "=\"" + text + '"';
}

/// The text so far; HELP and TYPE stand before a metric's first sample only, so one without samples leaves
/// nothing.
class Writer {
public:
    void begin(const char *name, const char *help, const char *type = "gauge") {
        name_ = name;
        head_ = QByteArray("# HELP ") + name + ' ' + help + "\n# TYPE " + name + ' ' + type + '\n';
    }
    void sample(std::optional<double> value, const QByteArray &labels = {}) {
        if (!value || !std::isfinite(*value)) {
            return;
        }
        text_ += head_ + name_ + (labels.isEmpty() ? labels : '{' + labels + '}') + ' ' + numberText(*value) +
                 '\n';
        head_.clear();
    }
    [[nodiscard]] const QByteArray &text() const { return text_; }

private:
    QByteArray text_;
    QByteArray name_;
    QByteArray head_;
};

void writeRails(Writer &writer, const MetricValues &values, std::optional<double> RailValues::*quantity) {
    for (const Rail &rail : kRails) {
        writer.sample(values.*rail.values.*quantity, label("rail", QString::fromLatin1(rail.label)));
    }
}

void writeStates(Writer &writer, const MetricValues &values) {
    writer.begin("zpsg_fan_mode", "1 for the mode that the fan is in, 0 for the others.");
    for (std::size_t i = 0; values.fanMode && i < kFanModeWords.size(); ++i) {
        writer.sample(*values.fanMode == i ? 1 : 0, label("mode", QString::fromLatin1(kFanModeWords.at(i))));
    }
    writer.begin("zpsg_alarm", "1 while the alarm holds.");
    for (std::size_t i = 0; values.alarms && i < kAlarmWords.size(); ++i) {
        writer.sample(values.alarms->at(i) ? 1 : 0, label("alarm", QString::fromLatin1(kAlarmWords.at(i))));
    }
}

QByteArray infoLabels(const MetricValues &values) {
    QByteArrayList labels;
    for (const auto &[name, value] : {std::pair{"model", values.model}, std::pair{"serial", values.serial},
                                      std::pair{"version", values.version}}) {
        if (!value.isEmpty()) {
            labels << label(name, value);
        }
    }
    return labels.join(',');
}

} // namespace

QByteArray metricsText(const MetricValues &values) {
    Writer writer;
    for (const Gauge &gauge : kGauges) {
        writer.begin(gauge.name, gauge.help);
        writer.sample(values.*gauge.value);
    }
    writer.begin("zpsg_rail_volts", "Voltage of an output rail.");
    writeRails(writer, values, &RailValues::volts);
    writer.begin("zpsg_rail_amperes", "Current of an output rail.");
    writeRails(writer, values, &RailValues::amperes);
    writer.begin("zpsg_energy_joules_total", "Energy delivered.", "counter");
    writer.sample(values.energyJoules);
    writeStates(writer, values);
    writer.begin("zpsg_connected", "1 while a supply answers.");
    writer.sample(values.connected ? 1 : 0);
    writer.begin("zpsg_info", "The supply and the program, in the labels.");
    writer.sample(1, infoLabels(values));
    return writer.text();
}

} // namespace zpsg::remote
