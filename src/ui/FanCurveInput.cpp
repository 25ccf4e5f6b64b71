// Mouse and keyboard on a fan curve.
#include "ui/FanCurveEditor.h"
#include "ui/FanPoints.h"
#include "ui/Style.h"
#include "ui/TrendPlot.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <cmath>

namespace zpsg::ui {
namespace {

/// A point is held within this distance of its middle, in a window of the usual size.
constexpr qreal kReach = 14.0;
/// With Shift the arrow keys go so much further.
constexpr double kFastSteps = 5.0;

} // namespace

std::optional<std::size_t> FanCurveEditor::pointAt(const QPointF &place) const {
    std::optional<std::size_t> nearest;
    qreal least = kReach * style::windowScale(*this);
    const auto &points = curve_.points();
    for (std::size_t i = 0; i < points.size(); ++i) {
        const QPointF away = placeOf(points[i]) - place;
        const qreal distance = std::hypot(away.x(), away.y());
        if (distance <= least) {
            least = distance;
            nearest = i;
        }
    }
    return nearest;
}

void FanCurveEditor::mousePressEvent(QMouseEvent *event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
    if (const auto held = pointAt(event->localPos())) {
        drag_ = Drag{curve_, placeOf(curve_.points()[*held]) - event->localPos()};
        select(held);
        setCursor(Qt::ClosedHandCursor);
    }
}

void FanCurveEditor::mouseMoveEvent(QMouseEvent *event) {
    if (drag_ && selected_) {
        const fan::CurvePoint to = valueAt(event->localPos() + drag_->grip);
        points()[*selected_] = movedPoint(points(), *selected_, to, curve_.source);
        refresh();
        return;
    }
    const auto hovered = pointAt(event->localPos());
    if (hovered != hovered_) {
        hovered_ = hovered;
        setCursor(hovered ? Qt::OpenHandCursor : Qt::ArrowCursor);
        refresh();
    }
}

void FanCurveEditor::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() != Qt::LeftButton || !drag_) {
        return;
    }
    const bool other = drag_->before != curve_;
    drag_.reset();
    hovered_ = pointAt(event->localPos());
    setCursor(hovered_ ? Qt::OpenHandCursor : Qt::ArrowCursor);
    if (other) {
        changed();
    } else {
        refresh();
    }
}

void FanCurveEditor::mouseDoubleClickEvent(QMouseEvent *event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
    if (pointAt(event->localPos())) {
        mousePressEvent(event); // the second press holds the point like the first
        return;
    }
    if (!plot_->canvasInParent().contains(event->pos())) {
        return;
    }
    if (const auto added = addPoint(points(), valueAt(event->localPos()), curve_.source)) {
        select(added);
        changed();
    }
}

void FanCurveEditor::leaveEvent(QEvent *event) {
    Readout::leaveEvent(event);
    if (hovered_ && !drag_) {
        hovered_.reset();
        refresh();
    }
}

void FanCurveEditor::focusInEvent(QFocusEvent *event) {
    Readout::focusInEvent(event);
    if (!selected_ && event->reason() != Qt::MouseFocusReason) {
        select(0); // the keys need one that they act on
        return;
    }
    refresh();
}

void FanCurveEditor::focusOutEvent(QFocusEvent *event) {
    Readout::focusOutEvent(event);
    refresh();
}

bool FanCurveEditor::selectByKey(const QKeyEvent &event) {
    const bool control = event.modifiers().testFlag(Qt::ControlModifier);
    const std::size_t last = curve_.points().size() - 1;
    const std::size_t here = selected_.value_or(0);
    switch (event.key()) {
    case Qt::Key_Home:
        select(0);
        return true;
    case Qt::Key_End:
        select(last);
        return true;
    case Qt::Key_PageUp:
        select(std::min(here + 1, last));
        return true;
    case Qt::Key_PageDown:
        select(here > 0 ? here - 1 : 0);
        return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
        if (control) {
            select(event.key() == Qt::Key_Right ? std::min(here + 1, last) : here > 0 ? here - 1 : 0);
        }
        return control;
    default:
        return false;
    }
}

bool FanCurveEditor::moveByKey(const QKeyEvent &event) {
    const double step = event.modifiers().testFlag(Qt::ShiftModifier) ? kFastSteps : 1.0;
    fan::CurvePoint by;
    switch (event.key()) {
    case Qt::Key_Left:
        by.at = -step;
        break;
    case Qt::Key_Right:
        by.at = step;
        break;
    case Qt::Key_Up:
        by.percent = step;
        break;
    case Qt::Key_Down:
        by.percent = -step;
        break;
    default:
        return false;
    }
    if (!selected_) {
        select(0);
        return true;
    }
    fan::CurvePoint &point = points()[*selected_];
    const fan::CurvePoint to{point.at + by.at, point.percent + by.percent};
    const fan::CurvePoint moved = movedPoint(points(), *selected_, to, curve_.source);
    if (moved != point) {
        point = moved;
        changed();
    }
    return true;
}

void FanCurveEditor::keyPressEvent(QKeyEvent *event) {
    if (drag_) {
        if (event->key() == Qt::Key_Escape) {
            curve_ = drag_->before;
            drag_.reset();
            refresh();
        }
        return;
    }
    switch (event->key()) {
    case Qt::Key_Insert:
    case Qt::Key_Plus:
        addOne();
        return;
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
    case Qt::Key_Minus:
        removeSelected();
        return;
    default:
        break;
    }
    if (!selectByKey(*event) && !moveByKey(*event)) {
        Readout::keyPressEvent(event);
    }
}

} // namespace zpsg::ui
