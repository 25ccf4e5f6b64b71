#include "records/RecordStore.h"
#include "records/Settlement.h"
#include "support/FullDisk.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace zpsg;
using namespace zpsg::records;

namespace {

const QDateTime kNoon{QDate(2026, 11, 21), QTime(12, 0)};

psu::TelemetryRecord record(float watts) {
    psu::TelemetryRecord result;
    result.store(QStringLiteral("WATTS"), watts);
    result.store(QStringLiteral("EFF"), 91.237F);
    result.store(QStringLiteral("FanSpeed"), 812.0F);
    result.store(QStringLiteral("Temp"), 41.5F);
    return result;
}

QString row(const QDateTime &time, float watts = 120.0F) {
    return makeRow(record(watts), time, QStringLiteral("SN1"), {}, [] { return 0U; });
}

class RecordsTest : public ::testing::Test {
protected:
    RecordsTest() {
        EXPECT_TRUE(QFile::copy(QStringLiteral(ZPSG_DATABASE), dir.filePath(QStringLiteral("database.db"))));
        QFile::setPermissions(dir.filePath(QStringLiteral("database.db")),
                              QFile::ReadOwner | QFile::WriteOwner);
    }

    Counters counters() {
        return {[this] { return recordFile; }, [this](int number) { recordFile = number; },
                [this] { return settledFile; }, [this](int number) { settledFile = number; }};
    }

    [[nodiscard]] QString path(int number) const { return recordPath(dir.path(), number); }

    /// A closed file with these rows as the newest.
    void addFile(const QStringList &rows) {
        ++recordFile;
        ASSERT_TRUE(writeFile(path(recordFile), rows, kNoon));
    }

    void settleAll() {
        ++recordFile; // the one that is being written
        while (settlement.getNextDailySettlement(kNoon)) {
        }
        --recordFile;
    }

    std::vector<DayTotals> totals() { return history.totals({2017, 8, 1}, {2099, 12, 31}); }

    QTemporaryDir dir;
    int recordFile = 0;
    int settledFile = 0;
    HistoryDatabase history{dir.filePath(QStringLiteral("database.db"))};
    RecordStore store{dir.path(), counters()};
    Settlement settlement{dir.path(), counters(), history};
};

TEST_F(RecordsTest, ARowHasItsFieldsAndFormats) {
    EXPECT_EQ(
        makeRow(record(477.719F), kNoon, QStringLiteral("A,B\n9"), {1.0F, 2.5F}, [] { return 0U; }),
        QStringLiteral("21.11.2026 12:00:00,AB9,12.18,0.75,5.08,0.30,3.36,0.20,477.718994,91.24,0.007962,0,"
                       "812.00,41.50,1.00,2.50,0.00,0.00,0.00,0.00,0.00,0.00"));
    auto odd = record(0.0F);
    odd.store(QStringLiteral("EFF"), 99.8F);
    const auto parsed = parseRow(makeRow(odd, kNoon, {}, {}, [] { return 4600U + 1U; }));
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->fields.at(static_cast<int>(RowField::Efficiency)), QStringLiteral("50.01"));
    EXPECT_EQ(parsed->time, kNoon);
    for (const char *bad :
         {"", "a,b", "99.99.2026 12:00:00,,,,,,,,,,,,,,,,,,,,,", "21.11.2026 12:00:00,,,"}) {
        EXPECT_FALSE(parseRow(QLatin1String(bad))) << bad;
    }
}

TEST_F(RecordsTest, FillsAFileAndBeginsTheNext) {
    for (int i = 0; i < kRowsPerFile + 1; ++i) {
        const auto now = kNoon.addSecs(60LL * i);
        const auto result = store.append(row(now), now);
        ASSERT_TRUE(result.allWritten);
        EXPECT_EQ(result.filled, i == kRowsPerFile - 1) << i;
    }
    EXPECT_EQ(recordFile, 2);
    EXPECT_EQ(readFile(path(1)).rows.size(), kRowsPerFile);
    const auto next = readFile(path(2));
    ASSERT_EQ(next.rows.size(), 1);
    EXPECT_EQ(parseRow(next.rows.first())->time, kNoon.addSecs(60LL * kRowsPerFile));
    EXPECT_EQ(next.created, kNoon.addSecs(60LL * (kRowsPerFile - 1)));
    QSettings raw(path(2), QSettings::IniFormat);
    EXPECT_EQ(raw.allKeys(), (QStringList{QStringLiteral("DATE/Number"), QStringLiteral("DATE/Time"),
                                          QStringLiteral("Rec/000")}));
    EXPECT_EQ(raw.value(QStringLiteral("DATE/Number")).toString(), QStringLiteral("1"));
}

