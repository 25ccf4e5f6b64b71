#include "platform/NativeEvent.h"

#include <windows.h>

namespace zpsg::platform {

std::optional<WindowMessage> fromNativeEvent(void *event) {
    const MSG *message = static_cast<const MSG *>(event);
    if (message->message == kDeviceChange ||
        (message->message >= kShowRequest && message->message <= kSyncOffByKeyBoard)) {
        return WindowMessage{message->message, message->wParam, message->lParam};
    }
    return std::nullopt;
}

bool displayAvailable() { return true; }

void prepareToolkit() {}

} // namespace zpsg::platform
