#include "ui/popupWidget.h"

#include "ui/FanModeButton.h"
#include "ui/FanOverlay.h"
#include "ui/Style.h"

#include <QLayout>
#include <QPainter>

#include <algorithm>

namespace zpsg::ui {

namespace colour = style::colour;

popupWidget::popupWidget(QWidget *parent)
    : FanSelector(Place::ColumnApart, parent), overlay_(new FanOverlay(this, surface())) {
    connect(this, &FanSelector::returnSelectFunction, this, &popupWidget::closeSelf);
    connect(overlay_, &FanOverlay::dismissed, this, &popupWidget::closeSelf);
    connect(overlay_, &FanOverlay::resized, this, &popupWidget::place);
    applyScale(1.0);
}

void popupWidget::openAt(const QWidget *anchor) {
    anchor_ = anchor;
    applyScale(style::windowScale(*this));
    const bool known = mode() != fan::FanMode::Custom || button(mode())->isChosen();
    overlay_->open(button(known ? mode() : fan::FanMode::ZeroFan));
}

void popupWidget::closeSelf() { overlay_->close(); }

void popupWidget::applyScale(qreal scale) {
    FanSelector::applyScale(scale);
    const int margin = qRound(style::space::kS * scale);
    surface()->layout()->setContentsMargins(margin, margin, margin, margin);
    surface()->layout()->setSpacing(qRound(2.0 * scale));
    place();
}

void popupWidget::place() {
    surface()->layout()->invalidate();
    surface()->layout()->activate(); // asks what is within it anew
    QRect card(QPoint(0, 0), surface()->layout()->sizeHint());
    if (anchor_ != nullptr && parentWidget() != nullptr) {
        const QRect anchor(anchor_->mapTo(parentWidget(), QPoint(0, 0)), anchor_->size());
        const int gap = qRound(style::space::kXs * style::windowScale(*this));
        card.setWidth(std::max(card.width(), anchor.width()));
        card.moveTopLeft(anchor.bottomLeft() + QPoint(0, gap));
        if (card.bottom() > height()) {
            card.moveBottom(anchor.top() - gap);
        }
        card.moveRight(std::min(card.right(), width() - gap));
    }
    surface()->setGeometry(card);
    update();
}

void popupWidget::paintEvent(QPaintEvent * /*event*/) {
    const qreal radius = style::kCardRadius * style::windowScale(*this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), style::tone(colour::kWindowBottom, 0.25));
    painter.setPen(QPen(style::tone(colour::kStale, 0.7), 1.0));
    painter.setBrush(QColor(38, 42, 46));
    painter.drawRoundedRect(QRectF(surface()->geometry()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

} // namespace zpsg::ui
