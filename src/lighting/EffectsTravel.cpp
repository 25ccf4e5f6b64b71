// Effects in which something travels along the ring.
#include "lighting/EffectFunctions.h"
#include "lighting/EffectMath.h"

namespace zpsg::lighting::effects {
namespace {

/// From this many LEDs on a ring has room for two wave crests, two pairs of arms or two comets.
constexpr std::size_t kLargeRing = 8;

/// Flow's darkest part; the crest shows the motion of a ring in one colour.
constexpr float kFlowLeast = 0.3F;
constexpr float kWaveLeast = 0.04F;

/// Share of a period a ripple takes from the top to the bottom, and how much of it has died away by then.
constexpr float kRippleTravel = 0.9F;
constexpr float kRippleLoss = 0.4F;

/// Comets are quick: up to three turns in two seconds.
constexpr Repetitions kCometTurns{6, 4, 3, 2};
constexpr float kCometTail = 0.42F; ///< in turns
constexpr float kCometLead = 1.3F;  ///< in LEDs

/// Arms that pass a place in a cycle.
constexpr Repetitions kArms{8, 6, 4, 2};
constexpr float kArmWidth = 1.3F; ///< from the middle to the dark, in LEDs

constexpr float kSpotWidth = 1.3F; ///< from the middle to the dark, in LEDs
/// Steps a scanned place glows, and how much of its glow is left from step to step.
constexpr std::size_t kAfterglow = 12;
constexpr float kAfterglowLeft = 0.76F;

/// Share of a repetition that passes in a step. What is quick is drawn longer by it, as a camera would see
/// it: at 25 frames a second it would seem to jump otherwise.
float strideOf(const EffectInput &input, const Repetitions &each) {
    return static_cast<float>(repetitions(input, each)) / kEffectSteps;
}

/// The chosen colours as a band without seams; `position` in LEDs, any number.
Light between(std::span<const Colour> colours, float position) {
    const auto count = static_cast<float>(colours.size());
    const float along = wrapped(position / count) * count;
    const auto first = static_cast<std::size_t>(along) % colours.size();
    const float share = along - std::floor(along);
    return mixed(lightOf(colours[first]), lightOf(colours[(first + 1) % colours.size()]), share);
}

} // namespace

void flow(const EffectInput &input, std::span<Colour> leds) {
    const float phase = phaseOf(input);
    const auto count = static_cast<float>(leds.size());
    for (std::size_t led = 0; led < leds.size(); ++led) {
        const float crest = 1.0F - swell(placeOf(led, leds.size()) - phase);
        leds[led] = colourOf(between(input.colours, static_cast<float>(led) - phase * count) *
                             std::lerp(kFlowLeast, 1.0F, crest));
    }
}

void ripple(const EffectInput &input, std::span<Colour> leds) {
    const float phase = phaseOf(input);
    shade(input, leds, [phase, count = leds.size()](std::size_t led) {
        const float down = 2.0F * std::fabs(shortWay(placeOf(led, count)));
        const float since = wrapped(phase - down * kRippleTravel);
        return wake(since, 0.2F, 0.75F) * (1.0F - kRippleLoss * down);
    });
}

void wave(const EffectInput &input, std::span<Colour> leds) {
    const float phase = phaseOf(input);
    const float crests = leds.size() < kLargeRing ? 1.0F : 2.0F;
    shade(input, leds, [phase, crests, count = leds.size()](std::size_t led) {
        return std::lerp(kWaveLeast, 1.0F, 1.0F - swell(crests * placeOf(led, count) - phase));
    });
}

void gaming(const EffectInput &input, std::span<Colour> leds) {
    // One comet each way round: they race, meet and part. A small ring would be full of their tails.
    const float head = phaseOf(input, kCometTurns);
    const float lead = strideOf(input, kCometTurns) + kCometLead / static_cast<float>(leds.size());
    shade(input, leds, [head, lead, count = leds.size()](std::size_t led) {
        const float place = placeOf(led, count);
        const float first = wake(wrapped(head - place), lead, kCometTail);
        return count < kLargeRing ? first : std::max(first, wake(wrapped(head + place), lead, kCometTail));
    });
}

void cross(const EffectInput &input, std::span<Colour> leds) {
    const float phase = phaseOf(input, kArms);
    const float arms = leds.size() < kLargeRing ? 2.0F : 4.0F;
    const float reach = static_cast<float>(leds.size()) / (arms * kArmWidth);
    shade(input, leds, [phase, arms, reach, count = leds.size()](std::size_t led) {
        return bell(shortWay(arms * placeOf(led, count) - phase) * reach);
    });
}

void scan(const EffectInput &input, std::span<Colour> leds) {
    // The spot swings from the top once round and back; where it was in the last steps still glows.
    const float phase = phaseOf(input);
    const float stride = strideOf(input, kUsualRepetitions);
    std::array<float, kAfterglow> spots{};
    for (std::size_t age = 0; age < spots.size(); ++age) {
        spots.at(age) = swell(phase - static_cast<float>(age) * stride);
    }
    const float quickest = stride * std::numbers::pi_v<float> / 2.0F;
    const float reach = 1.0F / (quickest + kSpotWidth / static_cast<float>(leds.size()));
    shade(input, leds, [&spots, reach, count = leds.size()](std::size_t led) {
        float glow = 0.0F;
        float left = 1.0F;
        for (const float spot : spots) {
            glow = std::max(glow, left * bell(shortWay(placeOf(led, count) - spot) * reach));
            left *= kAfterglowLeft;
        }
        return glow;
    });
}

} // namespace zpsg::lighting::effects
