#include "ui/DayBars.h"

#include "power/DayProfile.h"
#include "ui/Figures.h"
#include "ui/Style.h"

#include <QPainter>

#include <qwt_scale_map.h>

#include <algorithm>
#include <cmath>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

/// From how many device pixels a bar on there is a gap between two; narrower ones would look striped.
constexpr qreal kGapFrom = 4.0;

/// Whole device pixels, so that bars of two or three pixels have sharp edges. A pixel belongs to the bar that
/// its middle is in.
qreal snapped(qreal x, qreal ratio) { return std::ceil(x * ratio - 0.5) / ratio; }

} // namespace

void DayBars::setNow(std::optional<int> bucket, const QString &word) {
    now_ = bucket;
    nowWord_ = word;
}

void DayBars::setPointed(std::optional<int> bucket, const QString &text) {
    pointed_ = bucket;
    pointedText_ = text;
}

void DayBars::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                   const QRectF &canvas) const {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setPen(Qt::NoPen);
    const qreal midnight = snapped(xMap.transform(power::bucketOf(0)), 1.0);
    painter->fillRect(QRectF(midnight, canvas.top(), 1.0, canvas.height()),
                      style::tone(colour::kTextTertiary, 0.45));
    drawBars(*painter, xMap, yMap, canvas);
    if (now_) {
        drawNow(*painter, xMap.transform(*now_ + 0.5), canvas);
    }
    if (pointed_) {
        drawPointed(*painter, xMap, yMap, canvas);
    }
    painter->restore();
}

void DayBars::drawBars(QPainter &painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                       const QRectF &canvas) const {
    const qreal ratio = painter.device()->devicePixelRatioF();
    const qreal ground = snapped(yMap.transform(0.0), ratio);
    const qreal pitch = (xMap.transform(1.0) - xMap.transform(0.0)) * ratio;
    const qreal gap = pitch < kGapFrom ? 0.0 : std::max(1.0, std::round(pitch * 0.2)) / ratio;
    const qreal edge = std::max(snapped(1.6 * scale_, ratio), 1.0 / ratio);

    QVector<QRectF> bars;
    QVector<QRectF> edges;
    qreal before = 0.0; // top of the bar to the left
    bool touches = false;
    bars.reserve(static_cast<int>(watts_.size()));
    edges.reserve(static_cast<int>(watts_.size()));
    for (std::size_t i = 0; i < watts_.size(); ++i) {
        if (!(watts_[i] > 0.0F)) {
            touches = false;
            continue;
        }
        const qreal left = snapped(xMap.transform(static_cast<double>(i)), ratio);
        const qreal right = snapped(xMap.transform(static_cast<double>(i) + 1.0), ratio) - gap;
        const qreal top = std::min(snapped(yMap.transform(watts_[i]), ratio), ground - edge);
        bars << QRectF(left, top, right - left, ground - top);
        edges << QRectF(left, top, right - left, edge);
        if (gap == 0.0 && touches) {
            // Bars that touch have one outline.
            edges << QRectF(left, std::min(before, top), 1.0 / ratio, std::abs(before - top) + edge);
        }
        before = top;
        touches = true;
    }
    const QRgb deep = muted_ ? colour::kStale : colour::kAccentDeep;
    QLinearGradient fill(0.0, canvas.top(), 0.0, ground);
    fill.setColorAt(0.0, style::tone(deep, 0.80));
    fill.setColorAt(1.0, style::tone(deep, 0.22));
    painter.setBrush(fill);
    painter.drawRects(bars);
    painter.setBrush(style::tone(muted_ ? colour::kStale : colour::kAccent));
    painter.drawRects(edges);
}

void DayBars::drawNow(QPainter &painter, qreal x, const QRectF &canvas) const {
    const FigureFont font(style::font(style::type::kSmall * scale_, QFont::Medium));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(style::tone(colour::kTextSecondary), 1.0, Qt::DotLine));
    const qreal column = std::floor(x) + 0.5;
    painter.drawLine(QPointF(column, canvas.top()), QPointF(column, canvas.bottom()));
    if (pointed_) {
        return; // the tag has the room
    }
    painter.setPen(style::tone(colour::kTextSecondary));
    const qreal beside = 5.0 * scale_;
    const qreal wide = font.width(nowWord_);
    const bool fits = column + beside + wide <= canvas.right();
    font.draw(painter,
              {fits ? column + beside : column - beside - wide, canvas.top() + font.digitHeight() + 3.0},
              nowWord_);
}

void DayBars::drawPointed(QPainter &painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                          const QRectF &canvas) const {
    const auto index = static_cast<std::size_t>(*pointed_);
    const qreal left = std::floor(xMap.transform(*pointed_));
    const qreal wide = std::max(2.0, std::ceil(xMap.transform(*pointed_ + 1.0)) - left);
    painter.setPen(Qt::NoPen);
    painter.fillRect(QRectF(left, canvas.top(), wide, canvas.height()), style::tone(colour::kText, 0.10));
    if (index < watts_.size() && watts_[index] > 0.0F) {
        const qreal top = yMap.transform(watts_[index]);
        painter.fillRect(QRectF(left, top, wide, yMap.transform(0.0) - top),
                         style::tone(colour::kText, 0.85));
    }

    const FigureFont font(style::font(style::type::kLabel * scale_, QFont::DemiBold));
    const qreal padding = 8.0 * scale_;
    QRectF tag(0.0, canvas.top() + 1.0, font.width(pointedText_) + 2.0 * padding,
               font.digitHeight() + 1.6 * padding);
    // Beside the bar, on the side where there is room.
    const qreal right = left + wide + padding;
    tag.moveLeft(right + tag.width() <= canvas.right() ? right : left - padding - tag.width());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(style::tone(colour::kStale, 0.6), 1.0));
    painter.setBrush(style::tone(colour::kTrack));
    painter.drawRoundedRect(tag.adjusted(0.5, 0.5, -0.5, -0.5), 4.0 * scale_, 4.0 * scale_);
    painter.setPen(style::tone(colour::kText));
    font.drawCentred(painter, {tag.center().x(), tag.center().y() + font.digitHeight() / 2.0}, pointedText_);
}

} // namespace zpsg::ui
