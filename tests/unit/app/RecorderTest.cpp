#include "app/Recorder.h"

#include "support/FullDisk.h"

#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace zpsg;

namespace {

class RecorderTest : public ::testing::Test {
protected:
    RecorderTest() {
        EXPECT_TRUE(
            QFile::copy(QStringLiteral(ZPSG_DATABASE), resources.filePath(QStringLiteral("database.db"))));
        QFile(resources.filePath(QStringLiteral("database.db"))).setPermissions(QFile::ReadOwner);
        record.store(QStringLiteral("WATTS"), 60.0F);
        record.store(QStringLiteral("EFF"), 90.0F);
    }

    std::unique_ptr<app::Recorder> make() {
        return std::make_unique<app::Recorder>(settings, data.path(), resources.path(), [] { return 0U; });
    }

    void minutes(app::Recorder &recorder, int count) {
        for (int i = 0; i < count; ++i) {
            recorder.saveData(record, QStringLiteral("SN"), sensors, now);
            now = now.addSecs(60);
        }
    }

    QTemporaryDir data;
    QTemporaryDir resources;
    app::Settings settings{data.path()};
    psu::TelemetryRecord record;
    records::PcSensors sensors{};
    QDateTime now{QDate(2026, 11, 21), QTime(21, 0)};
};

// The day on the page is the settled minutes and those that are not settled yet, over restarts.
TEST_F(RecorderTest, CountsSettledAndUnsettledMinutesOnce) {
    const QDate first = now.date();
    const QDate second = first.addDays(1);
    for (int start = 0; start < 4; ++start) {
        const auto recorder = make();
        minutes(*recorder, 200);
        recorder->getNextDailySettlement(now);
        int total = 0;
        for (const auto &day : recorder->totals(first, second)) {
            total += day.count;
            EXPECT_FLOAT_EQ(day.kwh, static_cast<float>(day.count) * 0.001F);
        }
        EXPECT_EQ(total, 200 * (start + 1));
    }
    EXPECT_EQ(settings.integer(app::Setting::RecFileNumber), 3);
    EXPECT_EQ(settings.integer(app::Setting::RecFiledayNumber), 2);
    const auto days = make()->totals(first, first);
    ASSERT_EQ(days.size(), 1U);
    EXPECT_EQ(days[0].count, 180);
}

TEST_F(RecorderTest, RecordsThePcsOwnSensorsInTheLastFields) {
    sensors = {1.25F, 30.5F, 65.0F, 54.0F, 0.0F, 0.0F, 120.25F, 61.0F};
    const auto recorder = make();
    minutes(*recorder, 1);
    const auto rows = records::readFile(records::recordPath(data.path(), 1)).rows;
    ASSERT_EQ(rows.size(), 1);
    EXPECT_TRUE(rows.front().endsWith(QStringLiteral(",1.25,30.50,65.00,54.00,0.00,0.00,120.25,61.00")))
        << qPrintable(rows.front());
}

TEST_F(RecorderTest, TellsOnceThatTheDiskIsFullAndLosesNothing) {
    auto recorder = make();
    QSignalSpy failed(recorder.get(), &app::Recorder::recordingFailed);
    QSignalSpy resumed(recorder.get(), &app::Recorder::recordingResumed);
    minutes(*recorder, 2);
    {
        const test::FullDisk disk(100);
        minutes(*recorder, 5);
    }
    minutes(*recorder, 1);
    EXPECT_EQ(failed.count(), 1);
    EXPECT_EQ(resumed.count(), 1);
    EXPECT_EQ(recorder->totals(now.date(), now.date()).at(0).count, 8);
    {
        const test::FullDisk disk(100);
        minutes(*recorder, 1);
    }
    recorder.reset(); // what is kept is written at the end
    EXPECT_EQ(make()->totals(now.date(), now.date()).at(0).count, 9);
}

TEST_F(RecorderTest, TakesItsDatabaseFromWhatShipsOnceOnly) {
    make()->history().addDay({now.date(), 1.0F, 1.0F, 90.0F, 1});
    EXPECT_EQ(make()->totals(now.date(), now.date()).size(), 1U);
    QFile::remove(data.filePath(QStringLiteral("database.db")));
    QFile::rename(resources.filePath(QStringLiteral("database.db")),
                  resources.filePath(QStringLiteral("empty.db")));
    make()->history().addDay({now.date(), 1.0F, 1.0F, 90.0F, 1}); // only a day that is there takes it
    EXPECT_EQ(make()->totals(now.date(), now.date()).size(), 1U) << "by its name where both share a folder";
    QFile::remove(data.filePath(QStringLiteral("database.db")));
    QFile::remove(resources.filePath(QStringLiteral("empty.db")));
    const auto without = make();
    minutes(*without, 3);
    EXPECT_EQ(without->totals(now.date(), now.date()).at(0).count, 3);
}

} // namespace
