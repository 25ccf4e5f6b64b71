// What the history page shows: totals of days, and the minutes of one day.
#pragma once

#include <QDate>
#include <QDateTime>

namespace zpsg::ui {

/// A calendar day that holds something.
struct HistoryDay {
    QDate date;
    double kwh = 0.0;
    double meanWatts = 0.0;      ///< over the recorded minutes
    double meanEfficiency = 0.0; ///< percent; 0 where it is not known
    int minutes = 0;             ///< recorded ones, at least 1
};

/// A recorded minute. A value that is not finite is one that was not read, and so are a voltage and an
/// efficiency of 0.
struct HistoryMinute {
    QDateTime time;
    double watts = 0.0;
    double volts12 = 0.0, volts5 = 0.0, volts33 = 0.0;
    double amps12 = 0.0, amps5 = 0.0, amps33 = 0.0;
    double celsius = 0.0;
    double rpm = 0.0;
    double efficiency = 0.0; ///< percent
};

/// What a bar's height is.
enum class HistoryMeasure { Energy, Power };

/// How much of the calendar is shown at once; a range has ends of the user's own.
enum class HistorySpan { Week, Month, Year, Range };

/// A closed range of days.
struct HistoryRange {
    QDate from;
    QDate to;

    [[nodiscard]] int days() const { return static_cast<int>(from.daysTo(to)) + 1; }
    [[nodiscard]] bool contains(const QDate &day) const { return day.isValid() && from <= day && day <= to; }
    friend bool operator==(const HistoryRange &a, const HistoryRange &b) {
        return a.from == b.from && a.to == b.to;
    }
    friend bool operator!=(const HistoryRange &a, const HistoryRange &b) { return !(a == b); }
};

} // namespace zpsg::ui
