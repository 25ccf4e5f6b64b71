// Readings as lines, so that a table can say what is expected.
#pragma once

#include "sensors/PcValues.h"

#include <QStringList>
#include <string>

namespace zpsg::sensors {

/// Volts, amps, watts and °C of processor and card, "-" for what is absent: "1.25 - 65 48 | - - - -".
inline std::string text(const PcReading &reading) {
    QStringList parts;
    for (const PcValue &value : kPcValues) {
        const auto number = reading.*value.member;
        parts.append(number ? QString::number(*number, 'g', 6) : QStringLiteral("-"));
    }
    parts.insert(4, QStringLiteral("|"));
    return parts.join(QLatin1Char(' ')).toStdString();
}

inline constexpr const char *kNothing = "- - - - | - - - -";

} // namespace zpsg::sensors
