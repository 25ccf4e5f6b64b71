// How efficiently the supply works now, on the curve of its model, and what it takes from the wall for it.
#pragma once

#include "ui/TrendView.h"

#include <array>
#include <vector>

class QPointF;

namespace zpsg::ui {

class EfficiencyCurve;

class EfficiencyView final : public TrendView {
    Q_OBJECT

public:
    explicit EfficiencyView(QWidget *parent = nullptr);

    /// `percentPerTenWatts`: the entry i covers 10*i to 10*i + 10 watts of output power; empty: the model has
    /// no curve. `ratedWatts`: marked on the axis unless it is 0 or less, or beyond the curve's end.
    /// `band230`: the curve is that for 230 volts, else for 115.
    void setCurve(const std::vector<float> &percentPerTenWatts, double ratedWatts, bool band230);
    /// Where the supply works now; the last ones are not stale any more. An efficiency is shown as it is
    /// given, whether it is on the curve or not.
    void showPoint(std::optional<double> outputWatts, std::optional<double> efficiencyPercent);
    /// Stale figures were good and may no longer be true: shown in grey.
    void setStale(bool stale);

    /// Percent, watts from the wall, and watts of heat as shown, each with its unit; an en dash for what is
    /// not known.
    [[nodiscard]] std::array<QString, 3> figureTexts() const;
    /// The axis of percent starts here; the curve is cut off below.
    [[nodiscard]] double bottom() const { return bottom_; }

    [[nodiscard]] QString captionText() const override;
    /// The best efficiency of the curve and the load for it.
    [[nodiscard]] QString summaryText() const override;
    [[nodiscard]] QString readoutText() const override;
    [[nodiscard]] std::optional<double> readoutValue() const override { return percent_; }
    [[nodiscard]] std::pair<double, double> readoutRange() const override { return {0.0, 100.0}; }

    [[nodiscard]] QSize minimumSizeHint() const override { return {480, 112}; }

protected:
    void retranslate() override;
    void replot() override;
    void layOut(qreal scale) override;
    [[nodiscard]] QRect plotPlace(const QRect &room) const override;
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QRect figuresPlace() const;
    [[nodiscard]] double curveEnd() const;
    [[nodiscard]] std::optional<QPointF> best() const;
    void updateFigures();
    void scaleAxes();
    qreal paintRow(QPainter &painter, const QRectF &row, const QString &label, const QString &figure) const;

    std::vector<float> percents_;
    double ratedWatts_ = 0.0;
    bool band230_ = true;
    std::optional<double> watts_;
    std::optional<double> percent_;
    bool stale_ = false;
    double bottom_;
    EfficiencyCurve *curve_; ///< owned by the plot
};

} // namespace zpsg::ui
