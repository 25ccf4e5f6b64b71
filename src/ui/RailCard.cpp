#include "ui/RailCard.h"

#include "ui/Figures.h"
#include "ui/Style.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace zpsg::ui {

namespace colour = style::colour;

RailState judgeRail(double volts, double nominal) {
    // The bound itself counts as out. Readings have single precision, so a hair below the bound is on it.
    constexpr double kHair = 1e-6;
    const double deviation = std::abs(volts / nominal - 1.0) + kHair;
    if (deviation >= kRailWindow) {
        return RailState::Out;
    }
    return deviation >= 0.75 * kRailWindow ? RailState::Near : RailState::InRange;
}

/// Sizes: the figures' follow the card's size, the caption's the window's.
struct RailCard::Metrics {
    explicit Metrics(const RailCard &card)
        : layout(card)
        , enlargement(style::enlargement(card, 212.0, 168.0))
        , width(card.width())
        , height(card.height()) {}

    style::CardLayout layout;
    qreal enlargement;
    qreal width;
    qreal height;
    [[nodiscard]] qreal pixels(qreal usual) const { return std::max(usual * enlargement, usual * 0.92); }
    [[nodiscard]] qreal room() const { return width - 2.0 * layout.margin; }
    /// Middle line of the bar that shows the voltage window.
    [[nodiscard]] qreal barY() const { return height - layout.margin - 5.0 * enlargement; }
};

RailCard::RailCard(const QString &name, double nominalVolts, QWidget *parent)
    : Readout(parent)
    , name_(name)
    , nominal_(nominalVolts)
    , volts_(kNoValue)
    , amps_(kNoValue)
    , watts_(kNoValue) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(name);
}

void RailCard::showReading(double volts, double amps) {
    setStale(false);
    const QString newVolts = formatFigure(volts, 2);
    const QString newAmps = formatFigure(amps, 2);
    const QString newWatts = formatFigure(volts * amps, 1);
    if (value_ && newVolts == volts_ && newAmps == amps_ && newWatts == watts_) {
        return;
    }
    value_ = volts;
    volts_ = newVolts;
    amps_ = newAmps;
    watts_ = newWatts;
    update();
    announce();
}

void RailCard::clear() {
    if (!value_) {
        return;
    }
    value_.reset();
    stale_ = false;
    volts_ = amps_ = watts_ = kNoValue;
    update();
    announce();
}

void RailCard::setStale(bool stale) {
    if (value_ && stale != stale_) {
        stale_ = stale;
        update();
    }
}

QString RailCard::markText() const {
    if (!value_) {
        return {};
    }
    switch (state()) {
    case RailState::Near:
        return QStringLiteral("\u25B2 ") + qtTrId("MAIN_STR_RAIL_NEAR_LIMIT");
    case RailState::Out:
        return QStringLiteral("\u2715 ") + qtTrId("MAIN_STR_RAIL_OUT_OF_RANGE");
    case RailState::InRange:
        break;
    }
    const QString percent = formatFigure(std::abs(*value_ / nominal_ - 1.0) * 100.0, 1);
    const QString sign = *value_ < nominal_ ? QStringLiteral("\u2212") : QStringLiteral("+");
    return sign + percent + QStringLiteral("\u00A0%");
}

QString RailCard::readoutText() const {
    if (!value_) {
        return volts_;
    }
    return QStringLiteral("%1 V, %2 A, %3 W, %4").arg(volts_, amps_, watts_, markText());
}

QColor RailCard::stateColour() const {
    if (!current()) {
        return style::tone(colour::kStale);
    }
    switch (state()) {
    case RailState::Near:
        return style::tone(colour::kCaution);
    case RailState::Out:
        return style::tone(colour::kDanger);
    case RailState::InRange:
        break;
    }
    return style::tone(colour::kTextSecondary);
}

void RailCard::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange || event->type() == QEvent::LanguageChange) {
        update();
    }
}

void RailCard::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    style::paintCard(painter, *this);
    const Metrics metrics(*this);
    paintHeader(painter, metrics);
    paintFigures(painter, metrics);
    paintWindowBar(painter, metrics);
}

void RailCard::paintHeader(QPainter &painter, const Metrics &metrics) const {
    const QRectF &line = metrics.layout.captionLine;
    const QFont nameFont = style::font(metrics.layout.captionPixels, QFont::DemiBold);
    painter.setFont(nameFont);
    painter.setPen(style::tone(isEnabled() ? colour::kTextSecondary : colour::kStale));
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, name_);

    const qreal room = line.width() - QFontMetricsF(nameFont).horizontalAdvance(name_) - style::space::kS;
    const QString mark = markText();
    painter.setFont(
        fittingFont(style::font(style::type::kLabel * metrics.layout.scale, QFont::Medium), mark, room));
    painter.setPen(stateColour());
    painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, mark);
}

