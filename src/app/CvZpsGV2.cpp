#include "app/CvZpsGV2.h"

#include "app/DaySettings.h"
#include "app/EnergyFeed.h"
#include "app/FanFeed.h"
#include "app/HistoryFeed.h"
#include "app/LightingFeed.h"
#include "app/Logging.h"
#include "app/PcFeed.h"
#include "app/SettingsFeed.h"
#include "app/SocketWiring.h"
#include "app/TrayFeed.h"
#include "app/UpdateFeed.h"
#include "app/ViewFeed.h"
#include "app/WindowMemory.h"
#include "platform/DeviceAccess.h"
#include "platform/NativeEvent.h"
#include "remote/SocketHelper.h"
#include "ui/AboutPage.h"
#include "ui/AlarmsPage.h"
#include "ui/DashboardPage.h"
#include "ui/EnergyView.h"
#include "ui/MainView.h"
#include "ui/TitleBar.h"
#include "ui/TrendPanel.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDateTime>
#include <QMessageBox>

namespace zpsg::app {

using platform::WindowMessage;

namespace {

constexpr std::chrono::milliseconds kCompanionPatience(1000);

} // namespace

CvZpsGV2::CvZpsGV2(WindowParts parts, QWidget *parent)
    : QMainWindow(parent)
    , paths_(std::move(parts.paths))
    , demo_(parts.demo)
    , settings_(paths_.data)
    , appearance_(settings_, paths_.resources + QStringLiteral("/Language"))
    , supply_(std::move(parts.backend), parts.timing, paths_.curveFolders())
    , lighting_(supply_, settings_)
    , fan_(supply_, settings_)
    , usage_(supply_, settings_, paths_.data)
    , power_(settings_)
    , alarms_(settings_, paths_.data + QStringLiteral("/alarms.jsonl"), parts.random)
    , day_(dayStorage(settings_))
    , recorder_(settings_, paths_.data, paths_.resources, parts.random)
    , uploader_(settings_, paths_.data)
    , fastClock_(std::move(parts.fastClock))
    , random_(std::move(parts.random))
    , socketPort_(parts.socketPort) {
    readSettings();
    buildWindow();
    connectTitleBar();
    createTray();
    createServices();
    createRemote();
    identifyModel();
    readInfo();
    setUpPages();
    startTimers();
    if (fastClock_) {
        startFastClock(parts.fastClockFactor);
    }
    saveData();
    settingsFeed_->takeUpAutostart();
    if (!demo_) {
        platform::sendToWindow(platform::kCompanionWindowTitle, {platform::kCompanionNotice, 0, 0},
                               kCompanionPatience);
    }
}

CvZpsGV2::~CvZpsGV2() = default;

void CvZpsGV2::buildWindow() {
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinimizeButtonHint);
    setWindowIcon(QIcon(paths_.resources + QStringLiteral("/Image/ZPSapp.png")));
    view_ = new ui::MainView(this);
    setCentralWidget(view_);
    setMinimumSize(ui::MainView::kMinimumSize);
    memory_ = std::make_unique<WindowMemory>(*this, *view_, settings_);
    connect(view_, &ui::MainView::pageShown, this, &CvZpsGV2::tabChange);
}

void CvZpsGV2::readSettings() {
    // Written back once, so that the file always holds the accumulated usage.
    settings_.write({{Setting::TotalUsedTime, settings_.integer(Setting::TotalUsedTime)},
                     {Setting::TotalUsedKwh, settings_.real(Setting::TotalUsedKwh)},
                     {Setting::TotalUsedCost, settings_.real(Setting::TotalUsedCost)},
                     {Setting::LastUsedTime, settings_.integer(Setting::LastUsedTime)}});
}

void CvZpsGV2::resetLanguage() {
    changeLanguage();
    tray_->retranslate();
}

void CvZpsGV2::connectTitleBar() {
    auto *bar = view_->titleBar();
    //: %1 is the version number, %2 the cloud station's name
    bar->setVersionText(
        QStringLiteral("ZPS G App Ver:%1  %2").arg(QCoreApplication::applicationVersion(), QString()));
    connect(bar, &ui::TitleBar::closeReleased, this, &CvZpsGV2::leaveScreen);
    connect(bar, &ui::TitleBar::closeReleased, this, &CvZpsGV2::saveLED);
    connect(bar, &ui::TitleBar::minimiseReleased, this, &QWidget::showMinimized);
}

