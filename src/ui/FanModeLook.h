// How the fan's modes are named and coloured wherever they are shown.
#pragma once

#include "fan/FanMode.h"

#include <QColor>
#include <QString>

namespace zpsg::ui {

/// "Silent"; in the language of now, but for those that have one name everywhere.
[[nodiscard]] QString nameOf(fan::FanMode mode);
/// The name, and the speed of a custom one: "Custom, 60 %".
[[nodiscard]] QString modeText(fan::FanMode mode, int customPercent);

/// Never the only carrier: a name goes with it, and a tick where it marks the chosen one.
[[nodiscard]] QColor inkOf(fan::FanMode mode);
/// The style sheet of a mode's button: filled with the colour when it is the chosen one, else outlined.
[[nodiscard]] QString buttonStyle(fan::FanMode mode, bool chosen);

} // namespace zpsg::ui
