#include "ui/EfficiencyView.h"

#include "PlotPlace.h"
#include "UiFixture.h"

#include <QLabel>

#include <array>

namespace zpsg::ui::test {
namespace {

class EfficiencyViewTest : public UiTest {
protected:
    EfficiencyViewTest() {
        view_.setPalette(QPalette(QColor(20, 20, 20)));
        view_.resize(1000, 240);
    }

    /// The middle of the white dot that marks the point; nothing when there is none.
    [[nodiscard]] std::optional<QPoint> dot() {
        settle();
        const QImage image = view_.grab().toImage();
        const QRect canvas = canvasIn(view_);
        const auto white = [&image](const QPoint &at) { return image.pixelColor(at).red() > 225; };
        for (int y = canvas.top(); y <= canvas.bottom(); ++y) {
            for (int x = canvas.left(); x <= canvas.right(); ++x) {
                if (white({x, y})) {
                    int last = x;
                    while (white({last + 1, y})) {
                        ++last;
                    }
                    return QPoint((x + last) / 2, y + 3);
                }
            }
        }
        return std::nullopt;
    }
    QPoint dotAt(double watts, double percent) {
        view_.showPoint(watts, percent);
        return dot().value_or(QPoint(-1000, -1000));
    }

    EfficiencyView view_;
};

TEST_F(EfficiencyViewTest, WorksOutInputAndHeat) {
    struct Case {
        std::optional<double> output;
        std::optional<double> percent;
        std::array<const char *, 3> figures;
    };
    const char *none = "\u2013";
    const std::array<Case, 8> cases{{
        {450.0, 90.0, {"90.0 %", "500 W", "50 W"}},
        {485.0, 93.14, {"93.1 %", "521 W", "36 W"}},
        {0.0, 80.0, {"80.0 %", "0 W", "0 W"}},
        {450.0, 100.0, {"100.0 %", "450 W", "0 W"}},
        {450.0, 0.0, {"0.0 %", none, none}},
        {450.0, 130.0, {"130.0 %", none, none}},
        {450.0, std::nullopt, {none, none, none}},
        {std::nullopt, 90.0, {"90.0 %", none, none}},
    }};
    for (const Case &entry : cases) {
        view_.showPoint(entry.output, entry.percent);
        for (std::size_t i = 0; i < 3; ++i) {
            QString expected = QString::fromUtf8(entry.figures.at(i));
            expected.replace(QLatin1Char(' '), QChar(0x00A0));
            EXPECT_EQ(view_.figureTexts().at(i), expected) << i << " of " << entry.output.value_or(-1.0);
        }
    }
}

TEST_F(EfficiencyViewTest, ThePointIsOnTheCurve) {
    std::vector<float> curve(120, 90.0F);
    curve.at(0) = 20.0F;
    curve.at(60) = curve.at(61) = 94.0F;
    view_.setCurve(curve, 1000.0, true);
    view_.show();
    EXPECT_EQ(view_.bottom(), 50.0) << "low loads are cut off";
    EXPECT_EQ(view_.summaryText(), QStringLiteral("Best 94.0 % at 610 W"));
    const QRect canvas = canvasIn(view_);
    const QPoint low = dotAt(150.0, 70.0);
    const QPoint high = dotAt(1050.0, 95.0);
    const double perWatt = (high.x() - low.x()) / 900.0;
    const double perPercent = (high.y() - low.y()) / 25.0;
    EXPECT_NEAR(perWatt * 1200.0, canvas.width(), 0.1 * canvas.width());
    EXPECT_NEAR(perPercent * 50.0, -canvas.height(), 0.1 * canvas.height());
    EXPECT_NEAR(low.x() - perWatt * 150.0, canvas.left(), 0.05 * canvas.width());
    EXPECT_NEAR(low.y() + perPercent * 30.0, canvas.top(), 0.1 * canvas.height());
    const std::array<std::pair<double, double>, 3> points{{{300.0, 90.0}, {900.0, 75.0}, {610.0, 94.0}}};
    for (const auto &[watts, percent] : points) {
        const QPoint at = dotAt(watts, percent);
        EXPECT_NEAR(at.x(), low.x() + perWatt * (watts - 150.0), 1.5) << watts;
        EXPECT_NEAR(at.y(), low.y() + perPercent * (percent - 70.0), 1.5) << watts;
    }
    EXPECT_TRUE(canvas.contains(dotAt(1500.0, 30.0))) << "beyond the plot: at its edge";
    view_.showPoint(600.0, std::nullopt);
    EXPECT_FALSE(dot().has_value());
    view_.showPoint(600.0, 94.0);
    EXPECT_TRUE(dot().has_value());
    view_.setStale(true);
    EXPECT_FALSE(dot().has_value()) << "grey";
}

TEST_F(EfficiencyViewTest, NamesTheBandAndSaysWhenThereIsNoCurve) {
    view_.show();
    const auto *words = view_.findChild<QLabel *>();
    EXPECT_TRUE(words->isVisible());
    EXPECT_EQ(view_.summaryText(), QString());
    view_.showPoint(450.0, 90.0);
    EXPECT_EQ(view_.readoutValue(), 90.0) << "an efficiency needs no curve";
    for (const bool band230 : {true, false}) {
        view_.setCurve({88.0F, 92.0F}, 1000.0, band230);
        EXPECT_FALSE(words->isVisible());
        EXPECT_TRUE(view_.captionText().contains(band230 ? QStringLiteral("230") : QStringLiteral("115")));
        EXPECT_EQ(view_.bottom(), 80.0);
    }
    view_.setCurve({}, 0.0, true);
    EXPECT_TRUE(words->isVisible());
}

TEST_F(EfficiencyViewTest, PaintsOnlyWhatIsNew) {
    const std::vector<float> curve(100, 90.0F);
    view_.setCurve(curve, 1000.0, true);
    view_.show();
    view_.showPoint(450.0, 90.0);
    settle();
    const PaintCounter counter(&view_);
    view_.setCurve(curve, 1000.0, true);
    view_.showPoint(450.1, 90.01);
    view_.setStale(false);
    settle();
    EXPECT_EQ(counter.paints, 0);
    view_.setStale(true);
    settle();
    const int stale = counter.paints;
    EXPECT_GT(stale, 0);
    view_.showPoint(450.1, 90.01);
    settle();
    EXPECT_GT(counter.paints, stale) << "the same figures, but current ones";
}

} // namespace
} // namespace zpsg::ui::test