void CvZpsGV2::createTray() {
    tray_ = std::make_unique<Tray>(windowIcon());
    connect(tray_.get(), &Tray::launchRequested, this, &QWidget::showNormal);
    connect(tray_.get(), &Tray::exitRequested, qApp, &QCoreApplication::quit);
    connect(tray_.get(), &Tray::activated, this, &CvZpsGV2::iconActivated);
    connect(tray_.get(), &Tray::messageClicked, this, &CvZpsGV2::showAgain);
    connect(&alarms_, &Alarms::began, tray_.get(), &Tray::tellAlarm);
    connect(&recorder_, &Recorder::recordingFailed, tray_.get(), &Tray::tellRecordingFailed);
}

void CvZpsGV2::createServices() {
    auto *monitor = &supply_.monitor();
    connect(monitor, &psu::SupplyMonitor::message, this,
            [this](const QString &text) { showMessage(text, QStringLiteral("Message")); });
    connect(monitor, &psu::SupplyMonitor::reconnectDue, this, &CvZpsGV2::deviceChanged, Qt::QueuedConnection);
    connect(monitor, &psu::SupplyMonitor::readingTaken, this, &CvZpsGV2::takeSample);
    connect(monitor, &psu::SupplyMonitor::readingTaken, this, &CvZpsGV2::thermalMode12LEDSlot);
    connect(&alarms_, &Alarms::changed, this, &CvZpsGV2::takeAlarms);
    connect(&sensors_, &SensorThread::openFail, this, &CvZpsGV2::hwinfoOpenFail);
    connect(&lighting_, &Lighting::missingFile, this, &CvZpsGV2::tellMissingLightingFile);
    deviceWatch_ =
        platform::DeviceWatch::start([this](const WindowMessage &message) { return windowMessage(message); });
    sessionWatch_ =
        platform::SessionWatch::start([this](platform::SessionEvent event) { sessionEvent(event); });
}

void CvZpsGV2::createRemote() {
    socket_ = std::make_unique<remote::SocketHelper>(socketPort_);
    socket_->setAllowRemote(settings_.flag(Setting::SocketAllowRemote));
    connectSocket(*socket_, *this, supply_, lighting_, *view_->lighting());
    remote_ = std::make_unique<RemoteServices>(
        RemoteServices::Parts{supply_, settings_, alarms_, fan_, lighting_, usage_, random_});
    connect(remote_.get(), &RemoteServices::received, this, &CvZpsGV2::mqttAnalysis);
    connect(remote_.get(), &RemoteServices::powerRequested, &power_, &RemotePower::request);
    connect(&alarms_, &Alarms::began, remote_.get(), &RemoteServices::tellAlarm);
    connect(&power_, &RemotePower::failed, this,
            [this](const QString &why) { showMessage(why, QStringLiteral("Message")); });
}

void CvZpsGV2::setUpPages() {
    auto *dashboard = view_->dashboard();
    dashboard->setDemo(demo_);
    view_->about()->setDataFolder(paths_.data);
    dashboard->setRemedy(
        QString::fromStdString(platform::deviceAccessRemedy(paths_.resources.toStdString())));
    new HistoryFeed(
        recorder_, paths_.data, [this] { return now(); }, *view_->history(), this);
    new LightingFeed(lighting_, supply_, *view_->lighting(), this);
    fanFeed_ = new FanFeed(fan_, supply_, *view_->fan(), this);
    feed_ = new ViewFeed(supply_, alarms_, fan_, day_, settings_, *view_, demo_, random_, this);
    createFeeds();
    view_->setMainEnabled(supply_.present());
    day_.loadDayProfile(now().date());
    feed_->showDay(now());
    demoInfo();
}

