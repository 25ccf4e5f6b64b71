#include "ui/NavigationRail.h"

#include "UiFixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

namespace zpsg::ui::test {
namespace {

class NavigationTest : public UiTest {
protected:
    NavigationTest() {
        for (int page = 0; page < 3; ++page) {
            EXPECT_EQ(rail_->addPage(Icon::Gauge, "NAV_ALARMS"), page);
        }
        after_ = new QLineEdit(&window_);
        auto *layout = new QVBoxLayout(&window_);
        for (QWidget *widget : {static_cast<QWidget *>(before_), static_cast<QWidget *>(rail_),
                                static_cast<QWidget *>(after_)}) {
            layout->addWidget(widget);
        }
        window_.show();
        QApplication::setActiveWindow(&window_);
        before_->setFocus();
        settle();
    }
    [[nodiscard]] QList<QAbstractButton *> buttons() const {
        return rail_->findChildren<QAbstractButton *>();
    }
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    QWidget window_;
    QLineEdit *before_ = new QLineEdit(&window_);
    NavigationRail *rail_ = new NavigationRail(&window_);
    QLineEdit *after_ = nullptr;
};

TEST_F(NavigationTest, TheKeyboardReachesEveryPage) {
    const QSignalSpy chosen(rail_, &NavigationRail::pageChosen);
    rail_->setCurrent(1);
    EXPECT_EQ(chosen.count(), 0) << "set by the program";
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), buttons().at(1)) << "Tab leads to the current page";
    press(Qt::Key_Down);
    EXPECT_EQ(rail_->current(), 2);
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    EXPECT_EQ(rail_->current(), 0);
    EXPECT_EQ(QApplication::focusWidget(), buttons().at(0));
    EXPECT_EQ(chosen.count(), 3);
    press(Qt::Key_Return);
    press(Qt::Key_Space);
    EXPECT_EQ(chosen.count(), 3) << "the current page again is no choice";
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), after_) << "and the next Tab leaves the rail";
    press(Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(rail_->current(), 2);
    EXPECT_EQ(QApplication::focusWidget(), after_);
    press(Qt::Key_4, Qt::ControlModifier);
    EXPECT_EQ(chosen.count(), 4) << "there are three pages";
}

TEST_F(NavigationTest, AClickChoosesOnceAndLeavesOneMarked) {
    const QSignalSpy chosen(rail_, &NavigationRail::pageChosen);
    for (int i = 0; i < 2; ++i) {
        QTest::mouseClick(buttons().at(2), Qt::LeftButton);
    }
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen.front().front().toInt(), 2);
    int marked = 0;
    for (const QAbstractButton *button : buttons()) {
        marked += button->isChecked() ? 1 : 0;
    }
    EXPECT_EQ(marked, 1);
    EXPECT_TRUE(before_->hasFocus()) << "the pointer marks no control";
}

TEST_F(NavigationTest, TheBadgeIsDrawnAndSpokenAndGoesAgain) {
    const QAbstractButton *button = buttons().at(1);
    const QImage bare = rail_->grab().toImage();
    const QString name = button->accessibleName();
    QImage last = bare;
    for (const int count : {1, 9, 12}) {
        rail_->setBadge(1, count);
        EXPECT_TRUE(button->accessibleName().contains(QString::number(count))) << count;
        const QImage now = rail_->grab().toImage();
        EXPECT_NE(now, last) << count;
        last = now;
    }
    rail_->setBadge(1, 0);
    EXPECT_EQ(button->accessibleName(), name);
    EXPECT_EQ(rail_->grab().toImage(), bare);
    rail_->setNotice(1, "NAV_UPDATE");
    EXPECT_EQ(button->accessibleName(), name + QStringLiteral(", a newer version is available"));
    EXPECT_NE(rail_->grab().toImage(), bare);
    rail_->setNotice(1, nullptr);
    EXPECT_EQ(rail_->grab().toImage(), bare);
}

TEST_F(NavigationTest, SevenPagesFitTheLeastWindow) {
    while (buttons().size() < 7) {
        rail_->addPage(Icon::Bell, "NAV_DASHBOARD");
    }
    EXPECT_LE(rail_->minimumSizeHint().height(), 620 - 44);
    EXPECT_LE(rail_->minimumSizeHint().width(), 76);
}

} // namespace
} // namespace zpsg::ui::test
