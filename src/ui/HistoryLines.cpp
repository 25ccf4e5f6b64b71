#include "ui/HistoryLines.h"

#include "ui/Style.h"

#include <QPainter>

#include <qwt_plot.h>
#include <qwt_scale_map.h>

#include <algorithm>
#include <cmath>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

/// Between two marks of a curve, pixels.
constexpr double kMarkEvery = 96.0;

/// Points of one stretch, thinned to what a column of pixels can show: where it is entered, its extremes, and
/// where it is left.
class Stretch {
public:
    explicit Stretch(qreal ratio) : ratio_(ratio) {}

    void add(const QPointF &point) {
        const double column = std::floor(point.x() * ratio_);
        if (held_ == 0 || column != column_) {
            flush();
            column_ = column;
            first_ = least_ = most_ = last_ = point;
            held_ = 1;
            return;
        }
        least_ = point.y() < least_.y() ? point : least_;
        most_ = point.y() > most_.y() ? point : most_;
        last_ = point;
        ++held_;
    }
    /// The points so far; begins anew.
    QPolygonF take() {
        flush();
        QPolygonF points;
        points.swap(points_);
        return points;
    }

private:
    void flush() {
        if (held_ > 0) {
            points_ << first_;
        }
        if (held_ > 2) {
            const bool rising = least_.x() <= most_.x();
            points_ << (rising ? least_ : most_) << (rising ? most_ : least_);
        }
        if (held_ > 1) {
            points_ << last_;
        }
        held_ = 0;
    }

    qreal ratio_;
    QPolygonF points_;
    QPointF first_, least_, most_, last_;
    double column_ = 0.0;
    int held_ = 0;
};

/// Lengths of a dash and of the gap after it, pixels; no gap for a line.
struct Dash {
    double on;
    double off;
};

Dash dashLengths(Qt::PenStyle style) {
    switch (style) {
    case Qt::DashLine:
        return {9.0, 5.0};
    case Qt::DotLine:
        return {3.0, 3.5};
    default:
        return {1.0, 0.0};
    }
}

/// The line through the points as single segments, which are drawn several times faster than a whole line is,
/// with dashes measured along x from `origin`: along a curve that goes up and down within a pixel or two
/// there would be none to be seen.
QVector<QLineF> segmentsOf(const QPolygonF &points, const Dash &dash, double origin) {
    QVector<QLineF> segments;
    segments.reserve(points.size());
    const double period = dash.on + dash.off;
    for (int i = 1; i < points.size(); ++i) {
        const QLineF whole(points.at(i - 1), points.at(i));
        const double length = whole.dx();
        if (dash.off <= 0.0) {
            segments << whole;
            continue;
        }
        const double begin = whole.x1() - origin;
        if (length < 0.5) {
            if (begin - std::floor(begin / period) * period < dash.on) {
                segments << whole;
            }
            continue;
        }
        const auto last = static_cast<int>(std::floor((begin + length) / period));
        for (auto k = static_cast<int>(std::floor(begin / period)); k <= last; ++k) {
            const double from = std::max((k * period - begin) / length, 0.0);
            const double to = std::min((k * period + dash.on - begin) / length, 1.0);
            if (from < to) {
                segments << QLineF(whole.pointAt(from), whole.pointAt(to));
            }
        }
    }
    return segments;
}

} // namespace

void HistoryLines::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                        const QRectF &canvas) const {
    const qreal ratio = painter->device()->devicePixelRatioF();
    const std::array<double, 8> key{canvas.left(), canvas.top(), canvas.width(), canvas.height(),
                                    xMap.s1(),     xMap.s2(),    yMap.s1(),      yMap.s2()};
    if (drawn_.isNull() || key != drawnFor_ || drawn_.devicePixelRatioF() != ratio) {
        drawn_ = QPixmap((canvas.size() * ratio).toSize());
        drawn_.setDevicePixelRatio(ratio);
        drawn_.fill(Qt::transparent);
        drawnFor_ = key;
        QPainter inner(&drawn_);
        inner.setRenderHint(QPainter::Antialiasing);
        inner.translate(-canvas.topLeft());
        for (const HistoryCurve curve : curvesOf(quantity_)) {
            drawCurve(inner, curve, xMap, yMap, ratio);
            drawMarks(inner, curve, xMap, yMap);
        }
    }
    painter->drawPixmap(canvas.topLeft(), drawn_);
}

