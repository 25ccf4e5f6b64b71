#include "ui/PowerTrace.h"

#include "ui/Figures.h"
#include "ui/Style.h"
#include "ui/TraceCurve.h"
#include "ui/TrendPlot.h"

#include <algorithm>

namespace zpsg::ui {
namespace {

/// Seconds on the axis.
constexpr double kWindowSeconds = TraceBuffer::kWindowMs / 1000.0;
/// Room right of "now" for the tag of the present value, pixels in a window of the usual size.
constexpr double kTagRoom = 66.0;

QString agoLabel(double seconds) {
    const int minutes = qRound(-seconds / 60.0);
    return minutes == 0 ? qtTrId("MAIN_STR_NOW") : qtTrId("MAIN_STR_MINUTES_AGO").arg(minutes);
}

} // namespace

PowerTrace::PowerTrace(QWidget *parent) : TrendView(parent), curve_(new TraceCurve), top_(axisTop(0.0, 0.0)) {
    // Without a unit, which stands in the card's caption.
    plot().setLabels(QwtPlot::yLeft, axisFigure);
    curve_->attach(&plot());
    retranslate();
}

void PowerTrace::retranslate() {
    setAccessibleName(captionText());
    setEmptyText(qtTrId("MAIN_STR_NO_READINGS"));
    plot().setLabels(QwtPlot::xBottom, agoLabel);
}

void PowerTrace::append(qint64 msSinceEpoch, std::optional<double> watts) {
    buffer_.append({msSinceEpoch, watts});
    refresh();
}

void PowerTrace::clear() {
    buffer_.clear();
    refresh();
}

std::optional<double> PowerTrace::readoutValue() const {
    return buffer_.empty() ? std::nullopt : buffer_.latest().value;
}

QString PowerTrace::captionText() const { return qtTrId("MAIN_STR_POWER_TRACE"); }

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
    plot().setTicks(QwtPlot::yLeft, 0.0, top_, levels(top_));

    const double tagRoom = kTagRoom * style::windowScale(*this);
    const double canvasWidth = std::max<double>(plot().canvas()->width(), 2.0 * tagRoom);
    const double beyondNow = kWindowSeconds * tagRoom / (canvasWidth - tagRoom);
    QList<double> minutes;
    for (int minute = 5; minute >= 0; --minute) {
        minutes << -60.0 * minute;
    }
    plot().setTicks(QwtPlot::xBottom, -kWindowSeconds, beyondNow, minutes);
}

void PowerTrace::replot() {
    showEmptyText(!buffer_.summary());
    scaleAxes();
    curve_->setStretches(buffer_.stretches());
    curve_->setMuted(!isEnabled());
    const std::optional<double> present = readoutValue();
    curve_->setPresent(present, present ? formatFigure(*present, 0) + QStringLiteral(" W") : QString());
    plot().replot();
    updateCaptionLine();
    announce();
}

void PowerTrace::layOut(qreal scale) { curve_->setScale(scale); }

} // namespace zpsg::ui
