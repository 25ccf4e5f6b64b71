// Settling: the rows of a closed record file, summed by day, into a day file and the history database.
#pragma once

#include "records/HistoryDatabase.h"
#include "records/RecordRow.h"
#include "records/RecordStore.h"

namespace zpsg::records {

/// The rows by their own dates, in the order in which the days first appear; rows that are none are left out
/// and counted.
struct SettledRows {
    std::vector<DaySums> days;
    int notRows = 0;
};
[[nodiscard]] SettledRows sumByDay(const QStringList &rows);

/// GUI thread only.
class Settlement {
public:
    Settlement(QString dataDir, Counters counters, HistoryDatabase &history)
        : dataDir_(std::move(dataDir)), counters_(std::move(counters)), history_(history) {}

    /// Settles at most one record file: the one after the newest that is settled, when it is closed. True
    /// when it did. While the day file can't be written or another process has the database, the same file is
    /// tried again with the next call.
    ///
    /// The order makes it exactly once, wherever the process dies: the day file is written as a whole and is
    /// the same when it is written again; the database takes all days and the file's number in one
    /// transaction and knows the number; the counter goes on last.
    bool getNextDailySettlement(const QDateTime &now);

    /// Rows that could not be read, over all files settled so far.
    [[nodiscard]] int unreadableRows() const { return unreadableRows_; }

private:
    bool settle(int number, const QDateTime &now);

    QString dataDir_;
    Counters counters_;
    HistoryDatabase &history_;
    int unreadableRows_ = 0;
};

} // namespace zpsg::records
