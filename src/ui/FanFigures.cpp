#include "ui/FanFigures.h"

#include "ui/Figures.h"
#include "ui/Style.h"
#include "ui/Temperature.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

/// All in a window of the usual size.
constexpr qreal kSpeedWidth = 176.0;
constexpr qreal kCelsiusWidth = 96.0;
constexpr qreal kBetween = 20.0;
constexpr qreal kHeight = 92.0;
constexpr qreal kFigure = 40.0;
constexpr qreal kBar = 4.0;

} // namespace

FanFigures::FanFigures(QWidget *parent) : Readout(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize FanFigures::sizeHint() const {
    return (QSizeF(kSpeedWidth + kBetween + kCelsiusWidth, kHeight) * style::windowScale(*this)).toSize();
}

void FanFigures::show(std::optional<double> rpm, std::optional<double> dutyPercent,
                      std::optional<double> celsius) {
    const QString before = readoutText();
    rpm_ = rpm;
    duty_ = dutyPercent;
    celsius_ = celsius;
    if (readoutText() != before) {
        update();
        announce();
    }
}

QString FanFigures::speedText() const {
    if (!rpm_) {
        return kNoValue;
    }
    return stands() ? qtTrId("MAIN_STR_FAN_STANDS") : formatFigure(*rpm_, 0);
}

QString FanFigures::dutyText() const {
    return duty_ && rpm_ ? qtTrId("FAN_OF_FULL_SPEED").arg(formatFigure(*duty_, 0)) : QString();
}

QString FanFigures::readoutText() const {
    const QString speed =
        !rpm_ || stands() ? speedText() : speedText() + QLatin1Char(' ') + qtTrId("FAN_RPM");
    const QString celsius = celsius_ ? degreesText(*celsius_) : QString(kNoValue);
    return QStringList{speed, dutyText(), celsius}.join(QStringLiteral(", "));
}

void FanFigures::changeEvent(QEvent *event) {
    Readout::changeEvent(event);
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::EnabledChange) {
        update();
    }
}

void FanFigures::paintFigure(QPainter &painter, const QRectF &place, const QString &caption,
                             const QString &figure, const QString &unit) const {
    const qreal scale = style::windowScale(*this);
    const bool current = isEnabled() && figure != QString(kNoValue);
    const QFont captionFont =
        fittingFont(style::font(style::type::kBody * scale, QFont::Medium), caption, place.width());
    painter.setFont(captionFont);
    painter.setPen(style::tone(isEnabled() ? colour::kTextSecondary : colour::kStale));
    painter.drawText(QRectF(place.left(), place.top(), place.width(), kCaptionHeight * scale),
                     Qt::AlignLeft | Qt::AlignVCenter, caption);
    const QFont unitFont = style::font(style::type::kTitle * scale, QFont::Medium);
    const qreal unitWide =
        unit.isEmpty() ? 0.0 : QFontMetricsF(unitFont).horizontalAdvance(unit) + 6.0 * scale;
    const FigureFont font(
        fittingFont(style::font(kFigure * scale, QFont::DemiBold), figure, place.width() - unitWide));
    const qreal base = place.top() + 60.0 * scale;
    painter.setPen(style::tone(current ? colour::kText : colour::kStale));
    font.draw(painter, {place.left() - font.indent(figure), base}, figure);
    painter.setFont(unitFont);
    painter.setPen(style::tone(current ? colour::kTextSecondary : colour::kStale));
    painter.drawText(QPointF(place.left() + font.width(figure) - font.indent(figure) + 6.0 * scale, base),
                     unit);
}

void FanFigures::paintEvent(QPaintEvent * /*event*/) {
    const qreal scale = style::windowScale(*this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF speed(0.0, 0.0, kSpeedWidth * scale, height());
    paintFigure(painter, speed, qtTrId("FAN_SPEED"), speedText(), stands() ? QString() : qtTrId("FAN_RPM"));
    const QRectF celsius((kSpeedWidth + kBetween) * scale, 0.0, kCelsiusWidth * scale, height());
    paintFigure(painter, celsius, qtTrId("MAIN_STR_TEMPERATURE"),
                celsius_ ? formatFigure(degrees(*celsius_), 0) : QString(kNoValue), degreeUnit());

    QRectF track(0.0, height() - kBar * scale, speed.width(), kBar * scale);
    painter.setPen(Qt::NoPen);
    painter.setBrush(style::tone(colour::kTrack));
    painter.drawRoundedRect(track, track.height() / 2.0, track.height() / 2.0);
    const double share = duty_ && rpm_ ? std::clamp(*duty_ / 100.0, 0.0, 1.0) : 0.0;
    if (share > 0.0) {
        QLinearGradient fill(0.0, 0.0, track.width(), 0.0);
        fill.setColorAt(0.0, style::tone(isEnabled() ? colour::kAccentDeep : colour::kStale));
        fill.setColorAt(1.0, style::tone(isEnabled() ? colour::kAccent : colour::kStale));
        painter.setBrush(fill);
        track.setWidth(std::max(track.width() * share, track.height()));
        painter.drawRoundedRect(track, track.height() / 2.0, track.height() / 2.0);
    }
    const QString duty = dutyText();
    painter.setFont(fittingFont(style::font(style::type::kLabel * scale), duty, speed.width()));
    painter.setPen(style::tone(isEnabled() ? colour::kTextSecondary : colour::kStale));
    painter.drawText(QRectF(0.0, height() - 22.0 * scale, speed.width(), 14.0 * scale),
                     Qt::AlignLeft | Qt::AlignVCenter, duty);
}

} // namespace zpsg::ui
