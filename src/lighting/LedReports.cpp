#include "lighting/LedReports.h"

#include "lighting/Effects.h"

namespace zpsg::lighting {
namespace {

constexpr std::size_t kFirstLed = 4; // of a report; bytes 0 to 3 are the id, the command and the code
constexpr std::uint8_t kSecondId = 0x1E;
constexpr int kSelfRunModes = 6;

std::uint8_t truncated(float product) { return static_cast<std::uint8_t>(static_cast<int>(product)); }

psu::Request frame(std::uint8_t code) { return psu::makeRequest({kLightClass, kLightCommand, code}); }

void putLed(psu::Request &report, std::size_t led, Colour colour) {
    report.at(kFirstLed + 3 * led) = colour.green;
    report.at(kFirstLed + 3 * led + 1) = colour.red;
    report.at(kFirstLed + 3 * led + 2) = colour.blue;
}

Colour led(const psu::Request &report, std::size_t number) {
    const std::size_t at = kFirstLed + 3 * number;
    return {report.at(at + 1), report.at(at), report.at(at + 2)};
}

std::size_t slotOf(const PlusRingState &state, std::size_t led) {
    return state.colourMode == kColourModeSingle ? kSingleSlot : led;
}

} // namespace

double brightnessFactor(int percent) { return static_cast<float>(percent) / 100.0F; }

Colour scaled(Colour colour, double factor) {
    const auto part = [factor](std::uint8_t component) {
        return static_cast<std::uint8_t>(static_cast<double>(component) * factor);
    };
    return {part(colour.red), part(colour.green), part(colour.blue)};
}

psu::Request colourReport(Colour colour) {
    return psu::makeRequest({kLightClass, kLightCommand, 0x00, colour.red, colour.green, colour.blue});
}

std::uint8_t effectCode(int lightMode, int speed) {
    return static_cast<std::uint8_t>(lightMode < kSelfRunModes ? lightMode * kSpeedCount + speed
                                                               : lightMode + 18);
}

psu::Request panelFrame(const PlusRingState &state) {
    psu::Request report = frame(effectCode(state.lightMode, state.lightSpeed));
    for (std::size_t i = 0; i < kPlusLeds; ++i) {
        const std::size_t slot = slotOf(state, i);
        const auto part = [&](int component) {
            return truncated(static_cast<float>(component & 0xFF) * state.brightness.at(slot));
        };
        putLed(report, i, {part(state.red.at(slot)), part(state.green.at(slot)), part(state.blue.at(slot))});
    }
    return report;
}

psu::Request streamedFrame(const PlusRingState &state, int brightness) {
    psu::Request report = frame(kStreamedCode);
    for (std::size_t i = 0; i < kPlusLeds; ++i) {
        const std::size_t slot = slotOf(state, i);
        const auto part = [&](int component) {
            return truncated(static_cast<float>(component) * state.brightness.at(slot) *
                             static_cast<float>(brightness) / 100.0F);
        };
        putLed(report, i, {part(state.red.at(slot)), part(state.green.at(slot)), part(state.blue.at(slot))});
    }
    return report;
}

psu::Request streamedFrame(std::span<const Colour> leds) {
    psu::Request report = frame(kStreamedCode);
    for (std::size_t i = 0; i < leds.size() && i < kDuoLeds; ++i) {
        putLed(report, i, leds[i]);
    }
    return report;
}

psu::Request duoFrame(const std::array<Colour, kDuoLeds> &leds, DuoLayout layout) {
    if (layout == DuoLayout::EachSlot) {
        return streamedFrame(leds);
    }
    constexpr std::size_t kOddSlots = 6;
    std::array<Colour, kDuoLeds> repeated{};
    for (std::size_t i = 0; i < kDuoLeds; ++i) {
        repeated.at(i) = leds.at(2 * (i % kOddSlots) + 1);
    }
    return streamedFrame(repeated);
}

psu::Request thermalFrame(const PlusRingState &state, float celsius) {
    constexpr Colour kHot{245, 78, 0};
    constexpr Colour kCool{0, 0, 255};
    const Colour colour = celsius > kThermalCelsius ? kHot : kCool;
    PlusRingState shown = state;
    shown.red.fill(colour.red);
    shown.green.fill(colour.green);
    shown.blue.fill(colour.blue);
    shown.brightness.fill(1.0F);
    shown.red.back() = shown.green.back() = shown.blue.back() = 0;
    shown.brightness.back() = 0.0F;
    return panelFrame(shown);
}

SecondReport secondColour(Colour colour) { return {kSecondId, 0x00, colour.red, colour.green, colour.blue}; }

SecondReport secondEnable(bool enabled) {
    return {kSecondId, 0x01, static_cast<std::uint8_t>(enabled ? 1 : 0)};
}

SecondReport secondSpectrum() { return {kSecondId, 0x03}; }

std::optional<HeldLeds> heldBy(const psu::Request &report, RingKind ring) {
    if (report[1] != kLightClass || report[2] != kLightCommand) {
        return std::nullopt;
    }
    HeldLeds held;
    const std::uint8_t code = report[3];
    if (ring == RingKind::Single) {
        held.spectrum = code == 0x01;
        held.colours = {{report[4], report[5], report[6]}};
        return held;
    }
    const std::size_t count = ring == RingKind::Plus ? kPlusLeds : kDuoLeds;
    for (std::size_t i = 0; i < count; ++i) {
        held.colours.push_back(led(report, i));
    }
    if (ring == RingKind::Plus && code < kStreamedCode) {
        held.effectCode = code;
    }
    return held;
}

std::optional<HeldLeds> heldBy(const SecondReport &report) {
    if (report[0] != kSecondId || (report[1] != 0x00 && report[1] != 0x03)) {
        return std::nullopt;
    }
    HeldLeds held;
    held.spectrum = report[1] == 0x03;
    held.colours = {{report[2], report[3], report[4]}};
    return held;
}

std::vector<Colour> pictured(const HeldLeds &held, int step) {
    constexpr std::size_t kSpectrumRow = 1;
    constexpr int kNormalSpeed = 2;
    constexpr Colour kFull{255, 255, 255};
    if (!held.effectCode && !held.spectrum) {
        return held.colours;
    }
    // The ring's modes 0 to 5 are the first six of the Duo set's effects.
    const int code = held.effectCode.value_or(0);
    const std::vector<Colour> colours(held.colours.size(), kFull);
    EffectInput input{.step = step % kEffectSteps,
                      .speed = held.spectrum ? kNormalSpeed : code % kSpeedCount,
                      .colours = held.spectrum ? colours : held.colours};
    std::vector<Colour> leds(held.colours.size());
    duoEffects()[held.spectrum ? kSpectrumRow : static_cast<std::size_t>(code / kSpeedCount)].effect(input,
                                                                                                     leds);
    return leds;
}

} // namespace zpsg::lighting
