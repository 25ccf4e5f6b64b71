#include "ui/DayView.h"

#include "power/DayProfile.h"
#include "ui/DayBars.h"
#include "ui/Figures.h"
#include "ui/TraceBuffer.h"
#include "ui/TrendPlot.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QTime>

#include <algorithm>
#include <cmath>
#include <utility>

namespace zpsg::ui {
namespace {

using power::kBucketMinutes;
using power::kDayBuckets;

constexpr int kBucketsInThreeHours = 180 / kBucketMinutes;
constexpr int kMinutesOfDay = 24 * 60;
constexpr int kDayBegins = 6 * 60;

/// The time of day at which a bucket begins; the one after the last is six o'clock again.
QString clockText(int bucket) {
    const int minute = (kDayBegins + bucket * kBucketMinutes) % kMinutesOfDay;
    return QTime(minute / 60, minute % 60).toString(QStringLiteral("HH:mm"));
}

} // namespace

QString bucketSpan(int bucket) {
    return clockText(bucket) + QChar(0x2013) + clockText(bucket + 1); // en dash
}

DayView::DayView(QWidget *parent)
    : TrendView(parent), watts_(kDayBuckets, 0.0F), top_(axisTop(0.0, 0.0)), bars_(new DayBars) {
    setMouseTracking(true);
    // Without a unit, which stands in the card's caption.
    plot().setLabels(QwtPlot::yLeft, axisFigure);
    plot().setLabels(QwtPlot::xBottom, [](double bucket) { return clockText(qRound(bucket)); });
    QList<double> hours;
    for (int bucket = 0; bucket <= kDayBuckets; bucket += kBucketsInThreeHours) {
        hours << bucket;
    }
    plot().setTicks(QwtPlot::xBottom, 0.0, kDayBuckets, hours);
    bars_->attach(&plot());
    retranslate();
}

void DayView::retranslate() {
    setAccessibleName(captionText());
    setToolTip(qtTrId("MAIN_STR_DAY_EXPLAINED"));
    setEmptyText(qtTrId("MAIN_STR_DAY_EMPTY"));
}

void DayView::showDay(const std::vector<float> &bucketWatts, int usageMinutes, int bucketNow) {
    std::vector<float> watts = bucketWatts;
    watts.resize(kDayBuckets, 0.0F);
    const std::optional<int> now =
        bucketNow >= 0 && bucketNow < kDayBuckets ? std::optional(bucketNow) : std::nullopt;
    if (watts == watts_ && usageMinutes == usageMinutes_ && now == now_) {
        return;
    }
    watts_ = std::move(watts);
    usageMinutes_ = usageMinutes;
    now_ = now;
    double sum = 0.0;
    int filled = 0;
    peak_ = 0.0;
    for (const float bucket : watts_) {
        if (bucket > 0.0F) {
            sum += bucket;
            peak_ = std::max<double>(peak_, bucket);
            ++filled;
        }
    }
    average_ = filled > 0 ? std::optional(sum / filled) : std::nullopt;
    refresh();
}

QString DayView::captionText() const { return qtTrId("MAIN_STR_DAY"); }

QString DayView::summaryText() const {
    const QString usage = qtTrId("MAIN_STR_DAY_USAGE").arg(usageMinutes_ / 60).arg(usageMinutes_ % 60);
    if (!average_) {
        return usageMinutes_ > 0 ? usage : QString();
    }
    return qtTrId("MAIN_STR_DAY_SUMMARY").arg(formatFigure(*average_, 0), formatFigure(peak_, 0), usage);
}

QString DayView::pointedText() const {
    if (!pointed_) {
        return {};
    }
    const float watts = watts_.at(static_cast<std::size_t>(*pointed_));
    return watts > 0.0F ? qtTrId("MAIN_STR_DAY_BAR").arg(bucketSpan(*pointed_), formatFigure(watts, 0))
                        : qtTrId("MAIN_STR_DAY_NO_BAR").arg(bucketSpan(*pointed_));
}

std::optional<double> DayView::readoutValue() const { return average_; }

void DayView::replot() {
    showEmptyText(!average_);
    top_ = axisTop(peak_, top_);
    plot().setTicks(QwtPlot::yLeft, 0.0, top_, levels(top_));
    bars_->setWatts(watts_);
    bars_->setNow(now_, qtTrId("MAIN_STR_NOW"));
    bars_->setPointed(pointed_, pointedText());
    bars_->setMuted(!isEnabled());
    plot().replot();
    updateCaptionLine();
    announce();
}

void DayView::layOut(qreal scale) { bars_->setScale(scale); }

void DayView::point(std::optional<int> bucket) {
    if (bucket != pointed_) {
        pointed_ = bucket;
        bars_->setPointed(pointed_, pointedText());
        plot().canvas()->update();
    }
}

bool DayView::event(QEvent *event) {
    // On the bars there is a tag already.
    if (event->type() == QEvent::ToolTip && static_cast<QHelpEvent *>(event)->pos().y() >= room().top()) {
        event->ignore();
        return true;
    }
    return TrendView::event(event);
}

void DayView::mouseMoveEvent(QMouseEvent *event) {
    const double bucket = std::floor(plot().valueAt(event->pos()));
    const bool onBars = average_ && isEnabled() && plot().canvasInParent().contains(event->pos()) &&
                        bucket >= 0.0 && bucket < kDayBuckets;
    point(onBars ? std::optional(static_cast<int>(bucket)) : std::nullopt);
    QWidget::mouseMoveEvent(event);
}

void DayView::leaveEvent(QEvent *event) {
    point(std::nullopt);
    QWidget::leaveEvent(event);
}

void DayView::hideEvent(QHideEvent *event) {
    point(std::nullopt);
    QWidget::hideEvent(event);
}

} // namespace zpsg::ui
