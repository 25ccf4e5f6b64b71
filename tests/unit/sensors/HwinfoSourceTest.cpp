// When HWiNFO comes, ends, dies, restarts or is busy.
#include "sensors/HwinfoSource.h"
#include "unit/sensors/HwinfoBytes.h"
#include "unit/sensors/ReadingText.h"

#include <gtest/gtest.h>

namespace zpsg::sensors {
namespace {

using namespace std::chrono_literals;
using platform::MemoryState;

/// What the other program shares at the moment.
struct Shared {
    MemoryState state = MemoryState::Missing;
    FakeHwinfo pc = ryzenPc();
    int copies = 0;
    int closes = 0;
};

class FakeMemory final : public platform::PcSensorMemory {
public:
    explicit FakeMemory(Shared &shared) : shared_(shared) {}
    MemoryState copy(std::vector<std::byte> &block) override {
        ++shared_.copies;
        block = shared_.pc.bytes();
        return shared_.state;
    }
    void close() override { ++shared_.closes; }

private:
    Shared &shared_;
};

class HwinfoSourceTest : public testing::Test {
protected:
    SourceReading readAfter(std::chrono::seconds passed) {
        now_ += passed;
        shared_.pc.pollTime += poll_;
        return source_.read(now_);
    }
    void expectWorking(std::chrono::seconds passed) {
        const auto result = readAfter(passed);
        EXPECT_EQ(result.state, SourceState::Working);
        EXPECT_EQ(text(result.reading), "1.375 41.5 88.25 64.5 | 1.05 - 301.5 70");
    }
    void expectEmpty(std::chrono::seconds passed, SourceState state) {
        const auto result = readAfter(passed);
        EXPECT_EQ(result.state, state);
        EXPECT_FALSE(result.reading.any());
        EXPECT_FALSE(result.reason.isEmpty());
    }

    Shared shared_;
    PcSource::Time now_{1h};
    int poll_ = 1; // by what the time of its readings grows
    HwinfoSource source_{std::make_unique<FakeMemory>(shared_), QString()};
};

TEST_F(HwinfoSourceTest, LooksForItEveryFiveSecondsOnly) {
    for (int second = 0; second < 10; ++second) {
        expectEmpty(1s, SourceState::Gone);
    }
    EXPECT_EQ(shared_.copies, 2);
    shared_.state = MemoryState::Copied;
    expectWorking(1s);
    expectWorking(1s);
}

TEST_F(HwinfoSourceTest, LetsGoWhenItEndsAndComesBackWithIt) {
    shared_.state = MemoryState::Copied;
    expectWorking(0s);
    shared_.pc.signature = "DEAD";
    expectEmpty(1s, SourceState::Gone);
    EXPECT_EQ(shared_.closes, 1);
    shared_.pc.signature = "HWiS";
    expectEmpty(4s, SourceState::Gone);
    expectWorking(1s);
}

TEST_F(HwinfoSourceTest, DoesNotBelieveABlockThatStandsStill) {
    shared_.state = MemoryState::Copied;
    expectWorking(0s);
    poll_ = 0;
    expectWorking(30s);
    expectEmpty(1s, SourceState::Gone);
    EXPECT_EQ(shared_.closes, 1);
    expectEmpty(5s, SourceState::Gone); // someone else holds it
    EXPECT_EQ(shared_.closes, 2);
    poll_ = 1;
    expectWorking(5s);
}

TEST_F(HwinfoSourceTest, BusyOrTornIsAMomentOnly) {
    shared_.state = MemoryState::Busy;
    expectEmpty(0s, SourceState::Working);
    shared_.state = MemoryState::Copied;
    expectWorking(1s);
    shared_.pc.signature = "xxxx";
    expectEmpty(1s, SourceState::Working);
    shared_.pc.signature = "HWiS";
    expectWorking(1s);
    shared_.pc.readings.clear();
    expectEmpty(1s, SourceState::Working);
}

} // namespace
} // namespace zpsg::sensors
