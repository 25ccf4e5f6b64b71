// The curves of one quantity on the day's plot, and the mark at what is pointed at.
#pragma once

#include "ui/HistoryMinutes.h"
#include "ui/HistoryTag.h"

#include <QPixmap>

#include <qwt_plot_item.h>

namespace zpsg::ui {

/// x is seconds of the day; y is the plotted value. What it has drawn it keeps, and draws from that until the
/// curves, the axes or the size change: a mark that moves over them costs nothing.
class HistoryLines : public QwtPlotItem {
public:
    /// `minutes` has to outlive the item.
    explicit HistoryLines(const HistoryMinutes &minutes) : minutes_(minutes) { setZ(10.0); }

    void setQuantity(HistoryQuantity quantity) { quantity_ = quantity; }
    /// How much larger than usual lines are.
    void setScale(qreal scale) { scale_ = scale; }
    /// To be called when the minutes, the quantity or the scale are others.
    void changed() { drawn_ = {}; }

    void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
              const QRectF &canvas) const override;

private:
    void drawCurve(QPainter &painter, HistoryCurve curve, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                   qreal ratio) const;
    void drawMarks(QPainter &painter, HistoryCurve curve, const QwtScaleMap &xMap,
                   const QwtScaleMap &yMap) const;

    const HistoryMinutes &minutes_;
    HistoryQuantity quantity_ = HistoryQuantity::Power;
    qreal scale_ = 1.0;
    mutable QPixmap drawn_;
    mutable std::array<double, 8> drawnFor_{}; ///< the canvas and the maps
};

/// A line at the row that is pointed at, a mark on each curve there, and the tag.
class HistoryCursor : public QwtPlotItem {
public:
    struct Spot {
        HistoryQuantity quantity;
        int axis; ///< of the plot
        double plotted;
    };

    HistoryCursor() { setZ(20.0); }

    void setSpots(double seconds, const std::vector<Spot> &spots, const HistoryTag &tag);
    void clear() { setSpots(0.0, {}, {}); }
    void setScale(qreal scale) { scale_ = scale; }

    void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
              const QRectF &canvas) const override;

private:
    double seconds_ = 0.0;
    std::vector<Spot> spots_; ///< empty: nothing is pointed at
    HistoryTag tag_;
    qreal scale_ = 1.0;
};

} // namespace zpsg::ui
