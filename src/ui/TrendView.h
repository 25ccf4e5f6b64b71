// The base of the views at the foot of the dashboard: a card with a caption, a summary at the caption's right
// and a plot below.
#pragma once

#include "ui/Readout.h"

class QLabel;

namespace zpsg::ui {

class TrendPlot;

/// Plots only while it is visible.
class TrendView : public Readout {
    Q_OBJECT

public:
    explicit TrendView(QWidget *parent = nullptr);

    /// Keeps this much of the caption line's right end free, for what stands on the card there. Pixels.
    void setReserved(int pixels);

    [[nodiscard]] virtual QString captionText() const = 0;
    /// Empty when there is nothing to sum up.
    [[nodiscard]] virtual QString summaryText() const = 0;
    [[nodiscard]] QString readoutText() const override { return summaryText(); }

    [[nodiscard]] QSize sizeHint() const override { return {600, 210}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {320, 112}; }

protected:
    /// Texts in the language of now. The constructors of the classes below call it as well.
    virtual void retranslate() = 0;
    /// Brings what is known onto the plot. Called while the view is visible.
    virtual void replot() = 0;
    /// Called when the window's scale or the view's size has changed.
    virtual void layOut(qreal scale) = 0;
    /// The plot's place in the room below the caption.
    [[nodiscard]] virtual QRect plotPlace(const QRect &room) const { return room; }

    void refresh();
    void updateCaptionLine();
    /// Stands in the plot's place while there is nothing to plot.
    void setEmptyText(const QString &text);
    void showEmptyText(bool shown);
    [[nodiscard]] TrendPlot &plot() { return *plot_; }
    [[nodiscard]] const TrendPlot &plot() const { return *plot_; }
    /// The room below the caption, within the margins.
    [[nodiscard]] QRect room() const;
    /// Ticks of the left axis from 0 to `top`, as many as their labels have room for.
    [[nodiscard]] QList<double> levels(double top) const;

    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    TrendPlot *plot_;
    QLabel *empty_;
    int reserved_ = 0;
};

} // namespace zpsg::ui
