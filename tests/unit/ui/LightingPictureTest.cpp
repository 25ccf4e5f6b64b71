// The picture of a ring: which lights are chosen, by pointer and by keys, and when it is painted.

#include "ui/RingPicture.h"
#include "UiFixture.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include <array>

namespace zpsg::ui::test {
namespace {

using lighting::Colour;
using lighting::RingKind;
using Lights = std::vector<std::size_t>;

class LightingPictureTest : public UiTest {
protected:
    void open(RingKind kind) {
        picture_ = std::make_unique<RingPicture>(kind);
        picture_->resize(400, 400);
        picture_->show();
        QApplication::setActiveWindow(picture_.get());
        settle();
    }
    [[nodiscard]] Lights chosen() const {
        Lights lights;
        for (std::size_t led = 0; led < picture_->ledCount(); ++led) {
            if (picture_->isSelected(led)) {
                lights.push_back(led);
            }
        }
        return lights;
    }
    [[nodiscard]] QPoint at(std::size_t led) const { return picture_->ledCentre(led).toPoint(); }
    void click(std::size_t led, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::mouseClick(picture_.get(), Qt::LeftButton, modifiers, at(led));
    }
    void drag(const QPoint &from, const QPoint &to, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::mousePress(picture_.get(), Qt::LeftButton, modifiers, from);
        QMouseEvent move(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, modifiers);
        QApplication::sendEvent(picture_.get(), &move);
        QTest::mouseRelease(picture_.get(), Qt::LeftButton, modifiers, to);
    }
    void press(int key, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::keyClick(picture_.get(), static_cast<Qt::Key>(key), modifiers);
    }

