#include "ui/EfficiencyCurve.h"

#include "ui/Figures.h"
#include "ui/Style.h"

#include <QPainter>

#include <qwt_scale_map.h>

#include <algorithm>
#include <cmath>

namespace zpsg::ui {

namespace colour = style::colour;

void EfficiencyCurve::setRated(std::optional<double> watts, const QString &words) {
    rated_ = watts;
    ratedWords_ = words;
}

void EfficiencyCurve::setPresent(std::optional<QPointF> present, const QString &text) {
    present_ = present;
    presentText_ = text;
}

void EfficiencyCurve::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                           const QRectF &canvas) const {
    if (points_.empty()) {
        return;
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (rated_) {
        drawRated(*painter, xMap.transform(*rated_), canvas);
    }
    drawCurve(*painter, xMap, yMap, canvas);
    if (present_) {
        // What lies beyond the plot is shown at its edge.
        const QPointF at(std::clamp(xMap.transform(present_->x()), canvas.left(), canvas.right()),
                         std::clamp(yMap.transform(present_->y()), canvas.top(), canvas.bottom()));
        drawPresent(*painter, at, canvas);
    }
    painter->restore();
}

void EfficiencyCurve::drawCurve(QPainter &painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                                const QRectF &canvas) const {
    QPolygonF line;
    line.reserve(static_cast<int>(points_.size()) + 2);
    for (const QPointF &point : points_) {
        line << QPointF(xMap.transform(point.x()), yMap.transform(point.y()));
    }
    const QRgb deep = muted_ ? colour::kStale : colour::kAccentDeep;
    QLinearGradient fill(0.0, canvas.top(), 0.0, canvas.bottom());
    fill.setColorAt(0.0, style::tone(deep, 0.40));
    fill.setColorAt(1.0, style::tone(deep, 0.03));
    painter.save();
    // Low loads go below the axis.
    painter.setClipRect(canvas, Qt::IntersectClip);
    QPolygonF area = line;
    area << QPointF(line.constLast().x(), canvas.bottom() + 1.0)
         << QPointF(line.constFirst().x(), canvas.bottom() + 1.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawPolygon(area);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(style::tone(muted_ ? colour::kStale : colour::kAccent), 1.6 * scale_, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(line);
    painter.restore();
    if (best_) {
        const QPointF at(xMap.transform(best_->x()), yMap.transform(best_->y()));
        const qreal reach = 4.5 * scale_;
        painter.setBrush(style::tone(colour::kTrack));
        painter.setPen(QPen(style::tone(muted_ ? colour::kStale : colour::kAccent), 1.5 * scale_));
        painter.drawConvexPolygon(
            QPolygonF(QVector<QPointF>{at - QPointF(reach, 0.0), at - QPointF(0.0, reach),
                                       at + QPointF(reach, 0.0), at + QPointF(0.0, reach)}));
    }
}

void EfficiencyCurve::drawRated(QPainter &painter, qreal x, const QRectF &canvas) const {
    const qreal column = std::floor(x) + 0.5;
    painter.setPen(QPen(style::tone(colour::kTextTertiary), 1.0, Qt::DashLine));
    painter.drawLine(QPointF(column, canvas.top()), QPointF(column, canvas.bottom()));
    const FigureFont font(style::font(style::type::kSmall * scale_));
    painter.setPen(style::tone(colour::kTextSecondary));
    const qreal beside = 6.0 * scale_;
    const qreal wide = font.width(ratedWords_);
    const bool fits = column + beside + wide <= canvas.right();
    font.draw(painter, {fits ? column + beside : column - beside - wide, canvas.bottom() - beside},
              ratedWords_);
}

void EfficiencyCurve::drawPresent(QPainter &painter, const QPointF &at, const QRectF &canvas) const {
    const bool current = !muted_ && !stale_;
    painter.setPen(QPen(style::tone(current ? colour::kText : colour::kStale, 0.5), 1.0, Qt::DotLine));
    painter.drawLine(QPointF(at.x(), at.y()), QPointF(at.x(), canvas.bottom()));
    painter.setPen(Qt::NoPen);
    painter.setBrush(style::tone(current ? colour::kAccent : colour::kStale, 0.28));
    painter.drawEllipse(at, 8.0 * scale_, 8.0 * scale_);
    painter.setBrush(style::tone(current ? colour::kText : colour::kStale));
    painter.drawEllipse(at, 3.5 * scale_, 3.5 * scale_);

    // Below the curve, where nothing else is.
    const FigureFont font(style::font(style::type::kLabel * scale_, QFont::DemiBold));
    painter.setPen(style::tone(current ? colour::kText : colour::kStale));
    const qreal beside = 8.0 * scale_;
    const qreal wide = font.width(presentText_);
    const bool fits = at.x() + beside + wide <= canvas.right();
    const qreal base = std::min(at.y() + beside + 2.0 * font.digitHeight(), canvas.bottom() - 3.0 * beside);
    font.draw(painter, {fits ? at.x() + beside : at.x() - beside - wide, base}, presentText_);
}

} // namespace zpsg::ui
