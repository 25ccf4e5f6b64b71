// The panels of the three rings: what an edit changes, what it leaves alone, and what can be edited when.

#include "lighting/Effects.h"
#include "ui/ColourEditor.h"
#include "ui/ColourSwatches.h"
#include "ui/ColourWheel.h"
#include "ui/HexEntry.h"
#include "ui/LevelSlider.h"
#include "ui/RGB12LEDWidget.h"
#include "ui/RingPicture.h"
#include "ui/Selector.h"
#include "ui/ToggleSwitch.h"
#include "ui/ZpsCirq.h"
#include "ui/ZpsCirqDuo_Widget.h"
#include "UiFixture.h"

#include <QApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>

#include <array>
#include <optional>

namespace zpsg::ui::test {
namespace {

using lighting::DuoState;
using lighting::kFront;
using lighting::kMiddle;
using lighting::PlusRingState;

template <typename T>
T &child(const RingPanel &panel, const char *name = "") {
    auto *found = panel.findChild<T *>(QString::fromLatin1(name));
    EXPECT_NE(found, nullptr) << name;
    return *found;
}

/// As if typed.
void type(const RingPanel &panel, const char *text) {
    auto &hex = child<HexEntry>(panel);
    hex.setFocus();
    hex.selectAll();
    QTest::keyClicks(&hex, QString::fromLatin1(text));
    QTest::keyClick(&hex, Qt::Key_Return);
}

void choose(const RingPanel &panel, const char *selector, int entry) {
    auto &list = child<Selector>(panel, selector);
    emit list.activated(entry);
}

void clickLight(const RingPanel &panel, std::size_t led, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(panel.picture(), Qt::LeftButton, modifiers, panel.picture()->ledCentre(led).toPoint());
}

template <typename Panel>
class Opened {
public:
    Opened() {
        panel.resize(880, 440);
        panel.applyScale(1.0);
        panel.show();
        QApplication::setActiveWindow(&panel);
        settle();
    }
    Panel panel;
};

/// A panel whose edits come as whole states.
template <typename Panel, typename State>
class Edited : public Opened<Panel> {
public:
    Edited() {
        QObject::connect(&this->panel, &Panel::edited, &this->panel, [this](const State &state) {
            last = state;
            ++count;
        });
        this->panel.showState(State{});
        EXPECT_EQ(count, 0);
    }
    State last;
    int count = 0;
};
using Plus = Edited<RGB12LEDWidget, PlusRingState>;
using Duo = Edited<ZpsCirqDuo_Widget, DuoState>;

class LightingPanelsTest : public UiTest {};

TEST_F(LightingPanelsTest, TheSingleRingTellsEachChangeOfTheUser) {
    Opened<ZpsCirq> ring;
    const QSignalSpy colours(&ring.panel, &ZpsCirq::colourChanged);
    const QSignalSpy levels(&ring.panel, &ZpsCirq::brightnessChanged);
    const QSignalSpy offs(&ring.panel, &ZpsCirq::turnedOff);
    const QSignalSpy modes(&ring.panel, &ZpsCirq::lightModeChosen);
    auto &slider = child<LevelSlider>(ring.panel);
    for (const int mode : {0, 1, 2, 3, 0}) {
        lighting::SingleRingState state{{9, 8, 7}, 0.4, mode, 0, mode == 3};
        ring.panel.showState(state);
        const bool adjustable = mode == 0 || mode == 3;
        EXPECT_EQ(slider.isEnabled(), adjustable) << mode;
        EXPECT_EQ(slider.value(), adjustable ? 40 : 100) << mode;
        EXPECT_EQ(ring.panel.lightsSwitch()->isChecked(), mode != 3);
    }
    EXPECT_EQ(child<HexEntry>(ring.panel).text(), QStringLiteral("#090807"));
    EXPECT_EQ(colours.count() + levels.count() + offs.count() + modes.count(), 0) << "set by the program";

    type(ring.panel, "#01ff80");
    ASSERT_EQ(colours.count(), 1);
    EXPECT_EQ(colours.front().front().toStringList(),
              QStringList({QStringLiteral("1"), QStringLiteral("255"), QStringLiteral("128")}));
    QTest::keyClick(&slider, Qt::Key_Right);
    EXPECT_EQ(levels.back().front().toInt(), 41);
    ring.panel.lightsSwitch()->click();
    EXPECT_TRUE(offs.back().front().toBool());
    ring.panel.lightsSwitch()->click();
    EXPECT_FALSE(offs.back().front().toBool());
    choose(ring.panel, "selectLightMode", 2);
    EXPECT_EQ(modes.back().front().toInt(), 2);
    EXPECT_FALSE(slider.isEnabled());
    EXPECT_EQ(colours.count(), 1);
}

TEST_F(LightingPanelsTest, ColoursAndBrightnessGoToTheChosenLights) {
    Plus ring;
    PlusRingState expected;
    const auto paint = [&expected](std::initializer_list<std::size_t> slots_, int red, int green, int blue) {
        for (const std::size_t slot : slots_) {
            expected.red.at(slot) = red;
            expected.green.at(slot) = green;
            expected.blue.at(slot) = blue;
        }
    };
    clickLight(ring.panel, 2);
    clickLight(ring.panel, 7, Qt::ShiftModifier);
    EXPECT_EQ(ring.count, 0) << "a choice edits nothing";
    type(ring.panel, "102030");
    paint({2, 7}, 16, 32, 48);
    EXPECT_EQ(ring.last, expected);
    clickLight(ring.panel, 3);
    EXPECT_EQ(child<HexEntry>(ring.panel).text(), QStringLiteral("#00FF00")) << "shows the light's own";
    auto &slider = child<LevelSlider>(ring.panel);
    slider.setValue(30);
    expected.brightness[3] = 0.3F;
    expected.panelBrightness = 30;
    EXPECT_EQ(ring.last, expected);
    clickLight(ring.panel, 4);
    EXPECT_EQ(slider.value(), 100);
    clickLight(ring.panel, 3, Qt::ShiftModifier);
    EXPECT_EQ(slider.value(), 30) << "of the first that is chosen";

    ring.panel.picture()->selectNone();
    type(ring.panel, "ffffff");
    paint({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}, 255, 255, 255);
    EXPECT_EQ(ring.last, expected) << "none stands for all, and never for the single colour";

    choose(ring.panel, "selectColourMode", lighting::kColourModeSingle);
    expected.colourMode = lighting::kColourModeSingle;
    EXPECT_EQ(ring.last, expected);
    clickLight(ring.panel, 5);
    EXPECT_EQ(ring.panel.picture()->selectedCount(), 12U);
    type(ring.panel, "#0000ff");
    slider.setValue(55);
    paint({12}, 0, 0, 255);
    expected.brightness[12] = 0.55F;
    expected.panelBrightness = 55;
    EXPECT_EQ(ring.last, expected);
}

TEST_F(LightingPanelsTest, ModesOfTheTwelveLightsSayWhatCanBeSet) {
    Plus ring;
    const auto &colours = child<Selector>(ring.panel, "selectColourMode");
    const auto &speed = child<Selector>(ring.panel, "selectSpeed");
    choose(ring.panel, "selectColourMode", lighting::kColourModeSingle);
    for (int mode = 1; mode <= lighting::kPlusThermal; ++mode) {
        choose(ring.panel, "selectLightMode", mode);
        const bool thermal = mode == lighting::kPlusThermal;
        EXPECT_EQ(ring.last.lightMode, mode);
        EXPECT_EQ(ring.last.colourMode, thermal ? lighting::kColourModeEach : lighting::kColourModeSingle);
        EXPECT_EQ(speed.isEnabled(), mode < lighting::kPlusFullLighted) << mode;
        EXPECT_EQ(colours.isEnabled(), !thermal) << mode;
        EXPECT_EQ(child<ColourWheel>(ring.panel).isEnabled(), !thermal) << mode;
        EXPECT_EQ(child<HexEntry>(ring.panel).isEnabled(), !thermal) << mode;
        EXPECT_EQ(child<ColourSwatches>(ring.panel).isEnabled(), !thermal) << mode;
    }
    choose(ring.panel, "selectSpeed", 3);
    EXPECT_EQ(ring.last.lightSpeed, 3);
    ring.panel.lightsSwitch()->click();
    EXPECT_TRUE(ring.last.off);
    const int before = ring.count;
    PlusRingState odd;
    odd.lightMode = 99; // from a file that somebody edited
    odd.lightSpeed = -1;
    odd.red.fill(1000);
    ring.panel.showState(odd);
    EXPECT_EQ(ring.count, before);
}

TEST_F(LightingPanelsTest, AFrontLightOfTheDuoSetIsAPairOfEntries) {
    Duo ring;
    DuoState expected;
    const auto paint = [&expected](std::size_t entry) {
        expected.red.at(entry) = 1;
        expected.green.at(entry) = 2;
        expected.blue.at(entry) = 3;
    };
    clickLight(ring.panel, 2);                                           // front
    clickLight(ring.panel, lighting::kFrontLeds + 5, Qt::ShiftModifier); // middle
    EXPECT_EQ(ring.count, 0);
    type(ring.panel, "010203");
    for (const std::size_t entry : {4U, 5U, 17U}) {
        paint(entry);
    }
    EXPECT_EQ(ring.last, expected);
    child<LevelSlider>(ring.panel).setValue(20);
    for (const std::size_t entry : {4U, 5U, 17U}) {
        expected.brightness.at(entry) = 0.2;
    }
    EXPECT_EQ(ring.last, expected);

    // The front ring in one colour, the middle one not: each takes what is its own.
    choose(ring.panel, "selectFrontColour", lighting::kColourModeSingle);
    expected.colourMode[kFront] = lighting::kColourModeSingle;
    type(ring.panel, "0a0b0c");
    expected.singleRed[kFront] = 10;
    expected.singleGreen[kFront] = 11;
    expected.singleBlue[kFront] = 12;
    expected.red[17] = 10;
    expected.green[17] = 11;
    expected.blue[17] = 12;
    EXPECT_EQ(ring.last, expected);
    ring.panel.picture()->selectRing(kFront);
    child<LevelSlider>(ring.panel).setValue(70);
    expected.singleBrightness[kFront] = 0.7;
    EXPECT_EQ(ring.last, expected);

    ring.panel.showState(DuoState{});
    ring.panel.picture()->selectNone();
    type(ring.panel, "010203");
    expected = DuoState{};
    for (std::size_t entry = 0; entry < lighting::kDuoEntries; ++entry) {
        paint(entry);
    }
    EXPECT_EQ(ring.last, expected) << "none stands for all";
    ring.panel.lightsSwitch()->click();
    EXPECT_FALSE(ring.last.on);
}

/// The first effect of which that holds.
template <typename Test>
std::optional<int> effectWith(const Test &test) {
    for (std::size_t i = 0; i < lighting::kDuoEffectCount; ++i) {
        if (test(lighting::duoEffects()[i])) {
            return static_cast<int>(i);
        }
    }
    return {};
}

TEST_F(LightingPanelsTest, EffectsWithColoursOfTheirOwnLeaveTheChosenOnesAlone) {
    Duo ring;
    const auto own = effectWith([](const auto &row) { return !row.usesColours; });
    ASSERT_TRUE(own);
    choose(ring.panel, "selectFrontMode", *own);
    EXPECT_EQ(ring.last.lightMode, (std::array{*own, 0}));
    EXPECT_FALSE(child<Selector>(ring.panel, "selectFrontColour").isEnabled());
    EXPECT_TRUE(child<Selector>(ring.panel, "selectMiddleColour").isEnabled());
    const auto &wheel = child<ColourWheel>(ring.panel);
    EXPECT_TRUE(wheel.isEnabled()) << "for the middle ring";
    type(ring.panel, "010203");
    EXPECT_EQ(ring.last.red[1], DuoState{}.red[1]);
    EXPECT_EQ(ring.last.red[12], 1);
    clickLight(ring.panel, 0);
    EXPECT_FALSE(wheel.isEnabled());
    EXPECT_FALSE(child<LevelSlider>(ring.panel).isEnabled());
    clickLight(ring.panel, lighting::kFrontLeds);
    EXPECT_TRUE(wheel.isEnabled());
    if (const auto still = effectWith([](const auto &row) { return !row.usesSpeed; })) {
        choose(ring.panel, "selectMiddleMode", *still);
        EXPECT_FALSE(child<Selector>(ring.panel, "selectMiddleSpeed").isEnabled());
    }
    choose(ring.panel, "selectFrontSpeed", 1);
    EXPECT_EQ(ring.last.speedMode, (std::array{1, 0}));
}

TEST_F(LightingPanelsTest, TheListOfEffectsGoesRoundAndBack) {
    Duo ring;
    const int last = static_cast<int>(lighting::kDuoEffectCount) - 1;
    const QList<StepSelector *> steps = ring.panel.findChildren<StepSelector *>();
    ASSERT_EQ(steps.size(), 2);
    for (int i = 0; i < 2; ++i) {
        const auto at = static_cast<std::size_t>(i);
        Selector *list = steps.at(i)->list();
        steps.at(i)->up()->click();
        EXPECT_EQ(ring.last.lightMode.at(at), last);
        steps.at(i)->down()->click();
        steps.at(i)->down()->click();
        EXPECT_EQ(ring.last.lightMode.at(at), 1);
        const int before = ring.count;
        list->setCurrentIndex(list->count() - 1);
        emit list->activated(list->count() - 1); // the row that leads back
        EXPECT_EQ(list->currentIndex(), 1);
        EXPECT_EQ(ring.count, before);
        QTest::keyClick(list, Qt::Key_End);
        EXPECT_EQ(ring.last.lightMode.at(at), last) << "by keys to the last effect, not to the way back";
        QTest::keyClick(list, Qt::Key_Down);
        EXPECT_EQ(list->entry(), last);
    }
}

TEST_F(LightingPanelsTest, WhatIsNoColourKeepsTheLastOne) {
    Plus ring;
    const auto &fault = child<QLabel>(ring.panel, "lblColourFault");
    auto &hex = child<HexEntry>(ring.panel);
    for (const char *text : {"#12zz", "#12345", "12345", "red", ""}) {
        type(ring.panel, "#ABCDEF");
        EXPECT_FALSE(fault.isVisible());
        const int before = ring.count;
        QTest::keyClick(&hex, Qt::Key_Backspace); // all of it: Enter has selected it
        type(ring.panel, text);
        EXPECT_TRUE(fault.isVisible()) << text;
        child<LevelSlider>(ring.panel).setFocus();
        EXPECT_EQ(hex.text(), QStringLiteral("#ABCDEF")) << text;
        EXPECT_TRUE(fault.isVisible()) << "says why it is the old one";
        EXPECT_EQ(ring.count, before) << text;
        hex.setFocus();
    }
    type(ring.panel, " 00ff00 ");
    EXPECT_EQ(ring.last.green[0], 255);
    EXPECT_EQ(hex.text(), QStringLiteral("#00FF00"));
    EXPECT_EQ(child<ColourWheel>(ring.panel).colour(), QColor(0, 255, 0)) << "the others follow";
}

TEST_F(LightingPanelsTest, TheWheelPicksHuesAtFullValue) {
    ColourWheel wheel;
    wheel.resize(201, 201);
    wheel.show();
    QSignalSpy picked(&wheel, &ColourWheel::colourPicked);
    wheel.setColour(QColor(0, 90, 0));
    EXPECT_EQ(wheel.colour(), QColor(0, 90, 0)) << "shows dark ones as they are";
    EXPECT_EQ(picked.count(), 0);
    QTest::mouseClick(&wheel, Qt::LeftButton, {}, QPoint(100, 2));
    EXPECT_EQ(wheel.colour().red(), 255) << "at the top";
    EXPECT_LT(wheel.colour().green() + wheel.colour().blue(), 10);
    QTest::mouseClick(&wheel, Qt::LeftButton, {}, QPoint(100, 100));
    EXPECT_GT(wheel.colour().value(), 250);
    EXPECT_LT(wheel.colour().saturation(), 10) << "in the middle";
    QTest::mouseClick(&wheel, Qt::LeftButton, {}, QPoint(1, 1));
    EXPECT_EQ(picked.count(), 2) << "beside the disc";

    wheel.setColour(QColor(Qt::red));
    for (int i = 0; i < 36; ++i) {
        QTest::keyClick(&wheel, i < 12 ? Qt::Key_Left : Qt::Key_Right);
        QTest::keyClick(&wheel, Qt::Key_Up); // the edge is the end
    }
    EXPECT_NEAR(wheel.colour().hueF() * 360.0, 120.0, 0.5);
    EXPECT_EQ(wheel.colour().saturation(), 255);
    for (int i = 0; i < 11; ++i) {
        QTest::keyClick(&wheel, Qt::Key_Down);
    }
    EXPECT_EQ(wheel.colour(), QColor(Qt::white));
    QTest::keyClick(&wheel, Qt::Key_Up);
    EXPECT_NEAR(wheel.colour().hueF() * 360.0, 120.0, 2.0) << "the way back from white is known";
}

TEST_F(LightingPanelsTest, SwatchesAreReachedByKeys) {
    Plus ring;
    auto swatches = child<ColourSwatches>(ring.panel).findChildren<QAbstractButton *>();
    ASSERT_EQ(swatches.size(), static_cast<int>(kSwatches));
    swatches.front()->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(ring.last.blue[4], 255) << "blue, the ninth";
    EXPECT_TRUE(swatches.at(8)->isChecked());
    for (const QAbstractButton *swatch : swatches) {
        EXPECT_FALSE(swatch->accessibleName().isEmpty());
    }
}

} // namespace
} // namespace zpsg::ui::test
