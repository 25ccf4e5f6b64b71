#include "ui/HistoryMinutes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <ctime>

namespace zpsg::ui::test {
namespace {

const QDate kDay(2026, 7, 16);

HistoryMinute at(const QDateTime &time, double watts, double efficiency = 90.0) {
    HistoryMinute minute;
    minute.time = time;
    minute.watts = watts;
    minute.volts12 = 12.06;
    minute.efficiency = efficiency;
    return minute;
}
HistoryMinute at(const QTime &time, double watts, double efficiency = 90.0) {
    return at(QDateTime(kDay, time), watts, efficiency);
}

/// Clocks as in the middle of Europe, whatever the machine's own are.
class SummerTime {
public:
    SummerTime() : before_(qgetenv("TZ")), set_(qEnvironmentVariableIsSet("TZ")) {
        qputenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
        tzset();
    }
    ~SummerTime() {
        if (set_) {
            qputenv("TZ", before_);
        } else {
            qunsetenv("TZ");
        }
        tzset();
    }
    SummerTime(const SummerTime &) = delete;
    SummerTime &operator=(const SummerTime &) = delete;

private:
    QByteArray before_;
    bool set_;
};

TEST(HistoryMinutes, BringsRowsIntoOrderAndLeavesOutOthers) {
    const HistoryMinutes minutes(
        kDay, {at(QTime(10, 1), 30.0), at(QTime(10, 0), 10.0), at(QTime(10, 0, 40), 20.0),
               at(QDateTime(kDay.addDays(1), QTime(0, 0)), 99.0),
               at(QDateTime(kDay.addDays(-1), QTime(23, 59)), 99.0), at(QDateTime(), 99.0)});
    ASSERT_EQ(minutes.size(), 3U) << "two rows in one minute are two rows";
    for (std::size_t row = 0; row < 3; ++row) {
        EXPECT_DOUBLE_EQ(minutes.value(HistoryCurve::Watts, row), 10.0 * (static_cast<double>(row) + 1.0));
    }
    EXPECT_TRUE(HistoryMinutes(kDay, {}).empty());
    EXPECT_TRUE(HistoryMinutes(QDate(), {at(QTime(10, 0), 1.0)}).empty());
}

TEST(HistoryMinutes, AGapIsMoreThanTwoAndAHalfMinutes) {
    const HistoryMinutes minutes(kDay, {at(QTime(10, 0), 1.0), at(QTime(10, 1), 1.0),
                                        at(QTime(10, 3, 30), 1.0), at(QTime(10, 6, 1), 1.0)});
    const std::vector<bool> gaps{true, false, false, true};
    for (std::size_t row = 0; row < gaps.size(); ++row) {
        EXPECT_EQ(minutes.gapBefore(row), gaps[row]) << row;
    }
}

TEST(HistoryMinutes, SumsUpWhatIsInView) {
    const HistoryMinutes minutes(kDay, {at(QTime(8, 0), 900.0), at(QTime(10, 0), 100.0, 0.0),
                                        at(QTime(10, 1), 400.0, 91.0), at(QTime(10, 2), std::nan(""), 93.0),
                                        at(QTime(10, 3), 100.0, 0.0), at(QTime(12, 0), 1.0)});
    const auto watts = minutes.statistics(HistoryCurve::Watts, 36000.0, 36180.0);
    ASSERT_TRUE(watts);
    EXPECT_DOUBLE_EQ(watts->least, 100.0);
    EXPECT_DOUBLE_EQ(watts->mean, 200.0);
    EXPECT_DOUBLE_EQ(watts->most, 400.0);
    EXPECT_DOUBLE_EQ(minutes.statistics(HistoryCurve::Efficiency, 36000.0, 36180.0)->mean, 92.0)
        << "0 is not known";
    EXPECT_FALSE(minutes.statistics(HistoryCurve::Volts5, 0.0, 86400.0)) << "never read";
    EXPECT_FALSE(minutes.statistics(HistoryCurve::Watts, 50000.0, 60000.0));
    EXPECT_EQ(minutes.nearest(36029.0), 1U);
    EXPECT_EQ(minutes.nearest(36031.0), 2U);
    EXPECT_EQ(minutes.nearest(0.0), 0U);
    EXPECT_EQ(minutes.nearest(86400.0), 5U);
    EXPECT_FALSE(HistoryMinutes().nearest(0.0));
    EXPECT_NEAR(plotted(HistoryCurve::Volts12, 12.06), 0.5, 1e-9);
}

TEST(HistoryMinutes, DaysOnWhichTheClocksChange) {
    const SummerTime zone;
    const QDate shorter(2026, 3, 29);
    const QDate longer(2026, 10, 25);
    ASSERT_DOUBLE_EQ(HistoryMinutes(shorter, {}).length(), 23.0 * 3600.0);
    ASSERT_DOUBLE_EQ(HistoryMinutes(longer, {}).length(), 25.0 * 3600.0);

    const HistoryMinutes spring(shorter, {at(QDateTime(shorter, QTime(1, 59)), 1.0),
                                          at(QDateTime(shorter, QTime(3, 0)), 2.0),
                                          at(QDateTime(shorter, QTime(23, 59)), 3.0)});
    EXPECT_FALSE(spring.gapBefore(1)) << "there is nothing between 1:59 and 3:00";
    EXPECT_DOUBLE_EQ(spring.seconds(2), 23.0 * 3600.0 - 60.0);

    // The hour from two to three comes twice, and the rows say what the clock said.
    std::vector<HistoryMinute> rows;
    double watts = 0.0;
    for (const auto &[from, past] : {std::pair(60, 180), std::pair(120, 240)}) {
        for (int minute = from; minute < past; ++minute) {
            rows.push_back(at(QDateTime(longer, QTime(minute / 60, minute % 60)), watts += 1.0));
        }
    }
    const HistoryMinutes autumn(longer, rows);
    ASSERT_EQ(autumn.size(), 240U);
    for (std::size_t row = 0; row < autumn.size(); ++row) {
        EXPECT_DOUBLE_EQ(autumn.seconds(row), 3600.0 + 60.0 * static_cast<double>(row));
        EXPECT_DOUBLE_EQ(autumn.value(HistoryCurve::Watts, row), static_cast<double>(row) + 1.0);
    }

    for (const QDate &day : {shorter, longer, QDate(2026, 7, 16)}) {
        const double length = HistoryMinutes(day, {}).length();
        const QList<double> ticks = clockTicks(day, 0.0, length, 12);
        EXPECT_GE(ticks.size(), 9);
        EXPECT_DOUBLE_EQ(ticks.constFirst(), 0.0);
        EXPECT_DOUBLE_EQ(ticks.constLast(), length);
        for (int i = 1; i < ticks.size(); ++i) {
            EXPECT_GT(ticks.at(i), ticks.at(i - 1));
            EXPECT_TRUE(clockText(day, ticks.at(i)).endsWith(QStringLiteral(":00")));
        }
    }
}

} // namespace
} // namespace zpsg::ui::test
