#include "ui/HistoryDayView.h"

#include "ui/HistoryChips.h"
#include "ui/HistoryControls.h"
#include "ui/HistoryDates.h"
#include "ui/HistoryLegend.h"
#include "ui/HistoryLines.h"
#include "ui/Style.h"
#include "ui/TrendPlot.h"

#include <QLabel>

#include <qwt_scale_widget.h>

#include <cmath>
#include <limits>

namespace zpsg::ui {
namespace {

constexpr std::array kAxes{QwtPlot::yLeft, QwtPlot::yRight};

} // namespace

HistoryDayView::HistoryDayView(QWidget *parent)
    : TrendView(parent)
    , cursor_(new HistoryCursor)
    , chips_(new HistoryChips(this))
    , whole_(new QPushButton(this))
    , legend_(new HistoryLegend(this)) {
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        lines_.at(i) = new HistoryLines(minutes_);
        lines_.at(i)->setYAxis(kAxes.at(i));
        lines_.at(i)->attach(&plot());
    }
    cursor_->attach(&plot());
    whole_->setObjectName(QStringLiteral("btnWholeDay"));
    whole_->setProperty("slim", true);
    whole_->setCursor(Qt::PointingHandCursor);
    whole_->hide();
    connect(whole_, &QPushButton::clicked, this, [this] { view({0.0, minutes_.length()}); });
    connect(chips_, &HistoryChips::changed, this, [this] {
        refresh();
        updateCaptionLine();
    });
    retranslate();
}

void HistoryDayView::retranslate() {
    setAccessibleName(qtTrId("HISTORY_DAY"));
    setToolTip(qtTrId("HISTORY_DAY_EXPLAINED"));
    whole_->setText(qtTrId("HISTORY_WHOLE_DAY"));
    chips_->retranslate();
    layOut(style::windowScale(*this));
}

void HistoryDayView::setDay(const QDate &day) {
    if (day != minutes_.day()) {
        minutes_ = HistoryMinutes(day, {});
        window_ = {0.0, minutes_.length()};
        pointed_.reset();
        refresh();
        update();
    }
}

void HistoryDayView::showMinutes(const std::vector<HistoryMinute> &minutes) {
    minutes_ = HistoryMinutes(minutes_.day(), minutes);
    if (pointed_ && *pointed_ >= minutes_.size()) {
        pointed_.reset();
    }
    refresh();
    update();
}

void HistoryDayView::sayInstead(const QString &text) { setEmptyText(text); }

QString HistoryDayView::captionText() const {
    return minutes_.day().isValid() ? dateText(minutes_.day(), DateParts::Full) : qtTrId("HISTORY_DAY");
}

QString HistoryDayView::summaryText() const {
    if (minutes_.empty()) {
        return {};
    }
    QStringList parts;
    for (const HistoryQuantity quantity : chips_->shown()) {
        if (quantity == HistoryQuantity::Rails) {
            parts << qtTrId("HISTORY_RAILS_PLOTTED");
        }
    }
    const auto rows = static_cast<int>(minutes_.size());
    parts << qtTrId("HISTORY_RECORDED_TIME").arg(recordedText(rows));
    return parts.join(QStringLiteral("   \u00B7   "));
}

HistoryTag HistoryDayView::pointedTag() const {
    HistoryTag tag;
    if (!pointed_) {
        return tag;
    }
    tag.title = clockText(minutes_.day(), minutes_.seconds(*pointed_));
    for (const HistoryQuantity quantity : chips_->shown()) {
        for (const HistoryCurve curve : curvesOf(quantity)) {
            const double value = minutes_.value(curve, *pointed_);
            const QString text = std::isnan(value)
                                     ? QString(QChar(0x2013)) // en dash
                                     : QStringLiteral("%1 %2").arg(figureOf(curve, value), unitOf(quantity));
            tag.lines.push_back(
                {nameOf(quantity, curve), text, [quantity, curve](QPainter &painter, const QRectF &place) {
                     drawSample(painter, quantity, curve, place, inkOf(quantity));
                 }});
        }
    }
    return tag;
}

QString HistoryDayView::pointedText() const {
    const HistoryTag tag = pointedTag();
    QStringList parts{tag.title};
    for (const HistoryTag::Line &line : tag.lines) {
        parts << line.name + QLatin1Char(' ') + line.value;
    }
    return parts.join(QStringLiteral(", "));
}

std::optional<double> HistoryDayView::readoutValue() const {
    return pointed_ ? std::optional(minutes_.value(HistoryCurve::Watts, *pointed_)) : std::nullopt;
}

void HistoryDayView::replot() {
    const bool empty = minutes_.empty();
    showEmptyText(empty);
    legend_->setVisible(!empty);
    chips_->setVisible(!empty);
    whole_->setVisible(!empty && zoomedIn());
    if (empty) {
        return;
    }
    plotQuantities();
    plotTime();
}

