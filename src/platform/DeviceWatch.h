// Tells when a USB or HID device comes or goes.
#pragma once

#include "platform/WindowMessage.h"

#include <memory>

namespace zpsg::platform {

/// Watches for as long as it lives. Ownership: the caller.
class DeviceWatch {
public:
    virtual ~DeviceWatch() = default;
    DeviceWatch(const DeviceWatch &) = delete;
    DeviceWatch &operator=(const DeviceWatch &) = delete;

    /// Starts watching. Each burst of changes reaches `handler` as one kDeviceChange message on the event
    /// loop's thread, when it has paused for 150 ms and at the latest 500 ms after it began. The handler may
    /// destroy the watch. On Windows, once this process has its main window, the system sends the message to
    /// that by itself, several a burst; there the object only keeps the registration and `handler` is not
    /// used. Gives null when the system offers no notification (a debug line says why).
    static std::unique_ptr<DeviceWatch> start(MessageHandler handler);

protected:
    DeviceWatch() = default;
};

} // namespace zpsg::platform
