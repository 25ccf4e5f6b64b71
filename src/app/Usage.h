// The energy that the supply has delivered since the program was first started.
#pragma once

#include "app/Settings.h"
#include "app/Supply.h"
#include "power/EnergyMeter.h"

namespace zpsg::app {

/// GUI thread only. What it is given outlives it.
class Usage {
public:
    Usage(Supply &supply, Settings &settings);
    /// Keeps what was counted.
    ~Usage();
    Usage(const Usage &) = delete;
    Usage &operator=(const Usage &) = delete;

    /// Once a second, after the latest reading.
    void tick(std::chrono::steady_clock::time_point now);
    /// Once a minute: keeps what was counted.
    void save();
    [[nodiscard]] double kwh() const { return meter_.kwh(); }

private:
    Supply &supply_;
    Settings &settings_;
    power::EnergyMeter meter_;
    double saved_;
};

} // namespace zpsg::app
