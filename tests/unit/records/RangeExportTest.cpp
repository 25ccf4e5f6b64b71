#include "records/RangeExport.h"

#include "RecordFolder.h"
#include "records/CsvLog.h"
#include "support/FullDisk.h"

#include <QDir>

using namespace zpsg;
using namespace zpsg::records;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

const QDate kFirst{2026, 2, 27};

QDateTime at(int day, int hour, int minute = 0) { return {kFirst.addDays(day), QTime(hour, minute)}; }

class RangeExportTest : public ::testing::Test {
protected:
    /// Four days in files 1 to 5 and 9; 5 and 9 are not settled, 4 has no rows, 6 to 8 are not there. The
    /// clock was set back in file 5, and nothing is recorded on the third day.
    RangeExportTest() {
        folder.put(1, {row(0, 1), row(0, 2)}, true);
        folder.put(2, {row(0, 23, 59), row(1, 0)}, true);
        folder.put(3, {row(1, 12)}, true);
        folder.put(4, {}, true);
        folder.put(5, {row(3, 8), row(1, 11), row(3, 9)});
        folder.put(9, {row(3, 22)});
    }

    /// Each row its own power, so that a sum tells which rows are in it.
    QString row(int day, int hour, int minute = 0) {
        all.append(test::minute(at(day, hour, minute), watts *= 2.0F));
        return all.last();
    }

    /// The lines below the columns.
    QStringList run(int from, int to, ExportMode mode = ExportMode::Minutes) {
        QString why;
        auto target = exportTarget(folder.path("out.csv"), why);
        if (!target) {
            ADD_FAILURE() << why.toStdString();
            return {};
        }
        RangeExport exported(index, kFirst.addDays(from), kFirst.addDays(to), mode, std::move(target));
        double before = 0.0;
        while (exported.step() == RangeExport::State::Working) {
            EXPECT_GE(exported.progress(), before);
            before = exported.progress();
        }
        EXPECT_EQ(exported.step(), RangeExport::State::Done) << exported.error().toStdString();
        EXPECT_EQ(exported.progress(), 1.0);
        unreadable = exported.unreadableRows();
        missing = exported.missingFiles();
        auto lines = QString::fromUtf8(test::contentOf(folder.path("out.csv"))).split(QLatin1Char('\n'));
        const auto columns = mode == ExportMode::Minutes ? kMinuteLogColumns : kDayLogColumns;
        EXPECT_EQ(lines.takeFirst().toStdString(), columns);
        EXPECT_TRUE(!lines.isEmpty() && lines.takeLast().isEmpty()) << "the last line must be whole";
        EXPECT_EQ(exported.rows(), lines.size());
        return lines;
    }

    [[nodiscard]] QStringList rows(std::initializer_list<int> which) const {
        QStringList result;
        for (const int i : which) {
            result.append(all.at(i));
        }
        return result;
    }

    test::RecordFolder folder;
    float watts = 1.0F;
    QStringList all; ///< in the order of recording
    DayIndex index{folder.path()};
    int unreadable = 0;
    int missing = 0;
};

TEST_F(RangeExportTest, MinutesComeAsTheyWereRecorded) {
    EXPECT_EQ(run(-100, 100), all);
    EXPECT_EQ(run(0, 0), rows({0, 1, 2}));
    EXPECT_EQ(run(1, 1), rows({3, 4, 6}));
    EXPECT_EQ(run(1, 2), rows({3, 4, 6}));
    EXPECT_EQ(run(2, 2), QStringList());
    EXPECT_EQ(run(3, 3), rows({5, 7, 8}));
    EXPECT_EQ(unreadable + missing, 0);
}

// However the files are settled, a day is the sum of its own minutes.
TEST_F(RangeExportTest, DaysAreTheSumsOfTheirMinutes) {
    for (const bool settled : {false, true}) {
        if (settled) {
            folder.put(5, rows({5, 6, 7}), true);
        }
        for (int from = 0; from < 4; ++from) {
            for (int to = from; to < 5; ++to) {
                std::map<QDate, DaySums> expected;
                for (const auto &text : run(from, to)) {
                    const auto minute = parseRow(text);
                    const QDate day = minute->time.date();
                    expected.try_emplace(day, day).first->second.add(*minute);
                }
                QStringList lines;
                for (const auto &[day, sums] : expected) {
                    lines.append(sums.text());
                }
                EXPECT_EQ(run(from, to, ExportMode::Days), lines) << from << " to " << to << settled;
            }
        }
    }
}

