#include "records/Settlement.h"

#include "records/Logging.h"

#include <algorithm>

namespace zpsg::records {

SettledRows sumByDay(const QStringList &rows) {
    SettledRows settled;
    auto &days = settled.days;
    for (const QString &text : rows) {
        const auto row = parseRow(text);
        if (!row) {
            ++settled.notRows;
            continue;
        }
        // A clock that was set back brings a day again: it is found, not begun anew.
        auto day = std::find_if(days.rbegin(), days.rend(),
                                [&row](const DaySums &known) { return known.date() == row->day; });
        if (day == days.rend()) {
            days.emplace_back(row->day);
            day = days.rbegin();
        }
        day->add(*row);
    }
    return settled;
}

bool Settlement::getNextDailySettlement(const QDateTime &now) {
    const int settled = counters_.settledFile();
    if (counters_.recordFile() - settled <= 1 || !settle(settled + 1, now)) {
        return false;
    }
    counters_.setSettledFile(settled + 1);
    return true;
}

bool Settlement::settle(int number, const QDateTime &now) {
    const auto content = readFile(recordPath(dataDir_, number));
    const auto settled = sumByDay(content.rows);
    QStringList rows;
    std::vector<DayTotals> totals;
    for (const auto &day : settled.days) {
        rows.append(day.text());
        totals.push_back({day.date(), static_cast<float>(day.kwh()), static_cast<float>(day.watts()),
                          static_cast<float>(day.efficiency()), day.count()});
    }
    if (!writeFile(dayPath(dataDir_, number), rows, now)) {
        qCDebug(lcRecords) << "day file" << number << "can't be written yet";
        return false;
    }
    if (history_.addFile(number, totals) == DatabaseResult::Later) {
        return false;
    }
    unreadableRows_ += content.unreadable + settled.notRows;
    if (unreadableRows_ > 0) {
        qCDebug(lcRecords) << "rows that could not be read so far:" << unreadableRows_;
    }
    return true;
}

} // namespace zpsg::records
