#include "platform/linux/HwmonTree.h"

#include "platform/linux/HwmonCard.h"
#include "platform/linux/HwmonFile.h"
#include "platform/linux/RaplCounter.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <climits>
#include <cstdlib>
#include <string_view>
#include <sys/stat.h>

namespace zpsg::platform {
namespace {

/// The files that hold values: in0_input, power1_average, ... Units from the kernel's hwmon interface.
struct FileForm {
    std::string_view prefix;
    std::string_view suffix;
    PcQuantity quantity;
    double unit;
    bool energy = false;
};

constexpr std::array<FileForm, 6> kForms{{
    {"in", "_input", PcQuantity::Volts, 1e-3},
    {"curr", "_input", PcQuantity::Amps, 1e-3},
    {"power", "_average", PcQuantity::Watts, 1e-6},
    {"power", "_input", PcQuantity::Watts, 1e-6},
    {"temp", "_input", PcQuantity::Celsius, 1e-3},
    {"energy", "_input", PcQuantity::Watts, 1e-6, true},
}};

/// "temp1" of "temp1_input"; empty for a file of another form.
std::string_view channelOf(std::string_view file, const FileForm &form) {
    if (!file.starts_with(form.prefix) || !file.ends_with(form.suffix)) {
        return {};
    }
    const auto channel = file.substr(0, file.size() - form.suffix.size());
    const auto digits = channel.substr(std::min(form.prefix.size(), channel.size()));
    const bool numbered = !digits.empty() && std::all_of(digits.begin(), digits.end(), [](unsigned char c) {
        return std::isdigit(c) != 0;
    });
    return numbered ? channel : std::string_view();
}

class HwmonInput final : public SensorInput {
public:
    HwmonInput(const std::string &path, const FileForm &form, std::shared_ptr<HwmonSleep> sleep)
        : file_(path), form_(form), sleep_(std::move(sleep)) {}

    std::optional<double> read(PcChips::Time now) override {
        const auto number = sleep_->asleep() ? std::nullopt : file_.number();
        if (form_.energy) {
            return counter_.add(number, now);
        }
        return number ? std::optional(static_cast<double>(*number) * form_.unit) : std::nullopt;
    }

private:
    HwmonFile file_;
    const FileForm &form_;
    std::shared_ptr<HwmonSleep> sleep_;
    RaplCounter counter_; // these drivers extend theirs to 64 bits, which takes longer than a PC lasts
};

/// Where the links lead, so that two chips of one device are known as such.
std::string realPath(const std::string &path) {
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr), &std::free);
    return real != nullptr ? real.get() : path;
}

void scanChip(const std::string &folder, std::vector<FoundSensor> &found) {
    PcSensor sensor;
    sensor.chip = firstLine(folder + "/name");
    if (sensor.chip.empty()) {
        return;
    }
    const std::string device = folder + "/device";
    const auto sleep = std::make_shared<HwmonSleep>(device);
    sensor.device = realPath(::access(device.c_str(), F_OK) == 0 ? device : folder);
    sensor.deviceName = cardName(firstLine(device + "/modalias"));
    const std::string path = folder + '/';
    const auto files = entriesOf(folder);
    for (const FileForm &form : kForms) {
        for (const std::string &file : files) {
            const std::string channel(channelOf(file, form));
            if (!channel.empty()) {
                sensor.quantity = form.quantity;
                sensor.label = firstLine(std::string(path).append(channel).append("_label"));
                if (sensor.label.empty()) {
                    sensor.label = channel;
                }
                found.push_back({sensor, std::make_unique<HwmonInput>(path + file, form, sleep)});
            }
        }
    }
}

} // namespace

bool HwmonTree::changed() {
    std::vector<Chip> chips;
    for (std::string &entry : entriesOf(folder_)) {
        struct stat status {};
        if (::stat((folder_ + entry).c_str(), &status) == 0) {
            chips.push_back({std::move(entry), status.st_dev, status.st_ino});
        }
    }
    if (chips_ == chips) {
        return false;
    }
    chips_ = std::move(chips);
    return true;
}

std::vector<FoundSensor> HwmonTree::scan() const {
    std::vector<FoundSensor> found;
    for (const Chip &chip : chips_.value_or(std::vector<Chip>())) {
        scanChip(folder_ + chip.entry, found);
    }
    return found;
}

} // namespace zpsg::platform
