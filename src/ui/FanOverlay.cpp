#include "ui/FanOverlay.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

namespace zpsg::ui {

FanOverlay::FanOverlay(QWidget *cover, QWidget *card) : QObject(cover), cover_(cover), card_(card) {
    cover->hide();
    cover->setFocusPolicy(Qt::NoFocus);
    cover->installEventFilter(this);
    if (cover->parentWidget() != nullptr) {
        cover->parentWidget()->installEventFilter(this);
    }
    connect(qApp, &QApplication::focusChanged, this, &FanOverlay::keepFocus);
}

void FanOverlay::coverParent() {
    if (cover_->parentWidget() != nullptr) {
        cover_->setGeometry(cover_->parentWidget()->rect());
    }
}

void FanOverlay::open(QWidget *first) {
    if (!cover_->isVisible()) {
        before_ = QApplication::focusWidget();
    }
    first_ = first;
    cover_->show(); // settles the sizes of the parent and of what the card holds
    coverParent();
    emit resized();
    cover_->raise();
    first->setFocus(Qt::PopupFocusReason);
}

void FanOverlay::close() {
    if (cover_->isHidden()) {
        return;
    }
    const bool focused =
        QApplication::focusWidget() != nullptr && cover_->isAncestorOf(QApplication::focusWidget());
    cover_->hide();
    if (focused && before_ != nullptr && before_->isVisible()) {
        before_->setFocus(Qt::PopupFocusReason);
    }
    before_.clear();
}

void FanOverlay::keepFocus(QWidget * /*before*/, QWidget *now) {
    if (now == nullptr || !cover_->isVisible() || cover_->parentWidget() == nullptr || first_ == nullptr) {
        return;
    }
    if (cover_->parentWidget()->isAncestorOf(now) && !cover_->isAncestorOf(now)) {
        first_->setFocus(Qt::TabFocusReason);
    }
}

bool FanOverlay::eventFilter(QObject *watched, QEvent *event) {
    if (watched != cover_) {
        if (event->type() == QEvent::Resize && cover_->isVisible()) {
            coverParent();
            emit resized();
        }
        return false;
    }
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        emit dismissed();
        return true;
    }
    if (event->type() == QEvent::MouseButtonPress) {
        if (!card_->geometry().contains(static_cast<QMouseEvent *>(event)->pos())) {
            emit dismissed();
        }
        return true;
    }
    return false;
}

} // namespace zpsg::ui
