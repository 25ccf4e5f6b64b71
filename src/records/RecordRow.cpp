#include "records/RecordRow.h"

#include <algorithm>
#include <cmath>

namespace zpsg::records {
namespace {

const QString kTimeFormat = QStringLiteral("dd.MM.yyyy hh:mm:ss");
const QString kDateFormat = QStringLiteral("dd.MM.yyyy");
constexpr QLatin1Char kSeparator(',');
constexpr int kTimeLength = 19; // of kTimeFormat
constexpr float kWattMinutesPerKwh = 60.0F * 60.0F * 1000.0F / kRowSeconds;
constexpr int kDayFields = kRowFields + 1;

/// Columns of a day row between serial number and count.
constexpr std::array kDayColumns{
    RowField::Volts12,    RowField::Amps12,   RowField::Volts5,   RowField::Amps5,      RowField::Volts33,
    RowField::Amps33,     RowField::Watts,    RowField::Kwh,      RowField::Efficiency, RowField::Cost,
    RowField::FanRpm,     RowField::Celsius,  RowField::CpuVolts, RowField::CpuAmps,    RowField::CpuWatts,
    RowField::CpuCelsius, RowField::GpuVolts, RowField::GpuAmps,  RowField::GpuWatts,   RowField::GpuCelsius};
static_assert(kDayColumns.size() == kDayFields - 3);

QString fixed(double value, int decimals) { return QString::number(value, 'f', decimals); }

/// The number in `count` digits from `at` on; -1 when one of them is none.
int digits(const QString &text, int at, int count) {
    int value = 0;
    for (int i = at; i < at + count; ++i) {
        const int digit = text.at(i).unicode() - u'0';
        if (digit < 0 || digit > 9) {
            return -1;
        }
        value = 10 * value + digit;
    }
    return value;
}

/// What keeps the row a row.
QString cleaned(const QString &serial) {
    QString result;
    std::copy_if(serial.begin(), serial.end(), std::back_inserter(result),
                 [](QChar c) { return c != kSeparator && c.isPrint(); });
    return result;
}

} // namespace

QString makeRow(const psu::TelemetryRecord &record, const QDateTime &now, const QString &serial,
                const PcSensors &sensors, const power::RandomSource &random) {
    const auto number = [&record](const char *key) { return record.text(QLatin1String(key)).toFloat(); };
    const auto two = [&number](const char *key) { return fixed(static_cast<double>(number(key)), 2); };
    const float watts = number("WATTS");
    QStringList fields{now.toString(kTimeFormat),
                       cleaned(serial),
                       two("VVOut12"),
                       two("VIOut12"),
                       two("VVOut5"),
                       two("VIOut5"),
                       two("VVOut33"),
                       two("VIOut33"),
                       fixed(static_cast<double>(watts), 6),
                       power::recordedEfficiency(record.text(QStringLiteral("EFF")), random),
                       fixed(static_cast<double>(watts / kWattMinutesPerKwh), 6),
                       QStringLiteral("0"),
                       two("FanSpeed"),
                       two("Temp")};
    for (const float sensor : sensors) {
        fields.append(fixed(static_cast<double>(sensor), 2));
    }
    return fields.join(kSeparator);
}

double MinuteRow::number(RowField field) const {
    const double value = fields.at(static_cast<int>(field)).toDouble();
    return std::isfinite(value) ? value : 0.0;
}

QDate dayOfRow(const QString &row) {
    if (row.size() <= kTimeLength || row.at(kTimeLength) != kSeparator ||
        row.count(kSeparator) != kRowFields - 1 || row.at(2) != QLatin1Char('.') ||
        row.at(5) != QLatin1Char('.') || row.at(10) != QLatin1Char(' ') || row.at(13) != QLatin1Char(':') ||
        row.at(16) != QLatin1Char(':') ||
        !QTime::isValid(digits(row, 11, 2), digits(row, 14, 2), digits(row, 17, 2))) {
        return {};
    }
    const int year = digits(row, 6, 4);
    return year > 0 ? QDate(year, digits(row, 3, 2), digits(row, 0, 2)) : QDate(); // there is a year -1
}

std::optional<MinuteRow> parseRow(const QString &text) {
    // By the digits: a local time that a change of the clock leaves out here was a time where it was
    // recorded.
    const QDate day = dayOfRow(text);
    if (!day.isValid()) {
        return std::nullopt;
    }
    const QTime time(digits(text, 11, 2), digits(text, 14, 2), digits(text, 17, 2));
    return MinuteRow{day, QDateTime(day, time), text.split(kSeparator)};
}

void DaySums::add(const MinuteRow &row) {
    for (const auto column : kDayColumns) {
        sums_.at(static_cast<std::size_t>(column)) += row.number(column);
    }
    serial_ = row.fields.at(static_cast<int>(RowField::Serial));
    ++count_;
}

void DaySums::add(const DaySums &other) {
    std::transform(sums_.begin(), sums_.end(), other.sums_.begin(), sums_.begin(), std::plus<>());
    serial_ = other.serial_;
    count_ += other.count_;
}

QString DaySums::text() const {
    QStringList fields{date_.toString(kDateFormat), serial_};
    for (const auto column : kDayColumns) {
        fields.append(column == RowField::Cost ? QStringLiteral("0") : fixed(sum(column), 6));
    }
    fields.append(QString::number(count_));
    return fields.join(kSeparator);
}

std::optional<DaySums> DaySums::parse(const QString &text) {
    const QStringList fields = text.split(kSeparator);
    if (fields.size() != kDayFields) {
        return std::nullopt;
    }
    DaySums day(QDate::fromString(fields.front(), kDateFormat));
    bool number = false;
    day.count_ = fields.back().toInt(&number);
    if (!day.date_.isValid() || !number || day.count_ <= 0) {
        return std::nullopt;
    }
    day.serial_ = fields.at(1);
    for (std::size_t i = 0; i < kDayColumns.size(); ++i) {
        day.sums_.at(static_cast<std::size_t>(kDayColumns.at(i))) =
            fields.at(static_cast<int>(i) + 2).toDouble();
    }
    return day;
}

} // namespace zpsg::records
