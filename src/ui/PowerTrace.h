// The output power of the last five minutes on a card.
#pragma once

#include "ui/Readout.h"
#include "ui/TraceBuffer.h"

class QLabel;
class QwtPlot;

namespace zpsg::ui {

class TraceCurve;

/// To be fed once a second, with nothing when there was no reading. Plots only while it is visible.
class PowerTrace : public Readout {
    Q_OBJECT

public:
    explicit PowerTrace(QWidget *parent = nullptr);

    void append(qint64 msSinceEpoch, std::optional<double> watts);
    void clear();

    [[nodiscard]] const TraceBuffer &buffer() const { return buffer_; }
    /// Upper end of the watts axis.
    [[nodiscard]] double top() const { return top_; }

    /// Peak and average of what is shown; empty without a reading.
    [[nodiscard]] QString summaryText() const;
    [[nodiscard]] QString readoutText() const override { return summaryText(); }
    [[nodiscard]] std::optional<double> readoutValue() const override;
    [[nodiscard]] std::pair<double, double> readoutRange() const override { return {0.0, top_}; }

    [[nodiscard]] QSize sizeHint() const override { return {600, 210}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {320, 124}; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void setUpPlot();
    void retranslate();
    void replot();
    void scaleAxes();

    TraceBuffer buffer_;
    QwtPlot *plot_;
    TraceCurve *curve_; ///< owned by the plot
    QLabel *empty_;     ///< in the plot's place while there is nothing to plot
    double top_ = 0.0;
};

} // namespace zpsg::ui