TEST_F(RangeExportTest, TheIndexFindsFilesAndFollowsThem) {
    index.begin();
    int steps = 1;
    while (index.step(1)) {
        EXPECT_LT(index.progress(), 1.0);
        ++steps;
    }
    EXPECT_EQ(steps, 6);
    EXPECT_THAT(index.filesWith(kFirst), ElementsAre(1, 2));
    EXPECT_THAT(index.filesWith(kFirst.addDays(1)), ElementsAre(2, 3, 5));
    EXPECT_THAT(index.filesWith(kFirst.addDays(2)), IsEmpty());
    EXPECT_THAT(index.filesBetween(kFirst.addDays(2), kFirst.addDays(9)), ElementsAre(5, 9));
    const auto minutes = index.rowsOf(kFirst.addDays(3));
    ASSERT_EQ(minutes.size(), 3U);
    EXPECT_EQ(minutes[2].time, at(3, 22));

    int count = 0;
    ASSERT_EQ(appendRow(recordPath(folder.path(), 9), row(4, 0), at(4, 0), count), Append::Written);
    folder.put(10, {row(4, 1)});
    folder.put(5, {row(6, 0)}, true); // settled now, and from its day file
    QFile::remove(recordPath(folder.path(), 3));
    QFile::remove(dayPath(folder.path(), 3));
    folder.put(1, {row(8, 0)}, true); // a settled file never changes: it is not looked at again
    ASSERT_TRUE(test::putContent(folder.path("Rec/Rec011.ini"), "") &&
                test::putContent(folder.path("Rec/Rec.ini"), ""));
    index.refresh();
    EXPECT_THAT(index.filesWith(kFirst.addDays(1)), ElementsAre(2));
    EXPECT_THAT(index.filesWith(kFirst.addDays(4)), ElementsAre(9, 10));
    EXPECT_THAT(index.filesWith(kFirst.addDays(6)), ElementsAre(5));
    EXPECT_THAT(index.filesWith(kFirst.addDays(8)), IsEmpty());
}

TEST_F(RangeExportTest, ADayFileThatIsNotWholeIsNotBelieved) {
    const QString name = dayPath(folder.path(), 2);
    const QByteArray whole = test::contentOf(name);
    int cuts = 0;
    for (int length = 0; length < whole.size(); ++length) {
        QFile::remove(name);
        ASSERT_TRUE(test::putContent(name, whole.left(length)));
        DayIndex fresh(folder.path());
        fresh.refresh();
        ASSERT_THAT(fresh.filesWith(kFirst), ElementsAre(1, 2)) << whole.left(length).toStdString();
        ASSERT_THAT(fresh.filesWith(kFirst.addDays(1)), ElementsAre(2, 3, 5)) << length;
        ++cuts;
    }
    EXPECT_GT(cuts, 350);
}

TEST_F(RangeExportTest, CountsWhatItHadToLeaveOut) {
    folder.put(9, rows({8}) + QStringList(QStringLiteral("no row")));
    folder.spoilLastRow(recordPath(folder.path(), 5));
    EXPECT_EQ(run(3, 3), rows({5, 8}));
    EXPECT_EQ(unreadable, 2);
    folder.put(12, {row(3, 23)});
    folder.spoilLastRow(recordPath(folder.path(), 12)); // the only one: its day is not known
    EXPECT_EQ(run(0, 0), rows({0, 1, 2}));
    EXPECT_EQ(unreadable, 1);
    QFile::remove(recordPath(folder.path(), 1));
    EXPECT_EQ(run(0, 0), rows({2}));
    EXPECT_EQ(missing, 1);
    EXPECT_EQ(run(0, 0, ExportMode::Days).size(), 1) << "its day file is enough";
}

TEST_F(RangeExportTest, WhatIsGivenUpOrFailsLeavesTheOldFile) {
    const QString out = folder.path("out.csv");
    const auto stepsThatItTakes = [&] {
        QString why;
        RangeExport whole(index, kFirst, kFirst.addDays(9), ExportMode::Minutes, exportTarget(out, why));
        int steps = 1;
        while (whole.step() == RangeExport::State::Working) {
            ++steps;
        }
        return steps;
    };
    const int steps = stepsThatItTakes();
    const auto size = static_cast<rlim_t>(test::contentOf(out).size());
    ASSERT_TRUE(test::putContent(out, "old"));
    QString why;
    for (int i = 0; i < steps; ++i) {
        RangeExport given(index, kFirst, kFirst.addDays(9), ExportMode::Minutes, exportTarget(out, why));
        for (int done = 0; done < i; ++done) {
            ASSERT_EQ(given.step(), RangeExport::State::Working);
        }
    }
    EXPECT_EQ(test::contentOf(out), "old");
    for (const rlim_t bytes : {rlim_t{0}, rlim_t{10}, size / 2, size - 1}) {
        const test::FullDisk disk(bytes);
        RangeExport failing(index, kFirst, kFirst.addDays(9), ExportMode::Minutes, exportTarget(out, why));
        while (failing.step() == RangeExport::State::Working) {
        }
        EXPECT_EQ(failing.step(), RangeExport::State::Failed) << bytes;
        EXPECT_FALSE(failing.error().isEmpty());
    }
    EXPECT_EQ(test::contentOf(out), "old");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 1) << "nothing is left lying about";
    EXPECT_FALSE(exportTarget(folder.path("missing/out.csv"), why) || why.isEmpty());
}

// The short cut must take for a row what is one, and nothing else.
TEST(DayOfRow, AgreesWithTheParser) {
    const QString good = test::minute(at(0, 23, 59));
    EXPECT_EQ(dayOfRow(good), kFirst);
    for (int i = 0; i < 22; ++i) {
        for (const QChar put : {QLatin1Char('9'), QLatin1Char('x'), QLatin1Char(','), QLatin1Char('-')}) {
            QString changed = good;
            changed[i] = put;
            const auto parsed = parseRow(changed);
            EXPECT_EQ(dayOfRow(changed), parsed ? parsed->day : QDate()) << changed.toStdString();
        }
        EXPECT_FALSE(dayOfRow(good.left(i)).isValid());
    }
    for (const QString &other : {good + QLatin1Char(','), QString(), QString(40, QLatin1Char(','))}) {
        EXPECT_FALSE(dayOfRow(other).isValid());
    }
}

} // namespace
