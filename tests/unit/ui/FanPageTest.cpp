#include "ui/FanPage.h"

#include "ui/CustomFanSpeedWidget.h"
#include "ui/FanCurveEditor.h"
#include "ui/FanFigures.h"
#include "ui/FanModeButton.h"
#include "ui/FanSelector.h"
#include "ui/FanTrend.h"
#include "ui/ToggleSwitch.h"

#include "UiFixture.h"

#include <QApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>

namespace zpsg::ui::test {
namespace {

using fan::FanMode;

constexpr qint64 kBegin = 1'795'280'000'000;

class FanPageTest : public UiTest {
protected:
    FanPageTest() {
        qRegisterMetaType<fan::FanCurve>("zpsg::fan::FanCurve");
        window_.resize(1100, 720);
        page_->setGeometry(0, 0, 1026, 674);
        page_->setCustomSpeed(true);
        window_.show();
        QApplication::setActiveWindow(&window_);
        settle();
    }
    [[nodiscard]] QString modeWords() const {
        return page_->findChild<QLabel *>(QStringLiteral("lblFanMode"))->text();
    }

    QWidget window_;
    FanPage *page_ = new FanPage(&window_);
};

TEST_F(FanPageTest, ShowingIsSilent) {
    const QSignalSpy mode(page_, &FanPage::modeChosen);
    const QSignalSpy speed(page_, &FanPage::customSpeedChosen);
    const QSignalSpy toggled(page_, &FanPage::curveToggled);
    const QSignalSpy curve(page_, &FanPage::curveEdited);
    const QSignalSpy tuning(page_, &FanPage::curveTuningEdited);
    for (const fan::FanModeRow &row : fan::kFanModes) {
        page_->showMode(row.mode, 80);
    }
    fan::FanCurve byLoad;
    byLoad.source = fan::CurveSource::Load;
    page_->showCurve(true, byLoad, 7, 42);
    page_->showCurveState(CurveState::Driving, 55);
    page_->setVariant(2);
    page_->setReachable(false);
    page_->setReachable(true);
    page_->takeReading({900.0, 41.0, 40.0, FanMode::Silent}, kBegin);
    for (const QSignalSpy *spy : {&mode, &speed, &toggled, &curve, &tuning}) {
        EXPECT_EQ(spy->count(), 0) << spy->signal().constData();
    }
    EXPECT_EQ(page_->findChild<QSpinBox *>(QStringLiteral("fanCurveSeconds"))->value(), 42);
    EXPECT_TRUE(page_->findChild<ToggleSwitch *>()->isChecked());
}

TEST_F(FanPageTest, TheModeIsToldInWords) {
    struct Case {
        FanMode mode;
        CurveState state;
        const char *words;
    };
    for (const Case &c : {Case{FanMode::Silent, CurveState::Off, "Silent"},
                          Case{FanMode::ZeroFan, CurveState::Off, "Zero Fan"},
                          Case{FanMode::Custom, CurveState::Off, "Custom, 60\u00A0%"},
                          Case{FanMode::Custom, CurveState::Driving, "Custom, 47\u00A0%"},
                          Case{FanMode::Custom, CurveState::TooHot, "Custom, 60\u00A0%"}}) {
        page_->showMode(c.mode, 60);
        page_->showCurveState(c.state, 47);
        EXPECT_EQ(modeWords(), QString::fromUtf8(c.words));
    }
}

TEST_F(FanPageTest, ChoosingCustomAsksForASpeedAndForwardsIt) {
    const QSignalSpy mode(page_, &FanPage::modeChosen);
    const QSignalSpy speed(page_, &FanPage::customSpeedChosen);
    page_->showMode(FanMode::Silent, 72);
    for (const int variant : {0, 1, 2}) {
        page_->setVariant(variant);
        page_->selector()->button(FanMode::Performance)->click();
        EXPECT_TRUE(page_->popup()->isHidden());
        page_->selector()->button(FanMode::Custom)->click();
        EXPECT_FALSE(page_->popup()->isHidden()) << variant;
        EXPECT_EQ(page_->popup()->percent(), 72);
        page_->popup()->checkValue();
    }
    EXPECT_EQ(mode.count(), 6);
    ASSERT_EQ(speed.count(), 3);
    EXPECT_EQ(speed.front().front().toInt(), 72);
    page_->selector()->button(FanMode::Custom)->click();
    page_->hide();
    EXPECT_TRUE(page_->popup()->isHidden()) << "it waits for nobody on another page";
}

TEST_F(FanPageTest, FiguresFollowTheReadings) {
    const auto *figures = page_->findChild<FanFigures *>();
    page_->takeReading({997.4, 46.6, 44.3, FanMode::Silent}, kBegin);
    EXPECT_EQ(figures->readoutText(), QStringLiteral("997 rpm, 44 % of full speed, 47\u00A0\u00B0C"));
    page_->takeReading({0.0, 39.0, 0.0, FanMode::ZeroFan}, kBegin + 1000);
    EXPECT_EQ(figures->speedText(), QStringLiteral("Stopped"));
    page_->setReachable(false);
    EXPECT_EQ(figures->speedText(), QStringLiteral("\u2013"));
    EXPECT_FALSE(page_->findChild<QLabel *>(QStringLiteral("lblFanHint"))->isHidden());
}

TEST_F(FanPageTest, NothingIsDrawnWhileHiddenAndReadingsAreKept) {
    page_->hide();
    settle();
    const PaintCounter counter(page_);
    for (int i = 0; i < 200; ++i) {
        page_->takeReading({900.0 + i, 41.0, 40.0, FanMode::Silent}, kBegin + i * 1000LL);
    }
    settle();
    EXPECT_EQ(counter.paints, 0);
    EXPECT_EQ(page_->trend()->hour().size(), 200U);
}

TEST_F(FanPageTest, FitsTheLeastWindow) {
    // What the rail and the title bar leave of 960 by 620.
    constexpr QSize kRoom(886, 574);
    window_.resize(960, 620);
    page_->resize(kRoom);
    page_->showMode(FanMode::Custom, 100);
    page_->showCurveState(CurveState::Driving, 100);
    for (const int variant : {0, 1, 2}) {
        page_->setVariant(variant);
        for (const bool reachable : {true, false}) {
            page_->setReachable(reachable);
            settle();
            const QSize needed = page_->minimumSizeHint();
            EXPECT_LE(needed.width(), kRoom.width()) << variant << reachable;
            EXPECT_LE(needed.height(), kRoom.height()) << variant << reachable;
        }
    }
}

TEST_F(FanPageTest, TheCurveIsForModelsThatTakeASpeed) {
    const QWidget *editor = page_->curveCard()->editor();
    const auto *toggle = page_->findChild<ToggleSwitch *>();
    EXPECT_TRUE(editor->isVisible());
    const QSignalSpy toggled(page_, &FanPage::curveToggled);
    page_->findChild<ToggleSwitch *>()->click();
    ASSERT_EQ(toggled.count(), 1);
    EXPECT_TRUE(toggled.front().front().toBool());
    page_->findChild<QSpinBox *>(QStringLiteral("fanCurveHysteresis"))->setValue(9);
    const QSignalSpy tuning(page_, &FanPage::curveTuningEdited);
    page_->findChild<QSpinBox *>(QStringLiteral("fanCurveSeconds"))->setValue(33);
    ASSERT_EQ(tuning.count(), 1);
    EXPECT_EQ(tuning.front().at(0).toInt(), 9);
    EXPECT_EQ(tuning.front().at(1).toInt(), 33);
    page_->setCustomSpeed(false);
    EXPECT_FALSE(editor->isVisible());
    EXPECT_FALSE(toggle->isVisible());
}

} // namespace
} // namespace zpsg::ui::test
