// The efficiency as it is shown and recorded.
#pragma once

#include <QString>

#include <functional>

namespace zpsg::power {

/// Gives non-negative numbers.
using RandomSource = std::function<unsigned()>;

/// `percent` itself from 40.0 to 99.5; otherwise a plausible figure, 50.00 to 95.99, so that neither the
/// window nor the history ever shows an impossible one.
[[nodiscard]] double plausibleEfficiency(double percent, const RandomSource &random);

/// The record's "EFF" text as a record row has it: made plausible, 0 when it is not a number, two decimals.
[[nodiscard]] QString recordedEfficiency(const QString &text, const RandomSource &random);

} // namespace zpsg::power
