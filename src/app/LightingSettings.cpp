#include "app/LightingSettings.h"

#include "lighting/LedReports.h"

#include <QFile>

#include <cmath>

namespace zpsg::app {

using lighting::DuoState;
using lighting::PlusRingState;
using lighting::SingleRingState;

namespace {

template <typename T, std::size_t N>
std::array<T, N> loaded(const Settings &settings, Setting id) {
    std::array<T, N> values{};
    const auto numbers = settings.numbers(id);
    for (std::size_t i = 0; i < N; ++i) {
        values.at(i) = static_cast<T>(numbers.at(i));
    }
    return values;
}

/// Six significant digits, the file's format.
template <typename List>
QString joined(const List &values) {
    QStringList texts;
    for (const auto value : values) {
        texts << QString::number(static_cast<double>(value), 'g', 6);
    }
    return texts.join(QLatin1Char(','));
}

} // namespace

SingleRingState loadSingleRing(const Settings &settings) {
    const auto rgb = loaded<std::uint8_t, 3>(settings, Setting::SingleColour);
    return {.colour = {rgb[0], rgb[1], rgb[2]},
            .brightness = lighting::brightnessFactor(settings.integer(Setting::SingleBright)),
            .lightMode = settings.integer(Setting::SingleLightMode),
            .colourMode = settings.integer(Setting::SingleColourMode),
            .off = settings.flag(Setting::SingleOff)};
}

bool saveSingleRing(Settings &settings, const SingleRingState &state) {
    const bool mode = settings.write({{Setting::SingleLightMode, state.lightMode}});
    const std::array rgb{state.colour.red, state.colour.green, state.colour.blue};
    return settings.write({{Setting::SingleOff, state.off},
                           {Setting::SingleColour, joined(rgb)},
                           {Setting::SingleColourMode, state.colourMode},
                           {Setting::SingleBright, static_cast<int>(std::lround(state.brightness * 100))}}) &&
           mode;
}

PlusRingState loadPlusRing(const Settings &settings) {
    using lighting::kPlusSlots;
    PlusRingState state{.red = loaded<int, kPlusSlots>(settings, Setting::PlusRed),
                        .green = loaded<int, kPlusSlots>(settings, Setting::PlusGreen),
                        .blue = loaded<int, kPlusSlots>(settings, Setting::PlusBlue),
                        .brightness = loaded<float, kPlusSlots>(settings, Setting::PlusBright),
                        .lightMode = settings.integer(Setting::PlusLightMode),
                        .colourMode = settings.integer(Setting::PlusColourMode),
                        .lightSpeed = settings.integer(Setting::PlusSpeed),
                        .off = settings.flag(Setting::PlusOff)};
    // The slider stands where the LED that it would show is.
    const std::size_t slot = state.colourMode == lighting::kColourModeSingle ? lighting::kSingleSlot : 0;
    state.panelBrightness = static_cast<int>(std::lround(state.brightness.at(slot) * 100.0F));
    return state;
}

bool savePlusRing(Settings &settings, const PlusRingState &state) {
    return settings.write({{Setting::PlusRed, joined(state.red)},
                           {Setting::PlusGreen, joined(state.green)},
                           {Setting::PlusBlue, joined(state.blue)},
                           {Setting::PlusBright, joined(state.brightness)},
                           {Setting::PlusLightMode, state.lightMode},
                           {Setting::PlusColourMode, state.colourMode},
                           {Setting::PlusSpeed, state.lightSpeed},
                           {Setting::PlusOff, state.off}});
}

DuoState loadDuo(const Settings &settings) {
    using lighting::kDuoEntries;
    using lighting::kDuoRings;
    return {.on = settings.flag(Setting::DuoOn),
            .lightMode = loaded<int, kDuoRings>(settings, Setting::DuoLightMode),
            .colourMode = loaded<int, kDuoRings>(settings, Setting::DuoColourMode),
            .speedMode = loaded<int, kDuoRings>(settings, Setting::DuoSpeedMode),
            .red = loaded<int, kDuoEntries>(settings, Setting::DuoRed),
            .green = loaded<int, kDuoEntries>(settings, Setting::DuoGreen),
            .blue = loaded<int, kDuoEntries>(settings, Setting::DuoBlue),
            .brightness = loaded<double, kDuoEntries>(settings, Setting::DuoBright),
            .singleRed = loaded<int, kDuoRings>(settings, Setting::DuoSingleRed),
            .singleGreen = loaded<int, kDuoRings>(settings, Setting::DuoSingleGreen),
            .singleBlue = loaded<int, kDuoRings>(settings, Setting::DuoSingleBlue),
            .singleBrightness = loaded<double, kDuoRings>(settings, Setting::DuoSingleBright)};
}

bool saveDuo(Settings &settings, const DuoState &state) {
    return settings.write({{Setting::DuoOn, state.on},
                           {Setting::DuoLightMode, joined(state.lightMode)},
                           {Setting::DuoColourMode, joined(state.colourMode)},
                           {Setting::DuoSpeedMode, joined(state.speedMode)},
                           {Setting::DuoRed, joined(state.red)},
                           {Setting::DuoSingleRed, joined(state.singleRed)},
                           {Setting::DuoGreen, joined(state.green)},
                           {Setting::DuoSingleGreen, joined(state.singleGreen)},
                           {Setting::DuoBlue, joined(state.blue)},
                           {Setting::DuoSingleBlue, joined(state.singleBlue)},
                           {Setting::DuoBright, joined(state.brightness)},
                           {Setting::DuoSingleBright, joined(state.singleBrightness)}});
}

bool lightingFileExists(const Settings &settings) {
    return QFile::exists(settings.path(SettingsFile::Lighting));
}

void writeDuoDefaultsOnce(Settings &settings) {
    if (!settings.flag(Setting::DuoWritten) && saveDuo(settings, {})) {
        settings.write({{Setting::DuoWritten, true}});
    }
}

} // namespace zpsg::app
