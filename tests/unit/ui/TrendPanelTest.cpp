#include "ui/TrendPanel.h"

#include "PlotPlace.h"
#include "ui/DayView.h"
#include "ui/EfficiencyView.h"
#include "ui/EnergyView.h"
#include "ui/PcView.h"
#include "ui/PowerTrace.h"
#include "UiFixture.h"

#include <QApplication>
#include <QRadioButton>
#include <QSignalSpy>
#include <QStackedWidget>
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
    const std::array<const QWidget *, 5> views{panel_.power(), panel_.day(), panel_.efficiency(),
                                               panel_.energy(), panel_.pc()};
    const QSignalSpy changes(&panel_, &TrendPanel::viewChanged);
    for (const int view : {4, 2, 3, 0, 1}) {
        panel_.setView(view);
        EXPECT_EQ(panel_.view(), view);
        EXPECT_EQ(changes.constLast().constFirst().toInt(), view);
        for (int i = 0; i < 5; ++i) {
            EXPECT_EQ(views.at(static_cast<std::size_t>(i))->isVisible(), i == view);
            EXPECT_EQ(segments().at(i)->isChecked(), i == view);
        }
    }
    EXPECT_EQ(changes.count(), 5);
    for (const int none : {-1, 5, 1}) {
        panel_.setView(none);
    }
    EXPECT_EQ(panel_.view(), 1);
    EXPECT_EQ(changes.count(), 5) << "nothing changed";
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
    QRadioButton *last = segments().at(4);
    QTest::mouseClick(last, Qt::LeftButton, Qt::NoModifier, QPoint(last->width() - 4, last->height() - 4));
    EXPECT_EQ(panel_.view(), TrendPanel::Pc);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(panel_.pc()->isAncestorOf(QApplication::focusWidget())) << "from the switch into the view";
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
        EXPECT_TRUE(control->rect().contains(segments().at(4)->geometry()));
    }
}

/// Texts of a language in which everything takes more room.
class LongTexts : public QTranslator {
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    QString translate(const char * /*context*/, const char *key, const char * /*comment*/,
                      int /*n*/) const override {
        const QByteArray id(key);
        if (id.startsWith("MAIN_STR_TREND_")) {
            return QStringLiteral("A long segment");
        }
        return id == "MAIN_STR_EFFICIENCY_AT" || id == "MAIN_STR_POWER_TRACE"
                   ? QStringLiteral("The caption of a view in many words")
                   : QString();
    }
};

TEST_F(TrendPanelTest, TheSwitchTakesALineOfItsOwnWhereCaptionsLeaveNoRoom) {
    const auto *control = panel_.findChild<QWidget *>(QStringLiteral("switchTrend"));
    panel_.resize(700, 220);
    settle();
    EXPECT_EQ(panel_.findChild<QStackedWidget *>()->y(), 0);
    LongTexts longer;
    QCoreApplication::installTranslator(&longer);
    settle();
    for (const int view : {0, 1, 2, 3, 4}) {
        panel_.setView(view);
        settle();
        EXPECT_GT(panel_.findChild<QStackedWidget *>()->y(), control->geometry().bottom()) << view;
        EXPECT_TRUE(panel_.rect().contains(control->geometry()));
    }
    panel_.resize(1400, 220);
    settle();
    EXPECT_EQ(panel_.findChild<QStackedWidget *>()->y(), 0) << "there is room again";
    QCoreApplication::removeTranslator(&longer);
}

} // namespace
} // namespace zpsg::ui::test