void RailCard::paintFigures(QPainter &painter, const Metrics &metrics) const {
    const QColor strong = style::tone(current() ? colour::kText : colour::kStale);
    const QColor soft = style::tone(current() ? colour::kTextSecondary : colour::kStale);
    const qreal top = metrics.layout.captionLine.bottom();
    const qreal bottom = metrics.barY() - 14.0 * metrics.enlargement;
    const FigureFont small(style::font(metrics.pixels(13.5), QFont::Medium));
    const FigureFont large(style::font(metrics.pixels(34.0), QFont::DemiBold));

    const qreal smallBase = bottom - metrics.pixels(3.0);
    const qreal largeBase = (top + smallBase - small.digitHeight() + large.digitHeight()) / 2.0 - 1.0;
    painter.setPen(strong);
    // Its first digit, however narrow, stands on the margin like everything else.
    const qreal left = metrics.layout.margin - large.indent(volts_);
    large.draw(painter, {left, largeBase}, volts_);
    painter.setPen(soft);
    painter.setFont(style::font(metrics.pixels(15.0), QFont::Medium));
    painter.drawText(QPointF(left + large.width(volts_) + 5.0 * metrics.enlargement, largeBase),
                     QStringLiteral("V"));

    const auto drawPair = [&](qreal x, const QString &figure, const QString &unit) {
        painter.setPen(strong);
        small.draw(painter, {x, smallBase}, figure);
        painter.setPen(soft);
        small.draw(painter, {x + small.width(figure) + 4.0 * metrics.enlargement, smallBase}, unit);
    };
    drawPair(metrics.layout.margin, amps_, QStringLiteral("A"));
    drawPair(metrics.layout.margin + metrics.room() * 0.5, watts_, QStringLiteral("W"));
}

void RailCard::paintWindowBar(QPainter &painter, const Metrics &metrics) const {
    const qreal thick = 4.0 * metrics.enlargement;
    const qreal y = metrics.barY();
    const FigureFont bounds(style::font(std::max<qreal>(10.0, metrics.pixels(10.0))));
    const QString bound = formatFigure(100.0 * kRailWindow, 0) + QStringLiteral("\u00A0%");
    const QString low = QStringLiteral("\u2212") + bound;
    const QString high = QStringLiteral("+") + bound;
    const qreal boundBase = y + bounds.digitHeight() / 2.0;
    painter.setPen(style::tone(colour::kTextTertiary));
    bounds.draw(painter, {metrics.layout.margin, boundBase}, low);
    bounds.draw(painter, {metrics.width - metrics.layout.margin - bounds.width(high), boundBase}, high);
    const qreal beside = std::max(bounds.width(low), bounds.width(high)) + 10.0 * metrics.enlargement;
    const QRectF bar(metrics.layout.margin + beside, y - thick / 2.0, metrics.room() - 2.0 * beside, thick);
    painter.setPen(Qt::NoPen);
    painter.setBrush(style::tone(colour::kTrack));
    painter.drawRoundedRect(bar, thick / 2.0, thick / 2.0);
    // The zones near the limits and the nominal value are marked by shape: notches in the bar.
    painter.setBrush(style::tone(colour::kTextTertiary, 0.8));
    for (const double share : {0.125, 0.5, 0.875}) {
        const qreal reach = (share == 0.5 ? 5.0 : 3.0) * metrics.enlargement;
        painter.drawRect(QRectF(bar.left() + bar.width() * share - 0.5, y - reach, 1.0, 2.0 * reach));
    }
    if (!value_) {
        return;
    }
    const double deviation = std::clamp((*value_ / nominal_ - 1.0) / kRailWindow, -1.0, 1.0);
    const qreal middle = bar.center().x();
    const qreal tip = middle + deviation * (bar.width() - thick) / 2.0;
    const QColor tint =
        current() && state() == RailState::InRange ? style::tone(colour::kAccent) : stateColour();
    painter.setBrush(tint);
    painter.drawRect(
        QRectF(QPointF(std::min(middle, tip), bar.top()), QPointF(std::max(middle, tip), bar.bottom())));
    painter.drawEllipse(QPointF(tip, y), thick, thick);
}

} // namespace zpsg::ui
