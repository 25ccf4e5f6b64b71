// Effects that treat the ring as a whole.
#include "lighting/EffectFunctions.h"
#include "lighting/EffectMath.h"

namespace zpsg::lighting::effects {
namespace {

/// Twice a second at most: more than three flashes a second can harm people with photosensitive epilepsy
/// (WCAG 2.3.1).
constexpr Repetitions kBlinks{8, 6, 4, 2};

/// Heartbeats in a cycle of 3.8 s: from 79 to 32 a minute.
constexpr Repetitions kHeartbeats{5, 4, 3, 2};
/// The beats last as long at every speed, only the pause changes; in steps.
constexpr float kBeatRise = 2.0F;
constexpr float kBeatFall = 7.0F;
constexpr float kSecondBeat = 7.0F; ///< after the first
constexpr float kSecondShare = 0.65F;
constexpr float kBetweenBeats = 0.05F; ///< the heart never goes out

float beat(float steps) {
    if (steps < kBeatRise) {
        return eased(steps / kBeatRise);
    }
    const float rest = std::max(0.0F, 1.0F - (steps - kBeatRise) / kBeatFall);
    return rest * rest;
}

constexpr float kCool = 30.0F; ///< degrees Celsius
constexpr float kHot = 60.0F;
constexpr Light kCoolLight{0.0F, 0.0F, 255.0F};
constexpr Light kHotLight{245.0F, 78.0F, 0.0F};
/// Neither cool nor hot, and dim: nothing is known.
constexpr Light kUnknownLight{26.0F, 26.0F, 26.0F};

/// Mean of what a ring shows over an arc, `middle` and `width` in its LEDs.
Light averaged(std::span<const Colour> ring, float middle, float width) {
    const auto count = static_cast<int>(ring.size());
    const float from = middle - width / 2.0F;
    const float to = middle + width / 2.0F;
    const int first = static_cast<int>(std::floor(from + 0.5F));
    const int last = static_cast<int>(std::ceil(to + 0.5F));
    Light sum;
    for (int led = first; led < last; ++led) {
        // An LED lights half a place on either side.
        const float begin = std::max(from, static_cast<float>(led) - 0.5F);
        const float end = std::min(to, static_cast<float>(led) + 0.5F);
        const auto index = static_cast<std::size_t>(((led % count) + count) % count);
        sum = sum + lightOf(ring[index]) * std::max(0.0F, end - begin);
    }
    return sum * (1.0F / width);
}

} // namespace

void rgbSpectrum(const EffectInput &input, std::span<Colour> leds) {
    const Light light = hueLight(phaseOf(input));
    paint(input, leds, [&light](std::size_t /*led*/) { return light; });
}

void blink(const EffectInput &input, std::span<Colour> leds) {
    // An edge takes a step, so that its place between two steps is seen and the rhythm doesn't stumble.
    const float edge = static_cast<float>(repetitions(input, kBlinks)) / kEffectSteps;
    const float fromMiddle = std::fabs(phaseOf(input, kBlinks) - 0.25F);
    const float brightness =
        std::clamp((0.25F - std::min(fromMiddle, 1.0F - fromMiddle)) / edge + 0.5F, 0.0F, 1.0F);
    shade(input, leds, [brightness](std::size_t /*led*/) { return brightness; });
}

void pulse(const EffectInput &input, std::span<Colour> leds) {
    // Equal ratios look like equal steps to the eye: an exponential of a sine breathes evenly.
    constexpr float kDepth = 2.3F;
    const float darkest = std::exp(-kDepth);
    const float breath = (std::exp((swell(phaseOf(input)) - 1.0F) * kDepth) - darkest) / (1.0F - darkest);
    shade(input, leds, [breath](std::size_t /*led*/) { return breath; });
}

void heartbeat(const EffectInput &input, std::span<Colour> leds) {
    const int times = repetitions(input, kHeartbeats);
    const float steps = momentOf(input, times).phase * kEffectSteps / static_cast<float>(times);
    const float second = steps < kSecondBeat ? 0.0F : beat(steps - kSecondBeat) * kSecondShare;
    const float brightness = std::max({beat(steps), second, kBetweenBeats});
    shade(input, leds, [brightness](std::size_t /*led*/) { return brightness; });
}

void fullLighted(const EffectInput &input, std::span<Colour> leds) {
    std::copy_n(input.colours.begin(), leds.size(), leds.begin());
}

void copyColour(const EffectInput &input, std::span<Colour> leds) {
    if (input.otherRing.empty()) {
        fullLighted(input, leds);
        return;
    }
    const float ratio = static_cast<float>(input.otherRing.size()) / static_cast<float>(leds.size());
    for (std::size_t led = 0; led < leds.size(); ++led) {
        leds[led] = colourOf(averaged(input.otherRing, static_cast<float>(led) * ratio, ratio));
    }
}

void thermal(const EffectInput &input, std::span<Colour> leds) {
    const bool known = input.celsius && std::isfinite(*input.celsius);
    const float share = known ? std::clamp((*input.celsius - kCool) / (kHot - kCool), 0.0F, 1.0F) : 0.0F;
    const Light light = known ? mixed(kCoolLight, kHotLight, share) : kUnknownLight;
    paint(input, leds, [&light](std::size_t /*led*/) { return light; });
}

} // namespace zpsg::lighting::effects
