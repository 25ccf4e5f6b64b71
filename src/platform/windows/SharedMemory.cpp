#include "platform/windows/SharedMemory.h"

namespace zpsg::platform {

SharedMemory::SharedMemory(const wchar_t *name) : mapping_(OpenFileMappingW(FILE_MAP_READ, FALSE, name)) {
    if (!mapping_) {
        return;
    }
    const void *view = MapViewOfFile(mapping_.get(), FILE_MAP_READ, 0, 0, 0);
    MEMORY_BASIC_INFORMATION region{};
    if (view == nullptr) {
        debugError("shared memory", GetLastError());
    } else if (VirtualQuery(view, &region, sizeof(region)) != 0) {
        bytes_ = {static_cast<const std::byte *>(view), region.RegionSize};
    } else {
        UnmapViewOfFile(view);
    }
}

SharedMemory::~SharedMemory() {
    if (bytes_.data() != nullptr) {
        UnmapViewOfFile(bytes_.data());
    }
}

} // namespace zpsg::platform
