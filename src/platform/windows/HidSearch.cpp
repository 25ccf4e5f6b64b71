#include "platform/windows/HidSearch.h"

namespace zpsg::platform {
namespace {

std::optional<HidHandles> openMatching(HidClass &hid, const std::wstring &path, std::uint16_t vendor,
                                       std::uint16_t product) {
    HidHandles handles{hid.open(path, HidClass::Access::None), nullptr, nullptr};
    if (handles.attributes == nullptr) {
        return std::nullopt;
    }
    const auto ids = hid.ids(handles.attributes);
    if (ids && ids->vendor == vendor && ids->product == product) {
        handles.writing = hid.open(path, HidClass::Access::Write);
        handles.reading = hid.open(path, HidClass::Access::Read);
        if (handles.writing != nullptr && handles.reading != nullptr) {
            return handles;
        }
    }
    for (HidClass::Handle handle : {handles.reading, handles.writing, handles.attributes}) {
        if (handle != nullptr) {
            hid.close(handle);
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<HidHandles> searchHid(HidClass &hid, std::uint16_t vendor, std::uint16_t product) {
    std::wstring path;
    for (unsigned index = 0;; ++index) {
        const HidClass::Entry entry = hid.pathAt(index, path);
        if (entry == HidClass::Entry::End) {
            return std::nullopt;
        }
        if (entry == HidClass::Entry::Found) {
            if (const auto handles = openMatching(hid, path, vendor, product)) {
                return handles;
            }
        }
    }
}

} // namespace zpsg::platform
