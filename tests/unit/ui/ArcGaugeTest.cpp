#include "ui/ArcGauge.h"

#include "UiFixture.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <cmath>

namespace zpsg::ui::test {
namespace {

class ArcGaugeTest : public UiTest {
protected:
    ArcGaugeTest() {
        gauge_.setCaption(QStringLiteral("Output"));
        gauge_.setUnit(QStringLiteral("W"));
        gauge_.setScale({0.0, 1000.0, 5, 0});
        gauge_.resize(340, 330);
    }
    void show() {
        gauge_.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&gauge_));
        settle();
    }

    ArcGauge gauge_{ArcGauge::Prominence::Hero};
};

TEST_F(ArcGaugeTest, GlidesToANewValueAndThenNothingRuns) {
    show();
    gauge_.showValue(400.0);
    EXPECT_TRUE(gauge_.isAnimating());
    EXPECT_EQ(gauge_.valueText(), QStringLiteral("400"))
        << "the figure is the reading, never something between";
    ASSERT_TRUE(QTest::qWaitFor([this] { return !gauge_.isAnimating(); }));
    settle();

    const PaintCounter counter(&gauge_);
    gauge_.showValue(400.3);
    EXPECT_FALSE(gauge_.isAnimating()) << "the rounded value stands still";
    settle();
    EXPECT_EQ(counter.paints, 0);
}

TEST_F(ArcGaugeTest, PaintsTheArcOfItsValue) {
    // A pixel in the middle of the ring at this share of the arc, after the value has been set at once.
    const auto ringColour = [this](double value, double share) {
        gauge_.showValue(value);
        const QImage image = gauge_.grab().toImage();
        // The ring's outline is found on the vertical through the middle: the first strongly coloured pixel.
        const double angle = (225.0 - share * 270.0) / 57.29578;
        const QPointF centre(170.0, 187.0);
        int blue = 0;
        for (int radius = 100; radius < 145; ++radius) {
            const QColor pixel = image.pixelColor(qRound(centre.x() + radius * std::cos(angle)),
                                                  qRound(centre.y() - radius * std::sin(angle)));
            blue = std::max(blue, pixel.blue() - pixel.red());
        }
        return blue;
    };
    EXPECT_GT(ringColour(600.0, 0.4), 100);
    EXPECT_LT(ringColour(601.0, 0.8), 60);
    EXPECT_GT(ringColour(5000.0, 0.97), 100) << "beyond the range the arc is full";
    EXPECT_LT(ringColour(-20.0, 0.1), 60);
}

TEST_F(ArcGaugeTest, ClearShowsADashAndEmptiesTheArc) {
    gauge_.showValue(400.0);
    gauge_.clear();
    EXPECT_EQ(gauge_.valueText(), QString(QChar(0x2013)));
    EXPECT_FALSE(gauge_.readoutValue().has_value());
    gauge_.showValue(400.0);
    EXPECT_EQ(gauge_.valueText(), QStringLiteral("400")) << "the same value again is news after a dash";
}

TEST_F(ArcGaugeTest, HiddenItNeitherRunsNorPaints) {
    show();
    gauge_.showValue(100.0);
    gauge_.hide();
    EXPECT_FALSE(gauge_.isAnimating()) << "hiding ends a glide under way";
    const PaintCounter counter(&gauge_);
    gauge_.showValue(900.0);
    EXPECT_FALSE(gauge_.isAnimating());
    settle();
    EXPECT_EQ(counter.paints, 0);
}

TEST_F(ArcGaugeTest, AssistiveProgramsReadTheValueThatIsShown) {
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&gauge_);
    ASSERT_NE(interface, nullptr);
    EXPECT_EQ(interface->text(QAccessible::Name), QStringLiteral("Output"));
    EXPECT_EQ(interface->text(QAccessible::Value), QString(QChar(0x2013)));
    gauge_.setNote(QStringLiteral("27 %"));
    gauge_.showValue(266.4);
    EXPECT_EQ(interface->text(QAccessible::Value), QStringLiteral("266 W, 27 %"));
    ASSERT_NE(interface->valueInterface(), nullptr);
    EXPECT_NEAR(interface->valueInterface()->currentValue().toDouble(), 266.4, 1e-9);
    gauge_.clear();
    EXPECT_FALSE(interface->valueInterface()->currentValue().isValid());
}

TEST_F(ArcGaugeTest, CautionIsSaidInWordsFromItsLimitOn) {
    gauge_.setCaution(60.0, QStringLiteral("Hot"));
    gauge_.setNote(QStringLiteral("note"));
    gauge_.showValue(59.0);
    EXPECT_EQ(gauge_.noteText(), QStringLiteral("note"));
    gauge_.showValue(60.0);
    EXPECT_TRUE(gauge_.readoutText().contains(QStringLiteral("Hot")));
}

} // namespace
} // namespace zpsg::ui::test
