#include "power/Tariff.h"

#include <QLocale>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <optional>

namespace zpsg::power {
namespace {

constexpr unsigned kAllDays = (1U << 7U) - 1U;

double fittedRate(double rate) { return std::isnan(rate) ? 0.0 : std::clamp(rate, 0.0, kHighestRate); }

QString clockText(int minute) {
    return QStringLiteral("%1:%2")
        .arg(minute / 60, 2, 10, QLatin1Char('0'))
        .arg(minute % 60, 2, 10, QLatin1Char('0'));
}

QString periodText(const TariffPeriod &period) {
    QString days;
    for (int day = 1; day <= 7; ++day) {
        if ((period.days & dayBit(day)) != 0U) {
            days += QString::number(day);
        }
    }
    const QString rate = QString::number(period.rate, 'g', QLocale::FloatingPointShortest);
    return QStringLiteral("%1 %2-%3 %4").arg(days, clockText(period.from), clockText(period.to), rate);
}

/// Nothing when the minutes are none of an hour's; the hours are left to TariffPeriod::isValid().
std::optional<int> minuteOf(const QString &hours, const QString &minutes) {
    const int minute = minutes.toInt();
    return minute < 60 ? std::optional(hours.toInt() * 60 + minute) : std::nullopt;
}

std::optional<TariffPeriod> parsePeriod(const QString &entry) {
    static const QRegularExpression form(
        QStringLiteral(R"(^([1-7]+)\s+(\d{1,2}):(\d\d)\s*-\s*(\d{1,2}):(\d\d)\s+(\S+)$)"));
    const auto match = form.match(entry);
    const auto from = minuteOf(match.captured(2), match.captured(3));
    const auto to = minuteOf(match.captured(4), match.captured(5));
    bool isNumber = false;
    const double rate = match.captured(6).toDouble(&isNumber);
    if (!match.hasMatch() || !from || !to || !isNumber) {
        return std::nullopt;
    }
    TariffPeriod period{0U, *from, *to, rate};
    for (const QChar digit : match.captured(1)) {
        period.days |= dayBit(digit.digitValue());
    }
    return period.isValid() ? std::optional(period) : std::nullopt;
}

} // namespace

bool TariffPeriod::isValid() const {
    return days != 0U && days <= kAllDays && from >= 0 && from < kMinutesOfDay && to >= 0 &&
           to <= kMinutesOfDay && rate >= 0.0 && rate <= kHighestRate;
}

bool TariffPeriod::contains(const QDateTime &local) const {
    const int minute = local.time().msecsSinceStartOfDay() / 60000;
    const auto beginsOn = [this](const QDate &date) { return (days & dayBit(date.dayOfWeek())) != 0U; };
    const bool today = beginsOn(local.date());
    if (from < to) {
        return today && minute >= from && minute < to;
    }
    if (from == to) {
        return today;
    }
    return (today && minute >= from) || (minute < to && beginsOn(local.date().addDays(-1)));
}

Tariff::Tariff(double baseRate, const std::vector<TariffPeriod> &periods) : baseRate_(fittedRate(baseRate)) {
    std::copy_if(periods.begin(), periods.end(), std::back_inserter(periods_),
                 [](const TariffPeriod &period) { return period.isValid(); });
    periods_.resize(std::min(periods_.size(), kMostPeriods));
}

double Tariff::rateAt(const QDateTime &local) const {
    if (!local.isValid()) {
        return baseRate_;
    }
    const auto period = std::find_if(periods_.begin(), periods_.end(),
                                     [&local](const TariffPeriod &each) { return each.contains(local); });
    return period == periods_.end() ? baseRate_ : period->rate;
}

QString Tariff::periodsText() const {
    QStringList entries;
    std::transform(periods_.begin(), periods_.end(), std::back_inserter(entries), periodText);
    return entries.join(QStringLiteral("; "));
}

ParsedTariff parseTariff(double baseRate, const QString &periods) {
    std::vector<TariffPeriod> good;
    std::vector<TariffError> errors;
    int start = 0;
    for (const QString &part : periods.split(QLatin1Char(';'))) {
        const QString entry = part.trimmed();
        if (!entry.isEmpty()) {
            const auto period = parsePeriod(entry);
            if (period && good.size() < Tariff::kMostPeriods) {
                good.push_back(*period);
            } else {
                errors.push_back({start + part.indexOf(entry.front()), entry});
            }
        }
        start += part.size() + 1;
    }
    return {Tariff(baseRate, good), std::move(errors)};
}

} // namespace zpsg::power
