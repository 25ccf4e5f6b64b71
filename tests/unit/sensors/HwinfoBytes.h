// A block as HWiNFO would share it.
#pragma once

#include "sensors/HwinfoBlock.h"

#include <cstring>
#include <string>
#include <vector>

namespace zpsg::sensors {

struct FakeHwinfo {
    struct Reading {
        HwinfoType type;
        std::uint32_t sensor;
        std::string label;
        std::string unit;
        double value;
    };
    std::vector<std::string> sensors;
    std::vector<Reading> readings;
    std::string signature = "HWiS";
    std::int64_t pollTime = 1700000000;
    std::uint32_t more = 0; // bytes that each element is longer than the known layout

    [[nodiscard]] std::vector<std::byte> bytes() const {
        const std::uint32_t sensorSize = 264 + more;
        const std::uint32_t readingSize = 316 + more;
        const auto sensorCount = static_cast<std::uint32_t>(sensors.size());
        const auto readingCount = static_cast<std::uint32_t>(readings.size());
        const std::uint32_t readingsAt = 44 + sensorSize * sensorCount;
        std::vector<std::byte> block(readingsAt + std::size_t{readingSize} * readingCount);
        putText(block, 0, signature);
        put(block, 4, std::uint32_t{2});
        put(block, 12, pollTime);
        put(block, 20, std::uint32_t{44});
        put(block, 24, sensorSize);
        put(block, 28, sensorCount);
        put(block, 32, readingsAt);
        put(block, 36, readingSize);
        put(block, 40, readingCount);
        for (std::size_t index = 0; index < sensors.size(); ++index) {
            const std::size_t at = 44 + index * sensorSize;
            putText(block, at + 8, sensors[index]);
            putText(block, at + 136, "renamed");
        }
        for (std::size_t index = 0; index < readings.size(); ++index) {
            const std::size_t at = readingsAt + index * readingSize;
            put(block, at, readings[index].type);
            put(block, at + 4, readings[index].sensor);
            putText(block, at + 12, readings[index].label);
            putText(block, at + 140, "renamed");
            putText(block, at + 268, readings[index].unit);
            put(block, at + 284, readings[index].value);
            put(block, at + 292, -1.0); // the least since the start, which is not the value
        }
        return block;
    }

    template <class Value>
    static void put(std::vector<std::byte> &block, std::size_t at, const Value &value) {
        std::memcpy(block.data() + at, &value, sizeof(value));
    }
    static void putText(std::vector<std::byte> &block, std::size_t at, const std::string &text) {
        std::memcpy(block.data() + at, text.data(), text.size());
    }
};

/// A PC with an AMD processor and two cards.
inline FakeHwinfo ryzenPc() {
    FakeHwinfo pc;
    pc.sensors = {"CPU [#0]: AMD Ryzen 7 5800X", "CPU [#0]: AMD Ryzen 7 5800X: Enhanced",
                  "ASUS X570 (Nuvoton)",
                  "GPU [#0]: NVIDIA GeForce RTX 3080: ", "GPU [#1]: NVIDIA T400: Maker"};
    pc.readings = {{HwinfoType::Clock, 0, "Core 0 Clock", "MHz", 4200},
                   {HwinfoType::Temperature, 2, "CPU Package",
                    "\xB0"
                    "C",
                    77},
                   {HwinfoType::Volts, 2, "Vcore", "V", 1.5},
                   {HwinfoType::Temperature, 1, "CPU (Tctl/Tdie)",
                    "\xB0"
                    "C",
                    64.5},
                   {HwinfoType::Volts, 1, "CPU Core Voltage (SVI2 TFN)", "V", 1.375},
                   {HwinfoType::Amps, 1, "CPU Core Current (SVI2 TFN)", "A", 41.5},
                   {HwinfoType::Watts, 1, "CPU Package Power (SMU)", "W", 88.25},
                   {HwinfoType::Other, 3, "GPU Power", "Yes/No", 1},
                   {HwinfoType::Temperature, 4, "GPU Temperature",
                    "\xB0"
                    "C",
                    38},
                   {HwinfoType::Watts, 4, "GPU Power", "W", 12},
                   {HwinfoType::Temperature, 3, "GPU Temperature",
                    "\xB0"
                    "C",
                    70},
                   {HwinfoType::Volts, 3, "GPU Core Voltage", "mV", 1050},
                   {HwinfoType::Watts, 3, "GPU Power", "W", 301.5}};
    return pc;
}

} // namespace zpsg::sensors
