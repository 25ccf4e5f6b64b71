#include "PlatformFixture.h"

#include "platform/EventBurst.h"
#include "platform/linux/UdevWatch.h"

#include <array>
#include <fstream>
#include <QElapsedTimer>
#include <vector>

namespace zpsg::platform {
namespace {

using namespace std::chrono_literals;

TEST(EventBurstTest, IsDueAfterAPauseAndAtTheLatestAfterTheLimit) {
    struct Case {
        std::vector<std::chrono::milliseconds> events; // since the first
        std::chrono::milliseconds due;                 // after the last of them
    };
    const std::vector<Case> cases = {
        {{0ms}, 150ms},
        {{0ms, 20ms, 140ms}, 150ms},
        {{0ms, 100ms, 200ms, 300ms, 400ms}, 100ms},
        {{0ms, 140ms, 280ms, 420ms, 499ms}, 1ms},
        {{0ms, 500ms}, 0ms},
        {{0ms, 900ms}, 0ms}, // the loop was busy for long
    };
    EventBurst burst;
    EventBurst::Clock::time_point start{};
    for (const auto &[events, due] : cases) {
        std::chrono::milliseconds last{};
        for (const auto at : events) {
            last = burst.note(start + at);
        }
        EXPECT_EQ(last, due) << events.size() << " events up to " << events.back().count();
        burst.told();
        start += 1000ms;
    }
}

class DeviceWatchTest : public PlatformTest {
protected:
    /// Has the kernel announce a change of /dev/null's device, which changes nothing.
    static bool announce() {
        std::ofstream event("/sys/class/mem/null/uevent");
        event << "change" << std::flush;
        return event.good();
    }

    static constexpr std::array kMemoryDevices{DeviceFilter{"mem", nullptr}};
};

TEST_F(DeviceWatchTest, ABurstOfKernelEventsIsOneMessage) {
    if (!announce()) {
        GTEST_SKIP() << "only root may have the kernel announce devices";
    }
    std::vector<WindowMessage> messages;
    std::unique_ptr<DeviceWatch> watch =
        startUdevWatch("kernel", kMemoryDevices, [&](const WindowMessage &message) {
            messages.push_back(message);
            if (messages.size() == 2) {
                watch.reset();
            }
            return true;
        });
    ASSERT_NE(watch, nullptr);
    for (std::size_t burst = 1; burst <= 2; ++burst) {
        QElapsedTimer sinceFirst;
        sinceFirst.start();
        for (int i = 0; i < 50; ++i) {
            ASSERT_TRUE(announce());
        }
        ASSERT_TRUE(loopUntil([&] { return messages.size() >= burst; }));
        EXPECT_GE(sinceFirst.elapsed(), EventBurst::kQuiet.count());
        EXPECT_EQ(messages.size(), burst);
        EXPECT_EQ(messages.back().number, 537U);
    }
    EXPECT_EQ(watch, nullptr) << "ended by its own handler";
}

TEST_F(DeviceWatchTest, StartsOnThisSystemAndRefusesAnUnknownSource) {
    const auto ignore = [](const WindowMessage &) { return true; };
    EXPECT_NE(DeviceWatch::start(ignore), nullptr);
    EXPECT_EQ(startUdevWatch("no such group", kMemoryDevices, ignore), nullptr);
}

} // namespace
} // namespace zpsg::platform
