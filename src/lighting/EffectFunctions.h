// The functions behind the rows of duoEffects(), which says what each is called; all have the form of Effect.
#pragma once

#include "lighting/Effects.h"

namespace zpsg::lighting::effects {

// One brightness or colour for the whole ring, or no motion at all.
void rgbSpectrum(const EffectInput &input, std::span<Colour> leds);
void blink(const EffectInput &input, std::span<Colour> leds);
void pulse(const EffectInput &input, std::span<Colour> leds);
void heartbeat(const EffectInput &input, std::span<Colour> leds);
void fullLighted(const EffectInput &input, std::span<Colour> leds);
void copyColour(const EffectInput &input, std::span<Colour> leds);
void thermal(const EffectInput &input, std::span<Colour> leds);

// Something travels along the ring.
void flow(const EffectInput &input, std::span<Colour> leds);
void ripple(const EffectInput &input, std::span<Colour> leds);
void wave(const EffectInput &input, std::span<Colour> leds);
void gaming(const EffectInput &input, std::span<Colour> leds);
void cross(const EffectInput &input, std::span<Colour> leds);
void scan(const EffectInput &input, std::span<Colour> leds);

// Little scenes.
void movie(const EffectInput &input, std::span<Colour> leds);
void swirl(const EffectInput &input, std::span<Colour> leds);
void raindrop(const EffectInput &input, std::span<Colour> leds);
void stack(const EffectInput &input, std::span<Colour> leds);

// Driven by what is heard; at rest they only glow.
void party(const EffectInput &input, std::span<Colour> leds);
void musicLevel(const EffectInput &input, std::span<Colour> leds);
void musicBands(const EffectInput &input, std::span<Colour> leds);
void musicMeter(const EffectInput &input, std::span<Colour> leds);

} // namespace zpsg::lighting::effects
