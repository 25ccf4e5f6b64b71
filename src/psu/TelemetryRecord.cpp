#include "psu/TelemetryRecord.h"

#include <array>
#include <utility>

namespace zpsg::psu {
namespace {

constexpr std::array kRails{std::pair{"VVOut12", "VIOut12"}, std::pair{"VVOut5", "VIOut5"},
                            std::pair{"VVOut33", "VIOut33"}};

} // namespace

// HW12V, HW5V and HW33V are refreshed by no reading; the alarm supervision collects them.
TelemetryRecord::TelemetryRecord()
    : values_{
          {QStringLiteral("VIN"), QStringLiteral("200")},
          {QStringLiteral("VVOut12"), QStringLiteral("12.18")},
          {QStringLiteral("VVOut5"), QStringLiteral("5.08")},
          {QStringLiteral("VVOut33"), QStringLiteral("3.36")},
          {QStringLiteral("VIOut12"), QStringLiteral("0.75")},
          {QStringLiteral("VIOut5"), QStringLiteral("0.3")},
          {QStringLiteral("VIOut33"), QStringLiteral("0.2")},
          {QStringLiteral("WATTS"), QStringLiteral("1.6")},
          {QStringLiteral("EFF"), QStringLiteral("60.2")},
          {QStringLiteral("HW12V"), QStringLiteral("0.12")},
          {QStringLiteral("HW5V"), QStringLiteral("0.5")},
          {QStringLiteral("HW33V"), QStringLiteral("0.33")},
      } {}

void TelemetryRecord::store(const QString &key, float value) {
    values_[key] = QString::number(static_cast<double>(value), 'g', 6);
    measured_.insert(key);
}

void TelemetryRecord::deriveWatts() {
    double watts = 0.0;
    bool allMeasured = true;
    for (const auto &[volts, amps] : kRails) {
        watts += number(QLatin1String(volts)) * number(QLatin1String(amps));
        allMeasured = allMeasured && measured(QLatin1String(volts)) && measured(QLatin1String(amps));
    }
    store(QStringLiteral("WATTS"), static_cast<float>(watts));
    if (!allMeasured) {
        measured_.remove(QStringLiteral("WATTS"));
    }
}

} // namespace zpsg::psu
