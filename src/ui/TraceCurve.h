// The trace on the plot: a filled line that breaks where there was no reading, and a mark at the present
// value.
#pragma once

#include "ui/TraceBuffer.h"

#include <qwt_plot_item.h>

namespace zpsg::ui {

/// Draws stretches of points whose x is in seconds, 0 for now and negative before.
class TraceCurve : public QwtPlotItem {
public:
    TraceCurve();

    void setStretches(std::vector<std::vector<TraceBuffer::Point>> stretches) {
        stretches_ = std::move(stretches);
    }
    /// The value now, and the text of its tag; nothing when there is none.
    void setPresent(std::optional<double> value, const QString &text);
    /// How much larger than usual the line, the mark and its tag are.
    void setScale(qreal scale) { scale_ = scale; }
    void setMuted(bool muted) { muted_ = muted; }

    void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
              const QRectF &canvas) const override;

private:
    void drawPresent(QPainter &painter, const QPointF &at, const QRectF &canvas) const;

    std::vector<std::vector<TraceBuffer::Point>> stretches_;
    std::optional<double> present_;
    QString presentText_;
    qreal scale_ = 1.0;
    bool muted_ = false;
};

} // namespace zpsg::ui
