#include "ui/HistorySums.h"

#include <algorithm>
#include <iterator>

namespace zpsg::ui {
namespace {

void add(HistoryDay &total, const HistoryDay &day) {
    const int minutes = total.minutes + day.minutes;
    const auto mean = [&](double ours, double theirs) {
        return (ours * total.minutes + theirs * day.minutes) / minutes;
    };
    // A day without an efficiency says nothing about the others'.
    if (total.meanEfficiency <= 0.0 || day.meanEfficiency <= 0.0) {
        total.meanEfficiency = std::max(total.meanEfficiency, day.meanEfficiency);
    } else {
        total.meanEfficiency = mean(total.meanEfficiency, day.meanEfficiency);
    }
    total.meanWatts = mean(total.meanWatts, day.meanWatts);
    total.kwh += day.kwh;
    total.minutes = minutes;
}

} // namespace

double measured(const HistoryDay &day, HistoryMeasure measure) {
    return measure == HistoryMeasure::Energy ? day.kwh : day.meanWatts;
}

HistorySum sumOf(const std::vector<HistoryDay> &days, HistoryMeasure measure, const QDate &today) {
    HistorySum sum;
    double wattMinutes = 0.0;
    for (const HistoryDay &day : days) {
        sum.kwh += day.kwh;
        sum.minutes += day.minutes;
        wattMinutes += day.meanWatts * day.minutes;
        const double value = measured(day, measure);
        if (!sum.highest || value > measured(*sum.highest, measure)) {
            sum.highest = day;
        }
        if (!sum.lowest || sum.lowest->date == today ||
            (day.date != today && value < measured(*sum.lowest, measure))) {
            sum.lowest = day;
        }
    }
    sum.meanWatts = sum.minutes > 0 ? wattMinutes / sum.minutes : 0.0;
    return sum;
}

std::vector<HistorySlot> slotsOf(const std::vector<HistoryDay> &days, const HistoryRange &range,
                                 bool byMonth) {
    std::vector<HistorySlot> places;
    std::vector<int> slotOfDay;
    const int count = std::max(0, range.days());
    slotOfDay.reserve(static_cast<std::size_t>(count));
    QDate date = range.from;
    int leftOfMonth = 0;
    for (int i = 0; i < count; ++i, --leftOfMonth) {
        if (leftOfMonth == 0 || !byMonth) {
            date = range.from.addDays(i);
            leftOfMonth = byMonth ? date.daysInMonth() - date.day() + 1 : 1;
            HistorySlot slot;
            slot.first = i;
            slot.past = std::min(i + leftOfMonth, count);
            slot.total.date = date;
            places.push_back(slot);
        }
        slotOfDay.push_back(static_cast<int>(places.size()) - 1);
    }
    for (const HistoryDay &day : days) {
        if (range.contains(day.date) && day.minutes > 0) {
            const auto index = static_cast<std::size_t>(range.from.daysTo(day.date));
            add(places.at(static_cast<std::size_t>(slotOfDay.at(index))).total, day);
        }
    }
    return places;
}

int slotAt(const std::vector<HistorySlot> &places, int day) {
    const auto after = std::upper_bound(places.begin(), places.end(), day,
                                        [](int at, const HistorySlot &slot) { return at < slot.first; });
    if (after == places.begin() || std::prev(after)->past <= day) {
        return -1;
    }
    return static_cast<int>(after - places.begin()) - 1;
}

} // namespace zpsg::ui
