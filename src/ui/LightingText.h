// Words and colours that the lighting panels share.
#pragma once

#include "lighting/LightingState.h"

#include <QColor>
#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <span>

namespace zpsg::ui {

/// A name in the user's language; the one without a key as it stands.
[[nodiscard]] inline QString modeText(const lighting::ModeName &mode) {
    return mode.textKey == nullptr ? QString::fromLatin1(mode.name) : qtTrId(mode.textKey);
}

[[nodiscard]] inline QStringList modeTexts(std::span<const lighting::ModeName> modes) {
    QStringList texts;
    for (const lighting::ModeName &mode : modes) {
        texts << modeText(mode);
    }
    return texts;
}

/// In the order of the colour-mode numbers.
[[nodiscard]] inline QStringList colourModeTexts() {
    static_assert(lighting::kColourModeEach == 0 && lighting::kColourModeSingle == 1);
    return {qtTrId("LIGHTING_COLOUR_EACH"), qtTrId("LIGHTING_COLOUR_SINGLE")};
}

[[nodiscard]] inline QColor toQColor(const lighting::Colour &colour) {
    return {colour.red, colour.green, colour.blue};
}

[[nodiscard]] inline lighting::Colour toColour(const QColor &colour) {
    return {static_cast<std::uint8_t>(colour.red()), static_cast<std::uint8_t>(colour.green()),
            static_cast<std::uint8_t>(colour.blue())};
}

/// From values that a file may have held; out of range they count as the nearest that is in it.
[[nodiscard]] inline QColor toQColor(int red, int green, int blue) {
    return {std::clamp(red, 0, 255), std::clamp(green, 0, 255), std::clamp(blue, 0, 255)};
}

/// As an LED shows it at this factor.
[[nodiscard]] inline lighting::Colour dimmed(const QColor &colour, double factor) {
    const double part = std::clamp(factor, 0.0, 1.0);
    return toColour(
        QColor(qRound(colour.red() * part), qRound(colour.green() * part), qRound(colour.blue() * part)));
}

/// A factor of brightness in percent.
[[nodiscard]] inline int percent(double factor) { return qRound(std::clamp(factor, 0.0, 1.0) * 100.0); }

} // namespace zpsg::ui
