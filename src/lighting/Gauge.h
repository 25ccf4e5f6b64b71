// The ring as a gauge, and as a warning. Pure functions to colours, like the effects.
#pragma once

#include "lighting/Colour.h"

#include <span>

namespace zpsg::lighting {

/// Usual: green, amber, red. Safe: colours that people with any of the common colour-vision deficiencies tell
/// apart, differing in lightness as well.
enum class Palette { Usual = 0, ColourBlindSafe = 1 };

/// A bar round the ring from LED 0 clockwise, `fraction` (0 to 1, clamped) of it lit, the LED at its end in
/// proportion; its colour says how high it is. A ring of one LED shows the colour at full strength.
void gaugeFrame(float fraction, Palette palette, std::span<Colour> leds);

/// A pulsing warning that is told from every effect by its shape as well: neighbours alternate. `step` counts
/// 40 ms steps, any non-negative number.
void alarmFrame(int step, Palette palette, std::span<Colour> leds);

} // namespace zpsg::lighting
