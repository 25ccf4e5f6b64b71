// The HID report descriptors of the two products: what the kernel learns of their reports' ids and sizes.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace zpsg::vusb {

/// Main path: one unnumbered report of 64 bytes each way.
inline constexpr auto kMainDescriptor = std::to_array<std::uint8_t>({
    0x06, 0x00, 0xFF, // usage page: vendor
    0x09, 0x01,       // usage 1
    0xA1, 0x01,       // collection: application
    0x15, 0x00,       //   logical minimum 0
    0x26, 0xFF, 0x00, //   logical maximum 255
    0x75, 0x08,       //   report size 8 bits
    0x95, 0x40,       //   report count 64
    0x09, 0x02,       //   usage 2
    0x81, 0x02,       //   input: data, variable, absolute
    0x95, 0x40,       //   report count 64
    0x09, 0x03,       //   usage 3
    0x91, 0x02,       //   output: data, variable, absolute
    0xC0,             // end of collection
});

/// Where the main path's descriptor says how many bytes an input report has.
inline constexpr std::size_t kMainInputCount = 15;
static_assert(kMainDescriptor[kMainInputCount - 1] == 0x95 && kMainDescriptor[kMainInputCount + 3] == 0x81);

/// Raw path: numbered reports; the counts leave out the id. The sample and the two blocks are input reports
/// that the host asks for, the fan mode and the light are output reports.
inline constexpr auto kRawDescriptor = std::to_array<std::uint8_t>({
    0x06, 0x00, 0xFF, // usage page: vendor
    0x09, 0x01,       // usage 1
    0xA1, 0x01,       // collection: application
    0x15, 0x00,       //   logical minimum 0
    0x26, 0xFF, 0x00, //   logical maximum 255
    0x75, 0x08,       //   report size 8 bits
    0x85, 0x10,       //   report id: the sample
    0x95, 0x1E,       //   report count 30
    0x09, 0x02,       //   usage 2
    0x81, 0x02,       //   input
    0x95, 0x20,       //   report count 32, for both blocks
    0x85, 0x11,       //   report id: block A
    0x09, 0x03,       //   usage 3
    0x81, 0x02,       //   input
    0x85, 0x12,       //   report id: block B
    0x09, 0x04,       //   usage 4
    0x81, 0x02,       //   input
    0x85, 0x20,       //   report id: fan mode
    0x95, 0x01,       //   report count 1
    0x09, 0x05,       //   usage 5
    0x91, 0x02,       //   output
    0x85, 0x1E,       //   report id: the light
    0x95, 0x0F,       //   report count 15
    0x09, 0x06,       //   usage 6
    0x91, 0x02,       //   output
    0xC0,             // end of collection
});

} // namespace zpsg::vusb
