// Dates, durations and figures with their units, in the order and with the names of the user's locale.
#pragma once

#include "ui/HistoryData.h"

#include <QLocale>
#include <QString>

namespace zpsg::ui {

/// The parts of a date that a text has.
enum class DateParts {
    Full,     ///< Tuesday, 14 July 2026
    Weekday,  ///< Tue, 14 July 2026
    Date,     ///< 14 July 2026
    Short,    ///< 14 Jul 2026
    DayMonth, ///< 14 Jul
    Month     ///< July 2026
};

/// The format of QLocale for these parts of a date, made from the locale's own long format.
[[nodiscard]] QString dateFormat(DateParts parts, const QLocale &locale);
[[nodiscard]] QString dateText(const QDate &date, DateParts parts, const QLocale &locale = QLocale());
/// A week or a range by its ends, a month and a year by their names.
[[nodiscard]] QString rangeText(HistorySpan span, const HistoryRange &range);
/// "15 h 8 min", "42 min"; from a hundred hours on without minutes.
[[nodiscard]] QString recordedText(int minutes);

/// Three significant figures or more: "0.84 kWh", "12.3 kWh", "12,040 kWh".
[[nodiscard]] QString energyText(double kwh);
[[nodiscard]] QString powerText(double watts);
/// A dash where it is not known.
[[nodiscard]] QString efficiencyText(double percent);

} // namespace zpsg::ui
