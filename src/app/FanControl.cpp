#include "app/FanControl.h"

#include "app/FanSettings.h"
#include "app/Logging.h"
#include "fan/FanReports.h"
#include "psu/AlarmEntry.h"

namespace zpsg::app {

using fan::FanMode;
using fan::Governing;

namespace {

constexpr int kNoneChosen = -1;

} // namespace

FanControl::FanControl(Supply &supply, Settings &settings, QObject *parent)
    : QObject(parent), supply_(supply), settings_(settings) {
    writeFanDefaultsOnce(settings_);
    takeSettings();
    takeProfile();
    connect(&supply_, &Supply::profileChanged, this, &FanControl::takeProfile);
    connect(&supply_, &Supply::reopened, this, &FanControl::resend);
}

void FanControl::takeSettings() {
    percent_ = settings_.integer(Setting::CustomFanPercent);
    curveOn_ = settings_.flag(Setting::FanCurveOn);
    curve_ = loadFanCurve(settings_);
    tuning_ = loadGovernorTuning(settings_);
    governor_.setCurve(curve_, tuning_);
}

void FanControl::reload() {
    takeSettings();
    restore();
    driven_.reset();
    resend();
    emit changed();
}

FanControl::~FanControl() { stepBack(); }

int FanControl::variant() const {
    const auto &profile = supply_.profile();
    return profile.fanLighting ? profile.seriesCode : 0;
}

void FanControl::takeProfile() {
    if (restoredVariant_ != variant()) {
        restoredVariant_ = variant();
        restore();
    }
    emit changed();
}

void FanControl::restore() {
    const auto key = variant() == 0 ? Setting::FanDuty : Setting::CustomFanDuty;
    const int index = settings_.integer(key);
    chosen_ = index != kNoneChosen;
    mode_ = chosen_ ? static_cast<FanMode>(index) : FanMode::Silent;
    speedApplied_ = settings_.integer(Setting::CustomFanDuty) == static_cast<int>(FanMode::Custom);
}

void FanControl::selectMode(const QStringList &chosen) {
    choose(chosen.value(0).toInt()); // 0, Silent, for what is no number
    if (variant() == 0) {
        settings_.write({{Setting::FanDuty, static_cast<int>(mode_)}});
    } else if (mode_ != FanMode::Custom) {
        settings_.write({{Setting::CustomFanDuty, static_cast<int>(mode_)}});
    }
    sendMode(mode_);
    emit changed();
}

void FanControl::selectLightingFanMode(const QStringList &chosen) {
    choose(chosen.value(0).toInt());
    settings_.write({{Setting::CustomFanDuty, static_cast<int>(mode_)}});
    sendMode(mode_);
    emit changed();
}

void FanControl::choose(int index) {
    const bool known = index >= 0 && index < static_cast<int>(fan::kFanModes.size());
    mode_ = known ? static_cast<FanMode>(index) : FanMode::Silent;
    chosen_ = true;
    speedApplied_ = speedApplied_ && mode_ == FanMode::Custom;
    if (curveOn_) {
        // Who chooses a mode wants that mode.
        curveOn_ = false;
        driven_.reset();
        settings_.write({{Setting::FanCurveOn, false}});
    }
    if (mode_ == FanMode::Custom) {
        qCDebug(lcApp) << "firstStart";
        emit speedWanted();
    }
}

bool FanControl::controlableFanSpeed(int percent) {
    qCDebug(lcApp) << "controlableFanSpeed:" << percent;
    if (!linkUp()) {
        return false;
    }
    percent_ = fan::fittedPercent(percent);
    mode_ = FanMode::Custom;
    chosen_ = speedApplied_ = true;
    sendSpeed(percent_);
    settings_.write(
        {{Setting::CustomFanPercent, percent_}, {Setting::CustomFanDuty, static_cast<int>(FanMode::Custom)}});
    if (variant() == 0) {
        settings_.write({{Setting::FanDuty, static_cast<int>(FanMode::Custom)}});
    }
    emit changed();
    return true;
}

void FanControl::resend() {
    if (curveOn_ && takesCustomSpeed()) {
        governor_.start(std::chrono::steady_clock::now());
        return;
    }
    sendChosen();
}

void FanControl::sendChosen() {
    if (!chosen_) {
        return;
    }
    if (mode_ == FanMode::Custom) {
        if (speedApplied_) {
            sendSpeed(percent_);
        }
    } else {
        sendMode(mode_);
    }
}

void FanControl::sendMode(FanMode mode) {
    auto &monitor = supply_.monitor();
    if (monitor.mainPathPresent()) {
        if (const auto report = fan::modeReport(mode)) {
            monitor.send(*report);
        }
    } else if (monitor.rawPathPresent()) {
        if (const auto report = fan::rawModeReport(mode)) {
            monitor.sendRaw({report->begin(), report->end()});
        }
    }
}

void FanControl::sendSpeed(int percent) {
    if (linkUp()) {
        supply_.monitor().send(fan::speedReport(percent));
    }
}

void FanControl::setCurveOn(bool on) {
    if (on == curveOn_) {
        return;
    }
    if (!on) {
        stepBack();
    }
    curveOn_ = on;
    driven_.reset();
    settings_.write({{Setting::FanCurveOn, on}});
    governor_.start(std::chrono::steady_clock::now());
    emit changed();
}

void FanControl::setCurve(const fan::FanCurve &curve) {
    curve_ = {curve.source, fan::fittedPoints(curve.temperature, fan::CurveSource::Temperature),
              fan::fittedPoints(curve.load, fan::CurveSource::Load)};
    governor_.setCurve(curve_, tuning_);
    saveFanCurve(settings_, curve_);
    emit changed();
}

void FanControl::setTuning(fan::GovernorTuning tuning) {
    settings_.write(
        {{Setting::FanCurveHysteresis, tuning.hysteresis}, {Setting::FanCurveMinSeconds, tuning.minSeconds}});
    tuning_ = loadGovernorTuning(settings_);
    governor_.setCurve(curve_, tuning_);
    emit changed();
}

void FanControl::tick(std::chrono::steady_clock::time_point now) {
    if (!curveOn_ || !takesCustomSpeed() || !linkUp()) {
        driven_.reset();
        return;
    }
    fan::FanGovernor::Reading reading;
    reading.celsius = supply_.fresh("Temp");
    if (const auto load = supply_.freshLoad()) {
        reading.loadPercent = *load * 100.0;
    }
    driven_ = governor_.tick(reading, now);
    if (driven_->changed && driven_->governing == Governing::Driving) {
        sendSpeed(driven_->percent);
    } else if (driven_->changed) {
        qCDebug(lcApp) << "the fan curve rests; governing:" << static_cast<int>(driven_->governing);
        // A fixed speed might be too slow for what the curve gives up on.
        sendMode(mode_ == FanMode::Custom ? FanMode::Performance : mode_);
    }
}

void FanControl::stepBack() {
    if (driven_ && linkUp()) {
        chosen_ ? sendChosen() : sendMode(FanMode::Silent);
        driven_.reset();
    }
}

bool FanControl::mayStand() const {
    const auto celsius = supply_.fresh("Temp");
    const bool driving = driven_ && driven_->governing == Governing::Driving;
    return zeroFan() && !driving && !(celsius && *celsius > psu::kHotCelsius);
}

} // namespace zpsg::app
