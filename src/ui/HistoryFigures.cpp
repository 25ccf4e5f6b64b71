#include "ui/HistoryFigures.h"

#include "ui/Figures.h"
#include "ui/HistoryDates.h"
#include "ui/Style.h"

#include <QEvent>
#include <QPainter>

#include <cmath>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

/// All in a window of the usual size.
constexpr qreal kHeight = 52.0;
constexpr qreal kFigurePixels = 17.0;

/// Of the width, what each figure takes.
constexpr std::array kShares{0.23, 0.14, 0.2, 0.2, 0.23};

} // namespace

HistoryFigures::HistoryFigures(QWidget *parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    compose();
}

QSize HistoryFigures::sizeHint() const { return {600, qRound(kHeight * style::windowScale(*this))}; }

void HistoryFigures::showSum(const std::optional<HistorySum> &sum, HistoryMeasure measure, bool years) {
    sum_ = sum;
    measure_ = measure;
    years_ = years;
    compose();
}

void HistoryFigures::showLongTerm(double efficiency, double watts) {
    efficiency_ = efficiency;
    watts_ = watts;
    compose();
}

void HistoryFigures::compose() {
    const bool any = sum_ && sum_->minutes > 0;
    const QString none(kNoValue);
    const auto day = [&](const std::optional<HistoryDay> &which) {
        if (!which) {
            return std::pair(none, QString());
        }
        return std::pair(measure_ == HistoryMeasure::Energy ? energyText(which->kwh)
                                                            : powerText(which->meanWatts),
                         dateText(which->date, years_ ? DateParts::Short : DateParts::DayMonth));
    };
    const auto [high, highDate] = day(any ? sum_->highest : std::nullopt);
    const auto [low, lowDate] = day(any ? sum_->lowest : std::nullopt);
    tiles_[0] = {qtTrId("HISTORY_ENERGY"), any ? energyText(sum_->kwh) : none,
                 any ? qtTrId("HISTORY_IN_TIME").arg(recordedText(sum_->minutes)) : QString()};
    tiles_[1] = {qtTrId("HISTORY_MEAN_POWER"), any ? powerText(sum_->meanWatts) : none, QString()};
    tiles_[2] = {qtTrId("HISTORY_HIGHEST_DAY"), high, highDate};
    tiles_[3] = {qtTrId("HISTORY_LOWEST_DAY"), low, lowDate};
    tiles_[4] = {qtTrId("HISTORY_LONG_TERM"), watts_ > 0.0 ? powerText(watts_) : none,
                 efficiency_ > 0.0 ? qtTrId("HISTORY_AT_EFFICIENCY").arg(efficiencyText(efficiency_))
                                   : QString()};
    QStringList spoken;
    for (const Tile &tile : tiles_) {
        spoken << QStringLiteral("%1: %2 %3").arg(tile.caption, tile.figure, tile.note).trimmed();
    }
    setAccessibleName(qtTrId("HISTORY_SUMMARY"));
    setAccessibleDescription(spoken.join(QStringLiteral("; ")));
    update();
}

void HistoryFigures::paintEvent(QPaintEvent * /*event*/) {
    const qreal scale = style::windowScale(*this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    style::paintCard(painter, *this);
    const qreal margin = style::space::kM * scale;
    const FigureFont figures(style::font(kFigurePixels * scale, QFont::DemiBold));
    qreal left = 0.0;
    for (std::size_t i = 0; i < tiles_.size(); ++i) {
        const Tile &tile = tiles_.at(i);
        const QRectF place(left, 0.0, width() * kShares.at(i), height());
        const QRectF inner = place.adjusted(margin, 0.0, -0.5 * margin, 0.0);
        if (i > 0) {
            painter.fillRect(QRectF(std::floor(left), margin, 1.0, height() - 2.0 * margin),
                             style::tone(colour::kText, 0.10));
        }
        painter.setPen(style::tone(colour::kTextTertiary));
        painter.setFont(fittingFont(style::font(style::type::kSmall * scale, QFont::Medium), tile.caption,
                                    inner.width()));
        painter.drawText(QRectF(inner.left(), 7.0 * scale, inner.width(), 16.0 * scale),
                         Qt::AlignLeft | Qt::AlignVCenter, tile.caption);
        const qreal base = height() - 11.0 * scale;
        painter.setPen(style::tone(tile.figure.size() > 1 ? colour::kText : colour::kStale));
        figures.draw(painter, {inner.left() - figures.indent(tile.figure), base}, tile.figure);
        const qreal after = figures.width(tile.figure) + 8.0 * scale;
        painter.setPen(style::tone(colour::kTextSecondary));
        painter.setFont(
            fittingFont(style::font(style::type::kSmall * scale), tile.note, inner.width() - after));
        painter.drawText(QPointF(inner.left() + after, base), tile.note);
        left += place.width();
    }
}

void HistoryFigures::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        compose();
    }
}

} // namespace zpsg::ui
