// The block of memory that HWiNFO shares, as its documented interface lays it out.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace zpsg::sensors {

/// The numbers are those of the block.
enum class HwinfoType : std::uint32_t {
    None,
    Temperature,
    Volts,
    Fan,
    Amps,
    Watts,
    Clock,
    Usage,
    Other,
};

/// One reading. Texts are HWiNFO's own, not what the user has made of them; they are part of the block's
/// bytes and in the PC's code page, of which only ASCII and the degree sign matter here.
struct HwinfoReading {
    HwinfoType type;
    std::string_view sensor; ///< as "GPU [#0]: NVIDIA GeForce RTX 3080"
    std::string_view label;
    std::string_view unit;
    double value;
};

struct HwinfoBlock {
    enum class State {
        Good,
        Ended, ///< HWiNFO has stopped sharing
        Torn,  ///< no such block, or in the middle of being written
    };
    State state = State::Torn;
    std::int64_t pollTime = 0; ///< when HWiNFO has read its sensors, seconds
    std::vector<HwinfoReading> readings;
};

/// Never looks outside `bytes`, whatever they say. The readings refer to them. Elements that are longer than
/// the known layout are taken, their ends left alone; a reading of a sensor that isn't there is left out.
HwinfoBlock decodeHwinfo(std::span<const std::byte> bytes);

} // namespace zpsg::sensors