void HistoryDayView::plotQuantities() {
    const std::vector<HistoryQuantity> shown = chips_->shown();
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        const int axis = kAxes.at(i);
        const bool used = i < shown.size();
        lines_.at(i)->setVisible(used);
        plot().enableAxis(axis, used);
        if (!used) {
            continue;
        }
        const HistoryQuantity quantity = shown.at(i);
        double least = std::numeric_limits<double>::max();
        double most = std::numeric_limits<double>::lowest();
        for (const HistoryCurve curve : curvesOf(quantity)) {
            // Of the whole day, so that the heights stay what they are while the view moves.
            if (const auto found = minutes_.statistics(curve, 0.0, minutes_.length())) {
                least = std::min(least, plotted(curve, found->least));
                most = std::max(most, plotted(curve, found->most));
            }
        }
        const ValueScale scale = least <= most ? scaleFor(quantity, least, most) : ValueScale{0.0, 25.0};
        plot().setLabels(axis, [quantity, scale](double value) { return axisText(quantity, scale, value); });
        plot().setTicks(axis, scale.low, scale.high(), scale.ticks());
        QwtScaleWidget &labels = *plot().axisWidget(axis);
        labels.setMargin(0);
        labels.setFont(style::font(style::type::kSmall * style::windowScale(*this)));
        QPalette colours = labels.palette();
        colours.setColor(QPalette::Text, inkOf(quantity));
        colours.setColor(QPalette::WindowText, inkOf(quantity));
        labels.setPalette(colours);
        lines_.at(i)->setQuantity(quantity);
        lines_.at(i)->changed();
    }
}

void HistoryDayView::plotTime() {
    const QDate day = minutes_.day();
    const qreal scale = style::windowScale(*this);
    const int room = static_cast<int>(plot().width() / (64.0 * scale));
    plot().setLabels(QwtPlot::xBottom, [day](double seconds) { return clockText(day, seconds); });
    plot().setTicks(QwtPlot::xBottom, window_.from, window_.to,
                    clockTicks(day, window_.from, window_.to, room));
    giveLabelsRoom(plot(), scale);
    legend_->showStatistics(minutes_, window_, chips_->shown());
    whole_->setVisible(zoomedIn());
    updateSpots();
    plot().replot();
}

void HistoryDayView::view(const HistoryWindow &window) {
    window_ = window;
    if (isVisible() && !minutes_.empty()) {
        plotTime();
    }
}

void HistoryDayView::updateSpots() {
    if (!pointed_ || !window_.shows(minutes_.seconds(*pointed_))) {
        cursor_->clear();
        return;
    }
    std::vector<HistoryCursor::Spot> spots;
    const std::vector<HistoryQuantity> shown = chips_->shown();
    for (std::size_t i = 0; i < shown.size(); ++i) {
        for (const HistoryCurve curve : curvesOf(shown.at(i))) {
            const double value = minutes_.value(curve, *pointed_);
            if (!std::isnan(value)) {
                spots.push_back({shown.at(i), kAxes.at(i), plotted(curve, value)});
            }
        }
    }
    cursor_->setSpots(minutes_.seconds(*pointed_), spots, pointedTag());
}

void HistoryDayView::point(std::optional<std::size_t> row) {
    if (row != pointed_) {
        pointed_ = row;
        updateSpots();
        plot().canvas()->update();
        announce();
    }
}

QRect HistoryDayView::plotPlace(const QRect &room) const {
    const qreal scale = style::windowScale(*this);
    const int chipRow = chips_->sizeHint().height() + qRound(style::space::kS * scale);
    const int legend = HistoryLegend::widthFor(scale) + qRound(style::space::kXl * scale);
    return room.adjusted(0, chipRow, -legend, 0);
}

void HistoryDayView::layOut(qreal scale) {
    for (HistoryLines *lines : lines_) {
        lines->setScale(scale);
        lines->changed();
    }
    cursor_->setScale(scale);
    const QRect room = this->room();
    whole_->setFont(style::font(style::type::kLabel * scale, QFont::Medium));
    const int wide = whole_->sizeHint().width();
    chips_->applyScale(room.width() - wide - qRound(style::space::kS * scale));
    const QSize needed = chips_->sizeHint();
    chips_->setGeometry(room.left(), room.top(), needed.width(), needed.height());
    whole_->setGeometry(room.right() - wide + 1, room.top(), wide, needed.height());
    for (QLabel *words : findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly)) {
        words->setGeometry(room); // there is no legend while they are shown
    }
    const QRect place = plotPlace(room);
    legend_->setGeometry(room.right() - HistoryLegend::widthFor(scale) + 1, place.top(),
                         HistoryLegend::widthFor(scale), place.height());
}

} // namespace zpsg::ui
