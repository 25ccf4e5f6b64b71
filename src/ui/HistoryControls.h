// Small controls that the parts of the history page share.
#pragma once

#include <QDateEdit>
#include <QLabel>
#include <QPushButton>

namespace zpsg::ui {

class TrendPlot;

/// Of the controls in a row, in a window of the usual size.
inline constexpr qreal kControlHeight = 28.0;

/// What the page's controls look like beyond the window's own sheet.
[[nodiscard]] QString historySheet();
/// Room for the labels of a plot's axes, once they are set: at the left so much that the page's plots begin
/// at the same place, and below for what hangs from a line of text, which a scale leaves out.
void giveLabelsRoom(TrendPlot &plot, qreal scale);
/// Around the card of `widget`, while it has the focus.
void drawFocus(QPainter &painter, const QWidget &widget);

/// The surface that other controls stand on.
class HistoryCard : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent *event) override;
};

/// A button with an arrow that points back or forward.
class StepButton final : public QPushButton {
    Q_OBJECT

public:
    /// `step`: -1 back, +1 forward.
    StepButton(int step, QWidget *parent) : QPushButton(parent), step_(step) {}

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int step_;
};

/// A date with a calendar that opens below it.
class HistoryDateEdit final : public QDateEdit {
    Q_OBJECT

public:
    explicit HistoryDateEdit(QWidget *parent);
    /// Font, height and format for a window of this scale, in the language of now.
    void applyScale(qreal scale);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

/// One line that is cut in its middle, with the whole as its tip, where there is no room.
class ElidedLabel final : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
};

} // namespace zpsg::ui
