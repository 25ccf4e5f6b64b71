// Gives the history page what it asks for, from the database and the record files, in steps that keep the
// window alive.
#pragma once

#include "app/Recorder.h"
#include "records/DayIndex.h"
#include "records/RangeExport.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

namespace zpsg::ui {
class HistoryPage;
}

namespace zpsg::app {

/// GUI thread only. Everything it is given outlives it.
class HistoryFeed : public QObject {
    Q_OBJECT

public:
    /// `now` is the program's clock.
    HistoryFeed(Recorder &recorder, const QString &dataDir, std::function<QDateTime()> now,
                ui::HistoryPage &page, QObject *parent = nullptr);

private:
    void showDays(const QDate &from, const QDate &to);
    void wantMinutes(const QDate &day);
    void showMinutes(const QDate &day);
    void startExport(const QDate &from, const QDate &to, bool minutes, const QString &fileName);
    void cancelExport();
    void endExport(const QString &message, bool failed);
    void work();
    void workOnExport();

    Recorder &recorder_;
    std::function<QDateTime()> now_;
    ui::HistoryPage &page_;
    records::DayIndex index_;
    std::optional<QDate> wanted_; ///< the day whose minutes are to be shown when the index is up to date
    std::unique_ptr<records::RangeExport> export_;
    QTimer refresh_; ///< what grows is shown after a moment, so that a fast demo does not do nothing else
    QTimer worker_;  ///< runs while there is something to do
};

} // namespace zpsg::app
