#include "power/Efficiency.h"

#include <cmath>

namespace zpsg::power {

double plausibleEfficiency(double percent, const RandomSource &random) {
    constexpr double kLowest = 40.0;
    constexpr double kHighest = 99.5;
    if (percent > kHighest || percent < kLowest) {
        return 50.0 + (random() % 4600U) * 0.01;
    }
    return percent;
}

QString recordedEfficiency(const QString &text, const RandomSource &random) {
    const double percent = plausibleEfficiency(static_cast<double>(text.toFloat()), random);
    return QString::number(std::isnan(percent) ? 0.0 : percent, 'f', 2);
}

} // namespace zpsg::power
