// The output power of the last five minutes on a card.
#pragma once

#include "ui/TraceBuffer.h"
#include "ui/TrendView.h"

namespace zpsg::ui {

class TraceCurve;

/// To be fed once a second, with nothing when there was no reading.
class PowerTrace final : public TrendView {
    Q_OBJECT

public:
    explicit PowerTrace(QWidget *parent = nullptr);

    void append(qint64 msSinceEpoch, std::optional<double> watts);
    void clear();

    [[nodiscard]] const TraceBuffer &buffer() const { return buffer_; }
    /// Upper end of the watts axis.
    [[nodiscard]] double top() const { return top_; }

    [[nodiscard]] QString captionText() const override;
    /// Peak and average of what is shown; empty without a reading.
    [[nodiscard]] QString summaryText() const override;
    [[nodiscard]] std::optional<double> readoutValue() const override;
    [[nodiscard]] std::pair<double, double> readoutRange() const override { return {0.0, top_}; }

protected:
    void retranslate() override;
    void replot() override;
    void layOut(qreal scale) override;

private:
    void scaleAxes();

    TraceBuffer buffer_;
    TraceCurve *curve_; ///< owned by the plot
    double top_;
};

} // namespace zpsg::ui
