#include "platform/linux/NvmlCards.h"

#include <algorithm>
#include <unistd.h>

namespace zpsg::platform {

class NvmlCards::Input final : public SensorInput {
public:
    Input(NvmlCards &cards, NvmlLibrary::Device device, PcQuantity quantity)
        : cards_(cards), device_(device), quantity_(quantity) {}

    std::optional<double> read(PcChips::Time /*now*/) override {
        if (cards_.asleep()) {
            return std::nullopt;
        }
        const auto value =
            quantity_ == PcQuantity::Watts ? cards_.nvml_->watts(device_) : cards_.nvml_->celsius(device_);
        cards_.asked_ = true;
        cards_.answered_ = cards_.answered_ || value;
        return value;
    }

private:
    NvmlCards &cards_;
    NvmlLibrary::Device device_;
    PcQuantity quantity_;
};

NvmlCards::NvmlCards(const PcSensorPlaces &places)
    : library_(places.nvml)
    , driver_(places.root + "/proc/driver/nvidia/version")
    , devices_(places.root + "/sys/bus/pci/drivers/nvidia/") {}

bool NvmlCards::changed() {
    // Without its driver the library would try to load it, with a program of its own, at every attempt.
    const bool driver = ::access(driver_.c_str(), F_OK) == 0;
    const bool silent = std::exchange(asked_, false) && !std::exchange(answered_, false);
    const bool lost = nvml_ != nullptr && (!driver || silent);
    if (lost) {
        nvml_.reset();
    }
    sleep_.clear();
    for (const std::string &entry : driver ? entriesOf(devices_) : std::vector<std::string>()) {
        if (entry.find(':') != std::string::npos) { // "0000:01:00.0"; "bind", "module" are no devices
            sleep_.emplace_back(devices_ + entry);
        }
    }
    if (driver && nvml_ == nullptr && !asleep()) {
        nvml_ = NvmlLibrary::load(library_);
    }
    const unsigned before = count_;
    if (nvml_ == nullptr || !asleep()) {
        count_ = nvml_ != nullptr ? nvml_->count() : 0;
    }
    return lost || count_ != before;
}

// The library does not tell which card sleeps without a question that wakes it, so it is left alone only
// while all of them do.
bool NvmlCards::asleep() {
    return !sleep_.empty() &&
           std::all_of(sleep_.begin(), sleep_.end(), [](HwmonSleep &card) { return card.asleep(); });
}

std::vector<FoundSensor> NvmlCards::scan() {
    std::vector<FoundSensor> found;
    for (unsigned index = 0; index < count_; ++index) {
        const auto device = nvml_->device(index);
        if (device == nullptr) {
            continue;
        }
        PcSensor sensor{"nvml", "temp1", PcQuantity::Celsius, "nvml:" + std::to_string(index),
                        nvml_->name(device)};
        found.push_back({sensor, std::make_unique<Input>(*this, device, PcQuantity::Celsius)});
        sensor.label = "power1";
        sensor.quantity = PcQuantity::Watts;
        found.push_back({sensor, std::make_unique<Input>(*this, device, PcQuantity::Watts)});
    }
    return found;
}

} // namespace zpsg::platform
