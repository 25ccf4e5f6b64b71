// What is shown in place of a ring's own light: darkness, a gauge, or an alarm.
#pragma once

#include "lighting/Gauge.h"

#include <optional>
#include <span>

namespace zpsg::lighting {

struct Overlay {
    enum class Kind { None, Dark, Gauge, Alarm };

    Kind kind = Kind::None;
    float fraction = 0.0F; ///< of the gauge, 0 to 1
    Palette palette = Palette::Usual;

    bool operator==(const Overlay &) const = default;
};

/// What the ring shows when nothing more urgent is there.
enum class GaugeKind { None = 0, Load = 1, Temperature = 2 };

/// What the user wants of overlays, and what is the case.
struct OverlayInputs {
    GaugeKind gauge = GaugeKind::None;
    Palette palette = Palette::Usual;
    bool alarmOnRing = true;
    bool offWhenLocked = true;
    bool alarmHolds = false;
    bool locked = false;
    bool asleep = false;
    std::optional<float> load{};    ///< output power as a fraction of the rated watts
    std::optional<float> celsius{}; ///< of the supply
};

/// Degrees Celsius at which the temperature gauge begins; it is full at the temperature of the alarm.
inline constexpr float kGaugeCelsius = 25.0F;

/// In the order of urgency: darkness while nobody is to see the lights, an alarm, the gauge. A gauge whose
/// value is not known leaves the ring its effect.
[[nodiscard]] Overlay chooseOverlay(const OverlayInputs &inputs);

/// Fills `leds` with what the overlay shows in this 40 ms step; false, and `leds` as they were, for None.
bool overlayFrame(const Overlay &overlay, int step, std::span<Colour> leds);

} // namespace zpsg::lighting
