// The main window and controller. It owns the supply, the settings, the timers, the tray icon and the
// services, and has a slot for everything that can happen; what is to be done stands in the subsystems. A
// slot here checks, calls one of them, and returns.
#pragma once

#include "app/Alarms.h"
#include "app/Appearance.h"
#include "app/FanControl.h"
#include "app/Lighting.h"
#include "app/Paths.h"
#include "app/Recorder.h"
#include "app/RemotePower.h"
#include "app/RemoteServices.h"
#include "app/SensorThread.h"
#include "app/Settings.h"
#include "app/Supply.h"
#include "app/Tray.h"
#include "app/Uploader.h"
#include "platform/DeviceWatch.h"
#include "platform/SessionWatch.h"
#include "platform/WindowRendezvous.h"
#include "power/DayProfile.h"
#include "power/Efficiency.h"
#include "simulator/FastClock.h"

#include <QMainWindow>
#include <QRandomGenerator>
#include <QTimer>
#include <QVariantMap>

#include <memory>

class QNetworkReply;

namespace zpsg::remote {
class SocketHelper;
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
    quint16 socketPort = 5488;                         ///< of the control socket; 0: any that is free
    std::shared_ptr<simulator::FastClock> fastClock{}; ///< null: time as it passes
    int fastClockFactor = 1;
    power::RandomSource random = [] { return QRandomGenerator::global()->generate(); };
};

class EnergyFeed;
class FanFeed;
class HistoryFeed;
class PcFeed;
class SettingsFeed;
class TrayFeed;
class ViewFeed;
class WindowMemory;

class CvZpsGV2 : public QMainWindow {
    Q_OBJECT

public:
    /// The codes of power::kCurveModels by their positions, registered so that other programs find a position
    /// by name.
    // clang-format off
    enum CWTPowerList {
        CVA1250P, CVA0750P, CVA0650P, CVA0700B, CVA0600B,
        CVB0450S, CVB0550S, CVB0650S, CVB0750S, CVB0850R,
        CVC1050R, CVC0700R, CVC0600R, CVC0500R, CVC0450R,
        CVD0350R, CVD0650F, CVD0750F, CVD0850F, CVD1250L,
        CVG0850Z, CVG1050Z, CVG1200Z, CVG1250Z,
        CVX1000D, CVX0750D, CVX0850D, CVX1000E,
    };
    Q_ENUM(CWTPowerList)
    /// The same for power::kEnhancedModels.
    enum EnhancePowerList { CVE0850A, CVE1050A, CVE1200A, CVE0850F, CVE1000F, CVE1500F };
    Q_ENUM(EnhancePowerList)
    // clang-format on

    explicit CvZpsGV2(WindowParts parts, QWidget *parent = nullptr);
    ~CvZpsGV2() override;

    /// Acts on a numbered message, from wherever it came; false when it is none of this window's.
    bool windowMessage(const platform::WindowMessage &message);

    /// Opens and identifies the supply; see Supply::identifyModel().
    bool identifyModel() { return supply_.identifyModel(); }
    /// Reopens the supply; see Supply::connectPsu().
    bool connectPsu() { return supply_.connectPsu(); }

