#include "ui/PowerTrace.h"

#include "ui/Figures.h"
#include "ui/Style.h"
#include "ui/TraceCurve.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>

#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_grid.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>

#include <algorithm>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

/// Seconds on the axis.
constexpr double kWindowSeconds = TraceBuffer::kWindowMs / 1000.0;
/// Room right of "now" for the tag of the present value, pixels in a window of the usual size.
constexpr double kTagRoom = 66.0;

/// Labels and nothing else: the grid shows where they belong.
class BareScale : public QwtScaleDraw {
public:
    BareScale() {
        enableComponent(Backbone, false);
        enableComponent(Ticks, false);
        setSpacing(style::space::kS);
    }
};

/// Labels of the time axis: minutes before now.
class AgoScale : public BareScale {
public:
    [[nodiscard]] QwtText label(double seconds) const override {
        const int minutes = qRound(-seconds / 60.0);
        return minutes == 0 ? qtTrId("MAIN_STR_NOW") : qtTrId("MAIN_STR_MINUTES_AGO").arg(minutes);
    }
};

/// Labels of the watts axis, without a unit, which stands in the card's caption.
class WattsScale : public BareScale {
public:
    [[nodiscard]] QwtText label(double watts) const override {
        return formatFigure(watts, watts == static_cast<int>(watts) ? 0 : 1);
    }
};

void dress(QwtScaleWidget &axis, const QFont &font) {
    axis.setMargin(0);
    axis.setFont(font);
    QPalette palette = axis.palette();
    palette.setColor(QPalette::Text, style::tone(colour::kTextTertiary));
    palette.setColor(QPalette::WindowText, style::tone(colour::kTextTertiary));
    axis.setPalette(palette);
}

} // namespace

PowerTrace::PowerTrace(QWidget *parent)
    : Readout(parent), plot_(new QwtPlot(this)), curve_(new TraceCurve), empty_(new QLabel(this)) {
    empty_->setAlignment(Qt::AlignCenter);
    empty_->setProperty("tone", QStringLiteral("tertiary"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setUpPlot();
    retranslate();
    top_ = axisTop(0.0, 0.0);
}

void PowerTrace::setUpPlot() {
    plot_->setAutoReplot(false);
    plot_->setAttribute(Qt::WA_TransparentForMouseEvents);
    plot_->setFocusPolicy(Qt::NoFocus);
    plot_->setAxisScaleDraw(QwtPlot::yLeft, new WattsScale);

    auto *canvas = new QwtPlotCanvas(plot_);
    canvas->setFrameStyle(QFrame::NoFrame);
    canvas->setAutoFillBackground(false);
    canvas->setAttribute(Qt::WA_OpaquePaintEvent, false);
    // Without a backing store of its own the canvas lets the card shine through.
    canvas->setPaintAttribute(QwtPlotCanvas::BackingStore, false);
    canvas->setPaintAttribute(QwtPlotCanvas::Opaque, false);
    plot_->setCanvas(canvas);

    auto *grid = new QwtPlotGrid;
    grid->setPen(style::tone(colour::kGrid), 1.0);
    grid->attach(plot_);
    curve_->attach(plot_);
}

void PowerTrace::retranslate() {
    setAccessibleName(qtTrId("MAIN_STR_POWER_TRACE"));
    empty_->setText(qtTrId("MAIN_STR_NO_READINGS"));
    // A new one, because a scale keeps the labels that it has made.
    plot_->setAxisScaleDraw(QwtPlot::xBottom, new AgoScale);
    update();
}

void PowerTrace::append(qint64 msSinceEpoch, std::optional<double> watts) {
    buffer_.append({msSinceEpoch, watts});
    if (isVisible()) {
        replot();
    }
}

void PowerTrace::clear() {
    buffer_.clear();
    if (isVisible()) {
        replot();
    }
}

std::optional<double> PowerTrace::readoutValue() const {
    return buffer_.empty() ? std::nullopt : buffer_.latest().value;
}

QString PowerTrace::summaryText() const {
    const auto summary = buffer_.summary();
    if (!summary) {
        return {};
    }
    return qtTrId("MAIN_STR_TRACE_SUMMARY")
        .arg(formatFigure(summary->peak, 0), formatFigure(summary->average, 0));
}

void PowerTrace::scaleAxes() {
    const auto summary = buffer_.summary();
    top_ = axisTop(summary ? summary->peak : 0.0, top_);
    QList<double> watts;
    for (int i = 0; i <= 4; ++i) {
        watts << top_ * i / 4.0;
    }
    plot_->setAxisScaleDiv(QwtPlot::yLeft, QwtScaleDiv(0.0, top_, {}, {}, watts));

    const double tagRoom = kTagRoom * style::windowScale(*this);
    const double canvasWidth = std::max<double>(plot_->canvas()->width(), 2.0 * tagRoom);
    const double beyondNow = kWindowSeconds * tagRoom / (canvasWidth - tagRoom);
    QList<double> minutes;
    for (int minute = 5; minute >= 0; --minute) {
        minutes << -60.0 * minute;
    }
    plot_->setAxisScaleDiv(QwtPlot::xBottom, QwtScaleDiv(-kWindowSeconds, beyondNow, {}, {}, minutes));
}

void PowerTrace::replot() {
    scaleAxes();
    curve_->setStretches(buffer_.stretches());
    curve_->setMuted(!isEnabled());
    const std::optional<double> present = readoutValue();
    curve_->setPresent(present, present ? formatFigure(*present, 0) + QStringLiteral(" W") : QString());
    plot_->replot();
    empty_->setVisible(!buffer_.summary());
    update(style::CardLayout(*this).captionLine.toAlignedRect());
    announce();
}

void PowerTrace::showEvent(QShowEvent *event) {
    QWidget::showEvent(event);
    replot();
}

void PowerTrace::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    const style::CardLayout card(*this);
    const QFont font = style::font(style::type::kSmall * card.scale);
    for (const int axis : {QwtPlot::xBottom, QwtPlot::yLeft}) {
        dress(*plot_->axisWidget(axis), font);
    }
    const int left = qRound(card.margin);
    const int top = qRound(card.captionLine.bottom()) + style::space::kS;
    plot_->setGeometry(left, top, width() - 2 * left, height() - top - style::space::kS);
    empty_->setFont(style::font(style::type::kBody * card.scale));
    // Between two lines of the grid.
    empty_->setGeometry(left, top, plot_->width(), qRound(plot_->height() * 0.66));
    curve_->setScale(card.scale);
    if (isVisible()) {
        replot();
    }
}

void PowerTrace::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    if (event->type() == QEvent::EnabledChange && isVisible()) {
        replot();
    }
}

void PowerTrace::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    style::paintCard(painter, *this);
    const style::CardLayout card(*this);
    const QString caption = qtTrId("MAIN_STR_POWER_TRACE");
    const QFont captionFont = style::font(card.captionPixels, QFont::Medium);
    painter.setFont(captionFont);
    painter.setPen(style::tone(isEnabled() ? colour::kTextSecondary : colour::kStale));
    painter.drawText(card.captionLine, Qt::AlignLeft | Qt::AlignVCenter, caption);
    const QString summary = summaryText();
    const qreal room =
        card.captionLine.width() - QFontMetricsF(captionFont).horizontalAdvance(caption) - style::space::kXl;
    painter.setPen(style::tone(colour::kTextTertiary));
    painter.setFont(fittingFont(style::font(style::type::kLabel * card.scale), summary, room));
    painter.drawText(card.captionLine, Qt::AlignRight | Qt::AlignVCenter, summary);
}

} // namespace zpsg::ui
