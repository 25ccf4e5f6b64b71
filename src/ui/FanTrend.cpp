#include "ui/FanTrend.h"

#include "ui/FanModeLook.h"
#include "ui/FanTrace.h"
#include "ui/Figures.h"
#include "ui/HistoryControls.h"
#include "ui/Style.h"
#include "ui/Temperature.h"
#include "ui/TrendPlot.h"

#include <QDateTime>
#include <QMouseEvent>
#include <QPainter>

#include <qwt_scale_widget.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

constexpr double kWindowSeconds = static_cast<double>(FanHour::kWindowMs) / 1000.0;
constexpr std::array kShown{HistoryQuantity::Fan, HistoryQuantity::Temperature};

QString agoLabel(double seconds) {
    return seconds > -1.0 ? qtTrId("MAIN_STR_NOW")
                          : qtTrId("MAIN_STR_MINUTES_AGO").arg(qRound(-seconds / 60.0));
}

QString valueText(HistoryQuantity quantity, float value) {
    if (std::isnan(value)) {
        return kNoValue;
    }
    if (quantity == HistoryQuantity::Fan && value == 0.0F) {
        return qtTrId("MAIN_STR_FAN_STANDS");
    }
    return quantity == HistoryQuantity::Temperature
               ? degreesText(static_cast<double>(value))
               : QStringLiteral("%1 %2").arg(formatFigure(static_cast<double>(value), 0), unitOf(quantity));
}

} // namespace

FanTrend::FanTrend(QWidget *parent)
    : TrendView(parent)
    , speed_(new FanTrace(HistoryQuantity::Fan))
    , temperature_(new FanTrace(HistoryQuantity::Temperature))
    , modes_(new FanModeStrip)
    , pointer_(new FanPointer) {
    setMouseTracking(true);
    temperature_->setYAxis(QwtPlot::yRight);
    plot().enableAxis(QwtPlot::yRight);
    for (QwtPlotItem *item : std::array<QwtPlotItem *, 4>{speed_, temperature_, modes_, pointer_}) {
        item->attach(&plot());
    }
    retranslate();
}

void FanTrend::retranslate() {
    setAccessibleName(captionText());
    setEmptyText(qtTrId("FAN_HOUR_EMPTY"));
    plot().setLabels(QwtPlot::xBottom, agoLabel);
}

QString FanTrend::captionText() const { return qtTrId("FAN_LAST_HOUR"); }

QString FanTrend::readoutText() const {
    const auto rpm = hour_.range(&FanSample::rpm);
    const auto celsius = hour_.range(&FanSample::celsius);
    if (!rpm || !celsius) {
        return kNoValue;
    }
    return qtTrId("FAN_HOUR_SPOKEN")
        .arg(formatFigure(rpm->least, 0), formatFigure(rpm->most, 0),
             formatFigure(degrees(celsius->least), 0), degreesText(celsius->most));
}

std::optional<double> FanTrend::readoutValue() const {
    if (hour_.empty() || std::isnan(hour_.latest().rpm)) {
        return std::nullopt;
    }
    return static_cast<double>(hour_.latest().rpm);
}

std::pair<double, double> FanTrend::readoutRange() const {
    const auto rpm = hour_.range(&FanSample::rpm);
    return rpm ? std::pair(rpm->least, rpm->most) : std::pair(0.0, 0.0);
}

std::int64_t FanTrend::columnMs() const {
    const double pixels = std::max(plot().canvas()->width() * devicePixelRatioF(), 1.0);
    return static_cast<std::int64_t>(std::ceil(static_cast<double>(FanHour::kWindowMs) / pixels));
}

void FanTrend::take(const FanSample &sample) {
    const bool wasEmpty = hour_.empty();
    const bool otherMode = !wasEmpty && hour_.latest().mode != sample.mode;
    hour_.append(sample);
    // Until there is a pixel's worth of news, a minute at first, nothing changes to be seen.
    const std::int64_t since = sample.ms - drawnMs_;
    if (wasEmpty || otherMode || since < 0 || since >= columnMs()) {
        refresh();
    }
}

void FanTrend::plotAxis(int axis, HistoryQuantity quantity, float FanSample::*value) {
    const auto range = hour_.range(value);
    // The axis is in what is plotted, its ticks are round in what is read.
    const bool warm = quantity == HistoryQuantity::Temperature;
    const auto read = [warm](double at) { return warm ? degrees(at) : at; };
    const auto place = [warm](double at) { return warm ? celsiusOf(at) : at; };
    const ValueScale scale = range ? scaleFor(quantity, read(range->least), read(range->most))
                                   : scaleFor(quantity, read(20.0), read(60.0));
    QList<double> ticks = scale.ticks();
    std::transform(ticks.begin(), ticks.end(), ticks.begin(), place);
    // Below the lowest tick there is room for the strip of the modes.
    const double strip = (kModeStrip + style::space::kXs) * style::windowScale(*this);
    const double share = std::min(strip / std::max(plot().canvas()->height(), 1), 0.4);
    const double below = (scale.high() - scale.low) * share / (1.0 - share);
    plot().setLabels(axis,
                     [quantity, scale, read](double tick) { return axisText(quantity, scale, read(tick)); });
    plot().setTicks(axis, place(scale.low - below), place(scale.high()), ticks);
    QwtScaleWidget &labels = *plot().axisWidget(axis);
    labels.setMargin(0);
    labels.setFont(style::font(style::type::kSmall * style::windowScale(*this)));
    QPalette colours = labels.palette();
    colours.setColor(QPalette::Text, inkOf(quantity));
    colours.setColor(QPalette::WindowText, inkOf(quantity));
    labels.setPalette(colours);
}

