// What is counted and kept, with a real ledger, real settings and the simulated supply.
#include "app/Usage.h"

#include "power/CurveFile.h"
#include "simulator/SimulatedBus.h"
#include "support/FullDisk.h"

#include <QDir>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>

using namespace zpsg;
using namespace std::chrono_literals;
using app::Setting;

namespace {

const QDate kDay(2026, 11, 20); // a Friday

QDateTime at(int hour, int minute = 0, int second = 0) { return {kDay, QTime(hour, minute, second)}; }

class UsageTest : public ::testing::Test {
protected:
    UsageTest() {
        bus->plug(simulator::SupplyModel("CVE-0850-A"), psu::kRawProductId);
        supply.identifyModel();
        read();
        watts = *supply.fresh("WATTS");
        wallWatts = watts * 100.0 / *supply.fresh("EFF");
        start();
    }

    void start() { usage = std::make_unique<app::Usage>(supply, settings, dir.path()); }
    void read() { supply.monitor().readInfo(); }

    /// The first second after a pause counts for nothing, so one more passes.
    void pass(int seconds, QDateTime from) {
        now += 1h;
        for (int i = 0; i <= seconds; ++i) {
            usage->tick(now, from);
            now += 1s;
            from = from.addSecs(1);
        }
    }

    [[nodiscard]] double wallKwh(double seconds) const { return wallWatts * seconds / 3.6e6; }
    void expectSeconds(const app::Figures &figures, double seconds) const {
        EXPECT_NEAR(figures.minutes, seconds / 60.0, 1e-6);
        EXPECT_NEAR(figures.outputKwh, watts * seconds / 3.6e6, 1e-9);
        EXPECT_NEAR(figures.wallKwh, wallKwh(seconds), 1e-9);
    }

