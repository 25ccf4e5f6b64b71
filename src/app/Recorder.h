// Recording as the program does it: a row a minute, settled in the background, in the data directory.
#pragma once

#include "app/Settings.h"
#include "records/HistoryDatabase.h"
#include "records/RecordStore.h"
#include "records/Settlement.h"

#include <QObject>

namespace zpsg::app {

/// GUI thread only.
class Recorder : public QObject {
    Q_OBJECT

public:
    /// `settings` outlives this. A history database that is missing in `dataDir` is copied from
    /// `resourceDir`.
    Recorder(Settings &settings, const QString &dataDir, const QString &resourceDir,
             power::RandomSource random, QObject *parent = nullptr);

    ~Recorder() override;

    /// Records this minute.
    void saveData(const psu::TelemetryRecord &record, const QString &serial,
                  const records::PcSensors &sensors, const QDateTime &now);
    /// Settles at most one record file; true when it did.
    bool getNextDailySettlement(const QDateTime &now);

    /// The totals of the days of a closed range: what is settled, and the minutes that are not yet.
    [[nodiscard]] std::vector<records::DayTotals> totals(const QDate &from, const QDate &to);
    [[nodiscard]] records::HistoryDatabase &history() { return history_; }

signals:
    /// Rows can't be written; they are kept. Once, until they can be again.
    void recordingFailed();
    /// What was kept is written.
    void recordingResumed();
    /// A minute was recorded, or a record file settled.
    void historyGrew();

private:
    [[nodiscard]] records::Counters counters();

    Settings &settings_;
    QString dataDir_;
    power::RandomSource random_;
    records::HistoryDatabase history_;
    records::RecordStore store_;
    records::Settlement settlement_;
    bool failing_ = false;
};

} // namespace zpsg::app
