#include "app/Tray.h"

#include "psu/SupplyMonitor.h"
#include "ui/AlarmText.h"
#include "ui/FanModeLook.h"

#include <algorithm>

namespace zpsg::app {
namespace {

/// Between two tips: some desktops let an open tip blink when its text changes.
constexpr int kTipMs = 1000;

} // namespace

Tray::Tray(const QIcon &icon, QObject *parent) : QObject(parent), modeGroup_(this), icon_(icon) {
    fillMenu();
    connect(&launch_, &QAction::triggered, this, &Tray::launchRequested);
    connect(&exit_, &QAction::triggered, this, &Tray::exitRequested);
    connect(&lights_, &QAction::triggered, this, &Tray::lightsToggled);
    connect(&icon_, &QSystemTrayIcon::activated, this, &Tray::activated);
    connect(&icon_, &QSystemTrayIcon::messageClicked, this, [this] {
        emit messageClicked();
        if (toldUpdate_) {
            emit updateClicked();
        }
    });
    tipDue_.setSingleShot(true);
    connect(&tipDue_, &QTimer::timeout, this, &Tray::showTip);
    icon_.setContextMenu(&menu_);
    retranslate();
    icon_.show();
}

void Tray::fillMenu() {
    menu_.addAction(&launch_);
    fanLine_ = menu_.addSeparator();
    fanCaption_.setEnabled(false);
    menu_.addAction(&fanCaption_);
    for (std::size_t i = 0; i < modes_.size(); ++i) {
        QAction &action = modes_.at(i);
        action.setCheckable(true);
        modeGroup_.addAction(&action);
        menu_.addAction(&action);
        connect(&action, &QAction::triggered, this, [this, i] { emit fanModeChosen(static_cast<int>(i)); });
    }
    lightsLine_ = menu_.addSeparator();
    lights_.setCheckable(true);
    menu_.addAction(&lights_);
    menu_.addSeparator();
    menu_.addAction(&exit_);
    menu_.setDefaultAction(&launch_);
    showFanModes();
    showLights();
}

void Tray::retranslate() {
    launch_.setText(qtTrId("TRAYICON_LAUNCH"));
    fanCaption_.setText(qtTrId("MAIN_STR_FAN"));
    for (const auto &row : fan::kFanModes) {
        modes_.at(static_cast<std::size_t>(row.mode)).setText(ui::nameOf(row.mode));
    }
    lights_.setText(qtTrId("LIGHTING_LIGHTS"));
    exit_.setText(qtTrId("TRAYICON_EXIT"));
    showTip();
}

void Tray::showState(const ui::TrayShown &shown) {
    shown_ = shown;
    const ui::TrayFace face = ui::trayFace(shown_);
    if (face_ != face) {
        face_ = face;
        icon_.setIcon(ui::trayIcon(face));
    }
    showFanModes();
    showLights();
    showTip();
}

void Tray::showFanModes() {
    const auto &can = shown_.fanModes;
    fanLine_->setVisible(!can.empty());
    fanCaption_.setVisible(!can.empty());
    for (const auto &row : fan::kFanModes) {
        QAction &action = modes_.at(static_cast<std::size_t>(row.mode));
        action.setVisible(std::find(can.begin(), can.end(), row.mode) != can.end());
        action.setEnabled(shown_.state == psu::LinkState::Live);
        action.setChecked(shown_.fanMode == row.mode);
    }
}

void Tray::showLights() {
    lightsLine_->setVisible(shown_.hasLights);
    lights_.setVisible(shown_.hasLights);
    lights_.setChecked(shown_.lightsOn);
}

void Tray::showTip() {
    const QString tip = ui::trayTip(shown_);
    if (tip == icon_.toolTip()) {
        tipDue_.stop();
    } else if (sinceTip_.isValid() && sinceTip_.elapsed() < kTipMs) {
        if (!tipDue_.isActive()) {
            tipDue_.start(kTipMs - static_cast<int>(sinceTip_.elapsed()));
        }
    } else {
        sinceTip_.start();
        icon_.setToolTip(tip);
    }
}

void Tray::tell(const QString &title, const QString &text, QSystemTrayIcon::MessageIcon sign) {
    toldUpdate_ = false;
    icon_.showMessage(title, text, sign);
}

void Tray::tellAlarm(const psu::AlarmEntry &entry) {
    tell(ui::alarmTitle(entry.kind),
         ui::alarmValue(entry.kind, entry.value) + QLatin1Char('\n') + ui::alarmAdvice(entry.kind),
         QSystemTrayIcon::Warning);
}

void Tray::tellRecordingFailed() {
    tell(qtTrId("TRAYICON_NOT_RECORDED"), qtTrId("TRAYICON_NOT_RECORDED_HINT"), QSystemTrayIcon::Warning);
}

void Tray::tellWhereItWent() {
    tell(qtTrId("TRAYICON_GOES_ON"), qtTrId("TRAYICON_GOES_ON_HINT"), QSystemTrayIcon::Information);
}

void Tray::tellUpdate(const QString &version) {
    tell(qtTrId("TRAYICON_UPDATE").arg(version), qtTrId("TRAYICON_UPDATE_HINT"),
         QSystemTrayIcon::Information);
    toldUpdate_ = true;
}

} // namespace zpsg::app
