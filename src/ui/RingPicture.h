// The fan with its lights as they glow now, and the choice of those that are to be changed.
#pragma once

#include "ui/RingFan.h"
#include "ui/RingGlow.h"

#include <QWidget>

#include <optional>
#include <span>
#include <vector>

namespace zpsg::ui {

/// Lights are counted as in a frame: the Duo set's front ring first, then the middle one, each from the top
/// clockwise. A click chooses one, with Shift one more or one less; dragging chooses all that are touched or
/// framed; a click beside the lights chooses none, which stands for all. Ctrl+A chooses all, Escape none,
/// arrow keys move the choice (Shift: extend it, Ctrl: move the mark only), Space adds or takes away.
class RingPicture final : public QWidget {
    Q_OBJECT

public:
    explicit RingPicture(lighting::RingKind kind, QWidget *parent = nullptr);

    /// What the lights show; as many colours as there are lights, others are left out. Nothing is repainted
    /// when they are the same.
    void setLeds(std::span<const lighting::Colour> leds);
    /// The colour that each light is set to: a mark beside it. Nothing: the effect brings its own.
    void setMarks(std::vector<std::optional<lighting::Colour>> marks);
    /// The lights of this ring are chosen together only.
    void setAsOne(std::size_t ring, bool asOne);
    /// Says in the hub that the lights are off.
    void setOff(bool off);
    void retranslate();

    /// As set last.
    [[nodiscard]] const std::vector<lighting::Colour> &leds() const { return leds_; }
    [[nodiscard]] std::size_t ledCount() const { return leds_.size(); }
    [[nodiscard]] bool isSelected(std::size_t led) const { return selected_.at(led); }
    [[nodiscard]] std::size_t selectedCount() const;
    /// Of all rings, or of one.
    void selectAll();
    void selectRing(std::size_t ring);
    void selectNone();

    /// The middle of a light, in the widget's coordinates.
    [[nodiscard]] QPointF ledCentre(std::size_t led) const;

    [[nodiscard]] QSize sizeHint() const override { return {360, 360}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {180, 180}; }

signals:
    /// Other lights are chosen than before.
    void selectionChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    using Selection = std::vector<bool>;
    enum class Drag { None, Across, Frame };

    [[nodiscard]] bool selectable() const { return leds_.size() > 1; }
    [[nodiscard]] std::optional<std::size_t> ledAt(const QPointF &at) const;
    [[nodiscard]] std::size_t ringOf(std::size_t led) const;
    [[nodiscard]] QRectF frameRect() const;
    /// Adds or takes away a light, with the others of its ring when they are one.
    void mark(Selection &selection, std::size_t led, bool selected) const;
    void select(Selection selection);
    void dragTo(const QPointF &at);
    /// The light that an arrow key leads to from the one that is marked.
    [[nodiscard]] std::optional<std::size_t> neighbour(int key) const;
    [[nodiscard]] bool takeKey(const QKeyEvent &event);
    void moveCursor(std::size_t led, Qt::KeyboardModifiers modifiers);

    void layOut();
    void paintStill();
    void compose();
    void paintMarks(QPainter &painter) const;
    void paintSelection(QPainter &painter) const;
    void paintTexts(QPainter &painter) const;
    void paintFrame(QPainter &painter) const;

    lighting::RingKind kind_;
    std::vector<LedRing> rings_;
    std::vector<bool> asOne_; ///< one for each ring
    std::vector<lighting::Colour> leds_;
    std::vector<std::optional<lighting::Colour>> marks_;
    bool off_ = false;

    Selection selected_;
    std::size_t cursor_ = 0;
    bool keyboard_ =
        false; ///< the focus came, or something was chosen, by a key: the marks of both are shown
    Drag drag_ = Drag::None;
    QPointF dragFrom_;
    QPointF dragAt_;
    Selection dragKept_; ///< what was chosen before the drag and stays so

    // In the widget's coordinates.
    QPointF centre_;
    qreal radius_ = 1.0;
    QRect fan_; ///< what a new frame changes

    // As large as `fan_`, in the screen's pixels; null when they have to be made anew.
    QImage still_;
    QImage surface_;
    QImage frame_;
    RingGlow glow_;
    bool composed_ = false; ///< frame_ shows leds_
};

} // namespace zpsg::ui
