#include "app/Alarms.h"

#include <QSignalSpy>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace zpsg;
using psu::AlarmGroup;

namespace {

class AlarmsTest : public ::testing::Test {
protected:
    AlarmsTest() {
        qRegisterMetaType<zpsg::psu::AlarmEntry>();
        record.store(QStringLiteral("FanSpeed"), 900.0F);
        record.store(QStringLiteral("Temp"), 75.0F);
    }

    void ticks(app::Alarms &alarms, int count) {
        for (int i = 0; i < count; ++i) {
            alarms.tick(record, now = now.addSecs(1));
        }
    }

    QTemporaryDir dir;
    app::Settings settings{dir.path()};
    QString log = dir.filePath(QStringLiteral("alarms.jsonl"));
    QDateTime now{QDate(2026, 11, 21), QTime(12, 0)};
    psu::TelemetryRecord record;
    std::function<unsigned()> random = [] { return 0U; };
};

TEST_F(AlarmsTest, TellsOnceAndRemembersBeginAndEnd) {
    app::Alarms alarms(settings, log, random);
    QSignalSpy began(&alarms, &app::Alarms::began);
    QSignalSpy changed(&alarms, &app::Alarms::changed);
    ticks(alarms, 30);
    ASSERT_EQ(began.count(), 1);
    EXPECT_EQ(alarms.log().holding().at(0).value, 75.0);
    EXPECT_EQ(alarms.log().holding().at(0).begin.time(), QTime(12, 0, 10));
    record.store(QStringLiteral("Temp"), 40.0F);
    ticks(alarms, 60);
    EXPECT_EQ(changed.count(), 2);
    // Ten of the thirty hot seconds were left in the window until the fifty-first cool one.
    EXPECT_EQ(alarms.log().entries().at(0).end.time(), QTime(12, 1, 21));
    alarms.clearLog();
    EXPECT_TRUE(alarms.log().entries().empty());
}

TEST_F(AlarmsTest, RemembersItsSwitches) {
    {
        app::Alarms alarms(settings, log, random);
        for (const auto group : {AlarmGroup::Voltage, AlarmGroup::Fan, AlarmGroup::Temperature}) {
            EXPECT_TRUE(alarms.warning(group));
        }
        alarms.setWarning(AlarmGroup::Temperature, false);
        ticks(alarms, 30);
        EXPECT_TRUE(alarms.log().entries().empty());
    }
    app::Alarms again(settings, log, random);
    ticks(again, 30);
    EXPECT_FALSE(again.warning(AlarmGroup::Temperature));
    EXPECT_TRUE(again.warning(AlarmGroup::Fan));
    EXPECT_TRUE(again.log().entries().empty());
}

} // namespace
