#include "app/FanFeed.h"

#include "ui/CustomFanSpeedWidget.h"
#include "ui/FanPage.h"

#include <QScopedValueRollback>

namespace zpsg::app {

using fan::Governing;
using ui::CurveState;

FanFeed::FanFeed(FanControl &control, Supply &supply, ui::FanPage &page, QObject *parent)
    : QObject(parent), control_(control), supply_(supply), page_(page) {
    page_.setFullRpm(fan::kFullRpm);
    connectPage();
    connect(&control_, &FanControl::changed, this, &FanFeed::showControl);
    connect(&control_, &FanControl::speedWanted, this, &FanFeed::askSpeed);
    connect(&supply_.monitor(), &psu::SupplyMonitor::stateChanged, this, &FanFeed::showReachable);
    showControl();
    showReachable();
}

void FanFeed::connectPage() {
    connect(&page_, &ui::FanPage::modeChosen, this, &FanFeed::chooseMode);
    connect(&page_, &ui::FanPage::customSpeedChosen, &control_, &FanControl::controlableFanSpeed);
    connect(&page_, &ui::FanPage::curveToggled, &control_, &FanControl::setCurveOn);
    connect(&page_, &ui::FanPage::curveEdited, &control_, &FanControl::setCurve);
    connect(&page_, &ui::FanPage::curveTuningEdited, this, [this](int hysteresis, int minSeconds) {
        control_.setTuning({hysteresis, minSeconds});
    });
}

void FanFeed::chooseMode(const QStringList &chosen) {
    const QScopedValueRollback choosing(choosing_, true);
    if (control_.variant() == 0) {
        control_.selectMode(chosen);
    } else {
        control_.selectLightingFanMode(chosen);
    }
}

void FanFeed::askSpeed() {
    if (!choosing_) {
        page_.popup()->setPercent(control_.customPercent());
        page_.popup()->open();
    }
}

void FanFeed::showControl() {
    page_.setVariant(control_.variant());
    page_.setCustomSpeed(control_.takesCustomSpeed());
    const auto tuning = control_.tuning();
    page_.showCurve(control_.curveOn(), control_.curve(), tuning.hysteresis, tuning.minSeconds);
    showCurveState();
}

void FanFeed::showReachable() {
    page_.setReachable(supply_.present());
    showCurveState();
}

// A speed that the curve drives is a custom one, whatever mode the supply goes back to.
fan::FanMode FanFeed::shownMode() const {
    const auto driven = control_.driven();
    return driven && driven->governing == Governing::Driving ? fan::FanMode::Custom : control_.mode();
}

void FanFeed::showCurveState() {
    page_.showMode(shownMode(), control_.customPercent());
    if (!control_.curveOn()) {
        page_.showCurveState(CurveState::Off, 0);
        return;
    }
    const auto driven = control_.driven();
    if (!driven) {
        page_.showCurveState(CurveState::NotConnected, 0);
        return;
    }
    page_.showCurveState(driven->governing == Governing::Driving  ? CurveState::Driving
                         : driven->governing == Governing::TooHot ? CurveState::TooHot
                                                                  : CurveState::NoReading,
                         driven->percent);
}

void FanFeed::tick(const QDateTime &now) {
    control_.tick(std::chrono::steady_clock::now());
    ui::FanReading reading;
    reading.mode = shownMode();
    reading.rpm = supply_.fresh("FanSpeed");
    reading.celsius = supply_.fresh("Temp");
    if (reading.rpm) {
        reading.dutyPercent = *reading.rpm / static_cast<double>(fan::kFullRpm) * 100.0;
    }
    if (const auto load = supply_.freshLoad()) {
        reading.loadPercent = *load * 100.0;
    }
    page_.takeReading(reading, now.toMSecsSinceEpoch());
    showCurveState();
}

} // namespace zpsg::app
