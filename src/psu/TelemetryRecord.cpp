#include "psu/TelemetryRecord.h"

namespace zpsg::psu {

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
}

void TelemetryRecord::deriveWatts() {
    const double watts = number(QStringLiteral("VVOut12")) * number(QStringLiteral("VIOut12")) +
                         number(QStringLiteral("VVOut5")) * number(QStringLiteral("VIOut5")) +
                         number(QStringLiteral("VVOut33")) * number(QStringLiteral("VIOut33"));
    store(QStringLiteral("WATTS"), static_cast<float>(watts));
}

} // namespace zpsg::psu
