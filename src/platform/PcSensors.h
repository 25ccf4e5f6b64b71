// The PC's own sensors. A system either reads the chips itself (Linux: hwmon, powercap, the library of
// NVIDIA's driver) or leaves that to a sensor program, which shares a block of memory (Windows: HWiNFO).
#pragma once

#include <chrono>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace zpsg::platform {

enum class PcSensorAccess { Chips, Memory };
PcSensorAccess pcSensorAccess();

/// Where things are looked for; the defaults are the system's own. Only what reads chips looks at them.
struct PcSensorPlaces {
    std::string root = "/";                 ///< the folder that holds sys/ and proc/
    std::string nvml = "libnvidia-ml.so.1"; ///< what dlopen() is given
};

enum class PcQuantity { Volts, Amps, Watts, Celsius };

/// One sensor, as chip and driver name it. Texts are UTF-8.
struct PcSensor {
    std::string chip; ///< the driver's name, as "coretemp"; "intel-rapl" and "nvml" for what is no hwmon chip
    std::string label; ///< as "Package id 0"; of one without a label the file's name, as "temp1"
    PcQuantity quantity{};
    std::string device;     ///< the same for all sensors of one device and for no other
    std::string deviceName; ///< the model of a graphics card, empty when unknown
};

/// The chips that this system reads. Belongs to one thread, which may have to wait for a slow driver.
class PcChips {
public:
    using Time = std::chrono::steady_clock::time_point;

    virtual ~PcChips() = default;
    PcChips(const PcChips &) = delete;
    PcChips &operator=(const PcChips &) = delete;

    /// Looks at what there is, cheaply when nothing has changed. True when sensors() is another list.
    virtual bool rescan() = 0;

    /// Empty before the first rescan().
    [[nodiscard]] virtual const std::vector<PcSensor> &sensors() const = 0;

    /// The value of sensors()[index] in V, A, W or °C, unjudged. Nothing when the driver gives none, when the
    /// device sleeps (it is not woken), and for the first reading of a sensor that counts energy. One that
    /// keeps the caller waiting is left alone until the next rescan().
    virtual std::optional<double> read(std::size_t index, Time now) = 0;

protected:
    PcChips() = default;
};

/// Null where the system has Memory.
std::unique_ptr<PcChips> openPcChips(const PcSensorPlaces &places = {});

enum class MemoryState {
    Copied,
    Busy,    ///< the other program is writing; it is there, so ask again
    Missing, ///< it does not run, or shares nothing
};

/// The block that HWiNFO shares.
class PcSensorMemory {
public:
    virtual ~PcSensorMemory() = default;
    PcSensorMemory(const PcSensorMemory &) = delete;
    PcSensorMemory &operator=(const PcSensorMemory &) = delete;

    /// The whole block as it is now, into `block`, whose memory is used again. Opens it when it isn't open.
    /// Waits 20 ms at most for the other program to finish writing.
    virtual MemoryState copy(std::vector<std::byte> &block) = 0;

    /// Lets go of it. As long as someone holds it, the block outlives the program that made it.
    virtual void close() = 0;

protected:
    PcSensorMemory() = default;
};

/// Null where the system has Chips.
std::unique_ptr<PcSensorMemory> openPcSensorMemory();

/// Model of the first processor, UTF-8; empty when unknown.
std::string processorName(const PcSensorPlaces &places = {});

} // namespace zpsg::platform
