// Ranges, sums, dates in words and the ticks of axes.
#include "ui/HistoryDates.h"
#include "ui/HistoryRanges.h"
#include "ui/HistoryScales.h"
#include "ui/HistorySums.h"
#include "ui/HistoryWindow.h"
#include "UiFixture.h"

#include <array>

namespace zpsg::ui::test {
namespace {

constexpr HistorySpan kWeek = HistorySpan::Week;
constexpr HistorySpan kMonth = HistorySpan::Month;
constexpr HistorySpan kYear = HistorySpan::Year;
constexpr HistorySpan kRange = HistorySpan::Range;

QString iso(const HistoryRange &range) {
    return range.from.toString(Qt::ISODate) + QLatin1Char('/') + range.to.toString(Qt::ISODate);
}
QDate date(const char *text) { return QDate::fromString(QString::fromLatin1(text), Qt::ISODate); }

TEST(HistoryRanges, AroundADay) {
    struct Case {
        HistorySpan span;
        const char *day;
        Qt::DayOfWeek begins;
        const char *range;
    };
    const std::array cases{
        Case{kWeek, "2026-07-16", Qt::Monday, "2026-07-13/2026-07-19"},
        Case{kWeek, "2026-07-13", Qt::Monday, "2026-07-13/2026-07-19"},
        Case{kWeek, "2026-07-19", Qt::Monday, "2026-07-13/2026-07-19"},
        Case{kWeek, "2026-07-19", Qt::Sunday, "2026-07-19/2026-07-25"},
        Case{kWeek, "2026-07-17", Qt::Saturday, "2026-07-11/2026-07-17"},
        Case{kWeek, "2026-01-01", Qt::Monday, "2025-12-29/2026-01-04"},
        Case{kMonth, "2024-02-29", Qt::Monday, "2024-02-01/2024-02-29"},
        Case{kMonth, "2026-02-03", Qt::Monday, "2026-02-01/2026-02-28"},
        Case{kMonth, "2026-12-31", Qt::Monday, "2026-12-01/2026-12-31"},
        Case{kYear, "2024-02-29", Qt::Monday, "2024-01-01/2024-12-31"},
    };
    for (const Case &c : cases) {
        EXPECT_EQ(iso(rangeAround(c.span, date(c.day), c.begins)), QLatin1String(c.range)) << c.day;
    }
    EXPECT_EQ(rangeAround(kYear, date("2024-05-05"), Qt::Monday).days(), 366);
}

TEST(HistoryRanges, StepsKeepToTheCalendarAndStopToday) {
    struct Case {
        HistorySpan span;
        HistoryRange range;
        int step;
        const char *stepped;
    };
    const QDate today = date("2026-07-16");
    const std::array cases{
        Case{kWeek, {date("2026-06-29"), date("2026-07-05")}, 1, "2026-07-06/2026-07-12"},
        Case{kMonth, {date("2026-03-01"), date("2026-03-31")}, -1, "2026-02-01/2026-02-28"},
        Case{kMonth, {date("2025-12-01"), date("2025-12-31")}, 1, "2026-01-01/2026-01-31"},
        Case{kYear, {date("2025-01-01"), date("2025-12-31")}, -1, "2024-01-01/2024-12-31"},
        Case{kRange, {date("2026-07-01"), date("2026-07-10")}, -1, "2026-06-21/2026-06-30"},
        Case{kRange, {date("2026-06-01"), date("2026-06-10")}, 1, "2026-06-11/2026-06-20"},
        Case{kRange, {date("2026-07-01"), date("2026-07-10")}, 1, "2026-07-07/2026-07-16"},
        Case{kRange, {date("2026-07-07"), date("2026-07-16")}, 1, "2026-07-07/2026-07-16"},
    };
    for (const Case &c : cases) {
        EXPECT_EQ(iso(steppedRange(c.span, c.range, c.step, today, Qt::Monday)), QLatin1String(c.stepped));
    }
    EXPECT_TRUE(canStep({date("2026-07-06"), date("2026-07-12")}, 1, today));
    EXPECT_FALSE(canStep({date("2026-07-13"), date("2026-07-19")}, 1, today));
    EXPECT_FALSE(canStep({date("2026-07-07"), today}, 1, today));
    EXPECT_FALSE(canStep({QDate(kHistoryFirstYear, 1, 1), today}, -1, today));
}

TEST(HistorySums, OfARange) {
    const QDate today = date("2026-07-16");
    const std::vector<HistoryDay> days{{date("2026-07-14"), 3.0, 300.0, 90.0, 600},
                                       {date("2026-07-15"), 1.0, 100.0, 88.0, 600},
                                       {today, 0.2, 120.0, 0.0, 100}};
    const HistorySum energy = sumOf(days, HistoryMeasure::Energy, today);
    EXPECT_DOUBLE_EQ(energy.kwh, 4.2);
    EXPECT_EQ(energy.minutes, 1300);
    EXPECT_NEAR(energy.meanWatts, (300.0 * 600 + 100.0 * 600 + 120.0 * 100) / 1300, 1e-9);
    EXPECT_EQ(energy.highest->date, date("2026-07-14"));
    EXPECT_EQ(energy.lowest->date, date("2026-07-15")) << "today is not over";
    EXPECT_EQ(sumOf({days.back(), days.front()}, HistoryMeasure::Energy, today).lowest->date,
              date("2026-07-14"));
    EXPECT_EQ(sumOf({days.back()}, HistoryMeasure::Power, today).lowest->date, today) << "but it is all";
    EXPECT_FALSE(sumOf({}, HistoryMeasure::Power, today).highest);
}

TEST(HistorySums, DaysBecomeMonths) {
    const HistoryRange range{date("2024-01-30"), date("2024-03-02")};
    const std::vector<HistoryDay> days{{date("2024-02-29"), 2.0, 200.0, 92.0, 300},
                                       {date("2024-01-31"), 1.0, 100.0, 90.0, 60},
                                       {date("2024-02-01"), 1.0, 50.0, 88.0, 100},
                                       {date("2024-02-02"), 1.0, 50.0, 0.0, 100},
                                       {date("2023-12-31"), 9.0, 900.0, 90.0, 60}};
    const std::vector<HistorySlot> months = slotsOf(days, range, true);
    ASSERT_EQ(months.size(), 3U);
    EXPECT_EQ(months[0].first, 0);
    EXPECT_EQ(months[0].past, 2) << "the range begins with the last two days of January";
    EXPECT_EQ(months[1].past - months[1].first, 29);
    EXPECT_EQ(months[2].past, range.days());
    EXPECT_DOUBLE_EQ(months[1].total.kwh, 4.0);
    EXPECT_DOUBLE_EQ(months[1].total.meanWatts, (200.0 * 300 + 50.0 * 200) / 500);
    EXPECT_DOUBLE_EQ(months[1].total.meanEfficiency, (92.0 * 300 + 88.0 * 100) / 400)
        << "minutes without an efficiency do not count";
    EXPECT_EQ(months[1].total.date, date("2024-02-01"));
    EXPECT_EQ(months[2].total.minutes, 0);

    const std::vector<HistorySlot> single = slotsOf(days, range, false);
    ASSERT_EQ(single.size(), 33U);
    EXPECT_DOUBLE_EQ(single[1].total.kwh, 1.0);
    EXPECT_EQ(single[0].total.minutes, 0);
    const std::array<std::pair<int, int>, 6> places{{{-1, -1}, {0, 0}, {1, 0}, {2, 1}, {32, 2}, {33, -1}}};
    for (const auto &[day, slot] : places) {
        EXPECT_EQ(slotAt(months, day), slot) << day;
    }
}

TEST(HistoryDates, FollowTheLocale) {
    struct Case {
        const char *locale;
        DateParts parts;
        const char *text;
    };
    const std::array cases{
        Case{"en_GB", DateParts::Date, "14 July 2026"},
        Case{"en_GB", DateParts::DayMonth, "14 Jul"},
        Case{"en_US", DateParts::DayMonth, "Jul 14"},
        Case{"en_US", DateParts::Month, "July 2026"},
        Case{"en_US", DateParts::Weekday, "Tue, July 14, 2026"},
        Case{"de_DE", DateParts::Short, "14. Juli 2026"},
        Case{"de_DE", DateParts::DayMonth, "14. Juli"},
        Case{"es_ES", DateParts::Month, "julio de 2026"},
        Case{"es_ES", DateParts::DayMonth, "14 de jul"},
        Case{"pl_PL", DateParts::Month, "lipiec 2026"},
        Case{"ja_JP", DateParts::DayMonth, "7月14日"},
        Case{"ja_JP", DateParts::Month, "2026年7月"},
        Case{"hu_HU", DateParts::Date, "2026. július 14"},
    };
    for (const Case &c : cases) {
        EXPECT_EQ(dateText(QDate(2026, 7, 14), c.parts, QLocale(QLatin1String(c.locale))),
                  QString::fromUtf8(c.text))
            << c.locale;
    }
}

/// In a fixed number format.
class HistoryScales : public UiTest {};

TEST_F(HistoryScales, AxesHoldTheirValuesInFourRoundSteps) {
    const std::array<std::pair<double, double>, 8> cases{{{0.0, 3.07},
                                                          {0.0, 0.004},
                                                          {0.0, 1199.0},
                                                          {34.1, 60.7},
                                                          {90.8, 94.2},
                                                          {-0.55, 0.6},
                                                          {5.0, 5.0},
                                                          {-12.0, -11.0}}};
    for (const auto &[least, most] : cases) {
        const ValueScale scale = valueScale(least, most);
        EXPECT_LE(scale.low, least + 1e-9);
        EXPECT_GE(scale.high(), most - 1e-9);
        EXPECT_LE(scale.high() - scale.low, std::max(2.1 * (most - least), 0.01)) << least << " " << most;
        EXPECT_EQ(scale.ticks().size(), 5);
    }
    EXPECT_EQ(valueScale(0.0, 6.0).label(1.5), QStringLiteral("1.5"));
    EXPECT_EQ(valueScale(0.0, 600.0).label(150.0), QStringLiteral("150"));
}

TEST_F(HistoryScales, DaysAreNamedAsFarAsThereIsRoom) {
    for (const int room : {4, 12, 26}) {
        for (const HistoryRange &range : {HistoryRange{date("2026-07-13"), date("2026-07-19")},
                                          HistoryRange{date("2026-07-01"), date("2026-07-31")},
                                          HistoryRange{date("2024-01-01"), date("2024-12-31")},
                                          HistoryRange{date("2016-07-17"), date("2026-07-16")}}) {
            const DayScale scale = dayScale(range, room);
            EXPECT_FALSE(scale.ticks.isEmpty());
            EXPECT_LE(scale.ticks.size(), room + 1) << qPrintable(iso(range));
            EXPECT_EQ(scale.ticks.size(), scale.texts.size());
            EXPECT_GT(scale.ticks.constFirst(), 0.0);
            EXPECT_LT(scale.ticks.constLast(), range.days());
        }
    }
    const DayScale year = dayScale({date("2024-01-01"), date("2024-12-31")}, 12);
    EXPECT_EQ(year.beginnings.size(), 11);
    EXPECT_EQ(year.beginnings.at(1), 60.0) << "March of a leap year";
}

TEST(HistoryWindow, ZoomsAroundAPlaceAndStaysInTheDay) {
    constexpr double kDay = 86400.0;
    const HistoryWindow whole{0.0, kDay};
    const HistoryWindow half = whole.zoomed(21600.0, 0.5, kDay);
    EXPECT_DOUBLE_EQ(half.length(), kDay / 2.0);
    EXPECT_DOUBLE_EQ((21600.0 - half.from) / half.length(), 0.25) << "what is pointed at stays there";
    EXPECT_DOUBLE_EQ(half.zoomed(0.0, 1e-6, kDay).length(), HistoryWindow::kLeast);
    EXPECT_DOUBLE_EQ(half.zoomed(30000.0, 9.0, kDay).length(), kDay);
    EXPECT_DOUBLE_EQ(half.moved(1e9, kDay).to, kDay);
    EXPECT_DOUBLE_EQ(half.moved(-1e9, kDay).from, 0.0);
    EXPECT_DOUBLE_EQ(half.moved(-1e9, kDay).length(), half.length());
}

} // namespace
} // namespace zpsg::ui::test
