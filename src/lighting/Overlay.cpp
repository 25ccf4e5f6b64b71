#include "lighting/Overlay.h"

#include "psu/AlarmEntry.h"

#include <algorithm>

namespace zpsg::lighting {

Overlay chooseOverlay(const OverlayInputs &inputs) {
    using Kind = Overlay::Kind;
    if (inputs.offWhenLocked && (inputs.locked || inputs.asleep)) {
        return {Kind::Dark};
    }
    if (inputs.alarmOnRing && inputs.alarmHolds) {
        return {Kind::Alarm, 0.0F, inputs.palette};
    }
    constexpr auto kHot = static_cast<float>(psu::kHotCelsius);
    if (inputs.gauge == GaugeKind::Load && inputs.load) {
        return {Kind::Gauge, std::clamp(*inputs.load, 0.0F, 1.0F), inputs.palette};
    }
    if (inputs.gauge == GaugeKind::Temperature && inputs.celsius) {
        const float fraction = (*inputs.celsius - kGaugeCelsius) / (kHot - kGaugeCelsius);
        return {Kind::Gauge, std::clamp(fraction, 0.0F, 1.0F), inputs.palette};
    }
    return {};
}

bool overlayFrame(const Overlay &overlay, int step, std::span<Colour> leds) {
    switch (overlay.kind) {
    case Overlay::Kind::None:
        return false;
    case Overlay::Kind::Dark:
        std::fill(leds.begin(), leds.end(), kDark);
        break;
    case Overlay::Kind::Gauge:
        gaugeFrame(overlay.fraction, overlay.palette, leds);
        break;
    case Overlay::Kind::Alarm:
        alarmFrame(step, overlay.palette, leds);
        break;
    }
    return true;
}

} // namespace zpsg::lighting
