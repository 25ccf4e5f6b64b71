#include "psu/HidApiBackend.h"

#include "platform/DeviceAccess.h"

#include <hidapi.h>

namespace zpsg::psu {
namespace {

class HidApiDevice : public HidDevice {
public:
    explicit HidApiDevice(hid_device *handle) : handle_(handle) {}
    ~HidApiDevice() override { hid_close(handle_); }

    int write(std::span<const std::uint8_t> report) override {
        return hid_write(handle_, report.data(), report.size());
    }

    int read(std::span<std::uint8_t> buffer, std::chrono::milliseconds wait) override {
        return hid_read_timeout(handle_, buffer.data(), buffer.size(), static_cast<int>(wait.count()));
    }

private:
    hid_device *handle_;
};

class HidApiBackend : public HidBackend {
public:
    bool initialise() override { return hid_init() == 0; }

    std::unique_ptr<HidDevice> open(std::uint16_t vendor, std::uint16_t product) override {
        hid_device *handle = hid_open(vendor, product, nullptr);
        return handle == nullptr ? nullptr : std::make_unique<HidApiDevice>(handle);
    }

    std::unique_ptr<platform::RawHid> openRaw(std::uint16_t vendor, std::uint16_t product) override {
        return platform::RawHid::open(vendor, product);
    }

    Presence presence(std::uint16_t vendor, std::uint16_t product) override {
        hid_device_info *devices = hid_enumerate(vendor, product);
        auto presence = Presence::Absent;
        for (const hid_device_info *device = devices; device != nullptr; device = device->next) {
            const auto access = platform::deviceAccess(device->path);
            if (access == platform::DeviceAccess::Allowed) {
                presence = Presence::Present;
                break;
            }
            if (access == platform::DeviceAccess::Denied) {
                presence = Presence::Denied;
            }
        }
        hid_free_enumeration(devices);
        return presence;
    }
};

} // namespace

std::unique_ptr<HidBackend> makeHidApiBackend() { return std::make_unique<HidApiBackend>(); }

} // namespace zpsg::psu
