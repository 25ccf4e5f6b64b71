// What the picture of a ring looks like; what the user chooses in it is in RingPicture.cpp.
#include "ui/Figures.h"
#include "ui/LightingText.h"
#include "ui/RingPicture.h"
#include "ui/Style.h"

#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

/// Of the outline of a chosen light, in lamp radii.
constexpr qreal kOutline = 1.55;
/// Of the colour a light is set to: how far outside its middle, and how long and wide the mark is, in lamp
/// radii.
constexpr qreal kMarkAway = 1.72;
constexpr qreal kMarkAwayInside = 2.05;
constexpr qreal kMarkLength = 1.5;
constexpr qreal kMarkWidth = 0.3;
/// Where the lines to the rings' names leave them, degrees clockwise from the top: between two lights.
constexpr std::array kNameAngles{165.0, 195.0};

QPointF towards(qreal degrees) {
    const qreal angle = qDegreesToRadians(degrees - 90.0);
    return {std::cos(angle), std::sin(angle)};
}

} // namespace

void RingPicture::layOut() {
    const qreal names = rings_.size() > 1 ? style::type::kSmall * 2.2 * style::windowScale(*this) : 0.0;
    const qreal side = std::min<qreal>(width(), height() - names);
    radius_ = std::max(10.0, side / 2.0 / (1.0 + kFanSpill));
    centre_ = {width() / 2.0, (height() - names) / 2.0};
    const qreal reach = radius_ * (1.0 + kFanSpill);
    fan_ = QRectF(centre_ - QPointF(reach, reach), QSizeF(2.0 * reach, 2.0 * reach)).toAlignedRect();
    still_ = QImage();
}

void RingPicture::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    layOut();
}

void RingPicture::paintStill() {
    const qreal ratio = devicePixelRatioF();
    const QSize pixels = (QSizeF(fan_.size()) * ratio).toSize();
    const auto paint = [&](QImage &image, FanLook look) {
        QPainter painter(&image);
        painter.scale(ratio, ratio);
        painter.translate(centre_ - fan_.topLeft());
        painter.scale(radius_, radius_);
        paintFan(painter, kind_, look);
    };
    still_ = QImage(pixels, QImage::Format_ARGB32_Premultiplied);
    still_.fill(Qt::transparent);
    paint(still_, FanLook::Dark);
    surface_ = QImage(pixels, QImage::Format_Grayscale8);
    surface_.fill(0);
    paint(surface_, FanLook::Surface);
    const bool tube = !selectable();
    glow_ = RingGlow(tube ? rings_.front().radius * radius_ * ratio : 0.0,
                     lampRadius(kind_) * radius_ * ratio, kGlowReach * radius_ * ratio);
}

void RingPicture::compose() {
    const qreal ratio = devicePixelRatioF();
    if (still_.isNull() || still_.size() != (QSizeF(fan_.size()) * ratio).toSize()) {
        paintStill();
        composed_ = false;
    }
    if (composed_) {
        return;
    }
    frame_ = still_.copy();
    for (std::size_t led = 0; led < leds_.size(); ++led) {
        const QPointF at = selectable() ? ledCentre(led) : centre_;
        glow_.addTo(frame_, surface_, ((at - fan_.topLeft()) * ratio).toPoint(), leds_.at(led));
    }
    frame_.setDevicePixelRatio(ratio);
    composed_ = true;
}

void RingPicture::paintEvent(QPaintEvent * /*event*/) {
    compose();
    QPainter painter(this);
    painter.setOpacity(isEnabled() ? 1.0 : 0.5);
    painter.drawImage(fan_.topLeft(), frame_);
    painter.setRenderHint(QPainter::Antialiasing);
    paintMarks(painter);
    paintSelection(painter);
    paintTexts(painter);
    paintFrame(painter);
}

void RingPicture::paintMarks(QPainter &painter) const {
    const qreal lamp = lampRadius(kind_);
    for (const LedRing &ring : rings_) {
        if (ring.count == 1) {
            continue;
        }
        // The front ring's marks are on its inner side, where there is room.
        const bool inner = &ring != &rings_.back();
        const qreal radius = (ring.radius + (inner ? -kMarkAwayInside : kMarkAway) * lamp) * radius_;
        const qreal span = qRadiansToDegrees(kMarkLength * lamp * radius_ / radius);
        const QRectF box(centre_ - QPointF(radius, radius), QSizeF(2.0 * radius, 2.0 * radius));
        for (std::size_t led = ring.first; led < ring.first + ring.count; ++led) {
            if (const auto &set = marks_.at(led)) {
                const qreal step = 360.0 / static_cast<qreal>(ring.count);
                const qreal middle = 90.0 - step * static_cast<qreal>(led - ring.first);
                painter.setPen(
                    QPen(toQColor(*set), kMarkWidth * lamp * radius_, Qt::SolidLine, Qt::RoundCap));
                painter.drawArc(box, qRound((middle - span / 2.0) * 16.0), qRound(span * 16.0));
            }
        }
    }
}

