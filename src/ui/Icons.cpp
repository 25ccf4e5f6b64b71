#include "ui/Icons.h"

#include <QPainter>
#include <QPainterPath>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace zpsg::ui {
namespace {

// All signs are drawn on a field of 24 by 24.

void paintUnplugged(QPainter &painter) {
    // The plug, its two pins and its cable on the left; the socket on the right.
    painter.drawLine(QPointF(2, 12), QPointF(5, 12));
    QPainterPath plug(QPointF(11, 6.5));
    plug.lineTo(9, 6.5);
    plug.cubicTo(6.5, 6.5, 5, 9, 5, 12);
    plug.cubicTo(5, 15, 6.5, 17.5, 9, 17.5);
    plug.lineTo(11, 17.5);
    plug.closeSubpath();
    painter.drawPath(plug);
    painter.drawLine(QPointF(11, 9.5), QPointF(13.6, 9.5));
    painter.drawLine(QPointF(11, 14.5), QPointF(13.6, 14.5));
    QPainterPath socket(QPointF(16.5, 6.5));
    socket.cubicTo(19.5, 6.5, 20, 9, 20, 12);
    socket.cubicTo(20, 15, 19.5, 17.5, 16.5, 17.5);
    socket.closeSubpath();
    painter.drawPath(socket);
    painter.drawLine(QPointF(20, 12), QPointF(22, 12));
}

void paintLock(QPainter &painter) {
    painter.drawRoundedRect(QRectF(5, 10.5, 14, 10), 2, 2);
    QPainterPath shackle(QPointF(8, 10.5));
    shackle.lineTo(8, 7.5);
    shackle.arcTo(QRectF(8, 3.5, 8, 8), 180, -180);
    shackle.lineTo(16, 10.5);
    painter.drawPath(shackle);
    painter.drawLine(QPointF(12, 14.5), QPointF(12, 16.8));
}

void paintWarning(QPainter &painter) {
    QPainterPath triangle(QPointF(12, 3.5));
    triangle.lineTo(22, 20.5);
    triangle.lineTo(2, 20.5);
    triangle.closeSubpath();
    painter.drawPath(triangle);
    painter.drawLine(QPointF(12, 10), QPointF(12, 14.5));
    painter.drawPoint(QPointF(12, 17.5));
}

void paintGauge(QPainter &painter) {
    // Three quarters of a circle, open below, like the gauges themselves.
    painter.drawArc(QRectF(2.5, 3.5, 19, 19), -45 * 16, 270 * 16);
    painter.drawLine(QPointF(12, 13), QPointF(16, 8.5));
    painter.drawEllipse(QPointF(12, 13), 0.9, 0.9);
}

void paintBell(QPainter &painter) {
    QPainterPath bell(QPointF(4, 17.5));
    bell.cubicTo(5.8, 15.6, 6, 14, 6, 10.5);
    bell.cubicTo(6, 6.6, 8.6, 4, 12, 4);
    bell.cubicTo(15.4, 4, 18, 6.6, 18, 10.5);
    bell.cubicTo(18, 14, 18.2, 15.6, 20, 17.5);
    bell.closeSubpath();
    painter.drawPath(bell);
    painter.drawLine(QPointF(12, 2.2), QPointF(12, 4));
    painter.drawArc(QRectF(9.5, 16.5, 5, 5), 205 * 16, 130 * 16);
}

void paintBars(QPainter &painter) {
    painter.drawLine(QPointF(3, 20.5), QPointF(21, 20.5));
    painter.drawRect(QRectF(4.5, 12, 3.4, 8.5));
    painter.drawRect(QRectF(10.3, 4, 3.4, 16.5));
    painter.drawRect(QRectF(16.1, 8.5, 3.4, 12));
}

void paintRing(QPainter &painter) {
    painter.drawEllipse(QPointF(12, 12), 4.6, 4.6);
    QPen dots = painter.pen();
    dots.setWidthF(1.45 * dots.widthF());
    painter.setPen(dots);
    for (int i = 0; i < 8; ++i) {
        const double angle = i * M_PI_4;
        painter.drawPoint(QPointF(12 + 9.4 * std::sin(angle), 12 - 9.4 * std::cos(angle)));
    }
}

void paintFan(QPainter &painter) {
    painter.translate(12, 12);
    painter.drawEllipse(QPointF(0, 0), 1.7, 1.7);
    QPainterPath blade(QPointF(-1.1, -2.9));
    blade.cubicTo(-3.6, -5.2, -2.4, -9.6, 1.6, -9.6);
    blade.cubicTo(5.2, -9.6, 5.6, -6.2, 3.0, -4.6);
    blade.cubicTo(2.0, -4.0, 1.6, -3.4, 1.4, -2.7);
    for (int i = 0; i < 4; ++i) {
        painter.drawPath(blade);
        painter.rotate(90.0);
    }
}

} // namespace

void paintIcon(QPainter &painter, Icon icon, const QRectF &rect, const QColor &colour) {
    const qreal side = std::min(rect.width(), rect.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rect.center());
    painter.scale(side / 24.0, side / 24.0);
    painter.translate(-12.0, -12.0);
    // A line is at least 1.4 pixels wide however small the sign.
    painter.setPen(
        QPen(colour, std::max(1.8, 1.4 * 24.0 / side), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    switch (icon) {
    case Icon::Dot:
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour);
        painter.drawEllipse(QPointF(12, 12), 7, 7);
        break;
    case Icon::Unplugged:
        paintUnplugged(painter);
        break;
    case Icon::Lock:
        paintLock(painter);
        break;
    case Icon::Warning:
        paintWarning(painter);
        break;
    case Icon::Minimise:
        painter.drawLine(QPointF(4, 12), QPointF(20, 12));
        break;
    case Icon::Close:
        painter.drawLine(QPointF(5, 5), QPointF(19, 19));
        painter.drawLine(QPointF(19, 5), QPointF(5, 19));
        break;
    case Icon::Gauge:
        paintGauge(painter);
        break;
    case Icon::Bell:
        paintBell(painter);
        break;
    case Icon::Bars:
        paintBars(painter);
        break;
    case Icon::Ring:
        paintRing(painter);
        break;
    case Icon::Fan:
        paintFan(painter);
        break;
    case Icon::Tick:
        painter.drawPolyline(QPolygonF({QPointF(3.5, 12.5), QPointF(9.5, 18.5), QPointF(20.5, 6)}));
        break;
    }
    painter.restore();
}

} // namespace zpsg::ui
