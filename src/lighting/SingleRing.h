// The single-colour ring: static colour, the device's own spectrum, or one of two blinks that the program
// times. It drives the supply or, where there is none but the second lighting device, that one.
#pragma once

#include "lighting/LightOutput.h"

#include <QStringList>

namespace zpsg::lighting {

/// Which of the two blink timers has to run.
enum class BlinkTimer { None, Self, Auto };

inline constexpr int kSelfBlinkMilliseconds = 500;
inline constexpr int kAutoBlinkMilliseconds = 400;

/// Holds no timer: who composes it runs the one that blinkTimer() names after every call here. The calls give
/// false when there was no device to take the report; the state is changed all the same.
class SingleRing {
public:
    explicit SingleRing(LightOutput &output) : output_(output) {}

    [[nodiscard]] const SingleRingState &state() const { return state_; }
    /// Takes over a state without sending anything.
    void restore(const SingleRingState &state);

    /// `rgb` holds red, green and blue as decimal numbers; anything else changes nothing and gives false.
    bool changeColour(const QStringList &rgb);
    /// The slider's value, 0 to 100 (clamped). Sent at once while the ring is static.
    bool changeBrightness(int percent);
    /// `off`: dark, the colour is kept. Else the light mode is applied again.
    bool turnOff(bool off);
    /// Sets the light mode (0 to 3; others change nothing) and applies it.
    bool changeLightMode(int mode);
    void changeColourMode(int mode) { state_.colourMode = mode; }
    /// Sends what the ring shows by its state.
    bool apply();

    /// What apply() lights; of a blink its bright moment.
    [[nodiscard]] HeldLeds ownLight() const;

    // Called by the timers.

    /// The chosen colour, on and off.
    void selfBlink();
    /// From colour to colour of the wheel.
    void autoBlink();

    [[nodiscard]] BlinkTimer blinkTimer() const;
    /// The slider may be moved: not while a mode has set it to 100 %.
    [[nodiscard]] bool brightnessAdjustable() const;

private:
    bool sendColour(Colour colour);
    bool sendSpectrum();

    LightOutput &output_;
    SingleRingState state_;
    bool lit_ = true;
    std::size_t wheelStep_ = 0;
};

} // namespace zpsg::lighting
