#include "ui/LevelSlider.h"

#include "ui/Style.h"

#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

/// All in a window of the usual size.
constexpr qreal kHeight = 24.0;
constexpr qreal kTrack = 5.0;
constexpr qreal kKnob = 8.0;

} // namespace

LevelSlider::LevelSlider(QWidget *parent) : QSlider(Qt::Horizontal, parent) {
    setRange(0, 100);
    setPageStep(10);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QSlider::valueChanged, this, &LevelSlider::levelChosen);
}

void LevelSlider::showLevel(int percent) {
    const QSignalBlocker quiet(this);
    setValue(percent);
}

QSize LevelSlider::sizeHint() const { return (QSizeF(160.0, kHeight) * style::windowScale(*this)).toSize(); }

QSize LevelSlider::minimumSizeHint() const { return {sizeHint().width() / 2, sizeHint().height()}; }

qreal LevelSlider::knob() const { return kKnob * style::windowScale(*this); }

int LevelSlider::levelAt(qreal x) const {
    const qreal margin = knob() + 2.0;
    const qreal share = (x - margin) / std::max(1.0, width() - 2.0 * margin);
    return minimum() + qRound(share * (maximum() - minimum()));
}

void LevelSlider::mousePressEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton) {
        setSliderDown(true);
        setValue(levelAt(event->localPos().x()));
    }
}

void LevelSlider::mouseMoveEvent(QMouseEvent *event) {
    if (isSliderDown()) {
        setValue(levelAt(event->localPos().x()));
    }
}

void LevelSlider::mouseReleaseEvent(QMouseEvent * /*event*/) { setSliderDown(false); }

// One that the pointer only happens to be on must not change while the user scrolls.
void LevelSlider::wheelEvent(QWheelEvent *event) {
    if (hasFocus()) {
        QSlider::wheelEvent(event);
    } else {
        event->ignore();
    }
}

void LevelSlider::paintEvent(QPaintEvent * /*event*/) {
    const qreal scale = style::windowScale(*this);
    const qreal margin = knob() + 2.0;
    const qreal middle = height() / 2.0;
    const qreal share = static_cast<qreal>(value() - minimum()) / std::max(1, maximum() - minimum());
    const qreal at = margin + (width() - 2.0 * margin) * share;
    const qreal half = kTrack * scale / 2.0;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(style::tone(colour::kTrack));
    painter.drawRoundedRect(QRectF(margin - half, middle - half, width() - 2.0 * (margin - half), 2.0 * half),
                            half, half);
    const bool lit = underMouse() || isSliderDown();
    if (isEnabled()) {
        QLinearGradient fill(margin, 0.0, width() - margin, 0.0);
        fill.setColorAt(0.0, style::tone(colour::kAccentDeep));
        fill.setColorAt(1.0, style::tone(colour::kAccent));
        painter.setBrush(fill);
        painter.drawRoundedRect(QRectF(margin - half, middle - half, at - margin + 2.0 * half, 2.0 * half),
                                half, half);
    }
    painter.setPen(QPen(style::tone(colour::kWindowTop), 1.5));
    painter.setBrush(style::tone(!isEnabled() ? colour::kStale : lit ? colour::kText : qRgb(222, 226, 230)));
    painter.drawEllipse(QPointF(at, middle), knob() - 1.0, knob() - 1.0);
    if (hasFocus()) {
        painter.setPen(QPen(style::tone(colour::kAccent), 1.75));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(QPointF(at, middle), knob() + 1.0, knob() + 1.0);
    }
}

} // namespace zpsg::ui