    QTemporaryDir dir;
    app::Settings settings{dir.path()};
    std::shared_ptr<simulator::SimulatedBus> bus = simulator::SimulatedBus::create();
    app::Supply supply{bus->backend(), psu::MonitorTiming{{200ms, 10ms, 5ms}, 5s}, {}};
    double watts = 0.0;
    double wallWatts = 0.0;
    std::chrono::steady_clock::time_point now{1h};
    std::unique_ptr<app::Usage> usage;
};

TEST_F(UsageTest, CountsRunsAndTheirTotal) {
    usage->setRate(0.25);
    pass(90, at(12));
    expectSeconds(usage->total(), 90);
    EXPECT_NEAR(usage->thisRun().cost, wallKwh(90) * 0.25, 1e-12);
    EXPECT_TRUE(usage->efficiencyKnown());
    EXPECT_EQ(settings.real(Setting::TotalUsedKwh), 0.0) << "not before it is saved";
    usage->save();
    EXPECT_EQ(settings.real(Setting::TotalUsedKwh), usage->kwh());
    EXPECT_EQ(settings.real(Setting::LastWallKwh), usage->thisRun().wallKwh) << "every digit";
    EXPECT_EQ(settings.integer(Setting::LastUsedTime), 2) << "the nearest minute";
    start();
    EXPECT_NEAR(usage->lastRun().outputKwh, watts * 90 / 3.6e6, 1e-12);
    EXPECT_EQ(usage->lastRun().minutes, 2.0);
    usage->save();
    EXPECT_GT(settings.real(Setting::LastWallKwh), 0.0) << "a run without anything is none";
    pass(60, at(13));
    usage.reset();
    EXPECT_NEAR(settings.real(Setting::LastWallKwh), wallKwh(60), 1e-12);
    start();
    EXPECT_NEAR(usage->total().minutes, 3.0, 1e-9);
    EXPECT_NEAR(usage->total().cost, wallKwh(150) * 0.25, 1e-12);
    EXPECT_EQ(usage->thisRun().minutes, 0.0);
}

TEST_F(UsageTest, NothingIsWrittenWhenNothingWasMetered) {
    const auto files = [this] { return QDir(dir.path()).entryList(QDir::Files).size(); };
    usage->save();
    EXPECT_EQ(files(), 0);
    pass(1, at(12));
    usage->save();
    EXPECT_EQ(files(), 2);
    QDir(dir.path()).remove(QStringLiteral("energy.db"));
    QFile::remove(settings.path(app::SettingsFile::General));
    bus->unplug();
    supply.connectPsu();
    pass(60, at(12));
    usage->save();
    usage.reset();
    EXPECT_EQ(files(), 0);
}

TEST_F(UsageTest, GoesOnFromWhatOlderVersionsCounted) {
    settings.write({{Setting::TotalUsedKwh, 12.5}, {Setting::TotalUsedTime, 600}});
    start();
    EXPECT_EQ(usage->total().wallKwh, 12.5) << "the wall never counts less than the output";
    EXPECT_EQ(usage->total().minutes, 600.0);
}

TEST_F(UsageTest, SplitsDaysMonthsAndYears) {
    const QDateTime midnight(QDate(2026, 12, 31), QTime(23, 59, 30));
    pass(60, midnight);
    const QDate oldYear(2026, 12, 31);
    const QDate newYear(2027, 1, 1);
    for (const bool again : {false, true}) {
        expectSeconds(usage->today(oldYear), 29);
        expectSeconds(usage->month(newYear), 31);
        expectSeconds(usage->year(oldYear), 29);
        expectSeconds(usage->year(newYear), 31);
        expectSeconds(usage->today(oldYear.addDays(-1)), 0);
        if (!again) {
            usage.reset();
            start();
        }
    }
    pass(30, QDateTime(QDate(2026, 12, 1), QTime(12, 0))); // the clock was set back
    usage->save();
    pass(30, QDateTime(QDate(2027, 1, 31), QTime(12, 0)));
    expectSeconds(usage->month(oldYear), 29 + 30);
    expectSeconds(usage->month(newYear), 31 + 30);
    expectSeconds(usage->thisRun(), 60);
}

TEST_F(UsageTest, NoClockButTheSteadyOneCountsTime) {
    usage->tick(now, at(12));
    for (const auto &local : {at(12).addDays(-1), at(12).addDays(400), at(3), at(12), at(12)}) {
        usage->tick(now += 1s, local);
    }
    usage->save();
    expectSeconds(usage->thisRun(), 5);
    expectSeconds(usage->today(kDay), 3);
    expectSeconds(usage->today(kDay.addDays(-1)), 1);
    usage->tick(now += 8h, at(20)); // asleep
    expectSeconds(usage->thisRun(), 5);
    bus->withModel([](auto &model) { model.setFault(simulator::Fault::Silent); });
    bus->unplug();
    supply.connectPsu();
    pass(30, at(21));
    expectSeconds(usage->thisRun(), 5);
}

TEST_F(UsageTest, EachKwhCostsItsRate) {
    usage->setRate(0.5);
    usage->setTimeOfUse(power::Tariff(9.0, {{power::dayBit(5), 22 * 60, 6 * 60, 0.2}}));
    EXPECT_EQ(usage->tariff().baseRate(), 0.5);
    pass(100, at(12));
    EXPECT_NEAR(usage->total().cost, wallKwh(100) * 0.5, 1e-12);
    pass(100, at(23, 59)); // over midnight
    EXPECT_NEAR(usage->total().cost, wallKwh(100) * 0.7, 1e-12);
    usage->setRate(std::nan(""));
    usage->setRate(-3.0);
    pass(100, at(12));
    EXPECT_NEAR(usage->total().cost, wallKwh(100) * 0.7, 1e-12) << "what was counted keeps its cost";
    start();
    EXPECT_EQ(usage->tariff().baseRate(), 0.0);
    EXPECT_EQ(usage->tariff().rateAt(at(23)), 0.2);
    settings.write({{Setting::TimeOfUse, QStringLiteral("5 22:00-06:00 0,2;6 00:00-24:00 0.1")}});
    usage->reloadTariff();
    EXPECT_EQ(usage->tariff().periods().size(), 1U);
}

TEST_F(UsageTest, AFullDiskLosesAndDoublesNothing) {
    for (int minute = 0; minute < 6; ++minute) {
        pass(60, at(12, minute));
        const test::FullDisk disk(minute % 3 == 2 ? RLIM_INFINITY : 100);
        usage->save();
        expectSeconds(usage->today(kDay), 60.0 * (minute + 1));
    }
    usage.reset();
    start();
    expectSeconds(usage->today(kDay), 360);
    expectSeconds(usage->total(), 360);
}

TEST_F(UsageTest, ProjectsAYearFromTheDaysThatPassed) {
    EXPECT_FALSE(usage->projectedYear(kDay));
    const auto expectYear = [this](double meteredSeconds, double days) {
        const auto year = usage->projectedYear(kDay);
        ASSERT_TRUE(year);
        expectSeconds(*year, meteredSeconds * 365.0 / days);
    };
    pass(60, at(23));
    EXPECT_FALSE(usage->projectedYear(kDay)) << "not yet a day";
    pass(60, at(12).addDays(-1));
    pass(0, at(6));
    expectYear(120, 1.25);
    pass(0, at(6).addDays(1));
    expectYear(120, 2.0); // a day that is over
    pass(60, at(12).addDays(-364));
    pass(60, at(12).addDays(-365)); // too long ago
    pass(60, at(12).addDays(3));    // a clock that was wrong
    pass(0, at(12));
    expectYear(180, 364.5);
    EXPECT_FALSE(usage->projectedYear(kDay.addDays(-366)));
}

TEST_F(UsageTest, SimulatedMinutesCountWithoutTime) {
    usage->setRate(1.0);
    for (int minute = 0; minute < 24 * 60; ++minute) {
        usage->passMinute(at(0).addSecs(60LL * minute));
    }
    expectSeconds(usage->today(kDay), 86400);
    EXPECT_NEAR(usage->total().cost, wallKwh(86400), 1e-9);
}

// The main path takes its efficiency from the model's curve.
TEST_F(UsageTest, TheWallCountsAsTheOutputWithoutAPlausibleEfficiency) {
    bus->plug(simulator::SupplyModel("CVX-1000-D"));
    QDir(dir.path()).mkdir(QStringLiteral("BOX"));
    for (const auto &[percent, known] : {std::pair(0.0, false), {39.9, false}, {99.6, false}, {80.0, true}}) {
        SCOPED_TRACE(percent);
        QJsonObject band;
        for (int step = 1; step <= 120; ++step) {
            band.insert(QString::number(step), percent);
        }
        QString why;
        ASSERT_TRUE(percent == 0.0 || // no curve
                    power::writeCurveFile(dir.filePath(QStringLiteral("BOX/ZPSG_DUO_100.ini")),
                                          {{QStringLiteral("dataSize"), 120},
                                           {QStringLiteral("AC115"), band},
                                           {QStringLiteral("AC230"), band}},
                                          why));
        app::Supply curved(bus->backend(), psu::MonitorTiming{{200ms, 10ms, 5ms}, 5s}, {dir.path()});
        curved.identifyModel();
        curved.monitor().readInfo();
        ASSERT_TRUE(curved.fresh("WATTS"));
        app::Usage other(curved, settings, dir.path());
        other.tick(now, at(12));
        other.tick(now + 1s, at(12));
        EXPECT_EQ(other.efficiencyKnown(), known);
        EXPECT_GT(other.thisRun().outputKwh, 0.0);
        EXPECT_NEAR(other.thisRun().wallKwh / other.thisRun().outputKwh, known ? 1.25 : 1.0, 1e-6);
    }
}

} // namespace
