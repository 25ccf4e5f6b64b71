#include "psu/AlarmLog.h"

#include "support/FullDisk.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace zpsg::psu;

namespace {

class AlarmLogTest : public ::testing::Test {
protected:
    [[nodiscard]] QString path() const { return dir.filePath(QStringLiteral("alarms.jsonl")); }
    static QDateTime at(int seconds) { return {QDate(2026, 3, 29), QTime(1, 59, 50).addSecs(seconds)}; }

    [[nodiscard]] QStringList files() const { return QDir(dir.path()).entryList(QDir::Files); }

    QTemporaryDir dir;
};

TEST_F(AlarmLogTest, SurvivesARestart) {
    {
        AlarmLog log(path());
        log.begin(AlarmKind::Rail12, 11.2, at(0));
        log.begin(AlarmKind::Fan, 0.0, at(1));
        log.end(AlarmKind::Rail12, at(5));
        log.end(AlarmKind::Temperature, at(6)); // none holds
        EXPECT_EQ(log.holding().size(), 1U);
    }
    AlarmLog again(path());
    ASSERT_EQ(again.entries().size(), 2U);
    EXPECT_EQ(again.entries()[0].kind, AlarmKind::Rail12);
    EXPECT_EQ(again.entries()[0].value, 11.2);
    EXPECT_EQ(again.entries()[0].begin, at(0));
    EXPECT_EQ(again.entries()[0].end, at(5));
    // The fan's end was not seen.
    EXPECT_FALSE(again.entries()[1].end.isValid());
    EXPECT_TRUE(again.holding().empty());
    again.begin(AlarmKind::Fan, 3.0, at(60));
    again.clear();
    EXPECT_EQ(AlarmLog(path()).entries().size(), 1U);
}

TEST_F(AlarmLogTest, KeepsTheNewestThousand) {
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    for (int i = 0; i < 1005; ++i) {
        file.write(QByteArray(R"({"kind":"fan","begin":"2026-03-29T01:00:00.000Z","value":)") +
                   QByteArray::number(i) + "}\n");
    }
    file.close();
    AlarmLog log(path());
    EXPECT_EQ(log.entries().front().value, 5.0);
    log.begin(AlarmKind::Temperature, 70.0, at(0));
    const AlarmLog again(path());
    ASSERT_EQ(again.entries().size(), AlarmLog::kMostEntries);
    EXPECT_EQ(again.entries().front().value, 6.0);
    EXPECT_EQ(again.entries().back().value, 70.0);
}

TEST_F(AlarmLogTest, ReadsAroundDamageAndKeepsTheFileAsItWas) {
    const QByteArray good = R"({"kind":"fan","value":4,"begin":"2026-03-29T01:00:00.000Z"})";
    for (const QByteArray bad : {R"({"kind":"fan","val)", "[1,2]", R"({"kind":"fire","value":1})",
                                 R"({"kind":"fan","value":"x","begin":"2026-03-29T01:00:00Z"})",
                                 R"({"kind":"fan","value":1,"begin":"soon"})", "\x01\x02\xFF"}) {
        QDir(dir.path()).removeRecursively();
        QDir().mkpath(dir.path());
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(good + '\n' + bad + '\n' + good + '\n');
        file.close();
        const AlarmLog log(path());
        EXPECT_EQ(log.entries().size(), 2U) << bad.toStdString();
        EXPECT_EQ(files().size(), 2) << "a copy is kept";
    }
}

TEST_F(AlarmLogTest, WritesLaterWhatTheDiskRefused) {
    AlarmLog log(path());
    log.begin(AlarmKind::Rail5, 4.6, at(0));
    const auto size = QFile(path()).size();
    {
        const zpsg::test::FullDisk disk(64);
        log.end(AlarmKind::Rail5, at(30));
    }
    EXPECT_EQ(QFile(path()).size(), size) << "the old file must be whole";
    log.retry(at(40));
    EXPECT_EQ(AlarmLog(path()).entries().at(0).end, at(30));
    EXPECT_EQ(files().size(), 1);
}

} // namespace
