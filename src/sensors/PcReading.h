// What the PC's own sensors say about processor and graphics card.
#pragma once

#include <optional>
#include <QMetaType>
#include <QString>

namespace zpsg::sensors {

/// One moment. What no sensor gives is absent; nothing is calculated from something else.
struct PcReading {
    std::optional<double> cpuVolts, cpuAmps, cpuWatts, cpuCelsius;
    std::optional<double> gpuVolts, gpuAmps, gpuWatts, gpuCelsius;
    QString cpuName; ///< the model as the system names it, empty when unknown
    QString gpuName;

    /// At least one value; names are none.
    [[nodiscard]] bool any() const;
};

/// What the system reads them from: tells what to install when nothing is there.
enum class PcSensorSource {
    Hwmon,  ///< the kernel's sensors, and the library of NVIDIA's driver
    Hwinfo, ///< the shared memory of the sensor program HWiNFO
};

} // namespace zpsg::sensors

Q_DECLARE_METATYPE(zpsg::sensors::PcReading)
