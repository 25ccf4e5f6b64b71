#include "platform/RawHid.h"

#include "platform/windows/HidSearch.h"
#include "platform/windows/Win32.h"

// After the system's own header, on which these depend. Not every edition of the first declares C linkage.
extern "C" {
#include <hidsdi.h>
}
#include <setupapi.h>

#include <vector>

namespace zpsg::platform {
namespace {

/// The interfaces of the HID class that are present now.
class PresentHids final : public HidClass {
public:
    PresentHids() {
        HidD_GetHidGuid(&class_);
        list_ = SetupDiGetClassDevsW(&class_, nullptr, nullptr, DIGCF_PRESENT | DIGCF_DEVICEINTERFACE);
    }
    ~PresentHids() override {
        if (list_ != INVALID_HANDLE_VALUE) {
            SetupDiDestroyDeviceInfoList(list_);
        }
    }
    PresentHids(const PresentHids &) = delete;
    PresentHids &operator=(const PresentHids &) = delete;

    Entry pathAt(unsigned index, std::wstring &path) override {
        SP_DEVICE_INTERFACE_DATA device{};
        device.cbSize = sizeof(device);
        if (list_ == INVALID_HANDLE_VALUE ||
            SetupDiEnumDeviceInterfaces(list_, nullptr, &class_, index, &device) == FALSE) {
            return Entry::End;
        }
        DWORD size = 0;
        SetupDiGetDeviceInterfaceDetailW(list_, &device, nullptr, 0, &size, nullptr);
        if (size < sizeof(SP_DEVICE_INTERFACE_DETAIL_DATA_W)) {
            return Entry::Unreadable;
        }
        std::vector<std::byte> buffer(size);
        auto *detail = reinterpret_cast<SP_DEVICE_INTERFACE_DETAIL_DATA_W *>(buffer.data());
        detail->cbSize = sizeof(*detail);
        if (SetupDiGetDeviceInterfaceDetailW(list_, &device, detail, size, nullptr, nullptr) == FALSE) {
            debugError("HID interface detail", GetLastError());
            return Entry::Unreadable;
        }
        path = detail->DevicePath;
        return Entry::Found;
    }

    Handle open(const std::wstring &path, Access access) override {
        const DWORD rights = access == Access::Write  ? GENERIC_WRITE
                             : access == Access::Read ? GENERIC_READ
                                                      : 0;
        HANDLE handle = CreateFileW(path.c_str(), rights, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
        if (handle != INVALID_HANDLE_VALUE) {
            return handle;
        }
        debugError(narrow(path), GetLastError());
        return nullptr;
    }

    std::optional<Ids> ids(Handle handle) override {
        HIDD_ATTRIBUTES attributes{};
        attributes.Size = sizeof(attributes);
        if (HidD_GetAttributes(handle, &attributes) == FALSE) {
            return std::nullopt;
        }
        return Ids{attributes.VendorID, attributes.ProductID};
    }

    void close(Handle handle) override { CloseHandle(handle); }

private:
    GUID class_{};
    HDEVINFO list_ = INVALID_HANDLE_VALUE;
};

class WindowsRawHid final : public RawHid {
public:
    explicit WindowsRawHid(const HidHandles &handles) : handles_(handles) {}
    ~WindowsRawHid() override {
        CloseHandle(handles_.reading);
        CloseHandle(handles_.writing);
        CloseHandle(handles_.attributes);
    }
    WindowsRawHid(const WindowsRawHid &) = delete;
    WindowsRawHid &operator=(const WindowsRawHid &) = delete;

    // The class driver completes the whole report or fails; a short one is a failure.
    bool getInputReport(std::span<std::uint8_t> report) override {
        return done("HidD_GetInputReport",
                    HidD_GetInputReport(handles_.reading, report.data(), length(report)));
    }

    bool setOutputReport(std::span<const std::uint8_t> report) override {
        // The call takes a writable buffer.
        std::vector<std::uint8_t> copy(report.begin(), report.end());
        return done("HidD_SetOutputReport",
                    HidD_SetOutputReport(handles_.writing, copy.data(), length(report)));
    }

private:
    static ULONG length(std::span<const std::uint8_t> report) { return static_cast<ULONG>(report.size()); }

    static bool done(const char *call, BOOLEAN result) {
        if (result == FALSE) {
            debugError(call, GetLastError());
        }
        return result != FALSE;
    }

    HidHandles handles_;
};

} // namespace

std::unique_ptr<RawHid> RawHid::open(std::uint16_t vendor, std::uint16_t product) {
    PresentHids hids;
    const auto handles = searchHid(hids, vendor, product);
    return handles ? std::make_unique<WindowsRawHid>(*handles) : nullptr;
}

} // namespace zpsg::platform
