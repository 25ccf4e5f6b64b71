// What the plots at the foot of the dashboard have in common: no frame, a quiet grid, bare labels.
#pragma once

#include <qwt_plot.h>
#include <qwt_scale_draw.h>

#include <functional>

namespace zpsg::ui {

/// Labels and nothing else: the grid shows where they belong.
class BareScale : public QwtScaleDraw {
public:
    using Labels = std::function<QString(double)>;

    explicit BareScale(Labels labels);
    [[nodiscard]] QwtText label(double value) const override { return labels_(value); }

private:
    Labels labels_;
};

/// Lets the card behind it shine through and takes neither the mouse nor the focus. Replots when told to.
class TrendPlot : public QwtPlot {
    Q_OBJECT

public:
    explicit TrendPlot(QWidget *parent);

    /// How much larger than usual the axes' labels are.
    void setScale(qreal scale);
    /// Also asks for every label anew: a scale keeps those that it has made.
    void setLabels(int axis, const BareScale::Labels &labels);
    void setTicks(int axis, double from, double to, const QList<double> &ticks);
    /// The x axis' value at this place in the plot's parent.
    [[nodiscard]] double valueAt(const QPoint &inParent) const;
    /// Where the data are, in the plot's parent.
    [[nodiscard]] QRect canvasInParent() const;

private:
    void giveDescentRoom();
};

/// Whole numbers without places, others with one.
[[nodiscard]] QString axisFigure(double value);
/// 0, `top`, and three ticks between.
[[nodiscard]] QList<double> quarters(double top);

} // namespace zpsg::ui
