#include "app/UpdatePolicy.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace zpsg;
using app::Setting;
using app::UpdatePolicy;

namespace {

class UpdatePolicyTest : public ::testing::Test {
protected:
    UpdatePolicyTest() {
        settings.write({{Setting::UpdateEnabled, true},
                        {Setting::UpdateAddress, QStringLiteral("https://example.org/")}});
    }

    /// In how many minutes it asks next, with a call every minute; -1 for not within three days.
    int wait(UpdatePolicy &policy) {
        constexpr int kLong = 3 * 24 * 60;
        for (int minutes = 0; minutes < kLong; ++minutes) {
            if (policy.tick(now)) {
                return minutes;
            }
            now = now.addSecs(60);
        }
        return -1;
    }
    static cloud::UpdateOffer offer(const char *version) {
        return {QVersionNumber::fromString(QLatin1String(version)),
                QUrl(QStringLiteral("https://a.example/")), QStringLiteral("News")};
    }
    UpdatePolicy start(const char *running = "0.1.0") {
        return {settings, QVersionNumber::fromString(QLatin1String(running))};
    }

    QTemporaryDir dir;
    app::Settings settings{dir.path()};
    QDateTime now{QDate(2026, 3, 28), QTime(20, 0), Qt::UTC};
};

TEST_F(UpdatePolicyTest, AsksSoonAfterTheStartThenDailyAndAgainAfterAFailure) {
    auto policy = start();
    EXPECT_EQ(wait(policy), 3);
    policy.takeFailure(now);
    EXPECT_EQ(wait(policy), 4 * 60);
    policy.takeOffer(offer("0.1.0"), now);
    now = now.addSecs(3600);
    auto restarted = start();
    EXPECT_EQ(wait(restarted), 23 * 60);
    restarted.takeOffer(offer("0.1.0"), now);
    restarted.forget();
    EXPECT_EQ(wait(restarted), 0) << "another address is asked at once";
    for (const Setting off : {Setting::UpdateEnabled, Setting::UpdateAddress}) {
        settings.write({{Setting::UpdateEnabled, true}, {off, QString()}});
        EXPECT_EQ(wait(restarted), -1);
    }
}

TEST_F(UpdatePolicyTest, NoClockStopsIt) {
    auto policy = start();
    EXPECT_EQ(wait(policy), 3);
    policy.takeOffer(offer("0.1.0"), now);
    now = now.addYears(-10);
    EXPECT_LE(wait(policy), 3);
    policy.takeOffer(offer("0.1.0"), now);
    now = now.addSecs(-20);
    EXPECT_EQ(wait(policy), 24 * 60 + 1) << "set right by a little";
    settings.write({{Setting::UpdateNext, QStringLiteral("tomorrow")}});
    EXPECT_EQ(wait(policy), 0);
}

TEST_F(UpdatePolicyTest, TellsOfEachVersionOnce) {
    auto policy = start();
    struct Case {
        const char *version;
        bool newer, told;
    };
    for (const auto &[version, newer, told] :
         {Case{"0.1", false, false}, Case{"0.0.9", false, false}, Case{"0.9.0", true, true},
          Case{"0.10.0", true, true}, Case{"0.9.0", true, false}, Case{"0.10", true, false},
          Case{"0.1.0.0", false, false}, Case{"0.11", true, true}}) {
        policy.takeOffer(offer(version), now);
        EXPECT_EQ(policy.newer().has_value(), newer) << version;
        EXPECT_EQ(policy.takeNews(), told) << version;
        EXPECT_FALSE(policy.takeNews()) << version;
    }
    policy.takeFailure(now);
    auto restarted = start();
    ASSERT_TRUE(restarted.newer());
    EXPECT_EQ(restarted.newer()->notes, QStringLiteral("News"));
    EXPECT_FALSE(restarted.takeNews());
    EXPECT_FALSE(start("0.11.0").newer()) << "the user has got it";
    settings.write({{Setting::UpdateFound, QStringLiteral(R"({"version":"9.0","page":"file:///bin/sh"})")}});
    EXPECT_FALSE(start().newer()) << "a settings file is not to be trusted more than the network";
}

} // namespace
