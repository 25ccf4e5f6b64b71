#include "ui/HistoryPage.h"

#include "ui/HistoryControls.h"
#include "ui/HistoryDaysView.h"
#include "ui/HistoryDayView.h"
#include "ui/HistoryExport.h"
#include "ui/HistoryFigures.h"
#include "ui/HistoryHead.h"
#include "ui/Style.h"

#include <QEvent>
#include <QShowEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace zpsg::ui {

HistoryPage::HistoryPage(QWidget *parent)
    : QWidget(parent)
    , today_(QDate::currentDate())
    , head_(new HistoryHead(this))
    , export_(new HistoryExport(this))
    , figures_(new HistoryFigures(this))
    , days_(new HistoryDaysView(this))
    , minutes_(new HistoryDayView(this)) {
    setStyleSheet(historySheet());
    export_->hide();
    days_->setRange(head_->range(), today_);
    layOut();
    explain();

    connect(head_, &HistoryHead::rangeChanged, this, &HistoryPage::rangeChanged);
    connect(head_, &HistoryHead::todayWanted, this, [this] { chooseDay(today_); });
    connect(head_, &HistoryHead::exportToggled, this, &HistoryPage::openExport);
    connect(days_, &HistoryDaysView::dayChosen, this, &HistoryPage::chooseDay);
    connect(days_, &HistoryDaysView::monthChosen, this,
            [this](const QDate &day) { head_->showAround(HistorySpan::Month, day); });
    connect(days_, &HistoryDaysView::measureChanged, this, &HistoryPage::showSum);
    connect(export_, &HistoryExport::exportWanted, this, &HistoryPage::exportWanted);
    connect(export_, &HistoryExport::exportCancelled, this, &HistoryPage::exportCancelled);
    connect(export_, &HistoryExport::closed, this, [this] { head_->setExportOpen(false); });
    connect(export_, &HistoryExport::runningChanged, this,
            [this] { head_->setExportEnabled(!export_->running()); });
}

void HistoryPage::layOut() {
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(head_);
    layout->addWidget(export_);
    layout->addWidget(figures_);
    layout->addWidget(days_, 9);
    layout->addWidget(minutes_, 13);
}

void HistoryPage::rangeChanged() {
    daysKnown_ = false;
    days_->setRange(head_->range(), today_);
    if (!head_->range().contains(day_)) {
        // The last day that holds something takes its place, once they are known.
        day_ = QDate();
        minutesKnown_ = false;
        minutes_->setDay(day_);
        days_->setChosen(day_);
    }
    showSum();
    explain();
    if (isVisible()) {
        emit daysWanted(head_->range().from, head_->range().to);
    }
}

void HistoryPage::chooseDay(const QDate &day) {
    if (day == day_) {
        return;
    }
    day_ = day;
    minutesKnown_ = false;
    head_->setAnchor(day);
    days_->setChosen(day);
    minutes_->setDay(day);
    explain();
    if (isVisible()) {
        emit minutesWanted(day);
    }
}

void HistoryPage::refresh() {
    if (!isVisible()) {
        return;
    }
    const QDate day = day_;
    emit daysWanted(head_->range().from, head_->range().to);
    // An answer from within may have chosen the first day, and asked for it.
    if (day.isValid() && day == day_) {
        emit minutesWanted(day);
    }
}

void HistoryPage::showDays(const QDate &from, const QDate &to, const std::vector<HistoryDay> &days) {
    if (HistoryRange{from, to} != head_->range()) {
        return;
    }
    daysKnown_ = true;
    anyRecorded_ = anyRecorded_ || !days.empty();
    days_->showDays(days);
    showSum();
    explain();
    if (!day_.isValid() && !days.empty()) {
        const auto last = std::max_element(days.begin(), days.end(),
                                           [](const auto &a, const auto &b) { return a.date < b.date; });
        chooseDay(last->date);
    }
}

void HistoryPage::showMinutes(const QDate &day, const std::vector<HistoryMinute> &minutes) {
    if (day != day_) {
        return;
    }
    minutesKnown_ = true;
    minutes_->showMinutes(minutes);
    explain();
}

void HistoryPage::showBusy(bool busy) {
    busy_ = busy;
    explain();
}

void HistoryPage::showLongTerm(double efficiency, double watts) {
    anyRecorded_ = anyRecorded_ || watts > 0.0;
    figures_->showLongTerm(efficiency, watts);
    explain();
}

void HistoryPage::showSum() {
    const bool years = head_->range().from.year() != head_->range().to.year();
    figures_->showSum(daysKnown_ ? std::optional(sumOf(days_->days(), days_->measure(), today_))
                                 : std::nullopt,
                      days_->measure(), years);
}

void HistoryPage::explain() {
    const QString loading = busy_ ? qtTrId("HISTORY_LOADING") : QString();
    QString days = loading;
    if (daysKnown_) {
        days = anyRecorded_ || !head_->range().contains(today_) ? qtTrId("HISTORY_EMPTY_RANGE")
                                                                : qtTrId("HISTORY_EMPTY");
    }
    days_->sayInstead(days);
    QString minutes = loading;
    if (minutesKnown_) {
        minutes = qtTrId("HISTORY_EMPTY_DAY");
    } else if (!day_.isValid() && daysKnown_) {
        minutes = qtTrId("HISTORY_NO_DAY");
    }
    minutes_->sayInstead(minutes);
}

void HistoryPage::showExportProgress(double fraction) { export_->showProgress(fraction); }

void HistoryPage::showExportDone(const QString &message, bool failed) {
    export_->showDone(message, failed);
    export_->show();
    head_->setExportOpen(true);
}

void HistoryPage::openExport(bool open) {
    if (open && export_->isHidden()) {
        export_->open(head_->range(), today_);
    }
    export_->setVisible(open);
}

void HistoryPage::setToday(const QDate &today) {
    if (today == today_) {
        return;
    }
    const bool current = head_->range().contains(today_) && !head_->range().contains(today);
    today_ = today;
    head_->setToday(today);
    days_->setRange(head_->range(), today);
    // Nobody looks at the week that has passed meanwhile.
    if (current && !isVisible() && head_->span() != HistorySpan::Range) {
        head_->showAround(head_->span(), today);
    }
    showSum();
}

void HistoryPage::applyScale() {
    const qreal scale = style::windowScale(*this);
    const int margin = qRound(style::space::kL * scale);
    layout()->setContentsMargins(margin, 0, margin, margin);
    layout()->setSpacing(qRound(style::space::kM * scale));
    head_->applyScale(scale);
    export_->applyScale(scale);
    figures_->updateGeometry();
}

void HistoryPage::showEvent(QShowEvent *event) {
    QWidget::showEvent(event);
    if (!event->spontaneous()) {
        refresh();
    }
}

void HistoryPage::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    applyScale();
}

void HistoryPage::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        explain();
        applyScale();
    }
}

} // namespace zpsg::ui
