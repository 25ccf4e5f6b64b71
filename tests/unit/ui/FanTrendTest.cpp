#include "ui/FanTrend.h"

#include "ui/FanModeLook.h"

#include "PlotPlace.h"
#include "UiFixture.h"

#include <algorithm>

namespace zpsg::ui::test {
namespace {

using fan::FanMode;

constexpr qint64 kBegin = 1'795'280'000'000;

class FanHourTest : public ::testing::Test {
protected:
    void add(std::int64_t second, float rpm, float celsius = 40.0F, FanMode mode = FanMode::Silent) {
        hour_.append({kBegin + second * 1000, rpm, celsius, mode});
    }

    FanHour hour_;
};

TEST_F(FanHourTest, KeepsAnHourAndNoMore) {
    for (int i = 0; i < 5000; ++i) {
        add(i, static_cast<float>(i));
    }
    EXPECT_EQ(hour_.size(), FanHour::kCapacity);
    EXPECT_EQ(hour_.at(0).rpm, 1400.0F);
    add(5000 + 1800, 7.0F);
    EXPECT_EQ(hour_.at(0).ms, kBegin + (5000 + 1800 - 3600) * 1000LL) << "what is older than an hour is gone";
    add(4000, 9.0F);
    EXPECT_EQ(hour_.latest().rpm, 9.0F) << "the clock was set back";
    EXPECT_EQ(hour_.at(hour_.size() - 2).rpm, 3999.0F);
}

TEST_F(FanHourTest, BreaksWhereNothingWasReadAndKeepsExtremes) {
    for (int i = 0; i < 600; ++i) {
        if (i == 300) {
            add(i, FanSample::kNone, 40.0F);
        } else if (i < 100 || i >= 110) {
            add(i, i == 205 ? 2000.0F : i == 206 ? 100.0F : 900.0F);
        }
    }
    const auto speeds = hour_.stretches(&FanSample::rpm, 10'000);
    ASSERT_EQ(speeds.size(), 3U) << "ten seconds without a sample, and one without a speed";
    EXPECT_EQ(hour_.stretches(&FanSample::celsius, 10'000).size(), 2U);
    std::size_t drawn = 0;
    double least = 900.0;
    double most = 900.0;
    double before = -1e9;
    for (const FanStretch &stretch : speeds) {
        drawn += stretch.size();
        for (const FanPoint &point : stretch) {
            EXPECT_GE(point.seconds, before);
            before = point.seconds;
            least = std::min(least, point.value);
            most = std::max(most, point.value);
        }
    }
    EXPECT_LE(drawn, 4U * 61U);
    EXPECT_EQ(least, 100.0);
    EXPECT_EQ(most, 2000.0);
    EXPECT_EQ(speeds.back().back().seconds, 0.0);
}

TEST_F(FanHourTest, TellsModesAndStops) {
    for (int i = 0; i < 100; ++i) {
        const bool stands = i >= 20 && i < 40;
        const bool read = i < 60 || i >= 70;
        add(i,
            !read    ? FanSample::kNone
            : stands ? 0.0F
                     : 700.0F,
            read ? 40.0F : FanSample::kNone, i < 50 ? FanMode::ZeroFan : FanMode::Custom);
    }
    const auto modes = hour_.modes();
    ASSERT_EQ(modes.size(), 3U);
    EXPECT_EQ(modes[0].mode, FanMode::ZeroFan);
    EXPECT_EQ(modes[0].span.toSeconds, modes[1].span.fromSeconds) << "one follows the other";
    EXPECT_EQ(modes[1].span.toSeconds, -40.0);
    EXPECT_EQ(modes[2].span.fromSeconds, -29.0);
    EXPECT_EQ(modes[2].span.toSeconds, 0.0);
    const auto stops = hour_.stops();
    ASSERT_EQ(stops.size(), 1U);
    EXPECT_EQ(stops[0].fromSeconds, -79.0);
    EXPECT_EQ(stops[0].toSeconds, -60.0);
    EXPECT_EQ(hour_.nearest(-49.4, 2.5), 50U);
    EXPECT_FALSE(hour_.nearest(-500.0, 2.5));
}

class FanTrendTest : public UiTest {
protected:
    FanTrendTest() {
        trend_.resize(640, 360);
        trend_.show();
    }
    void take(int second, float rpm, FanMode mode = FanMode::Silent) {
        trend_.take({kBegin + second * 1000LL, rpm, 40.0F, mode});
    }
    /// At this many minutes before now, near the bottom of the plot.
    [[nodiscard]] QColor stripAt(double minutes) {
        settle();
        const QRect canvas = canvasIn(trend_);
        const QPoint at(qRound(canvas.right() - minutes / 60.0 * canvas.width()), canvas.bottom() - 2);
        return trend_.grab().toImage().pixelColor(at);
    }

    FanTrend trend_;
};

TEST_F(FanTrendTest, TheStripHasTheModesAndTheGaps) {
    for (int i = 0; i < 3600; ++i) {
        if (i < 1200 || i >= 1800) {
            take(i, 800.0F, i < 2400 ? FanMode::Silent : i < 3000 ? FanMode::Performance : FanMode::Custom);
        }
    }
    EXPECT_EQ(stripAt(50.0), inkOf(FanMode::Silent));
    EXPECT_EQ(stripAt(15.0), inkOf(FanMode::Performance));
    EXPECT_EQ(stripAt(5.0), inkOf(FanMode::Custom));
    const QColor gap = stripAt(35.0);
    for (const fan::FanModeRow &row : fan::kFanModes) {
        EXPECT_NE(gap, inkOf(row.mode)) << row.name;
    }
    EXPECT_EQ(trend_.readoutText(), QStringLiteral("Fan 800 to 800 rpm, temperature 40 to 40\u00A0\u00B0C"));
}

TEST_F(FanTrendTest, DrawsOnlyWhenAPixelHasPassed) {
    take(0, 800.0F);
    take(60, 800.0F);
    settle();
    const PaintCounter counter(&trend_);
    for (int i = 61; i < 65; ++i) {
        take(i, 900.0F);
    }
    settle();
    EXPECT_EQ(counter.paints, 0) << "an hour on 600 pixels is six seconds a pixel";
    take(75, 900.0F);
    settle();
    EXPECT_GT(counter.paints, 0);
}

} // namespace
} // namespace zpsg::ui::test
