#include "platform/RawHid.h"

#include "platform/linux/Log.h"

#include <hidapi.h>

namespace zpsg::platform {
namespace {

struct CloseDevice {
    void operator()(hid_device *device) const { hid_close(device); }
};
using Device = std::unique_ptr<hid_device, CloseDevice>;

struct FreeList {
    void operator()(hid_device_info *list) const { hid_free_enumeration(list); }
};

class HidapiRawHid final : public RawHid {
public:
    explicit HidapiRawHid(Device device) : device_(std::move(device)) {}

    bool getInputReport(std::span<std::uint8_t> report) override {
        return whole(hid_get_input_report(device_.get(), report.data(), report.size()), report.size(),
                     "get input report");
    }

    // The report ids of this device are non-zero, so hidapi sends the bytes as they are. Where the device has
    // an interrupt-out endpoint the kernel uses it, else it makes the control request.
    bool setOutputReport(std::span<const std::uint8_t> report) override {
        return whole(hid_write(device_.get(), report.data(), report.size()), report.size(),
                     "set output report");
    }

private:
    bool whole(int count, std::size_t expected, const char *what) {
        if (count < 0) {
            qCDebug(lcPlatform) << what << QString::fromWCharArray(hid_error(device_.get()));
            return false;
        }
        if (static_cast<std::size_t>(count) != expected) {
            qCDebug(lcPlatform, "%s: %d of %zu bytes", what, count, expected);
            return false;
        }
        return true;
    }

    Device device_;
};

} // namespace

std::unique_ptr<RawHid> RawHid::open(std::uint16_t vendor, std::uint16_t product) {
    const std::unique_ptr<hid_device_info, FreeList> list(hid_enumerate(vendor, product));
    for (const hid_device_info *info = list.get(); info != nullptr; info = info->next) {
        if (Device device{hid_open_path(info->path)}) {
            return std::make_unique<HidapiRawHid>(std::move(device));
        }
        qCDebug(lcPlatform) << info->path << QString::fromWCharArray(hid_error(nullptr));
    }
    return nullptr;
}

} // namespace zpsg::platform
