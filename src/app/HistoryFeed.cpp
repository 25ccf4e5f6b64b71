#include "app/HistoryFeed.h"

#include "ui/HistoryPage.h"

#include <QDir>

namespace zpsg::app {
namespace {

using records::RowField;

/// Record files that are looked at between two events: some ten milliseconds.
constexpr int kFilesPerStep = 20;

constexpr int kRefreshMilliseconds = 2000;

ui::HistoryDay shown(const records::DayTotals &day) {
    const double minutes = day.count;
    return {day.date, static_cast<double>(day.kwh), static_cast<double>(day.watts) / minutes,
            static_cast<double>(day.efficiency) / minutes, day.count};
}

ui::HistoryMinute shown(const records::MinuteRow &row) {
    return {row.time,
            row.number(RowField::Watts),
            row.number(RowField::Volts12),
            row.number(RowField::Volts5),
            row.number(RowField::Volts33),
            row.number(RowField::Amps12),
            row.number(RowField::Amps5),
            row.number(RowField::Amps33),
            row.number(RowField::Celsius),
            row.number(RowField::FanRpm),
            row.number(RowField::Efficiency)};
}

template <typename Shown, typename Known>
std::vector<Shown> allShown(const std::vector<Known> &known) {
    std::vector<Shown> result;
    result.reserve(known.size());
    for (const auto &one : known) {
        result.push_back(shown(one));
    }
    return result;
}

} // namespace

HistoryFeed::HistoryFeed(Recorder &recorder, const QString &dataDir, std::function<QDateTime()> now,
                         ui::HistoryPage &page, QObject *parent)
    : QObject(parent), recorder_(recorder), now_(std::move(now)), page_(page), index_(dataDir) {
    page_.setToday(now_().date());
    connect(&page_, &ui::HistoryPage::daysWanted, this, &HistoryFeed::showDays);
    connect(&page_, &ui::HistoryPage::minutesWanted, this, &HistoryFeed::wantMinutes);
    connect(&page_, &ui::HistoryPage::exportWanted, this, &HistoryFeed::startExport);
    connect(&page_, &ui::HistoryPage::exportCancelled, this, &HistoryFeed::cancelExport);
    refresh_.setSingleShot(true);
    refresh_.setInterval(kRefreshMilliseconds);
    connect(&recorder_, &Recorder::historyGrew, this, [this] {
        if (!refresh_.isActive()) {
            refresh_.start();
        }
    });
    connect(&refresh_, &QTimer::timeout, &page_, [this] {
        page_.setToday(now_().date());
        page_.refresh();
    });
    connect(&worker_, &QTimer::timeout, this, &HistoryFeed::work);
}

void HistoryFeed::showDays(const QDate &from, const QDate &to) {
    page_.setToday(now_().date());
    const auto average = recorder_.history().longTermAverages(now_().date());
    page_.showLongTerm(average.efficiency, average.watts);
    page_.showDays(from, to, allShown<ui::HistoryDay>(recorder_.totals(from, to)));
}

void HistoryFeed::wantMinutes(const QDate &day) {
    page_.showBusy(true);
    wanted_ = day;
    if (!export_) { // an export brings the index up to date itself
        index_.begin();
    }
    worker_.start(0);
}

void HistoryFeed::showMinutes(const QDate &day) {
    page_.showBusy(false);
    page_.showMinutes(day, allShown<ui::HistoryMinute>(index_.rowsOf(day)));
}

void HistoryFeed::startExport(const QDate &from, const QDate &to, bool minutes, const QString &fileName) {
    QString why;
    auto target = records::exportTarget(fileName, why);
    if (!target) {
        endExport(qtTrId("HISTORY_EXPORT_FAILED").arg(why), true);
        return;
    }
    export_ = std::make_unique<records::RangeExport>(
        index_, from, to, minutes ? records::ExportMode::Minutes : records::ExportMode::Days,
        std::move(target));
    worker_.start(0);
}

void HistoryFeed::cancelExport() {
    endExport(qtTrId("HISTORY_EXPORT_CANCELLED"), true); // the file is as it was
    index_.begin();                                      // the pass was the export's
}

void HistoryFeed::endExport(const QString &message, bool failed) {
    export_.reset();
    page_.showExportDone(message, failed);
}

void HistoryFeed::work() {
    if (export_) {
        workOnExport();
    } else if (index_.step(kFilesPerStep)) {
        return;
    } else if (wanted_) {
        showMinutes(*std::exchange(wanted_, std::nullopt));
    } else {
        worker_.stop();
    }
}

void HistoryFeed::workOnExport() {
    switch (export_->step()) {
    case records::RangeExport::State::Working:
        page_.showExportProgress(export_->progress());
        break;
    case records::RangeExport::State::Failed:
        endExport(qtTrId("HISTORY_EXPORT_FAILED").arg(export_->error()), true);
        break;
    case records::RangeExport::State::Done: {
        const int lost = export_->unreadableRows();
        endExport(lost == 0 ? qtTrId("HISTORY_EXPORT_DONE").arg(export_->rows())
                            : qtTrId("HISTORY_EXPORT_DONE_LOST").arg(export_->rows()).arg(lost),
                  false);
        break;
    }
    }
}

} // namespace zpsg::app
