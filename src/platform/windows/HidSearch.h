// The search for a device among the HID class's interfaces, apart from the system calls it makes.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace zpsg::platform {

/// What the search asks of the system. A null handle is none.
class HidClass {
public:
    using Handle = void *;
    enum class Access { None, Write, Read };
    enum class Entry {
        Found,      ///< `path` is set
        Unreadable, ///< this one can't be had, there may be more
        End,
    };
    struct Ids {
        std::uint16_t vendor;
        std::uint16_t product;
    };

    virtual ~HidClass() = default;
    HidClass(const HidClass &) = delete;
    HidClass &operator=(const HidClass &) = delete;
    /// The path of the index-th present interface, from 0.
    virtual Entry pathAt(unsigned index, std::wstring &path) = 0;
    virtual Handle open(const std::wstring &path, Access access) = 0;
    virtual std::optional<Ids> ids(Handle handle) = 0;
    virtual void close(Handle handle) = 0;

protected:
    HidClass() = default;
};

/// One device, opened three times. The attribute handle stays open as long as the other two.
struct HidHandles {
    HidClass::Handle attributes;
    HidClass::Handle writing;
    HidClass::Handle reading;
};

/// Opens the first device with these ids that can be opened in all three ways; leaves no other handle open.
std::optional<HidHandles> searchHid(HidClass &hid, std::uint16_t vendor, std::uint16_t product);

} // namespace zpsg::platform
