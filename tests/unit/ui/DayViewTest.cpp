#include "ui/DayView.h"

#include "PlotPlace.h"
#include "UiFixture.h"

#include <QCoreApplication>
#include <QLabel>
#include <QMap>
#include <QMouseEvent>

#include <array>

namespace zpsg::ui::test {
namespace {

TEST(BucketSpan, TheDayBeginsAtSixAndWrapsAtMidnight) {
    const std::array<std::pair<int, const char *>, 5> cases{{{0, "06:00\u201306:04"},
                                                             {1, "06:04\u201306:08"},
                                                             {269, "23:56\u201300:00"},
                                                             {270, "00:00\u201300:04"},
                                                             {359, "05:56\u201306:00"}}};
    for (const auto &[bucket, span] : cases) {
        EXPECT_EQ(bucketSpan(bucket), QString::fromUtf8(span));
    }
}

class DayViewTest : public UiTest {
protected:
    DayViewTest() { view_.resize(1000, 220); }

    static std::vector<float> day(std::initializer_list<std::pair<int, float>> filled) {
        std::vector<float> watts(360, 0.0F);
        for (const auto &[bucket, value] : filled) {
            watts.at(static_cast<std::size_t>(bucket)) = value;
        }
        return watts;
    }
    QString pointAt(const QPoint &place) {
        QMouseEvent move(QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&view_, &move);
        return view_.pointedText();
    }

    DayView view_;
};

TEST_F(DayViewTest, SumsUpWhatWasRecorded) {
    EXPECT_EQ(view_.summaryText(), QString());
    view_.showDay(day({}), 2, 5);
    EXPECT_EQ(view_.summaryText(), QStringLiteral("On for 0 h 2 min"));
    view_.showDay(day({{3, 100.0F}, {4, 430.0F}, {300, 106.0F}}), 192, 310);
    EXPECT_EQ(view_.summaryText(),
              QString::fromUtf8("Average 212 W   \u00B7   Peak 430 W   \u00B7   On for 3 h 12 min"));
    view_.showDay({50.0F, 70.0F}, 60, 2);
    EXPECT_EQ(view_.readoutValue(), 60.0) << "buckets that are left out are empty";
}

TEST_F(DayViewTest, BarsStandWhereTheirTimeIs) {
    view_.show();
    view_.showDay(day({{0, 200.0F}, {180, 300.0F}, {270, 100.0F}, {359, 150.0F}}), 16, -1);
    settle();
    const QImage image = view_.grab().toImage();
    const QRect canvas = canvasIn(view_);
    QMap<QString, int> columns; // where each text is said first
    for (int x = canvas.left(); x <= canvas.right(); ++x) {
        const QPoint at(x, canvas.bottom() - 12);
        const QColor colour = image.pixelColor(at);
        const QString text = pointAt(at);
        EXPECT_EQ(colour.blue() > colour.red() + 20, text.endsWith(QLatin1Char('W'))) << qPrintable(text);
        if (!text.isEmpty() && !columns.contains(text)) {
            columns.insert(text, x);
        }
    }
    ASSERT_EQ(columns.size(), 360) << "each bucket has its place";
    const auto column = [&columns](const char *text) { return columns.value(QString::fromUtf8(text), -1); };
    const int first = column("06:00\u201306:04   200 W");
    const double pitch = (column("05:56\u201306:00   150 W") - first) / 359.0;
    EXPECT_GT(pitch, 2.0);
    EXPECT_NEAR(column("12:00\u201312:04   nothing recorded"), first + 90 * pitch, 1.0);
    EXPECT_NEAR(column("18:00\u201318:04   300 W"), first + 180 * pitch, 1.0);
    EXPECT_NEAR(column("00:00\u201300:04   100 W"), first + 270 * pitch, 1.0);
    EXPECT_EQ(pointAt({first + 10, 10}), QString()) << "above the plot";
    EXPECT_EQ(pointAt({first - 2, canvas.center().y()}), QString()) << "before the day";
}

TEST_F(DayViewTest, PaintsOnlyWhatIsNewAndSeen) {
    const auto first = day({{10, 100.0F}});
    view_.show();
    view_.showDay(first, 4, 11);
    settle();
    const PaintCounter counter(&view_);
    view_.showDay(first, 4, 11);
    settle();
    EXPECT_EQ(counter.paints, 0) << "the same again";
    view_.showDay(day({{10, 100.0F}, {11, 90.0F}}), 4, 11);
    settle();
    EXPECT_GT(counter.paints, 0);
    view_.hide();
    settle();
    const PaintCounter hidden(&view_);
    view_.showDay(first, 5, 12);
    settle();
    EXPECT_EQ(hidden.paints, 0);
}

TEST_F(DayViewTest, SaysWhenThereIsNothingToShow) {
    view_.show();
    const auto *words = view_.findChild<QLabel *>();
    EXPECT_TRUE(words->isVisible());
    EXPECT_EQ(pointAt(view_.rect().center()), QString());
    view_.showDay(day({{10, 100.0F}}), 4, 11);
    EXPECT_FALSE(words->isVisible());
}

} // namespace
} // namespace zpsg::ui::test
