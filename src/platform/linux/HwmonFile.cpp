#include "platform/linux/HwmonFile.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fcntl.h>
#include <filesystem>
#include <system_error>

namespace zpsg::platform {

std::string HwmonFile::line() {
    if (!path_.empty()) {
        // Not to wait is meant for what is no file of sysfs after all, as a pipe.
        file_ = FileDescriptor(::open(std::exchange(path_, {}).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    }
    std::array<char, 256> buffer{};
    // From the start, the kernel asks the driver again.
    const auto size = file_ ? ::pread(file_.get(), buffer.data(), buffer.size(), 0) : -1;
    auto *const end = buffer.begin() + std::max<decltype(size)>(size, 0);
    return {buffer.begin(), std::find(buffer.begin(), end, '\n')};
}

std::optional<std::int64_t> HwmonFile::number() {
    const std::string text = line();
    std::int64_t value = 0;
    const char *end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    return error == std::errc() && stop == end ? std::optional(value) : std::nullopt;
}

std::string firstLine(const std::string &path) { return HwmonFile(path).line(); }

std::vector<std::string> entriesOf(const std::string &folder) {
    std::vector<std::string> names;
    std::error_code error; // a folder may vanish while it is listed
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        names.push_back(entry->path().filename().string());
    }
    std::sort(names.begin(), names.end(), [](const std::string &a, const std::string &b) {
        return a.size() != b.size() ? a.size() < b.size() : a < b;
    });
    return names;
}

} // namespace zpsg::platform
