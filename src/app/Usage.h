// Energy and cost since the program was first started, in this run, and by the calendar.
#pragma once

#include "app/Settings.h"
#include "app/Supply.h"
#include "power/EnergyMeter.h"
#include "power/Tariff.h"
#include "records/EnergyLedger.h"

namespace zpsg::app {

struct Figures {
    double minutes = 0.0; ///< in which readings were metered
    double outputKwh = 0.0;
    double wallKwh = 0.0; ///< as outputKwh where no efficiency was known
    double cost = 0.0;    ///< money, never rounded; each kWh at the rate of its moment
};

/// GUI thread only. What it is given outlives it.
class Usage {
public:
    /// Goes on from what the settings and the ledger "energy.db" in `dataDir` hold.
    Usage(const Supply &supply, Settings &settings, const QString &dataDir);
    /// Keeps what was counted.
    ~Usage();
    Usage(const Usage &) = delete;
    Usage &operator=(const Usage &) = delete;

    /// Once a second, after the latest reading. Time is counted by `now` alone; `local` names the day that
    /// it belongs to and the rate.
    void tick(std::chrono::steady_clock::time_point now, const QDateTime &local);
    /// A whole simulated minute at the latest reading, for a clock that runs faster than time.
    void passMinute(const QDateTime &local);
    /// Once a minute: keeps what was counted. What can't be written now is written by a later call.
    void save();

    [[nodiscard]] Figures total() const;
    [[nodiscard]] Figures thisRun() const;
    /// The last run before this one that metered anything.
    [[nodiscard]] Figures lastRun() const;
    /// Of the calendar day, month or year that holds the date, with what is not saved yet. From memory: cheap
    /// enough for every second.
    [[nodiscard]] Figures today(const QDate &date) const;
    [[nodiscard]] Figures month(const QDate &date) const;
    [[nodiscard]] Figures year(const QDate &date) const;
    /// 365 days like the mean of the last up to 365 calendar days, today included: their sum, divided by the
    /// days since the first of them on which anything was metered. Days without the PC count, since next year
    /// has such days too; of today only the part that has passed counts, so that the figure doesn't sag each
    /// morning. Nothing before that is a day's length, or before the first tick.
    [[nodiscard]] std::optional<Figures> projectedYear(const QDate &today) const;

    /// False while the wall counts as the output; see power::EnergyMeter.
    [[nodiscard]] bool efficiencyKnown() const { return meter_.efficiencyKnown(); }
    /// The output's total.
    [[nodiscard]] double kwh() const { return (before_ + run_).outputKwh; }

    [[nodiscard]] const power::Tariff &tariff() const { return tariff_; }
    /// Takes the tariff from the settings again. What can't be understood of it counts for nothing, with a
    /// warning.
    void reloadTariff();
    /// Sets the base rate, 0 to power::kHighestRate; what is no number is ignored. Like any change of the
    /// tariff it holds from now on: what was counted keeps its cost.
    void setRate(double rate);
    /// Sets the periods of `tariff`. Its base rate is left alone.
    void setTimeOfUse(const power::Tariff &tariff);

private:
    [[nodiscard]] std::optional<power::Load> load() const;
    void count(const power::Energy &used, const QDateTime &local);

    const Supply &supply_;
    Settings &settings_;
    records::EnergyLedger ledger_;
    power::EnergyMeter meter_;
    power::Tariff tariff_;
    power::Energy before_; // all runs before this one
    power::Energy last_;   // the one before
    power::Energy run_;
    power::Energy saved_; // of run_
    QDateTime lastTick_;
};

} // namespace zpsg::app
