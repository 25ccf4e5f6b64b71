#include "ui/FanCurveEditor.h"
#include "ui/FanPoints.h"

#include "UiFixture.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>

namespace zpsg::ui::test {
namespace {

using fan::CurvePoint;
using fan::CurveSource;

class FanCurveTest : public UiTest {
protected:
    FanCurveTest() {
        window_.resize(700, 500);
        editor_->setGeometry(0, 0, 700, 500);
        window_.show();
        QApplication::setActiveWindow(&window_);
        settle();
    }
    [[nodiscard]] const FanPoints &points() const { return editor_->curve().points(); }
    [[nodiscard]] QPoint place(const CurvePoint &point) const { return editor_->placeOf(point).toPoint(); }
    void drag(const CurvePoint &from, const CurvePoint &to) const {
        QTest::mousePress(editor_, Qt::LeftButton, {}, place(from));
        move(to);
        QTest::mouseRelease(editor_, Qt::LeftButton, {}, place(to));
    }
    void move(const CurvePoint &to) const {
        QMouseEvent event(QEvent::MouseMove, place(to), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(editor_, &event);
    }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        QTest::keyClick(editor_, static_cast<Qt::Key>(key), modifiers);
    }
    /// Every change leaves a curve that can be driven.
    void expectFitted() const {
        EXPECT_EQ(fan::fittedPoints(points(), editor_->curve().source), points());
        EXPECT_GE(points().size(), fan::kLeastPoints);
        EXPECT_LE(points().size(), fan::kMostPoints);
    }

