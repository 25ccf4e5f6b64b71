#include "ui/AlarmText.h"

#include "ui/Figures.h"
#include "ui/RailCard.h"
#include "ui/Temperature.h"

#include <QLocale>

#include <algorithm>

namespace zpsg::ui {
namespace {

using psu::AlarmKind;

/// A rail's label, its nominal volts, and the decimals in which a value and its limit can be told apart.
struct Rail {
    QString name;
    double nominal;
    int decimals;
};

std::optional<Rail> railOf(AlarmKind kind) {
    switch (kind) {
    case AlarmKind::Rail12:
        return Rail{QStringLiteral("+12 V"), 12.0, 2};
    case AlarmKind::Rail5:
        return Rail{QStringLiteral("+5 V"), 5.0, 2};
    case AlarmKind::Rail33:
        return Rail{QStringLiteral("+3.3 V"), 3.3, 3};
    case AlarmKind::Fan:
    case AlarmKind::Temperature:
        break;
    }
    return std::nullopt;
}

/// The user's short format of a time, with seconds, which it leaves out.
QString secondsFormat(const QLocale &locale) {
    QString format = locale.timeFormat(QLocale::ShortFormat);
    const int minutes = format.indexOf(QLatin1String("mm"));
    if (minutes > 0 && !format.contains(QLatin1String("ss"))) {
        format.insert(minutes + 2, format.at(minutes - 1) + QStringLiteral("ss"));
    }
    return format;
}

} // namespace

QString alarmTitle(AlarmKind kind) {
    if (const auto rail = railOf(kind)) {
        return qtTrId("ALARM_RAIL").arg(rail->name);
    }
    return kind == AlarmKind::Fan ? qtTrId("ALARM_FAN") : qtTrId("ALARM_TEMPERATURE");
}

QString alarmValue(AlarmKind kind, double value) {
    if (const auto rail = railOf(kind)) {
        return formatFigure(value, rail->decimals) + QStringLiteral(" V");
    }
    return kind == AlarmKind::Fan ? formatFigure(value, 0) + QLatin1Char(' ') + qtTrId("FAN_RPM")
                                  : degreesText(value);
}

QString alarmAdvice(AlarmKind kind) {
    if (const auto rail = railOf(kind)) {
        return qtTrId("ALARM_RAIL_ADVICE")
            .arg(formatFigure(rail->nominal * (1.0 - kRailWindow), rail->decimals),
                 formatFigure(rail->nominal * (1.0 + kRailWindow), rail->decimals));
    }
    return kind == AlarmKind::Fan ? qtTrId("ALARM_FAN_ADVICE").arg(formatFigure(psu::kFanStandsRpm, 0))
                                  : qtTrId("ALARM_TEMPERATURE_ADVICE").arg(degreesText(psu::kHotCelsius));
}

QString alarmSince(const QDateTime &begin, const QDate &today) {
    const QLocale locale;
    QString moment = locale.toString(begin.time(), locale.timeFormat(QLocale::ShortFormat));
    if (begin.date() != today) {
        moment.prepend(locale.toString(begin.date(), QLocale::ShortFormat) + QLatin1Char(' '));
    }
    return qtTrId("ALARM_SINCE").arg(moment);
}

QString momentText(const QDateTime &moment) {
    if (!moment.isValid()) {
        return kNoValue;
    }
    const QLocale locale;
    return locale.toString(moment.date(), QLocale::ShortFormat) + QLatin1Char(' ') +
           locale.toString(moment.time(), secondsFormat(locale));
}

QString durationText(qint64 seconds) {
    constexpr qint64 kMinute = 60;
    constexpr qint64 kHour = 60 * kMinute;
    constexpr qint64 kDay = 24 * kHour;
    if (seconds < kMinute) {
        return qtTrId("ALARM_LASTED_SECONDS").arg(seconds);
    }
    if (seconds < kHour) {
        return qtTrId("ALARM_LASTED_MINUTES").arg(seconds / kMinute).arg(seconds % kMinute);
    }
    if (seconds < kDay) {
        return qtTrId("ALARM_LASTED_HOURS").arg(seconds / kHour).arg(seconds % kHour / kMinute);
    }
    return qtTrId("ALARM_LASTED_DAYS").arg(seconds / kDay).arg(seconds % kDay / kHour);
}

std::optional<qint64> alarmSeconds(const psu::AlarmEntry &entry, const QDateTime &now) {
    const QDateTime &end = entry.holds ? now : entry.end;
    if (!end.isValid() || !entry.begin.isValid()) {
        return std::nullopt;
    }
    return std::max<qint64>(0, (entry.begin.msecsTo(end) + 500) / 1000);
}

} // namespace zpsg::ui
