// The Duo set's effects: each a pure function from a step of the cycle to the colours of one ring. Adding one
// is adding a function and its row in the table.
#pragma once

#include "lighting/Colour.h"
#include "lighting/Sound.h"

#include <optional>
#include <span>

namespace zpsg::lighting {

/// Steps of one cycle; at 40 ms a step it lasts 3.8 s. The step after the last is step 0.
inline constexpr int kEffectSteps = 95;

struct EffectInput {
    int step = 0;                        ///< 0 to kEffectSteps - 1
    int speed = 0;                       ///< index into kSpeeds: 0 Extreme to 3 Slow
    std::span<const Colour> colours;     ///< one a LED, brightness applied
    std::span<const Colour> otherRing{}; ///< what the other ring shows in this step; empty when it copies too
    Sound sound{};                       ///< what the PC is playing
    std::optional<float> celsius{};      ///< of the supply, when known
};

/// Fills `leds`, which is as long as `input.colours` (any length from 1 on). LED 0 is at the top, the others
/// follow clockwise.
using Effect = void (*)(const EffectInput &input, std::span<Colour> leds);

struct EffectRow {
    const char *name;
    const char *textKey; ///< translation key of the name that is shown
    Effect effect;
    bool usesColours = true; ///< shows the chosen colours; else the effect brings its own
    bool usesSpeed = true;
    bool reactsToSound = false;
    bool copiesOtherRing = false;
};

inline constexpr std::size_t kDuoEffectCount = 21;

/// In the order of the light-mode numbers.
[[nodiscard]] std::span<const EffectRow, kDuoEffectCount> duoEffects();

} // namespace zpsg::lighting
