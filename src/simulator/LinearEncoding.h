// The device's side of its two 16-bit number formats: what the firmware does before it answers.
#pragma once

#include <cstdint>

namespace zpsg::simulator {

/// Main path: 5-bit two's-complement exponent, then the mantissa (bits 10 to 0, of which the device uses 0 to
/// 1023). The nearest representable word; negative values become 0, values too large the largest.
std::uint16_t encodeLinear(double value);

/// Raw path: exponent index in bits 15 to 11, bit 10 unused, ten mantissa bits. Index 25 is avoided: it
/// doesn't mean 2^-7 there.
std::uint16_t encodeRawLinear(double value);

} // namespace zpsg::simulator
