#include "app/CvZpsGV2.h"

#include "app/DaySettings.h"
#include "app/FanFeed.h"
#include "app/HistoryFeed.h"
#include "app/LightingFeed.h"
#include "app/Logging.h"
#include "app/SocketWiring.h"
#include "app/ViewFeed.h"
#include "platform/DeviceAccess.h"
#include "platform/NativeEvent.h"
#include "remote/SocketHelper.h"
#include "sensors/pcInfoReader.h"
#include "ui/DashboardPage.h"
#include "ui/MainView.h"
#include "ui/TitleBar.h"

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
    , supply_(std::move(parts.backend), parts.timing, paths_.curveFolders())
    , lighting_(supply_, settings_)
    , fan_(supply_, settings_)
    , usage_(supply_, settings_)
    , power_(settings_)
    , alarms_(settings_, paths_.data + QStringLiteral("/alarms.jsonl"), parts.random)
    , day_(dayStorage(settings_))
    , recorder_(settings_, paths_.data, paths_.resources, parts.random)
    , uploader_(settings_, paths_.data)
    , fastClock_(std::move(parts.fastClock))
    , random_(std::move(parts.random))
    , socketPort_(parts.socketPort) {
    readSettings();
    loadLanguage();
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
    alignAutostart();
    if (!demo_) {
        platform::sendToWindow(platform::kCompanionWindowTitle, {platform::kCompanionNotice, 0, 0},
                               kCompanionPatience);
    }
}

CvZpsGV2::~CvZpsGV2() {
    sensorThread_.quit();
    sensorThread_.wait();
}

void CvZpsGV2::buildWindow() {
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinimizeButtonHint);
    setWindowIcon(QIcon(paths_.resources + QStringLiteral("/Image/ZPSapp.png")));
    view_ = new ui::MainView(this);
    setCentralWidget(view_);
    resize(ui::MainView::kDefaultSize);
    setMinimumSize(ui::MainView::kMinimumSize);
}

void CvZpsGV2::readSettings() {
    // Written back once, so that the file always holds the accumulated usage.
    settings_.write({{Setting::TotalUsedTime, settings_.integer(Setting::TotalUsedTime)},
                     {Setting::TotalUsedKwh, settings_.real(Setting::TotalUsedKwh)},
                     {Setting::TotalUsedCost, settings_.real(Setting::TotalUsedCost)},
                     {Setting::LastUsedTime, settings_.integer(Setting::LastUsedTime)}});
}

void CvZpsGV2::loadLanguage() {
    const QString folder = paths_.resources + QStringLiteral("/Language");
    // English lies below every language, so that a text which a translation lacks is readable all the same.
    if (english_.load(QStringLiteral("en.qm"), folder)) {
        QCoreApplication::installTranslator(&english_);
    } else {
        qCWarning(lcApp).noquote() << "no translation file" << folder + QStringLiteral("/en.qm");
    }
    changeLanguage();
}

void CvZpsGV2::changeLanguage() {
    QCoreApplication::removeTranslator(&translator_);
    const QString language = settings_.text(Setting::Language);
    const QString folder = paths_.resources + QStringLiteral("/Language");
    if (language != QLatin1String("en") && translator_.load(language + QStringLiteral(".qm"), folder)) {
        QCoreApplication::installTranslator(&translator_);
    }
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
    dashboard->setRemedy(
        QString::fromStdString(platform::deviceAccessRemedy(paths_.resources.toStdString())));
    new HistoryFeed(
        recorder_, paths_.data, [this] { return now(); }, *view_->history(), this);
    new LightingFeed(lighting_, supply_, *view_->lighting(), this);
    fanFeed_ = new FanFeed(fan_, supply_, *view_->fan(), this);
    feed_ = new ViewFeed(supply_, alarms_, fan_, day_, settings_, *view_, random_, this);
    view_->setMainEnabled(supply_.present());
    day_.loadDayProfile(now().date());
    feed_->showDay(now());
    demoInfo();
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
        startSensorTimer();
    }
}

QTimer *CvZpsGV2::addTimer(int milliseconds, void (CvZpsGV2::*slot)()) {
    auto *timer = new QTimer(this);
    timer->setTimerType(Qt::PreciseTimer); // a coarse one may be 5 % off: three seconds a minute
    connect(timer, &QTimer::timeout, this, slot);
    timer->start(milliseconds);
    return timer;
}

void CvZpsGV2::startSensorTimer() {
    sensors_ = std::make_unique<sensors::pcInfoReader>();
    sensorTimer_ = std::make_unique<QTimer>();
    connect(sensors_.get(), &sensors::pcInfoReader::openFail, this, &CvZpsGV2::hwinfoOpenFail);
    connect(sensorTimer_.get(), &QTimer::timeout, sensors_.get(), &sensors::pcInfoReader::refreshInfo);
    sensorTimer_->setInterval(1000);
    sensors_->moveToThread(&sensorThread_);
    sensorTimer_->moveToThread(&sensorThread_);
    connect(&sensorThread_, &QThread::started, sensorTimer_.get(), qOverload<>(&QTimer::start));
    connect(&sensorThread_, &QThread::finished, sensorTimer_.get(), &QTimer::stop);
    sensorThread_.start(QThread::InheritPriority);
}

void CvZpsGV2::alignAutostart() {
    std::string error;
    if (!demo_ &&
        !platform::setAutostart(settings_.flag(Setting::Autostart), paths_.executable.toStdString(), error)) {
        qCWarning(lcApp) << "the autostart entry can't be set:" << error.c_str();
    }
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
        recorder_.saveData(monitor().record(), monitor().serialText(), now());
    }
}

QString CvZpsGV2::serialNumber() const {
    const auto &monitor = supply_.monitor();
    return monitor.noSerial() ? settings_.text(Setting::SelfFilledInSerial) : monitor.serialText();
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
    usage_.tick(std::chrono::steady_clock::now());
    remote_->takeReading();
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
    if (QSystemTrayIcon::isSystemTrayAvailable()) {
        hide();
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
