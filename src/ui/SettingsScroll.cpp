#include "ui/SettingsScroll.h"

#include "ui/SettingRow.h"
#include "ui/SettingsSections.h"
#include "ui/Style.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace zpsg::ui {
namespace {

/// The widest that rows may become, in a window of the usual size: beyond it the eye loses the way from a
/// name to its control.
constexpr qreal kWidest = 1120.0;

} // namespace

SettingsScroll::SettingsScroll(QWidget *parent) : QScrollArea(parent) {
    auto *content = new QWidget;
    column_ = new QVBoxLayout(content);
    column_->addStretch(1);
    setWidget(content);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget * /*old*/, QWidget *now) { follow(now); });
}

void SettingsScroll::addSection(SettingsSection *section) {
    section->setVisible(sections_.empty());
    column_->insertWidget(static_cast<int>(sections_.size()), section);
    sections_.push_back(section);
}

void SettingsScroll::setCurrent(int section) {
    current_ = section;
    for (std::size_t i = 0; i < sections_.size(); ++i) {
        sections_.at(i)->setVisible(static_cast<int>(i) == section);
    }
    verticalScrollBar()->setValue(0);
}

void SettingsScroll::applyScale(qreal scale) {
    scale_ = scale;
    verticalScrollBar()->setSingleStep(qRound(20.0 * scale));
    for (SettingsSection *section : sections_) {
        section->applyScale(scale);
    }
    column_->setContentsMargins(0, 0, column_->contentsMargins().right(), qRound(style::space::kL * scale));
}

// The bar comes and goes in the margin, so that the rows keep their place.
void SettingsScroll::resizeEvent(QResizeEvent *event) {
    QScrollArea::resizeEvent(event);
    const int bar = width() - viewport()->width();
    const int margin = std::max(0, qRound(style::space::kL * scale_) - bar);
    const int beyond = viewport()->width() - margin - qRound(kWidest * scale_);
    QMargins margins = column_->contentsMargins();
    margins.setRight(margin + std::max(0, beyond));
    column_->setContentsMargins(margins);
}

void SettingsScroll::follow(const QWidget *focus) {
    // What is clicked must not slip away below the pointer.
    if (focus == nullptr || !content()->isAncestorOf(focus) ||
        QGuiApplication::mouseButtons() != Qt::NoButton) {
        return;
    }
    const QWidget *shown = focus;
    for (const QWidget *up = focus; up != content(); up = up->parentWidget()) {
        if (qobject_cast<const SettingRow *>(up) != nullptr) {
            shown = up;
        }
    }
    const QRect place(shown->mapTo(content(), QPoint()), shown->size());
    const int margin = qRound(style::space::kM * scale_);
    ensureVisible(place.center().x(), place.bottom(), 0, margin);
    ensureVisible(place.center().x(), place.top(), 0, margin);
}

void SettingsScroll::keyPressEvent(QKeyEvent *event) {
    switch (event->key()) {
    case Qt::Key_Home:
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMinimum);
        return;
    case Qt::Key_End:
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMaximum);
        return;
    default:
        QScrollArea::keyPressEvent(event);
    }
}

} // namespace zpsg::ui
