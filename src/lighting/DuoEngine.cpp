#include "lighting/DuoEngine.h"

#include "lighting/LedReports.h"

#include <algorithm>

namespace zpsg::lighting {
namespace {

const EffectRow &rowOf(const DuoState &state, std::size_t ring) {
    const auto rows = duoEffects();
    const auto mode = static_cast<std::size_t>(std::max(state.lightMode.at(ring), 0));
    return rows[std::min(mode, rows.size() - 1)];
}

Colour colour(int red, int green, int blue, double factor) {
    return scaled(
        {static_cast<std::uint8_t>(red), static_cast<std::uint8_t>(green), static_cast<std::uint8_t>(blue)},
        factor);
}

} // namespace

void chosenColours(const DuoState &state, std::size_t ring, std::span<Colour> leds) {
    if (state.colourMode.at(ring) == kColourModeSingle) {
        std::fill(leds.begin(), leds.end(),
                  colour(state.singleRed.at(ring), state.singleGreen.at(ring), state.singleBlue.at(ring),
                         state.singleBrightness.at(ring)));
        return;
    }
    for (std::size_t i = 0; i < leds.size(); ++i) {
        const std::size_t entry = duoEntry(ring, i);
        leds[i] = colour(state.red.at(entry), state.green.at(entry), state.blue.at(entry),
                         state.brightness.at(entry));
    }
}

DuoLeds duoLeds(const DuoState &state, const DuoSurroundings &surroundings, int step, int overlayStep) {
    DuoLeds leds{};
    if (!state.on) {
        return leds;
    }
    const std::array<std::span<Colour>, kDuoRings> rings{std::span(leds).first(kFrontLeds),
                                                         std::span(leds).last(kMiddleLeds)};
    if (surroundings.overlay.kind != Overlay::Kind::None) {
        for (const auto ring : rings) {
            overlayFrame(surroundings.overlay, overlayStep, ring);
        }
        return leds;
    }
    DuoLeds chosen{};
    const std::array<std::span<Colour>, kDuoRings> colours{std::span(chosen).first(kFrontLeds),
                                                           std::span(chosen).last(kMiddleLeds)};
    const auto run = [&](std::size_t ring, std::span<const Colour> other) {
        chosenColours(state, ring, colours.at(ring));
        rowOf(state, ring)
            .effect({.step = step,
                     .speed = state.speedMode.at(ring),
                     .colours = colours.at(ring),
                     .otherRing = other,
                     .sound = surroundings.sound,
                     .celsius = surroundings.celsius},
                    rings.at(ring));
    };
    // The ring that copies comes second; of two that copy each shows its own colours.
    const bool frontCopies = rowOf(state, kFront).copiesOtherRing;
    const bool middleCopies = rowOf(state, kMiddle).copiesOtherRing;
    const std::size_t first = frontCopies ? kMiddle : kFront;
    const std::size_t second = frontCopies ? kFront : kMiddle;
    run(first, {});
    run(second, frontCopies && middleCopies ? std::span<const Colour>() : rings.at(first));
    return leds;
}

bool needsSound(const DuoState &state) {
    return state.on && (rowOf(state, kFront).reactsToSound || rowOf(state, kMiddle).reactsToSound);
}

} // namespace zpsg::lighting
