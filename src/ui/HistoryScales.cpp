#include "ui/HistoryScales.h"

#include "ui/Figures.h"
#include "ui/HistoryDates.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <cmath>

namespace zpsg::ui {
namespace {

/// More than this many days are told apart by their months, and more than that by their years.
constexpr int kDaysWithMonths = 100;
constexpr int kDaysWithYears = 3 * 366;
/// Of a month at an end of the range that is shown in part, so much has to be seen to be named.
constexpr int kLeastOfMonth = 12;

/// The first of `steps` with which no more than `room` ticks are needed.
template <std::size_t Size>
int stepFor(const std::array<int, Size> &steps, double length, int room) {
    const auto step = std::find_if(steps.begin(), steps.end(),
                                   [&](int candidate) { return length / candidate <= std::max(room, 1); });
    return step != steps.end() ? *step : steps.back();
}

void addDays(DayScale &scale, const HistoryRange &range, int room) {
    const int days = range.days();
    const int step = stepFor(std::array{1, 2, 3, 4, 7, 14, 28}, days, room);
    const bool named = days <= 10 && step == 1;
    for (int i = 0; i < days; i += step) {
        const QDate date = range.from.addDays(i);
        scale.ticks << i + 0.5;
        scale.texts << (named ? QStringLiteral("%1 %2").arg(
                                    QLocale().dayName(date.dayOfWeek(), QLocale::ShortFormat),
                                    QString::number(date.day()))
                              : dateText(date, DateParts::DayMonth));
    }
}

void addMonths(DayScale &scale, const HistoryRange &range, int room) {
    const int step = stepFor(std::array{1, 2, 3, 4, 6, 12}, range.days() / 30.4, room);
    const bool years = range.from.year() != range.to.year();
    QDate month(range.from.year(), range.from.month(), 1);
    for (; month <= range.to; month = month.addMonths(1)) {
        const auto first = static_cast<int>(std::max<qint64>(range.from.daysTo(month), 0));
        const auto past =
            static_cast<int>(std::min<qint64>(range.from.daysTo(month.addMonths(1)), range.days()));
        if (first > 0) {
            scale.beginnings << first;
        }
        if ((month.month() - 1) % step == 0 && past - first >= kLeastOfMonth) {
            const QString name = QLocale().standaloneMonthName(month.month(), QLocale::ShortFormat);
            scale.ticks << (first + past) / 2.0;
            scale.texts << (years && month.month() == 1 ? QStringLiteral("%1 %2").arg(name).arg(month.year())
                                                        : name);
        }
    }
}

void addYears(DayScale &scale, const HistoryRange &range, int room) {
    const int step = stepFor(std::array{1, 2, 5, 10}, range.days() / 365.25, room);
    for (int year = range.from.year(); year <= range.to.year(); ++year) {
        const double first = static_cast<double>(std::max<qint64>(range.from.daysTo(QDate(year, 1, 1)), 0));
        const double past =
            static_cast<double>(std::min<qint64>(range.from.daysTo(QDate(year + 1, 1, 1)), range.days()));
        if (first > 0.0) {
            scale.beginnings << first;
        }
        if (year % step == 0 && past - first >= 120.0) {
            scale.ticks << (first + past) / 2.0;
            scale.texts << QString::number(year);
        }
    }
}

} // namespace

QList<double> ValueScale::ticks() const {
    return {low, low + step, low + 2.0 * step, low + 3.0 * step, low + 4.0 * step};
}

QString ValueScale::label(double value) const {
    int decimals = 0;
    for (double scaled = step; decimals < 4 && std::abs(scaled - std::round(scaled)) > 1e-6; scaled *= 10.0) {
        ++decimals;
    }
    return formatFigure(value, decimals);
}

ValueScale valueScale(double least, double most) {
    constexpr std::array kRound{1.0, 1.5, 2.0, 2.5, 3.0, 4.0, 5.0, 6.0, 8.0};
    constexpr double kSlack = 1e-9;
    const double needed = std::max((most - least) / 4.0, 1e-3);
    double power = std::pow(10.0, std::floor(std::log10(needed)));
    for (int tries = 0; tries < 3; ++tries, power *= 10.0) {
        for (const double round : kRound) {
            const double step = round * power;
            const double low = std::floor(least / step + kSlack) * step;
            if (low + 4.0 * step >= most - kSlack * step) {
                return {low, step};
            }
        }
    }
    return {least, needed};
}

QString DayScale::label(double tick) const {
    const int index = ticks.indexOf(tick);
    return index >= 0 ? texts.at(index) : QString();
}

DayScale dayScale(const HistoryRange &range, int room) {
    DayScale scale;
    if (range.days() <= kDaysWithMonths) {
        addDays(scale, range, room);
    } else if (range.days() <= kDaysWithYears) {
        addMonths(scale, range, room);
    } else {
        addYears(scale, range, room);
    }
    return scale;
}

QList<double> clockTicks(const QDate &day, double from, double to, int room) {
    const int step =
        stepFor(std::array{1, 2, 5, 10, 15, 30, 60, 120, 180, 240, 360, 720}, (to - from) / 60.0, room);
    const QDateTime begin = day.startOfDay();
    QList<double> ticks;
    for (int minute = 0; minute <= 24 * 60; minute += step) {
        // How far a clock may be off what it would be without a change of the clocks, with plenty to spare.
        constexpr double kOff = 3.0 * 3600.0;
        if (minute * 60.0 < from - kOff || minute * 60.0 > to + kOff) {
            continue;
        }
        const QDateTime at =
            minute == 24 * 60 ? day.addDays(1).startOfDay() : QDateTime(day, QTime(minute / 60, minute % 60));
        const auto seconds = static_cast<double>(begin.secsTo(at));
        if (seconds >= from && seconds <= to && (ticks.isEmpty() || ticks.constLast() < seconds)) {
            ticks << seconds;
        }
    }
    return ticks;
}

QString clockText(const QDate &day, double seconds) {
    return day.startOfDay().addSecs(std::llround(seconds)).time().toString(QStringLiteral("HH:mm"));
}

} // namespace zpsg::ui
