#include "sensors/PcReading.h"

namespace zpsg::sensors {

bool PcReading::any() const {
    return cpuVolts || cpuAmps || cpuWatts || cpuCelsius || gpuVolts || gpuAmps || gpuWatts || gpuCelsius;
}

} // namespace zpsg::sensors
