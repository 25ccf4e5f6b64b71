// The fitted ring as one light with a brightness, a colour and an effect, as home automation knows lights.
#pragma once

#include "app/Lighting.h"

#include <QStringList>

namespace zpsg::app {

/// For a ring of several LEDs brightness and colour are those of its single colour; the Duo set's rings go
/// together.
struct RingLight {
    bool on = false;
    double brightness = 1.0; ///< factor, 0 to 1
    lighting::Colour colour;
    QString effect; ///< one of ringEffects()
};

/// The names of the fitted ring's light modes, in their order; empty without a ring.
[[nodiscard]] QStringList ringEffects(const Lighting &lighting);
[[nodiscard]] RingLight ringLight(const Lighting &lighting);
/// Sets the fitted ring. `single`: every LED shows the colour from now on. An effect that there is not
/// changes nothing of the effect.
void setRingLight(Lighting &lighting, const RingLight &light, bool single);

} // namespace zpsg::app
