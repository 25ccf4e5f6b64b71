// Every report that lights the fan's rings, byte for byte. Pure functions from values to reports.
//
// The single-colour report carries red, green, blue; the frames carry each LED as green, red, blue. Products
// are truncated, never rounded, in the precision that stands with each. Unnamed bytes are zero.
#pragma once

#include "lighting/LightingState.h"
#include "psu/Reports.h"

#include <array>
#include <optional>
#include <span>
#include <vector>

namespace zpsg::lighting {

/// Payload bytes 1 and 2 of what changes the LEDs.
inline constexpr std::uint8_t kLightClass = 0x30;
inline constexpr std::uint8_t kLightCommand = 0x42;
/// Byte 3 of a frame that the host computed, whether it carries 12 LEDs or 18; also "Full Lighted".
inline constexpr std::uint8_t kStreamedCode = 0x18;

/// The factor of a brightness slider at `percent`: divided in single precision, kept in double.
[[nodiscard]] double brightnessFactor(int percent);

/// `colour` at `factor` (0 to 1), in double precision.
[[nodiscard]] Colour scaled(Colour colour, double factor);

/// The single-colour ring in this colour, which is scaled already.
[[nodiscard]] psu::Request colourReport(Colour colour);
/// The device goes through the colours by itself.
inline constexpr psu::Request kSpectrumReport = psu::makeRequest({kLightClass, kLightCommand, 0x01});

/// Effect code of the 12-LED ring's light mode; the speed counts in modes 0 to 5 only.
[[nodiscard]] std::uint8_t effectCode(int lightMode, int speed);
/// The frame of the 12-LED ring's panel: the colours (low byte of each component times the slot's factor, in
/// single precision) with the effect code. Colour mode 1 shows slot 12 on every LED.
[[nodiscard]] psu::Request panelFrame(const PlusRingState &state);
/// The frame of colours that the host computes for the 12-LED ring: component times factor times `brightness`
/// over 100, in single precision; colour mode 1 likewise.
[[nodiscard]] psu::Request streamedFrame(const PlusRingState &state, int brightness);
/// A streamed frame of the 12-LED ring (12 colours) or of the Duo set (18), scaled already.
[[nodiscard]] psu::Request streamedFrame(std::span<const Colour> leds);

/// How the Duo set's 18 LEDs take their colours.
enum class DuoLayout {
    EachSlot = 0, ///< LED i takes slot i
    OddSlots = 1, ///< slots 1, 3, 5, 7, 9 and 11, three times over
};
[[nodiscard]] psu::Request duoFrame(const std::array<Colour, kDuoLeds> &leds, DuoLayout layout);

/// Makes the 12-LED ring keep what it shows.
inline constexpr psu::Request kStoreReport = psu::makeRequest({kLightClass, 0x43, 0x01});

/// Degrees Celsius above which the thermal mode of the 12-LED ring shows hot.
inline constexpr float kThermalCelsius = 60.0F;
/// What the thermal mode sends at this temperature: all LEDs hot (orange-red) or cool (blue), with the ring's
/// own light mode, colour mode and speed.
[[nodiscard]] psu::Request thermalFrame(const PlusRingState &state, float celsius);

/// Output report of the second lighting device.
using SecondReport = std::array<std::uint8_t, 16>;
[[nodiscard]] SecondReport secondColour(Colour colour);
[[nodiscard]] SecondReport secondEnable(bool enabled);
[[nodiscard]] SecondReport secondSpectrum();

/// What a lighting report makes the LEDs of a ring hold: the colours as sent and, when the device animates
/// them, how.
struct HeldLeds {
    std::vector<Colour> colours;              ///< 1, 12 or 18
    std::optional<std::uint8_t> effectCode{}; ///< 0x00 to 0x17: one of the 12-LED ring's effects
    bool spectrum = false;                    ///< the single-colour ring goes through the colours
};
/// Nothing for a report that is no lighting report.
[[nodiscard]] std::optional<HeldLeds> heldBy(const psu::Request &report, RingKind ring);
[[nodiscard]] std::optional<HeldLeds> heldBy(const SecondReport &report);

/// A picture of LEDs that hold this, `step` steps of 40 ms on: what the device animates by itself is drawn
/// with the Duo set's effect of that name.
[[nodiscard]] std::vector<Colour> pictured(const HeldLeds &held, int step);

} // namespace zpsg::lighting
