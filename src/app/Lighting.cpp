#include "app/Lighting.h"

#include "app/LightingSettings.h"

namespace zpsg::app {

using lighting::Colour;
using lighting::Overlay;
using lighting::RingKind;
using psu::SupplyMonitor;

namespace {

/// How often a warning is drawn where each picture is a report of its own.
constexpr int kOverlaySteps = 5;
/// Bounds a frame of the streaming thread, and how long going to sleep is held up.
constexpr std::chrono::milliseconds kPatience(200);

std::size_t ledsOf(RingKind ring) {
    return ring == RingKind::Single ? 1 : ring == RingKind::Plus ? lighting::kPlusLeds : lighting::kDuoLeds;
}

std::optional<float> narrow(std::optional<double> value) {
    return value ? std::optional(static_cast<float>(*value)) : std::nullopt;
}

} // namespace

Lighting::Lighting(Supply &supply, Settings &settings, QObject *parent)
    : QObject(parent), supply_(supply), settings_(settings), lights_(supply) {
    writeDuoDefaultsOnce(settings_);
    takeSettings();
    selfBlink_.setInterval(lighting::kSelfBlinkMilliseconds);
    autoBlink_.setInterval(lighting::kAutoBlinkMilliseconds);
    overlayTimer_.setInterval(kOverlaySteps * lighting::kFrameMilliseconds);
    connect(&selfBlink_, &QTimer::timeout, this, &Lighting::selfBlink);
    connect(&autoBlink_, &QTimer::timeout, this, &Lighting::autoBlink);
    connect(&overlayTimer_, &QTimer::timeout, this, &Lighting::showOverlay);
    frameTimer_.setSingleShot(true);
    frameTimer_.setInterval(lighting::kFrameLasts);
    connect(&frameTimer_, &QTimer::timeout, this, &Lighting::showOwnLight);
    connect(&supply_, &Supply::profileChanged, this, &Lighting::fit);
    connect(&supply_.monitor(), &SupplyMonitor::stateChanged, this, &Lighting::takeLinkState);
    connect(&supply_, &Supply::reopened, this, &Lighting::resend);
    connect(&music_, &Music::changed, this, &Lighting::changed);
    fit();
}

Lighting::~Lighting() {
    blockSignals(true); // who listens may be half gone
    if (unsaved_) {
        saveLED();
    }
    const bool covered = overlay_.kind != Overlay::Kind::None;
    inputs_ = {.gauge = lighting::GaugeKind::None};
    applyOverlay();
    if (duoThread_ && covered) {
        duoThread_.reset();
        supply_.monitor().send(
            lighting::duoFrame(lighting::duoLeds(duo_, {}, 0, 0), lighting::DuoLayout::EachSlot));
    }
    supply_.monitor().waitSent(kPatience);
}

void Lighting::takeSettings() {
    single_.restore(loadSingleRing(settings_));
    plus_.restore(loadPlusRing(settings_));
    duo_ = loadDuo(settings_);
    inputs_.gauge = static_cast<lighting::GaugeKind>(settings_.integer(Setting::RingGauge));
    inputs_.palette = static_cast<lighting::Palette>(settings_.flag(Setting::RingSafePalette));
    inputs_.alarmOnRing = settings_.flag(Setting::RingAlarm);
    inputs_.offWhenLocked = settings_.flag(Setting::RingOffWhenLocked);
    unsaved_ = false;
}

void Lighting::reload() {
    takeSettings();
    if (duoThread_) {
        duoThread_->setState(duo_);
    }
    applyOverlay();
    resend();
    emit changed();
}

void Lighting::fit() {
    const auto &profile = supply_.profile();
    std::optional<RingKind> ring;
    if (profile.fanLighting) {
        ring = static_cast<RingKind>(profile.seriesCode);
    }
    if (ring == ring_) {
        return;
    }
    ring_ = ring;
    duoThread_.reset();
    if (ring_ == RingKind::Duo) {
        duoThread_ = std::make_unique<lighting::ZpsCirqDuo_SendCommand>(
            [sender = supply_.monitor().frameSender(kPatience)](const psu::Request &frame) mutable {
                return sender.send(frame);
            });
        duoThread_->setSoundSource([this] { return music_.sound(); });
        duoThread_->setOverlay(overlay_);
        duoThread_->setState(duo_);
        duoThread_->start();
    }
    applyOverlay();
    resend();
    emit ringChanged();
}

void Lighting::changeColour(const QStringList &rgb) {
    single_.changeColour(rgb);
    stateEdited();
}

void Lighting::changeColour(lighting::Colour colour, std::optional<int> percent) {
    changeColour({QString::number(colour.red), QString::number(colour.green), QString::number(colour.blue)});
    if (percent) {
        changeBrightness(*percent);
    }
}

void Lighting::changeBrightness(int percent) {
    single_.changeBrightness(percent);
    stateEdited();
}

void Lighting::turnOff(bool off) {
    single_.turnOff(off);
    applyOverlay();
    stateEdited();
}

void Lighting::changeLightMode(int mode) {
    single_.changeLightMode(mode);
    stateEdited();
}

void Lighting::changePlus(const lighting::PlusRingState &state) {
    plus_.change(state);
    applyOverlay();
    thermalUpdate();
    stateEdited();
}

void Lighting::choosePlus(int lighting::PlusRingState::*choice, int index) {
    using lighting::PlusRingState;
    const std::size_t count = choice == &PlusRingState::lightMode    ? lighting::kPlusLightModes.size()
                              : choice == &PlusRingState::colourMode ? 2
                                                                     : lighting::kSpeeds.size();
    if (index >= 0 && static_cast<std::size_t>(index) < count) {
        PlusRingState state = plus_.state();
        state.*choice = index;
        changePlus(state);
    }
}

void Lighting::showFrame(const std::vector<Colour> &leds) {
    if (!ring_ || leds.size() != ledsOf(*ring_) || ringIsOff() || lights_.covered()) {
        return;
    }
    if (duoThread_) {
        lighting::DuoLeds frame{};
        std::copy(leds.begin(), leds.end(), frame.begin());
        duoThread_->showFrame(frame);
        return;
    }
    streaming_ = true;
    runTimers();
    lights_.show(*ring_, leds);
    if (ring_ == RingKind::Single) {
        frameTimer_.start();
    }
}

void Lighting::changeDuo(const lighting::DuoState &state) {
    duo_ = state;
    if (duoThread_) {
        duoThread_->setState(duo_);
    }
    stateEdited();
}

void Lighting::setDefaults() {
    if (ring_ == RingKind::Plus) {
        changePlus({});
    } else if (ring_ == RingKind::Duo) {
        changeDuo({});
    } else {
        single_.restore({});
        resend();
        stateEdited();
    }
}

void Lighting::resend() {
    if (!ring_) {
        return;
    }
    if (duoThread_) {
        duoThread_->setState(duo_); // it streams by itself
    }
    showOwnLight();
    showOverlay();
    runTimers();
    listen();
}

void Lighting::takeLinkState(psu::LinkState state) {
    // One that was silent may have been reset.
    if (std::exchange(linkState_, state) == psu::LinkState::Silent && state == psu::LinkState::Live) {
        resend();
    }
}

void Lighting::thermalUpdate() {
    const auto celsius = supply_.fresh("Temp");
    if (celsius && !streaming_) {
        plus_.thermalUpdate(static_cast<float>(*celsius));
    }
}

bool Lighting::saveLED() {
    unsaved_ = false;
    if (!ring_) {
        return true;
    }
    if (*ring_ == RingKind::Single) {
        return saveSingleRing(settings_, single_.state());
    }
    if (!lightingFileExists(settings_)) {
        emit missingFile();
        return false;
    }
    if (*ring_ == RingKind::Duo) {
        return saveDuo(settings_, duo_);
    }
    const bool saved = savePlusRing(settings_, plus_.state());
    plus_.store();
    return saved;
}

void Lighting::setSync(bool on, const QString &modeText) {
    sync_ = {on, modeText};
    emit changed();
}

void Lighting::stateEdited() {
    unsaved_ = true;
    streaming_ = false;
    frameTimer_.stop();
    runTimers();
    listen();
    emit changed();
}

void Lighting::setOverlayOptions(lighting::GaugeKind gauge, lighting::Palette palette, bool alarmOnRing,
                                 bool offWhenLocked) {
    inputs_.gauge = gauge;
    inputs_.palette = palette;
    inputs_.alarmOnRing = alarmOnRing;
    inputs_.offWhenLocked = offWhenLocked;
    settings_.write({{Setting::RingGauge, static_cast<int>(gauge)},
                     {Setting::RingSafePalette, palette == lighting::Palette::ColourBlindSafe},
                     {Setting::RingAlarm, alarmOnRing},
                     {Setting::RingOffWhenLocked, offWhenLocked}});
    applyOverlay();
}

void Lighting::takeReading() {
    inputs_.celsius = narrow(supply_.fresh("Temp"));
    inputs_.load = narrow(supply_.freshLoad());
    if (duoThread_) {
        duoThread_->setCelsius(inputs_.celsius);
    }
    applyOverlay();
}

void Lighting::setAlarmHolds(bool holds) {
    inputs_.alarmHolds = holds;
    applyOverlay();
}

void Lighting::sessionEvent(platform::SessionEvent event) {
    using platform::SessionEvent;
    switch (event) {
    case SessionEvent::Locked:
    case SessionEvent::Unlocked:
        inputs_.locked = event == SessionEvent::Locked;
        applyOverlay();
        break;
    case SessionEvent::GoingToSleep:
        inputs_.asleep = true;
        applyOverlay();
        if (ring_ == RingKind::Duo && overlay_.kind == Overlay::Kind::Dark) {
            supply_.monitor().send(lighting::duoFrame({}, lighting::DuoLayout::EachSlot));
        }
        supply_.monitor().waitSent(kPatience);
        break;
    case SessionEvent::Resumed:
        inputs_.asleep = false;
        applyOverlay();
        resend();
        break;
    }
}

bool Lighting::ringIsOff() const {
    return !ring_ || (*ring_ == RingKind::Single ? single_.state().off
                      : *ring_ == RingKind::Plus ? plus_.state().off
                                                 : !duo_.on);
}

void Lighting::applyOverlay() {
    const Overlay overlay = ringIsOff() ? Overlay{} : lighting::chooseOverlay(inputs_);
    if (overlay == overlay_) {
        return;
    }
    overlay_ = overlay;
    overlayStep_ = 0;
    if (duoThread_) {
        duoThread_->setOverlay(overlay_);
    }
    const bool wasCovered = lights_.covered();
    lights_.setCovered(overlay_.kind != Overlay::Kind::None);
    if (wasCovered && !lights_.covered()) {
        showOwnLight();
    }
    showOverlay();
    runTimers();
    listen();
}

void Lighting::showOwnLight() {
    streaming_ = false;
    frameTimer_.stop();
    if (ring_ == RingKind::Plus) {
        plus_.apply();
        thermalUpdate();
    } else if (ring_ == RingKind::Single) {
        single_.apply();
    }
    runTimers();
}

void Lighting::showOverlay() {
    if (!ring_ || *ring_ == RingKind::Duo) {
        return; // the thread draws it
    }
    std::vector<Colour> leds(ledsOf(*ring_));
    if (lighting::overlayFrame(overlay_, overlayStep_, leds)) {
        overlayStep_ += kOverlaySteps;
        lights_.show(*ring_, leds);
    }
}

void Lighting::runTimers() {
    const auto run = [](QTimer &timer, bool wanted) {
        if (wanted != timer.isActive()) {
            wanted ? timer.start() : timer.stop();
        }
    };
    const bool ownLight = ring_ == RingKind::Single && !lights_.covered() && !streaming_;
    run(selfBlink_, ownLight && single_.blinkTimer() == lighting::BlinkTimer::Self);
    run(autoBlink_, ownLight && single_.blinkTimer() == lighting::BlinkTimer::Auto);
    run(overlayTimer_, ring_ && *ring_ != RingKind::Duo && overlay_.kind == Overlay::Kind::Alarm);
}

void Lighting::listen() {
    music_.listen(ring_ == RingKind::Duo && overlay_.kind == Overlay::Kind::None && needsSound(duo_));
}

std::vector<Colour> Lighting::leds(int step) const {
    if (!ring_) {
        return {};
    }
    if (duoThread_) {
        const auto shown = duoThread_->shown();
        return {shown.begin(), shown.end()};
    }
    if (const auto held = lights_.held(*ring_)) {
        return lighting::pictured(*held, step);
    }
    return lighting::pictured(*ring_ == RingKind::Single ? single_.ownLight() : plus_.ownLight(), step);
}

} // namespace zpsg::app
