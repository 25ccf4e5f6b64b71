// The lighting page as a whole: which panel is there, who is told that somebody looks, what its notes say.

#include "ui/LightingPage.h"

#include "ui/LightingOptions.h"
#include "ui/MainView.h"
#include "ui/RGB12LEDWidget.h"
#include "ui/RingPicture.h"
#include "ui/SegmentedControl.h"
#include "ui/ToggleSwitch.h"
#include "ui/ZpsCirq.h"
#include "ui/ZpsCirqDuo_Widget.h"
#include "UiFixture.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QSignalSpy>
#include <QTest>

#include <array>

namespace zpsg::ui::test {
namespace {

using Ring = LightingPage::Ring;

class LightingPageTest : public UiTest {
protected:
    LightingPageTest() {
        view_.setWindowFlag(Qt::FramelessWindowHint);
        view_.show();
        view_.showPage(MainView::Page::Lighting);
        QApplication::setActiveWindow(&view_);
        settle();
    }
    [[nodiscard]] static QString shownText(const QWidget &panel, const char *name) {
        const auto *label = panel.findChild<QLabel *>(QString::fromLatin1(name));
        return label != nullptr && label->isVisible() ? label->text() : QString();
    }

    MainView view_;
    LightingPage &page_ = *view_.lighting();
};

TEST_F(LightingPageTest, ShowsThePanelOfTheRing) {
    const std::array<std::pair<Ring, const QWidget *>, 3> panels{std::pair(Ring::Single, page_.single()),
                                                                 std::pair(Ring::Plus, page_.plus()),
                                                                 std::pair(Ring::Duo, page_.duo())};
    for (const Ring ring : {Ring::None, Ring::Plus, Ring::Single, Ring::Duo, Ring::None}) {
        page_.setRing(ring);
        settle();
        for (const auto &[of, panel] : panels) {
            EXPECT_EQ(panel->isVisible(), of == ring);
        }
        EXPECT_EQ(page_.options()->isVisible(), ring != Ring::None);
    }
}

TEST_F(LightingPageTest, TellsWhetherItIsWatched) {
    std::vector<bool> told;
    const QObject listening; // until here ends
    QObject::connect(&page_, &LightingPage::watched, &listening, [&told](bool on) { told.push_back(on); });
    view_.showPage(MainView::Page::Dashboard);
    view_.showPage(MainView::Page::Lighting);
    view_.hide();
    view_.show();
    view_.setWindowState(Qt::WindowMinimized);
    settle();
    view_.setWindowState(Qt::WindowNoState);
    settle();
    EXPECT_EQ(told, std::vector({false, true, false, true, false, true}));
}

TEST_F(LightingPageTest, NothingIsPaintedWhileHidden) {
    page_.setRing(Ring::Duo);
    settle();
    view_.showPage(MainView::Page::Dashboard);
    settle();
    const PaintCounter counter(&page_);
    page_.duo()->showLeds(std::vector<lighting::Colour>(lighting::kDuoLeds, {1, 2, 3}));
    lighting::DuoState state;
    state.on = false;
    page_.duo()->showState(state);
    page_.setReachable(false);
    settle();
    EXPECT_EQ(counter.paints, 0);
}

TEST_F(LightingPageTest, NotesComeAndGo) {
    page_.setRing(Ring::Duo);
    const QString usual = shownText(page_, "lblLightingHint");
    page_.setReachable(false);
    EXPECT_NE(shownText(page_, "lblLightingHint"), usual);
    EXPECT_TRUE(page_.duo()->isEnabled()) << "changes are kept";
    page_.setReachable(true);
    EXPECT_EQ(shownText(page_, "lblLightingHint"), usual);

    ZpsCirqDuo_Widget &duo = *page_.duo();
    EXPECT_EQ(shownText(duo, "lblRingNote"), QString());
    duo.showSound(ZpsCirqDuo_Widget::SoundState::NoDevice);
    const QString silent = shownText(duo, "lblRingNote");
    EXPECT_FALSE(silent.isEmpty());
    page_.options()->showState({2, false, true, true});
    EXPECT_TRUE(shownText(duo, "lblRingNote").contains(silent)) << "and that a gauge is shown";
    EXPECT_NE(shownText(duo, "lblRingNote"), silent);
    page_.options()->showState({});
    duo.showSound(ZpsCirqDuo_Widget::SoundState::Unused);
    EXPECT_EQ(shownText(duo, "lblRingNote"), QString());

    duo.showSync(true, QStringLiteral("Sync By Fans"));
    EXPECT_EQ(shownText(duo, "lblRingSource"), QStringLiteral("Sync By Fans"));
    duo.showSync(false, QStringLiteral("Sync By Fans"));
    EXPECT_EQ(shownText(duo, "lblRingSource"), QString());
}

TEST_F(LightingPageTest, OptionsTellOfTheUserOnly) {
    page_.setRing(Ring::Single);
    LightingOptions &options = *page_.options();
    std::vector<LightingOptionsState> told;
    QObject::connect(&options, &LightingOptions::changed, &options,
                     [&told](const LightingOptionsState &state) { told.push_back(state); });
    LightingOptionsState state{1, true, false, false};
    options.showState(state);
    EXPECT_TRUE(told.empty());
    const auto click = [&options](const char *name) {
        options.findChild<ToggleSwitch *>(QString::fromLatin1(name))->click();
    };
    click("switchSafePalette");
    state.safePalette = false;
    EXPECT_EQ(told.back(), state);
    click("switchAlarmOnRing");
    state.alarmOnRing = true;
    EXPECT_EQ(told.back(), state);
    click("switchOffWhenLocked");
    state.offWhenLocked = true;
    EXPECT_EQ(told.back(), state);
    options.findChild<SegmentedControl *>()->setCurrent(2);
    state.gauge = 2;
    EXPECT_EQ(told.back(), state);
    EXPECT_EQ(told.size(), 4U);
}

TEST_F(LightingPageTest, EveryPanelAsksForDefaultsAndSaving) {
    for (const auto &[ring, panel] : {std::pair<Ring, RingPanel *>(Ring::Single, page_.single()),
                                      {Ring::Plus, page_.plus()},
                                      {Ring::Duo, page_.duo()}}) {
        page_.setRing(ring);
        const QSignalSpy defaults(panel, &RingPanel::defaultRequested);
        const QSignalSpy saves(panel, &RingPanel::saveRequested);
        panel->findChild<QPushButton *>(QStringLiteral("btnLightingDefault"))->click();
        EXPECT_EQ(defaults.count(), 1);
        panel->findChild<QPushButton *>(QStringLiteral("btnLightingSave"))->click();
        EXPECT_EQ(saves.count(), 1);
    }
}

TEST_F(LightingPageTest, TabReachesEveryControl) {
    for (const Ring ring : {Ring::Single, Ring::Plus, Ring::Duo}) {
        page_.setRing(ring);
        settle();
        view_.setFocus();
        QSet<const QWidget *> reached;
        for (int i = 0; i < 60; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            reached.insert(QApplication::focusWidget());
        }
        for (const QWidget *widget : page_.findChildren<QWidget *>()) {
            if (widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) != 0 &&
                widget->focusProxy() == nullptr) {
                EXPECT_TRUE(reached.contains(widget))
                    << widget->metaObject()->className() << " " << qPrintable(widget->objectName());
                EXPECT_FALSE(widget->accessibleName().isEmpty() &&
                             qobject_cast<const QPushButton *>(widget) == nullptr)
                    << widget->metaObject()->className() << " has a name";
            }
        }
    }
}

} // namespace
} // namespace zpsg::ui::test
