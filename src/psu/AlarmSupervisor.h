// Supervises the readings: a condition becomes an alarm when it was seen in more than nine of the last sixty
// one-second samples. Pure state and arithmetic: whoever owns it calls tick() once a second.
#pragma once

#include "psu/TelemetryRecord.h"

#include <array>
#include <deque>
#include <functional>
#include <vector>

namespace zpsg::psu {

enum class AlarmKind { Rail12, Rail5, Rail33, Fan, Temperature };
inline constexpr std::size_t kAlarmKinds = 5;

/// The name under which an alarm is handed to other programs: "voltError" for each rail, "fansError",
/// "PSU_Temp_Error".
const char *alarmName(AlarmKind kind);

class AlarmSupervisor {
public:
    /// `random` gives non-negative numbers; the displayed rail voltages carry a small random offset that is
    /// part of what is supervised.
    explicit AlarmSupervisor(std::function<unsigned()> random);

    /// Takes in one sample; the alarms that began with it.
    std::vector<AlarmKind> tick(const TelemetryRecord &record);

    [[nodiscard]] bool active(AlarmKind kind) const { return histories_.at(index(kind)).active; }
    /// The names of the alarms that hold now, each once.
    [[nodiscard]] QStringList activeNames() const;
    /// The rail's voltage with its offset as of the last tick, volts; 0 before the first.
    [[nodiscard]] double shownVolts(AlarmKind rail) const;

    /// While the fan is meant to stand still its history stays empty.
    void expectStandingFan(bool expected) { fanMayStand_ = expected; }

private:
    struct Sample {
        double value;
        double companion; // the rail's "HW" figure of the same moment
    };
    struct History {
        std::deque<Sample> samples; // the newest last, at most sixty
        bool active = false;
    };
    static constexpr std::size_t index(AlarmKind kind) { return static_cast<std::size_t>(kind); }

    std::function<unsigned()> random_;
    std::array<History, kAlarmKinds> histories_;
    bool fanMayStand_ = false;
};

} // namespace zpsg::psu
