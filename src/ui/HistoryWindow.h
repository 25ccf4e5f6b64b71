// The part of a day that is in view.
#pragma once

#include <algorithm>

namespace zpsg::ui {

/// Seconds since the beginning of the day.
struct HistoryWindow {
    /// The shortest: ten minutes.
    static constexpr double kLeast = 600.0;

    double from = 0.0;
    double to = 86400.0;

    [[nodiscard]] double length() const { return to - from; }

    /// `factor` times as long, with `at` where it was as far as the day has room.
    [[nodiscard]] HistoryWindow zoomed(double at, double factor, double day) const {
        const double wanted = std::clamp(length() * factor, std::min(kLeast, day), day);
        const double share = (std::clamp(at, from, to) - from) / length();
        return HistoryWindow{at - share * wanted, at + (1.0 - share) * wanted}.within(day);
    }
    [[nodiscard]] HistoryWindow moved(double by, double day) const {
        return HistoryWindow{from + by, to + by}.within(day);
    }
    [[nodiscard]] bool shows(double at) const { return from <= at && at <= to; }

private:
    [[nodiscard]] HistoryWindow within(double day) const {
        const double begin = std::clamp(from, 0.0, std::max(day - length(), 0.0));
        return {begin, std::min(begin + length(), day)};
    }
};

} // namespace zpsg::ui
