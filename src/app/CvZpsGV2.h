// The main window and controller. It owns the supply, the settings, the timers, the tray icon and the
// services, and has a slot for everything that can happen; what is to be done stands in the subsystems. A
// slot here checks, calls one of them, and returns.
#pragma once

#include "app/Paths.h"
#include "app/Settings.h"
#include "platform/Autostart.h"
#include "platform/DeviceWatch.h"
#include "platform/WindowRendezvous.h"
#include "psu/SupplyMonitor.h"

#include <QMainWindow>
#include <QSystemTrayIcon>
#include <QThread>
#include <QTimer>
#include <QTranslator>
#include <QVariantMap>

#include <memory>

class QMenu;
class QNetworkReply;

namespace zpsg::sensors {
class pcInfoReader;
}
namespace zpsg::ui {
class MainView;
}

namespace zpsg::app {

/// What the window is built from. Everything the system or a test can provide comes in here.
struct WindowParts {
    Paths paths;
    std::unique_ptr<psu::HidBackend> backend;
    bool demo = false; ///< simulated supply: leave the system (autostart, companion) alone
    psu::MonitorTiming timing{};
};

class CvZpsGV2 : public QMainWindow {
    Q_OBJECT

public:
    explicit CvZpsGV2(WindowParts parts, QWidget *parent = nullptr);
    ~CvZpsGV2() override;

    /// Acts on a numbered message, from wherever it came; false when it is none of this window's.
    bool windowMessage(const platform::WindowMessage &message);

    /// Identifies the supply; the first call also opens it. True when one is there.
    bool identifyModel();
    /// Reopens the supply; see psu::SupplyMonitor::connectPsu().
    bool connectPsu();

