// Mouse and keyboard on the day's plot.
#include "ui/Controls.h"
#include "ui/HistoryDayView.h"
#include "ui/TrendPlot.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>

#include <cmath>

namespace zpsg::ui {
namespace {

/// A notch of the wheel, or a key, makes what is in view so much shorter.
constexpr double kZoomStep = 1.3;
/// A key moves the view by so much of its length.
constexpr double kMoveStep = 0.15;
/// What is further from a minute than this many seconds, or pixels, is not at it.
constexpr double kReachSeconds = 90.0;
constexpr double kReachPixels = 4.0;

} // namespace

void HistoryDayView::pointAt(const QPoint &at) {
    const QRect canvas = plot().canvasInParent();
    if (minutes_.empty() || !canvas.contains(at)) {
        point(std::nullopt);
        return;
    }
    const double seconds = plot().valueAt(at);
    const auto row = minutes_.nearest(seconds);
    const double pixel = window_.length() / std::max(canvas.width(), 1);
    const double reach = std::max(kReachSeconds, kReachPixels * pixel);
    point(row && std::abs(minutes_.seconds(*row) - seconds) <= reach ? row : std::nullopt);
}

void HistoryDayView::pointBeside(int step) {
    const auto [first, past] = minutes_.rows(window_.from, window_.to);
    if (first == past) {
        return;
    }
    if (!pointed_) {
        point(step > 0 ? first : past - 1);
    } else if (step < 0 ? *pointed_ > 0 : *pointed_ + 1 < minutes_.size()) {
        const std::size_t row = step > 0 ? *pointed_ + 1 : *pointed_ - 1;
        const double seconds = minutes_.seconds(row);
        if (!window_.shows(seconds)) {
            // The view follows, with the minute in its middle.
            view(window_.moved(seconds - (window_.from + window_.to) / 2.0, minutes_.length()));
        }
        point(row);
    }
}

void HistoryDayView::updateCursor(const QPoint &at) {
    const bool onPlot = !minutes_.empty() && plot().canvasInParent().contains(at);
    setCursor(drag_ ? Qt::ClosedHandCursor : onPlot && zoomedIn() ? Qt::OpenHandCursor : Qt::ArrowCursor);
}

void HistoryDayView::wheelEvent(QWheelEvent *event) {
    const QPoint at = event->position().toPoint();
    if (minutes_.empty() || !plot().canvasInParent().contains(at)) {
        TrendView::wheelEvent(event);
        return;
    }
    const double notches = event->angleDelta().y() / 120.0;
    if (notches != 0.0) {
        view(window_.zoomed(plot().valueAt(at), std::pow(kZoomStep, -notches), minutes_.length()));
    } else if (event->angleDelta().x() != 0) {
        view(window_.moved(-event->angleDelta().x() / 120.0 * kMoveStep * window_.length(),
                           minutes_.length()));
    }
    pointAt(at);
    updateCursor(at);
    event->accept();
}

void HistoryDayView::mousePressEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton && !minutes_.empty() &&
        plot().canvasInParent().contains(event->pos())) {
        drag_ = Drag{event->x(), window_};
        updateCursor(event->pos());
    }
}

void HistoryDayView::mouseMoveEvent(QMouseEvent *event) {
    if (drag_ && zoomedIn()) {
        const double pixel = window_.length() / std::max(plot().canvasInParent().width(), 1);
        view(drag_->window.moved((drag_->x - event->x()) * pixel, minutes_.length()));
    }
    pointAt(event->pos());
    updateCursor(event->pos());
}

void HistoryDayView::mouseReleaseEvent(QMouseEvent *event) {
    drag_.reset();
    updateCursor(event->pos());
}

void HistoryDayView::mouseDoubleClickEvent(QMouseEvent *event) {
    if (plot().canvasInParent().contains(event->pos())) {
        view({0.0, minutes_.length()});
        pointAt(event->pos());
        updateCursor(event->pos());
    }
}

void HistoryDayView::keyPressEvent(QKeyEvent *event) {
    const double day = minutes_.length();
    const bool marked = pointed_ && window_.shows(minutes_.seconds(*pointed_));
    const double at = marked ? minutes_.seconds(*pointed_) : (window_.from + window_.to) / 2.0;
    const bool shift = event->modifiers().testFlag(Qt::ShiftModifier);
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        view(window_.zoomed(at, 1.0 / kZoomStep, day));
        return;
    case Qt::Key_Minus:
        view(window_.zoomed(at, kZoomStep, day));
        return;
    case Qt::Key_Home:
    case Qt::Key_0:
        view({0.0, day});
        return;
    case Qt::Key_Left:
    case Qt::Key_Right: {
        const int step = event->key() == Qt::Key_Left ? -1 : 1;
        if (shift) {
            pointBeside(step);
        } else {
            view(window_.moved(step * kMoveStep * window_.length(), day));
        }
        return;
    }
    case Qt::Key_Escape:
        point(std::nullopt);
        return;
    default:
        TrendView::keyPressEvent(event);
    }
}

bool HistoryDayView::event(QEvent *event) {
    // On the plot there is a tag already.
    if (event->type() == QEvent::ToolTip &&
        plot().geometry().contains(static_cast<QHelpEvent *>(event)->pos())) {
        event->ignore();
        return true;
    }
    return TrendView::event(event);
}

void HistoryDayView::paintEvent(QPaintEvent *event) {
    TrendView::paintEvent(event);
    if (focusShown_) {
        QPainter painter(this);
        drawFocus(painter, *this);
    }
}

void HistoryDayView::focusInEvent(QFocusEvent *event) {
    TrendView::focusInEvent(event);
    focusShown_ = event->reason() != Qt::MouseFocusReason;
    update();
}

void HistoryDayView::focusOutEvent(QFocusEvent *event) {
    TrendView::focusOutEvent(event);
    focusShown_ = false;
    point(std::nullopt);
    update();
}

void HistoryDayView::leaveEvent(QEvent *event) {
    point(std::nullopt);
    TrendView::leaveEvent(event);
}

void HistoryDayView::hideEvent(QHideEvent *event) {
    drag_.reset();
    point(std::nullopt);
    TrendView::hideEvent(event);
}

} // namespace zpsg::ui