    [[nodiscard]] psu::SupplyMonitor &monitor() { return supply_.monitor(); }
    [[nodiscard]] const Supply &supply() const { return supply_; }
    [[nodiscard]] ui::MainView &view() { return *view_; }

signals:
    void mainToSocketHelpRGB_State(bool powerPresent, int lightingKind);
    void initClientToSocketHelp(const QByteArray &state);
    void sendToMessage(const QString &text);
    void popUpMessageD(const QString &text);
    void popUpMessageE(const QString &text);
    void closeThisMainApp(const QString &reason);

public slots:
    void controlableFanSpeed(int percent) { fan_.controlableFanSpeed(percent); }
    void hwinfoOpenFail(const QString &reason);
    void mqttAnalysis(const QString &text) { remote_->analyse(text); }
    void tabChange() { showUsage(); }
    void readInfo() { supply_.monitor().readInfo(); }
    void demoInfo();
    void popUpTempUnit() { settingPageSelect(); }
    void popUpEleCost();
    void changeEleRate(float rate);
    void settingPageSelect();
    void loginFrameEvent() {}
    void logoutFrameEvent() {}
    void saveData();
    void getNextDailySettlement() { recorder_.getNextDailySettlement(now()); }
    void checkUploadState() { uploader_.checkUploadState(serialNumber(supply_, settings_)); }
    void changeLanguage() { appearance_.changeLanguage(); }
    void resetLanguage();
    void ClockTick();
    void slotsTimePass() { usage_.save(); }
    void messageBReceiveData(const QString &) {}
    void aboutSubmit() {}
    void msgFrommessageDE(const QString &) {}
    void msgLockThisEnterSN(const QString &) {}
    void saveLED() { lighting_.saveLED(); }
    void connectOfficWeb() {}
    void clearStorageList() {}
    void ZpsCirqPlusCustomFansModeSelected(const QStringList &mode) { fan_.selectLightingFanMode(mode); }
    void ZpsCirqCustomFansModeSelected(const QStringList &mode) { fan_.selectLightingFanMode(mode); }
    void iconActivated(QSystemTrayIcon::ActivationReason reason);
    void ZpsCirqRGBChange(const QStringList &rgb) { lighting_.changeColour(rgb); }
    void ZpsCirqBrightChange(int percent) { lighting_.changeBrightness(percent); }
    void ZpsCirqTurnOff(bool off) { lighting_.turnOff(off); }
    void zpsCirqSelfBlink() { lighting_.selfBlink(); }
    void zpsCirqAutoBlink() { lighting_.autoBlink(); }
    void zpsCirqLightModelChange(int mode) { lighting_.changeLightMode(mode); }
    void messageFromSocketHelper(const QByteArray &);
    void messageFromSocketHelper_LightOnClick(const QByteArray &request);
    void messageFromSocketHelper_LightModel(const QVariantMap &message);
    void messageFromSocketHelper_RGBA(const QVariantMap &message);
    void messageFromSocketHelper_Music(const QVariantMap &message);
    void ZpsCirqLightModelSelected(const QStringList &chosen);
    void HTMLColorSelect() { showLightingPage(); }
    void popLightModel() { showLightingPage(); }
    void popColorModel() { showLightingPage(); }
    void popSpeedModel() { showLightingPage(); }
    void getFunctionSelected_LightMode(const QStringList &chosen);
    void getFunctionSelected_ColorMode(const QStringList &chosen);
    void getFunctionSelected_SpeedMode(const QStringList &chosen);
    void messageFromSocketHelper_setupLight(const QVariantMap &message);
    void messageFromSocketHelper_setLightOn(const QVariantMap &message);
    void messageFromSocketHelper_setDefault(const QVariantMap &) { lighting_.setDefaults(); }
    void messageFromSocketHelper_setBtnAndColor(const QVariantMap &message);
    void messageFromSocketHelper_setBtnAndBright(const QVariantMap &message);
    void messageFromSocketHelper_Music_12LED(const QVariantMap &message);
    void messageFromSocketHelper_Fan_Sync(const QVariantMap &message);
    void messageFromSocketHelper_startHelloCV() { lighting_.showOwnLight(); }
    void messageFromSocketHelper_stopHelloCV() {}
    void thermalMode12LEDSlot() { lighting_.thermalUpdate(); }
    void popUpFanModel() { showFanPage(); }
    void fansModeSelected(const QStringList &mode) { fan_.selectMode(mode); }
    void tempUnitSelected(const QStringList &unit);
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

    // The steps of construction, in order.
    void buildWindow();
    void readSettings();
    void connectTitleBar();
    void createTray();
    void createServices();
    void createRemote();
    void setUpPages();
    void startTimers();
    void createFeeds();

    QTimer *addTimer(int milliseconds, void (CvZpsGV2::*slot)());
    void deviceChanged();
    void showAgain();
    void leaveScreen();
    bool setLightingSync(bool on, const QString &modeText);
    void showMessage(const QString &text, const QString &title);
    void showLightingPage();
    void showFanPage();
    void sessionEvent(platform::SessionEvent event);
    void tellMissingLightingFile();
    void takeAlarms();
    void takeSecond();
    void showUsage();
    void takeSettings();
    void takeSample();
    void startFastClock(int factor);
    void passFastMinute();
    [[nodiscard]] QDateTime now() const {
        return fastClock_ ? fastClock_->now() : QDateTime::currentDateTime();
    }

    Paths paths_;
    bool demo_;
    Settings settings_;
    Appearance appearance_;
    Supply supply_;
    Lighting lighting_;
    FanControl fan_;
    Usage usage_;
    RemotePower power_;
    Alarms alarms_;
    power::DayProfile day_;
    Recorder recorder_;
    Uploader uploader_;
    std::shared_ptr<simulator::FastClock> fastClock_;
    power::RandomSource random_;
    ui::MainView *view_ = nullptr; // owned by the window
    ViewFeed *feed_ = nullptr;     // owned by the window
    FanFeed *fanFeed_ = nullptr;   // as are these
    EnergyFeed *energyFeed_ = nullptr;
    PcFeed *pcFeed_ = nullptr;
    SettingsFeed *settingsFeed_ = nullptr;
    TrayFeed *trayFeed_ = nullptr;
    std::unique_ptr<WindowMemory> memory_;
    std::unique_ptr<Tray> tray_;
    quint16 socketPort_;
    std::unique_ptr<remote::SocketHelper> socket_;
    std::unique_ptr<RemoteServices> remote_;
    QTimer *readTimer_ = nullptr;
    SensorThread sensors_;
    std::unique_ptr<platform::DeviceWatch> deviceWatch_;
    std::unique_ptr<platform::SessionWatch> sessionWatch_;
};

} // namespace zpsg::app
