#include "ui/TraceBuffer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace zpsg::ui::test {
namespace {

constexpr std::int64_t kStart = 1'700'000'000'000;

void feed(TraceBuffer &buffer, int fromSecond, int seconds, std::optional<double> value) {
    for (int i = 0; i < seconds; ++i) {
        buffer.append({kStart + 1000LL * (fromSecond + i), value});
    }
}

TEST(TraceBuffer, KeepsFiveMinutesAndForgetsTheRest) {
    TraceBuffer buffer;
    feed(buffer, 0, 400, 900.0);
    feed(buffer, 400, 301, 100.0);
    const auto stretches = buffer.stretches();
    ASSERT_EQ(stretches.size(), 1U);
    EXPECT_EQ(stretches.front().size(), 301U);
    EXPECT_DOUBLE_EQ(stretches.front().front().secondsAgo, 300.0);
    EXPECT_DOUBLE_EQ(stretches.front().back().secondsAgo, 0.0);
    EXPECT_DOUBLE_EQ(buffer.summary()->peak, 100.0) << "the peak is of what is shown";
}

TEST(TraceBuffer, BreaksWhereThereWasNoReading) {
    TraceBuffer buffer;
    feed(buffer, 0, 10, 100.0);
    feed(buffer, 10, 5, std::nullopt);
    feed(buffer, 15, 10, 300.0);
    feed(buffer, 40, 10, 300.0); // nothing was appended for 15 seconds
    const auto stretches = buffer.stretches();
    ASSERT_EQ(stretches.size(), 3U);
    EXPECT_EQ(stretches[0].size(), 10U);
    EXPECT_DOUBLE_EQ(stretches[1].front().secondsAgo, 34.0);
    EXPECT_NEAR(buffer.summary()->average, 100.0 * 10 / 30 + 300.0 * 20 / 30, 1e-9);
}

TEST(TraceBuffer, OneLateReadingIsNoGap) {
    TraceBuffer buffer;
    buffer.append({kStart, 1.0});
    buffer.append({kStart + 2400, 2.0});
    EXPECT_EQ(buffer.stretches().size(), 1U);
}

TEST(TraceBuffer, SurvivesAClockThatJumps) {
    TraceBuffer buffer;
    feed(buffer, 0, 100, 50.0);
    buffer.append({kStart + 40'000, 60.0}); // set back by a minute
    ASSERT_EQ(buffer.stretches().size(), 1U);
    EXPECT_EQ(buffer.stretches().front().size(), 41U);
    EXPECT_DOUBLE_EQ(buffer.stretches().front().back().value, 60.0);
    buffer.append({kStart + 86'400'000, 70.0}); // a day of sleep
    EXPECT_EQ(buffer.stretches().front().size(), 1U);
    buffer.append({kStart - 86'400'000, 80.0});
    EXPECT_EQ(buffer.stretches().front().size(), 1U);
    EXPECT_DOUBLE_EQ(buffer.latest().value.value(), 80.0);
}

TEST(TraceBuffer, HoldsTooManySamplesWithoutOverrunning) {
    TraceBuffer buffer;
    for (int i = 0; i < 5000; ++i) {
        buffer.append({kStart + 10LL * i, static_cast<double>(i)});
    }
    EXPECT_DOUBLE_EQ(buffer.summary()->peak, 4999.0);
    EXPECT_FALSE(TraceBuffer().summary().has_value());
}

TEST(AxisTop, LeavesHeadRoomAndRoundDivisions) {
    for (int step = 0; step < 400; ++step) {
        const double peak = step * 7.3;
        const double top = axisTop(peak, 0.0);
        EXPECT_GE(top, std::max(40.0, peak * 1.15)) << peak;
        EXPECT_LE(top, std::max(40.0, peak * 1.15 * 1.51)) << peak;
        const double tenths = top / 4.0 * 10.0;
        EXPECT_NEAR(tenths, std::round(tenths), 1e-6) << peak;
    }
}

TEST(AxisTop, DoesNotFlapAroundABoundary) {
    double top = axisTop(500.0, 0.0);
    const double first = top;
    for (int i = 0; i < 50; ++i) {
        top = axisTop(i % 2 == 0 ? 540.0 : 430.0, top);
        EXPECT_DOUBLE_EQ(top, axisTop(540.0, first));
    }
    EXPECT_LT(axisTop(100.0, top), top) << "but it follows a real change";
    EXPECT_GT(axisTop(900.0, top), 900.0);
}

} // namespace
} // namespace zpsg::ui::test
