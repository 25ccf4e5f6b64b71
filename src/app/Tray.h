// The icon in the tray: how the supply is doing at a glance, the way back to the hidden window, the switches
// that are wanted without opening it, and where the user is told of something.
#pragma once

#include "psu/AlarmEntry.h"
#include "ui/TrayShown.h"

#include <QAction>
#include <QActionGroup>
#include <QElapsedTimer>
#include <QMenu>
#include <QSystemTrayIcon>
#include <QTimer>

#include <array>

namespace zpsg::app {

class Tray : public QObject {
    Q_OBJECT

public:
    /// `icon` stands there until the first showState().
    explicit Tray(const QIcon &icon, QObject *parent = nullptr);

    /// Whether there is a tray that the icon can stand in. It may come later: a desktop starts in parts.
    [[nodiscard]] static bool available() { return QSystemTrayIcon::isSystemTrayAvailable(); }

    /// May be called as often as something changes: the icon is painted only when it would look different,
    /// and the tip follows at most once a second.
    void showState(const ui::TrayShown &shown);
    void retranslate();

    void tellAlarm(const psu::AlarmEntry &entry);
    void tellRecordingFailed();
    /// For the first time that closing the window leaves the program in the tray.
    void tellWhereItWent();
    /// There is this version of the program.
    void tellUpdate(const QString &version);

signals:
    void launchRequested();
    void exitRequested();
    /// The user has chosen a fan mode, the index of a fan::FanMode. The menu shows it as chosen until the
    /// next showState() says what has become of it.
    void fanModeChosen(int mode);
    /// The user has switched the lights.
    void lightsToggled(bool on);
    /// The user went for a message.
    void messageClicked();
    /// With the above, when the last message was about an update.
    void updateClicked();
    void activated(QSystemTrayIcon::ActivationReason reason);

private:
    void fillMenu();
    void showFanModes();
    void showLights();
    void showTip();
    void tell(const QString &title, const QString &text, QSystemTrayIcon::MessageIcon sign);

    ui::TrayShown shown_;
    QMenu menu_;
    QAction launch_;
    QAction *fanLine_ = nullptr; ///< above the fan's part, the menu's own
    QAction fanCaption_;         ///< says what the modes below it are of
    QActionGroup modeGroup_;
    std::array<QAction, fan::kFanModes.size()> modes_;
    QAction *lightsLine_ = nullptr; ///< above the lights, the menu's own
    QAction lights_;
    QAction exit_;
    QSystemTrayIcon icon_;
    bool toldUpdate_ = false;          ///< by the last message
    std::optional<ui::TrayFace> face_; ///< as painted; nothing before the first
    QElapsedTimer sinceTip_;           ///< not started while no tip was set
    QTimer tipDue_;                    ///< runs while a tip waits for its second
};

} // namespace zpsg::app
