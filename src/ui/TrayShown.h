// What the tray tells of the supply: the face of its icon, and the readings in its tip.
#pragma once

#include "fan/FanMode.h"
#include "ui/TrayIcon.h"

#include <optional>
#include <vector>

namespace zpsg::psu {
enum class LinkState;
}

namespace zpsg::ui {

/// What stands in the icon; the values of the setting.
enum class TrayFigure { Load, Temperature, None };

/// What the program knows. A value that is not known, or not current, is missing.
struct TrayShown {
    TrayFigure figure = TrayFigure::Load;
    psu::LinkState state{}; ///< no device until told otherwise
    QString model;
    std::optional<double> watts;
    double ratedWatts = 0.0;          ///< 0 or less when not known: there is no load then
    std::optional<double> efficiency; ///< percent
    std::optional<double> celsius;
    std::optional<double> rpm;
    QString alarm;                       ///< the headline of the alarm that holds; empty for none
    std::vector<fan::FanMode> fanModes;  ///< those that the model can; empty while no supply is known
    std::optional<fan::FanMode> fanMode; ///< the chosen one
    bool hasLights = false;
    bool lightsOn = false;
};

/// The figure in whole numbers, the share in twentieths, so that it changes only when there is something to
/// see. The temperature is in the unit that the user reads.
[[nodiscard]] TrayFace trayFace(const TrayShown &shown);

/// The readings, one a line, in at most 127 characters, which is what Windows shows of a tip. Lines that have
/// no room are left out whole, the least important first; the alarm is the last to go.
[[nodiscard]] QString trayTip(const TrayShown &shown);

} // namespace zpsg::ui
