#include "ui/ZpsCirq.h"

#include "ui/ColourEditor.h"
#include "ui/LightingText.h"
#include "ui/Selector.h"
#include "ui/ToggleSwitch.h"

#include <QGridLayout>
#include <QLabel>

namespace zpsg::ui {
namespace {

/// Spectrum and Blink run at full brightness.
bool hasBrightness(int mode) { return mode != 1 && mode != 2; }

} // namespace

ZpsCirq::ZpsCirq(QWidget *parent)
    : RingPanel(lighting::RingKind::Single, parent)
    , modeCaption_(makeCaption())
    , mode_(new Selector(modeCaption_->parentWidget())) {
    mode_->setObjectName(QStringLiteral("selectLightMode"));
    selectors()->addWidget(modeCaption_, 0, 0);
    selectors()->addWidget(mode_, 1, 0);
    selectors()->setColumnStretch(0, 1);
    selectors()->setColumnStretch(1, 1);
    // In the row before the colours, and so in the order of Tab.
    setTabOrder(lightsSwitch(), mode_);

    connect(mode_, &Selector::entryChosen, this, [this](int mode) {
        state_.lightMode = mode;
        refresh();
        emit lightModeChosen(mode);
    });
    connect(editor(), &ColourEditor::colourPicked, this, [this](const QColor &colour) {
        state_.colour = toColour(colour);
        refresh();
        emit colourChanged(
            {QString::number(colour.red()), QString::number(colour.green()), QString::number(colour.blue())});
    });
    connect(editor(), &ColourEditor::brightnessPicked, this, [this](int percent) {
        state_.brightness = percent / 100.0;
        refresh();
        emit brightnessChanged(percent);
    });
    ZpsCirq::retranslate();
    refresh();
}

void ZpsCirq::showState(const lighting::SingleRingState &state) {
    state_ = state;
    refresh();
}

void ZpsCirq::refresh() {
    const bool bright = hasBrightness(state_.lightMode);
    showOn(!state_.off);
    mode_->showEntry(state_.lightMode);
    editor()->showColour(toQColor(state_.colour));
    editor()->showBrightness(bright ? percent(state_.brightness) : 100);
    editor()->setBrightnessEnabled(bright);
    showSet({dimmed(toQColor(state_.colour), bright ? state_.brightness : 1.0)});
}

void ZpsCirq::lightsSwitched(bool on) {
    state_.off = !on;
    refresh();
    emit turnedOff(state_.off);
}

void ZpsCirq::retranslate() {
    RingPanel::retranslate();
    setName(qtTrId("LIGHTING_SINGLE_RING"));
    modeCaption_->setText(qtTrId("MAIN_12LED_Light_Mode"));
    mode_->setAccessibleName(modeCaption_->text());
    mode_->setEntries(modeTexts(lighting::kSingleLightModes));
    editor()->setCaption(qtTrId("LIGHTING_COLOUR_OF").arg(qtTrId("LIGHTING_THE_RING")));
}

void ZpsCirq::scaleSelectors(qreal scale) { mode_->applyScale(scale); }

} // namespace zpsg::ui
