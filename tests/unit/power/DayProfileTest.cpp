#include "power/DayProfile.h"

#include <QLoggingCategory>

#include <gmock/gmock.h>

using namespace zpsg::power;

namespace {

class DayProfileTest : public ::testing::Test {
protected:
    DayProfileTest() { day.loadDayProfile(kToday); }

    static QDateTime at(int hour, int minute, int second = 0, QDate date = kToday) {
        return {date, QTime(hour, minute, second)};
    }

    /// Samples of one value, then the minute's tick.
    void minute(float watts, const QDateTime &now) {
        for (int i = 0; i < 3; ++i) {
            day.addSample(QString::number(static_cast<double>(watts)), now);
        }
        day.tick(now);
    }

    [[nodiscard]] int filled() const {
        return kDayBuckets - static_cast<int>(day.buckets().count(QStringLiteral("0")));
    }

    static inline const QDate kToday{2026, 10, 25}; // when European clocks go back
    StoredDay disk;
    int saves = 0;
    DayProfile day{{[this] { return disk; },
                    [this](const QStringList &watts) {
                        disk.watts = watts;
                        ++saves;
                    },
                    [this](const StoredDay &stored) { disk = stored; }}};
};

TEST_F(DayProfileTest, PutsEachAverageIntoTheBucketOfItsTime) {
    struct Case {
        int hour, minute, bucket;
    };
    for (const auto &[hour, min, bucket] :
         {Case{6, 0, 0}, Case{6, 4, 1}, Case{23, 56, 269}, Case{0, 4, 271}, Case{5, 56, 359}}) {
        disk = {};
        day = DayProfile{{[this] { return disk; }, [](const QStringList &) {}, [](const StoredDay &) {}}};
        day.loadDayProfile(kToday);
        day.addSample(QStringLiteral("100"), at(hour, min));
        day.addSample(QStringLiteral("200.5"), at(hour, min));
        day.tick(at(hour, min));
        EXPECT_EQ(day.buckets().at(bucket), QStringLiteral("150.25")) << hour << ':' << min;
        EXPECT_EQ(filled(), 1);
    }
    static_assert(bucketOf(0) == 270 && bucketOf(3) == 270 && bucketOf(359) == 359 && bucketOf(360) == 0);
}

TEST_F(DayProfileTest, AMinuteThatEndsNoBucketKeepsItsSamplesAndASlotWithoutSamplesItsBucket) {
    minute(100.0F, at(10, 1));
    minute(300.0F, at(10, 2));
    EXPECT_EQ(filled(), 0);
    day.tick(at(10, 3));
    day.tick(at(10, 4));
    EXPECT_EQ(day.buckets().at(bucketOf(604)), QStringLiteral("200"));
    const int before = saves;
    for (int i = 5; i <= 8; ++i) {
        day.tick(at(10, i));
    }
    EXPECT_EQ(filled(), 1);
    EXPECT_EQ(saves, before + 1); // saved all the same
}

TEST_F(DayProfileTest, ANewDayStartsEmptyAndTheSameDayGoesOn) {
    for (int i = 0; i < 30; ++i) {
        minute(50.0F, at(8 + i / 15, i % 15 * 4));
    }
    DayProfile again{{[this] { return disk; }, nullptr, [this](const StoredDay &stored) { disk = stored; }}};
    again.loadDayProfile(kToday);
    EXPECT_EQ(again.usageMinutes(), 120);
    EXPECT_EQ(again.buckets(), day.buckets());
    again.loadDayProfile(kToday.addDays(1));
    EXPECT_EQ(again.usageMinutes(), 0);
    EXPECT_EQ(again.buckets().count(QStringLiteral("0")), kDayBuckets);
    EXPECT_EQ(disk.date, kToday.addDays(1).toString(QStringLiteral("MM-dd")));
}

TEST_F(DayProfileTest, TheUsageClockCountsMinutesAndBeginsAnewAtMidnight) {
    for (int i = 0; i < 5; ++i) {
        day.tick(at(23, 55 + i));
        EXPECT_EQ(day.usageMinutes(), i);
    }
    minute(80.0F, at(0, 0, 0, kToday.addDays(1)));
    EXPECT_EQ(day.usageMinutes(), 0);
    EXPECT_EQ(filled(), 0); // the minutes before midnight belong to the day that is gone
    day.tick(at(0, 1, 0, kToday.addDays(1)));
    EXPECT_EQ(day.usageMinutes(), 1);
}

TEST_F(DayProfileTest, SurvivesWhatClocksDo) {
    minute(100.0F, at(10, 4));
    // A beat that comes a moment early and one that comes a moment late leave 10:08 out.
    minute(200.0F, at(10, 7, 59));
    minute(200.0F, at(10, 9));
    EXPECT_EQ(day.buckets().at(bucketOf(608)), QStringLiteral("200"));
    // Two beats in 10:12: the second has a moment's samples and must not replace a full bucket.
    minute(300.0F, at(10, 12));
    minute(900.0F, at(10, 12, 59));
    EXPECT_EQ(day.buckets().at(bucketOf(612)), QStringLiteral("300"));
    // Asleep from 10:13 to 15:04: what was sampled before belongs to 10:16 and has no part in 15:04.
    day.tick(at(10, 13));
    minute(400.0F, at(15, 4));
    EXPECT_EQ(day.buckets().at(bucketOf(616)), QStringLiteral("900"));
    EXPECT_EQ(day.buckets().at(bucketOf(904)), QStringLiteral("400"));
    // The hour that is repeated is written again; nothing else changes.
    minute(500.0F, at(2, 40));
    minute(600.0F, at(2, 0));
    minute(700.0F, at(2, 40));
    EXPECT_EQ(day.buckets().at(bucketOf(160)), QStringLiteral("700"));
    // Asleep over midnight.
    minute(50.0F, at(8, 30, 0, kToday.addDays(1)));
    EXPECT_EQ(filled(), 0);
    EXPECT_EQ(disk.date, kToday.addDays(1).toString(QStringLiteral("MM-dd")));
}

TEST_F(DayProfileTest, TakesWhateverAFileHolds) {
    const QString today = kToday.toString(QStringLiteral("MM-dd"));
    for (const auto &watts :
         {QStringList(), QStringList{QStringLiteral("nan"), QStringLiteral("-5"), QStringLiteral("soup")},
          QStringList(QVector<QString>(5000, QStringLiteral("inf")).toList())}) {
        disk = {watts, today};
        day.loadDayProfile(kToday);
        EXPECT_EQ(day.buckets().size(), kDayBuckets);
        EXPECT_EQ(filled(), 0);
        EXPECT_EQ(day.usageMinutes(), 0);
    }
}

} // namespace