TEST_F(RecordsTest, ARestartGoesOnWhereItStopped) {
    struct Case {
        const char *number; ///< what "/DATE/Number" says; null: missing
        int rows;
        int expected; ///< the index of the next row; 360 goes to the next file
    };
    for (const auto &[number, rows, expected] :
         {Case{"3", 3, 3}, Case{"0", 3, 3}, Case{"-7", 3, 3}, Case{"many", 3, 3}, Case{nullptr, 3, 3},
          Case{"10", 3, 10}, Case{"0", 0, 0}, Case{"360", 360, 360}, Case{"12", 360, 360},
          Case{"99999999999", 2, 2}, Case{"5000", 2, 2}}) {
        recordFile = 1;
        QFile::remove(path(1));
        QFile::remove(path(2));
        QStringList before;
        for (int i = 0; i < rows; ++i) {
            before.append(row(kNoon.addSecs(60LL * i)));
        }
        ASSERT_TRUE(writeFile(path(1), before, kNoon));
        {
            QSettings file(path(1), QSettings::IniFormat);
            number == nullptr ? file.remove(QStringLiteral("DATE/Number"))
                              : file.setValue(QStringLiteral("DATE/Number"), QLatin1String(number));
        }
        ASSERT_TRUE(store.append(row(kNoon.addDays(1)), kNoon.addDays(1)).allWritten);
        const bool nextFile = expected == kRowsPerFile;
        EXPECT_EQ(recordFile, nextFile ? 2 : 1);
        QSettings file(path(recordFile), QSettings::IniFormat);
        const auto key = QStringLiteral("Rec/%1").arg(nextFile ? 0 : expected, 3, 10, QLatin1Char('0'));
        EXPECT_TRUE(file.contains(key)) << (number == nullptr ? "none" : number) << rows;
        EXPECT_EQ(readFile(path(1)).rows.mid(0, rows), before) << "nothing is written over";
    }
}

TEST_F(RecordsTest, KeepsWhatTheDiskRefusesAndTellsOnce) {
    ASSERT_TRUE(store.append(row(kNoon), kNoon).allWritten);
    int told = 0;
    {
        const test::FullDisk disk(100);
        for (int i = 1; i <= 5; ++i) {
            told += store.append(row(kNoon.addSecs(60LL * i)), kNoon).beganFailing ? 1 : 0;
        }
    }
    EXPECT_EQ(told, 1);
    EXPECT_EQ(store.kept(), 5U);
    EXPECT_EQ(readFile(path(1)).rows, QStringList(row(kNoon))) << "the old file must be whole";
    EXPECT_TRUE(store.append(row(kNoon.addSecs(360)), kNoon).allWritten);
    const auto rows = readFile(path(1)).rows;
    ASSERT_EQ(rows.size(), 7);
    for (int i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(parseRow(rows.at(i))->time, kNoon.addSecs(60LL * i));
    }
}

// Every row counts once, on its own day, however the days lie over the files.
TEST_F(RecordsTest, SettlesEachRowOnItsOwnDay) {
    const QDateTime late(kNoon.date(), QTime(23, 59));
    addFile({row(kNoon, 60.0F), row(late, 120.0F), row(late.addSecs(60), 600.0F)});
    addFile({});
    addFile({row(kNoon)});
    QFile::remove(path(3));                                   // a number without a file
    addFile({row(late.addSecs(120), 60.0F), row(late, 60.0F), // the clock was set back
             row(late.addDays(3), 60.0F), QStringLiteral("no row")});
    settleAll();
    EXPECT_EQ(settledFile, 4);
    const auto days = totals();
    ASSERT_EQ(days.size(), 3U);
    EXPECT_EQ(days[0].date, kNoon.date());
    EXPECT_EQ(days[0].count, 3);
    EXPECT_FLOAT_EQ(days[0].watts, 240.0F);
    EXPECT_FLOAT_EQ(days[0].kwh, 0.004F);
    EXPECT_NEAR(days[0].efficiency, 3 * 91.24, 0.001);
    EXPECT_EQ(days[1].count, 2);
    EXPECT_FLOAT_EQ(days[1].watts, 660.0F);
    EXPECT_EQ(days[2].date, kNoon.date().addDays(4 - 1));
    EXPECT_EQ(settlement.unreadableRows(), 1);
    const auto dayFile = readFile(dayPath(dir.path(), 1));
    ASSERT_EQ(dayFile.rows.size(), 2);
    EXPECT_EQ(
        dayFile.rows[0],
        QStringLiteral("21.11.2026,SN1,24.360000,1.500000,10.160000,0.600000,6.720000,0.400000,180.000000,"
                       "0.003000,182.480000,0,1624.000000,83.000000,0.000000,0.000000,0.000000,0.000000,"
                       "0.000000,0.000000,0.000000,0.000000,2"));
    EXPECT_EQ(DaySums::parse(dayFile.rows[0])->text(), dayFile.rows[0]);
    EXPECT_TRUE(readFile(dayPath(dir.path(), 2)).rows.isEmpty());
}

TEST_F(RecordsTest, SettlesOneClosedFileACall) {
    for (int i = 0; i < 5; ++i) {
        addFile({row(kNoon)});
    }
    settledFile = 4;
    EXPECT_FALSE(settlement.getNextDailySettlement(kNoon));
    recordFile = 6;
    EXPECT_TRUE(settlement.getNextDailySettlement(kNoon));
    EXPECT_EQ(settledFile, 5);
    EXPECT_FALSE(settlement.getNextDailySettlement(kNoon));
    EXPECT_EQ(totals().at(0).count, 1);
}

