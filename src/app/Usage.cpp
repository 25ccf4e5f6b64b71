#include "app/Usage.h"

#include "app/Logging.h"
#include "power/Efficiency.h"

#include <algorithm>
#include <cmath>

namespace zpsg::app {
namespace {

constexpr double kSecondsPerMinute = 60.0;
constexpr int kDaysOfYear = 365;

Figures figures(const power::Energy &energy) {
    return {energy.seconds / kSecondsPerMinute, energy.outputKwh, energy.wallKwh, energy.cost};
}

/// Rows hold whole minutes: the nearest, so that many short runs neither lose nor gain by it.
int wholeMinutes(const power::Energy &energy) {
    return static_cast<int>(std::min(std::round(energy.seconds / kSecondsPerMinute), kManyMinutes));
}

power::Energy stored(const Settings &settings, Setting minutes, Setting output, Setting wall, Setting cost) {
    const double outputKwh = settings.real(output);
    // Energy that was counted before the wall was metered counts there as the output, too.
    return {settings.integer(minutes) * kSecondsPerMinute, outputKwh,
            std::max(settings.real(wall), outputKwh), settings.real(cost)};
}

/// The days from the beginning of `first` up to the moment, as far as that lies on `today` or before; after
/// it, to the end of `today`.
double daysPassed(const QDate &first, const QDate &today, const QDateTime &moment) {
    constexpr double kMillisecondsPerDay = 86400e3;
    const double ofToday = static_cast<double>(today.daysTo(moment.date())) +
                           moment.time().msecsSinceStartOfDay() / kMillisecondsPerDay;
    return static_cast<double>(first.daysTo(today)) + std::clamp(ofToday, 0.0, 1.0);
}

} // namespace

Usage::Usage(const Supply &supply, Settings &settings, const QString &dataDir)
    : supply_(supply)
    , settings_(settings)
    , ledger_(dataDir + QStringLiteral("/energy.db"))
    , before_(stored(settings, Setting::TotalUsedTime, Setting::TotalUsedKwh, Setting::TotalWallKwh,
                     Setting::TotalUsedCost))
    , last_(stored(settings, Setting::LastUsedTime, Setting::LastUsedKwh, Setting::LastWallKwh,
                   Setting::LastUsedCost)) {
    reloadTariff();
}

Usage::~Usage() { save(); }

std::optional<power::Load> Usage::load() const {
    const auto watts = supply_.fresh("WATTS");
    if (!watts) {
        return std::nullopt;
    }
    auto efficiency = supply_.fresh("EFF");
    // What would be replaced before it is shown is not measured well enough to pay for.
    if (efficiency && power::plausibleEfficiency(*efficiency, [] { return 0U; }) != *efficiency) {
        efficiency.reset();
    }
    return power::Load{*watts, efficiency};
}

void Usage::tick(std::chrono::steady_clock::time_point now, const QDateTime &local) {
    count(meter_.add(load(), tariff_.rateAt(local), now), local);
}

void Usage::passMinute(const QDateTime &local) {
    count(meter_.use(load(), tariff_.rateAt(local), std::chrono::minutes(1)), local);
}

void Usage::count(const power::Energy &used, const QDateTime &local) {
    run_ += used;
    ledger_.add(local.date(), used);
    lastTick_ = local;
}

void Usage::save() {
    const auto all = before_ + run_;
    if (run_ != saved_ && settings_.write({{Setting::TotalUsedTime, wholeMinutes(all)},
                                           {Setting::TotalUsedKwh, all.outputKwh},
                                           {Setting::TotalWallKwh, all.wallKwh},
                                           {Setting::TotalUsedCost, all.cost},
                                           {Setting::LastUsedTime, wholeMinutes(run_)},
                                           {Setting::LastUsedKwh, run_.outputKwh},
                                           {Setting::LastWallKwh, run_.wallKwh},
                                           {Setting::LastUsedCost, run_.cost}})) {
        saved_ = run_;
    }
    ledger_.write();
}

Figures Usage::total() const { return figures(before_ + run_); }

Figures Usage::thisRun() const { return figures(run_); }

Figures Usage::lastRun() const { return figures(last_); }

Figures Usage::today(const QDate &date) const { return figures(ledger_.sum(date, date)); }

Figures Usage::month(const QDate &date) const {
    const QDate first(date.year(), date.month(), 1);
    return figures(ledger_.sum(first, first.addMonths(1).addDays(-1)));
}

Figures Usage::year(const QDate &date) const {
    return figures(ledger_.sum(QDate(date.year(), 1, 1), QDate(date.year(), 12, 31)));
}

std::optional<Figures> Usage::projectedYear(const QDate &today) const {
    const QDate first = ledger_.firstDay(today.addDays(1 - kDaysOfYear));
    if (!first.isValid() || first > today || !lastTick_.isValid()) {
        return std::nullopt;
    }
    const double days = daysPassed(first, today, lastTick_);
    if (days < 1.0) {
        return std::nullopt;
    }
    const auto mean = figures(ledger_.sum(first, today));
    const double factor = kDaysOfYear / days;
    return Figures{mean.minutes * factor, mean.outputKwh * factor, mean.wallKwh * factor, mean.cost * factor};
}

void Usage::reloadTariff() {
    const auto parsed =
        power::parseTariff(settings_.real(Setting::CostTip), settings_.text(Setting::TimeOfUse));
    for (const auto &error : parsed.errors) {
        qCWarning(lcApp).noquote() << "no period of a tariff, at character" << error.position + 1 << ':'
                                   << error.entry;
    }
    tariff_ = parsed.tariff;
}

void Usage::setRate(double rate) {
    if (std::isfinite(rate)) {
        settings_.write({{Setting::CostTip, rate}});
        reloadTariff();
    }
}

void Usage::setTimeOfUse(const power::Tariff &tariff) {
    settings_.write({{Setting::TimeOfUse, tariff.periodsText()}});
    reloadTariff();
}

} // namespace zpsg::app
