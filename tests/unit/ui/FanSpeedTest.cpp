#include "ui/CustomFanSpeedWidget.h"

#include "UiFixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>

namespace zpsg::ui::test {
namespace {

class FanSpeedTest : public UiTest {
protected:
    FanSpeedTest() {
        window_.resize(700, 500);
        window_.show();
        QApplication::setActiveWindow(&window_);
        popup_->open();
        settle();
    }
    template <typename Widget>
    [[nodiscard]] Widget *part(const char *name) const {
        return popup_->findChild<Widget *>(QString::fromLatin1(name));
    }
    void type(const char *text) const {
        edit_->setFocus();
        edit_->selectAll();
        QTest::keyClicks(edit_, QString::fromLatin1(text));
        QTest::keyClick(edit_, Qt::Key_Return);
    }
    void expectShown(int percent, const char *rpm) const {
        EXPECT_EQ(edit_->text(), QString::number(percent));
        EXPECT_EQ(part<QLabel>("lblPercent")->text(), QString::number(percent));
        EXPECT_EQ(part<QLabel>("lblRpm")->text(), QString::fromLatin1(rpm));
    }

    QWidget window_;
    CustomFanSpeedWidget *popup_ = new CustomFanSpeedWidget(2250.0F, &window_);
    QSlider *slider_ = popup_->findChild<QSlider *>();
    QLineEdit *edit_ = popup_->findChild<QLineEdit *>();
    QSignalSpy sent_{popup_, &CustomFanSpeedWidget::sentFanSpeed};
};

TEST_F(FanSpeedTest, SliderFiguresAndEntryAgree) {
    EXPECT_EQ(slider_->minimum(), 30);
    EXPECT_EQ(slider_->maximum(), 100);
    struct Case {
        int percent;
        const char *rpm;
    };
    for (const Case &c : {Case{30, "675"}, Case{33, "742"}, Case{57, "1282"}, Case{100, "2250"}}) {
        slider_->setValue(c.percent);
        expectShown(c.percent, c.rpm);
    }
    popup_->setFullRpm(1799.5F);
    expectShown(100, "1799");
    popup_->setPercent(12);
    expectShown(30, "539");
    EXPECT_EQ(sent_.count(), 0);
}

TEST_F(FanSpeedTest, TypedNumbersArePutIntoTheRangeAndWordsGiveWay) {
    struct Case {
        const char *typed;
        int percent;
        const char *rpm;
    };
    for (const Case &c : {Case{"10", 30, "675"}, Case{"99", 99, "2227"}, Case{"29", 30, "675"},
                          Case{"31", 31, "697"}, Case{"30", 30, "675"}, Case{"100", 100, "2250"},
                          Case{"40", 40, "900"}, Case{"250", 100, "2250"}, Case{"abc", 100, "2250"}}) {
        type(c.typed);
        EXPECT_EQ(slider_->value(), c.percent) << c.typed;
        expectShown(c.percent, c.rpm);
    }
    EXPECT_EQ(sent_.count(), 0) << "a number is taken, not yet confirmed";
    EXPECT_FALSE(popup_->isHidden());
    QTest::keyClick(edit_, Qt::Key_Return);
    ASSERT_EQ(sent_.count(), 1) << "the next Enter confirms it";
    EXPECT_EQ(sent_.front().front().toInt(), 100);
    EXPECT_TRUE(popup_->isHidden());
}

TEST_F(FanSpeedTest, OnlyConfirmingSends) {
    popup_->setPercent(72);
    for (const bool byKey : {true, false}) {
        popup_->open();
        if (byKey) {
            QTest::keyClick(slider_, Qt::Key_Escape);
        } else {
            part<QAbstractButton>("Close_Window")->click();
        }
        EXPECT_TRUE(popup_->isHidden()) << byKey;
    }
    EXPECT_EQ(sent_.count(), 0);
    popup_->open();
    part<QAbstractButton>("btnConfirm")->click();
    EXPECT_TRUE(popup_->isHidden());
    popup_->open();
    QTest::keyClick(slider_, Qt::Key_Right);
    QTest::keyClick(slider_, Qt::Key_Return);
    EXPECT_TRUE(popup_->isHidden());
    ASSERT_EQ(sent_.count(), 2);
    EXPECT_EQ(sent_.at(0).front().toInt(), 72);
    EXPECT_EQ(sent_.at(1).front().toInt(), 73);
}

} // namespace
} // namespace zpsg::ui::test
