// A file descriptor with an owner.
#pragma once

#include <unistd.h>

namespace zpsg::vusb {

/// Closes it at the end of its life. May hold -1: what could not be opened.
class Descriptor {
public:
    explicit Descriptor(int value) : value_(value) {}
    ~Descriptor() {
        if (value_ >= 0) {
            close(value_);
        }
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    [[nodiscard]] int get() const { return value_; }

private:
    int value_;
};

} // namespace zpsg::vusb
