// Effects that are driven by what the PC plays.
#include "lighting/EffectFunctions.h"
#include "lighting/EffectMath.h"

namespace zpsg::lighting::effects {
namespace {

/// In silence: dark enough to rest, light enough to say that the effect is on.
constexpr float kRest = 0.03F;

constexpr float loudness(float heard) { return std::lerp(kRest, 1.0F, std::clamp(heard, 0.0F, 1.0F)); }

/// Changes of the flashes in a cycle of 3.8 s: 126 a minute, the pace of dance music, down to 32. At most two
/// flashes a second, as with Blink. Even numbers, as they come in pairs: what was dark in the first lights in
/// the second, so that the places always change and no LED is left out.
constexpr Repetitions kFlashes{8, 6, 4, 2};
constexpr float kFlashShare = 0.5F; ///< of the LEDs, in the first of a pair
constexpr float kFlashLeast = 0.4F; ///< what is left of a flash when the next comes

/// The loudest band of those that fall to an LED when the bands go round the ring from the top.
float bandOf(const Sound &sound, std::size_t led, std::size_t count) {
    const std::size_t first = led * kSoundBands / count;
    const std::size_t last = std::max(first + 1, (led + 1) * kSoundBands / count);
    float most = 0.0F;
    for (std::size_t band = first; band < last; ++band) {
        most = std::max(most, sound.bands.at(band));
    }
    return most;
}

// A level meter's green, amber and red; the height says the same to those who can't tell them apart.
constexpr Light kMeterLow{0.0F, 220.0F, 40.0F};
constexpr Light kMeterMiddle{255.0F, 170.0F, 0.0F};
constexpr Light kMeterHigh{255.0F, 20.0F, 0.0F};

Light meterLight(float height) {
    constexpr float kAmberFrom = 0.65F;
    return height < kAmberFrom
               ? mixed(kMeterLow, kMeterMiddle, eased(height / kAmberFrom))
               : mixed(kMeterMiddle, kMeterHigh, eased((height - kAmberFrom) / (1.0F - kAmberFrom)));
}

} // namespace

void party(const EffectInput &input, std::span<Colour> leds) {
    const Moment flash = momentOf(input, repetitions(input, kFlashes));
    const auto index = static_cast<std::uint32_t>(flash.repetition);
    const auto salt = static_cast<std::uint32_t>(leds.size());
    // The low tones carry the beat.
    const float beat = std::max({input.sound.bands[0], input.sound.bands[1], input.sound.bands[2]});
    const float fall = std::lerp(1.0F, kFlashLeast, flash.phase);
    paint(input, leds, [&, index, salt, beat, fall](std::size_t led) {
        const float chance = hashed(index / 2U * 32U + static_cast<std::uint32_t>(led), salt);
        const bool lit = (chance < kFlashShare) == (index % 2U == 0U);
        const float heard = std::max({beat, bandOf(input.sound, led, leds.size()), input.sound.level});
        const float brightness = lit ? loudness(std::min(heard, 1.0F) * fall) : kRest;
        return hueLight(hashed(index, salt) + chance * 0.5F) * brightness;
    });
}

void musicLevel(const EffectInput &input, std::span<Colour> leds) {
    const float brightness = loudness(input.sound.level);
    shade(input, leds, [brightness](std::size_t /*led*/) { return brightness; });
}

void musicBands(const EffectInput &input, std::span<Colour> leds) {
    shade(input, leds, [&input, count = leds.size()](std::size_t led) {
        return loudness(bandOf(input.sound, led, count));
    });
}

void musicMeter(const EffectInput &input, std::span<Colour> leds) {
    // From the bottom up both sides; an LED that is reached in part is lit in part.
    const float rows = rowsOf(leds.size());
    const float level = std::clamp(input.sound.level, 0.0F, 1.0F);
    paint(input, leds, [rows, level, count = leds.size()](std::size_t led) {
        const float row = heightOf(led, count);
        // A ring of one LED has no height: its colour follows the level.
        const float height = rows > 1.0F ? row / (rows - 1.0F) : level;
        return meterLight(height) * loudness(level * rows - row);
    });
}

} // namespace zpsg::lighting::effects
