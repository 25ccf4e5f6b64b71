#include "psu/AlarmSupervisor.h"

#include <gmock/gmock.h>

using namespace zpsg::psu;

namespace {

class AlarmSupervisorTest : public ::testing::Test {
protected:
    AlarmSupervisorTest() {
        set("FanSpeed", 900.0F);
        set("Temp", 35.0F);
    }

    void set(const char *key, float value) { record.store(QLatin1String(key), value); }

    /// Ticks `count` times; how many alarms of this kind began.
    int ticks(int count, AlarmKind kind) {
        int begun = 0;
        for (int i = 0; i < count; ++i) {
            const auto kinds = supervisor.tick(record).begun;
            begun += static_cast<int>(std::count(kinds.begin(), kinds.end(), kind));
        }
        return begun;
    }

    unsigned nextRandom = 0;
    TelemetryRecord record;
    AlarmSupervisor supervisor{[this] { return nextRandom; }};
};

TEST_F(AlarmSupervisorTest, CountsExactlyWhatIsOutOfRange) {
    struct Case {
        const char *key;
        float value;
        AlarmKind kind;
        bool alarm;
    };
    for (const auto &[key, value, kind, alarm] :
         {Case{"VVOut12", 11.2F, AlarmKind::Rail12, true}, Case{"VVOut12", 11.28F, AlarmKind::Rail12, true},
          Case{"VVOut12", 11.29F, AlarmKind::Rail12, false},
          Case{"VVOut12", 12.71F, AlarmKind::Rail12, false}, Case{"VVOut12", 12.72F, AlarmKind::Rail12, true},
          Case{"VVOut5", 4.7F, AlarmKind::Rail5, true}, Case{"VVOut5", 5.29F, AlarmKind::Rail5, false},
          Case{"VVOut5", 5.3F, AlarmKind::Rail5, true}, Case{"VVOut33", 3.102F, AlarmKind::Rail33, true},
          Case{"VVOut33", 3.2F, AlarmKind::Rail33, false}, Case{"VVOut33", 3.498F, AlarmKind::Rail33, true},
          Case{"FanSpeed", 10.0F, AlarmKind::Fan, true}, Case{"FanSpeed", 11.0F, AlarmKind::Fan, false},
          Case{"Temp", 59.9F, AlarmKind::Temperature, false},
          Case{"Temp", 60.0F, AlarmKind::Temperature, true}}) {
        supervisor = AlarmSupervisor([this] { return nextRandom; });
        const auto before = record;
        set(key, value);
        EXPECT_EQ(ticks(9, kind), 0) << key << value;
        EXPECT_EQ(ticks(1, kind), alarm ? 1 : 0) << key << value;
        EXPECT_EQ(ticks(60, kind), 0) << "handed on once";
        EXPECT_EQ(supervisor.activeNames(),
                  alarm ? QStringList(QString::fromLatin1(alarmName(kind))) : QStringList());
        record = before;
    }
}

TEST_F(AlarmSupervisorTest, TenBadSamplesSpreadOverAMinuteAreEnough) {
    for (int i = 0; i < 9; ++i) {
        set("Temp", 70.0F);
        ASSERT_EQ(ticks(1, AlarmKind::Temperature), 0);
        set("Temp", 40.0F);
        ASSERT_EQ(ticks(5, AlarmKind::Temperature), 0);
    }
    set("Temp", 70.0F);
    EXPECT_EQ(ticks(1, AlarmKind::Temperature), 1);
    // It ends when the window has moved on, and can begin again.
    set("Temp", 40.0F);
    ticks(60, AlarmKind::Temperature);
    EXPECT_FALSE(supervisor.active(AlarmKind::Temperature));
    set("Temp", 70.0F);
    EXPECT_EQ(ticks(10, AlarmKind::Temperature), 1);
}

TEST_F(AlarmSupervisorTest, TheOffsetIsPartOfWhatIsSupervised) {
    set("VVOut12", 12.68F);
    nextRandom = 39; // 12.719 V
    EXPECT_EQ(ticks(20, AlarmKind::Rail12), 0);
    nextRandom = 50 + 49; // 12.729 V
    EXPECT_EQ(ticks(20, AlarmKind::Rail12), 1);
    EXPECT_NEAR(supervisor.shown(AlarmKind::Rail12), 12.729, 1e-5);
    set("VVOut5", 5.28F);
    nextRandom = 30 + 5;
    EXPECT_EQ(ticks(20, AlarmKind::Rail5), 0);
    EXPECT_NEAR(supervisor.shown(AlarmKind::Rail5), 5.285, 1e-5);
}

TEST_F(AlarmSupervisorTest, AStandingFanThatIsMeantToStandIsNoAlarm) {
    set("FanSpeed", 0.0F);
    supervisor.expectStandingFan(true);
    EXPECT_EQ(ticks(60, AlarmKind::Fan), 0);
    supervisor.expectStandingFan(false);
    EXPECT_EQ(ticks(9, AlarmKind::Fan), 0); // what stood before does not count
    EXPECT_EQ(ticks(1, AlarmKind::Fan), 1);
}

TEST_F(AlarmSupervisorTest, AGroupThatIsSwitchedOffRaisesNothingAndEndsWhatHolds) {
    supervisor.setWarning(AlarmGroup::Voltage, false);
    set("VVOut5", 4.0F);
    set("Temp", 80.0F);
    EXPECT_EQ(ticks(60, AlarmKind::Rail5), 0);
    EXPECT_TRUE(supervisor.active(AlarmKind::Temperature));
    supervisor.setWarning(AlarmGroup::Voltage, true);
    EXPECT_EQ(ticks(1, AlarmKind::Rail5), 1); // the samples were taken in
    supervisor.setWarning(AlarmGroup::Temperature, false);
    EXPECT_THAT(supervisor.tick(record).ended, ::testing::ElementsAre(AlarmKind::Temperature));
}

// What a record lacks reads as 0: out of range, and standstill.
TEST_F(AlarmSupervisorTest, AMissingKeyCountsAsOutOfRange) {
    record = {};
    EXPECT_EQ(ticks(10, AlarmKind::Fan), 1);
    EXPECT_EQ(supervisor.activeNames(), QStringList(QStringLiteral("fansError")));
}

} // namespace
