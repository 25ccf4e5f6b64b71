#include "app/LightingFeed.h"

#include "ui/LightingOptions.h"
#include "ui/LightingPage.h"
#include "ui/RGB12LEDWidget.h"
#include "ui/ZpsCirq.h"
#include "ui/ZpsCirqDuo_Widget.h"

namespace zpsg::app {

using lighting::RingKind;
using ui::LightingPage;
using SoundState = ui::ZpsCirqDuo_Widget::SoundState;

namespace {

LightingPage::Ring pageOf(std::optional<RingKind> ring) {
    if (!ring) {
        return LightingPage::Ring::None;
    }
    return *ring == RingKind::Single ? LightingPage::Ring::Single
           : *ring == RingKind::Plus ? LightingPage::Ring::Plus
                                     : LightingPage::Ring::Duo;
}

SoundState soundState(const Music &music) {
    if (!music.listening()) {
        return SoundState::Unused;
    }
    return music.state() == platform::AudioState::NoDevice ? SoundState::NoDevice : SoundState::Listening;
}

} // namespace

LightingFeed::LightingFeed(Lighting &lights, Supply &supply, LightingPage &page, QObject *parent)
    : QObject(parent), lights_(lights), supply_(supply), page_(page) {
    picture_.setInterval(lighting::kFrameMilliseconds);
    connect(&picture_, &QTimer::timeout, this, &LightingFeed::showLeds);
    connect(&page_, &LightingPage::watched, this, &LightingFeed::watch);
    connect(&lights_, &Lighting::ringChanged, this, &LightingFeed::showRing);
    connect(&lights_, &Lighting::changed, this, &LightingFeed::showState);
    connect(&supply_.monitor(), &psu::SupplyMonitor::stateChanged, this, &LightingFeed::showReachable);
    connectPanels();

    const auto overlay = lights_.overlay();
    page_.options()->showState({.gauge = static_cast<int>(overlay.gauge),
                                .safePalette = overlay.palette == lighting::Palette::ColourBlindSafe,
                                .alarmOnRing = overlay.alarmOnRing,
                                .offWhenLocked = overlay.offWhenLocked});
    showRing();
    showReachable();
}

void LightingFeed::connectPanels() {
    auto *single = page_.single();
    connect(single, &ui::ZpsCirq::colourChanged, &lights_,
            qOverload<const QStringList &>(&Lighting::changeColour));
    connect(single, &ui::ZpsCirq::brightnessChanged, &lights_, &Lighting::changeBrightness);
    connect(single, &ui::ZpsCirq::turnedOff, &lights_, &Lighting::turnOff);
    connect(single, &ui::ZpsCirq::lightModeChosen, &lights_, &Lighting::changeLightMode);
    connect(page_.plus(), &ui::RGB12LEDWidget::edited, &lights_, &Lighting::changePlus);
    connect(page_.duo(), &ui::ZpsCirqDuo_Widget::frameStreamed, &lights_, &Lighting::showFrame);
    connect(page_.duo(), &ui::ZpsCirqDuo_Widget::edited, &lights_, &Lighting::changeDuo);
    for (const ui::RingPanel *panel :
         {static_cast<ui::RingPanel *>(single), static_cast<ui::RingPanel *>(page_.plus()),
          static_cast<ui::RingPanel *>(page_.duo())}) {
        connect(panel, &ui::RingPanel::defaultRequested, &lights_, &Lighting::setDefaults);
        connect(panel, &ui::RingPanel::saveRequested, &lights_, &Lighting::saveLED);
    }
    connect(page_.options(), &ui::LightingOptions::changed, this,
            [this](const ui::LightingOptionsState &state) {
                lights_.setOverlayOptions(static_cast<lighting::GaugeKind>(state.gauge),
                                          static_cast<lighting::Palette>(state.safePalette),
                                          state.alarmOnRing, state.offWhenLocked);
            });
}

void LightingFeed::showRing() {
    page_.setRing(pageOf(lights_.ring()));
    showState();
}

void LightingFeed::showState() {
    page_.single()->showState(lights_.single());
    page_.plus()->showState(lights_.plus());
    page_.duo()->showState(lights_.duo());
    page_.duo()->showSound(soundState(lights_.music()));
    page_.duo()->showSync(!lights_.syncModeText().isEmpty(), lights_.syncModeText());
}

void LightingFeed::showReachable() { page_.setReachable(supply_.present()); }

void LightingFeed::watch(bool watched) {
    if (watched) {
        showLeds();
        picture_.start();
    } else {
        picture_.stop();
    }
}

void LightingFeed::showLeds() {
    step_ = (step_ + 1) % lighting::kEffectSteps;
    const auto leds = lights_.leds(step_);
    if (!lights_.ring()) {
        return;
    }
    switch (*lights_.ring()) {
    case RingKind::Single:
        page_.single()->showLeds(leds);
        break;
    case RingKind::Plus:
        page_.plus()->showLeds(leds);
        break;
    case RingKind::Duo:
        page_.duo()->showLeds(leds);
        break;
    }
}

} // namespace zpsg::app
