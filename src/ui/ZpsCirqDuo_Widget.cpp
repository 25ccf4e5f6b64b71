#include "ui/ZpsCirqDuo_Widget.h"

#include "lighting/Effects.h"
#include "ui/ColourEditor.h"
#include "ui/LightingText.h"
#include "ui/RingPicture.h"
#include "ui/Selector.h"
#include "ui/ToggleSwitch.h"

#include <QGridLayout>
#include <QLabel>

#include <algorithm>

namespace zpsg::ui {
namespace {

using lighting::kColourModeEach;
using lighting::kColourModeSingle;
using lighting::kFront;
using lighting::kMiddle;

constexpr std::array kRings{kFront, kMiddle};

std::size_t ledsOf(std::size_t ring) { return ring == kFront ? lighting::kFrontLeds : lighting::kMiddleLeds; }

/// The place of a ring's first light in a frame.
std::size_t firstOf(std::size_t ring) { return ring == kFront ? 0 : lighting::kFrontLeds; }

const lighting::EffectRow &effect(int mode) {
    constexpr int kLast = static_cast<int>(lighting::kDuoEffectCount) - 1;
    return lighting::duoEffects()[static_cast<std::size_t>(std::clamp(mode, 0, kLast))];
}

} // namespace

ZpsCirqDuo_Widget::ZpsCirqDuo_Widget(QWidget *parent) : RingPanel(lighting::RingKind::Duo, parent) {
    for (int i = 0; i < 3; ++i) {
        captions_.at(static_cast<std::size_t>(i)) = makeCaption();
        selectors()->addWidget(captions_.at(static_cast<std::size_t>(i)), 0, i + 1);
    }
    for (const std::size_t ring : kRings) {
        makeRow(ring);
    }
    selectors()->setColumnStretch(1, 5);
    selectors()->setColumnStretch(2, 3);
    selectors()->setColumnStretch(3, 3);
    connectEditor();
    ZpsCirqDuo_Widget::retranslate();
}

void ZpsCirqDuo_Widget::makeRow(std::size_t ring) {
    const bool front = ring == kFront;
    Row &row = rows_.at(ring);
    row.name = makeCaption();
    QWidget *card = row.name->parentWidget();
    row.mode = new StepSelector(card);
    row.colours = new Selector(card);
    row.speed = new Selector(card);
    row.mode->list()->setObjectName(front ? QStringLiteral("selectFrontMode")
                                          : QStringLiteral("selectMiddleMode"));
    row.colours->setObjectName(front ? QStringLiteral("selectFrontColour")
                                     : QStringLiteral("selectMiddleColour"));
    row.speed->setObjectName(front ? QStringLiteral("selectFrontSpeed")
                                   : QStringLiteral("selectMiddleSpeed"));
    const int line = static_cast<int>(ring) + 1;
    selectors()->addWidget(row.name, line, 0);
    selectors()->addWidget(row.mode, line, 1);
    selectors()->addWidget(row.colours, line, 2);
    selectors()->addWidget(row.speed, line, 3);
    // In the rows before the colours, and so in the order of Tab.
    QWidget *before = front ? static_cast<QWidget *>(lightsSwitch()) : rows_.at(kFront).speed;
    for (QWidget *control : {static_cast<QWidget *>(row.mode->list()), static_cast<QWidget *>(row.mode->up()),
                             static_cast<QWidget *>(row.mode->down()), static_cast<QWidget *>(row.colours),
                             static_cast<QWidget *>(row.speed)}) {
        setTabOrder(before, control);
        before = control;
    }
    connect(row.mode->list(), &Selector::entryChosen, this, [this, ring](int mode) {
        state_.lightMode.at(ring) = mode;
        changed();
    });
    connect(row.colours, &Selector::entryChosen, this, [this, ring](int mode) {
        state_.colourMode.at(ring) = mode;
        changed();
    });
    connect(row.speed, &Selector::entryChosen, this, [this, ring](int speed) {
        state_.speedMode.at(ring) = speed;
        changed();
    });
}

void ZpsCirqDuo_Widget::connectEditor() {
    connect(editor(), &ColourEditor::colourPicked, this, [this](const QColor &colour) {
        for (const std::size_t ring : kRings) {
            const auto to = target(ring);
            if (to && to->single) {
                state_.singleRed.at(ring) = colour.red();
                state_.singleGreen.at(ring) = colour.green();
                state_.singleBlue.at(ring) = colour.blue();
            }
            for (const std::size_t entry : to.value_or(Target{}).entries) {
                state_.red.at(entry) = colour.red();
                state_.green.at(entry) = colour.green();
                state_.blue.at(entry) = colour.blue();
            }
        }
        changed();
    });
    connect(editor(), &ColourEditor::brightnessPicked, this, [this](int percent) {
        for (const std::size_t ring : kRings) {
            const auto to = target(ring);
            if (to && to->single) {
                state_.singleBrightness.at(ring) = percent / 100.0;
            }
            for (const std::size_t entry : to.value_or(Target{}).entries) {
                state_.brightness.at(entry) = percent / 100.0;
            }
        }
        changed();
    });
    connect(picture(), &RingPicture::selectionChanged, this, &ZpsCirqDuo_Widget::showChosen);
}

bool ZpsCirqDuo_Widget::usesColours(std::size_t ring) const {
    return effect(state_.lightMode.at(ring)).usesColours;
}

bool ZpsCirqDuo_Widget::touches(std::size_t ring) const {
    if (picture()->selectedCount() == 0) {
        return true;
    }
    for (std::size_t led = 0; led < ledsOf(ring); ++led) {
        if (picture()->isSelected(firstOf(ring) + led)) {
            return true;
        }
    }
    return false;
}

std::optional<ZpsCirqDuo_Widget::Target> ZpsCirqDuo_Widget::target(std::size_t ring) const {
    if (!usesColours(ring) || !touches(ring)) {
        return {};
    }
    Target to;
    to.single = state_.colourMode.at(ring) == kColourModeSingle;
    const bool all = picture()->selectedCount() == 0;
    for (std::size_t led = 0; !to.single && led < ledsOf(ring); ++led) {
        if (all || picture()->isSelected(firstOf(ring) + led)) {
            if (ring == kFront) {
                // The entry between two lights of the front ring goes with the light after it.
                to.entries.push_back(lighting::duoEntry(ring, led) - 1);
            }
            to.entries.push_back(lighting::duoEntry(ring, led));
        }
    }
    return to;
}

QColor ZpsCirqDuo_Widget::colourOf(std::size_t ring, std::size_t led) const {
    if (state_.colourMode.at(ring) == kColourModeSingle) {
        return toQColor(state_.singleRed.at(ring), state_.singleGreen.at(ring), state_.singleBlue.at(ring));
    }
    const std::size_t entry = lighting::duoEntry(ring, led);
    return toQColor(state_.red.at(entry), state_.green.at(entry), state_.blue.at(entry));
}

double ZpsCirqDuo_Widget::factorOf(std::size_t ring, std::size_t led) const {
    return state_.colourMode.at(ring) == kColourModeSingle
               ? state_.singleBrightness.at(ring)
               : state_.brightness.at(lighting::duoEntry(ring, led));
}

void ZpsCirqDuo_Widget::showState(const lighting::DuoState &state) {
    state_ = state;
    refresh();
}

void ZpsCirqDuo_Widget::lightsSwitched(bool on) {
    state_.on = on;
    changed();
}

void ZpsCirqDuo_Widget::changed() {
    refresh();
    emit edited(state_);
}

void ZpsCirqDuo_Widget::refresh() {
    showOn(state_.on);
    std::vector<lighting::Colour> set;
    std::vector<std::optional<lighting::Colour>> marks;
    for (const std::size_t ring : kRings) {
        const Row &row = rows_.at(ring);
        const auto &now = effect(state_.lightMode.at(ring));
        const bool single = state_.colourMode.at(ring) == kColourModeSingle;
        row.mode->list()->showEntry(state_.lightMode.at(ring));
        row.colours->showEntry(single ? kColourModeSingle : kColourModeEach);
        row.colours->setEnabled(now.usesColours);
        row.speed->showEntry(state_.speedMode.at(ring));
        row.speed->setEnabled(now.usesSpeed);
        picture()->setAsOne(ring, single);
        for (std::size_t led = 0; led < ledsOf(ring); ++led) {
            set.push_back(dimmed(colourOf(ring, led), factorOf(ring, led)));
            marks.emplace_back(toColour(colourOf(ring, led)));
            if (!now.usesColours) {
                marks.back().reset();
            }
        }
    }
    showSet(set);
    picture()->setMarks(marks);
    showChosen();
}

void ZpsCirqDuo_Widget::showChosen() {
    // The first light whose colour can be set; else the first that is chosen.
    std::optional<std::pair<std::size_t, std::size_t>> first;
    bool any = false;
    for (const std::size_t ring : kRings) {
        for (std::size_t led = 0; led < ledsOf(ring); ++led) {
            const bool chosen = picture()->selectedCount() == 0 || picture()->isSelected(firstOf(ring) + led);
            if (chosen && (!first || (!any && usesColours(ring)))) {
                first = {ring, led};
                any = usesColours(ring);
            }
        }
    }
    editor()->showColour(colourOf(first->first, first->second));
    editor()->showBrightness(percent(factorOf(first->first, first->second)));
    editor()->setColourEnabled(any);
    editor()->setBrightnessEnabled(any);
    editor()->setCaption(any ? qtTrId("LIGHTING_COLOUR_OF").arg(selectionText())
                             : qtTrId("LIGHTING_COLOUR_BY_EFFECT"));
}

void ZpsCirqDuo_Widget::showSound(SoundState state) {
    sound_ = state;
    switch (state) {
    case SoundState::Unused:
        setNotice({});
        break;
    case SoundState::Listening:
        setNotice(qtTrId("LIGHTING_SOUND_LISTENING"));
        break;
    case SoundState::NoDevice:
        setNotice(QStringLiteral("\u25B2 ") + qtTrId("LIGHTING_SOUND_NONE"));
        break;
    }
}

void ZpsCirqDuo_Widget::showSync(bool on, const QString &modeText) { setSource(on ? modeText : QString()); }

void ZpsCirqDuo_Widget::retranslate() {
    RingPanel::retranslate();
    setName(qtTrId("LIGHTING_DUO_RINGS"));
    const std::array captions{qtTrId("LIGHTING_MODE"), qtTrId("LIGHTING_COLOUR"), qtTrId("LIGHTING_SPEED")};
    for (std::size_t i = 0; i < captions.size(); ++i) {
        captions_.at(i)->setText(captions.at(i));
    }
    QStringList effects;
    for (const auto &row : lighting::duoEffects()) {
        effects << qtTrId(row.textKey);
    }
    for (const std::size_t ring : kRings) {
        Row &row = rows_.at(ring);
        row.name->setText(ring == kFront ? qtTrId("LIGHTING_FRONT") : qtTrId("LIGHTING_MIDDLE"));
        const auto name = [&row](const QString &caption) {
            return QStringLiteral("%1, %2").arg(row.name->text(), caption);
        };
        row.mode->list()->setEntries(effects);
        row.mode->list()->setBackEntry(qtTrId("LIGHTING_BACK"));
        row.mode->retranslate(name(captions[0]));
        row.colours->setEntries(colourModeTexts());
        row.colours->setAccessibleName(name(captions[1]));
        row.speed->setEntries(modeTexts(lighting::kSpeeds));
        row.speed->setAccessibleName(name(captions[2]));
    }
    showSound(sound_);
    refresh();
}

void ZpsCirqDuo_Widget::scaleSelectors(qreal scale) {
    for (const Row &row : rows_) {
        row.mode->applyScale(scale);
        row.colours->applyScale(scale);
        row.speed->applyScale(scale);
    }
}

} // namespace zpsg::ui
