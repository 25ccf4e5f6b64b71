// Sums over days: of a whole range, and of each month of it.
#pragma once

#include "ui/HistoryData.h"

#include <optional>
#include <vector>

namespace zpsg::ui {

[[nodiscard]] double measured(const HistoryDay &day, HistoryMeasure measure);

struct HistorySum {
    double kwh = 0.0;
    double meanWatts = 0.0; ///< each recorded minute counts once
    int minutes = 0;
    std::optional<HistoryDay> highest;
    /// Not today, which is not over, while there is another.
    std::optional<HistoryDay> lowest;
};
[[nodiscard]] HistorySum sumOf(const std::vector<HistoryDay> &days, HistoryMeasure measure,
                               const QDate &today);

/// A place on the axis of days: a day or a month. `total` is of all its days, with the first of them that is
/// in the range as its date; a place where nothing was recorded has no minutes.
struct HistorySlot {
    int first = 0; ///< day of the range, from 0
    int past = 0;  ///< the first day after it
    HistoryDay total;
};

/// A slot for every day or month of the range, in order. The days may be in any order; those outside the
/// range are left out.
[[nodiscard]] std::vector<HistorySlot> slotsOf(const std::vector<HistoryDay> &days, const HistoryRange &range,
                                               bool byMonth);
/// The slot that a day of the range is in; -1 outside all.
[[nodiscard]] int slotAt(const std::vector<HistorySlot> &places, int day);

} // namespace zpsg::ui
