#include "ui/HistoryDaysView.h"

#include "ui/Figures.h"
#include "ui/HistoryBars.h"
#include "ui/HistoryControls.h"
#include "ui/HistoryDates.h"
#include "ui/HistoryScales.h"
#include "ui/SegmentedControl.h"
#include "ui/Style.h"
#include "ui/TrendPlot.h"

#include <QFontMetricsF>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>

#include <qwt_plot_grid.h>

#include <algorithm>
#include <cmath>

namespace zpsg::ui {
namespace {

/// From one label of a day to the next, pixels.
qreal labelRoom(qreal scale) {
    const QFontMetricsF metrics(style::font(style::type::kSmall * scale));
    qreal widest = 50.0 * scale;
    for (int month = 1; month <= 12; ++month) {
        const QString label = dateText(QDate(2028, month, 28), DateParts::DayMonth);
        widest = std::max(widest, metrics.horizontalAdvance(label));
    }
    return widest + style::space::kL * scale;
}

} // namespace

HistoryDaysView::HistoryDaysView(QWidget *parent)
    : TrendView(parent), bars_(new HistoryBars), measure_(new SegmentedControl(this)) {
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    for (QwtPlotItem *grid : plot().itemList(QwtPlotItem::Rtti_PlotGrid)) {
        static_cast<QwtPlotGrid *>(grid)->enableX(false); // ticks are at the bars' middles
    }
    bars_->attach(&plot());
    measure_->setObjectName(QStringLiteral("switchHistoryMeasure"));
    retranslate();
    connect(measure_, &SegmentedControl::currentChanged, this, [this] {
        refresh();
        update();
        emit measureChanged();
    });
}

void HistoryDaysView::retranslate() {
    measure_->setTexts({qtTrId("HISTORY_ENERGY"), qtTrId("HISTORY_MEAN_POWER")});
    measure_->setAccessibleName(qtTrId("HISTORY_MEASURE"));
    setAccessibleName(captionText());
    setToolTip(qtTrId("HISTORY_DAYS_EXPLAINED"));
    layOut(style::windowScale(*this));
}

HistoryMeasure HistoryDaysView::measure() const {
    return measure_->current() == 0 ? HistoryMeasure::Energy : HistoryMeasure::Power;
}

void HistoryDaysView::setRange(const HistoryRange &range, const QDate &today) {
    today_ = today;
    if (range != range_) {
        range_ = range;
        days_.clear();
        pointed_ = -1;
        rebuild();
        refresh();
    }
}

void HistoryDaysView::showDays(const std::vector<HistoryDay> &days) {
    days_ = days;
    rebuild();
    refresh();
}

void HistoryDaysView::setChosen(const QDate &day) {
    if (day != chosen_) {
        chosen_ = day;
        refresh();
    }
}

void HistoryDaysView::sayInstead(const QString &text) { setEmptyText(text); }

void HistoryDaysView::rebuild() {
    const QRect room = this->room();
    byMonth_ =
        range_.days() > std::max(plot().isVisible() ? plot().canvasInParent().width() : room.width(), 1);
    slots_ = range_.from.isValid() ? slotsOf(days_, range_, byMonth_) : std::vector<HistorySlot>();
    if (pointed_ >= static_cast<int>(slots_.size())) {
        pointed_ = -1;
    }
}

QString HistoryDaysView::captionText() const {
    const bool energy = measure() == HistoryMeasure::Energy;
    if (byMonth_) {
        return energy ? qtTrId("HISTORY_ENERGY_MONTHS") : qtTrId("HISTORY_POWER_MONTHS");
    }
    return energy ? qtTrId("HISTORY_ENERGY_DAYS") : qtTrId("HISTORY_POWER_DAYS");
}

QString HistoryDaysView::summaryText() const { return byMonth_ ? qtTrId("HISTORY_BY_MONTH") : QString(); }

HistoryTag HistoryDaysView::pointedTag() const {
    if (pointed_ < 0) {
        return {};
    }
    const HistoryDay &total = slots_.at(static_cast<std::size_t>(pointed_)).total;
    HistoryTag tag;
    tag.title = dateText(total.date, byMonth_ ? DateParts::Month : DateParts::Weekday);
    if (total.date == today_ && !byMonth_) {
        tag.title = qtTrId("HISTORY_SO_FAR").arg(tag.title);
    }
    if (total.minutes == 0) {
        tag.lines.push_back({qtTrId("HISTORY_NOTHING_RECORDED"), QString(), {}});
        return tag;
    }
    tag.lines.push_back({qtTrId("HISTORY_ENERGY"), energyText(total.kwh), {}});
    tag.lines.push_back({qtTrId("HISTORY_MEAN_POWER"), powerText(total.meanWatts), {}});
    tag.lines.push_back({qtTrId("HISTORY_EFFICIENCY"), efficiencyText(total.meanEfficiency), {}});
    tag.lines.push_back({qtTrId("HISTORY_RECORDED"), recordedText(total.minutes), {}});
    return tag;
}

QString HistoryDaysView::pointedText() const {
    const HistoryTag tag = pointedTag();
    QStringList parts{tag.title};
    for (const HistoryTag::Line &line : tag.lines) {
        parts << (line.name + QLatin1Char(' ') + line.value).trimmed();
    }
    return parts.join(QStringLiteral(", "));
}

std::optional<double> HistoryDaysView::readoutValue() const {
    return pointed_ < 0
               ? std::nullopt
               : std::optional(measured(slots_.at(static_cast<std::size_t>(pointed_)).total, measure()));
}

void HistoryDaysView::replot() {
    const bool empty = days_.empty();
    showEmptyText(empty);
    measure_->setVisible(!empty);
    setAccessibleName(captionText());
    if (empty) {
        update();
        return;
    }
    double peak = 0.0;
    for (const HistorySlot &slot : slots_) {
        peak = std::max(peak, measured(slot.total, measure()));
    }
    const ValueScale values =
        valueScale(0.0, std::max(peak, measure() == HistoryMeasure::Energy ? 0.1 : 10.0));
    top_ = values.high();
    const qreal scale = style::windowScale(*this);
    plot().setLabels(QwtPlot::yLeft, [values](double value) { return values.label(value); });
    plot().setTicks(QwtPlot::yLeft, 0.0, top_, values.ticks());
    const DayScale days = dayScale(range_, static_cast<int>(room().width() / labelRoom(scale)));
    plot().setLabels(QwtPlot::xBottom, [days](double tick) { return days.label(tick); });
    plot().setTicks(QwtPlot::xBottom, 0.0, range_.days(), days.ticks);
    giveLabelsRoom(plot(), scale);
    bars_->setSlots(slots_, measure(), days.beginnings);
    const bool marked = !byMonth_ && range_.contains(chosen_);
    bars_->setChosen(marked ? static_cast<int>(range_.from.daysTo(chosen_)) : -1);
    bars_->setPointed(pointed_, pointedTag());
    plot().replot();
    updateCaptionLine();
}

void HistoryDaysView::layOut(qreal scale) {
    bars_->setScale(scale);
    const style::CardLayout card(*this);
    const QSize needed = measure_->sizeHint();
    measure_->setGeometry(width() - qRound(card.margin) - needed.width(),
                          qRound(card.captionLine.center().y()) - needed.height() / 2, needed.width(),
                          needed.height());
    setReserved(needed.width() + qRound(style::space::kL * scale));
    rebuild();
}

void HistoryDaysView::point(int slot) {
    if (slot != pointed_) {
        pointed_ = slot;
        bars_->setPointed(pointed_, pointedTag());
        plot().canvas()->update();
        announce();
    }
}

void HistoryDaysView::choose(int slot) {
    if (slot < 0) {
        return;
    }
    const QDate day = slots_.at(static_cast<std::size_t>(slot)).total.date;
    if (byMonth_) {
        emit monthChosen(day);
    } else {
        emit dayChosen(day);
    }
}

int HistoryDaysView::slotUnder(const QPoint &at) const {
    if (days_.empty() || !plot().canvasInParent().contains(at)) {
        return -1;
    }
    const int slot = slotAt(slots_, static_cast<int>(std::floor(plot().valueAt(at))));
    return slot >= 0 && slots_.at(static_cast<std::size_t>(slot)).total.date <= today_ ? slot : -1;
}

int HistoryDaysView::nextFilled(int slot, int step) const {
    const auto size = static_cast<int>(slots_.size());
    while (slot >= 0 && slot < size && slots_.at(static_cast<std::size_t>(slot)).total.minutes == 0) {
        slot += step;
    }
    return slot >= 0 && slot < size ? slot : -1;
}

void HistoryDaysView::keyPressEvent(QKeyEvent *event) {
    const auto last = static_cast<int>(slots_.size()) - 1;
    // Without a mark yet the keys start from the day that is shown.
    int from = pointed_;
    if (from < 0 && range_.contains(chosen_)) {
        from = slotAt(slots_, static_cast<int>(range_.from.daysTo(chosen_)));
    }
    int to = -1;
    switch (event->key()) {
    case Qt::Key_Left:
        to = nextFilled(from < 0 ? last : from - 1, -1);
        break;
    case Qt::Key_Right:
        to = nextFilled(from + 1, 1);
        break;
    case Qt::Key_Home:
        to = nextFilled(0, 1);
        break;
    case Qt::Key_End:
        to = nextFilled(last, -1);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        choose(pointed_);
        return;
    case Qt::Key_Escape:
        point(-1);
        return;
    default:
        TrendView::keyPressEvent(event);
        return;
    }
    if (to >= 0) {
        point(to);
    }
}

bool HistoryDaysView::event(QEvent *event) {
    // On the bars there is a tag already.
    if (event->type() == QEvent::ToolTip && static_cast<QHelpEvent *>(event)->pos().y() >= room().top()) {
        event->ignore();
        return true;
    }
    return TrendView::event(event);
}

void HistoryDaysView::paintEvent(QPaintEvent *event) {
    TrendView::paintEvent(event);
    if (focusShown_) {
        QPainter painter(this);
        drawFocus(painter, *this);
    }
}

void HistoryDaysView::mouseMoveEvent(QMouseEvent *event) {
    const int slot = slotUnder(event->pos());
    setCursor(slot >= 0 ? Qt::PointingHandCursor : Qt::ArrowCursor);
    point(slot);
}

void HistoryDaysView::mousePressEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton) {
        choose(slotUnder(event->pos()));
    }
}

void HistoryDaysView::focusInEvent(QFocusEvent *event) {
    TrendView::focusInEvent(event);
    focusShown_ = event->reason() != Qt::MouseFocusReason;
    update();
}

void HistoryDaysView::focusOutEvent(QFocusEvent *event) {
    TrendView::focusOutEvent(event);
    focusShown_ = false;
    point(-1);
    update();
}

void HistoryDaysView::leaveEvent(QEvent *event) {
    point(-1);
    TrendView::leaveEvent(event);
}

void HistoryDaysView::hideEvent(QHideEvent *event) {
    point(-1);
    TrendView::hideEvent(event);
}

} // namespace zpsg::ui
