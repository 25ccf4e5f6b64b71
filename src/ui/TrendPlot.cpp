#include "ui/TrendPlot.h"

#include "ui/Figures.h"
#include "ui/Style.h"

#include <QFontMetricsF>

#include <qwt_plot_canvas.h>
#include <qwt_plot_grid.h>
#include <qwt_scale_map.h>
#include <qwt_scale_widget.h>

#include <cmath>
#include <utility>

namespace zpsg::ui {

namespace colour = style::colour;

BareScale::BareScale(Labels labels) : labels_(std::move(labels)) {
    enableComponent(Backbone, false);
    enableComponent(Ticks, false);
    setSpacing(style::space::kS);
}

TrendPlot::TrendPlot(QWidget *parent) : QwtPlot(parent) {
    setAutoReplot(false);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);

    auto *surface = new QwtPlotCanvas(this);
    surface->setFrameStyle(QFrame::NoFrame);
    surface->setAutoFillBackground(false);
    surface->setAttribute(Qt::WA_OpaquePaintEvent, false);
    // Without a backing store of its own the canvas lets the card shine through.
    surface->setPaintAttribute(QwtPlotCanvas::BackingStore, false);
    surface->setPaintAttribute(QwtPlotCanvas::Opaque, false);
    setCanvas(surface);

    auto *grid = new QwtPlotGrid;
    grid->setPen(style::tone(colour::kGrid), 1.0);
    grid->attach(this);
}

void TrendPlot::setScale(qreal scale) {
    for (const int axis : {xBottom, yLeft}) {
        QwtScaleWidget &labels = *axisWidget(axis);
        labels.setMargin(0);
        labels.setFont(style::font(style::type::kSmall * scale));
        QPalette colours = labels.palette();
        colours.setColor(QPalette::Text, style::tone(colour::kTextTertiary));
        colours.setColor(QPalette::WindowText, style::tone(colour::kTextTertiary));
        labels.setPalette(colours);
    }
    giveDescentRoom();
}

void TrendPlot::setLabels(int axis, const BareScale::Labels &labels) {
    setAxisScaleDraw(axis, new BareScale(labels));
    giveDescentRoom();
}

void TrendPlot::giveDescentRoom() {
    // A scale is as high as its letters are above the base line.
    const QFontMetricsF metrics(axisWidget(xBottom)->font());
    axisScaleDraw(xBottom)->setMinimumExtent(style::space::kS + std::ceil(metrics.height()));
}

void TrendPlot::setTicks(int axis, double from, double to, const QList<double> &ticks) {
    setAxisScaleDiv(axis, QwtScaleDiv(from, to, {}, {}, ticks));
}

double TrendPlot::valueAt(const QPoint &inParent) const {
    // A pixel's middle, so that a place belongs to the bar that is painted there.
    return canvasMap(xBottom).invTransform(inParent.x() - canvasInParent().left() + 0.5);
}

QRect TrendPlot::canvasInParent() const { return canvas()->geometry().translated(pos()); }

QString axisFigure(double value) { return formatFigure(value, value == static_cast<int>(value) ? 0 : 1); }

QList<double> quarters(double top) { return {0.0, 0.25 * top, 0.5 * top, 0.75 * top, top}; }

} // namespace zpsg::ui
