// The lights of the fitted ring: their state, who drives them, what is shown over them, and their settings.
#pragma once

#include "app/Music.h"
#include "app/Settings.h"
#include "app/SupplyLights.h"
#include "lighting/PlusRing.h"
#include "lighting/SingleRing.h"
#include "lighting/ZpsCirqDuo_SendCommand.h"
#include "platform/SessionWatch.h"

#include <QTimer>

#include <memory>
#include <optional>
#include <vector>

namespace zpsg::app {

/// GUI thread only. What it is given outlives it. Changes are kept while no supply is there and sent when one
/// is.
class Lighting : public QObject {
    Q_OBJECT

public:
    Lighting(Supply &supply, Settings &settings, QObject *parent = nullptr);
    /// Gives the ring back to its own light.
    ~Lighting() override;

    /// The ring of the identified model; nothing while none was identified, or it has no lighting fan.
    [[nodiscard]] std::optional<lighting::RingKind> ring() const { return ring_; }
    [[nodiscard]] const lighting::SingleRingState &single() const { return single_.state(); }
    [[nodiscard]] const lighting::PlusRingState &plus() const { return plus_.state(); }
    [[nodiscard]] const lighting::DuoState &duo() const { return duo_; }
    [[nodiscard]] const Music &music() const { return music_; }

    // The single-colour ring.
    void changeColour(const QStringList &rgb);
    /// With the slider's value, where there is one.
    void changeColour(lighting::Colour colour, std::optional<int> percent = {});
    void changeBrightness(int percent);
    void turnOff(bool off);
    void changeLightMode(int mode);
    void selfBlink() { single_.selfBlink(); }
    void autoBlink() { single_.autoBlink(); }

    void changePlus(const lighting::PlusRingState &state);
    /// Sets one of the 12-LED ring's choices (mode, colour mode, speed); out of its range changes nothing.
    void choosePlus(int lighting::PlusRingState::*choice, int index);
    /// Shows colours of another program on the fitted ring, one a LED; not kept. The single ring and the Duo
    /// set return to their own light when no other frame follows, the 12-LED ring with showOwnLight() or a
    /// change. Nothing happens for another number of colours, or while the ring is off or covered.
    void showFrame(const std::vector<lighting::Colour> &leds);
    /// Back to the ring's own light.
    void showOwnLight();
    void changeDuo(const lighting::DuoState &state);
    /// The fitted ring as it came, switched on.
    void setDefaults();
    /// Shows the fitted ring's light again, as after a reconnect.
    void resend();
    /// The thermal mode of the 12-LED ring; see lighting::PlusRing.
    void thermalUpdate();

    /// Takes everything from the settings again and shows it; what was not saved is dropped.
    void reload();

    /// Saves the fitted ring's state. False when it could not be; where the file is missing, missingFile() is
    /// sent and nothing is written.
    bool saveLED();

    /// What is shown over the ring; the values of the supply come with takeReading().
    [[nodiscard]] lighting::OverlayInputs overlay() const { return inputs_; }
    void setOverlayOptions(lighting::GaugeKind gauge, lighting::Palette palette, bool alarmOnRing,
                           bool offWhenLocked);
    /// What the companion program has told of synchronised lights; shown with the Duo set.
    void setSync(bool on, const QString &modeText);
    [[nodiscard]] bool syncOn() const { return sync_.on; }
    [[nodiscard]] const QString &syncModeText() const { return sync_.modeText; }
    /// Once a second, after the latest reading.
    void takeReading();
    void setAlarmHolds(bool holds);
    void sessionEvent(platform::SessionEvent event);

    /// What the LEDs show now: of the single ring 1 colour, of the 12-LED ring 12, of the Duo set 18; the
    /// same as what the device holds, drawn `step` steps of 40 ms on where the device animates it.
    [[nodiscard]] std::vector<lighting::Colour> leds(int step) const;

signals:
    /// A ring was identified.
    void ringChanged();
    /// The state of the fitted ring has changed, or what is shown over it.
    void changed();
    /// The lighting file is gone, so nothing can be saved.
    void missingFile();

private:
    struct Sync {
        bool on = false;
        QString modeText;
    };

    void takeSettings();
    void fit();
    void stateEdited();
    void takeLinkState(psu::LinkState state);
    void applyOverlay();
    void showOverlay();
    void runTimers();
    void listen();
    [[nodiscard]] bool ringIsOff() const;

    Supply &supply_;
    Settings &settings_;
    SupplyLights lights_;
    std::optional<lighting::RingKind> ring_;
    lighting::SingleRing single_{lights_};
    lighting::PlusRing plus_{lights_};
    lighting::DuoState duo_;
    Sync sync_;
    bool unsaved_ = false;
    psu::LinkState linkState_ = psu::LinkState::NoDevice;
    lighting::OverlayInputs inputs_;
    lighting::Overlay overlay_;
    int overlayStep_ = 0;
    QTimer selfBlink_;
    QTimer autoBlink_;
    QTimer overlayTimer_;
    QTimer frameTimer_;      ///< runs while a frame is shown that has to go by itself
    bool streaming_ = false; ///< another program's frame is shown on the single or the 12-LED ring
    Music music_;
    std::unique_ptr<lighting::ZpsCirqDuo_SendCommand> duoThread_; // last: ends before what it uses
};

} // namespace zpsg::app
