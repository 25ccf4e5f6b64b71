#include "ui/FanCurveItem.h"

#include "ui/Figures.h"
#include "ui/Style.h"

#include <QPainter>

#include <qwt_scale_map.h>

#include <algorithm>

namespace zpsg::ui {

namespace colour = style::colour;

void FanCurveItem::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                        const QRectF &canvas) const {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    drawLine(*painter, xMap, yMap, canvas);
    if (look_.now) {
        drawNow(*painter, xMap, yMap, canvas);
    }
    const auto place = [&](std::size_t i) {
        return QPointF(xMap.transform(points_[i].at), yMap.transform(points_[i].percent));
    };
    for (std::size_t i = 0; i < points_.size(); ++i) {
        drawPoint(*painter, i, place(i));
    }
    if (look_.selected && *look_.selected < points_.size() && !look_.tag.isEmpty()) {
        drawTag(*painter, place(*look_.selected), canvas);
    }
    painter->restore();
}

void FanCurveItem::drawLine(QPainter &painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                            const QRectF &canvas) const {
    QPolygonF line;
    line << QPointF(canvas.left(), yMap.transform(points_.front().percent));
    for (const fan::CurvePoint &point : points_) {
        line << QPointF(xMap.transform(point.at), yMap.transform(point.percent));
    }
    line << QPointF(canvas.right(), yMap.transform(points_.back().percent));
    QPolygonF area = line;
    area << canvas.bottomRight() << canvas.bottomLeft();
    const bool bright = look_.driving && look_.enabled;
    QLinearGradient fill(0.0, canvas.top(), 0.0, canvas.bottom());
    fill.setColorAt(0.0, style::tone(bright ? colour::kAccentDeep : colour::kStale, bright ? 0.45 : 0.22));
    fill.setColorAt(1.0, style::tone(bright ? colour::kAccentDeep : colour::kStale, 0.03));
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawPolygon(area);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(style::tone(bright ? colour::kAccent : colour::kTextSecondary), 1.8 * look_.scale,
                        Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(line);
}

void FanCurveItem::drawNow(QPainter &painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                           const QRectF &canvas) const {
    const qreal scale = look_.scale;
    // What lies beyond the plot is shown at its edge.
    const QPointF at(std::clamp(xMap.transform(*look_.now), canvas.left() + scale, canvas.right() - scale),
                     yMap.transform(fan::percentAt(points_, *look_.now)));
    painter.setPen(QPen(style::tone(colour::kGood, 0.75), 1.2 * scale, Qt::DotLine));
    painter.drawLine(QPointF(at.x(), canvas.top()), QPointF(at.x(), canvas.bottom()));
    painter.setPen(Qt::NoPen);
    painter.setBrush(style::tone(colour::kGood, 0.3));
    painter.drawEllipse(at, 7.0 * scale, 7.0 * scale);
    painter.setBrush(style::tone(colour::kGood));
    const qreal reach = 4.0 * scale;
    painter.drawConvexPolygon(
        QPolygonF(QVector<QPointF>{at - QPointF(reach, 0.0), at - QPointF(0.0, reach),
                                   at + QPointF(reach, 0.0), at + QPointF(0.0, reach)}));
    const FigureFont font(style::font(style::type::kSmall * scale, QFont::DemiBold));
    const qreal beside = 5.0 * scale;
    const qreal wide = font.width(look_.nowTag);
    const bool fits = at.x() + beside + wide <= canvas.right();
    painter.setPen(style::tone(colour::kGood));
    font.draw(painter, {fits ? at.x() + beside : at.x() - beside - wide, canvas.bottom() - 5.0 * scale},
              look_.nowTag);
}

void FanCurveItem::drawPoint(QPainter &painter, std::size_t index, const QPointF &at) const {
    const qreal scale = look_.scale;
    const bool selected = look_.selected == index;
    const bool lit = look_.hovered == index;
    const bool bright = look_.driving && look_.enabled;
    const QRgb ink = !look_.enabled ? colour::kStale : bright ? colour::kAccent : colour::kTextSecondary;
    if (selected || lit) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(style::tone(colour::kAccent, lit ? 0.34 : 0.22));
        painter.drawEllipse(at, 11.0 * scale, 11.0 * scale);
    }
    if (selected && look_.focused) {
        painter.setPen(QPen(style::tone(colour::kAccent), 1.6 * scale));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(at, 9.5 * scale, 9.5 * scale);
    }
    painter.setPen(QPen(style::tone(ink), 2.0 * scale));
    painter.setBrush(selected ? style::tone(colour::kText) : QColor(26, 28, 31));
    painter.drawEllipse(at, 5.2 * scale, 5.2 * scale);
}

void FanCurveItem::drawTag(QPainter &painter, const QPointF &at, const QRectF &canvas) const {
    const qreal scale = look_.scale;
    const FigureFont font(style::font(style::type::kLabel * scale, QFont::DemiBold));
    const qreal padding = 7.0 * scale;
    QRectF box(0.0, 0.0, font.width(look_.tag) + 2.0 * padding, font.digitHeight() + 1.6 * padding);
    // Above the point at its left, where the curve never is; below it where that is out of the plot.
    box.moveBottomRight(at + QPointF(-8.0, -8.0) * scale);
    if (box.left() < canvas.left()) {
        box.moveLeft(at.x() - box.width() / 4.0);
        box.moveBottom(at.y() - 15.0 * scale);
    }
    if (box.top() < canvas.top()) {
        box.moveTopRight(at + QPointF(-14.0, 0.0) * scale);
        if (box.left() < canvas.left()) {
            box.moveTopLeft(at + QPointF(14.0, 8.0) * scale);
        }
    }
    box.moveLeft(
        std::clamp(box.left(), canvas.left(), std::max(canvas.left(), canvas.right() - box.width())));
    box.moveTop(std::clamp(box.top(), canvas.top(), std::max(canvas.top(), canvas.bottom() - box.height())));
    painter.setPen(QPen(style::tone(colour::kStale, 0.6), 1.0));
    painter.setBrush(style::tone(colour::kTrack, 0.96));
    painter.drawRoundedRect(box, 5.0 * scale, 5.0 * scale);
    painter.setPen(style::tone(colour::kText));
    font.draw(painter, {box.left() + padding, box.center().y() + font.digitHeight() / 2.0}, look_.tag);
}

} // namespace zpsg::ui
