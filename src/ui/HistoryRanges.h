// Arithmetic with the calendar: the week, month or year around a day, and the one before or after it.
#pragma once

#include "ui/HistoryData.h"

namespace zpsg::ui {

/// No supply that this program knows is older.
inline constexpr int kHistoryFirstYear = 2010;

/// The span that `day` is in. A HistorySpan::Range around a day is that day.
[[nodiscard]] HistoryRange rangeAround(HistorySpan span, const QDate &day, Qt::DayOfWeek weekBegins);
/// The range before (-1) or after (+1). One of the user's own moves by its length, and forward no further
/// than to end today.
[[nodiscard]] HistoryRange steppedRange(HistorySpan span, const HistoryRange &range, int step,
                                        const QDate &today, Qt::DayOfWeek weekBegins);
/// Whether there is anything to see in that direction.
[[nodiscard]] bool canStep(const HistoryRange &range, int step, const QDate &today);

} // namespace zpsg::ui
