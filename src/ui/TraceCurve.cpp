#include "ui/TraceCurve.h"

#include "ui/Figures.h"
#include "ui/Style.h"

#include <QPainter>

#include <qwt_scale_map.h>

#include <algorithm>

namespace zpsg::ui {

namespace colour = style::colour;

TraceCurve::TraceCurve() { setZ(10.0); }

void TraceCurve::setPresent(std::optional<double> value, const QString &text) {
    present_ = value;
    presentText_ = text;
}

void TraceCurve::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                      const QRectF &canvas) const {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QRgb line = muted_ ? colour::kStale : colour::kAccent;
    const qreal ground = yMap.transform(0.0);
    QLinearGradient fill(0.0, canvas.top(), 0.0, ground);
    fill.setColorAt(0.0, style::tone(muted_ ? line : colour::kAccentDeep, 0.55));
    fill.setColorAt(1.0, style::tone(muted_ ? line : colour::kAccentDeep, 0.04));

    for (const auto &stretch : stretches_) {
        QPolygonF points;
        points.reserve(static_cast<int>(stretch.size()) + 2);
        for (const TraceBuffer::Point &point : stretch) {
            points << QPointF(xMap.transform(-point.secondsAgo), yMap.transform(point.value));
        }
        if (points.size() == 1) {
            // A reading between two gaps still is one.
            points << points.constFirst() + QPointF(1.0, 0.0);
        }
        QPolygonF area = points;
        area << QPointF(points.constLast().x(), ground) << QPointF(points.constFirst().x(), ground);
        painter->setPen(Qt::NoPen);
        painter->setBrush(fill);
        painter->drawPolygon(area);
        painter->setPen(QPen(style::tone(line), 1.6 * scale_, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->setBrush(Qt::NoBrush);
        painter->drawPolyline(points);
    }
    if (present_) {
        drawPresent(*painter, {xMap.transform(0.0), yMap.transform(*present_)}, canvas);
    }
    painter->restore();
}

void TraceCurve::drawPresent(QPainter &painter, const QPointF &at, const QRectF &canvas) const {
    const FigureFont font(style::font(style::type::kLabel * scale_, QFont::DemiBold));
    painter.setPen(Qt::NoPen);
    painter.setBrush(style::tone(colour::kAccent, 0.25));
    painter.drawEllipse(at, 7.0 * scale_, 7.0 * scale_);
    painter.setBrush(style::tone(colour::kText));
    painter.drawEllipse(at, 3.0 * scale_, 3.0 * scale_);
    painter.setPen(style::tone(colour::kText));
    const qreal base = std::clamp(at.y() + font.digitHeight() / 2.0, canvas.top() + font.digitHeight() + 1.0,
                                  canvas.bottom() - 2.0);
    font.draw(painter, {at.x() + 12.0 * scale_, base}, presentText_);
}

} // namespace zpsg::ui
