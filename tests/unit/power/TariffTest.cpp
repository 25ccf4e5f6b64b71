#include "power/Tariff.h"

#include <QTimeZone>

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

using namespace zpsg::power;

namespace {

constexpr double kBase = 0.3;

double rateAt(const char *periods, const char *local) {
    const auto parsed = parseTariff(kBase, QString::fromLatin1(periods));
    EXPECT_THAT(parsed.errors, ::testing::IsEmpty()) << periods;
    return parsed.tariff.rateAt(QDateTime::fromString(QString::fromLatin1(local), Qt::ISODate));
}

// 2026-11-16 was a Monday.
TEST(TariffTest, EachMomentHasTheRateOfItsFirstPeriod) {
    struct Case {
        const char *periods;
        const char *local;
        double rate;
    };
    const char *const week = "12345 22:00-06:00 0.21; 67 00:00-24:00 0.19";
    const char *const sunday = "7 23:00-01:00 0.1";
    const char *const overlap = "1 08:00-12:00 0.1; 1234567 10:00-14:00 0.2";
    for (const auto &[periods, local, rate] :
         {Case{"", "2026-11-16T12:00:00", kBase},
          Case{week, "2026-11-16T05:59:59", kBase}, // no Sunday's night
          Case{week, "2026-11-16T21:59:59", kBase},
          Case{week, "2026-11-16T22:00:00", 0.21},
          Case{week, "2026-11-17T05:59:59", 0.21},
          Case{week, "2026-11-17T06:00:00", kBase},
          Case{week, "2026-11-21T05:59:59", 0.21}, // Friday's night comes before Saturday's day
          Case{week, "2026-11-21T06:00:00", 0.19},
          Case{week, "2026-11-22T23:59:59", 0.19},
          Case{sunday, "2026-11-22T23:00:00", 0.1},
          Case{sunday, "2026-11-23T00:59:59", 0.1},
          Case{sunday, "2026-11-23T01:00:00", kBase},
          Case{sunday, "2026-11-22T00:30:00", kBase},
          Case{"1 22:00-00:00 0.1", "2026-11-16T23:59:59", 0.1},
          Case{"1 22:00-00:00 0.1", "2026-11-17T00:00:00", kBase},
          Case{"1 22:00-24:00 0.1", "2026-11-17T00:00:00", kBase},
          Case{"1 09:30-09:30 0.1", "2026-11-16T00:00:00", 0.1},
          Case{"1 09:30-09:30 0.1", "2026-11-17T00:00:00", kBase},
          Case{overlap, "2026-11-16T11:59:00", 0.1},
          Case{overlap, "2026-11-16T12:00:00", 0.2},
          Case{overlap, "2026-11-17T11:59:00", 0.2},
          Case{week, "no time", kBase}}) {
        EXPECT_EQ(rateAt(periods, local), rate) << periods << " at " << local;
    }
}

// The clock's hours count: what is cheap from 22:00 to 06:00 is so for 7, 8 or 9 hours.
TEST(TariffTest, FollowsTheClockWhenItIsChanged) {
    const QTimeZone zone("Europe/Berlin");
    ASSERT_TRUE(zone.isValid());
    const auto parsed = parseTariff(kBase, QStringLiteral("1234567 22:00-06:00 0.2"));
    for (const auto &[day, hours] :
         {std::pair(QDate(2026, 3, 27), 8), {QDate(2026, 3, 28), 7}, {QDate(2026, 10, 24), 9}}) {
        int minutes = 0;
        for (int minute = 0; minute < kMinutesOfDay; ++minute) {
            const QDateTime local = QDateTime(day, QTime(12, 0), zone).addSecs(60LL * minute);
            minutes += parsed.tariff.rateAt(local) == 0.2 ? 1 : 0;
        }
        EXPECT_EQ(minutes, hours * 60) << day.toString(Qt::ISODate).toStdString();
    }
}

TEST(TariffTest, WritesWhatItReads) {
    struct Case {
        const char *text;
        const char *written;
    };
    const double third = 1.0 / 3.0;
    for (const auto &[text, written] :
         {Case{"", ""}, Case{" ; ;", ""}, Case{"7 00:00-24:00 0", "7 00:00-24:00 0"},
          Case{"51 6:05 - 06:05\t.5;12345 22:00-06:00 1e6;",
               "15 06:05-06:05 0.5; 12345 22:00-06:00 1e+06"}}) {
        const auto parsed = parseTariff(kBase, QString::fromLatin1(text));
        EXPECT_THAT(parsed.errors, ::testing::IsEmpty()) << text;
        EXPECT_EQ(parsed.tariff.periodsText(), QLatin1String(written));
        EXPECT_EQ(parseTariff(kBase, parsed.tariff.periodsText()).tariff.periods(), parsed.tariff.periods());
    }
    const Tariff exact(third, {{dayBit(3), 0, 1440, third}});
    EXPECT_EQ(parseTariff(third, exact.periodsText()).tariff.periods().at(0).rate, third);
}

TEST(TariffTest, KeepsWhatIsGoodAndTellsWhatIsNot) {
    const QString good = QStringLiteral("1 00:00-01:00 0.5");
    for (const char *bad :
         {"x", "1", "8 00:00-01:00 0.5", "0 00:00-01:00 0.5", "1 24:00-01:00 0.5", "1 00:00-24:01 0.5",
          "1 00:60-01:00 0.5", "1 00:00-01:60 0.5", "1 00:00-01:00 -0.5", "1 00:00-01:00 0,5",
          "1 00:00-01:00 nan", "1 00:00-01:00 inf", "1 00:00-01:00 1000000.1", "1 00:00-01:00",
          "1 00:00-01:00 0.5 0.5", "Mo 00:00-01:00 0.5", "1 0:0-1:0 0.5"}) {
        const auto parsed =
            parseTariff(kBase, QStringLiteral("%1;  %2 ;%1").arg(good, QString::fromLatin1(bad)));
        EXPECT_EQ(parsed.tariff.periods().size(), 2U) << bad;
        ASSERT_EQ(parsed.errors.size(), 1U) << bad;
        EXPECT_EQ(parsed.errors[0].position, good.size() + 3) << bad;
        EXPECT_EQ(parsed.errors[0].entry, QLatin1String(bad));
    }
    const auto crowded = parseTariff(kBase, (good + QStringLiteral(";")).repeated(14));
    EXPECT_EQ(crowded.tariff.periods().size(), Tariff::kMostPeriods);
    EXPECT_EQ(crowded.errors.size(), 2U);
}

TEST(TariffTest, HoldsNothingImpossible) {
    EXPECT_EQ(Tariff(std::nan("")).baseRate(), 0.0);
    EXPECT_EQ(Tariff(-1.0).baseRate(), 0.0);
    EXPECT_EQ(Tariff(std::numeric_limits<double>::infinity()).baseRate(), kHighestRate);
    const unsigned monday = dayBit(1);
    const Tariff tariff(kBase, {{0, 0, 60, 0.1},
                                {dayBit(8), 0, 60, 0.1},
                                {monday, -1, 60, 0.1},
                                {monday, 1440, 60, 0.1},
                                {monday, 0, 1441, 0.1},
                                {monday, 0, 60, std::nan("")},
                                {monday, 0, 60, 0.1}});
    EXPECT_THAT(tariff.periods(), ::testing::ElementsAre(TariffPeriod{monday, 0, 60, 0.1}));
    EXPECT_EQ(Tariff(kBase, std::vector(20, TariffPeriod{monday, 0, 60, 0.1})).periods().size(),
              Tariff::kMostPeriods);
}

} // namespace
