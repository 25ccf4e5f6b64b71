// Which record files hold rows of a day. The files say it themselves: no list of its own can be wrong or
// lost.
#pragma once

#include "records/RecordRow.h"

#include <QDate>
#include <QDateTime>
#include <QString>

#include <map>
#include <optional>
#include <vector>

namespace zpsg::records {

/// The days of a settled record file from its day file; nothing when there is none or any of it can't be
/// read.
[[nodiscard]] std::optional<std::vector<DaySums>> settledDays(const QString &dataDir, int number);

/// Belongs to one thread at a time, whichever. It holds dates and no rows: some 150 bytes a record file.
///
/// A pass lists the folders, so gaps in the numbering don't matter, and reads each file's days: from the day
/// file, or from the record file while there is no whole day file. The next pass reads only what is new or
/// has changed; a settled file never does.
class DayIndex {
public:
    explicit DayIndex(QString dataDir) : dataDir_(std::move(dataDir)) {}
    [[nodiscard]] QString dataDir() const { return dataDir_; }

    /// One pass in steps, so that a window stays alive: lists the folders, and reads at most `files` files at
    /// a call until step() is false. What is known already can be asked for at any time.
    void begin();
    bool step(int files);
    /// The part of the pass that is done, 0 to 1.
    [[nodiscard]] double progress() const;
    /// A whole pass at once.
    void refresh();

    /// Numbers of the record files with rows of that day, or of a closed range of days, ascending. A record
    /// file of which only the day file is left is among them.
    [[nodiscard]] std::vector<int> filesWith(const QDate &day) const { return filesBetween(day, day); }
    [[nodiscard]] std::vector<int> filesBetween(const QDate &from, const QDate &to) const;

    /// The minutes of a day in the order in which they were recorded. Reads the record files: some 10 ms
    /// each.
    [[nodiscard]] std::vector<MinuteRow> rowsOf(const QDate &day) const;

    /// Rows that can't be read in files of which no row can be: they belong to no day that is known.
    [[nodiscard]] int lostRows() const;

private:
    struct File {
        std::vector<QDate> days;
        bool settled = false;
        QDateTime modified; ///< of the record file, as long as that is what was read
        qint64 size = -1;
        int unreadable = 0;
    };
    void readFile(int number);
    void readRecordFile(int number, File &file) const;

    QString dataDir_;
    std::map<int, File> files_;
    std::vector<int> pending_; ///< what this pass looks at
    std::size_t next_ = 0;     ///< in pending_
};

} // namespace zpsg::records
