// Money in words: amounts in the user's number format, and prices as they are typed.
#pragma once

#include <QStringList>

#include <optional>

namespace zpsg::ui {

/// The country's own ISO 4217 code first, then the common ones.
[[nodiscard]] QStringList commonCurrencies();

/// The amount in the user's format. `currency`: an ISO 4217 code, empty for the country's.
[[nodiscard]] QString costText(double amount, const QString &currency);

/// What a kWh costs, with as many decimals as it takes.
[[nodiscard]] QString priceText(double rate, const QString &currency);

/// A price of a kWh lies within 0 and this.
inline constexpr double kMostRate = 1'000'000.0;
inline constexpr int kRateDecimals = 5;

/// With as many decimals as it takes, two at least and kRateDecimals at most, and no group separators.
[[nodiscard]] QString rateText(double rate);

enum class RateFault { None, NoNumber, OutOfRange, TooManyDecimals };

struct TypedRate {
    double rate = 0.0;
    RateFault fault = RateFault::None;
};

/// Takes the locale's decimal sign and the point. A group separator is a fault: a point or comma in a price
/// must not be taken for one, which would make it a thousand times higher.
[[nodiscard]] TypedRate readRate(const QString &text);

/// What is wrong, in words; empty for RateFault::None.
[[nodiscard]] QString faultText(RateFault fault);

} // namespace zpsg::ui
