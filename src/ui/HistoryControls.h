// Small controls that the parts of the history page share.
#pragma once

#include "ui/Controls.h"

#include <QDateEdit>
#include <QPushButton>

namespace zpsg::ui {

class TrendPlot;

/// What the page's controls look like beyond the window's own sheet.
[[nodiscard]] QString historySheet();
/// Room for the labels of a plot's axes, once they are set: at the left so much that the page's plots begin
/// at the same place, and below for what hangs from a line of text, which a scale leaves out.
void giveLabelsRoom(TrendPlot &plot, qreal scale);

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

} // namespace zpsg::ui
