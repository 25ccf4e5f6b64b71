// A fan curve on its plot: the line, its points, and where the supply is now.
#pragma once

#include "fan/FanCurve.h"

#include <QPointF>
#include <QString>

#include <qwt_plot_item.h>

#include <optional>
#include <vector>

namespace zpsg::ui {

/// x is degrees Celsius or percent of load, y is percent of the fan's speed.
class FanCurveItem final : public QwtPlotItem {
public:
    FanCurveItem() { setZ(10.0); }

    struct Look {
        std::optional<std::size_t> selected;
        std::optional<std::size_t> hovered;
        QString tag;               ///< beside the selected point; empty: none
        std::optional<double> now; ///< x of the supply
        QString nowTag;
        bool focused = false; ///< the keyboard moves the selected point
        bool driving = false; ///< the curve is switched on
        bool enabled = true;
        qreal scale = 1.0;
    };

    /// In rising order, at least one.
    void setPoints(std::vector<fan::CurvePoint> points) { points_ = std::move(points); }
    void setLook(const Look &look) { look_ = look; }

    void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
              const QRectF &canvas) const override;

private:
    void drawLine(QPainter &painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                  const QRectF &canvas) const;
    void drawNow(QPainter &painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                 const QRectF &canvas) const;
    void drawPoint(QPainter &painter, std::size_t index, const QPointF &at) const;
    void drawTag(QPainter &painter, const QPointF &at, const QRectF &canvas) const;

    std::vector<fan::CurvePoint> points_{{}};
    Look look_;
};

} // namespace zpsg::ui
