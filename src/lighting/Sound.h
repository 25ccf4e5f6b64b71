// What the PC is playing, as effects need it.
#pragma once

#include <array>
#include <cstddef>

namespace zpsg::lighting {

inline constexpr std::size_t kSoundBands = 12;

/// Smoothed for the eye: rises at once, falls slowly. All zero when nothing is heard.
struct Sound {
    float level = 0.0F;                     ///< loudness, 0 to 1
    std::array<float, kSoundBands> bands{}; ///< 0 to 1 each, from low tones to high
};

} // namespace zpsg::lighting