    [[nodiscard]] psu::SupplyMonitor &monitor() { return monitor_; }

signals:
    void mainToSocketHelpRGB_State(bool powerPresent, int lightingKind);
    void initClientToSocketHelp(const QByteArray &state);
    void sendToMessage(const QString &text);
    void popUpMessageD(const QString &text);
    void popUpMessageE(const QString &text);
    void closeThisMainApp(const QString &reason);

public slots:
    void controlableFanSpeed(int) {}
    void hwinfoOpenFail(const QString &) {}
    void mqttAnalysis(const QString &) {}
    void tabChange() {}
    void readInfo() { monitor_.readInfo(); }
    void demoInfo();
    void popUpTempUnit() {}
    void popUpEleCost() {}
    void changeEleRate(float) {}
    void settingPageSelect() {}
    void loginFrameEvent() {}
    void logoutFrameEvent() {}
    void saveData() {}
    void getNextDailySettlement() {}
    void checkUploadState() {}
    void changeLanguage();
    void resetLanguage();
    void ClockTick() {}
    void slotsTimePass() {}
    void messageBReceiveData(const QString &) {}
    void aboutSubmit() {}
    void msgFrommessageDE(const QString &) {}
    void msgLockThisEnterSN(const QString &) {}
    void saveLED() {}
    void connectOfficWeb() {}
    void clearStorageList() {}
    void ZpsCirqPlusCustomFansModeSelected(const QStringList &) {}
    void ZpsCirqCustomFansModeSelected(const QStringList &) {}
    void iconActivated(QSystemTrayIcon::ActivationReason reason);
    void ZpsCirqRGBChange(const QStringList &) {}
    void ZpsCirqBrightChange(int) {}
    void ZpsCirqTurnOff(bool) {}
    void zpsCirqSelfBlink() {}
    void zpsCirqAutoBlink() {}
    void zpsCirqLightModelChange(int) {}
    void messageFromSocketHelper(const QByteArray &) {}
    void messageFromSocketHelper_LightOnClick(const QByteArray &) {}
    void messageFromSocketHelper_LightModel(const QVariantMap &) {}
    void messageFromSocketHelper_RGBA(const QVariantMap &) {}
    void messageFromSocketHelper_Music(const QVariantMap &) {}
    void ZpsCirqLightModelSelected(const QStringList &) {}
    void HTMLColorSelect() {}
    void popLightModel() {}
    void popColorModel() {}
    void popSpeedModel() {}
    void getFunctionSelected_LightMode(const QStringList &) {}
    void getFunctionSelected_ColorMode(const QStringList &) {}
    void getFunctionSelected_SpeedMode(const QStringList &) {}
    void messageFromSocketHelper_setupLight(const QVariantMap &) {}
    void messageFromSocketHelper_setLightOn(const QVariantMap &) {}
    void messageFromSocketHelper_setDefault(const QVariantMap &) {}
    void messageFromSocketHelper_setBtnAndColor(const QVariantMap &) {}
    void messageFromSocketHelper_setBtnAndBright(const QVariantMap &) {}
    void messageFromSocketHelper_Music_12LED(const QVariantMap &) {}
    void messageFromSocketHelper_Fan_Sync(const QVariantMap &) {}
    void messageFromSocketHelper_startHelloCV() {}
    void messageFromSocketHelper_stopHelloCV() {}
    void thermalMode12LEDSlot() {}
    void popUpFanModel() {}
    void fansModeSelected(const QStringList &) {}
    void tempUnitSelected(const QStringList &) {}
    void shotDownCheck() {}
    void getMkeyFinishedSlot(QNetworkReply *) {}
    void loginFinishedSlot(QNetworkReply *) {}
    void registerFinishedSlot(QNetworkReply *) {}
    void uploadRecordFinishedSlot(QNetworkReply *) {}
    void voltErrorFinishedSlot(QNetworkReply *) {}
    void fanErrorFinishedSlot(QNetworkReply *) {}
    void tempErrorFinishedSlot(QNetworkReply *) {}
    void showOnMapFinishedSlot(QNetworkReply *) {}
    void powerStatusFinishedSlot(QNetworkReply *) {}
    void shutDownPollFinishedSlot(QNetworkReply *) {}
    void updateCheckFinishedSlot(QNetworkReply *) {}
    void getLocatFinishedSlot(QNetworkReply *) {}
    void getLocat_China_FinishedSlot(QNetworkReply *) {}
    void isShowOnMap(bool) {}
    void powerStatusConfirmSlot() {}

protected:
    bool nativeEvent(const QByteArray &eventType, void *message, long *result) override;
    void closeEvent(QCloseEvent *event) override;

private:
    static constexpr int kDuoRing = 2;
    struct LightingSync {
        bool on = false;
        QString modeText;
    };

    // The steps of construction, in order.
    void buildWindow();
    void readSettings();
    void loadLanguage();
    void connectTitleBar();
    void createTray();
    void createServices();
    void setUpPages();
    void startTimers();
    void startSensorTimer();
    void alignAutostart();

    QTimer *addTimer(int milliseconds, void (CvZpsGV2::*slot)());
    void deviceChanged();
    void showAgain();
    void leaveScreen();
    bool setLightingSync(bool on, const QString &modeText);
    void showMessage(const QString &text);
    void retranslate();

    Paths paths_;
    bool demo_;
    Settings settings_;
    psu::SupplyMonitor monitor_;
    QTranslator english_;
    QTranslator translator_;
    ui::MainView *view_ = nullptr; // owned by the window
    QSystemTrayIcon *tray_ = nullptr;
    QMenu *trayMenu_ = nullptr;
    QTimer *readTimer_ = nullptr;
    QThread sensorThread_;
    std::unique_ptr<sensors::pcInfoReader> sensors_;
    std::unique_ptr<QTimer> sensorTimer_; // without parent: it lives in the sensor thread
    std::unique_ptr<platform::DeviceWatch> deviceWatch_;
    int ringVariant_ = 0;
    LightingSync lightingSync_;
};

} // namespace zpsg::app
