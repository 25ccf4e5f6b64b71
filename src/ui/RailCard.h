// One output rail: its voltage above all, current and power, and where the voltage stands in its window.
#pragma once

#include "ui/Readout.h"

namespace zpsg::ui {

/// How a rail's voltage stands to its nominal value.
enum class RailState {
    InRange,
    Near, ///< within the last quarter of the window
    Out,  ///< on the window's bound or beyond
};

/// Half the width of the voltage window, as a share of the nominal voltage.
inline constexpr double kRailWindow = 0.06;

[[nodiscard]] RailState judgeRail(double volts, double nominal);

class RailCard : public Readout {
    Q_OBJECT

public:
    /// `name` as it is printed on the supply's label ("+3.3 V"); not translated.
    RailCard(const QString &name, double nominalVolts, QWidget *parent = nullptr);

    void showReading(double volts, double amps);
    void clear();
    void setStale(bool stale);

    [[nodiscard]] QString voltsText() const { return volts_; }
    [[nodiscard]] QString ampsText() const { return amps_; }
    [[nodiscard]] QString wattsText() const { return watts_; }
    /// Deviation from nominal, or the word for a voltage near or out of the window, with its sign.
    [[nodiscard]] QString markText() const;

    [[nodiscard]] QString readoutText() const override;
    [[nodiscard]] std::optional<double> readoutValue() const override { return value_; }
    [[nodiscard]] std::pair<double, double> readoutRange() const override {
        return {nominal_ * (1.0 - kRailWindow), nominal_ * (1.0 + kRailWindow)};
    }

    [[nodiscard]] QSize sizeHint() const override { return {212, 168}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {168, 132}; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    struct Metrics;
    void paintHeader(QPainter &painter, const Metrics &metrics) const;
    void paintFigures(QPainter &painter, const Metrics &metrics) const;
    void paintWindowBar(QPainter &painter, const Metrics &metrics) const;
    [[nodiscard]] RailState state() const {
        return value_ ? judgeRail(*value_, nominal_) : RailState::InRange;
    }
    [[nodiscard]] bool current() const { return value_ && !stale_ && isEnabled(); }
    [[nodiscard]] QColor stateColour() const;

    QString name_;
    double nominal_;
    std::optional<double> value_;
    QString volts_;
    QString amps_;
    QString watts_;
    bool stale_ = false;
};

} // namespace zpsg::ui
