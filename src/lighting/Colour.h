// A colour as an LED shows it, and how many LEDs each ring has.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zpsg::lighting {

struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    bool operator==(const Colour &) const = default;
};

inline constexpr Colour kDark{};

/// LEDs of the 12-LED ring.
inline constexpr std::size_t kPlusLeds = 12;
/// LEDs of the Duo set: the front ring's come first in a frame, then the middle ring's.
inline constexpr std::size_t kFrontLeds = 6;
inline constexpr std::size_t kMiddleLeds = 12;
inline constexpr std::size_t kDuoLeds = kFrontLeds + kMiddleLeds;

/// Which ring the fan carries; the series code of the model.
enum class RingKind { Single = 0, Plus = 1, Duo = 2 };

} // namespace zpsg::lighting
