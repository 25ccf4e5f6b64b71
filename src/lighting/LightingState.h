// What each ring is set to. Plain values: the panels edit copies of them, the controllers send them, the
// lighting settings file keeps them.
#pragma once

#include "lighting/Colour.h"

#include <array>

namespace zpsg::lighting {

/// The single-colour ring.
struct SingleRingState {
    Colour colour{0, 127, 255}; ///< as chosen, unscaled; kept while the ring is off
    double brightness = 1.0;    ///< factor, 0 to 1
    int lightMode = 0;          ///< index into kSingleLightModes
    int colourMode = 0;
    bool off = false;

    bool operator==(const SingleRingState &) const = default;
};

inline constexpr std::size_t kPlusSlots = kPlusLeds + 1;
/// The slot that holds the single colour.
inline constexpr std::size_t kSingleSlot = kPlusLeds;
/// Colour mode in which every LED shows the single colour; any other shows each LED's own.
inline constexpr int kColourModeSingle = 1;
inline constexpr int kColourModeEach = 0;
inline constexpr int kSpeedCount = 4;

/// The 12-LED ring. Slots 0 to 11 are its LEDs, slot 12 is the single colour.
struct PlusRingState {
    std::array<int, kPlusSlots> red{0, 0, 0, 0, 127, 255, 255, 255, 255, 255, 127, 0, 0};
    std::array<int, kPlusSlots> green{127, 255, 255, 255, 255, 255, 127, 0, 0, 0, 0, 0, 127};
    std::array<int, kPlusSlots> blue{255, 255, 127, 0, 0, 0, 0, 0, 127, 255, 255, 255, 255};
    std::array<float, kPlusSlots> brightness{1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}; ///< factors, 0 to 1
    int lightMode = 0; ///< index into kPlusLightModes
    int colourMode = kColourModeEach;
    int lightSpeed = 2;        ///< index into kSpeeds
    int panelBrightness = 100; ///< percent; of the panel's slider and of streamed frames
    bool off = false;

    bool operator==(const PlusRingState &) const = default;
};

/// Entries of the Duo set's lists: a twelve-step wheel for each ring. The middle ring shows entries 12 to 23;
/// the front ring, which has half as many LEDs, shows every second of entries 0 to 11, from entry 1 on.
inline constexpr std::size_t kDuoEntries = 24;
inline constexpr std::size_t kDuoRings = 2;
inline constexpr std::size_t kFront = 0;
inline constexpr std::size_t kMiddle = 1;

/// Which entry of the lists LED `led` of ring kFront or kMiddle shows.
constexpr std::size_t duoEntry(std::size_t ring, std::size_t led) {
    return ring == kFront ? 2 * led + 1 : kDuoEntries / 2 + led;
}

/// The Duo set; its defaults are those that are written to the file once.
struct DuoState {
    bool on = true;
    std::array<int, kDuoRings> lightMode{0, 0};  ///< index into duoEffects(), front and middle
    std::array<int, kDuoRings> colourMode{0, 0}; ///< as above
    std::array<int, kDuoRings> speedMode{0, 0};  ///< index into kSpeeds
    std::array<int, kDuoEntries> red{0, 0, 0, 0, 127, 255, 255, 255, 255, 255, 127, 0,
                                     0, 0, 0, 0, 127, 255, 255, 255, 255, 255, 127, 0};
    std::array<int, kDuoEntries> green{127, 255, 255, 255, 255, 255, 127, 0, 0, 0, 0, 0,
                                       127, 255, 255, 255, 255, 255, 127, 0, 0, 0, 0, 0};
    std::array<int, kDuoEntries> blue{255, 255, 127, 0, 0, 0, 0, 0, 127, 255, 255, 255,
                                      255, 255, 127, 0, 0, 0, 0, 0, 127, 255, 255, 255};
    std::array<double, kDuoEntries> brightness{1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1,
                                               1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}; ///< factors, 0 to 1
    std::array<int, kDuoRings> singleRed{255, 0};
    std::array<int, kDuoRings> singleGreen{0, 255};
    std::array<int, kDuoRings> singleBlue{0, 0};
    std::array<double, kDuoRings> singleBrightness{1, 1};

    bool operator==(const DuoState &) const = default;
};

/// A name in the program's texts: the translation key, or null for a name that is shown as it stands.
struct ModeName {
    const char *name;
    const char *textKey;
};

inline constexpr std::array kSingleLightModes{
    ModeName{"Static", "MAIN_CIRQ_STATIC"},
    ModeName{"Spectrum", "MAIN_CIRQ_SPECTRUM"},
    ModeName{"Blink", "MAIN_CIRQ_BLINK"},
    ModeName{"Colour blink", "MAIN_CIRQ_COLOUR_BLINK"},
};
/// The device runs modes 0 to 5 by itself.
inline constexpr std::array kPlusLightModes{
    ModeName{"Flow", "MAIN_12LED_Flow"},
    ModeName{"RGB Spectrum", "MAIN_12LED_RGB_Spectrum"},
    ModeName{"Ripple", "MAIN_12LED_Ripple"},
    ModeName{"Blink", "MAIN_12LED_Blink"},
    ModeName{"Pulse", "MAIN_12LED_Pulse"},
    ModeName{"Wave", "MAIN_12LED_Wave"},
    ModeName{"Full Lighted", "MAIN_12LED_Full_Lighted"},
    ModeName{"Thermal", nullptr},
};
inline constexpr int kPlusFullLighted = 6;
inline constexpr int kPlusThermal = 7;
inline constexpr std::array<ModeName, kSpeedCount> kSpeeds{
    ModeName{"Extreme", "MAIN_12LED_Extreme"},
    ModeName{"Fast", "MAIN_12LED_Fast"},
    ModeName{"Normal", "MAIN_12LED_Normal"},
    ModeName{"Slow", "MAIN_12LED_Slow"},
};

} // namespace zpsg::lighting
