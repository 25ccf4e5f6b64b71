// The small text files of sysfs.
#pragma once

#include "platform/linux/FileDescriptor.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zpsg::platform {

/// A file that is read again and again: opened when it is first read, then kept open. A file that can't be
/// opened is not tried again.
class HwmonFile {
public:
    explicit HwmonFile(std::string path) : path_(std::move(path)) {}

    /// Nothing when it can't be read now or holds anything but one decimal number.
    std::optional<std::int64_t> number();
    /// The first line; empty when it can't be read.
    std::string line();

private:
    std::string path_; // empty once it was opened, or couldn't be
    FileDescriptor file_;
};

/// The first line of a file that is read once; empty when there is none.
std::string firstLine(const std::string &path);

/// What a folder holds, "hwmon2" before "hwmon10"; empty when there is no such folder.
std::vector<std::string> entriesOf(const std::string &folder);

/// Whether the device in this folder has been put to sleep by the kernel. Reading its sensors would wake it.
class HwmonSleep {
public:
    explicit HwmonSleep(const std::string &device) : status_(device + "/power/runtime_status") {}
    bool asleep() { return status_.line() == "suspended"; }

private:
    HwmonFile status_;
};

} // namespace zpsg::platform
