// Carries the fan to its page, and what a user sets there to the fan.
#pragma once

#include "app/FanControl.h"

#include <QDateTime>

namespace zpsg::ui {
class FanPage;
}

namespace zpsg::app {

/// Everything it is given outlives it.
class FanFeed : public QObject {
    Q_OBJECT

public:
    FanFeed(FanControl &control, Supply &supply, ui::FanPage &page, QObject *parent = nullptr);

    /// Once a second: drives the curve by the latest reading, and shows it.
    void tick(const QDateTime &now);

private:
    void connectPage();
    void chooseMode(const QStringList &chosen);
    void askSpeed();
    void showControl();
    void showReachable();
    void showCurveState();
    [[nodiscard]] fan::FanMode shownMode() const;

    FanControl &control_;
    Supply &supply_;
    ui::FanPage &page_;
    bool choosing_ = false; ///< the page opens its pop-up itself
};

} // namespace zpsg::app
