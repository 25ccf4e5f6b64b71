#include "lighting/SingleRing.h"

#include "lighting/Logging.h"

#include <algorithm>

namespace zpsg::lighting {
namespace {

enum Mode { kStatic, kSpectrum, kSelfBlink, kAutoBlink };

constexpr std::array<Colour, 12> kWheel{
    Colour{255, 0, 0}, Colour{255, 127, 0}, Colour{255, 255, 0}, Colour{127, 255, 0},
    Colour{0, 255, 0}, Colour{0, 255, 127}, Colour{0, 255, 255}, Colour{0, 127, 255},
    Colour{0, 0, 255}, Colour{127, 0, 255}, Colour{255, 0, 255}, Colour{255, 0, 127},
};

std::optional<Colour> parsed(const QStringList &rgb) {
    if (rgb.size() != 3) {
        return std::nullopt;
    }
    std::array<std::uint8_t, 3> parts{};
    for (std::size_t i = 0; i < parts.size(); ++i) {
        bool isNumber = false;
        const int value = rgb.at(static_cast<int>(i)).trimmed().toInt(&isNumber);
        if (!isNumber) {
            return std::nullopt;
        }
        parts.at(i) = static_cast<std::uint8_t>(std::clamp(value, 0, 255));
    }
    return Colour{parts[0], parts[1], parts[2]};
}

} // namespace

void SingleRing::restore(const SingleRingState &state) {
    state_ = state;
    lit_ = true;
}

bool SingleRing::changeColour(const QStringList &rgb) {
    const auto colour = parsed(rgb);
    if (!colour) {
        qCDebug(lcLighting) << "no colour:" << rgb;
        return false;
    }
    state_.colour = *colour;
    return state_.off || sendColour(scaled(state_.colour, state_.brightness));
}

bool SingleRing::changeBrightness(int percent) {
    state_.brightness = brightnessFactor(std::clamp(percent, 0, 100));
    return state_.off || state_.lightMode != kStatic || apply();
}

bool SingleRing::turnOff(bool off) {
    state_.off = off;
    return apply();
}

bool SingleRing::changeLightMode(int mode) {
    if (mode < kStatic || mode > kAutoBlink) {
        qCDebug(lcLighting) << "no such light mode:" << mode;
        return false;
    }
    state_.lightMode = mode;
    if (!brightnessAdjustable()) {
        state_.brightness = brightnessFactor(100);
    }
    return state_.off || apply();
}

bool SingleRing::apply() {
    lit_ = true;
    if (state_.off) {
        return sendColour(kDark);
    }
    switch (state_.lightMode) {
    case kSpectrum:
        return sendSpectrum();
    case kSelfBlink:
    case kAutoBlink:
        return output_.supplyPresent() || output_.secondPresent(); // the timer sends
    default:
        return sendColour(scaled(state_.colour, state_.brightness));
    }
}

HeldLeds SingleRing::ownLight() const {
    return {.colours = {state_.off ? kDark : scaled(state_.colour, state_.brightness)},
            .spectrum = !state_.off && state_.lightMode == kSpectrum};
}

void SingleRing::selfBlink() {
    sendColour(lit_ ? scaled(state_.colour, state_.brightness) : kDark);
    lit_ = !lit_;
}

void SingleRing::autoBlink() {
    sendColour(scaled(kWheel.at(wheelStep_), state_.brightness));
    wheelStep_ = (wheelStep_ + 1) % kWheel.size();
}

BlinkTimer SingleRing::blinkTimer() const {
    if (state_.off) {
        return BlinkTimer::None;
    }
    return state_.lightMode == kSelfBlink   ? BlinkTimer::Self
           : state_.lightMode == kAutoBlink ? BlinkTimer::Auto
                                            : BlinkTimer::None;
}

bool SingleRing::brightnessAdjustable() const {
    return state_.lightMode != kSpectrum && state_.lightMode != kSelfBlink;
}

bool SingleRing::sendColour(Colour colour) {
    if (output_.supplyPresent()) {
        output_.send(colourReport(colour));
        return true;
    }
    if (output_.secondPresent()) {
        output_.sendSecond(secondColour(colour));
        return true;
    }
    return false;
}

bool SingleRing::sendSpectrum() {
    if (output_.supplyPresent()) {
        output_.send(kSpectrumReport);
        return true;
    }
    if (output_.secondPresent()) {
        output_.sendSecond(secondEnable(true));
        output_.sendSecond(secondSpectrum());
        return true;
    }
    return false;
}

} // namespace zpsg::lighting
