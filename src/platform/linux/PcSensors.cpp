#include "platform/PcSensors.h"

#include "platform/linux/HwmonTree.h"
#include "platform/linux/NvmlCards.h"
#include "platform/linux/RaplZone.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <string_view>

namespace zpsg::platform {
namespace {

/// The longest that a sensor may keep the others waiting again and again. Chips behind a slow bus take some
/// milliseconds, firmware that is asked for a value up to half a second.
constexpr std::chrono::milliseconds kPatience{100};

class LinuxChips final : public PcChips {
public:
    explicit LinuxChips(const PcSensorPlaces &places)
        : tree_(places.root), rapl_(places.root), nvml_(places) {}

    bool rescan() override {
        slow_.assign(slow_.size(), false);
        // Each of them has to look, so none may be left out because another has changed.
        const std::array<bool, 3> changed{tree_.changed(), rapl_.changed(), nvml_.changed()};
        if (std::none_of(changed.begin(), changed.end(), [](bool one) { return one; })) {
            return false;
        }
        sensors_.clear();
        inputs_.clear();
        add(tree_.scan());
        add(rapl_.scan());
        add(nvml_.scan());
        slow_.assign(inputs_.size(), false);
        return true;
    }

    [[nodiscard]] const std::vector<PcSensor> &sensors() const override { return sensors_; }

    std::optional<double> read(std::size_t index, Time now) override {
        if (slow_.at(index)) {
            return std::nullopt;
        }
        const auto start = std::chrono::steady_clock::now();
        const auto value = inputs_.at(index)->read(now);
        slow_.at(index) = std::chrono::steady_clock::now() - start > kPatience;
        return value;
    }

private:
    void add(std::vector<FoundSensor> found) {
        for (FoundSensor &one : found) {
            sensors_.push_back(std::move(one.sensor));
            inputs_.push_back(std::move(one.input));
        }
    }

    HwmonTree tree_;
    RaplZone rapl_;
    NvmlCards nvml_;
    std::vector<PcSensor> sensors_;
    std::vector<std::unique_ptr<SensorInput>> inputs_; // in the order of the sensors; refer to nvml_
    std::vector<bool> slow_;
};

} // namespace

PcSensorAccess pcSensorAccess() { return PcSensorAccess::Chips; }

std::unique_ptr<PcChips> openPcChips(const PcSensorPlaces &places) {
    return std::make_unique<LinuxChips>(places);
}

std::unique_ptr<PcSensorMemory> openPcSensorMemory() { return nullptr; }

std::string processorName(const PcSensorPlaces &places) {
    constexpr std::string_view kKey = "model name";
    std::ifstream file(places.root + "/proc/cpuinfo");
    for (std::string line; std::getline(file, line);) {
        const auto start = line.find_first_not_of(" \t:", kKey.size());
        if (line.starts_with(kKey) && start != std::string::npos) {
            return line.substr(start);
        }
        if (line.empty()) {
            break; // the first processor's lines end here
        }
    }
    return {};
}

} // namespace zpsg::platform
