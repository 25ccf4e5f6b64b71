#include "ui/TitleButton.h"

#include "ui/Style.h"

#include <QKeyEvent>
#include <QPainter>

namespace zpsg::ui {

TitleButton::TitleButton(Icon icon, const QColor &hover, QWidget *parent)
    : QAbstractButton(parent), icon_(icon), hover_(hover) {
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize TitleButton::sizeHint() const { return QSize(40, 30) * style::windowScale(*this); }

void TitleButton::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

void TitleButton::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF surface = QRectF(rect()).adjusted(1.0, 1.0, -1.0, -1.0);
    if (isDown() || underMouse()) {
        QColor fill = hover_;
        if (isDown()) {
            fill.setAlphaF(fill.alphaF() * 0.6);
        }
        painter.setPen(Qt::NoPen);
        painter.setBrush(fill);
        painter.drawRoundedRect(surface, 6.0, 6.0);
    }
    if (hasFocus()) {
        painter.setPen(QPen(style::tone(style::colour::kAccent), 1.5));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(surface, 6.0, 6.0);
    }
    const bool lit = underMouse() || isDown() || hasFocus();
    const qreal side = 13.0 * style::windowScale(*this);
    const QRectF sign(QRectF(rect()).center() - QPointF(side, side) / 2.0, QSizeF(side, side));
    paintIcon(painter, icon_, sign, style::tone(lit ? style::colour::kText : style::colour::kTextSecondary));
}

} // namespace zpsg::ui
