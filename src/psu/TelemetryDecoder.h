// Pure functions from the device's reports to numbers.
#pragma once

#include "psu/Reports.h"

#include <optional>
#include <span>
#include <string>

namespace zpsg::psu {

/// The main path's 16-bit linear format: exponent in bits 15 to 11 (two's complement), mantissa in bits 10 to
/// 0. The mantissa is unsigned although the format's usual reading is signed: the supply's quantities are
/// never negative, and this family uses the full eleven bits.
double decodeLinear(std::uint16_t word);

/// The raw path's: ten mantissa bits (bit 10 is ignored) times a power of two chosen by bits 15 to 11,
/// rounded to three decimals. Index 25 stands for 0.5, not for 2^-7.
double decodeRawLinear(std::uint16_t word);

/// One value out of a reply to a monitored-value request.
struct Monitored {
    const char *key; ///< the key that belongs to the echoed command byte
    float value;
};

/// Nothing unless the reply is at least four bytes long, its first byte is 0x31 and its second lies in 0x33
/// to 0x3B. The echoed command decides the key, whatever was asked.
std::optional<Monitored> decodeReply(const Reply &reply);

/// The raw path's sample (input report 0x10). Volts, amps, watts, rpm, a fraction, degrees Celsius.
struct RawSample {
    double volts12, amps12, volts5, amps5, volts33, amps33;
    double watts, fanRpm, efficiency, celsius, acVolts;
};

inline constexpr std::uint8_t kRawSampleReport = 0x10;
inline constexpr std::uint8_t kRawBlockAReport = 0x11;
inline constexpr std::uint8_t kRawBlockBReport = 0x12;
inline constexpr std::size_t kRawSampleSize = 31; ///< report id and fifteen words
inline constexpr std::size_t kRawBlockSize = 33;  ///< report id and 32 bytes

/// `report` with its id in byte 0.
RawSample decodeRawSample(std::span<const std::uint8_t, kRawSampleSize> report);

/// The text of a model or serial reply: bytes 2 to count - 1, zero bytes skipped, as Latin-1.
std::string replyText(const Reply &reply);

} // namespace zpsg::psu
