// The second HID device of the supply (product 0x232A): read by get-input-report requests through the
// platform's HID class interface on Windows, through hidapi on Linux.
#pragma once

#include <cstdint>
#include <memory>
#include <span>

namespace zpsg::platform {

/// An open device interface. All calls block in the system for as long as the device takes, so they belong on
/// a thread that may wait. Not thread-safe.
///
/// A call into a hung device may not return at all, and the handles can't be closed under it. So the thread
/// that makes the calls also owns and destroys the object, and closing the program never waits for that
/// thread without a limit: it is left behind with its object, and the end of the process makes the system
/// cancel the call.
class RawHid {
public:
    virtual ~RawHid() = default;
    RawHid(const RawHid &) = delete;
    RawHid &operator=(const RawHid &) = delete;

    /// Get-input-report. `report[0]` holds the report id on entry; on success the whole report, id included,
    /// is in `report`. False on failure or when the device answered with fewer bytes than asked for.
    virtual bool getInputReport(std::span<std::uint8_t> report) = 0;

    /// Set-output-report; `report[0]` is the report id. False on failure.
    virtual bool setOutputReport(std::span<const std::uint8_t> report) = 0;

    /// The first present device with these ids that can be opened, or null.
    static std::unique_ptr<RawHid> open(std::uint16_t vendor, std::uint16_t product);

protected:
    RawHid() = default;
};

} // namespace zpsg::platform
