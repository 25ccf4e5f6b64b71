#include "ui/PowerTrace.h"

#include "UiFixture.h"

#include <QLabel>
#include <QTest>

namespace zpsg::ui::test {
namespace {

class PowerTraceTest : public UiTest {
protected:
    PowerTraceTest() { trace_.resize(1000, 220); }

    void feed(int seconds, std::optional<double> watts) {
        for (int i = 0; i < seconds; ++i) {
            trace_.append(now_ += 1000, watts);
        }
    }
    /// How many columns of the plot's right part have the line's colour somewhere.
    [[nodiscard]] int litColumns() {
        const QImage image = trace_.grab().toImage();
        int lit = 0;
        for (int x = 60; x < 920; ++x) {
            for (int y = 40; y < 190; ++y) {
                const QColor pixel = image.pixelColor(x, y);
                if (pixel.blue() > 170 && pixel.red() < 110) {
                    ++lit;
                    break;
                }
            }
        }
        return lit;
    }

    PowerTrace trace_;
    qint64 now_ = 1'700'000'000'000;
};

TEST_F(PowerTraceTest, DrawsALineWithAGapWhereNothingWasRead) {
    trace_.show();
    feed(301, 400.0);
    const int whole = litColumns();
    EXPECT_GT(whole, 700);
    trace_.clear();
    feed(151, 400.0);
    feed(100, std::nullopt);
    feed(50, 400.0);
    const int broken = litColumns();
    EXPECT_NEAR(broken, whole * 0.667, whole * 0.05);
}

TEST_F(PowerTraceTest, CollectsWhileHiddenAndShowsItLater) {
    const PaintCounter counter(&trace_);
    feed(301, 800.0);
    settle();
    EXPECT_EQ(counter.paints, 0);
    EXPECT_EQ(trace_.summaryText(), QString::fromUtf8("Peak 800 W   \u00B7   Average 800 W"));
    trace_.show();
    EXPECT_GT(trace_.top(), 800.0);
    EXPECT_GT(litColumns(), 700);
}

TEST_F(PowerTraceTest, SaysWhenThereIsNothingToShow) {
    trace_.show();
    auto *words = trace_.findChild<QLabel *>();
    ASSERT_NE(words, nullptr);
    EXPECT_TRUE(words->isVisible());
    EXPECT_FALSE(words->text().isEmpty());
    feed(1, 100.0);
    EXPECT_FALSE(words->isVisible());
    feed(310, std::nullopt);
    EXPECT_TRUE(words->isVisible());
    EXPECT_FALSE(trace_.readoutValue().has_value());
}

} // namespace
} // namespace zpsg::ui::test
