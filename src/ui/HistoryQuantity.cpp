#include "ui/HistoryQuantity.h"

#include "ui/Figures.h"
#include "ui/Temperature.h"

#include <QPainter>

#include <algorithm>

namespace zpsg::ui {
namespace {

/// Of a rail's curves; 0 for everything else.
double nominalOf(HistoryCurve curve) {
    switch (curve) {
    case HistoryCurve::Volts12:
        return 12.0;
    case HistoryCurve::Volts5:
        return 5.0;
    case HistoryCurve::Volts33:
        return 3.3;
    default:
        return 0.0;
    }
}

int decimalsOf(HistoryCurve curve) {
    switch (curve) {
    case HistoryCurve::Volts12:
    case HistoryCurve::Volts5:
        return 2;
    case HistoryCurve::Volts33:
        return 3;
    case HistoryCurve::Amps12:
    case HistoryCurve::Amps5:
    case HistoryCurve::Amps33:
    case HistoryCurve::Celsius:
    case HistoryCurve::Efficiency:
        return 1;
    case HistoryCurve::Watts:
    case HistoryCurve::Rpm:
        break;
    }
    return 0;
}

} // namespace

std::vector<HistoryCurve> curvesOf(HistoryQuantity quantity) {
    switch (quantity) {
    case HistoryQuantity::Power:
        return {HistoryCurve::Watts};
    case HistoryQuantity::Rails:
        return {HistoryCurve::Volts12, HistoryCurve::Volts5, HistoryCurve::Volts33};
    case HistoryQuantity::Currents:
        return {HistoryCurve::Amps12, HistoryCurve::Amps5, HistoryCurve::Amps33};
    case HistoryQuantity::Temperature:
        return {HistoryCurve::Celsius};
    case HistoryQuantity::Fan:
        return {HistoryCurve::Rpm};
    case HistoryQuantity::Efficiency:
        break;
    }
    return {HistoryCurve::Efficiency};
}

QString nameOf(HistoryQuantity quantity) {
    switch (quantity) {
    case HistoryQuantity::Power:
        return qtTrId("HISTORY_POWER");
    case HistoryQuantity::Rails:
        return qtTrId("HISTORY_RAILS");
    case HistoryQuantity::Currents:
        return qtTrId("HISTORY_CURRENTS");
    case HistoryQuantity::Temperature:
        return qtTrId("HISTORY_TEMPERATURE");
    case HistoryQuantity::Fan:
        return qtTrId("HISTORY_FAN");
    case HistoryQuantity::Efficiency:
        break;
    }
    return qtTrId("HISTORY_EFFICIENCY");
}

QString unitOf(HistoryQuantity quantity) {
    switch (quantity) {
    case HistoryQuantity::Power:
        return QStringLiteral("W");
    case HistoryQuantity::Rails:
        return QStringLiteral("V");
    case HistoryQuantity::Currents:
        return QStringLiteral("A");
    case HistoryQuantity::Temperature:
        return degreeUnit();
    case HistoryQuantity::Fan:
        return qtTrId("FAN_RPM");
    case HistoryQuantity::Efficiency:
        break;
    }
    return QStringLiteral("%");
}

QString nameOf(HistoryQuantity quantity, HistoryCurve curve) {
    switch (curve) {
    case HistoryCurve::Volts12:
    case HistoryCurve::Amps12:
        return QStringLiteral("+12 V");
    case HistoryCurve::Volts5:
    case HistoryCurve::Amps5:
        return QStringLiteral("+5 V");
    case HistoryCurve::Volts33:
    case HistoryCurve::Amps33:
        return QStringLiteral("+3.3 V");
    default:
        return nameOf(quantity);
    }
}

QString figureOf(HistoryCurve curve, double value) {
    return formatFigure(curve == HistoryCurve::Celsius ? degrees(value) : value, decimalsOf(curve));
}

double plotted(HistoryCurve curve, double value) {
    if (curve == HistoryCurve::Celsius) {
        return degrees(value);
    }
    const double nominal = nominalOf(curve);
    return nominal > 0.0 ? (value / nominal - 1.0) * 100.0 : value;
}

ValueScale scaleFor(HistoryQuantity quantity, double least, double most) {
    // Small changes must not look like great ones, so each axis has a least length.
    const auto atLeast = [&](double length) {
        const double spare = std::max(0.0, length - (most - least)) / 2.0;
        return valueScale(least - spare, most + spare);
    };
    switch (quantity) {
    case HistoryQuantity::Power:
        return valueScale(0.0, std::max(most, 40.0));
    case HistoryQuantity::Currents:
        return valueScale(0.0, std::max(most, 4.0));
    case HistoryQuantity::Fan:
        return valueScale(0.0, std::max(most, 400.0));
    case HistoryQuantity::Rails:
        return valueScale(std::min(least, -1.0), std::max(most, 1.0));
    case HistoryQuantity::Temperature:
        return atLeast(8.0);
    case HistoryQuantity::Efficiency:
        break;
    }
    return atLeast(4.0);
}

QString axisText(HistoryQuantity quantity, const ValueScale &scale, double value) {
    QString text = scale.label(value);
    const double half = 0.5 * scale.step;
    if (quantity == HistoryQuantity::Rails) {
        return (value > half ? QStringLiteral("+") : QString()) + text + QStringLiteral(" %");
    }
    // The unit once, at the upper end.
    return value > scale.high() - half ? QStringLiteral("%1 %2").arg(text, unitOf(quantity)) : text;
}

QColor inkOf(HistoryQuantity quantity) {
    switch (quantity) {
    case HistoryQuantity::Power:
        return {61, 202, 242};
    case HistoryQuantity::Rails:
        return {86, 211, 143};
    case HistoryQuantity::Currents:
        return {178, 156, 255};
    case HistoryQuantity::Temperature:
        return {255, 172, 92};
    case HistoryQuantity::Fan:
        return {243, 139, 198};
    case HistoryQuantity::Efficiency:
        break;
    }
    return {222, 226, 112};
}

Qt::PenStyle dashOf(HistoryCurve curve) {
    switch (curve) {
    case HistoryCurve::Volts5:
    case HistoryCurve::Amps5:
        return Qt::DashLine;
    case HistoryCurve::Volts33:
    case HistoryCurve::Amps33:
        return Qt::DotLine;
    default:
        return Qt::SolidLine;
    }
}

void drawMark(QPainter &painter, HistoryQuantity quantity, const QPointF &centre, qreal radius) {
    const auto polygon = [&](std::initializer_list<QPointF> corners) {
        QPolygonF shape;
        for (const QPointF &corner : corners) {
            shape << centre + corner * radius;
        }
        painter.drawPolygon(shape);
    };
    switch (quantity) {
    case HistoryQuantity::Power:
        painter.drawEllipse(centre, 0.85 * radius, 0.85 * radius);
        break;
    case HistoryQuantity::Rails:
        polygon({{-0.85, -0.85}, {0.85, -0.85}, {0.85, 0.85}, {-0.85, 0.85}});
        break;
    case HistoryQuantity::Currents:
        polygon({{0.0, -1.15}, {1.15, 0.0}, {0.0, 1.15}, {-1.15, 0.0}});
        break;
    case HistoryQuantity::Temperature:
        polygon({{0.0, -1.1}, {1.1, 0.8}, {-1.1, 0.8}});
        break;
    case HistoryQuantity::Fan:
        polygon({{0.0, 1.1}, {1.1, -0.8}, {-1.1, -0.8}});
        break;
    case HistoryQuantity::Efficiency:
        polygon({{-0.4, -1.1},
                 {0.4, -1.1},
                 {0.4, -0.4},
                 {1.1, -0.4},
                 {1.1, 0.4},
                 {0.4, 0.4},
                 {0.4, 1.1},
                 {-0.4, 1.1},
                 {-0.4, 0.4},
                 {-1.1, 0.4},
                 {-1.1, -0.4},
                 {-0.4, -0.4}});
        break;
    }
}

void drawSample(QPainter &painter, HistoryQuantity quantity, HistoryCurve curve, const QRectF &place,
                const QColor &ink) {
    const qreal radius = place.height() * 0.42;
    const QPointF mark(place.left() + radius, place.center().y());
    const bool dashed = dashOf(curve) != Qt::SolidLine;
    QPen pen(ink, place.height() * 0.18, Qt::SolidLine, Qt::FlatCap);
    if (dashed) {
        const qreal on = dashOf(curve) == Qt::DashLine ? 3.0 : 1.1;
        pen.setDashPattern({on, 1.3});
    }
    painter.setPen(pen);
    // Dashes begin after the mark, so that none is hidden by it.
    const qreal begin = dashed ? mark.x() + 1.6 * radius : place.left();
    painter.drawLine(QPointF(begin, mark.y()), QPointF(place.right(), mark.y()));
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    drawMark(painter, quantity, mark, radius);
}

} // namespace zpsg::ui
