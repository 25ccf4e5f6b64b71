// One alarm as it is told and remembered.
#pragma once

#include <QDateTime>
#include <QMetaType>

#include <cstddef>

namespace zpsg::psu {

enum class AlarmKind { Rail12, Rail5, Rail33, Fan, Temperature };
inline constexpr std::size_t kAlarmKinds = 5;

/// At or below this the fan stands still, revolutions a minute.
inline constexpr double kFanStandsRpm = 10.0;
/// From here on the supply is too hot, degrees Celsius.
inline constexpr double kHotCelsius = 60.0;

/// The user switches warnings on and off by these groups.
enum class AlarmGroup { Voltage, Fan, Temperature };
inline constexpr std::size_t kAlarmGroups = 3;

constexpr AlarmGroup groupOf(AlarmKind kind) {
    switch (kind) {
    case AlarmKind::Fan:
        return AlarmGroup::Fan;
    case AlarmKind::Temperature:
        return AlarmGroup::Temperature;
    default:
        return AlarmGroup::Voltage;
    }
}

struct AlarmEntry {
    AlarmKind kind = AlarmKind::Rail12;
    double value = 0.0; ///< volts, revolutions a minute or degrees Celsius, when the alarm began
    QDateTime begin;    ///< local time
    QDateTime end;      ///< invalid while it holds, and when the program ended before the alarm did
    bool holds = false; ///< now
};

} // namespace zpsg::psu

Q_DECLARE_METATYPE(zpsg::psu::AlarmEntry)
