#include "fan/FanGovernor.h"

#include <cmath>

namespace zpsg::fan {
namespace {

/// Steps of less than this are not heard and not worth a command, percent.
constexpr int kLeastStep = 2;

} // namespace

void FanGovernor::start(Time now) {
    governing_ = Governing::Driving;
    told_ = false;
    percent_.reset();
    high_.reset();
    lastReading_ = now;
    lastChange_ = {};
}

void FanGovernor::setCurve(const FanCurve &curve, GovernorTuning tuning) {
    if (curve.source != curve_.source) {
        high_.reset(); // degrees are no percent
    }
    curve_ = curve;
    tuning_ = tuning;
}

FanGovernor::Decision FanGovernor::tick(const Reading &reading, Time now) {
    const auto at = curve_.source == CurveSource::Temperature ? reading.celsius : reading.loadPercent;
    if (!reading.celsius || !at) {
        return now - lastReading_ >= kBlindTime ? stepBack(Governing::NoReading)
                                                : Decision{governing_, percent_.value_or(0), false};
    }
    lastReading_ = now;
    const double limit = governing_ == Governing::TooHot ? kLimitCelsius - kCoolDown : kLimitCelsius;
    if (*reading.celsius > limit) {
        return stepBack(Governing::TooHot);
    }
    governing_ = Governing::Driving;
    told_ = false;
    const int percent = wanted(*at);
    const bool fresh = !percent_;
    const bool waited = fresh || now - lastChange_ >= std::chrono::seconds(tuning_.minSeconds);
    const bool differs = fresh || std::abs(percent - *percent_) >= kLeastStep ||
                         (percent != *percent_ && (percent == kLeastPercent || percent == kMostPercent));
    if (!waited || !differs) {
        return {Governing::Driving, *percent_, false};
    }
    percent_ = percent;
    lastChange_ = now;
    return {Governing::Driving, percent, true};
}

int FanGovernor::wanted(double at) {
    if (!high_ || at > *high_) {
        high_ = at;
    } else if (at < *high_ - tuning_.hysteresis) {
        high_ = at + tuning_.hysteresis;
    }
    return fittedPercent(static_cast<int>(std::lround(percentAt(curve_.points(), *high_))));
}

FanGovernor::Decision FanGovernor::stepBack(Governing why) {
    const bool changed = !told_ || governing_ != why;
    governing_ = why;
    told_ = true;
    percent_.reset();
    high_.reset();
    return {why, 0, changed};
}

} // namespace zpsg::fan
