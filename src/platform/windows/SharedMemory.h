// A block of memory that another program shares by name.
#pragma once

#include "platform/windows/Win32.h"

#include <cstddef>
#include <span>

namespace zpsg::platform {

/// Owns a handle; null is none.
class OwnedHandle {
public:
    explicit OwnedHandle(HANDLE handle = nullptr) : handle_(handle) {}
    OwnedHandle(const OwnedHandle &) = delete;
    OwnedHandle &operator=(const OwnedHandle &) = delete;
    ~OwnedHandle() {
        if (handle_ != nullptr) {
            CloseHandle(handle_);
        }
    }

    [[nodiscard]] HANDLE get() const { return handle_; }
    explicit operator bool() const { return handle_ != nullptr; }

private:
    HANDLE handle_;
};

class SharedMemory {
public:
    /// For reading. Empty when there is no such block or this user may not read it.
    explicit SharedMemory(const wchar_t *name);
    ~SharedMemory();
    SharedMemory(const SharedMemory &) = delete;
    SharedMemory &operator=(const SharedMemory &) = delete;

    /// The other program may write at any time.
    [[nodiscard]] std::span<const std::byte> bytes() const { return bytes_; }

private:
    OwnedHandle mapping_;
    std::span<const std::byte> bytes_;
};

} // namespace zpsg::platform
