#include "ui/HistoryRanges.h"

#include <algorithm>

namespace zpsg::ui {

HistoryRange rangeAround(HistorySpan span, const QDate &day, Qt::DayOfWeek weekBegins) {
    switch (span) {
    case HistorySpan::Week: {
        const QDate from = day.addDays(-((day.dayOfWeek() - weekBegins + 7) % 7));
        return {from, from.addDays(6)};
    }
    case HistorySpan::Month: {
        const QDate from(day.year(), day.month(), 1);
        return {from, from.addDays(from.daysInMonth() - 1)};
    }
    case HistorySpan::Year:
        return {QDate(day.year(), 1, 1), QDate(day.year(), 12, 31)};
    case HistorySpan::Range:
        break;
    }
    return {day, day};
}

HistoryRange steppedRange(HistorySpan span, const HistoryRange &range, int step, const QDate &today,
                          Qt::DayOfWeek weekBegins) {
    switch (span) {
    case HistorySpan::Week:
        return rangeAround(span, range.from.addDays(7LL * step), weekBegins);
    case HistorySpan::Month:
        return rangeAround(span, range.from.addMonths(step), weekBegins);
    case HistorySpan::Year:
        return rangeAround(span, range.from.addYears(step), weekBegins);
    case HistorySpan::Range:
        break;
    }
    qint64 days = static_cast<qint64>(step) * range.days();
    if (step > 0) {
        days = std::clamp<qint64>(range.to.daysTo(today), 0, days);
    }
    return {range.from.addDays(days), range.to.addDays(days)};
}

bool canStep(const HistoryRange &range, int step, const QDate &today) {
    return step > 0 ? range.to < today : range.from > QDate(kHistoryFirstYear, 1, 1);
}

} // namespace zpsg::ui
