#include "ui/TrendPanel.h"

#include "PlotPlace.h"
#include "ui/DayView.h"
#include "ui/EfficiencyView.h"
#include "ui/PowerTrace.h"
#include "UiFixture.h"

#include <QApplication>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

#include <array>

namespace zpsg::ui::test {
namespace {

class TrendPanelTest : public UiTest {
protected:
    TrendPanelTest() {
        panel_.resize(880, 200);
        panel_.show();
        settle();
    }
    [[nodiscard]] QList<QRadioButton *> segments() const { return panel_.findChildren<QRadioButton *>(); }

    TrendPanel panel_;
};

TEST_F(TrendPanelTest, ShowsOneViewAndSaysWhich) {
    const std::array<const QWidget *, 3> views{panel_.power(), panel_.day(), panel_.efficiency()};
    const QSignalSpy changes(&panel_, &TrendPanel::viewChanged);
    for (const int view : {2, 1, 0, 1}) {
        panel_.setView(view);
        EXPECT_EQ(panel_.view(), view);
        EXPECT_EQ(changes.constLast().constFirst().toInt(), view);
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(views.at(static_cast<std::size_t>(i))->isVisible(), i == view);
            EXPECT_EQ(segments().at(i)->isChecked(), i == view);
        }
    }
    EXPECT_EQ(changes.count(), 4);
    for (const int none : {-1, 3, 1}) {
        panel_.setView(none);
    }
    EXPECT_EQ(panel_.view(), 1);
    EXPECT_EQ(changes.count(), 4) << "nothing changed";
}

TEST_F(TrendPanelTest, KeysAndMouseChooseTheView) {
    QApplication::setActiveWindow(&panel_);
    panel_.setView(TrendPanel::Today);
    panel_.setFocus();
    QTest::keyClick(&panel_, Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), segments().at(1)) << "Tab reaches the chosen one";
    const std::array<std::pair<Qt::Key, int>, 4> steps{
        {{Qt::Key_Right, 2}, {Qt::Key_Left, 1}, {Qt::Key_Left, 0}, {Qt::Key_Right, 1}}};
    for (const auto &[key, view] : steps) {
        QTest::keyClick(QApplication::focusWidget(), key);
        EXPECT_EQ(panel_.view(), view);
        EXPECT_EQ(QApplication::focusWidget(), segments().at(view));
    }
    // On the far end of the segment, where a plain radio button takes no click.
    QRadioButton *last = segments().at(2);
    QTest::mouseClick(last, Qt::LeftButton, Qt::NoModifier, QPoint(last->width() - 4, last->height() - 4));
    EXPECT_EQ(panel_.view(), TrendPanel::Efficiency);
    for (const QRadioButton *segment : segments()) {
        EXPECT_FALSE(segment->accessibleName().isEmpty());
    }
}

TEST_F(TrendPanelTest, TheSwitchStaysOnTheCaptionLineAtAnySize) {
    const auto *control = panel_.findChild<QWidget *>(QStringLiteral("switchTrend"));
    for (const QSize size : {QSize(854, 124), QSize(1066, 240), QSize(3600, 780)}) {
        panel_.resize(size);
        settle();
        EXPECT_TRUE(panel_.rect().contains(control->geometry()));
        EXPECT_EQ(control->size(), control->sizeHint());
        EXPECT_LE(control->geometry().bottom(), canvasIn(*panel_.power()).top()) << size.width();
        EXPECT_TRUE(control->rect().contains(segments().at(2)->geometry()));
    }
}

} // namespace
} // namespace zpsg::ui::test
