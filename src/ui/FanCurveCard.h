// The card of the fan curve: its switch, what it goes by, the curve itself, and how calmly it is driven.
#pragma once

#include "fan/FanCurve.h"
#include "ui/Controls.h"

class QHBoxLayout;
class QPushButton;

namespace zpsg::ui {

class FanCurveEditor;
class FanNumberEntry;
class SegmentedControl;
class ToggleSwitch;

/// What becomes of the curve now.
enum class CurveState { Off, Driving, TooHot, NoReading, NotConnected };

class FanCurveCard final : public Card {
    Q_OBJECT

public:
    explicit FanCurveCard(QWidget *parent = nullptr);

    /// Whether the supply takes a custom speed, and is there at all: without, a sentence stands in the card.
    void setUsable(bool customSpeed, bool reachable);
    /// Without signals. `hysteresis` in degrees Celsius or percent, by the source.
    void showCurve(bool on, const fan::FanCurve &curve, int hysteresis, int minSeconds);
    /// `percent`: what is driven, for CurveState::Driving.
    void showState(CurveState state, int percent);
    [[nodiscard]] FanCurveEditor *editor() const { return editor_; }

    void retranslate();
    void applyScale(qreal scale);

signals:
    void toggled(bool on);
    void edited(const zpsg::fan::FanCurve &curve);
    void tuningEdited(int hysteresis, int minSeconds);

private:
    void layOut();
    void showUnits();
    void showText();

    QLabel *caption_;
    QLabel *stateText_;
    ToggleSwitch *switch_;
    QWidget *body_;
    SegmentedControl *source_;
    QPushButton *add_;
    QPushButton *remove_;
    FanCurveEditor *editor_;
    QLabel *hysteresisCaption_;
    FanNumberEntry *hysteresis_;
    QLabel *secondsCaption_;
    FanNumberEntry *seconds_;
    QLabel *note_;
    QWidget *instead_; ///< stands in the body's place
    QWidget *sign_;
    QLabel *sentence_;
    QHBoxLayout *tuning_ = nullptr;
    QHBoxLayout *tools_ = nullptr;
    CurveState state_ = CurveState::Off;
    int percent_ = 0;
    bool customSpeed_ = false;
    bool reachable_ = true;
};

} // namespace zpsg::ui
