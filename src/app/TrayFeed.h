// Carries the readings to the tray's icon, and what is chosen in its menu to fan and lights.
#pragma once

#include "app/Alarms.h"
#include "app/FanControl.h"
#include "app/Lighting.h"
#include "app/Tray.h"

#include <QObject>

namespace zpsg::app {

/// GUI thread only. What it is given outlives it.
class TrayFeed : public QObject {
    Q_OBJECT

public:
    struct Parts {
        Supply &supply;
        const Alarms &alarms;
        FanControl &fan;
        Lighting &lighting;
        Settings &settings;
    };

    TrayFeed(const Parts &parts, Tray &tray, QObject *parent = nullptr);

    /// Once a second, and when something was chosen.
    void tick();
    /// What stands in the icon may be another figure now.
    void takeSettings();
    /// The window has been closed into the tray: says so, the first time.
    void tellOnce();

signals:
    /// A custom speed was chosen: it has to be asked for, in the window.
    void speedWanted();

private:
    void chooseMode(int mode);
    void switchLights(bool on);

    Parts parts_;
    Tray &tray_;
    ui::TrayFigure figure_ = ui::TrayFigure::Load;
};

} // namespace zpsg::app
