// The words for alarms, the same on the dashboard, in the log and in messages.
#pragma once

#include "psu/AlarmEntry.h"

#include <QString>

#include <optional>

namespace zpsg::ui {

/// What has happened, as a headline.
[[nodiscard]] QString alarmTitle(psu::AlarmKind kind);
/// A reading of this kind with its unit. `value` is in volts, revolutions a minute or degrees Celsius.
[[nodiscard]] QString alarmValue(psu::AlarmKind kind, double value);
/// One sentence: the limit, and what to look at.
[[nodiscard]] QString alarmAdvice(psu::AlarmKind kind);

/// "since 14:03", with the day in front of the time when that is not `today`.
[[nodiscard]] QString alarmSince(const QDateTime &begin, const QDate &today);
/// Day and time to the second in the user's format; a dash when the moment is not known.
[[nodiscard]] QString momentText(const QDateTime &moment);
/// In the two greatest units that count: "20 s", "3 min 20 s", "2 h 5 min", "1 d 4 h".
[[nodiscard]] QString durationText(qint64 seconds);

/// Seconds from begin to end, and to `now` while the alarm holds. Never negative, whatever was done to the
/// clock; nothing when the end is not known.
[[nodiscard]] std::optional<qint64> alarmSeconds(const psu::AlarmEntry &entry, const QDateTime &now);

} // namespace zpsg::ui
