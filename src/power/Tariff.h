// What a kilowatt-hour costs at a local moment: one rate, and others for hours of the week.
#pragma once

#include <QDateTime>
#include <QString>

#include <vector>

namespace zpsg::power {

inline constexpr int kMinutesOfDay = 1440;
/// Money for a kWh; a rate is 0 or more.
inline constexpr double kHighestRate = 1e6;

/// The bit of a day of the week, 1 (Monday) to 7 (Sunday), in TariffPeriod::days.
[[nodiscard]] constexpr unsigned dayBit(int dayOfWeek) { return 1U << static_cast<unsigned>(dayOfWeek - 1); }

/// Hours that return every week and have a rate of their own. They are hours of the local clock: where
/// clocks are changed for the summer, a period is an hour shorter or longer in those nights.
struct TariffPeriod {
    unsigned days = 0; ///< the days on which it begins, one dayBit() each
    int from = 0;      ///< minute of the day, 0 to 1439
    int to = 0;        ///< the first minute after it, 0 to 1440; less than `from`: of the following day. The
                       ///< same as `from`: the period is the whole day, 00:00 to 24:00.
    double rate = 0.0; ///< 0 to kHighestRate

    /// Everything is in its range, and there is a day.
    [[nodiscard]] bool isValid() const;
    [[nodiscard]] bool contains(const QDateTime &local) const;
    bool operator==(const TariffPeriod &) const = default;
};

class Tariff {
public:
    static constexpr std::size_t kMostPeriods = 12;

    /// A base rate out of its range becomes the nearer bound, and what is no number 0. Periods that are not
    /// valid, and those beyond kMostPeriods, are left out.
    explicit Tariff(double baseRate = 0.0, const std::vector<TariffPeriod> &periods = {});

    [[nodiscard]] double baseRate() const { return baseRate_; }
    /// In the order in which they count: where two meet, the first has it.
    [[nodiscard]] const std::vector<TariffPeriod> &periods() const { return periods_; }

    /// Money for a kWh. The date and time are taken as they stand, whatever zone they say they are in.
    [[nodiscard]] double rateAt(const QDateTime &local) const;

    /// The periods as a text without commas that parseTariff() reads, digits of all rates kept:
    /// "12345 22:00-06:00 0.21; 67 00:00-24:00 0.19".
    [[nodiscard]] QString periodsText() const;

private:
    double baseRate_;
    std::vector<TariffPeriod> periods_;
};

/// A part of a text that is no period, or one too many.
struct TariffError {
    int position = 0; ///< of its first character
    QString entry;
};

struct ParsedTariff {
    Tariff tariff; ///< with what is good
    std::vector<TariffError> errors;
};

/// Periods separated by ";", each of days (digits, 1 Monday to 7 Sunday), "hh:mm-hh:mm" and a rate with a
/// decimal point, in any language. Blanks count for nothing but to separate, and so do empty entries.
[[nodiscard]] ParsedTariff parseTariff(double baseRate, const QString &periods);

} // namespace zpsg::power