void HistoryLines::drawCurve(QPainter &painter, HistoryCurve curve, const QwtScaleMap &xMap,
                             const QwtScaleMap &yMap, qreal ratio) const {
    const QColor ink = inkOf(quantity_);
    const Dash dash = dashLengths(dashOf(curve));
    const Dash scaled{dash.on * scale_, dash.off * scale_};
    const QPen pen(ink, 1.5 * scale_, Qt::SolidLine, dash.off > 0.0 ? Qt::FlatCap : Qt::SquareCap);
    const qreal ground = yMap.transform(0.0);
    const auto paint = [&](QPolygonF points) {
        if (points.isEmpty()) {
            return;
        }
        if (points.size() == 1) {
            // A minute between two gaps still is one.
            points << points.constFirst() + QPointF(1.5, 0.0);
        }
        if (quantity_ == HistoryQuantity::Power) {
            QPolygonF area = points;
            area << QPointF(points.constLast().x(), ground) << QPointF(points.constFirst().x(), ground);
            painter.setPen(Qt::NoPen);
            painter.setBrush(style::tone(colour::kAccentDeep, 0.26));
            painter.setRenderHint(QPainter::Antialiasing, false); // its edge is under the line
            painter.drawPolygon(area);
            painter.setRenderHint(QPainter::Antialiasing);
        }
        painter.setPen(pen);
        painter.drawLines(segmentsOf(points, scaled, xMap.transform(0.0)));
    };
    auto [first, past] = minutes_.rows(xMap.s1(), xMap.s2());
    // The line goes on to the rows just out of view.
    first = first > 0 ? first - 1 : first;
    past = std::min(past + 1, minutes_.size());
    Stretch stretch(ratio);
    for (std::size_t row = first; row < past; ++row) {
        const double value = minutes_.value(curve, row);
        if (std::isnan(value) || minutes_.gapBefore(row)) {
            paint(stretch.take());
        }
        if (!std::isnan(value)) {
            stretch.add({xMap.transform(minutes_.seconds(row)), yMap.transform(plotted(curve, value))});
        }
    }
    paint(stretch.take());
}

void HistoryLines::drawMarks(QPainter &painter, HistoryCurve curve, const QwtScaleMap &xMap,
                             const QwtScaleMap &yMap) const {
    painter.setPen(QPen(style::tone(colour::kWindowBottom, 0.8), scale_));
    painter.setBrush(inkOf(quantity_));
    // A multiple of minutes of the day, so that marks stay with their minutes when the view moves; those of
    // different quantities are set apart.
    const double pixel = (xMap.s2() - xMap.s1()) / std::max(std::abs(xMap.p2() - xMap.p1()), 1.0);
    const double every = std::max(std::round(kMarkEvery * scale_ * pixel / 60.0), 1.0) * 60.0;
    const double offset =
        every * static_cast<int>(quantity_) / static_cast<double>(kHistoryQuantities.size());
    const auto [first, past] = minutes_.rows(xMap.s1(), xMap.s2());
    double before = -1.0;
    for (std::size_t row = first; row < past; ++row) {
        const double place = std::floor((minutes_.seconds(row) + offset) / every);
        const double value = minutes_.value(curve, row);
        if (place != before && !std::isnan(value)) {
            if (before >= 0.0) {
                drawMark(painter, quantity_,
                         {xMap.transform(minutes_.seconds(row)), yMap.transform(plotted(curve, value))},
                         3.6 * scale_);
            }
            before = place;
        }
    }
}

void HistoryCursor::setSpots(double seconds, const std::vector<Spot> &spots, const HistoryTag &tag) {
    seconds_ = seconds;
    spots_ = spots;
    tag_ = tag;
}

void HistoryCursor::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap & /*yMap*/,
                         const QRectF &canvas) const {
    if (tag_.title.isEmpty()) {
        return;
    }
    painter->save();
    const qreal x = xMap.transform(seconds_);
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->fillRect(QRectF(std::floor(x), canvas.top(), 1.0, canvas.height()),
                      style::tone(colour::kText, 0.55));
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(style::tone(colour::kWindowBottom), 1.5 * scale_));
    for (const Spot &spot : spots_) {
        painter->setBrush(inkOf(spot.quantity));
        drawMark(*painter, spot.quantity, {x, plot()->canvasMap(spot.axis).transform(spot.plotted)},
                 5.0 * scale_);
    }
    drawTag(*painter, tag_, x, x, canvas, scale_);
    painter->restore();
}

} // namespace zpsg::ui
