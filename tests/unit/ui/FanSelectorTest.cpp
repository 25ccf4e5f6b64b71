#include "ui/FanModeButton.h"
#include "ui/FanSpeedCustomWidget.h"
#include "ui/FanSpeedCustomWidgetPlus.h"
#include "ui/popupWidget.h"

#include "UiFixture.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace zpsg::ui::test {
namespace {

using fan::FanMode;

class FanSelectorTest : public UiTest, public ::testing::WithParamInterface<int> {
protected:
    FanSelectorTest() {
        window_.resize(700, 400);
        if (GetParam() == 0) {
            selector_ = new FanSpeedCustomWidget(&window_);
        } else if (GetParam() == 1) {
            selector_ = new FanSpeedCustomWidgetPlus(&window_);
        } else {
            selector_ = new popupWidget(&window_);
        }
        selector_->setCustomSpeed(true);
        selector_->setGeometry(window_.rect());
        window_.show();
        selector_->show();
        settle();
    }
    [[nodiscard]] QPushButton *named(const char *name) const {
        return selector_->findChild<QPushButton *>(QString::fromLatin1(name));
    }

    QWidget window_;
    FanSelector *selector_ = nullptr;
};

TEST_P(FanSelectorTest, EachButtonTellsItsIndexAndName) {
    struct Case {
        const char *name;
        const char *index;
        const char *text;
    };
    for (const Case &c : {Case{"btnSlient", "0", "Silent"}, Case{"btnPerformance", "1", "Performance"},
                          Case{"btnZeroFan", "2", "Zero Fan"}, Case{"btnCustom", "3", "Custom"}}) {
        const QSignalSpy told(selector_, &FanSelector::returnSelectFunction);
        QPushButton *button = named(c.name);
        ASSERT_NE(button, nullptr) << c.name;
        EXPECT_EQ(button->text(), QString::fromLatin1(c.text));
        button->click();
        ASSERT_EQ(told.count(), 1) << c.name;
        EXPECT_EQ(told.front().front().toStringList(),
                  QStringList({QString::fromLatin1(c.index), QString::fromLatin1(c.name)}));
    }
}

TEST_P(FanSelectorTest, AnUnknownButtonCountsAsSilent) {
    const QSignalSpy told(selector_, &FanSelector::returnSelectFunction);
    QPushButton stranger;
    stranger.setObjectName(QStringLiteral("btnTurbo"));
    QObject::connect(&stranger, &QPushButton::clicked, selector_, &FanSelector::functionSelected);
    stranger.click();
    ASSERT_EQ(told.count(), 1);
    EXPECT_EQ(told.front().front().toStringList(),
              QStringList({QStringLiteral("0"), QStringLiteral("btnTurbo")}));
}

TEST_P(FanSelectorTest, TheShownModeIsMarkedByStyleTickAndWordsWithoutASignal) {
    const auto unselected = [](const char *rgb) {
        return QStringLiteral("QPushButton{border: 1px solid rgb(%1);color: rgb(%1);border-radius: 13px;}")
            .arg(QString::fromLatin1(rgb));
    };
    const auto chosen = [](const char *rgb) {
        return QStringLiteral("QPushButton{color: rgb(0, 0, 0);background:rgb(%1);border-radius: 13px;}")
            .arg(QString::fromLatin1(rgb));
    };
    struct Case {
        FanMode mode;
        bool customSpeed;
        const char *marked;
    };
    const QSignalSpy told(selector_, &FanSelector::returnSelectFunction);
    for (const Case &c :
         {Case{FanMode::Silent, true, "btnSlient"}, Case{FanMode::Performance, true, "btnPerformance"},
          Case{FanMode::ZeroFan, true, "btnZeroFan"}, Case{FanMode::Custom, true, "btnCustom"},
          Case{FanMode::Custom, false, "btnZeroFan"}, Case{FanMode::Silent, false, "btnSlient"}}) {
        selector_->setCustomSpeed(c.customSpeed);
        selector_->showMode(c.mode);
        const QString marked = QString::fromLatin1(c.marked);
        for (const auto &[name, rgb] :
             {std::pair("btnSlient", "148, 177, 144"), std::pair("btnPerformance", "200, 63, 134"),
              std::pair("btnZeroFan", "128, 128, 117")}) {
            const bool is = marked == QLatin1String(name);
            EXPECT_EQ(named(name)->styleSheet(), is ? chosen(rgb) : unselected(rgb)) << name << c.marked;
        }
        EXPECT_EQ(named("btnCustom")->isHidden(), !c.customSpeed);
        for (const auto *button : selector_->findChildren<FanModeButton *>()) {
            EXPECT_EQ(button->isChosen(), button->objectName() == marked) << c.marked;
            EXPECT_EQ(button->accessibleName().contains(QStringLiteral("chosen")), button->isChosen());
        }
    }
    EXPECT_EQ(told.count(), 0);
}

TEST_P(FanSelectorTest, FocusIsSeenAndEnterChooses) {
    QApplication::setActiveWindow(&window_);
    QPushButton *button = named("btnPerformance");
    selector_->setFocus();
    named("btnSlient")->setFocus();
    settle();
    const QImage without = button->grab().toImage();
    button->setFocus(Qt::TabFocusReason);
    settle();
    EXPECT_NE(button->grab().toImage(), without);
    const QSignalSpy told(selector_, &FanSelector::returnSelectFunction);
    QTest::keyClick(button, Qt::Key_Return);
    ASSERT_EQ(told.count(), 1);
    EXPECT_EQ(told.front().front().toStringList().constFirst(), QStringLiteral("1"));
}

INSTANTIATE_TEST_SUITE_P(Variants, FanSelectorTest, ::testing::Values(0, 1, 2));

class FanPopupTest : public UiTest {
protected:
    FanPopupTest() {
        window_.resize(600, 400);
        anchor_->setGeometry(40, 360, 120, 30); // with no room below
        window_.show();
        QApplication::setActiveWindow(&window_);
        anchor_->setFocus();
        popup_->showMode(FanMode::Performance);
        popup_->openAt(anchor_);
        settle();
    }

