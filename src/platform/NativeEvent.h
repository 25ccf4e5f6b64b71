// Messages that the toolkit hands on from the window system, as numbered messages.
#pragma once

#include "platform/WindowMessage.h"

#include <optional>

namespace zpsg::platform {

/// The message inside the toolkit's native event, or nothing when it is none of this program's. Off Windows
/// the numbered messages come through TitleClaim and DeviceWatch instead, and there is never one in here.
std::optional<WindowMessage> fromNativeEvent(void *event);

/// Whether a window can be shown: a display server is named, or one is not needed.
bool displayAvailable();

/// Call before the application object exists. Leaves out what the toolkit would load for nothing: on X11 its
/// OpenGL side brings in a whole compiler, more memory than the rest of the program. A choice of the user's
/// own stays.
void prepareToolkit();

} // namespace zpsg::platform
