#include "ui/ToggleSwitch.h"

#include "ui/Icons.h"
#include "ui/Style.h"

#include <QKeyEvent>
#include <QPainter>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

/// Of the track, in a window of the usual size.
constexpr qreal kWidth = 38.0;
constexpr qreal kHeight = 22.0;
/// Around the track, for the mark of the focus.
constexpr qreal kRing = 3.0;

} // namespace

ToggleSwitch::ToggleSwitch(QWidget *parent) : QAbstractButton(parent) {
    setCheckable(true);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize ToggleSwitch::sizeHint() const {
    return (QSizeF(kWidth + 2 * kRing, kHeight + 2 * kRing) * style::windowScale(*this)).toSize();
}

void ToggleSwitch::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

void ToggleSwitch::paintEvent(QPaintEvent * /*event*/) {
    const qreal scale = style::windowScale(*this);
    const bool lit = underMouse() || isDown();
    QRectF track(0.0, 0.0, kWidth * scale, kHeight * scale);
    track.moveCenter(QRectF(rect()).center());
    const qreal half = track.height() / 2.0;

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled() ? 1.0 : 0.5);
    QRgb edge = isChecked() ? colour::kAccent : colour::kTextTertiary;
    if (lit) {
        edge = isChecked() ? colour::kText : colour::kTextSecondary;
    }
    painter.setPen(QPen(style::tone(edge), 1.25));
    painter.setBrush(style::tone(isChecked() ? colour::kAccentDeep : colour::kTrack));
    painter.drawRoundedRect(track.adjusted(0.6, 0.6, -0.6, -0.6), half, half);

    const qreal radius = half - (isChecked() ? 3.0 : 4.5) * scale;
    const QPointF centre(isChecked() ? track.right() - half : track.left() + half, track.center().y());
    painter.setPen(Qt::NoPen);
    painter.setBrush(style::tone(isChecked() || lit ? colour::kText : colour::kTextSecondary));
    painter.drawEllipse(centre, radius, radius);
    if (isChecked()) {
        const QRectF sign(centre - QPointF(radius, radius), QSizeF(2.0 * radius, 2.0 * radius));
        const qreal inset = 0.22 * sign.width();
        paintIcon(painter, Icon::Tick, sign.adjusted(inset, inset, -inset, -inset),
                  style::tone(colour::kAccentDeep));
    }
    if (hasFocus()) {
        const qreal reach = kRing * scale - 0.75;
        painter.setPen(QPen(style::tone(colour::kAccent), 1.5));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(track.adjusted(-reach, -reach, reach, reach), half + reach, half + reach);
    }
}

} // namespace zpsg::ui
