#include "ui/FanTrace.h"

#include "ui/FanModeLook.h"
#include "ui/Figures.h"
#include "ui/Style.h"

#include <QPainter>

#include <qwt_scale_map.h>

#include <algorithm>
#include <cmath>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

/// Between two marks of a line, seconds: a few of them within the hour.
constexpr double kMarkEvery = 600.0;

} // namespace

void FanTrace::setStops(std::vector<FanSpan> stops, const QString &word) {
    stops_ = std::move(stops);
    stopWord_ = word;
}

void FanTrace::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                    const QRectF & /*canvas*/) const {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QColor ink = inkOf(quantity_);
    for (const FanStretch &stretch : stretches_) {
        // Single segments are drawn several times faster than a whole line.
        QVector<QLineF> segments;
        segments.reserve(static_cast<int>(stretch.size()));
        QPointF before(xMap.transform(stretch.front().seconds), yMap.transform(stretch.front().value));
        if (stretch.size() == 1) {
            segments << QLineF(before, before + QPointF(1.5, 0.0)); // a reading between two gaps still is one
        }
        for (std::size_t i = 1; i < stretch.size(); ++i) {
            const QPointF now(xMap.transform(stretch[i].seconds), yMap.transform(stretch[i].value));
            segments << QLineF(before, now);
            before = now;
        }
        painter->setPen(QPen(ink, 1.6 * scale_, Qt::SolidLine, Qt::SquareCap));
        painter->drawLines(segments);
        painter->setPen(QPen(style::tone(colour::kWindowBottom, 0.8), scale_));
        painter->setBrush(ink);
        drawMarks(*painter, stretch, xMap, yMap);
    }
    const QFont wordFont = style::font(style::type::kSmall * scale_, QFont::DemiBold);
    const QFontMetricsF metrics(wordFont);
    painter->setFont(wordFont);
    painter->setPen(ink);
    for (const FanSpan &stop : stops_) {
        const double left = xMap.transform(stop.fromSeconds);
        const double right = xMap.transform(stop.toSeconds);
        const double wide = metrics.horizontalAdvance(stopWord_);
        if (right - left >= wide + 6.0 * scale_) {
            painter->drawText(QPointF((left + right - wide) / 2.0, yMap.transform(0.0) - 6.0 * scale_),
                              stopWord_);
        }
    }
    painter->restore();
}

void FanTrace::drawMarks(QPainter &painter, const FanStretch &stretch, const QwtScaleMap &xMap,
                         const QwtScaleMap &yMap) const {
    // Those of the two lines are set apart.
    const double offset = quantity_ == HistoryQuantity::Fan ? 0.25 * kMarkEvery : 0.75 * kMarkEvery;
    double before = std::floor((stretch.front().seconds + offset) / kMarkEvery);
    for (const FanPoint &point : stretch) {
        const double place = std::floor((point.seconds + offset) / kMarkEvery);
        if (place != before) {
            drawMark(painter, quantity_, {xMap.transform(point.seconds), yMap.transform(point.value)},
                     3.6 * scale_);
        }
        before = place;
    }
}

void FanModeStrip::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap & /*yMap*/,
                        const QRectF &canvas) const {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QFont font = style::font(10.0 * scale_, QFont::DemiBold);
    const QFontMetricsF metrics(font);
    painter->setFont(font);
    const double height = kModeStrip * scale_;
    for (const FanModeSpan &piece : spans_) {
        const double left = std::max(xMap.transform(piece.span.fromSeconds), canvas.left());
        const double right = std::max(xMap.transform(piece.span.toSeconds), left + 1.0);
        const QRectF band(left, canvas.bottom() - height, right - left, height);
        painter->setPen(Qt::NoPen);
        painter->setBrush(inkOf(piece.mode));
        painter->drawRoundedRect(band.adjusted(0.0, 0.0, -0.75, 0.0), 2.0 * scale_, 2.0 * scale_);
        QString name = nameOf(piece.mode);
        const double room = band.width() - 6.0 * scale_;
        if (metrics.horizontalAdvance(name) > room) {
            name = name.left(1);
        }
        if (metrics.horizontalAdvance(name) <= room) {
            painter->setPen(Qt::black);
            painter->drawText(band, Qt::AlignCenter, name);
        }
    }
    painter->restore();
}

void FanPointer::point(double seconds, const HistoryTag &tag) {
    seconds_ = seconds;
    tag_ = tag;
}

void FanPointer::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap & /*yMap*/,
                      const QRectF &canvas) const {
    if (tag_.title.isEmpty()) {
        return;
    }
    painter->save();
    const qreal x = std::floor(xMap.transform(seconds_));
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->fillRect(QRectF(x, canvas.top(), 1.0, canvas.height()), style::tone(colour::kText, 0.55));
    drawTag(*painter, tag_, x, x, canvas, scale_);
    painter->restore();
}

} // namespace zpsg::ui