void RingPicture::paintSelection(QPainter &painter) const {
    const qreal scale = style::windowScale(*this);
    const qreal lamp = lampRadius(kind_) * radius_;
    // Light on dark, so that it is seen on a white lamp as well as on a black one.
    const std::array pens{QPen(QColor(0, 0, 0, 190), 4.5 * scale),
                          QPen(style::tone(colour::kText), 2.0 * scale)};
    painter.setBrush(Qt::NoBrush);
    for (std::size_t ring = 0; ring < rings_.size(); ++ring) {
        const LedRing &of = rings_.at(ring);
        for (const QPen &pen : pens) {
            painter.setPen(pen);
            if (asOne_.at(ring) && selected_.at(of.first)) {
                for (const qreal away : {-kOutline, kOutline}) {
                    const qreal radius = of.radius * radius_ + away * lamp;
                    painter.drawEllipse(centre_, radius, radius);
                }
                continue;
            }
            for (std::size_t led = of.first; led < of.first + of.count; ++led) {
                if (selected_.at(led)) {
                    painter.drawEllipse(ledCentre(led), kOutline * lamp, kOutline * lamp);
                }
            }
        }
    }
    if (hasFocus() && keyboard_) {
        const qreal radius = (kOutline + 0.35) * lamp;
        painter.setPen(QPen(style::tone(colour::kAccent), 2.0 * scale, Qt::DotLine));
        painter.drawEllipse(ledCentre(cursor_), radius, radius);
    }
}

void RingPicture::paintTexts(QPainter &painter) const {
    const qreal scale = style::windowScale(*this);
    if (off_) {
        const QString text = qtTrId("LIGHTING_OFF");
        const qreal hub = kHubRadius * radius_;
        painter.setFont(fittingFont(style::font(0.5 * hub, QFont::DemiBold), text, 1.5 * hub));
        painter.setPen(style::tone(colour::kTextSecondary));
        painter.drawText(QRectF(centre_ - QPointF(hub, hub), QSizeF(2.0 * hub, 2.0 * hub)), Qt::AlignCenter,
                         text);
    }
    if (rings_.size() < 2) {
        return;
    }
    const std::array names{qtTrId("LIGHTING_RING_FRONT"), qtTrId("LIGHTING_RING_MIDDLE")};
    const QFont font = style::font(style::type::kSmall * scale);
    const qreal line = style::type::kSmall * 1.5 * scale;
    const qreal below = height() - line - 3.0 * scale;
    for (std::size_t ring = 0; ring < rings_.size(); ++ring) {
        const QPointF way = towards(kNameAngles.at(ring));
        const qreal from = rings_.at(ring).radius * radius_;
        const qreal to = (below - centre_.y()) / way.y();
        painter.setPen(QPen(style::tone(colour::kTextTertiary), scale));
        painter.drawLine(centre_ + way * from, centre_ + way * to);
        painter.setBrush(style::tone(colour::kTextTertiary));
        painter.drawEllipse(centre_ + way * from, 2.0 * scale, 2.0 * scale);

        const QString &name = names.at(ring);
        const QPointF foot = centre_ + way * to;
        const bool right = way.x() > 0.0;
        const QRectF room = right ? QRectF(foot.x() - 4.0 * scale, below, width() - foot.x(), line)
                                  : QRectF(0.0, below, foot.x() + 4.0 * scale, line);
        painter.setFont(fittingFont(font, name, room.width()));
        painter.setPen(style::tone(colour::kTextSecondary));
        painter.drawText(room, static_cast<int>(right ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter,
                         name);
    }
}

void RingPicture::paintFrame(QPainter &painter) const {
    if (drag_ == Drag::Frame && dragFrom_ != dragAt_) {
        painter.setPen(QPen(style::tone(colour::kAccent), 1.0));
        painter.setBrush(style::tone(colour::kAccent, 0.14));
        painter.drawRect(frameRect());
    }
    if (hasFocus() && keyboard_) {
        const qreal radius = 8.0 * style::windowScale(*this);
        painter.setPen(QPen(style::tone(colour::kAccent), 1.5));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.75, 0.75, -0.75, -0.75), radius, radius);
    }
}

} // namespace zpsg::ui
