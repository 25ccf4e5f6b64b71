// The icon in the tray: the way back to the hidden window, and where the user is told of something.
#pragma once

#include "psu/AlarmEntry.h"

#include <QMenu>
#include <QSystemTrayIcon>

namespace zpsg::app {

class Tray : public QObject {
    Q_OBJECT

public:
    explicit Tray(const QIcon &icon, QObject *parent = nullptr);

    void retranslate();
    void tellAlarm(const psu::AlarmEntry &entry);
    void tellRecordingFailed();

signals:
    void launchRequested();
    void exitRequested();
    /// The user went for a message.
    void messageClicked();
    void activated(QSystemTrayIcon::ActivationReason reason);

private:
    QMenu menu_;
    QSystemTrayIcon icon_;
};

} // namespace zpsg::app
