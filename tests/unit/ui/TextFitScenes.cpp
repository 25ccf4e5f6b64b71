// What there is to be seen on each page, in an order in which one scene leads to the next.
#include "TextFitStage.h"

#include "power/Tariff.h"
#include "ui/AboutPage.h"
#include "ui/AlarmsPage.h"
#include "ui/CustomFanSpeedWidget.h"
#include "ui/DashboardPage.h"
#include "ui/DayView.h"
#include "ui/ElectricityRateWidget.h"
#include "ui/EnergyView.h"
#include "ui/FanCurveEditor.h"
#include "ui/FanPage.h"
#include "ui/FanTrend.h"
#include "ui/HistoryDaysView.h"
#include "ui/HistoryDayView.h"
#include "ui/HistoryPage.h"
#include "ui/LightingOptions.h"
#include "ui/LightingPage.h"
#include "ui/NavigationRail.h"
#include "ui/PcView.h"
#include "ui/popupWidget.h"
#include "ui/SettingsPage.h"
#include "ui/TrendPanel.h"
#include "ui/ZpsCirqDuo_Widget.h"
#include "UiFixture.h"

#include <QPushButton>
#include <QTest>

namespace zpsg::ui::test {
namespace {

using Page = MainView::Page;
using Ring = LightingPage::Ring;
using Sound = ZpsCirqDuo_Widget::SoundState;
using psu::AlarmKind;
using psu::LinkState;
using Section = SettingsPage::Section;

std::function<void(Stage &)> section(Section section) {
    return [section](Stage &s) { s.view.settings()->showSection(section); };
}

} // namespace

const std::vector<Scene> &scenes() {
    static const std::vector<Scene> all{
        {"nothing recorded", Page::Dashboard,
         [](Stage &s) {
             s.bring(LinkState::Live);
             s.view.dashboard()->trends()->setView(TrendPanel::Today);
         }},
        {"live", Page::Dashboard,
         [](Stage &s) {
             s.view.dashboard()->setDemo(true);
             s.view.dashboard()->trends()->setView(TrendPanel::FiveMinutes);
             s.alarm(1);
             s.bring(LinkState::Live);
         }},
        {"alarms", Page::Dashboard,
         [](Stage &s) {
             s.alarm(3);
             s.bring(LinkState::Live, 11.2, 0.0, 65.0);
             s.view.dashboard()->trends()->day()->showDay(std::vector<float>(360, 412.0F), 1434, 310);
             s.view.dashboard()->trends()->setView(TrendPanel::Today);
             settle();
             Stage::point(*s.view.dashboard()->trends()->day());
         }},
        {"many alarms", Page::Dashboard,
         [](Stage &s) {
             s.alarm(5);
             s.bring(LinkState::Live, 12.6);
             s.view.dashboard()->trends()->setView(TrendPanel::Efficiency);
         }},
        {"silent", Page::Dashboard,
         [](Stage &s) {
             s.alarm(0);
             s.bring(LinkState::Silent, 12.0, 0.0, 65.0);
             const EnergyShown::Figures figures{14'345.0, 1234.5, 1345.6, 456.78};
             EnergyShown energy;
             energy.today = energy.month = energy.year = energy.thisRun = energy.lastRun = energy.total =
                 figures;
             energy.projectedYear = figures;
             energy.rateKnown = true;
             energy.currency = QStringLiteral("EUR");
             s.view.dashboard()->trends()->energy()->showEnergy(energy);
             s.view.dashboard()->trends()->setView(TrendPanel::Energy);
         }},
        {"no device", Page::Dashboard,
         [](Stage &s) {
             s.bring(LinkState::NoDevice);
             s.view.dashboard()->trends()->energy()->showEnergy({});
             s.view.dashboard()->trends()->pc()->setEnabledState(false);
             s.view.dashboard()->trends()->setView(TrendPanel::Pc);
         }},
        {"no permission", Page::Dashboard,
         [](Stage &s) {
             s.bring(LinkState::NoPermission);
             sensors::PcReading pc;
             pc.cpuName = QStringLiteral("Processor With Twenty-Four Cores");
             pc.gpuName = QStringLiteral("Graphics Card of Some Vendor 9999 XT");
             pc.cpuVolts = pc.gpuVolts = 1.234;
             pc.cpuAmps = pc.gpuAmps = 123.4;
             pc.cpuWatts = pc.gpuWatts = 234.5;
             pc.cpuCelsius = pc.gpuCelsius = 78.0;
             s.view.dashboard()->trends()->pc()->setEnabledState(true);
             s.view.dashboard()->trends()->pc()->showReading(pc);
         }},
        {"no history", Page::History,
         [](Stage &s) { s.view.history()->showDays(kToday.addDays(-29), kToday, {}); }},
        {"month", Page::History,
         [](Stage &s) {
             s.view.history()->refresh();
             s.show(HistoryQuantity::Power, HistoryQuantity::Rails);
         }},
        {"year, pointed at", Page::History,
         [](Stage &s) {
             s.span(HistorySpan::Year);
             s.show(HistoryQuantity::Currents, HistoryQuantity::Temperature);
             settle();
             Stage::point(s.child<HistoryDaysView>());
             Stage::point(s.child<HistoryDayView>());
         }},
        {"range, export asks", Page::History,
         [](Stage &s) {
             s.span(HistorySpan::Range);
             s.show(HistoryQuantity::Fan, HistoryQuantity::Efficiency);
             s.button("btnHistoryExport").click();
             QTest::keyClick(&s.child<HistoryDayView>(), Qt::Key_Plus); // zoomed in, it has one more button
         }},
        {"week, export done", Page::History,
         [](Stage &s) {
             s.span(HistorySpan::Week);
             s.view.history()->showExportProgress(0.5);
             s.view.history()->showExportDone(
                 qtTrId("HISTORY_EXPORT_DONE_LOST").arg(QStringLiteral("1.234.567"), QStringLiteral("1.234")),
                 false);
         }},
        {"no ring", Page::Lighting,
         [](Stage &s) {
             s.view.lighting()->setReachable(false);
             s.view.lighting()->setRing(Ring::None);
         }},
        {"one light", Page::Lighting,
         [](Stage &s) {
             s.view.lighting()->options()->showState({2, false, false, false});
             s.view.lighting()->setRing(Ring::Single);
         }},
        {"twelve lights", Page::Lighting, [](Stage &s) { s.view.lighting()->setRing(Ring::Plus); }},
        {"two rings", Page::Lighting,
         [](Stage &s) {
             s.view.lighting()->duo()->showSound(Sound::NoDevice);
             s.view.lighting()->duo()->showSync(true, QStringLiteral("Some other program's mode"));
             s.view.lighting()->setRing(Ring::Duo);
         }},
        {"two rings, all chosen", Page::Lighting,
         [](Stage &s) {
             s.view.lighting()->setReachable(true);
             s.view.lighting()->options()->showState({1, true, true, true});
             s.view.lighting()->duo()->showSound(Sound::Listening);
         }},
        {"fan without a custom speed", Page::Fan,
         [](Stage &s) {
             s.fan(LinkState::NoDevice, 0.0);
             s.view.fan()->setVariant(0);
         }},
        {"fan with its curve", Page::Fan,
         [](Stage &s) {
             s.fan(LinkState::Live, 0.0);
             s.view.fan()->setCustomSpeed(true);
             s.view.fan()->showMode(fan::FanMode::Custom, 100);
             s.view.fan()->showCurve(true, {}, 10, 120);
             s.view.fan()->showCurveState(CurveState::Driving, 100);
             settle();
             Stage::point(*s.view.fan()->trend());
             QTest::keyClick(&s.child<FanCurveEditor>(), Qt::Key_PageDown);
         }},
        {"fan, the curve by load", Page::Fan,
         [](Stage &s) {
             s.view.fan()->setVariant(1);
             fan::FanCurve byLoad;
             byLoad.source = fan::CurveSource::Load;
             s.view.fan()->showCurve(true, byLoad, 10, 120);
             s.view.fan()->showCurveState(CurveState::NoReading, 0);
         }},
        {"fan's pop-up", Page::Fan,
         [](Stage &s) {
             s.fan(LinkState::Live, 1234.0);
             s.view.fan()->setVariant(2);
             s.view.fan()->showCurveState(CurveState::TooHot, 0);
             settle();
             s.button("btnFanMode").click();
         }},
        {"fan's custom speed", Page::Fan,
         [](Stage &s) {
             s.view.fan()->findChild<popupWidget *>()->closeSelf();
             s.view.fan()->showCurveState(CurveState::NotConnected, 0);
             s.view.fan()->popup()->setPercent(100);
             s.view.fan()->popup()->open();
         }},
        {"no alarms", Page::Alarms, [](Stage &s) { s.view.alarms()->showLog({}); }},
        {"log", Page::Alarms,
         [](Stage &s) {
             s.alarm(5);
             std::vector<psu::AlarmEntry> log;
             const QDateTime begin(kToday, QTime(12, 58, 58));
             for (int i = 0; i < 12; ++i) {
                 const auto kind = static_cast<AlarmKind>(i % 5);
                 const bool holds = i % 3 == 0;
                 log.push_back({kind, i % 5 == 3 ? 0.0 : 62.34, begin.addDays(-40 + i),
                                i % 3 == 1 ? begin.addDays(-20 + i) : QDateTime(), holds});
             }
             s.view.alarms()->showLog(log);
         }},
        {"settings", Page::Settings, section(Section::General)},
        {"settings of energy", Page::Settings, section(Section::Energy)},
        {"settings of alarms", Page::Settings, section(Section::Alarms)},
        {"settings of remote control", Page::Settings, section(Section::Remote)},
        {"settings of sensors", Page::Settings, section(Section::Sensors)},
        {"settings of updates", Page::Settings,
         [](Stage &s) {
             s.view.settings()->showSection(Section::Updates);
             s.view.settings()->setValue(SettingField::UpdateAddress, QString());
         }},
        {"settings of updates with an address", Page::Settings,
         [](Stage &s) {
             s.view.settings()->setValue(SettingField::UpdateAddress,
                                         QStringLiteral("https://zpsg.example/"));
             s.view.settings()->setStatus(SettingStatus::Update,
                                          qtTrId("UPDATE_STR_INSECURE").arg(QStringLiteral("zpsg.example")),
                                          true);
         }},
        {"settings of data", Page::Settings, section(Section::Data)},
        {"rates", Page::Settings,
         [](Stage &s) {
             const std::vector<power::TariffPeriod> periods{{0x1FU, 1320, 360, 0.2345},
                                                            {0x60U, 0, 0, 0.1234}};
             s.view.rates()->open(power::Tariff(0.3456, periods), QStringLiteral("EUR"));
         }},
        {"about", Page::About, [](Stage &s) { s.view.rates()->closeSelf(); }},
        {"about with an update", Page::About,
         [](Stage &s) {
             s.view.navigation()->setNotice(static_cast<int>(Page::About), "NAV_UPDATE");
             s.view.about()->setUpdate({QStringLiteral("10.20.30"), QStringLiteral("Better in all things"),
                                        QStringLiteral("https://zpsg.example/")});
         }},
    };
    return all;
}

} // namespace zpsg::ui::test
