// The seam between the program and a device: open, write, read. Behind it stand hidapi with the platform's
// raw HID access, and the simulated supply.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

#include "platform/RawHid.h"

namespace zpsg::psu {

/// USB ids of the supply: main path, raw path.
inline constexpr std::uint16_t kVendorId = 0x264A;
inline constexpr std::uint16_t kMainProductId = 0x2329;
inline constexpr std::uint16_t kRawProductId = 0x232A;

/// Output report of the main path: byte 0 is the report id 0x00, then 64 bytes of payload.
inline constexpr std::size_t kOutputReportSize = 65;
/// Input report of the main path: 64 bytes of payload, no report id.
inline constexpr std::size_t kInputReportSize = 64;

/// An open main-path device. Calls may block in the system, so they belong on the link's own thread.
/// Not thread-safe; destruction closes the handle.
class HidDevice {
public:
    virtual ~HidDevice() = default;
    HidDevice(const HidDevice &) = delete;
    HidDevice &operator=(const HidDevice &) = delete;

    /// Writes one output report, report id first. The number of bytes written, or -1.
    virtual int write(std::span<const std::uint8_t> report) = 0;

    /// Reads one input report into `buffer`, waiting at most `wait`. The number of bytes read, 0 when none
    /// came in time, or -1 when the device is gone.
    virtual int read(std::span<std::uint8_t> buffer, std::chrono::milliseconds wait) = 0;

protected:
    HidDevice() = default;
};

/// What the system says of a device without opening it.
enum class Presence { Absent, Denied, Present };

/// Opens devices. Used from the link's own thread only.
class HidBackend {
public:
    virtual ~HidBackend() = default;
    HidBackend(const HidBackend &) = delete;
    HidBackend &operator=(const HidBackend &) = delete;

    /// The library's initialisation; false when it failed. May be called any number of times.
    virtual bool initialise() = 0;

    /// Opens the first main-path device with these ids, any serial number. Null when there is none, or none
    /// that may be opened.
    virtual std::unique_ptr<HidDevice> open(std::uint16_t vendor, std::uint16_t product) = 0;

    /// Opens the raw-path device, likewise.
    virtual std::unique_ptr<platform::RawHid> openRaw(std::uint16_t vendor, std::uint16_t product) = 0;

    /// Whether a device with these ids is listed, and whether this user may open it.
    virtual Presence presence(std::uint16_t vendor, std::uint16_t product) = 0;

protected:
    HidBackend() = default;
};

} // namespace zpsg::psu
