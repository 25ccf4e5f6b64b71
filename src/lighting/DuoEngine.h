// One step of the Duo set: from its state and what happens around it to 18 colours.
#pragma once

#include "lighting/Effects.h"
#include "lighting/LightingState.h"
#include "lighting/Overlay.h"

#include <array>
#include <optional>

namespace zpsg::lighting {

using DuoLeds = std::array<Colour, kDuoLeds>;

/// What a frame depends on beside the state and the step.
struct DuoSurroundings {
    Sound sound;
    std::optional<float> celsius{};
    Overlay overlay;
};

/// The colours that a ring's LEDs are set to, brightness applied: the single colour, or each LED's own.
void chosenColours(const DuoState &state, std::size_t ring, std::span<Colour> leds);

/// `step` is 0 to kEffectSteps - 1; `overlayStep` counts on beyond that. Dark while the set is off, whatever
/// else is to be shown.
[[nodiscard]] DuoLeds duoLeds(const DuoState &state, const DuoSurroundings &surroundings, int step,
                              int overlayStep);

/// Whether an effect that is shown listens to what the PC plays.
[[nodiscard]] bool needsSound(const DuoState &state);

} // namespace zpsg::lighting
