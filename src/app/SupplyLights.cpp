#include "app/SupplyLights.h"

namespace zpsg::app {

using lighting::RingKind;

namespace {

bool lightsLeds(const psu::Request &report) {
    return report[1] == lighting::kLightClass && report[2] == lighting::kLightCommand;
}

} // namespace

bool SupplyLights::supplyPresent() const {
    return supply_.monitor().mainPathPresent() && supply_.profile().fanLighting;
}

bool SupplyLights::secondPresent() const {
    return supply_.monitor().rawPathPresent() && supply_.profile().fanLighting;
}

void SupplyLights::send(const psu::Request &report) {
    if (!covered_ || !lightsLeds(report)) {
        pass(report);
    }
}

void SupplyLights::sendSecond(const lighting::SecondReport &report) {
    if (!covered_) {
        passSecond(report);
    }
}

void SupplyLights::show(RingKind ring, std::span<const lighting::Colour> leds) {
    if (supplyPresent()) {
        pass(ring == RingKind::Single ? lighting::colourReport(leds.front()) : lighting::streamedFrame(leds));
    } else if (secondPresent()) {
        passSecond(lighting::secondColour(leds.front()));
    }
}

std::optional<lighting::HeldLeds> SupplyLights::held(RingKind ring) const {
    if (supplyPresent() && last_) {
        return lighting::heldBy(*last_, ring);
    }
    if (secondPresent() && lastSecond_) {
        return lighting::heldBy(*lastSecond_);
    }
    return std::nullopt;
}

void SupplyLights::pass(const psu::Request &report) {
    if (lightsLeds(report)) {
        last_ = report;
    }
    supply_.monitor().send(report);
}

void SupplyLights::passSecond(const lighting::SecondReport &report) {
    if (lighting::heldBy(report)) {
        lastSecond_ = report;
    }
    supply_.monitor().sendRaw({report.begin(), report.end()});
}

} // namespace zpsg::app
