#include "platform/linux/RaplZone.h"

#include "platform/linux/HwmonFile.h"
#include "platform/linux/RaplCounter.h"

#include <unistd.h>

namespace zpsg::platform {
namespace {

constexpr const char *kPackage = "package-0";

class RaplInput final : public SensorInput {
public:
    explicit RaplInput(const std::string &zone)
        : file_(zone + "/energy_uj"), counter_(HwmonFile(zone + "/max_energy_range_uj").number()) {}

    std::optional<double> read(PcChips::Time now) override { return counter_.add(file_.number(), now); }

private:
    HwmonFile file_;
    RaplCounter counter_;
};

} // namespace

bool RaplZone::changed() {
    std::string zone;
    for (const std::string &entry : entriesOf(folder_)) {
        // Parts of the processor and the whole platform ("psys") are zones as well, so the name decides. What
        // is "intel-rapl-mmio:0" shows the same counter by another way.
        if (entry.starts_with("intel-rapl:") && zone.empty() &&
            firstLine(folder_ + entry + "/name") == kPackage &&
            ::access((folder_ + entry + "/energy_uj").c_str(), R_OK) == 0) {
            zone = folder_ + entry;
        }
    }
    if (zone_ == zone) {
        return false;
    }
    zone_ = zone;
    return true;
}

std::vector<FoundSensor> RaplZone::scan() const {
    std::vector<FoundSensor> found;
    if (zone_ && !zone_->empty()) {
        found.push_back(
            {{"intel-rapl", kPackage, PcQuantity::Watts, *zone_, {}}, std::make_unique<RaplInput>(*zone_)});
    }
    return found;
}

} // namespace zpsg::platform
