#include "lighting/Gauge.h"

#include "lighting/EffectMath.h"

namespace zpsg::lighting {
namespace {

/// How low, middling and high look.
struct Scale {
    Light low, middle, high;
};

constexpr Scale kUsual{{0.0F, 255.0F, 0.0F}, {255.0F, 150.0F, 0.0F}, {255.0F, 0.0F, 0.0F}};
/// Blue, yellow and vermilion of the palette by Okabe and Ito ("Color Universal Design", 2008). The blue is
/// dimmed to 60 %, as it would be no darker than the vermilion.
constexpr Scale kSafe{{0.0F, 68.0F, 107.0F}, {240.0F, 228.0F, 66.0F}, {213.0F, 94.0F, 0.0F}};

constexpr const Scale &scaleOf(Palette palette) {
    return palette == Palette::ColourBlindSafe ? kSafe : kUsual;
}

/// Fractions up to which low lasts, where the middle is, and from which on it is high.
constexpr float kLowTo = 0.4F;
constexpr float kMiddleAt = 0.65F;
constexpr float kHighFrom = 0.9F;

Light heightLight(const Scale &scale, float fraction) {
    if (fraction < kMiddleAt) {
        return mixed(scale.low, scale.middle, eased((fraction - kLowTo) / (kMiddleAt - kLowTo)));
    }
    return mixed(scale.middle, scale.high, eased((fraction - kMiddleAt) / (kHighFrom - kMiddleAt)));
}

/// Steps until the neighbours change places: an LED flashes 1.6 times a second, below the three that can harm
/// people with photosensitive epilepsy (WCAG 2.3.1).
constexpr int kAlarmHalf = 8;
/// A flash sinks from 1 to this until its neighbours' comes; they wait at the other. Far enough apart that no
/// step shows them alike.
constexpr float kAlarmFlashLeast = 0.45F;
constexpr float kAlarmWaiting = 0.06F;

} // namespace

void gaugeFrame(float fraction, Palette palette, std::span<Colour> leds) {
    if (std::isnan(fraction)) { // nothing is known, so nothing is shown
        std::fill(leds.begin(), leds.end(), kDark);
        return;
    }
    const float share = std::clamp(fraction, 0.0F, 1.0F);
    const Light light = heightLight(scaleOf(palette), share);
    const float lit = leds.size() == 1 ? 1.0F : share * static_cast<float>(leds.size());
    for (std::size_t led = 0; led < leds.size(); ++led) {
        leds[led] = colourOf(light * std::clamp(lit - static_cast<float>(led), 0.0F, 1.0F));
    }
}

void alarmFrame(int step, Palette palette, std::span<Colour> leds) {
    const int within = step % (2 * kAlarmHalf);
    const bool evenFlash = within < kAlarmHalf;
    const float sunk = static_cast<float>(within % kAlarmHalf) / kAlarmHalf;
    const Light light = scaleOf(palette).high;
    const Colour flash = colourOf(light * std::lerp(1.0F, kAlarmFlashLeast, sunk));
    const Colour waiting = leds.size() == 1 ? kDark : colourOf(light * kAlarmWaiting);
    for (std::size_t led = 0; led < leds.size(); ++led) {
        leds[led] = (led % 2 == 0) == evenFlash ? flash : waiting;
    }
    // With an odd number the last LED and LED 0 are neighbours of the same kind.
    if (leds.size() > 1 && leds.size() % 2 == 1) {
        leds.back() = kDark;
    }
}

} // namespace zpsg::lighting
