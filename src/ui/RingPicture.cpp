#include "ui/RingPicture.h"

#include "ui/Style.h"

#include <QKeyEvent>
#include <QLineF>
#include <QMouseEvent>

#include <algorithm>
#include <cmath>

namespace zpsg::ui {
namespace {

/// A click this many lamp radii from a light's middle is on it.
constexpr qreal kTouch = 1.7;
/// A press becomes a frame when it has moved this far, pixels.
constexpr qreal kFrameStart = 4.0;

} // namespace

RingPicture::RingPicture(lighting::RingKind kind, QWidget *parent)
    : QWidget(parent)
    , kind_(kind)
    , rings_(ringsOf(kind))
    , asOne_(rings_.size(), false)
    , leds_(ledCountOf(kind))
    , marks_(leds_.size())
    , selected_(leds_.size(), false)
    , cursor_(rings_.back().first) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(selectable() ? Qt::StrongFocus : Qt::NoFocus);
    retranslate();
}

void RingPicture::setLeds(std::span<const lighting::Colour> leds) {
    if (leds.size() != leds_.size() || std::equal(leds.begin(), leds.end(), leds_.begin())) {
        return;
    }
    leds_.assign(leds.begin(), leds.end());
    composed_ = false;
    update(fan_);
}

void RingPicture::setMarks(std::vector<std::optional<lighting::Colour>> marks) {
    if (marks.size() == marks_.size() && marks != marks_) {
        marks_ = std::move(marks);
        update();
    }
}

void RingPicture::setAsOne(std::size_t ring, bool asOne) {
    if (asOne_.at(ring) == asOne) {
        return;
    }
    asOne_.at(ring) = asOne;
    Selection selection = selected_;
    for (std::size_t led = 0; led < leds_.size(); ++led) {
        if (selected_.at(led)) {
            mark(selection, led, true);
        }
    }
    select(selection);
    update();
}

void RingPicture::setOff(bool off) {
    if (off != off_) {
        off_ = off;
        update();
    }
}

void RingPicture::retranslate() {
    setAccessibleName(qtTrId("LIGHTING_PICTURE"));
    if (selectable()) {
        setToolTip(qtTrId("LIGHTING_PICTURE_HINT"));
        setAccessibleDescription(
            qtTrId("LIGHTING_SOME_LIGHTS").arg(selectedCount()).arg(static_cast<int>(leds_.size())));
    }
    update();
}

std::size_t RingPicture::selectedCount() const {
    return static_cast<std::size_t>(std::count(selected_.begin(), selected_.end(), true));
}

void RingPicture::selectAll() { select(Selection(leds_.size(), selectable())); }

void RingPicture::selectNone() { select(Selection(leds_.size(), false)); }

void RingPicture::selectRing(std::size_t ring) {
    Selection selection(leds_.size(), false);
    for (std::size_t i = 0; i < rings_.at(ring).count; ++i) {
        selection.at(rings_.at(ring).first + i) = true;
    }
    select(selection);
}

void RingPicture::select(Selection selection) {
    if (selection == selected_) {
        return;
    }
    selected_ = std::move(selection);
    setAccessibleDescription(
        qtTrId("LIGHTING_SOME_LIGHTS").arg(selectedCount()).arg(static_cast<int>(leds_.size())));
    update();
    emit selectionChanged();
}

void RingPicture::mark(Selection &selection, std::size_t led, bool selected) const {
    const std::size_t ring = ringOf(led);
    if (!asOne_.at(ring)) {
        selection.at(led) = selected;
        return;
    }
    for (std::size_t i = 0; i < rings_.at(ring).count; ++i) {
        selection.at(rings_.at(ring).first + i) = selected;
    }
}

std::size_t RingPicture::ringOf(std::size_t led) const {
    const auto beyond =
        std::find_if(rings_.begin(), rings_.end(), [led](const LedRing &ring) { return ring.first > led; });
    return static_cast<std::size_t>(beyond - rings_.begin()) - 1;
}

QPointF RingPicture::ledCentre(std::size_t led) const {
    return centre_ + ledPlace(rings_.at(ringOf(led)), led) * radius_;
}

std::optional<std::size_t> RingPicture::ledAt(const QPointF &at) const {
    for (std::size_t led = 0; led < leds_.size(); ++led) {
        if (QLineF(ledCentre(led), at).length() <= kTouch * lampRadius(kind_) * radius_) {
            return led;
        }
    }
    return {};
}

QRectF RingPicture::frameRect() const { return QRectF(dragFrom_, dragAt_).normalized(); }

