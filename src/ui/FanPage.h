// The page of the fan: how fast it turns, its mode, the last hour, and the fan curve.
#pragma once

#include "fan/FanCurve.h"
#include "ui/FanCurveCard.h"

#include <QWidget>

#include <array>
#include <optional>

class QHBoxLayout;
class QLabel;
class QPushButton;

namespace zpsg::ui {

class CustomFanSpeedWidget;
class FanFigures;
class FanModeOpener;
class FanSelector;
class FanTrend;
class popupWidget;

/// What is known of the fan in one second.
struct FanReading {
    std::optional<double> rpm;
    std::optional<double> celsius;     ///< of the supply
    std::optional<double> dutyPercent; ///< of the fan's full speed
    fan::FanMode mode = fan::FanMode::Silent;
    std::optional<double> loadPercent = std::nullopt; ///< output power, of the rated watts
};

class FanPage final : public QWidget {
    Q_OBJECT

public:
    explicit FanPage(QWidget *parent = nullptr);

    /// Whether a supply is there. Without one a mode can be chosen, but no custom speed; the hour and the
    /// curve stay.
    void setReachable(bool reachable);
    /// Which selector is shown: 0 FanSpeedCustomWidget, 1 FanSpeedCustomWidgetPlus, 2 popupWidget behind a
    /// button. Others count as 0.
    void setVariant(int variant);
    /// Whether the model takes a custom speed; at first it does not.
    void setCustomSpeed(bool supported);
    /// Revolutions a minute at 100 %.
    void setFullRpm(float fullRpm);
    /// Without signals.
    void showMode(fan::FanMode mode, int customPercent);
    /// Once a second, also while the page can't be seen; costs little then.
    void takeReading(const FanReading &reading, qint64 msecsSinceEpoch);
    /// Without signals. `hysteresis` in degrees Celsius or percent of load, by the curve's source.
    void showCurve(bool on, const fan::FanCurve &curve, int hysteresis, int minSeconds);
    /// `percent`: the speed that the curve drives, for CurveState::Driving.
    void showCurveState(CurveState state, int percent);

    /// Opens when the user chooses a custom speed.
    [[nodiscard]] CustomFanSpeedWidget *popup() const { return popup_; }
    /// The one that is shown.
    [[nodiscard]] FanSelector *selector() const;
    [[nodiscard]] FanTrend *trend() const { return trend_; }
    [[nodiscard]] FanCurveCard *curveCard() const { return curve_; }

signals:
    /// A selector's returnSelectFunction().
    void modeChosen(const QStringList &indexAndName);
    /// The pop-up's sentFanSpeed().
    void customSpeedChosen(int percent);
    void curveToggled(bool on);
    void curveEdited(const zpsg::fan::FanCurve &curve);
    void curveTuningEdited(int hysteresis, int minSeconds);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void layOut();
    void showHead();
    void connectParts();
    void retranslate();
    void applyScale();
    void showModeText();
    void showCurveCard();
    void choose(const QStringList &indexAndName);

    PageHead *head_;
    Card *stateCard_;
    FanFigures *figures_;
    QLabel *modeCaption_;
    QLabel *modeText_;
    QLabel *modeBy_; ///< that the curve sets the speed
    FanModeOpener *opener_;
    std::array<FanSelector *, 3> selectors_{}; ///< by variant
    FanTrend *trend_;
    FanCurveCard *curve_;
    CustomFanSpeedWidget *popup_;
    popupWidget *small_;
    QHBoxLayout *cards_ = nullptr;
    int variant_ = 0;
    fan::FanMode mode_ = fan::FanMode::Silent;
    int customPercent_ = fan::kFirstPercent;
    std::optional<int> drivenPercent_; ///< while the curve drives
    bool reachable_ = true;
};

} // namespace zpsg::ui
