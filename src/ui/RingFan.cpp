#include "ui/RingFan.h"

#include <QPainter>
#include <QPainterPath>
#include <QtMath>

#include <cmath>

namespace zpsg::ui {
namespace {

constexpr int kBlades = 9;
/// The frame that carries the outer lights.
constexpr qreal kFrameInside = 0.755;
constexpr qreal kOuterLights = 0.878;
/// The front ring and the band that carries it.
constexpr qreal kFrontLights = 0.43;
constexpr qreal kFrontBand = 0.095;
/// Blades end a little before the frame.
constexpr qreal kBladeTip = 0.725;
/// Degrees by which a blade's tip is ahead of its root, and how broad it is there.
constexpr qreal kSweep = 34.0;
constexpr qreal kTipBreadth = 27.0;
constexpr qreal kRootBreadth = 25.0;

struct Inks {
    QColor duct;
    QColor frame;
    QColor frameLow; ///< at the frame's lower edge
    QColor edge;
    QColor bladeLead;
    QColor bladeTrail;
    QColor hub;
    QColor hubLow;
    QColor socket; ///< a light that is off
};

Inks inksOf(FanLook look) {
    if (look == FanLook::Surface) {
        return {QColor(14, 14, 14),    QColor(92, 92, 92),    QColor(70, 70, 70),
                QColor(210, 210, 210), QColor(225, 225, 225), QColor(52, 52, 52),
                QColor(84, 84, 84),    QColor(60, 60, 60),    QColor(40, 40, 40)};
    }
    return {QColor(9, 10, 12),  QColor(43, 47, 52), QColor(27, 30, 34),
            QColor(78, 84, 91), QColor(46, 50, 55), QColor(21, 23, 26),
            QColor(44, 48, 53), QColor(24, 27, 30), QColor(15, 17, 19)};
}

/// Clockwise from the top.
QPointF polar(qreal radius, qreal degrees) {
    const qreal angle = qDegreesToRadians(degrees - 90.0);
    return {radius * std::cos(angle), radius * std::sin(angle)};
}

void paintDisc(QPainter &painter, qreal radius, const QColor &top, const QColor &bottom) {
    QLinearGradient fill(0.0, -radius, 0.0, radius);
    fill.setColorAt(0.0, top);
    fill.setColorAt(1.0, bottom);
    painter.setBrush(fill);
    painter.drawEllipse(QPointF(0.0, 0.0), radius, radius);
}

void paintCircle(QPainter &painter, qreal radius, const QColor &ink, qreal width) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(ink, width));
    painter.drawEllipse(QPointF(0.0, 0.0), radius, radius);
    painter.setPen(Qt::NoPen);
}

void paintBlade(QPainter &painter, qreal root, const Inks &inks) {
    const qreal bend = (root + kBladeTip) / 2.0;
    QPainterPath blade(polar(root, 0.0));
    blade.quadTo(polar(bend, 6.0), polar(kBladeTip, kSweep));
    for (int i = 1; i <= 6; ++i) {
        blade.lineTo(polar(kBladeTip, kSweep + kTipBreadth * i / 6.0));
    }
    blade.quadTo(polar(bend, kRootBreadth + 9.0), polar(root, kRootBreadth));
    blade.closeSubpath();
    QLinearGradient fill(polar(bend, 10.0), polar(bend, kRootBreadth + 12.0));
    fill.setColorAt(0.0, inks.bladeTrail);
    fill.setColorAt(1.0, inks.bladeLead);
    painter.setBrush(fill);
    painter.drawPath(blade);
}

} // namespace

std::vector<LedRing> ringsOf(lighting::RingKind kind) {
    switch (kind) {
    case lighting::RingKind::Single:
        return {{0, 1, kOuterLights}};
    case lighting::RingKind::Plus:
        return {{0, lighting::kPlusLeds, kOuterLights}};
    case lighting::RingKind::Duo:
        break;
    }
    return {{0, lighting::kFrontLeds, kFrontLights},
            {lighting::kFrontLeds, lighting::kMiddleLeds, kOuterLights}};
}

std::size_t ledCountOf(lighting::RingKind kind) {
    const LedRing last = ringsOf(kind).back();
    return last.first + last.count;
}

QPointF ledPlace(const LedRing &ring, std::size_t led) {
    return polar(ring.radius, 360.0 * static_cast<qreal>(led - ring.first) / static_cast<qreal>(ring.count));
}

qreal lampRadius(lighting::RingKind kind) { return kind == lighting::RingKind::Single ? 0.05 : 0.064; }

void paintFan(QPainter &painter, lighting::RingKind kind, FanLook look) {
    const Inks inks = inksOf(look);
    const bool duo = kind == lighting::RingKind::Duo;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    paintDisc(painter, 1.0, inks.frame, inks.frameLow);
    paintDisc(painter, kFrameInside, inks.duct, inks.duct);
    const qreal root = duo ? kFrontLights : kHubRadius * 0.9;
    for (int i = 0; i < kBlades; ++i) {
        painter.save();
        painter.rotate(360.0 * i / kBlades);
        paintBlade(painter, root, inks);
        painter.restore();
    }
    if (duo) {
        paintDisc(painter, kFrontLights + kFrontBand, inks.frame, inks.frameLow);
        paintCircle(painter, kFrontLights + kFrontBand, inks.edge, 0.008);
    }
    paintCircle(painter, 0.994, inks.edge, 0.012);
    paintCircle(painter, kFrameInside, inks.edge, 0.008);
    paintDisc(painter, kHubRadius, inks.hub, inks.hubLow);
    paintCircle(painter, kHubRadius, inks.edge, 0.008);

    const qreal lamp = lampRadius(kind);
    for (const LedRing &ring : ringsOf(kind)) {
        if (ring.count == 1) {
            paintCircle(painter, ring.radius, inks.socket, 2.0 * lamp);
            continue;
        }
        for (std::size_t led = ring.first; led < ring.first + ring.count; ++led) {
            painter.setBrush(inks.socket);
            painter.setPen(QPen(inks.edge, 0.008));
            painter.drawEllipse(ledPlace(ring, led), lamp, lamp);
        }
    }
}

} // namespace zpsg::ui
