#include "ui/HistoryMinutes.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zpsg::ui {
namespace {

constexpr double kNotRead = std::numeric_limits<double>::quiet_NaN();

double finite(double value) { return std::isfinite(value) ? value : kNotRead; }
double positive(double value) { return std::isfinite(value) && value > 0.0 ? value : kNotRead; }

/// In the order of HistoryCurve.
std::array<double, kHistoryCurves> valuesOf(const HistoryMinute &minute) {
    return {finite(minute.watts),       positive(minute.volts12), positive(minute.volts5),
            positive(minute.volts33),   finite(minute.amps12),    finite(minute.amps5),
            finite(minute.amps33),      finite(minute.celsius),   finite(minute.rpm),
            positive(minute.efficiency)};
}

using Row = std::pair<double, const HistoryMinute *>; ///< seconds of the day

/// When the clocks are set back they show an hour twice, and a time that was written down as the clock showed
/// it may be in either. `rows` are in the order in which they came: where the clock goes back within that
/// hour, the second one begins. `extra`: by how much the day is longer than others.
void unfold(std::vector<Row> &rows, double extra) {
    const auto before = [&](const Row &row, double seconds) {
        return row.second->time.addSecs(-std::lround(seconds)).time() == row.second->time.time();
    };
    std::vector<Row *> first;
    std::vector<Row *> second;
    for (Row &row : rows) {
        const bool taken = before(row, extra); // for the second hour
        const bool ambiguous = taken || before(row, -extra);
        if (!ambiguous) {
            continue;
        }
        std::vector<Row *> &last = second.empty() ? first : second;
        const bool back = !last.empty() && row.first < last.back()->first - HistoryMinutes::kGap;
        (back || !second.empty() ? second : first).push_back(&row);
    }
    if (second.empty()) {
        return;
    }
    for (Row *row : first) {
        row->first -= before(*row, extra) ? extra : 0.0;
    }
    for (Row *row : second) {
        row->first += before(*row, extra) ? 0.0 : extra;
    }
}

} // namespace

HistoryMinutes::HistoryMinutes(const QDate &day, const std::vector<HistoryMinute> &minutes) : day_(day) {
    if (!day.isValid()) {
        return;
    }
    const qint64 begin = day.startOfDay().toSecsSinceEpoch();
    length_ = static_cast<double>(day.addDays(1).startOfDay().toSecsSinceEpoch() - begin);
    std::vector<Row> rows;
    rows.reserve(minutes.size());
    for (const HistoryMinute &minute : minutes) {
        const auto seconds = static_cast<double>(minute.time.toSecsSinceEpoch() - begin);
        if (minute.time.isValid() && seconds >= 0.0 && seconds < length_) {
            rows.emplace_back(seconds, &minute);
        }
    }
    if (length_ > 86400.0) {
        unfold(rows, length_ - 86400.0);
    }
    std::stable_sort(rows.begin(), rows.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    seconds_.reserve(rows.size());
    for (std::vector<double> &column : columns_) {
        column.reserve(rows.size());
    }
    for (const auto &[seconds, minute] : rows) {
        seconds_.push_back(seconds);
        const std::array<double, kHistoryCurves> values = valuesOf(*minute);
        for (std::size_t i = 0; i < kHistoryCurves; ++i) {
            columns_[i].push_back(values[i]);
        }
    }
}

std::pair<std::size_t, std::size_t> HistoryMinutes::rows(double from, double to) const {
    const auto first = std::lower_bound(seconds_.begin(), seconds_.end(), from);
    const auto past = std::upper_bound(first, seconds_.end(), to);
    return {static_cast<std::size_t>(first - seconds_.begin()),
            static_cast<std::size_t>(past - seconds_.begin())};
}

std::optional<std::size_t> HistoryMinutes::nearest(double seconds) const {
    if (seconds_.empty()) {
        return std::nullopt;
    }
    const auto after = std::lower_bound(seconds_.begin(), seconds_.end(), seconds);
    auto row = static_cast<std::size_t>(after - seconds_.begin());
    if (after == seconds_.end() || (row > 0 && seconds - seconds_[row - 1] < *after - seconds)) {
        --row;
    }
    return row;
}

std::optional<HistoryMinutes::Statistics> HistoryMinutes::statistics(HistoryCurve curve, double from,
                                                                     double to) const {
    const auto [first, past] = rows(from, to);
    Statistics result{std::numeric_limits<double>::max(), 0.0, std::numeric_limits<double>::lowest()};
    int count = 0;
    for (std::size_t row = first; row < past; ++row) {
        const double here = value(curve, row);
        if (std::isnan(here)) {
            continue;
        }
        result.least = std::min(result.least, here);
        result.most = std::max(result.most, here);
        result.mean += here;
        ++count;
    }
    if (count == 0) {
        return std::nullopt;
    }
    result.mean /= count;
    return result;
}

} // namespace zpsg::ui