void FanTrend::replot() {
    showEmptyText(hour_.empty());
    if (hour_.empty()) {
        return;
    }
    const qreal scale = style::windowScale(*this);
    drawnMs_ = hour_.latest().ms;
    QList<double> ticks;
    const int step = plot().canvas()->width() < 320.0 * scale   ? 20
                     : plot().canvas()->width() < 640.0 * scale ? 15
                                                                : 10;
    for (int minutes = 60; minutes >= 0; minutes -= step) {
        ticks << -60.0 * minutes;
    }
    plot().setTicks(QwtPlot::xBottom, -kWindowSeconds, 0.0, ticks);
    giveLabelsRoom(plot(), scale);
    plot().updateLayout();
    plotAxis(QwtPlot::yLeft, HistoryQuantity::Fan, &FanSample::rpm);
    plotAxis(QwtPlot::yRight, HistoryQuantity::Temperature, &FanSample::celsius);
    const std::int64_t column = columnMs();
    speed_->setStretches(hour_.stretches(&FanSample::rpm, column));
    speed_->setStops(hour_.stops(), qtTrId("MAIN_STR_FAN_STANDS"));
    temperature_->setStretches(hour_.stretches(&FanSample::celsius, column));
    modes_->setSpans(hour_.modes());
    pointAt(pointed_);
    plot().replot();
}

void FanTrend::layOut(qreal scale) {
    speed_->setScale(scale);
    temperature_->setScale(scale);
    modes_->setScale(scale);
    pointer_->setScale(scale);
}

void FanTrend::pointAt(std::optional<double> seconds) {
    pointed_ = seconds;
    pointer_->clear();
    const double reach =
        std::max(static_cast<double>(FanHour::kGapMs), 3.0 * static_cast<double>(columnMs()));
    const auto index = seconds ? hour_.nearest(*seconds, reach / 1000.0) : std::nullopt;
    if (index) {
        const FanSample &sample = hour_.at(*index);
        HistoryTag tag;
        tag.title = QDateTime::fromMSecsSinceEpoch(sample.ms).toString(QStringLiteral("HH:mm:ss"));
        for (const HistoryQuantity quantity : kShown) {
            const float value = quantity == HistoryQuantity::Fan ? sample.rpm : sample.celsius;
            tag.lines.push_back({nameOf(quantity), valueText(quantity, value),
                                 [quantity](QPainter &painter, const QRectF &place) {
                                     drawSample(painter, quantity, curvesOf(quantity).front(), place,
                                                inkOf(quantity));
                                 }});
        }
        tag.lines.push_back({qtTrId("FAN_MODE"), nameOf(sample.mode), {}});
        pointer_->point(static_cast<double>(sample.ms - hour_.latest().ms) / 1000.0, tag);
    }
}

void FanTrend::mouseMoveEvent(QMouseEvent *event) {
    const bool on = plot().isVisible() && plot().canvasInParent().contains(event->pos());
    pointAt(on ? std::optional(plot().valueAt(event->pos())) : std::nullopt);
    plot().canvas()->update();
}

void FanTrend::leaveEvent(QEvent *event) {
    TrendView::leaveEvent(event);
    pointAt(std::nullopt);
    plot().canvas()->update();
}

void FanTrend::paintEvent(QPaintEvent *event) {
    TrendView::paintEvent(event);
    const style::CardLayout card(*this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QFont font = style::font(style::type::kLabel * card.scale);
    const QFontMetricsF metrics(font);
    painter.setFont(font);
    qreal right = card.captionLine.right();
    for (const HistoryQuantity quantity : {HistoryQuantity::Temperature, HistoryQuantity::Fan}) {
        const QString words = QStringLiteral("%1 %2").arg(nameOf(quantity), unitOf(quantity));
        const qreal wide = metrics.horizontalAdvance(words);
        painter.setPen(style::tone(colour::kTextSecondary));
        painter.drawText(QRectF(right - wide, card.captionLine.top(), wide + 2.0, card.captionLine.height()),
                         Qt::AlignLeft | Qt::AlignVCenter, words);
        QRectF sample(0.0, 0.0, 22.0 * card.scale, 9.0 * card.scale);
        sample.moveCenter({right - wide - 18.0 * card.scale, card.captionLine.center().y()});
        drawSample(painter, quantity, curvesOf(quantity).front(), sample, inkOf(quantity));
        right = sample.left() - style::space::kL * card.scale;
    }
}

} // namespace zpsg::ui
