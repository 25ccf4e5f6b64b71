#include "app/RemotePower.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>

using namespace zpsg;
using namespace std::chrono_literals;
using app::Setting;
using platform::PowerAction;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class RemotePowerTest : public testing::Test {
protected:
    void request(const char *word) { power.request(QString::fromLatin1(word)); }
    void pass(std::chrono::seconds time) {
        now += time;
        power.countdown()->tick();
    }
    void allow(int setting) { settings.write({{Setting::RemotePower, setting}}); }

    QTemporaryDir dir;
    app::Settings settings{dir.path()};
    ui::PowerCountdown::Clock::time_point now{1h};
    std::vector<PowerAction> done;
    std::string refusal;
    app::RemotePower power{settings,
                           nullptr,
                           {[this](PowerAction action, std::string &error) {
                                done.push_back(action);
                                error = refusal;
                                return refusal.empty();
                            },
                            [this] { return now; }}};
    QSignalSpy failed{&power, &app::RemotePower::failed};
};

TEST_F(RemotePowerTest, NothingHappensUnlessTheUserHasAllowedIt) {
    request("shutdown"); // as it is at first
    EXPECT_EQ(power.countdown(), nullptr);
    allow(0);
    request("shutdown");
    EXPECT_EQ(power.countdown(), nullptr);
    allow(1);
    for (const char *word : {"", "Shutdown", "shutdown ", "reboot", "hibernate"}) {
        request(word);
        EXPECT_EQ(power.countdown(), nullptr) << word;
    }
}

TEST_F(RemotePowerTest, EachWordIsDoneAfterItsMinute) {
    allow(1);
    for (const char *word : {"shutdown", "restart", "sleep"}) {
        request(word);
        ASSERT_NE(power.countdown(), nullptr) << word;
        EXPECT_TRUE(power.countdown()->isVisible());
        const auto before = done;
        pass(59s);
        EXPECT_EQ(done, before);
        pass(1s);
        EXPECT_EQ(power.countdown(), nullptr);
    }
    EXPECT_THAT(done, ElementsAre(PowerAction::Shutdown, PowerAction::Restart, PowerAction::Sleep));
    EXPECT_EQ(failed.count(), 0);
}

TEST_F(RemotePowerTest, OneAtATimeAndCancelledMeansNever) {
    allow(1);
    request("sleep");
    const auto *first = power.countdown();
    pass(30s);
    request("shutdown");
    EXPECT_EQ(power.countdown(), first);
    EXPECT_EQ(first->secondsLeft(), 30) << "nor does it start anew";
    QTest::keyClick(power.countdown(), Qt::Key_Escape);
    EXPECT_EQ(power.countdown(), nullptr);
    now += 10min;
    QTest::qWait(0);
    EXPECT_THAT(done, IsEmpty());
    request("restart");
    pass(60s);
    EXPECT_THAT(done, ElementsAre(PowerAction::Restart));
}

TEST_F(RemotePowerTest, ARefusalIsToldInItsWords) {
    allow(1);
    refusal = "Not you.";
    request("shutdown");
    pass(61s);
    ASSERT_EQ(failed.count(), 1);
    EXPECT_EQ(failed.at(0).at(0).toString(), QStringLiteral("Not you."));
    request("shutdown");
    EXPECT_NE(power.countdown(), nullptr) << "it may be tried again";
}

} // namespace
