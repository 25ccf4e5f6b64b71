// Where the axes of the history's plots have their ticks, and what they say.
#pragma once

#include "ui/HistoryData.h"

#include <QList>
#include <QString>

#include <utility>
#include <vector>

namespace zpsg::ui {

/// An axis of four equal, round steps, so that two axes of a plot share their grid.
struct ValueScale {
    double low = 0.0;
    double step = 0.25;

    [[nodiscard]] double high() const { return low + 4.0 * step; }
    [[nodiscard]] QList<double> ticks() const;
    /// As many decimals as the steps need.
    [[nodiscard]] QString label(double value) const;
};
/// The smallest one that holds both values.
[[nodiscard]] ValueScale valueScale(double least, double most);

/// Ticks of an axis of days (0 is the beginning of the range's first) with their texts.
struct DayScale {
    QList<double> ticks;
    QStringList texts;
    /// Where a month or a year begins within the range.
    QList<double> beginnings;

    [[nodiscard]] QString label(double tick) const;
};
/// Days, months or years, at most `room` of them.
[[nodiscard]] DayScale dayScale(const HistoryRange &range, int room);

/// Seconds since the beginning of the day at which the clock shows a round time, at most about `room` of
/// them. On days on which the clocks change the distances differ.
[[nodiscard]] QList<double> clockTicks(const QDate &day, double from, double to, int room);
/// "14:05"
[[nodiscard]] QString clockText(const QDate &day, double seconds);

} // namespace zpsg::ui