void CvZpsGV2::createFeeds() {
    const std::string executable = demo_ ? std::string() : paths_.executable.toStdString();
    settingsFeed_ = new SettingsFeed(
        {settings_, alarms_, fan_, lighting_, usage_, sensors_, *remote_, *socket_, paths_.data, executable},
        *view_->settings(), this);
    connect(settingsFeed_, &SettingsFeed::languageChosen, this, &CvZpsGV2::resetLanguage);
    connect(settingsFeed_, &SettingsFeed::unitsChosen, this, &CvZpsGV2::tempUnitSelected);
    connect(settingsFeed_, &SettingsFeed::ratesRequested, this, &CvZpsGV2::popUpEleCost);
    connect(settingsFeed_, &SettingsFeed::changed, this, &CvZpsGV2::takeSettings);
    connect(settingsFeed_, &SettingsFeed::alarmsRequested, this,
            [this] { view_->showPage(ui::MainView::Page::Alarms); });
    connect(view_->alarms(), &ui::AlarmsPage::warningToggled, settingsFeed_, &SettingsFeed::showWarnings);
    auto *trends = view_->dashboard()->trends();
    energyFeed_ = new EnergyFeed(usage_, settings_, *trends->energy(), *view_->rates(), this);
    connect(energyFeed_, &EnergyFeed::rateConfirmed, this, &CvZpsGV2::changeEleRate);
    connect(trends->energy(), &ui::EnergyView::rateRequested, this, &CvZpsGV2::popUpEleCost);
    connect(trends, &ui::TrendPanel::viewChanged, this, &CvZpsGV2::tabChange);
    pcFeed_ = new PcFeed(sensors_, *trends->pc(), this);
    connect(pcFeed_, &PcFeed::enableRequested, this, [this] { settingsFeed_->readSensors(true); });
    trayFeed_ = new TrayFeed({supply_, alarms_, fan_, lighting_, settings_}, *tray_, this);
    connect(trayFeed_, &TrayFeed::speedWanted, this, &CvZpsGV2::showAgain);
    connect(trayFeed_, &TrayFeed::speedWanted, this, &CvZpsGV2::popUpFanModel);
    auto *updates = new UpdateFeed({settings_, *tray_, !demo_}, *view_, this);
    connect(settingsFeed_, &SettingsFeed::changed, updates, &UpdateFeed::takeSettings);
}

void CvZpsGV2::startTimers() {
    connect(addTimer(1000, &CvZpsGV2::demoInfo), &QTimer::timeout, this, &CvZpsGV2::takeSecond);
    readTimer_ = addTimer(1000, &CvZpsGV2::readInfo);
    addTimer(60000, &CvZpsGV2::saveData);
    addTimer(120000, &CvZpsGV2::getNextDailySettlement);
    addTimer(60000, &CvZpsGV2::checkUploadState);
    addTimer(60000, &CvZpsGV2::ClockTick);
    addTimer(60000, &CvZpsGV2::slotsTimePass);
    if (settings_.flag(Setting::SensorsEnabled)) {
        settingsFeed_->readSensors(true);
    }
}

QTimer *CvZpsGV2::addTimer(int milliseconds, void (CvZpsGV2::*slot)()) {
    auto *timer = new QTimer(this);
    timer->setTimerType(Qt::PreciseTimer); // a coarse one may be 5 % off: three seconds a minute
    connect(timer, &QTimer::timeout, this, slot);
    timer->start(milliseconds);
    return timer;
}

void CvZpsGV2::demoInfo() {
    fanFeed_->tick(now());
    feed_->takeReading(now());
    lighting_.takeReading();
}

void CvZpsGV2::ClockTick() {
    day_.tick(now());
    feed_->showDay(now());
}

void CvZpsGV2::saveData() {
    // A minute without a fresh reading is a gap and no row.
    if (monitor().hasReading() && monitor().state() == psu::LinkState::Live) {
        recorder_.saveData(monitor().record(), monitor().serialText(), rowFields(sensors_.reading()), now());
    }
}

void CvZpsGV2::startFastClock(int factor) {
    for (auto *timer : findChildren<QTimer *>(QString(), Qt::FindDirectChildrenOnly)) {
        timer->stop();
    }
    addTimer(60000 / factor, &CvZpsGV2::passFastMinute);
}

void CvZpsGV2::passFastMinute() {
    fastClock_->passMinute();
    readInfo();
    demoInfo();
    usage_.passMinute(now());
    if (now().time().minute() == 0) { // each minute would be many times a second
        slotsTimePass();
    }
    showUsage();
    ClockTick();
    saveData();
    getNextDailySettlement();
}

void CvZpsGV2::takeSample() {
    const auto &record = monitor().record();
    if (record.measured(QStringLiteral("WATTS"))) {
        day_.addSample(record.text(QStringLiteral("WATTS")), now());
    }
}

void CvZpsGV2::takeSecond() {
    usage_.tick(std::chrono::steady_clock::now(), now());
    remote_->takeReading();
    showUsage();
    trayFeed_->tick();
    view_->titleBar()->setTrayAvailable(Tray::available()); // it may come and go with the desktop
}

void CvZpsGV2::showUsage() {
    energyFeed_->tick(now());
    settingsFeed_->tick(now());
}

// What a changed setting means to more than one part.
void CvZpsGV2::takeSettings() {
    pcFeed_->showState();
    feed_->showWarnings();
    trayFeed_->takeSettings();
}

void CvZpsGV2::hwinfoOpenFail(const QString &reason) {
    qCWarning(lcApp).noquote() << "the PC's sensors can't be read:" << reason;
    settingsFeed_->sensorsFailed();
    pcFeed_->fail();
}

