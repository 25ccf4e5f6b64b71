#include "ui/RGB12LEDWidget.h"

#include "lighting/LightMessages.h"
#include "ui/ColourEditor.h"
#include "ui/LightingText.h"
#include "ui/RingPicture.h"
#include "ui/Selector.h"
#include "ui/ToggleSwitch.h"

#include <QGridLayout>
#include <QLabel>

namespace zpsg::ui {

using lighting::kColourModeEach;
using lighting::kColourModeSingle;
using lighting::kPlusLeds;
using lighting::kSingleSlot;

RGB12LEDWidget::RGB12LEDWidget(QWidget *parent) : RingPanel(lighting::RingKind::Plus, parent) {
    constexpr std::array kNames{"selectLightMode", "selectColourMode", "selectSpeed"};
    QWidget *before = lightsSwitch();
    for (int i = 0; i < kChoices; ++i) {
        const auto at = static_cast<std::size_t>(i);
        captions_.at(at) = makeCaption();
        choices_.at(at) = new Selector(captions_.at(at)->parentWidget());
        choices_.at(at)->setObjectName(QLatin1String(kNames.at(at)));
        selectors()->addWidget(captions_.at(at), 0, i);
        selectors()->addWidget(choices_.at(at), 1, i);
        selectors()->setColumnStretch(i, i == Light ? 4 : 3);
        // In the row before the colours, and so in the order of Tab.
        setTabOrder(before, choices_.at(at));
        before = choices_.at(at);
    }
    connect(choices_[Light], &Selector::entryChosen, this, &RGB12LEDWidget::chooseLightMode);
    connect(choices_[Colours], &Selector::entryChosen, this, [this](int mode) {
        state_.colourMode = mode;
        changed();
    });
    connect(choices_[Speed], &Selector::entryChosen, this, [this](int speed) {
        state_.lightSpeed = speed;
        changed();
    });
    connect(editor(), &ColourEditor::colourPicked, this, [this](const QColor &colour) {
        for (const std::size_t slot : slotsChosen()) {
            state_.red.at(slot) = colour.red();
            state_.green.at(slot) = colour.green();
            state_.blue.at(slot) = colour.blue();
        }
        changed();
    });
    connect(editor(), &ColourEditor::brightnessPicked, this, [this](int percent) {
        state_.panelBrightness = percent;
        for (const std::size_t slot : slotsChosen()) {
            state_.brightness.at(slot) = static_cast<float>(percent) / 100.0F;
        }
        changed();
    });
    connect(picture(), &RingPicture::selectionChanged, this, &RGB12LEDWidget::showChosen);
    RGB12LEDWidget::retranslate();
}

void RGB12LEDWidget::showState(const lighting::PlusRingState &state) {
    state_ = state;
    refresh();
}

void RGB12LEDWidget::chooseLightMode(int mode) {
    state_.lightMode = mode;
    if (mode == lighting::kPlusThermal) {
        state_.colourMode = kColourModeEach;
    }
    changed();
}

void RGB12LEDWidget::lightsSwitched(bool on) {
    state_.off = !on;
    changed();
}

void RGB12LEDWidget::changed() {
    refresh();
    emit edited(state_);
}

std::vector<std::size_t> RGB12LEDWidget::slotsChosen() const {
    if (state_.colourMode == kColourModeSingle) {
        return {kSingleSlot};
    }
    std::vector<std::size_t> chosen;
    const bool all = picture()->selectedCount() == 0;
    for (std::size_t led = 0; led < kPlusLeds; ++led) {
        if (all || picture()->isSelected(led)) {
            chosen.push_back(led);
        }
    }
    return chosen;
}

QColor RGB12LEDWidget::colourOf(std::size_t slot) const {
    return toQColor(state_.red.at(slot), state_.green.at(slot), state_.blue.at(slot));
}

void RGB12LEDWidget::refresh() {
    const bool thermal = state_.lightMode == lighting::kPlusThermal;
    const bool single = state_.colourMode == kColourModeSingle;
    showOn(!state_.off);
    choices_[Light]->showEntry(state_.lightMode);
    choices_[Colours]->showEntry(single ? kColourModeSingle : kColourModeEach);
    choices_[Colours]->setEnabled(!thermal);
    choices_[Speed]->showEntry(state_.lightSpeed);
    // Only what the device runs by itself has a speed.
    choices_[Speed]->setEnabled(state_.lightMode < lighting::kPlusFullLighted);
    editor()->setColourEnabled(!thermal);
    picture()->setAsOne(0, single);

    std::vector<lighting::Colour> set;
    std::vector<std::optional<lighting::Colour>> marks(kPlusLeds);
    for (std::size_t led = 0; led < kPlusLeds; ++led) {
        const std::size_t slot = single ? kSingleSlot : led;
        const auto factor = static_cast<double>(state_.brightness.at(slot));
        set.push_back(dimmed(colourOf(slot), factor));
        if (!thermal) {
            marks.at(led) = toColour(colourOf(slot));
        }
    }
    showSet(set);
    picture()->setMarks(marks);
    showChosen();
}

void RGB12LEDWidget::showChosen() {
    const bool thermal = state_.lightMode == lighting::kPlusThermal;
    const std::size_t first = slotsChosen().front();
    editor()->showColour(colourOf(first));
    editor()->showBrightness(percent(static_cast<double>(state_.brightness.at(first))));
    const QString lights =
        state_.colourMode == kColourModeSingle ? qtTrId("LIGHTING_THE_RING") : selectionText();
    editor()->setCaption(thermal ? qtTrId("LIGHTING_COLOUR_BY_TEMPERATURE")
                                 : qtTrId("LIGHTING_COLOUR_OF").arg(lights));
}

void RGB12LEDWidget::retranslate() {
    RingPanel::retranslate();
    setName(qtTrId("LIGHTING_PLUS_RING"));
    captions_[Light]->setText(qtTrId("MAIN_12LED_Light_Mode"));
    captions_[Colours]->setText(qtTrId("MAIN_12LED_Color_Mode"));
    captions_[Speed]->setText(qtTrId("MAIN_12LED_Speed_Mode"));
    for (std::size_t i = 0; i < kChoices; ++i) {
        choices_.at(i)->setAccessibleName(captions_.at(i)->text());
    }
    choices_[Light]->setEntries(modeTexts(lighting::kPlusLightModes));
    choices_[Colours]->setEntries(colourModeTexts());
    choices_[Speed]->setEntries(modeTexts(lighting::kSpeeds));
    refresh();
}

void RGB12LEDWidget::scaleSelectors(qreal scale) {
    for (Selector *choice : choices_) {
        choice->applyScale(scale);
    }
}

void RGB12LEDWidget::messageFromSocketHelper_getInit() {
    emit returnInitTo_socketHelper(lighting::plusStateText(state_));
}

} // namespace zpsg::ui