    std::unique_ptr<RingPicture> picture_;
};

TEST_F(LightingPictureTest, LightsGoClockwiseFromTheTop) {
    for (const auto &[kind, first, count] :
         {std::tuple(RingKind::Plus, 0U, 12U), std::tuple(RingKind::Duo, 0U, 6U),
          std::tuple(RingKind::Duo, 6U, 12U)}) {
        open(kind);
        const QPointF top = picture_->ledCentre(first);
        const QPointF right = picture_->ledCentre(first + 1);
        const QPointF bottom = picture_->ledCentre(first + count / 2);
        EXPECT_NEAR(top.x(), bottom.x(), 0.5);
        EXPECT_LT(top.y(), bottom.y());
        EXPECT_GT(right.x(), top.x());
    }
    open(RingKind::Duo);
    EXPECT_LT(picture_->ledCentre(6).y(), picture_->ledCentre(0).y()) << "the middle ring is the outer one";
}

TEST_F(LightingPictureTest, ThePointerChooses) {
    open(RingKind::Plus);
    const QSignalSpy changes(picture_.get(), &RingPicture::selectionChanged);
    click(3);
    EXPECT_EQ(chosen(), Lights({3}));
    click(5);
    EXPECT_EQ(chosen(), Lights({5})) << "a click chooses one";
    click(3, Qt::ShiftModifier);
    click(11, Qt::ShiftModifier);
    EXPECT_EQ(chosen(), Lights({3, 5, 11}));
    click(5, Qt::ShiftModifier);
    EXPECT_EQ(chosen(), Lights({3, 11}));
    EXPECT_EQ(changes.count(), 5);
    click(3);
    click(3);
    EXPECT_EQ(changes.count(), 6) << "the same again changes nothing";
    QTest::mouseClick(picture_.get(), Qt::LeftButton, Qt::ShiftModifier, picture_->rect().center());
    EXPECT_EQ(chosen(), Lights({3})) << "with Shift nothing is lost";
    QTest::mouseClick(picture_.get(), Qt::LeftButton, {}, picture_->rect().center());
    EXPECT_TRUE(chosen().empty());
    QTest::mouseClick(picture_.get(), Qt::RightButton, {}, at(4));
    EXPECT_TRUE(chosen().empty());
}

TEST_F(LightingPictureTest, DraggingChoosesSeveral) {
    open(RingKind::Plus);
    // From the middle out: a frame round the right half.
    drag({picture_->width() / 2 + 40, 2}, {picture_->width() - 2, picture_->height() - 2});
    EXPECT_EQ(chosen(), Lights({1, 2, 3, 4, 5}));
    drag({2, 2}, {picture_->width() / 2 - 40, 150}, Qt::ShiftModifier);
    EXPECT_EQ(chosen(), Lights({1, 2, 3, 4, 5, 10, 11}));
    drag(at(8), at(9));
    EXPECT_EQ(chosen(), Lights({8, 9})) << "across lights";
    drag(at(8), at(10), Qt::ShiftModifier);
    EXPECT_EQ(chosen(), Lights({9})) << "the first was taken away, so the drag adds none";

    open(RingKind::Duo);
    drag(at(0), at(6));
    EXPECT_EQ(chosen(), Lights({0, 6})) << "lights of both rings";
}

TEST_F(LightingPictureTest, KeysChoose) {
    open(RingKind::Plus);
    press(Qt::Key_Right);
    EXPECT_EQ(chosen(), Lights({1}));
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    EXPECT_EQ(chosen(), Lights({11})) << "round the ring";
    press(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(chosen(), Lights({10, 11}));
    press(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(chosen(), Lights({10, 11}));
    press(Qt::Key_Space);
    EXPECT_EQ(chosen(), Lights({9, 10, 11}));
    press(Qt::Key_Space);
    EXPECT_EQ(chosen(), Lights({10, 11}));
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(picture_->selectedCount(), 12U);
    press(Qt::Key_Escape);
    EXPECT_EQ(picture_->selectedCount(), 0U);

    open(RingKind::Duo);
    click(6 + 7);
    press(Qt::Key_Down);
    EXPECT_EQ(chosen(), Lights({3})) << "inwards, to the front ring";
    press(Qt::Key_Up);
    EXPECT_EQ(chosen(), Lights({6 + 6}));
}

TEST_F(LightingPictureTest, ARingThatIsOneIsChosenAsOne) {
    open(RingKind::Duo);
    click(2);
    picture_->setAsOne(0, true);
    EXPECT_EQ(chosen(), Lights({0, 1, 2, 3, 4, 5})) << "what was chosen of it becomes all of it";
    click(7, Qt::ShiftModifier);
    EXPECT_EQ(picture_->selectedCount(), 7U);
    click(4, Qt::ShiftModifier);
    EXPECT_EQ(chosen(), Lights({7}));
    picture_->selectRing(1);
    EXPECT_EQ(picture_->selectedCount(), 12U);
    EXPECT_FALSE(picture_->isSelected(5));
    open(RingKind::Single);
    press(Qt::Key_A, Qt::ControlModifier);
    QTest::mouseClick(picture_.get(), Qt::LeftButton, {}, at(0));
    EXPECT_EQ(picture_->selectedCount(), 0U) << "there is nothing to choose";
    EXPECT_EQ(picture_->focusPolicy(), Qt::NoFocus);
}

TEST_F(LightingPictureTest, IsPaintedForOtherColoursOnly) {
    for (const RingKind kind : {RingKind::Single, RingKind::Plus, RingKind::Duo}) {
        open(kind);
        std::vector<Colour> leds(picture_->ledCount(), Colour{10, 20, 30});
        picture_->setLeds(leds);
        settle();
        const PaintCounter counter(picture_.get());
        picture_->setLeds(leds);
        picture_->setLeds(std::vector<Colour>(picture_->ledCount() + 1, Colour{255, 0, 0}));
        settle();
        EXPECT_EQ(counter.paints, 0);
        leds.back().green = 21;
        picture_->setLeds(leds);
        settle();
        EXPECT_EQ(counter.paints, 1);
        picture_->hide();
        picture_->setLeds(std::vector<Colour>(picture_->ledCount()));
        picture_->selectAll();
        settle();
        EXPECT_EQ(counter.paints, 1) << "hidden";
    }
}

TEST_F(LightingPictureTest, EachLightGlowsInItsColourAtItsPlace) {
    for (const RingKind kind : {RingKind::Plus, RingKind::Duo}) {
        open(kind);
        const QImage dark = picture_->grab().toImage();
        for (std::size_t led = 0; led < picture_->ledCount(); ++led) {
            std::vector<Colour> leds(picture_->ledCount());
            leds.at(led) = {0, 255, 0};
            picture_->setLeds(leds);
            const QImage image = picture_->grab().toImage();
            for (std::size_t other = 0; other < picture_->ledCount(); ++other) {
                const int gain = image.pixelColor(at(other)).green() - dark.pixelColor(at(other)).green();
                EXPECT_EQ(gain > 150, other == led) << led << ", " << other << ": " << gain;
            }
            EXPECT_GT(image.pixelColor(at(led)).green(), image.pixelColor(at(led)).red() + 80);
        }
    }
}

TEST_F(LightingPictureTest, TheOutlineOfAChoiceIsSeenOnEveryColour) {
    open(RingKind::Plus);
    for (const Colour colour : {Colour{255, 255, 255}, Colour{0, 0, 0}, Colour{255, 255, 0}}) {
        picture_->setLeds(std::vector<Colour>(12, colour));
        picture_->selectNone();
        const QImage bare = picture_->grab().toImage().convertToFormat(QImage::Format_Grayscale8);
        click(3);
        const QImage marked = picture_->grab().toImage().convertToFormat(QImage::Format_Grayscale8);
        int differing = 0;
        for (int x = at(3).x() - 30; x < at(3).x(); ++x) {
            const int off = qGray(marked.pixel(x, at(3).y())) - qGray(bare.pixel(x, at(3).y()));
            differing += std::abs(off) > 60 ? 1 : 0;
        }
        EXPECT_GE(differing, 2) << int{colour.red};
    }
}

} // namespace
} // namespace zpsg::ui::test