// As many digits as a float holds: 0.3 is not to become 0.300000012.
void CvZpsGV2::changeEleRate(float rate) {
    usage_.setRate(QString::number(static_cast<double>(rate), 'g', 7).toDouble());
}

void CvZpsGV2::popUpEleCost() { energyFeed_->askRates(); }

void CvZpsGV2::settingPageSelect() { view_->showPage(ui::MainView::Page::Settings); }

void CvZpsGV2::tempUnitSelected(const QStringList &unit) {
    settings_.write({{Setting::TempType, unit.value(0).toInt()}});
    appearance_.changeUnits(*view_);
}

void CvZpsGV2::takeAlarms() { lighting_.setAlarmHolds(!alarms_.log().holding().empty()); }

void CvZpsGV2::ZpsCirqLightModelSelected(const QStringList &chosen) {
    lighting_.changeLightMode(chosen.value(0).toInt());
}

void CvZpsGV2::getFunctionSelected_LightMode(const QStringList &chosen) {
    lighting_.choosePlus(&lighting::PlusRingState::lightMode, chosen.value(0).toInt());
}

void CvZpsGV2::getFunctionSelected_ColorMode(const QStringList &chosen) {
    lighting_.choosePlus(&lighting::PlusRingState::colourMode, chosen.value(0).toInt());
}

void CvZpsGV2::getFunctionSelected_SpeedMode(const QStringList &chosen) {
    lighting_.choosePlus(&lighting::PlusRingState::lightSpeed, chosen.value(0).toInt());
}

void CvZpsGV2::sessionEvent(platform::SessionEvent event) {
    lighting_.sessionEvent(event);
    if (event == platform::SessionEvent::Resumed) {
        fan_.resend();
    }
}

void CvZpsGV2::showFanPage() { view_->showPage(ui::MainView::Page::Fan); }

void CvZpsGV2::showLightingPage() { view_->showPage(ui::MainView::Page::Lighting); }

void CvZpsGV2::tellMissingLightingFile() {
    showMessage(QStringLiteral("config_12LED.ini，檔案不存在"), QStringLiteral("ErrorMessage"));
}

bool CvZpsGV2::windowMessage(const WindowMessage &message) {
    switch (message.number) {
    case platform::kDeviceChange:
        deviceChanged();
        return true;
    case platform::kShowRequest:
        showAgain();
        return true;
    case platform::kSyncOffByFans:
        return setLightingSync(false, QStringLiteral("Sync By Fans"));
    case platform::kSyncOnByFans:
        return setLightingSync(true, QStringLiteral("Sync By Fans"));
    case platform::kSyncOffByKeyBoard:
        return setLightingSync(false, QStringLiteral("Sync By KeyBoard"));
    default:
        return false;
    }
}

bool CvZpsGV2::setLightingSync(bool on, const QString &modeText) {
    if (supply_.profile().seriesCode != kDuoRing) {
        return false;
    }
    lighting_.setSync(on, modeText);
    return true;
}

void CvZpsGV2::deviceChanged() {
    readTimer_->stop();
    if (!connectPsu()) {
        view_->setMainEnabled(false);
        return;
    }
    qCDebug(lcApp) << "Still Exist";
    readTimer_->start(1000);
    QMetaObject::invokeMethod(this, "readInfo", Qt::QueuedConnection); // at once, in an event of its own
    view_->setMainEnabled(true);
}

void CvZpsGV2::showAgain() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void CvZpsGV2::leaveScreen() {
    if (Tray::available()) {
        hide();
        trayFeed_->tellOnce();
    } else {
        showMinimized(); // without a tray a hidden window could not be brought back from the screen
    }
}

void CvZpsGV2::iconActivated(QSystemTrayIcon::ActivationReason reason) {
    if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick) {
        showAgain();
    }
}

void CvZpsGV2::showMessage(const QString &text, const QString &title) {
    auto *box = new QMessageBox(QMessageBox::Information, title, text, QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open(); // not exec(): the supply is read on while the box stands
}

bool CvZpsGV2::nativeEvent(const QByteArray &eventType, void *message, long *result) {
    const auto decoded = platform::fromNativeEvent(message);
    if (decoded && windowMessage(*decoded)) {
        *result = 1;
        return true;
    }
    return QMainWindow::nativeEvent(eventType, message, result);
}

void CvZpsGV2::closeEvent(QCloseEvent *event) {
    // Whatever asks the window to close (the window manager's shortcut) only takes it off the screen.
    event->ignore();
    leaveScreen();
}

} // namespace zpsg::app
