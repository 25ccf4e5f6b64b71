// What a gauge looks like; when it is painted is in ArcGauge.cpp.
#include "ui/ArcGauge.h"
#include "ui/Figures.h"
#include "ui/Style.h"

#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

constexpr double kStartDegrees = 225.0; ///< counter-clockwise from three o'clock, the painter's way
constexpr double kSpanDegrees = 270.0;
/// From the ring's top to the lower edge of what stands in its opening, in radii.
constexpr double kReach = 1.88;
/// Between the note and the labels at the arc's ends, pixels.
constexpr qreal kApart = 3.0;
/// Smaller than this the note does not stand in the arc's opening, pixels.
constexpr int kLeastNote = 10;

int painterAngle(double degrees) { return qRound(degrees * 16.0); }

/// Unit vector from the centre to the point of the arc at this share.
QPointF direction(double share) {
    const double angle = qDegreesToRadians(kStartDegrees - share * kSpanDegrees);
    return {std::cos(angle), -std::sin(angle)};
}

QPen ringPen(const QBrush &brush, qreal width, Qt::PenCapStyle cap = Qt::RoundCap) {
    return {brush, width, Qt::SolidLine, cap};
}

} // namespace

ArcGauge::Face ArcGauge::layOut() const {
    const bool hero = prominence_ == Prominence::Hero;
    Face face;
    face.enlargement =
        hero ? style::enlargement(*this, 340.0, 330.0) : style::enlargement(*this, 212.0, 166.0);
    const style::CardLayout card(*this);
    const qreal top = card.captionLine.bottom() + (hero ? style::space::kXs * card.scale : 0.0);
    const QRectF room(card.margin, top, width() - 2.0 * card.margin, height() - top - card.margin);
    // Labels stand outside the hero's ring.
    const QSizeF labels = hero ? QSizeF(30.0, 16.0) * face.enlargement : QSizeF(0.0, 0.0);
    const qreal outer =
        std::min(room.width() / 2.0 - labels.width(), (room.height() - labels.height()) / kReach);
    face.stroke = outer * (hero ? 0.105 : 0.115);
    face.radius = outer - face.stroke / 2.0;
    const qreal spare = room.height() - labels.height() - outer * kReach;
    face.centre = QPointF(room.center().x(), room.top() + labels.height() + spare * 0.5 + outer);
    return face;
}

void ArcGauge::paintEvent(QPaintEvent * /*event*/) {
    const qreal ratio = devicePixelRatioF();
    if (background_.isNull() || background_.devicePixelRatioF() != ratio) {
        background_ = QPixmap(size() * ratio);
        background_.setDevicePixelRatio(ratio);
        background_.fill(Qt::transparent);
        QPainter painter(&background_);
        paintBackground(painter);
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, background_);
    painter.setRenderHint(QPainter::Antialiasing);
    paintArc(painter);
    paintTexts(painter);
}

