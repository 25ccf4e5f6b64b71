// Supervises the readings: a condition becomes an alarm when it was seen in more than nine of the last sixty
// one-second samples. Pure state and arithmetic: whoever owns it calls tick() once a second.
#pragma once

#include "psu/AlarmEntry.h"
#include "psu/TelemetryRecord.h"

#include <array>
#include <deque>
#include <functional>
#include <vector>

namespace zpsg::psu {

/// The name under which an alarm is handed to other programs: "voltError" for each rail, "fansError",
/// "PSU_Temp_Error".
const char *alarmName(AlarmKind kind);

class AlarmSupervisor {
public:
    /// `random` gives non-negative numbers; the displayed rail voltages carry a small random offset that is
    /// part of what is supervised.
    explicit AlarmSupervisor(std::function<unsigned()> random);

    struct Changes {
        std::vector<AlarmKind> begun;
        std::vector<AlarmKind> ended;
    };
    /// Takes in one sample; the alarms that began and ended with it.
    Changes tick(const TelemetryRecord &record);

    /// While a group's warnings are off its samples are taken in and no alarm of it is raised; one that holds
    /// ends with the next tick.
    void setWarning(AlarmGroup group, bool on) { warnings_.at(static_cast<std::size_t>(group)) = on; }

    [[nodiscard]] bool active(AlarmKind kind) const { return histories_.at(index(kind)).active; }
    /// The names of the alarms that hold now, each once.
    [[nodiscard]] QStringList activeNames() const;
    /// What was supervised at the last tick: a rail's voltage with its offset, revolutions a minute, degrees
    /// Celsius; 0 before the first, and for a fan that is meant to stand.
    [[nodiscard]] double shown(AlarmKind kind) const;

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
    std::array<bool, kAlarmGroups> warnings_{true, true, true};
    bool fanMayStand_ = false;
};

} // namespace zpsg::psu
