#include "simulator/LinearEncoding.h"

#include <cmath>

namespace zpsg::simulator {
namespace {

constexpr int kLowestExponent = -16;
constexpr int kHighestExponent = 15;
constexpr double kLargestMantissa = 1023.0;
constexpr int kSkippedRawExponent = -7; // index 25

std::uint16_t word(int exponent, double mantissa) {
    const auto field = static_cast<unsigned>(exponent) & 0x1FU;
    return static_cast<std::uint16_t>((field << 11U) | static_cast<unsigned>(mantissa));
}

std::uint16_t encode(double value, bool raw) {
    if (!(value > 0.0)) {
        return 0;
    }
    for (int exponent = kLowestExponent; exponent <= kHighestExponent; ++exponent) {
        const double mantissa = std::nearbyint(std::ldexp(value, -exponent));
        if (mantissa <= kLargestMantissa && !(raw && exponent == kSkippedRawExponent)) {
            return word(exponent, mantissa);
        }
    }
    return word(kHighestExponent, kLargestMantissa);
}

} // namespace

std::uint16_t encodeLinear(double value) { return encode(value, false); }

std::uint16_t encodeRawLinear(double value) { return encode(value, true); }

} // namespace zpsg::simulator