void ArcGauge::paintBackground(QPainter &painter) const {
    style::paintCard(painter, *this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(ringPen(style::tone(colour::kTrack), face_.stroke));
    painter.drawArc(face_.ring(), painterAngle(kStartDegrees), painterAngle(-kSpanDegrees));
    if (cautionFrom_ && *cautionFrom_ < scale_.to) {
        const qreal inset = face_.stroke * 0.5 + 3.0 * face_.enlargement;
        painter.setPen(ringPen(style::tone(isEnabled() ? colour::kCaution : colour::kStale, 0.75),
                               2.0 * face_.enlargement, Qt::FlatCap));
        const double from = share(*cautionFrom_);
        painter.drawArc(face_.ring().adjusted(inset, inset, -inset, -inset),
                        painterAngle(kStartDegrees - from * kSpanDegrees),
                        painterAngle(-(1.0 - from) * kSpanDegrees));
    }
    if (prominence_ == Prominence::Hero) {
        paintTicks(painter);
    }
}

void ArcGauge::paintDivisions(QPainter &painter, const QRectF &note) const {
    const bool hero = prominence_ == Prominence::Hero;
    const qreal pixels = std::max<qreal>(hero ? 11.0 : 10.0, (hero ? 11.0 : 10.0) * face_.enlargement);
    const FigureFont labels(style::font(pixels));
    const int marks = hero ? scale_.divisions : 1;
    std::vector<std::pair<QPointF, QString>> places; // the base line's middle
    bool room = true;
    for (int i = 0; i <= marks; ++i) {
        const double part = static_cast<double>(i) / marks;
        const QString text = formatFigure(std::lerp(scale_.from, scale_.to, part), 0);
        const qreal half = labels.width(text) / 2.0;
        const QPointF towards = direction(part);
        QPointF at = face_.centre + towards * (face_.radius + face_.stroke / 2.0 + 5.0 * face_.enlargement);
        if (hero) {
            at += QPointF(towards.x() * half, towards.y() * labels.digitHeight() / 2.0);
        } else {
            // Below the arc's ends.
            at = QPointF(face_.centre.x() + towards.x() * face_.radius, endLabelMiddle());
        }
        at.ry() += labels.digitHeight() / 2.0;
        const QRectF label(at.x() - half, at.y() - labels.digitHeight(), 2.0 * half, labels.digitHeight());
        room = room && !label.adjusted(-kApart, -kApart, kApart, kApart).intersects(note);
        places.emplace_back(at, text);
    }
    painter.setPen(style::tone(colour::kTextTertiary));
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (room || (i > 0 && i + 1 < places.size())) {
            labels.drawCentred(painter, places[i].first, places[i].second);
        }
    }
}

qreal ArcGauge::endLabelMiddle() const {
    return face_.centre.y() + direction(0.0).y() * face_.radius + face_.stroke * 0.5 +
           7.0 * face_.enlargement;
}

void ArcGauge::paintTicks(QPainter &painter) const {
    constexpr int kPerDivision = 4;
    painter.save();
    const qreal outer = face_.radius - face_.stroke * 0.5 - 6.0 * face_.enlargement;
    for (int i = 0; i <= scale_.divisions * kPerDivision; ++i) {
        const bool major = i % kPerDivision == 0;
        const QPointF towards = direction(static_cast<double>(i) / (scale_.divisions * kPerDivision));
        painter.setPen(QPen(style::tone(colour::kTextTertiary, major ? 0.9 : 0.4), face_.enlargement));
        painter.drawLine(face_.centre + towards * outer,
                         face_.centre + towards * (outer - (major ? 7.0 : 4.0) * face_.enlargement));
    }
    painter.restore();
}

void ArcGauge::paintArc(QPainter &painter) const {
    if (shown_ <= 0.0005) {
        return;
    }
    const bool hero = prominence_ == Prominence::Hero;
    QBrush brush(style::tone(colour::kStale));
    if (!stale_ && isEnabled()) {
        const QColor bright = style::tone(cautious() ? colour::kCaution : colour::kAccent);
        // The sweep gets brighter towards the top of the range; the seam lies in the opening.
        QConicalGradient sweep(face_.centre, kStartDegrees - kSpanDegrees - 45.0);
        sweep.setColorAt(0.125, bright);
        sweep.setColorAt(0.875, cautious() ? bright : style::tone(colour::kAccentDeep));
        brush = sweep;
    }
    const int span = painterAngle(-shown_ * kSpanDegrees);
    if (hero && !stale_ && isEnabled()) {
        painter.setPen(
            ringPen(style::tone(cautious() ? colour::kCaution : colour::kAccent, 0.10), face_.stroke * 1.7));
        painter.drawArc(face_.ring(), painterAngle(kStartDegrees), span);
    }
    painter.setPen(ringPen(brush, face_.stroke));
    painter.drawArc(face_.ring(), painterAngle(kStartDegrees), span);
    painter.setPen(Qt::NoPen);
    painter.setBrush(style::tone(colour::kText, stale_ ? 0.45 : 0.95));
    const qreal dot = face_.stroke * 0.24;
    painter.drawEllipse(face_.centre + direction(shown_) * face_.radius, dot, dot);
}

