#include "lighting/Effects.h"

#include "lighting/EffectFunctions.h"

#include <array>

namespace zpsg::lighting {
namespace {

constexpr std::array<EffectRow, kDuoEffectCount> kEffects{{
    {.name = "Flow", .textKey = "DUO_EFFECT_FLOW", .effect = effects::flow},
    {.name = "RGB_Spectrum",
     .textKey = "DUO_EFFECT_RGB_SPECTRUM",
     .effect = effects::rgbSpectrum,
     .usesColours = false},
    {.name = "Ripple", .textKey = "DUO_EFFECT_RIPPLE", .effect = effects::ripple},
    {.name = "Blink", .textKey = "DUO_EFFECT_BLINK", .effect = effects::blink},
    {.name = "Pulse", .textKey = "DUO_EFFECT_PULSE", .effect = effects::pulse},
    {.name = "Wave", .textKey = "DUO_EFFECT_WAVE", .effect = effects::wave},
    {.name = "Full_Lighted",
     .textKey = "DUO_EFFECT_FULL_LIGHTED",
     .effect = effects::fullLighted,
     .usesSpeed = false},
    {.name = "Copy_Color",
     .textKey = "DUO_EFFECT_COPY_COLOR",
     .effect = effects::copyColour,
     .usesSpeed = false,
     .copiesOtherRing = true},
    {.name = "Movie",
     .textKey = "DUO_EFFECT_MOVIE",
     .effect = effects::movie,
     .usesColours = false,
     .usesSpeed = false},
    {.name = "Gaming", .textKey = "DUO_EFFECT_GAMING", .effect = effects::gaming},
    {.name = "Party",
     .textKey = "DUO_EFFECT_PARTY",
     .effect = effects::party,
     .usesColours = false,
     .reactsToSound = true},
    {.name = "Mobile_Music_1",
     .textKey = "DUO_EFFECT_MOBILE_MUSIC_1",
     .effect = effects::musicLevel,
     .usesSpeed = false,
     .reactsToSound = true},
    {.name = "Mobile_Music_2",
     .textKey = "DUO_EFFECT_MOBILE_MUSIC_2",
     .effect = effects::musicBands,
     .usesSpeed = false,
     .reactsToSound = true},
    {.name = "Mobile_Music_3",
     .textKey = "DUO_EFFECT_MOBILE_MUSIC_3",
     .effect = effects::musicMeter,
     .usesColours = false,
     .usesSpeed = false,
     .reactsToSound = true},
    {.name = "Thermal",
     .textKey = "DUO_EFFECT_THERMAL",
     .effect = effects::thermal,
     .usesColours = false,
     .usesSpeed = false},
    {.name = "Cross", .textKey = "DUO_EFFECT_CROSS", .effect = effects::cross},
    {.name = "Heartbeat", .textKey = "DUO_EFFECT_HEARTBEAT", .effect = effects::heartbeat},
    {.name = "Scan", .textKey = "DUO_EFFECT_SCAN", .effect = effects::scan},
    {.name = "Swirl", .textKey = "DUO_EFFECT_SWIRL", .effect = effects::swirl, .usesColours = false},
    {.name = "Raindrop", .textKey = "DUO_EFFECT_RAINDROP", .effect = effects::raindrop},
    {.name = "Stack", .textKey = "DUO_EFFECT_STACK", .effect = effects::stack},
}};

} // namespace

std::span<const EffectRow, kDuoEffectCount> duoEffects() { return kEffects; }

} // namespace zpsg::lighting
