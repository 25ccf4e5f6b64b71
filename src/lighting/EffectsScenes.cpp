// Effects that tell a little scene.
#include "lighting/EffectFunctions.h"
#include "lighting/EffectMath.h"

namespace zpsg::lighting::effects {
namespace {

// The light of lamps behind a screen: nothing brighter than the film, nothing blue.
constexpr Light kAmber{255.0F, 122.0F, 26.0F};
constexpr Light kEmber{196.0F, 44.0F, 10.0F};
constexpr Light kCandle{255.0F, 172.0F, 78.0F};
constexpr float kMovieLeast = 0.3F;
constexpr float kMovieMost = 0.7F;

/// How far the whirl runs ahead of and behind an even turn: at 1 / (2 pi) it would come to rest once a turn.
constexpr float kSpin = 0.65F / (2.0F * std::numbers::pi_v<float>);
/// How far the hues are drawn together and apart, in turns.
constexpr float kTwist = 0.1F;
constexpr float kSwirlLeast = 0.15F;

/// Times a cycle when a drop may fall on an LED.
constexpr Repetitions kShowers{6, 5, 4, 3};
constexpr float kDropChance = 0.4F;
constexpr float kDropRise = 3.0F; ///< steps
constexpr float kDropFall = 12.0F;

/// Share of a repetition in which the LEDs pile up; in the rest they fade together.
constexpr float kPiling = 0.86F;

} // namespace

void movie(const EffectInput &input, std::span<Colour> leds) {
    // Once a cycle at every speed: anything quicker distracts.
    const float phase = momentOf(input, 1).phase;
    paint(input, leds, [phase, count = leds.size()](std::size_t led) {
        const float place = placeOf(led, count);
        const Light base = mixed(kEmber, kAmber, swell(place - phase));
        const Light light = mixed(base, kCandle, 0.6F * swell(2.0F * place + phase));
        return light * std::lerp(kMovieLeast, kMovieMost, swell(place + 0.25F - phase));
    });
}

void swirl(const EffectInput &input, std::span<Colour> leds) {
    const float phase = phaseOf(input);
    // The hues turn a little faster than the two arms, so that in a cycle each passes through them.
    const float drift = momentOf(input, 1).phase;
    const float turn = phase + kSpin * std::sin(phase * 2.0F * std::numbers::pi_v<float>);
    paint(input, leds, [turn, phase, drift, count = leds.size()](std::size_t led) {
        const float place = placeOf(led, count) - turn;
        const float twisted = place + kTwist * (2.0F * swell(placeOf(led, count) + phase) - 1.0F);
        return hueLight(twisted - drift) * std::lerp(kSwirlLeast, 1.0F, swell(2.0F * twisted));
    });
}

void raindrop(const EffectInput &input, std::span<Colour> leds) {
    const int showers = repetitions(input, kShowers);
    const Moment shower = momentOf(input, showers);
    const auto salt = static_cast<std::uint32_t>(leds.size());
    shade(input, leds, [=](std::size_t led) {
        const auto index = static_cast<std::uint32_t>(led);
        // Each LED's showers begin at a time of its own.
        const float late = shower.phase + hashed(index, salt);
        const int own = (shower.repetition + (late < 1.0F ? 0 : 1)) % showers;
        // One drop a cycle is sure, so that no LED stays dark for ever.
        const bool sure = own == static_cast<int>(hashed(index, salt + 64U) * static_cast<float>(showers));
        if (!sure && hashed(index * 16U + static_cast<std::uint32_t>(own), salt) >= kDropChance) {
            return 0.0F;
        }
        const float steps = wrapped(late) * kEffectSteps / static_cast<float>(showers);
        const float rest = std::max(0.0F, 1.0F - (steps - kDropRise) / kDropFall);
        return steps < kDropRise ? eased(steps / kDropRise) : rest * rest;
    });
}

void stack(const EffectInput &input, std::span<Colour> leds) {
    // Down both sides at once, row by row.
    const float phase = phaseOf(input);
    const float rows = rowsOf(leds.size());
    const float piled = std::min(phase / kPiling, 1.0F) * rows;
    const float settled = std::floor(piled);
    const float falling = piled - settled;
    const float height = std::lerp(rows, settled, falling * falling);
    const float fade = 1.0F - eased((phase - kPiling) / (1.0F - kPiling));
    shade(input, leds, [=, count = leds.size()](std::size_t led) {
        const float row = heightOf(led, count);
        return fade * (row < settled ? 1.0F : bell((row - height) / 1.2F));
    });
}

} // namespace zpsg::lighting::effects
