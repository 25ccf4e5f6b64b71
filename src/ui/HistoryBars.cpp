#include "ui/HistoryBars.h"

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
/// A bar is no wider, however much room there is.
constexpr qreal kWidest = 64.0;

/// Whole device pixels, so that thin bars have sharp edges.
qreal snapped(qreal x, qreal ratio) { return std::ceil(x * ratio - 0.5) / ratio; }

} // namespace

/// Where slots are on this canvas.
class HistoryBars::Places {
public:
    Places(const HistoryBars &bars, const QPainter &painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
           const QRectF &area)
        : canvas(area)
        , ratio(painter.device()->devicePixelRatioF())
        , ground(snapped(yMap.transform(0.0), ratio))
        , edge(std::max(snapped(1.6 * bars.scale_, ratio), 1.0 / ratio))
        , bars_(bars)
        , xMap_(xMap)
        , yMap_(yMap) {
        const std::vector<HistorySlot> &all = bars.slots_;
        const qreal pitch = all.empty() ? 0.0
                                        : (xMap.transform(all.back().past) - xMap.transform(0.0)) * ratio /
                                              static_cast<qreal>(all.size());
        gap_ = pitch < kGapFrom ? 0.0 : std::max(1.0, std::round(pitch * 0.2)) / ratio;
    }

    [[nodiscard]] bool touch() const { return gap_ == 0.0; }
    [[nodiscard]] bool empty(const HistorySlot &slot) const { return slot.total.minutes == 0; }
    /// All of the slot's column.
    [[nodiscard]] QRectF column(const HistorySlot &slot) const {
        const qreal left = snapped(xMap_.transform(slot.first), ratio);
        const qreal right = std::max(snapped(xMap_.transform(slot.past), ratio), left + 1.0 / ratio);
        return {left, canvas.top(), right - left, canvas.height()};
    }
    [[nodiscard]] QRectF bar(const HistorySlot &slot) const {
        QRectF place = column(slot);
        const qreal widest = snapped(kWidest * bars_.scale_, ratio);
        const qreal wide = std::clamp(place.width() - gap_, 1.0 / ratio, widest);
        const qreal value = measured(slot.total, bars_.measure_);
        const qreal top = std::clamp(snapped(yMap_.transform(value), ratio), canvas.top(), ground - edge);
        const qreal left = snapped(place.left() + (place.width() - wide) / 2.0, ratio);
        return {left, top, wide, ground - top};
    }

    QRectF canvas;
    qreal ratio;
    qreal ground;
    qreal edge; ///< height of a bar's bright upper end

private:
    const HistoryBars &bars_;
    const QwtScaleMap &xMap_;
    const QwtScaleMap &yMap_;
    qreal gap_;
};

void HistoryBars::setSlots(const std::vector<HistorySlot> &places, HistoryMeasure measure,
                           const QList<double> &beginnings) {
    slots_ = places;
    measure_ = measure;
    beginnings_ = beginnings;
}

void HistoryBars::setPointed(int slot, const HistoryTag &tag) {
    pointed_ = slot;
    tag_ = tag;
}

void HistoryBars::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                       const QRectF &canvas) const {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setPen(Qt::NoPen);
    const Places places(*this, *painter, xMap, yMap, canvas);
    for (const double x : beginnings_) {
        painter->fillRect(QRectF(snapped(xMap.transform(x), 1.0), canvas.top(), 1.0, canvas.height()),
                          style::tone(colour::kGrid));
    }
    const auto size = static_cast<int>(slots_.size());
    if (pointed_ >= 0 && pointed_ < size) {
        painter->fillRect(places.column(slots_[static_cast<std::size_t>(pointed_)]),
                          style::tone(colour::kText, 0.10));
    }
    drawBars(*painter, places);
    if (chosen_ >= 0 && chosen_ < size) {
        drawChosen(*painter, places);
    }
    if (pointed_ >= 0 && pointed_ < size) {
        drawPointed(*painter, places);
    }
    painter->restore();
}

void HistoryBars::drawBars(QPainter &painter, const Places &places) const {
    QVector<QRectF> bars;
    QVector<QRectF> edges;
    QVector<QRectF> flanks;
    bars.reserve(static_cast<int>(slots_.size()));
    edges.reserve(static_cast<int>(slots_.size()));
    qreal before = places.ground; // upper end of the bar to the left; the ground without one
    for (const HistorySlot &slot : slots_) {
        if (places.empty(slot)) {
            before = places.ground;
            continue;
        }
        const QRectF bar = places.bar(slot);
        edges << QRectF(bar.left(), bar.top(), bar.width(), places.edge);
        if (places.touch() && before < places.ground) {
            // Bars that touch have one outline.
            flanks << QRectF(bar.left(), std::min(before, bar.top()), 1.0 / places.ratio,
                             std::abs(before - bar.top()) + places.edge);
        }
        bars << bar;
        before = bar.top();
    }
    QLinearGradient fill(0.0, places.canvas.top(), 0.0, places.ground);
    fill.setColorAt(0.0, style::tone(colour::kAccentDeep, 0.80));
    fill.setColorAt(1.0, style::tone(colour::kAccentDeep, 0.22));
    painter.setBrush(fill);
    painter.drawRects(bars);
    painter.setBrush(style::tone(colour::kAccent, 0.4));
    painter.drawRects(flanks);
    painter.setBrush(style::tone(colour::kAccent));
    painter.drawRects(edges);
}

void HistoryBars::drawChosen(QPainter &painter, const Places &places) const {
    const HistorySlot &slot = slots_[static_cast<std::size_t>(chosen_)];
    if (!places.empty(slot)) {
        painter.fillRect(places.bar(slot), style::tone(colour::kAccent, 0.85));
    }
    // A mark that shows even when the bar is a pixel wide.
    const qreal half = 5.0 * scale_;
    const QPointF tip(places.column(slot).center().x(), places.canvas.top() + 1.4 * half);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(style::tone(colour::kText));
    painter.drawPolygon(
        QPolygonF({tip, tip + QPointF(-half, -1.3 * half), tip + QPointF(half, -1.3 * half)}));
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void HistoryBars::drawPointed(QPainter &painter, const Places &places) const {
    const HistorySlot &slot = slots_[static_cast<std::size_t>(pointed_)];
    if (!places.empty(slot)) {
        painter.fillRect(places.bar(slot), style::tone(colour::kText, 0.80));
    }
    const QRectF column = places.column(slot);
    drawTag(painter, tag_, column.left(), column.right(), places.canvas, scale_);
}

} // namespace zpsg::ui
