// The events that go to the kernel's /dev/uhid.
#pragma once

#include "vusb/UhidSupply.h"

#include <cstdint>
#include <linux/uhid.h>
#include <span>

namespace zpsg::vusb {

/// "Make a device": ids, name and report descriptor of this product.
uhid_event creationEvent(Product product, InputLength length);
/// "Remove the device."
uhid_event destructionEvent();
/// An input report; unnumbered ones without an id.
uhid_event inputEvent(std::span<const std::uint8_t> bytes);
/// The reply to the get-report request `id`: `error` is 0 or an errno value.
uhid_event getReportReply(std::uint32_t id, int error, std::span<const std::uint8_t> bytes = {});
/// The reply to the set-report request `id`, likewise.
uhid_event setReportReply(std::uint32_t id, int error);

/// Writes an event to the open node; false, with errno set, when the kernel refuses it.
bool tell(int uhid, const uhid_event &event);

} // namespace zpsg::vusb