void ArcGauge::paintTexts(QPainter &painter) const {
    paintCaption(painter);
    paintFigure(painter);
    paintDivisions(painter, paintNote(painter));
}

void ArcGauge::paintCaption(QPainter &painter) const {
    const style::CardLayout card(*this);
    painter.setFont(
        fittingFont(style::font(card.captionPixels, QFont::Medium), caption_, card.captionLine.width()));
    painter.setPen(style::tone(isEnabled() ? colour::kTextSecondary : colour::kStale));
    painter.drawText(card.captionLine, Qt::AlignLeft | Qt::AlignVCenter, caption_);
}

void ArcGauge::paintFigure(QPainter &painter) const {
    const bool hero = prominence_ == Prominence::Hero;
    const bool current = value_ && !stale_ && isEnabled();
    const qreal inner = face_.radius - face_.stroke / 2.0;
    QFont valueFont = style::font(inner * (hero ? 0.60 : 0.52), QFont::DemiBold);
    valueFont.setLetterSpacing(QFont::PercentageSpacing, 98.0);
    FigureFont figures(valueFont);
    if (figures.width(figure_) > inner * 1.62) {
        valueFont.setPixelSize(qFloor(valueFont.pixelSize() * inner * 1.62 / figures.width(figure_)));
        figures = FigureFont(valueFont);
    }
    painter.setPen(style::tone(current ? colour::kText : colour::kStale));
    const QPointF base = face_.centre + QPointF(0.0, figures.digitHeight() * 0.5 - inner * 0.10);
    figures.drawCentred(painter, base, figure_);

    const qreal unitPixels = std::max<qreal>(style::type::kSmall, inner * (hero ? 0.19 : 0.20));
    painter.setPen(style::tone(current ? colour::kTextSecondary : colour::kStale));
    painter.setFont(style::font(unitPixels, QFont::Medium));
    painter.drawText(QRectF(face_.centre.x() - inner, base.y() + inner * 0.08, inner * 2.0, unitPixels * 1.5),
                     Qt::AlignCenter, unit_);
}

QRectF ArcGauge::paintNote(QPainter &painter) const {
    const QString note = noteText();
    if (note.isEmpty()) {
        return {};
    }
    const bool hero = prominence_ == Prominence::Hero;
    const bool current = value_ && !stale_ && isEnabled();
    const qreal inner = face_.radius - face_.stroke / 2.0;
    const qreal notePixels = std::max<qreal>(style::type::kSmall, inner * (hero ? 0.125 : 0.17));
    const QColor tint = current && cautious() ? style::tone(colour::kCaution)
                                              : style::tone(current ? colour::kText : colour::kStale, 0.9);
    const QFont usual = style::font(notePixels, QFont::Medium);
    // The smaller gauge's note stands between the ends of the arc.
    QFont font = fittingFont(usual, note, inner * (hero ? 1.36 : 1.26));
    QRectF line(face_.centre.x() - inner, face_.centre.y() + inner * (hero ? 0.62 : 0.56), inner * 2.0,
                notePixels * 1.5);
    if (!hero && font.pixelSize() < std::min(kLeastNote, usual.pixelSize())) {
        // Too long for the opening: below it, in the place of the labels at the arc's ends.
        const style::CardLayout card(*this);
        font = fittingFont(usual, note, card.captionLine.width());
        const qreal middle = endLabelMiddle();
        line = QRectF(card.captionLine.left(), middle - notePixels * 0.75, card.captionLine.width(),
                      notePixels * 1.5);
    }
    painter.setPen(tint);
    painter.setFont(font);
    painter.drawText(line, Qt::AlignCenter, note);
    QRectF letters(QPointF(), QSizeF(QFontMetricsF(font).horizontalAdvance(note), font.pixelSize()));
    letters.moveCenter(line.center());
    return letters;
}

} // namespace zpsg::ui
