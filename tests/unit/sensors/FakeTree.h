// A folder that stands for the root of the file system, with the kernel's files below it.
#pragma once

#include "platform/PcSensors.h"
#include "sensors/ChipSource.h"

#include <filesystem>
#include <fstream>
#include <QTemporaryDir>
#include <string>
#include <utility>
#include <vector>

namespace zpsg::sensors {

/// Path and content; a content that is one '/' makes a folder in the place of the file, which can't be read.
using Files = std::vector<std::pair<std::string, std::string>>;

class FakeTree {
public:
    [[nodiscard]] std::string root() const { return folder_.path().toStdString(); }
    [[nodiscard]] std::filesystem::path at(const std::string &path) const { return root() + '/' + path; }
    [[nodiscard]] static std::string hwmon(const std::string &entry) { return "sys/class/hwmon/" + entry; }

    void write(const Files &files) const {
        for (const auto &[path, content] : files) {
            std::filesystem::create_directories(at(path).parent_path());
            if (content == "/") {
                std::filesystem::create_directories(at(path));
            } else {
                std::ofstream(at(path)) << content << '\n';
            }
        }
    }
    void chip(const std::string &entry, const Files &files) const {
        for (const auto &[name, content] : files) {
            write({{hwmon(entry) + '/' + name, content}});
        }
    }

    /// What reads this tree; without a library of NVIDIA's unless one is named.
    [[nodiscard]] ChipSource source(const std::string &nvml = "/nowhere/libnvidia-ml.so") const {
        return ChipSource(platform::openPcChips({root(), nvml}), QString());
    }

private:
    QTemporaryDir folder_;
};

/// The clock of the readings.
class TestClock {
public:
    PcSource::Time after(std::chrono::milliseconds passed) { return now_ += passed; }

private:
    PcSource::Time now_{std::chrono::hours(1)};
};

} // namespace zpsg::sensors
