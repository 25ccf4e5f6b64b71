#include "ui/ColourWheel.h"

#include "ui/Style.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLineF>
#include <QMouseEvent>
#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

/// Around the disc, for the focus and for the mark on its edge.
constexpr qreal kRim = 7.0;
constexpr qreal kMark = 7.0;
constexpr double kHueStep = 10.0;
constexpr double kSaturationStep = 0.1;
/// With Shift.
constexpr double kFine = 0.1;

/// Red at the top, clockwise.
QPointF towards(double hue) {
    const double angle = qDegreesToRadians(hue - 90.0);
    return {std::cos(angle), std::sin(angle)};
}

double hueAt(const QPointF &offset) {
    const double degrees = qRadiansToDegrees(std::atan2(offset.y(), offset.x())) + 90.0;
    return degrees < 0.0 ? degrees + 360.0 : degrees;
}

QColor pure(double hue, double saturation) {
    return QColor::fromHsvF(std::fmod(hue, 360.0) / 360.0, std::clamp(saturation, 0.0, 1.0), 1.0).toRgb();
}

} // namespace

ColourWheel::ColourWheel(QWidget *parent) : Readout(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::CrossCursor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ColourWheel::setColour(const QColor &colour) {
    const QColor plain = QColor(colour.red(), colour.green(), colour.blue());
    if (plain == colour_) {
        return;
    }
    colour_ = plain;
    saturation_ = plain.hsvSaturationF();
    if (plain.hsvHue() >= 0) {
        hue_ = plain.hsvHueF() * 360.0;
    }
    update();
    announce();
}

QString ColourWheel::readoutText() const { return colour_.name().toUpper(); }

qreal ColourWheel::radius() const {
    return std::min(width(), height()) / 2.0 - kRim * style::windowScale(*this);
}

QPixmap ColourWheel::makeDisc(qreal ratio) const {
    const qreal reach = radius() * ratio;
    const int side = 2 * static_cast<int>(std::ceil(reach)) + 2;
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < side; ++y) {
        auto *row = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < side; ++x) {
            const QPointF offset(x + 0.5 - side / 2.0, y + 0.5 - side / 2.0);
            const qreal distance = std::hypot(offset.x(), offset.y());
            QColor at = pure(hueAt(offset), distance / reach);
            if (!isEnabled()) {
                const int grey = qGray(at.rgb()) / 3;
                at = QColor(grey, grey, grey);
            }
            at.setAlphaF(std::clamp(reach - distance + 0.5, 0.0, 1.0));
            row[x] = qPremultiply(at.rgba());
        }
    }
    QPixmap disc = QPixmap::fromImage(image);
    disc.setDevicePixelRatio(ratio);
    return disc;
}

void ColourWheel::paintEvent(QPaintEvent * /*event*/) {
    const qreal ratio = devicePixelRatioF();
    const int side = 2 * static_cast<int>(std::ceil(radius() * ratio)) + 2;
    if (disc_.width() != side || disc_.devicePixelRatioF() != ratio) {
        disc_ = makeDisc(ratio);
    }
    const qreal scale = style::windowScale(*this);
    const QPointF centre = QRectF(rect()).center();
    const qreal half = side / ratio / 2.0;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawPixmap(centre - QPointF(half, half), disc_);
    painter.setBrush(Qt::NoBrush);
    if (hasFocus()) {
        painter.setPen(QPen(style::tone(colour::kAccent), 1.5));
        const qreal ring = radius() + (kRim - 2.5) * scale;
        painter.drawEllipse(centre, ring, ring);
    }
    if (!isEnabled()) {
        return;
    }
    const QPointF at = centre + towards(hue_) * saturation_ * radius();
    painter.setPen(QPen(QColor(0, 0, 0, 200), 4.5 * scale));
    painter.setBrush(pure(hue_, saturation_));
    painter.drawEllipse(at, kMark * scale, kMark * scale);
    painter.setPen(QPen(style::tone(colour::kText), 2.0 * scale));
    painter.drawEllipse(at, kMark * scale, kMark * scale);
}

void ColourWheel::pick(double hue, double saturation) {
    hue_ = std::fmod(hue + 360.0, 360.0);
    saturation_ = std::clamp(saturation, 0.0, 1.0);
    update();
    const QColor picked = pure(hue_, saturation_);
    if (picked != colour_) {
        colour_ = picked;
        announce();
        emit colourPicked(colour_);
    }
}

void ColourWheel::pickAt(const QPointF &at) {
    const QPointF offset = at - QRectF(rect()).center();
    pick(hueAt(offset), std::hypot(offset.x(), offset.y()) / std::max(1.0, radius()));
}

void ColourWheel::mousePressEvent(QMouseEvent *event) {
    const QPointF offset = event->localPos() - QRectF(rect()).center();
    if (event->button() == Qt::LeftButton &&
        std::hypot(offset.x(), offset.y()) <= radius() + kRim * style::windowScale(*this)) {
        pickAt(event->localPos());
    } else {
        event->ignore();
    }
}

void ColourWheel::mouseMoveEvent(QMouseEvent *event) {
    if (event->buttons().testFlag(Qt::LeftButton)) {
        pickAt(event->localPos());
    }
}

void ColourWheel::keyPressEvent(QKeyEvent *event) {
    const double part = event->modifiers().testFlag(Qt::ShiftModifier) ? kFine : 1.0;
    switch (event->key()) {
    case Qt::Key_Left:
        pick(hue_ - kHueStep * part, saturation_);
        break;
    case Qt::Key_Right:
        pick(hue_ + kHueStep * part, saturation_);
        break;
    case Qt::Key_Up:
        pick(hue_, saturation_ + kSaturationStep * part);
        break;
    case Qt::Key_Down:
        pick(hue_, saturation_ - kSaturationStep * part);
        break;
    default:
        Readout::keyPressEvent(event);
    }
}

void ColourWheel::changeEvent(QEvent *event) {
    Readout::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) {
        disc_ = QPixmap();
        setCursor(isEnabled() ? Qt::CrossCursor : Qt::ArrowCursor);
    }
}

} // namespace zpsg::ui
