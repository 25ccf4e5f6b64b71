// Today's output power on a card: a bar for every four minutes, from six in the morning on.
#pragma once

#include "ui/TrendView.h"

#include <vector>

namespace zpsg::ui {

class DayBars;

/// When a bucket of the day begins and ends, "06:00–06:04". The buckets are those of power::bucketOf().
[[nodiscard]] QString bucketSpan(int bucket);

/// All that is shown is of one calendar day, so the hours before six in the morning stand right of midnight.
class DayView final : public TrendView {
    Q_OBJECT

public:
    explicit DayView(QWidget *parent = nullptr);

    /// `bucketWatts`: average output power of each of the power::kDayBuckets buckets, 0 where nothing was
    /// recorded. `usageMinutes`: how long the PC has been on today. `bucketNow`: the bucket that is being
    /// filled; outside 0 to 359 no mark is shown.
    void showDay(const std::vector<float> &bucketWatts, int usageMinutes, int bucketNow);

    [[nodiscard]] QString captionText() const override;
    /// Average over the buckets that hold something, the highest of them, and the time of use.
    [[nodiscard]] QString summaryText() const override;
    /// What the tag at the bar under the mouse says; empty when there is none.
    [[nodiscard]] QString pointedText() const;
    /// The average.
    [[nodiscard]] std::optional<double> readoutValue() const override;
    [[nodiscard]] std::pair<double, double> readoutRange() const override { return {0.0, top_}; }

protected:
    void retranslate() override;
    void replot() override;
    void layOut(qreal scale) override;
    bool event(QEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void point(std::optional<int> bucket);

    std::vector<float> watts_;
    std::optional<double> average_; ///< nothing while no bucket holds anything
    double peak_ = 0.0;
    int usageMinutes_ = 0;
    std::optional<int> now_;
    std::optional<int> pointed_; ///< the bucket under the mouse
    double top_;
    DayBars *bars_; ///< owned by the plot
};

} // namespace zpsg::ui
