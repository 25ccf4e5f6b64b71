#include "sensors/ChipRules.h"

#include <algorithm>
#include <string_view>

namespace zpsg::sensors {
namespace {

using platform::PcSensor;

struct ChipRule {
    PcMember member;
    std::string_view chip; // empty: whatever chip has a sensor of that label
    std::string_view label;
};

/// For each value the best first. What is not named by driver or board is not guessed.
constexpr std::array kRules{
    // What the processor itself reports goes before what the board measures of it.
    ChipRule{&PcReading::cpuVolts, "zenpower", "SVI2_Core"},
    ChipRule{&PcReading::cpuVolts, "", "CPU Core Voltage"},
    ChipRule{&PcReading::cpuVolts, "asusec", "CPU Core"},
    ChipRule{&PcReading::cpuVolts, "", "Vcore"},

    ChipRule{&PcReading::cpuAmps, "zenpower", "SVI2_C_Core"},
    ChipRule{&PcReading::cpuAmps, "", "CPU Core Current"},
    ChipRule{&PcReading::cpuAmps, "asusec", "CPU"},
    ChipRule{&PcReading::cpuAmps, "k10temp", "Icore"},

    // The whole package before the cores alone.
    ChipRule{&PcReading::cpuWatts, "intel-rapl", "package-0"},
    ChipRule{&PcReading::cpuWatts, "zenpower", "RAPL_P_Package"},
    ChipRule{&PcReading::cpuWatts, "amd_energy", "Esocket0"},
    ChipRule{&PcReading::cpuWatts, "fam15h_power", "power1"},
    ChipRule{&PcReading::cpuWatts, "zenpower", "SVI2_P_Core"},

    // Tctl is what the fans follow and on some models up to 27 °C above Tdie, the temperature.
    ChipRule{&PcReading::cpuCelsius, "coretemp", "Package id 0"},
    ChipRule{&PcReading::cpuCelsius, "zenpower", "Tdie"},
    ChipRule{&PcReading::cpuCelsius, "k10temp", "Tdie"},
    ChipRule{&PcReading::cpuCelsius, "zenpower", "Tctl"},
    ChipRule{&PcReading::cpuCelsius, "k10temp", "Tctl"},
    ChipRule{&PcReading::cpuCelsius, "k10temp", "temp1"}, // kernels that had no labels
    ChipRule{&PcReading::cpuCelsius, "cpu_thermal", "temp1"},

    ChipRule{&PcReading::gpuVolts, "amdgpu", "vddgfx"},
    ChipRule{&PcReading::gpuVolts, "amdgpu", "in0"},
    ChipRule{&PcReading::gpuVolts, "nouveau", "in0"},
    ChipRule{&PcReading::gpuVolts, "i915", "in0"},
    ChipRule{&PcReading::gpuVolts, "xe", "pkg"},

    // No driver gives a card's amps.

    ChipRule{&PcReading::gpuWatts, "nvml", "power1"},
    ChipRule{&PcReading::gpuWatts, "amdgpu", "PPT"},
    ChipRule{&PcReading::gpuWatts, "amdgpu", "slowPPT"},
    ChipRule{&PcReading::gpuWatts, "amdgpu", "power1"},
    ChipRule{&PcReading::gpuWatts, "nouveau", "power1"},
    ChipRule{&PcReading::gpuWatts, "i915", "power1"},
    ChipRule{&PcReading::gpuWatts, "i915", "energy1"},
    ChipRule{&PcReading::gpuWatts, "xe", "card"},
    ChipRule{&PcReading::gpuWatts, "xe", "pkg"},

    ChipRule{&PcReading::gpuCelsius, "nvml", "temp1"},
    ChipRule{&PcReading::gpuCelsius, "amdgpu", "edge"},
    ChipRule{&PcReading::gpuCelsius, "amdgpu", "temp1"},
    ChipRule{&PcReading::gpuCelsius, "nouveau", "temp1"},
    ChipRule{&PcReading::gpuCelsius, "i915", "temp1"},
    ChipRule{&PcReading::gpuCelsius, "xe", "pkg"},
};

bool fits(const ChipRule &rule, const PcValue &value, const PcSensor &sensor) {
    return rule.member == value.member && sensor.quantity == value.quantity &&
           (rule.chip.empty() || rule.chip == sensor.chip) && rule.label == sensor.label;
}

bool isOfCard(const PcSensor &sensor) {
    return std::any_of(kPcValues.begin(), kPcValues.end(), [&sensor](const PcValue &value) {
        return value.ofCard && std::any_of(kRules.begin(), kRules.end(),
                                           [&](const ChipRule &rule) { return fits(rule, value, sensor); });
    });
}

} // namespace

std::vector<std::size_t> candidates(const PcValue &value, const std::vector<PcSensor> &sensors,
                                    const std::string &device) {
    std::vector<std::size_t> found;
    for (const ChipRule &rule : kRules) {
        for (std::size_t index = 0; index < sensors.size(); ++index) {
            const PcSensor &sensor = sensors[index];
            if (fits(rule, value, sensor) && (!value.ofCard || sensor.device == device)) {
                found.push_back(index);
            }
        }
    }
    return found;
}

std::vector<std::string> cardDevices(const std::vector<PcSensor> &sensors) {
    std::vector<std::string> devices;
    for (const PcSensor &sensor : sensors) {
        if (isOfCard(sensor) && std::find(devices.begin(), devices.end(), sensor.device) == devices.end()) {
            devices.push_back(sensor.device);
        }
    }
    return devices;
}

bool isIntegrated(const std::vector<PcSensor> &sensors, const std::string &device) {
    // amdgpu gives the voltage of the processor's north bridge only for a card that shares the package with
    // it. The other drivers make a chip for cards of their own only.
    return std::any_of(sensors.begin(), sensors.end(), [&device](const PcSensor &sensor) {
        return sensor.device == device && sensor.chip == "amdgpu" && sensor.label == "vddnb";
    });
}

} // namespace zpsg::sensors
