// The fan: its mode, a custom speed, and the curve that the program can drive.
#pragma once

#include "app/Settings.h"
#include "app/Supply.h"
#include "fan/FanGovernor.h"

#include <QObject>

namespace zpsg::app {

/// GUI thread only. What it is given outlives it.
class FanControl : public QObject {
    Q_OBJECT

public:
    FanControl(Supply &supply, Settings &settings, QObject *parent = nullptr);
    /// Gives the fan back to the mode that was chosen.
    ~FanControl() override;

    /// The fitted fan: 0 dashboard, 1 the ring of 12 LEDs, 2 the Duo set.
    [[nodiscard]] int variant() const;
    /// The model takes a custom speed, and so a curve.
    [[nodiscard]] bool takesCustomSpeed() const { return supply_.profile().customFanSpeed; }
    [[nodiscard]] fan::FanMode mode() const { return mode_; }
    [[nodiscard]] int customPercent() const { return percent_; }
    /// The user has chosen Zero Fan since the program started, or it was restored.
    [[nodiscard]] bool zeroFan() const { return mode_ == fan::FanMode::ZeroFan; }

    /// Selects the mode whose number is the first of `chosen`; Silent when that is none. Custom asks for a
    /// speed and sends nothing. Kept also without a supply.
    void selectMode(const QStringList &chosen);
    /// The same for the two fans with addressable lights.
    void selectLightingFanMode(const QStringList &chosen);
    /// Sets a speed, percent (clamped). Without a supply nothing is sent and nothing kept, so that the kept
    /// speed always is one that has reached it. False then.
    bool controlableFanSpeed(int percent);
    /// Takes everything from the settings again, and sends it.
    void reload();
    /// Sends the chosen mode or speed again, as after a reconnect; nothing while none was chosen.
    void resend();

    // The curve.
    [[nodiscard]] bool curveOn() const { return curveOn_; }
    [[nodiscard]] const fan::FanCurve &curve() const { return curve_; }
    [[nodiscard]] fan::GovernorTuning tuning() const { return tuning_; }
    void setCurveOn(bool on);
    void setCurve(const fan::FanCurve &curve);
    void setTuning(fan::GovernorTuning tuning);
    /// What the governor did last; nothing while the curve is off or no supply is connected.
    [[nodiscard]] std::optional<fan::FanGovernor::Decision> driven() const { return driven_; }

    /// Once a second, after the latest reading.
    void tick(std::chrono::steady_clock::time_point now);
    /// Whether a fan that stands is as it should be: Zero Fan is chosen and it is not too hot for that.
    [[nodiscard]] bool mayStand() const;

signals:
    /// The mode, the speed or the curve has changed.
    void changed();
    /// Custom was chosen: a speed has to be asked for.
    void speedWanted();

private:
    void takeSettings();
    void restore();
    void takeProfile();
    void choose(int index);
    void sendMode(fan::FanMode mode);
    void sendSpeed(int percent);
    void sendChosen();
    void stepBack();
    [[nodiscard]] bool linkUp() const { return supply_.monitor().mainPathPresent(); }

    Supply &supply_;
    Settings &settings_;
    fan::FanMode mode_ = fan::FanMode::Silent;
    bool chosen_ = false; ///< a mode has been chosen, now or in an earlier run
    int percent_ = fan::kFirstPercent;
    bool speedApplied_ = false; ///< Custom was not only chosen: the supply has been given the speed
    int restoredVariant_ = -1;
    bool curveOn_ = false;
    fan::FanCurve curve_;
    fan::GovernorTuning tuning_;
    fan::FanGovernor governor_;
    std::optional<fan::FanGovernor::Decision> driven_;
};

} // namespace zpsg::app
