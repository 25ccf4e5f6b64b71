// One minute as it is recorded: 22 fields joined by commas, and one day as it is settled: 23.
#pragma once

#include "power/Efficiency.h"
#include "psu/TelemetryRecord.h"

#include <QDateTime>
#include <QStringList>

#include <array>
#include <optional>

namespace zpsg::records {

/// The seconds between two rows. The energy of a row is its output power held for this long.
inline constexpr int kRowSeconds = 60;

/// Fields of a minute's row by position.
enum class RowField {
    Time, ///< local, "dd.MM.yyyy hh:mm:ss"
    Serial,
    Volts12,
    Amps12,
    Volts5,
    Amps5,
    Volts33,
    Amps33,
    Watts,      ///< six decimals
    Efficiency, ///< percent, 50.00 to 95.99 in the place of an implausible one
    Kwh,        ///< of this minute, six decimals
    Cost,       ///< always "0"
    FanRpm,
    Celsius,
    CpuVolts,
    CpuAmps,
    CpuWatts,
    CpuCelsius,
    GpuVolts,
    GpuAmps,
    GpuWatts,
    GpuCelsius,
    Count,
};
inline constexpr int kRowFields = static_cast<int>(RowField::Count);
static_assert(kRowFields == 22);

/// The PC's own sensors, in the order of the last eight fields; all zero while they are not read.
using PcSensors = std::array<float, 8>;

/// Builds the row of this moment. Commas and control characters in `serial` are left out.
[[nodiscard]] QString makeRow(const psu::TelemetryRecord &record, const QDateTime &now, const QString &serial,
                              const PcSensors &sensors, const power::RandomSource &random);

/// A row taken apart.
struct MinuteRow {
    QDate day;
    QDateTime time; ///< local
    QStringList fields;
    /// The field as a number; 0 when it is none.
    [[nodiscard]] double number(RowField field) const;
};

/// The day of a minute's row, without the cost of taking it apart; invalid when the text is no such row.
[[nodiscard]] QDate dayOfRow(const QString &row);

/// Nothing unless the text has 22 fields and begins with a time.
[[nodiscard]] std::optional<MinuteRow> parseRow(const QString &text);

/// The sums of the rows of one day, and how many they are.
class DaySums {
public:
    explicit DaySums(QDate date) : date_(date) {}
    void add(const MinuteRow &row);
    void add(const DaySums &other);

    [[nodiscard]] QDate date() const { return date_; }
    [[nodiscard]] int count() const { return count_; }
    [[nodiscard]] double kwh() const { return sum(RowField::Kwh); }
    [[nodiscard]] double watts() const { return sum(RowField::Watts); }
    [[nodiscard]] double efficiency() const { return sum(RowField::Efficiency); }
    [[nodiscard]] double sum(RowField field) const { return sums_.at(static_cast<std::size_t>(field)); }

    /// As the day file has it: 23 fields, the date as "dd.MM.yyyy", the serial number of the last row, the
    /// sum of each column with six decimals (energy before efficiency), "0" for the cost, the count last.
    [[nodiscard]] QString text() const;
    /// The reverse; nothing when the text has not 23 fields, a date and a count.
    [[nodiscard]] static std::optional<DaySums> parse(const QString &text);

private:
    QDate date_;
    QString serial_;
    std::array<double, kRowFields> sums_{}; ///< by RowField; time and serial stay 0
    int count_ = 0;
};

} // namespace zpsg::records
