// What the icon in the tray looks like.
#pragma once

#include <QIcon>
#include <QString>

namespace zpsg::ui {

/// Told by colour and without it. Normal: light on dark. Near the limit: dark on light. In alarm: an
/// exclamation mark beside the figure. Not connected: hollow and struck through.
enum class TrayLevel { Normal, NearLimit, Alarm, NotConnected };

/// All that can be seen in the icon: two equal faces are painted alike.
struct TrayFace {
    QString figure;     ///< up to three digits; empty: the program's sign
    double share = 0.0; ///< 0 to 1: the length of the bar, or of the sign's arc
    TrayLevel level = TrayLevel::NotConnected;

    bool operator==(const TrayFace &other) const = default;
};

/// The icon in the sizes that trays ask for: 16, 22, 24, 32, 48 and 64 pixels.
[[nodiscard]] QIcon trayIcon(const TrayFace &face);
/// One of them.
[[nodiscard]] QPixmap trayPixmap(const TrayFace &face, int pixels);

} // namespace zpsg::ui