    QWidget window_;
    QPushButton *anchor_ = new QPushButton(&window_);
    popupWidget *popup_ = new popupWidget(&window_);
};

TEST_F(FanPopupTest, StaysInsideAndHoldsTheFocusUntilItGoes) {
    EXPECT_EQ(popup_->geometry(), window_.rect());
    const QWidget *card = popup_->button(FanMode::Silent)->parentWidget();
    EXPECT_TRUE(popup_->rect().contains(card->geometry()));
    EXPECT_LE(card->geometry().bottom(), anchor_->geometry().top());
    EXPECT_TRUE(popup_->button(FanMode::Performance)->hasFocus()) << "the mode of now is at hand";
    anchor_->setFocus();
    EXPECT_FALSE(anchor_->hasFocus()) << "what is covered";
    window_.resize(500, 420);
    settle();
    EXPECT_EQ(popup_->geometry(), window_.rect());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(popup_->isHidden());
    EXPECT_TRUE(anchor_->hasFocus());
}

TEST_F(FanPopupTest, GoesWithAChoiceAndWithAPressBesideIt) {
    const QSignalSpy told(popup_, &FanSelector::returnSelectFunction);
    QTest::mouseClick(popup_, Qt::LeftButton, {}, {590, 5});
    EXPECT_TRUE(popup_->isHidden());
    EXPECT_EQ(told.count(), 0);
    popup_->openAt(anchor_);
    QTest::mouseClick(popup_->button(FanMode::ZeroFan), Qt::LeftButton);
    EXPECT_TRUE(popup_->isHidden());
    EXPECT_EQ(told.count(), 1);
}

} // namespace
} // namespace zpsg::ui::test
