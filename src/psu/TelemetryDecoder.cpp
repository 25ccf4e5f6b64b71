#include "psu/TelemetryDecoder.h"

#include <cmath>
#include <string>

namespace zpsg::psu {
namespace {

constexpr std::uint16_t wordAt(std::span<const std::uint8_t> bytes, std::size_t at) {
    return static_cast<std::uint16_t>(bytes[at] | (bytes[at + 1] << 8U));
}

double rawScale(unsigned index) {
    constexpr unsigned kExceptionalIndex = 25;
    if (index == kExceptionalIndex) {
        return 0.5;
    }
    return std::ldexp(1.0, static_cast<int>(index) - (index >= 16 ? 32 : 0));
}

} // namespace

double decodeLinear(std::uint16_t word) {
    const unsigned field = word >> 11U;
    const int exponent = static_cast<int>(field) - (field >= 16 ? 32 : 0);
    return std::ldexp(word & 0x07FFU, exponent);
}

double decodeRawLinear(std::uint16_t word) {
    const double value = (word & 0x03FFU) * rawScale(word >> 11U);
    return std::trunc(value * 1000.0 + 0.5) / 1000.0;
}

std::optional<Monitored> decodeReply(const Reply &reply) {
    if (reply.count < 4 || reply.bytes[0] != kReadClass) {
        return std::nullopt;
    }
    const auto row = std::find_if(kQuantities.begin(), kQuantities.end(),
                                  [&](const Quantity &q) { return q.command == reply.bytes[1]; });
    if (row == kQuantities.end()) {
        return std::nullopt;
    }
    return Monitored{row->key, static_cast<float>(decodeLinear(wordAt(reply.bytes, 2)))};
}

RawSample decodeRawSample(std::span<const std::uint8_t, kRawSampleSize> report) {
    const auto value = [&](std::size_t index) { return decodeRawLinear(wordAt(report, 1 + 2 * index)); };
    return {value(0), value(1), value(2), value(3), value(4), value(5),
            value(6), value(7), value(8), value(9), value(10)};
}

std::string replyText(const Reply &reply) {
    std::string text;
    for (int i = 2; i < reply.count; ++i) {
        if (const auto byte = reply.bytes.at(static_cast<std::size_t>(i)); byte != 0) {
            text.push_back(static_cast<char>(byte));
        }
    }
    return text;
}

} // namespace zpsg::psu
