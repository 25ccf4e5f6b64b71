#include "platform/linux/PulseLibrary.h"

#include "platform/linux/Log.h"

#include <dlfcn.h>

namespace zpsg::platform {

PulseLibrary::PulseLibrary() : library_(dlopen("libpulse.so.0", RTLD_NOW | RTLD_LOCAL)) {
    // The functions have been looked for by now.
    if (library_ == nullptr || !complete_) {
        const char *reason = dlerror();
        qCInfo(lcPlatform, "no sound to follow: %s", reason != nullptr ? reason : "libpulse is too old");
    }
}

PulseLibrary::Symbol PulseLibrary::find(const char *name) {
    void *address = library_ != nullptr ? dlsym(library_, name) : nullptr;
    complete_ = complete_ && address != nullptr;
    return {address};
}

const PulseLibrary *PulseLibrary::load() {
    static const PulseLibrary library;
    return library.complete_ ? &library : nullptr;
}

} // namespace zpsg::platform
