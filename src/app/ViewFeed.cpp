#include "app/ViewFeed.h"

#include "ui/AboutPage.h"
#include "ui/AlarmBanner.h"
#include "ui/AlarmsPage.h"
#include "ui/DashboardPage.h"
#include "ui/MainView.h"
#include "ui/TrendPanel.h"

namespace zpsg::app {

using psu::AlarmGroup;
using psu::AlarmKind;

ViewFeed::ViewFeed(Supply &supply, Alarms &alarms, const FanControl &fan, const power::DayProfile &day,
                   Settings &settings, ui::MainView &view, bool demo, power::RandomSource random,
                   QObject *parent)
    : QObject(parent)
    , supply_(supply)
    , alarms_(alarms)
    , fan_(fan)
    , day_(day)
    , settings_(settings)
    , view_(view)
    , demo_(demo)
    , random_(std::move(random)) {
    connect(&supply_.monitor(), &psu::SupplyMonitor::stateChanged, this, &ViewFeed::showLinkState);
    connect(&supply_.monitor(), &psu::SupplyMonitor::identityTaken, this, &ViewFeed::showLinkState);
    connect(&supply_, &Supply::profileChanged, this, &ViewFeed::showProfile);
    showLinkState();
    showProfile();
    connectAlarms();

    auto *trends = view_.dashboard()->trends();
    trends->setView(settings_.integer(Setting::TrendView));
    connect(trends, &ui::TrendPanel::viewChanged, this, [this](int chosen) {
        settings_.write({{Setting::TrendView, chosen}});
    });
}

void ViewFeed::connectAlarms() {
    auto *page = view_.alarms();
    showWarnings();
    connect(page, &ui::AlarmsPage::warningToggled, &alarms_, &Alarms::setWarning);
    connect(page, &ui::AlarmsPage::clearRequested, &alarms_, &Alarms::clearLog);
    connect(&alarms_, &Alarms::changed, this, &ViewFeed::showAlarms);
    showAlarms();
}

void ViewFeed::showWarnings() {
    for (const auto group : {AlarmGroup::Voltage, AlarmGroup::Fan, AlarmGroup::Temperature}) {
        view_.alarms()->setWarning(group, alarms_.warning(group));
    }
}

void ViewFeed::showLinkState() {
    view_.dashboard()->showLinkState(supply_.monitor().state(), supply_.monitor().modelText());
    showSupply();
}

void ViewFeed::showSupply() {
    using Link = ui::AboutSupply::Link;
    const auto &monitor = supply_.monitor();
    view_.about()->setSupply({monitor.modelText(), static_cast<double>(supply_.profile().ratedWatts),
                              serialNumber(supply_, settings_),
                              !supply_.present()         ? Link::None
                              : demo_                    ? Link::Demo
                              : monitor.rawPathPresent() ? Link::Raw
                                                         : Link::Main});
}

void ViewFeed::showProfile() {
    const auto &efficiency = supply_.efficiency();
    const auto ratedWatts = static_cast<double>(efficiency.profile().ratedWatts);
    view_.dashboard()->setRatedWatts(ratedWatts);
    showSupply();
    view_.dashboard()->setCurve(efficiency.curve(), ratedWatts,
                                efficiency.bandKey() == QLatin1String("AC230"));
}

void ViewFeed::showAlarms() {
    view_.alarms()->showLog(alarms_.log().entries());
    view_.alarmBanner()->showAlarms(alarms_.log().holding());
}

void ViewFeed::takeReading(const QDateTime &now) {
    if (!supply_.monitor().hasReading()) {
        return;
    }
    alarms_.expectStandingFan(fan_.mayStand());
    // Values that are not refreshed are no samples.
    if (supply_.monitor().state() == psu::LinkState::Live) {
        alarms_.tick(supply_.monitor().record(), now);
    }
    showReading(now);
}

void ViewFeed::showReading(const QDateTime &now) {
    const auto &record = supply_.monitor().record();
    const auto &supervised = alarms_.supervisor();
    const QString efficiency = QStringLiteral("EFF");
    ui::DashboardPage::Shown shown;
    shown.railVolts = {supervised.shown(AlarmKind::Rail12), supervised.shown(AlarmKind::Rail5),
                       supervised.shown(AlarmKind::Rail33)};
    if (record.measured(efficiency)) {
        shown.efficiency = power::plausibleEfficiency(record.number(efficiency), random_);
    }
    view_.dashboard()->showReading(record, shown, now.toMSecsSinceEpoch());
}

void ViewFeed::showDay(const QDateTime &now) {
    const int minute = now.time().hour() * 60 + now.time().minute();
    view_.dashboard()->showDay(day_.bucketWatts(), day_.usageMinutes(), power::bucketOf(minute));
}

} // namespace zpsg::app
