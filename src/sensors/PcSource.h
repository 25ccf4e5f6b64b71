// Where readings come from, whichever way the system has.
#pragma once

#include "sensors/PcReading.h"

#include <chrono>

namespace zpsg::sensors {

enum class SourceState {
    Working, ///< sensors are there; a reading may still be without a value
    Gone,    ///< there is nothing to read from
};

struct SourceReading {
    SourceState state = SourceState::Gone;
    PcReading reading;
    QString reason; ///< an English line that tells why there is no value, when there is none
};

class PcSource {
public:
    using Time = std::chrono::steady_clock::time_point;

    virtual ~PcSource() = default;
    PcSource(const PcSource &) = delete;
    PcSource &operator=(const PcSource &) = delete;

    /// Once a second. Looks by itself, and seldom enough to cost nothing, whether something has come.
    virtual SourceReading read(Time now) = 0;

protected:
    PcSource() = default;
};

} // namespace zpsg::sensors