void RingPicture::mousePressEvent(QMouseEvent *event) {
    if (event->button() != Qt::LeftButton || !selectable()) {
        QWidget::mousePressEvent(event);
        return;
    }
    keyboard_ = false;
    const bool more = event->modifiers().testFlag(Qt::ShiftModifier);
    dragFrom_ = dragAt_ = event->localPos();
    dragKept_ = more ? selected_ : Selection(leds_.size(), false);
    const auto led = ledAt(event->localPos());
    if (led) {
        cursor_ = *led;
        mark(dragKept_, *led, !more || !selected_.at(*led));
        // A light that was taken away must not come back with the drag.
        drag_ = dragKept_.at(*led) ? Drag::Across : Drag::None;
        select(dragKept_);
    } else {
        drag_ = Drag::Frame;
    }
}

void RingPicture::mouseMoveEvent(QMouseEvent *event) {
    if (drag_ != Drag::None && event->buttons().testFlag(Qt::LeftButton)) {
        dragTo(event->localPos());
    }
}

void RingPicture::dragTo(const QPointF &at) {
    const QLineF way(dragAt_, at);
    dragAt_ = at;
    if (drag_ == Drag::Across) {
        // Steps small enough that a fast drag leaves out none.
        const int steps = 1 + static_cast<int>(way.length() / (lampRadius(kind_) * radius_));
        for (int i = 0; i <= steps; ++i) {
            if (const auto led = ledAt(way.pointAt(static_cast<qreal>(i) / steps))) {
                mark(dragKept_, *led, true);
                cursor_ = *led;
            }
        }
        select(dragKept_);
        return;
    }
    Selection selection = dragKept_;
    for (std::size_t led = 0; led < leds_.size(); ++led) {
        if (frameRect().contains(ledCentre(led))) {
            mark(selection, led, true);
        }
    }
    select(selection);
    update();
}

void RingPicture::mouseReleaseEvent(QMouseEvent *event) {
    const bool frame = std::exchange(drag_, Drag::None) == Drag::Frame;
    if (frame && QLineF(dragFrom_, event->localPos()).length() < kFrameStart) {
        select(dragKept_); // without Shift: none
    }
    update();
}

std::optional<std::size_t> RingPicture::neighbour(int key) const {
    const std::size_t at = ringOf(cursor_);
    const LedRing &ring = rings_.at(at);
    const std::size_t place = cursor_ - ring.first;
    if (rings_.size() > 1 && (key == Qt::Key_Up || key == Qt::Key_Down)) {
        // Outwards is up: the light of the other ring that is nearest on the same side.
        const std::size_t other = key == Qt::Key_Up ? rings_.size() - 1 : 0;
        const LedRing &to = rings_.at(other);
        return to.first + place * to.count / ring.count;
    }
    switch (key) {
    case Qt::Key_Right:
    case Qt::Key_Down:
        return ring.first + (place + 1) % ring.count;
    case Qt::Key_Left:
    case Qt::Key_Up:
        return ring.first + (place + ring.count - 1) % ring.count;
    default:
        return {};
    }
}

void RingPicture::moveCursor(std::size_t led, Qt::KeyboardModifiers modifiers) {
    cursor_ = led;
    update();
    if (!modifiers.testFlag(Qt::ControlModifier)) {
        Selection selection =
            modifiers.testFlag(Qt::ShiftModifier) ? selected_ : Selection(leds_.size(), false);
        mark(selection, led, true);
        select(selection);
    }
}

bool RingPicture::takeKey(const QKeyEvent &event) {
    if (!selectable()) {
        return false;
    }
    if (event.matches(QKeySequence::SelectAll)) {
        selectAll();
        return true;
    }
    if (event.key() == Qt::Key_Escape && selectedCount() > 0) {
        selectNone();
        return true;
    }
    if (event.key() == Qt::Key_Space) {
        Selection selection = selected_;
        mark(selection, cursor_, !selected_.at(cursor_));
        select(selection);
        return true;
    }
    const auto led = neighbour(event.key());
    if (led) {
        moveCursor(*led, event.modifiers());
    }
    return led.has_value();
}

void RingPicture::keyPressEvent(QKeyEvent *event) {
    keyboard_ = true;
    if (takeKey(*event)) {
        update();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void RingPicture::focusInEvent(QFocusEvent *event) {
    QWidget::focusInEvent(event);
    keyboard_ = event->reason() != Qt::MouseFocusReason;
    update();
}

void RingPicture::focusOutEvent(QFocusEvent *event) {
    QWidget::focusOutEvent(event);
    update();
}

} // namespace zpsg::ui
