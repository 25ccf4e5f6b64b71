// An efficiency curve on the plot, with the rated load and the point that the supply works at.
#pragma once

#include <QPointF>
#include <QString>

#include <qwt_plot_item.h>

#include <optional>
#include <vector>

namespace zpsg::ui {

/// x is output power in watts, y is percent.
class EfficiencyCurve : public QwtPlotItem {
public:
    EfficiencyCurve() { setZ(10.0); }

    /// Points of the curve, in the order of their power.
    void setPoints(std::vector<QPointF> points) { points_ = std::move(points); }
    /// The rated load, watts, and the words at its mark; nothing: no mark.
    void setRated(std::optional<double> watts, const QString &words);
    /// The load of the best efficiency.
    void setBest(std::optional<QPointF> best) { best_ = best; }
    /// Watts and percent now, and the text of its tag.
    void setPresent(std::optional<QPointF> present, const QString &text);
    /// How much larger than usual lines, marks and texts are.
    void setScale(qreal scale) { scale_ = scale; }
    /// Neither the curve nor the point is current.
    void setMuted(bool muted) { muted_ = muted; }
    /// The point is an old one.
    void setStale(bool stale) { stale_ = stale; }

    void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
              const QRectF &canvas) const override;

private:
    void drawCurve(QPainter &painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                   const QRectF &canvas) const;
    void drawRated(QPainter &painter, qreal x, const QRectF &canvas) const;
    void drawPresent(QPainter &painter, const QPointF &at, const QRectF &canvas) const;

    std::vector<QPointF> points_;
    std::optional<double> rated_;
    QString ratedWords_;
    std::optional<QPointF> best_;
    std::optional<QPointF> present_;
    QString presentText_;
    qreal scale_ = 1.0;
    bool muted_ = false;
    bool stale_ = false;
};

} // namespace zpsg::ui
