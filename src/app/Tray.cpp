#include "app/Tray.h"

#include "ui/AlarmText.h"

namespace zpsg::app {

Tray::Tray(const QIcon &icon, QObject *parent) : QObject(parent), icon_(icon) {
    connect(menu_.addAction(QString()), &QAction::triggered, this, &Tray::launchRequested);
    connect(menu_.addAction(QString()), &QAction::triggered, this, &Tray::exitRequested);
    connect(&icon_, &QSystemTrayIcon::activated, this, &Tray::activated);
    connect(&icon_, &QSystemTrayIcon::messageClicked, this, &Tray::messageClicked);
    icon_.setContextMenu(&menu_);
    retranslate();
    icon_.show();
}

void Tray::retranslate() {
    icon_.setToolTip(qtTrId("TRAYICON_NAME"));
    menu_.actions().at(0)->setText(qtTrId("TRAYICON_LAUNCH"));
    menu_.actions().at(1)->setText(qtTrId("TRAYICON_EXIT"));
}

void Tray::tellAlarm(const psu::AlarmEntry &entry) {
    icon_.showMessage(ui::alarmTitle(entry.kind),
                      ui::alarmValue(entry.kind, entry.value) + QLatin1Char('\n') +
                          ui::alarmAdvice(entry.kind),
                      QSystemTrayIcon::Warning);
}

void Tray::tellRecordingFailed() {
    icon_.showMessage(qtTrId("TRAYICON_NOT_RECORDED"), qtTrId("TRAYICON_NOT_RECORDED_HINT"),
                      QSystemTrayIcon::Warning);
}

} // namespace zpsg::app
