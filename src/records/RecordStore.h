// Where the minutes go: numbered record files, one after the other. A row is on disk when append() has
// returned, or it is kept and written with a later one.
#pragma once

#include "records/RecordFile.h"

#include <QDateTime>

#include <deque>
#include <functional>

namespace zpsg::records {

/// The two numbers that survive in the settings.
struct Counters {
    std::function<int()> recordFile; ///< the newest record file; 0 before the first
    std::function<void(int)> setRecordFile;
    std::function<int()> settledFile; ///< the newest settled record file; 0 before the first
    std::function<void(int)> setSettledFile;
};

/// GUI thread only.
class RecordStore {
public:
    /// Minutes that are kept while they can't be written: a week. The oldest makes room.
    static constexpr std::size_t kMostKept = std::size_t{7} * 24 * 60;

    RecordStore(QString dataDir, Counters counters)
        : dataDir_(std::move(dataDir)), counters_(std::move(counters)) {}

    struct Result {
        bool allWritten = false;   ///< nothing is kept back
        bool filled = false;       ///< a record file was closed
        bool beganFailing = false; ///< tell the user: this is the first row that could not be written
    };
    /// Writes what is kept and then this row, and starts a new file when one is full.
    Result append(const QString &row, const QDateTime &now);

    /// Tries once more to write what is kept.
    void flush(const QDateTime &now);

    /// Opens the next record file.
    void startNewRecordFile(const QDateTime &now);

    /// Rows that wait to be written.
    [[nodiscard]] std::size_t kept() const { return kept_.size(); }
    [[nodiscard]] QString currentPath() const { return recordPath(dataDir_, counters_.recordFile()); }

private:
    bool writeOldest(const QDateTime &now, Result &result);

    QString dataDir_;
    Counters counters_;
    std::deque<QString> kept_;
    bool failing_ = false;
};

} // namespace zpsg::records