TEST_F(RecordsTest, SettlingAgainAddsNothing) {
    addFile({row(kNoon)});
    settleAll();
    settledFile = 0; // the process died before the counter was written
    settleAll();
    EXPECT_EQ(settledFile, 1);
    EXPECT_EQ(totals().at(0).count, 1);
}

TEST_F(RecordsTest, ReadsWhatIsLeftOfADamagedFile) {
    const QStringList rows{row(kNoon), row(kNoon.addSecs(60)), row(kNoon.addSecs(120))};
    ASSERT_TRUE(writeFile(path(1), rows, kNoon));
    QFile file(path(1));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();
    const auto put = [this](const QByteArray &content) {
        const QString name = dir.filePath(QStringLiteral("cut%1.ini").arg(++settledFile)); // no cached name
        QFile cut(name);
        EXPECT_TRUE(cut.open(QIODevice::WriteOnly));
        cut.write(content);
        cut.close();
        return readFile(name);
    };
    for (int length = 0; length < whole.size(); ++length) {
        const auto content = put(whole.left(length));
        EXPECT_EQ(content.rows, rows.mid(0, content.rows.size())) << length;
    }
    int changed = 0;
    for (int at = whole.indexOf("[Rec]") + 6; at < whole.size(); at += 7) {
        QByteArray flipped = whole;
        flipped[at] = static_cast<char>(flipped[at] ^ 1);
        for (const QString &found : put(flipped).rows) {
            changed += rows.contains(found) ? 0 : 1;
        }
    }
    EXPECT_EQ(changed, 0) << "a changed row was taken for a row";
}

TEST_F(RecordsTest, TheAveragesLeaveImplausibleDaysOut) {
    EXPECT_EQ(history.longTermAverages({2099, 12, 31}).efficiency, 0.0);
    const auto day = [this](int number, float efficiency, float watts) {
        EXPECT_EQ(history.addDay({QDate(2026, 1, number), 1.0F, watts * 10, efficiency * 10, 10}),
                  DatabaseResult::Done);
    };
    day(1, 95.0F, 100.0F);
    day(2, 60.0F, 300.0F);
    day(3, 95.01F, 1000.0F);
    day(4, 59.9F, 1000.0F);
    const auto averages = history.longTermAverages({2026, 12, 31});
    EXPECT_NEAR(averages.efficiency, 77.5, 1e-6);
    EXPECT_NEAR(averages.watts, 200.0, 1e-6);
    EXPECT_EQ(history.longTermAverages({2025, 12, 31}).watts, 0.0);
    day(1, 95.0F, 100.0F); // there is no guard for a day that is added twice
    EXPECT_EQ(history.totals({2026, 1, 1}, {2026, 1, 1}).at(0).count, 20);
    EXPECT_EQ(history.addDay({QDate(2016, 1, 1), 1.0F, 1.0F, 1.0F, 1}), DatabaseResult::Done); // no such row
    EXPECT_EQ(history.axisRange({2026, 1, 1}, {2026, 1, 5}).highest, 10000.0);
    EXPECT_EQ(history.series({2026, 1, 1}, {2026, 12, 31}).size(), 365U);
}

TEST_F(RecordsTest, ABadDatabaseStopsNothing) {
    addFile({row(kNoon)});
    const QString name = dir.filePath(QStringLiteral("database.db"));
    {
        HistoryDatabase other(name);
        const auto locked = [&name](const QString &sql) {
            auto database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("other"));
            database.setDatabaseName(name);
            EXPECT_TRUE(database.open());
            database.exec(sql);
            return database;
        };
        auto holder = locked(QStringLiteral("BEGIN EXCLUSIVE"));
        settleAll();
        EXPECT_EQ(settledFile, 0) << "while it is locked the file waits";
        EXPECT_TRUE(history.series(kNoon.date(), kNoon.date()).empty());
        holder.close();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("other"));
    settleAll();
    EXPECT_EQ(settledFile, 1);
    EXPECT_EQ(totals().at(0).count, 1);
    for (const QByteArray &content :
         {QByteArray("x"), QByteArray("not a database at all, but long enough to be one")}) {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        EXPECT_EQ(history.addDay({kNoon.date(), 1.0F, 1.0F, 1.0F, 1}), DatabaseResult::Failed);
        EXPECT_EQ(history.longTermAverages(kNoon.date()).watts, 0.0);
    }
    QFile::remove(name);
    EXPECT_EQ(history.addDay({kNoon.date(), 1.0F, 1.0F, 1.0F, 1}), DatabaseResult::Failed);
    EXPECT_FALSE(QFile::exists(name)) << "the program makes no database";
    addFile({row(kNoon)});
    settleAll();
    EXPECT_EQ(settledFile, 2);
}

} // namespace
