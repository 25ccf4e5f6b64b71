// The minutes of a day, brought into the order of time and into columns that can be drawn.
#pragma once

#include "ui/HistoryQuantity.h"

#include <optional>
#include <utility>

namespace zpsg::ui {

/// The time axis counts the seconds that have really passed since the day began, so that a day on which the
/// clocks change is 23 or 25 hours long.
class HistoryMinutes {
public:
    /// Rows further apart than this have a gap between them: one comes every minute, and one may be missed.
    static constexpr double kGap = 150.0;

    HistoryMinutes() = default;
    /// Rows in any order; those whose time is not of this day are left out. The hour that there is twice when
    /// the clocks are set back is told apart by the order in which its rows come.
    HistoryMinutes(const QDate &day, const std::vector<HistoryMinute> &minutes);

    [[nodiscard]] QDate day() const { return day_; }
    /// Of the whole day, seconds.
    [[nodiscard]] double length() const { return length_; }
    [[nodiscard]] std::size_t size() const { return seconds_.size(); }
    [[nodiscard]] bool empty() const { return seconds_.empty(); }
    /// Not decreasing.
    [[nodiscard]] double seconds(std::size_t row) const { return seconds_[row]; }
    /// NaN where it was not read.
    [[nodiscard]] double value(HistoryCurve curve, std::size_t row) const {
        return columns_[static_cast<std::size_t>(curve)][row];
    }
    /// A curve does not go on from the row before to this one.
    [[nodiscard]] bool gapBefore(std::size_t row) const {
        return row == 0 || seconds_[row] - seconds_[row - 1] > kGap;
    }

    /// The rows at these times, ends included: the first, and the one past the last.
    [[nodiscard]] std::pair<std::size_t, std::size_t> rows(double from, double to) const;
    /// The row whose time is nearest; nothing when there is none.
    [[nodiscard]] std::optional<std::size_t> nearest(double seconds) const;

    struct Statistics {
        double least;
        double mean; ///< each row counts once
        double most;
    };
    /// Nothing when no row at these times has a value.
    [[nodiscard]] std::optional<Statistics> statistics(HistoryCurve curve, double from, double to) const;

private:
    QDate day_;
    double length_ = 86400.0;
    std::vector<double> seconds_;
    std::array<std::vector<double>, kHistoryCurves> columns_;
};

} // namespace zpsg::ui
