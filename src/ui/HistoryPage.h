// The page of the history: the days of a range as bars, the minutes of one day as curves, and their export.
#pragma once

#include "ui/HistoryData.h"

#include <QWidget>

#include <vector>

namespace zpsg::ui {

class HistoryDaysView;
class HistoryDayView;
class HistoryExport;
class HistoryFigures;
class HistoryHead;

/// Knows values and no files: it asks with signals for what it shows, and never while it is hidden. An answer
/// may come at once, from within the signal, or later; one that is no longer asked for is ignored.
class HistoryPage : public QWidget {
    Q_OBJECT

public:
    explicit HistoryPage(QWidget *parent = nullptr);

    /// The days of the closed range that hold something, in any order.
    void showDays(const QDate &from, const QDate &to, const std::vector<zpsg::ui::HistoryDay> &days);
    /// The minutes of a day, in any order.
    void showMinutes(const QDate &day, const std::vector<zpsg::ui::HistoryMinute> &minutes);
    /// What was asked for is on its way.
    void showBusy(bool busy);
    /// Averages over everything recorded: percent and watts; 0 for what is not known.
    void showLongTerm(double efficiency, double watts);
    /// 0 to 1.
    void showExportProgress(double fraction);
    /// The export that was asked for has ended; `message` is one line for the user.
    void showExportDone(const QString &message, bool failed);
    /// The calendar's last day.
    void setToday(const QDate &today);

public slots:
    /// Asks again for all that is shown, as when something new has been recorded.
    void refresh();

signals:
    /// A closed range.
    void daysWanted(const QDate &from, const QDate &to);
    void minutesWanted(const QDate &day);
    /// The range is closed. `minutes`: a line for each minute instead of each day.
    void exportWanted(const QDate &from, const QDate &to, bool minutes, const QString &fileName);
    void exportCancelled();

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void layOut();
    void rangeChanged();
    void chooseDay(const QDate &day);
    void showSum();
    /// Says in the place of plots why there is none.
    void explain();
    void openExport(bool open);
    void applyScale();

    QDate today_;
    QDate day_;                 ///< whose minutes are shown; invalid before there is one
    bool daysKnown_ = false;    ///< of the range that is shown
    bool minutesKnown_ = false; ///< of the day that is shown
    bool busy_ = false;
    bool anyRecorded_ = false; ///< at any time, as far as the page has seen
    HistoryHead *head_;
    HistoryExport *export_;
    HistoryFigures *figures_;
    HistoryDaysView *days_;
    HistoryDayView *minutes_;
};

} // namespace zpsg::ui
