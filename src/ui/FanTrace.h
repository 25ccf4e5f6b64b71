// What is drawn on the plot of the fan's last hour.
#pragma once

#include "ui/FanHour.h"
#include "ui/HistoryQuantity.h"
#include "ui/HistoryTag.h"

#include <qwt_plot_item.h>

namespace zpsg::ui {

/// Height of the strip below the curves that tells the modes, in a window of the usual size.
inline constexpr double kModeStrip = 15.0;

/// A line that breaks where there was no reading. x is seconds, 0 for now and negative before.
class FanTrace final : public QwtPlotItem {
public:
    explicit FanTrace(HistoryQuantity quantity) : quantity_(quantity) { setZ(10.0); }

    void setStretches(std::vector<FanStretch> stretches) { stretches_ = std::move(stretches); }
    /// When the fan stood still, and the word for it; where there is room it stands there.
    void setStops(std::vector<FanSpan> stops, const QString &word);
    void setScale(qreal scale) { scale_ = scale; }

    void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
              const QRectF &canvas) const override;

private:
    void drawMarks(QPainter &painter, const FanStretch &stretch, const QwtScaleMap &xMap,
                   const QwtScaleMap &yMap) const;

    HistoryQuantity quantity_;
    std::vector<FanStretch> stretches_;
    std::vector<FanSpan> stops_;
    QString stopWord_;
    qreal scale_ = 1.0;
};

/// The strip along the bottom: which mode was set when.
class FanModeStrip final : public QwtPlotItem {
public:
    FanModeStrip() { setZ(5.0); }

    void setSpans(std::vector<FanModeSpan> spans) { spans_ = std::move(spans); }
    void setScale(qreal scale) { scale_ = scale; }

    void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
              const QRectF &canvas) const override;

private:
    std::vector<FanModeSpan> spans_;
    qreal scale_ = 1.0;
};

/// A line at what is pointed at, with its tag.
class FanPointer final : public QwtPlotItem {
public:
    FanPointer() { setZ(20.0); }

    void point(double seconds, const HistoryTag &tag);
    void clear() { tag_ = {}; }
    void setScale(qreal scale) { scale_ = scale; }

    void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
              const QRectF &canvas) const override;

private:
    double seconds_ = 0.0;
    HistoryTag tag_; ///< without a title: nothing is pointed at
    qreal scale_ = 1.0;
};

} // namespace zpsg::ui
