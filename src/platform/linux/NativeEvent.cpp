#include "platform/NativeEvent.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace zpsg::platform {

std::optional<WindowMessage> fromNativeEvent(void * /*event*/) { return std::nullopt; }

bool displayAvailable() {
    // A platform plug-in that the user chose needs no display of these, or says itself what it lacks.
    constexpr std::array kNames{"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
    return std::ranges::any_of(kNames, [](const char *name) {
        const char *value = std::getenv(name); // NOLINT(concurrency-mt-unsafe): no thread has been started
        return value != nullptr && *value != '\0';
    });
}

void prepareToolkit() {
    setenv("QT_XCB_GL_INTEGRATION", "none", 0); // NOLINT(concurrency-mt-unsafe): no thread has been started
}

} // namespace zpsg::platform
