// What the effects are drawn with: places and times that wrap, curves, hues, chance that repeats itself.
// Nothing here allocates: effects run 25 times a second for months.
#pragma once

#include "lighting/Effects.h"
#include "lighting/LightingState.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <span>

namespace zpsg::lighting {

/// Repetitions in one cycle for each speed. Whole numbers, so that the cycle closes.
using Repetitions = std::array<int, kSpeedCount>;
inline constexpr Repetitions kUsualRepetitions{4, 3, 2, 1};

/// A colour to reckon with, 0 to 255 each.
struct Light {
    float red = 0.0F;
    float green = 0.0F;
    float blue = 0.0F;
};

constexpr Light operator+(const Light &a, const Light &b) {
    return {a.red + b.red, a.green + b.green, a.blue + b.blue};
}
constexpr Light operator*(const Light &light, float factor) {
    return {light.red * factor, light.green * factor, light.blue * factor};
}
constexpr Light mixed(const Light &from, const Light &to, float share) {
    return from * (1.0F - share) + to * share;
}
constexpr Light lightOf(const Colour &colour) {
    return {static_cast<float>(colour.red), static_cast<float>(colour.green),
            static_cast<float>(colour.blue)};
}
constexpr std::uint8_t component(float value) {
    const int halves = static_cast<int>(std::clamp(value, 0.0F, 255.0F) * 2.0F);
    return static_cast<std::uint8_t>((halves + 1) / 2);
}
constexpr Colour colourOf(const Light &light) {
    return {component(light.red), component(light.green), component(light.blue)};
}

/// 0 to 1: `x` without its whole turns.
inline float wrapped(float x) { return x - std::floor(x); }
/// -0.5 to 0.5: the shorter way round from 0 to `x`, in turns.
inline float shortWay(float x) { return x - std::round(x); }

/// Soft step from 0 at 0 to 1 at 1.
constexpr float eased(float x) {
    const float t = std::clamp(x, 0.0F, 1.0F);
    return t * t * (3.0F - 2.0F * t);
}
/// Soft spot: 1 at 0, nothing from 1 on either side.
constexpr float bell(float x) {
    const float rest = std::max(0.0F, 1.0F - x * x);
    return rest * rest;
}
/// Sine from 0 at whole turns to 1 half-way between them.
inline float swell(float turns) { return 0.5F - 0.5F * std::cos(turns * 2.0F * std::numbers::pi_v<float>); }
/// Brightness `behind` (0 to 1) a head that goes round: it rises softly within `lead` before the head and
/// dies away over `tail` after it.
constexpr float wake(float behind, float lead, float tail) {
    const float fall = std::max(0.0F, 1.0F - behind / tail);
    return std::max(eased(1.0F - (1.0F - behind) / lead), fall * fall);
}

/// Full colour of a hue in turns: red at 0, green at 1/3, blue at 2/3.
inline Light hueLight(float turns) {
    const auto part = [turns](float offset) {
        const float sixths = std::fabs(wrapped(turns + offset) * 6.0F - 3.0F);
        return std::clamp(sixths - 1.0F, 0.0F, 1.0F) * 255.0F;
    };
    return {part(0.0F), part(2.0F / 3.0F), part(1.0F / 3.0F)};
}

/// 0 to 1, the same for the same arguments everywhere; what looks like chance repeats with the cycle.
constexpr float hashed(std::uint32_t index, std::uint32_t salt) {
    std::uint32_t x = index * 0x9E3779B1U ^ (salt + 1U) * 0x85EBCA77U;
    x ^= x >> 15U;
    x *= 0x2C1B3C6DU;
    x ^= x >> 12U;
    x *= 0x297A2D39U;
    x ^= x >> 15U;
    return static_cast<float>(x >> 8U) / 16777216.0F;
}

constexpr int repetitions(const EffectInput &input, const Repetitions &each) {
    return each[static_cast<std::size_t>(std::clamp(input.speed, 0, kSpeedCount - 1))];
}

/// Where in its repetition the effect is.
struct Moment {
    int repetition = 0; ///< from 0 on, starts anew with the cycle
    float phase = 0.0F; ///< 0 to below 1
};

constexpr Moment momentOf(const EffectInput &input, int times) {
    const int parts = input.step % kEffectSteps * times;
    return {parts / kEffectSteps, static_cast<float>(parts % kEffectSteps) / kEffectSteps};
}
constexpr float phaseOf(const EffectInput &input, const Repetitions &each = kUsualRepetitions) {
    return momentOf(input, repetitions(input, each)).phase;
}

/// Place of an LED on the ring in turns, clockwise from the top.
constexpr float placeOf(std::size_t led, std::size_t count) {
    return static_cast<float>(led) / static_cast<float>(count);
}

/// Heights that have an LED when the ring is looked at from the side; one on either side, but for the top's
/// and the bottom's.
constexpr float rowsOf(std::size_t count) {
    const std::size_t rows = count / 2 + 1;
    return static_cast<float>(rows);
}
/// Which of these rows an LED stands in, 0 at the bottom.
constexpr float heightOf(std::size_t led, std::size_t count) {
    return rowsOf(count) - 1.0F - static_cast<float>(std::min(led, count - led));
}

/// How bright the user wants the ring, 0 to 1: its brightest component. Effects with colours of their own dim
/// by it, so that the brightness setting and black hold for them as well.
constexpr float strength(std::span<const Colour> colours) {
    std::uint8_t most = 0;
    for (const auto &colour : colours) {
        most = std::max({most, colour.red, colour.green, colour.blue});
    }
    return static_cast<float>(most) / 255.0F;
}

/// Shows the chosen colours, each LED as bright (0 to 1) as `brightness(led)` says.
template <typename Brightness>
void shade(const EffectInput &input, std::span<Colour> leds, Brightness brightness) {
    for (std::size_t led = 0; led < leds.size(); ++led) {
        leds[led] = colourOf(lightOf(input.colours[led]) * brightness(led));
    }
}

/// Shows the effect's own colours, `light(led)`, dimmed by the strength of the chosen ones.
template <typename Source>
void paint(const EffectInput &input, std::span<Colour> leds, Source light) {
    const float factor = strength(input.colours);
    for (std::size_t led = 0; led < leds.size(); ++led) {
        leds[led] = colourOf(light(led) * factor);
    }
}

} // namespace zpsg::lighting
