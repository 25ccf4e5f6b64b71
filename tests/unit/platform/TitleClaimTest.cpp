#include "PlatformFixture.h"

#include "platform/linux/TitlePaths.h"
#include "platform/WindowRendezvous.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

namespace zpsg::platform {
namespace {

using namespace std::chrono_literals;

class TitleClaimTest : public PlatformTest {
protected:
    static std::unique_ptr<Helper> helper(const char *command) {
        return std::make_unique<Helper>(QStringList{QLatin1String(command), QStringLiteral("title")});
    }
};

TEST_F(TitleClaimTest, OfManySimultaneousProcessesExactlyOneWins) {
    for (int round = 0; round < 3; ++round) {
        std::vector<std::unique_ptr<Helper>> racers(20);
        std::generate(racers.begin(), racers.end(), [] { return helper("claim"); });
        for (auto &racer : racers) {
            ASSERT_EQ(racer->line(), "ready");
        }
        // All of them spin up to the same instant.
        const auto start = std::chrono::steady_clock::now() + 200ms;
        for (auto &racer : racers) {
            racer->tell(std::to_string(start.time_since_epoch() / 1ns));
        }
        std::vector<std::string> results;
        std::transform(racers.begin(), racers.end(), std::back_inserter(results),
                       [](auto &racer) { return racer->line(); });
        EXPECT_EQ(std::count(results.begin(), results.end(), "won"), 1);
        EXPECT_EQ(std::count(results.begin(), results.end(), "lost"), 19);
    }
}

TEST_F(TitleClaimTest, AKilledHolderLeavesTheTitleFree) {
    const auto holder = helper("claim");
    holder->tell("0");
    ASSERT_EQ(holder->line(), "ready");
    ASSERT_EQ(holder->line(), "won");
    EXPECT_TRUE(windowExists("title"));
    EXPECT_EQ(TitleClaim::tryTake("title"), nullptr);

    holder->kill();
    ASSERT_TRUE(std::filesystem::exists(titlePaths("title")->socket)) << "no stale socket to get past";
    EXPECT_FALSE(windowExists("title"));
    EXPECT_EQ(sendToWindow("title", {kShowRequest, 0, 1}), Delivery::NoWindow);

    const auto claim = TitleClaim::tryTake("title");
    ASSERT_NE(claim, nullptr);
    int received = 0;
    claim->deliverTo([&](const WindowMessage &) { return ++received > 0; });
    const auto sender = helper("send");
    EXPECT_TRUE(loopUntil([&] { return received == 1; }));
    EXPECT_EQ(sender->line(), std::to_string(static_cast<int>(Delivery::Handled)));
}

TEST_F(TitleClaimTest, ATitleIsExclusiveUntilItsClaimEnds) {
    auto claim = TitleClaim::tryTake("title");
    ASSERT_NE(claim, nullptr);
    EXPECT_EQ(TitleClaim::tryTake("title"), nullptr);
    EXPECT_NE(TitleClaim::tryTake("other title"), nullptr);
    EXPECT_TRUE(windowExists("title"));
    claim.reset();
    EXPECT_FALSE(windowExists("title"));
    EXPECT_NE(TitleClaim::tryTake("title"), nullptr);
}

TEST_F(TitleClaimTest, LookingForAWindowNeverMakesAClaimFail) {
    std::atomic<bool> over{false};
    std::thread looker([&] {
        while (!over) {
            windowExists("title");
        }
    });
    int failed = 0;
    for (int i = 0; i < 300; ++i) {
        failed += TitleClaim::tryTake("title") == nullptr ? 1 : 0;
    }
    over = true;
    looker.join();
    EXPECT_EQ(failed, 0);
}

TEST_F(TitleClaimTest, EverySecondInstanceDuringTheStartIsHeard) {
    const auto claim = TitleClaim::tryTake("title");
    ASSERT_NE(claim, nullptr);
    std::vector<std::unique_ptr<Helper>> senders(24);
    std::generate(senders.begin(), senders.end(), [] { return helper("send"); });
    int shown = 0;
    claim->deliverTo([&](const WindowMessage &message) {
        shown += message.number == kShowRequest && message.lParam == 1 ? 1 : 0;
        return true;
    });
    EXPECT_TRUE(loopUntil([&] { return shown == 24; })) << shown;
    for (auto &sender : senders) {
        EXPECT_EQ(sender->line(), std::to_string(static_cast<int>(Delivery::Handled)));
    }
}

} // namespace
} // namespace zpsg::platform
