// The real devices, through hidapi and the platform's raw HID access.
#pragma once

#include "psu/HidBackend.h"

namespace zpsg::psu {

/// A back end on the machine's own HID devices.
std::unique_ptr<HidBackend> makeHidApiBackend();

} // namespace zpsg::psu
