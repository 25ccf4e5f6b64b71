#pragma once

#include "platform/DeviceWatch.h"

#include <span>

namespace zpsg::platform {

/// Which devices' events count; a null type is any.
struct DeviceFilter {
    const char *subsystem;
    const char *type;
};

/// DeviceWatch::start() for a given source of events: "udev" (the daemon) or "kernel".
std::unique_ptr<DeviceWatch> startUdevWatch(const char *group, std::span<const DeviceFilter> filters,
                                            MessageHandler handler);

} // namespace zpsg::platform
