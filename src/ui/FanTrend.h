// The fan's last hour: its speed, the supply's temperature, and the modes.
#pragma once

#include "ui/FanHour.h"
#include "ui/HistoryQuantity.h"
#include "ui/TrendView.h"

namespace zpsg::ui {

class FanModeStrip;
class FanPointer;
class FanTrace;

class FanTrend final : public TrendView {
    Q_OBJECT

public:
    explicit FanTrend(QWidget *parent = nullptr);

    /// Once a second; costs next to nothing while the view can't be seen, and little while nothing moves by a
    /// pixel.
    void take(const FanSample &sample);
    [[nodiscard]] const FanHour &hour() const { return hour_; }

    [[nodiscard]] QString captionText() const override;
    /// Empty: the legend stands there.
    [[nodiscard]] QString summaryText() const override { return {}; }
    /// The least and the greatest speed and temperature of the hour.
    [[nodiscard]] QString readoutText() const override;
    [[nodiscard]] std::optional<double> readoutValue() const override;
    [[nodiscard]] std::pair<double, double> readoutRange() const override;

    [[nodiscard]] QSize minimumSizeHint() const override { return {300, 150}; }

protected:
    void retranslate() override;
    void replot() override;
    void layOut(qreal scale) override;
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    /// A pixel of the plot, milliseconds.
    [[nodiscard]] std::int64_t columnMs() const;
    void plotAxis(int axis, HistoryQuantity quantity, float FanSample::*value);
    void pointAt(std::optional<double> seconds);

    FanHour hour_;
    FanTrace *speed_; ///< these are owned by the plot
    FanTrace *temperature_;
    FanModeStrip *modes_;
    FanPointer *pointer_;
    std::int64_t drawnMs_ = 0;
    std::optional<double> pointed_; ///< seconds, 0 or less
};

} // namespace zpsg::ui
