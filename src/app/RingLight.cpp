#include "app/RingLight.h"

#include <cmath>

namespace zpsg::app {

using lighting::DuoState;
using lighting::PlusRingState;
using lighting::RingKind;

namespace {

template <typename Rows>
QStringList namesOf(const Rows &rows) {
    QStringList names;
    for (const auto &row : rows) {
        names << QString::fromLatin1(row.name);
    }
    return names;
}

std::uint8_t component(int value) { return static_cast<std::uint8_t>(value); }

void setPlus(Lighting &lighting, const RingLight &light, int mode, bool single) {
    PlusRingState state = lighting.plus();
    state.off = !light.on;
    state.brightness.fill(static_cast<float>(light.brightness));
    state.panelBrightness = static_cast<int>(std::lround(light.brightness * 100.0));
    state.red.back() = light.colour.red;
    state.green.back() = light.colour.green;
    state.blue.back() = light.colour.blue;
    state.lightMode = mode >= 0 ? mode : state.lightMode;
    if (single && state.lightMode != lighting::kPlusThermal) {
        state.colourMode = lighting::kColourModeSingle;
    }
    lighting.changePlus(state);
}

void setDuo(Lighting &lighting, const RingLight &light, int mode, bool single) {
    DuoState state = lighting.duo();
    state.on = light.on;
    state.brightness.fill(light.brightness);
    state.singleBrightness.fill(light.brightness);
    if (single) {
        state.singleRed.fill(light.colour.red);
        state.singleGreen.fill(light.colour.green);
        state.singleBlue.fill(light.colour.blue);
        state.colourMode.fill(lighting::kColourModeSingle);
    }
    if (mode >= 0) {
        state.lightMode.fill(mode);
    }
    lighting.changeDuo(state);
}

void setSingle(Lighting &lighting, const RingLight &light, int mode) {
    const auto &state = lighting.single();
    if (mode >= 0 && mode != state.lightMode) {
        lighting.changeLightMode(mode);
    }
    const int percent = static_cast<int>(std::lround(light.brightness * 100.0));
    if (percent != static_cast<int>(std::lround(state.brightness * 100.0))) {
        lighting.changeBrightness(percent);
    }
    if (light.colour != state.colour) {
        lighting.changeColour(light.colour);
    }
    if (light.on == state.off) {
        lighting.turnOff(!light.on);
    }
}

} // namespace

QStringList ringEffects(const Lighting &lighting) {
    if (!lighting.ring()) {
        return {};
    }
    return *lighting.ring() == RingKind::Single ? namesOf(lighting::kSingleLightModes)
           : *lighting.ring() == RingKind::Plus ? namesOf(lighting::kPlusLightModes)
                                                : namesOf(lighting::duoEffects());
}

RingLight ringLight(const Lighting &lighting) {
    const QStringList effects = ringEffects(lighting);
    if (effects.isEmpty()) {
        return {};
    }
    if (*lighting.ring() == RingKind::Single) {
        const auto &state = lighting.single();
        return {!state.off, state.brightness, state.colour, effects.value(state.lightMode)};
    }
    if (*lighting.ring() == RingKind::Plus) {
        const auto &state = lighting.plus();
        return {!state.off,
                static_cast<double>(state.brightness.back()),
                {component(state.red.back()), component(state.green.back()), component(state.blue.back())},
                effects.value(state.lightMode)};
    }
    const auto &state = lighting.duo();
    return {state.on,
            state.singleBrightness[0],
            {component(state.singleRed[0]), component(state.singleGreen[0]), component(state.singleBlue[0])},
            effects.value(state.lightMode[0])};
}

void setRingLight(Lighting &lighting, const RingLight &light, bool single) {
    const int mode = ringEffects(lighting).indexOf(light.effect);
    if (!lighting.ring()) {
        return;
    }
    if (*lighting.ring() == RingKind::Single) {
        setSingle(lighting, light, mode);
    } else if (*lighting.ring() == RingKind::Plus) {
        setPlus(lighting, light, mode, single);
    } else {
        setDuo(lighting, light, mode, single);
    }
}

} // namespace zpsg::app