    QWidget window_;
    FanCurveEditor *editor_ = new FanCurveEditor(&window_);
    int registered_ = qRegisterMetaType<fan::FanCurve>("zpsg::fan::FanCurve");
    QSignalSpy edited_{editor_, &FanCurveEditor::edited};
};

TEST_F(FanCurveTest, ADragIsHeldByNeighboursAndRanges) {
    struct Case {
        std::size_t index;
        CurvePoint to;
        CurvePoint expected;
    };
    const fan::FanCurve usual; // 30/30, 40/40, 48/60, 56/100
    for (const Case &c :
         {Case{1, {43, 50}, {43, 50}}, Case{1, {25, 35}, {31, 35}}, Case{1, {58, 90}, {47, 60}},
          Case{2, {45, 20}, {45, 40}}, Case{0, {-5, 10}, {20, 30}}, Case{3, {90, 140}, {60, 100}}}) {
        editor_->setCurve(usual);
        edited_.clear();
        drag(usual.temperature[c.index], c.to);
        EXPECT_EQ(points()[c.index], c.expected) << points()[c.index].at << ' ' << points()[c.index].percent;
        EXPECT_EQ(edited_.count(), 1) << "once, at the end";
        expectFitted();
    }
}

TEST_F(FanCurveTest, EscapeUndoesADragAndAClickChangesNothing) {
    const FanPoints before = points();
    QTest::mousePress(editor_, Qt::LeftButton, {}, place(before[1]));
    move({44, 55});
    EXPECT_NE(points(), before);
    press(Qt::Key_Escape);
    EXPECT_EQ(points(), before);
    QTest::mouseRelease(editor_, Qt::LeftButton, {}, place({44, 55}));
    QTest::mouseClick(editor_, Qt::LeftButton, {}, place(before[2]));
    EXPECT_EQ(editor_->selected(), 2U);
    EXPECT_EQ(points(), before);
    EXPECT_EQ(edited_.count(), 0);
}

TEST_F(FanCurveTest, ADragSurvivesThatItsCurveIsShownAgain) {
    const fan::FanCurve before = editor_->curve();
    QTest::mousePress(editor_, Qt::LeftButton, {}, place(points()[1]));
    move({44, 55});
    editor_->setCurve(before);
    move({45, 56});
    QTest::mouseRelease(editor_, Qt::LeftButton, {}, place({45, 56}));
    EXPECT_EQ(points()[1], (CurvePoint{45, 56}));
    EXPECT_EQ(edited_.count(), 1);
    QTest::mousePress(editor_, Qt::LeftButton, {}, place(points()[1]));
    editor_->setCurve(before);
    move({44, 50});
    QTest::mouseRelease(editor_, Qt::LeftButton, {}, place({44, 50}));
    EXPECT_EQ(editor_->curve(), before) << "another curve ends it";
}

TEST_F(FanCurveTest, PointsAreAddedAndRemovedWithinTheLimits) {
    QTest::mouseDClick(editor_, Qt::LeftButton, {}, place({44, 90}));
    ASSERT_EQ(points().size(), 5U);
    EXPECT_EQ(points()[2], (CurvePoint{44, 60})) << "no higher than its neighbour";
    EXPECT_EQ(editor_->selected(), 2U);
    QTest::mouseDClick(editor_, Qt::LeftButton, {}, place({24, 30}));
    EXPECT_EQ(points().front(), (CurvePoint{24, 30}));
    for (int i = 0; i < 6; ++i) {
        press(Qt::Key_Insert);
        expectFitted();
    }
    EXPECT_EQ(points().size(), fan::kMostPoints);
    EXPECT_FALSE(editor_->canAdd());
    const int count = edited_.count();
    QTest::mouseDClick(editor_, Qt::LeftButton, {}, place({59, 100}));
    EXPECT_EQ(edited_.count(), count) << "there is no ninth";
    for (int i = 0; i < 9; ++i) {
        press(Qt::Key_Delete);
        expectFitted();
    }
    EXPECT_EQ(points().size(), fan::kLeastPoints);
    EXPECT_FALSE(editor_->canRemove());
}

TEST_F(FanCurveTest, TheKeyboardAloneDoes) {
    editor_->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(editor_->selected(), 0U) << "there is one to begin with";
    press(Qt::Key_PageUp);
    press(Qt::Key_Right);
    press(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(points()[1], (CurvePoint{41, 45}));
    press(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(editor_->selected(), 2U);
    press(Qt::Key_End);
    press(Qt::Key_Up);
    EXPECT_EQ(edited_.count(), 2) << "it is at the top";
    press(Qt::Key_Down);
    press(Qt::Key_Left);
    EXPECT_EQ(points().back(), (CurvePoint{55, 99}));
    EXPECT_TRUE(editor_->readoutText().contains(QStringLiteral("4 of 4")));
    press(Qt::Key_Home);
    for (int i = 0; i < 30; ++i) {
        press(Qt::Key_Left);
    }
    EXPECT_EQ(points().front().at, 20.0);
    expectFitted();
}

TEST_F(FanCurveTest, EachSourceKeepsItsPoints) {
    const FanPoints byTemperature = points();
    editor_->chooseSource(CurveSource::Load);
    EXPECT_EQ(edited_.count(), 1);
    drag({50, 45}, {60, 50});
    EXPECT_EQ(points()[1], (CurvePoint{60, 50}));
    editor_->chooseSource(CurveSource::Temperature);
    EXPECT_EQ(points(), byTemperature);
    EXPECT_EQ(editor_->curve().load[1], (CurvePoint{60, 50}));
}

TEST_F(FanCurveTest, ACurveFromOutsideIsFittedAndSilent) {
    fan::FanCurve wild;
    wild.temperature = {{70, 10}, {25, 500}, {25.2, 40}};
    editor_->setCurve(wild);
    expectFitted();
    EXPECT_EQ(edited_.count(), 0);
    wild.temperature = {{30, 40}, {31.5, 40}};
    editor_->setCurve(wild);
    EXPECT_EQ(movedPoint(points(), 0, {50, 100}, CurveSource::Temperature), (CurvePoint{30, 40}))
        << "wedged in at whole numbers";
    FanPoints narrow{{30, 40}, {31, 40}};
    EXPECT_FALSE(addBeside(narrow, 0, CurveSource::Temperature));
}

} // namespace
} // namespace zpsg::ui::test
