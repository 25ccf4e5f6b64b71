// Everything recorded in a range of days, as comma-separated text: each minute as it stands, or a line a day.
#pragma once

#include "records/DayIndex.h"

#include <QFileDevice>

#include <cstdio>
#include <memory>

namespace zpsg::records {

enum class ExportMode {
    Minutes, ///< rows in the order in which they were recorded, below kMinuteLogColumns
    Days,    ///< sums of each day that has rows, ascending, below kDayLogColumns
};

/// What the lines go into; nothing, and `why` in plain words, when it can't be opened. A file is replaced as
/// a whole at the end and is as it was until then. What is no file, a pipe or a device, is written as it
/// goes.
[[nodiscard]] std::unique_ptr<QFileDevice> exportTarget(const QString &path, QString &why);
/// The stream stays the caller's; it is flushed at the end and not closed.
[[nodiscard]] std::unique_ptr<QFileDevice> exportTarget(std::FILE *stream, QString &why);

/// Runs in steps of a few milliseconds, on one thread. Destroying it before it is done leaves a target file
/// as it was. Memory: the index, and one record file (or one line a day) beside it.
class RangeExport {
public:
    enum class State { Working, Done, Failed };

    /// Brings `index` up to date first and uses it until the end. The range is closed; `from` is not after
    /// `to`.
    RangeExport(DayIndex &index, const QDate &from, const QDate &to, ExportMode mode,
                std::unique_ptr<QFileDevice> target);

    /// Does a little; to be called until it is no longer Working.
    State step();
    /// The part that is done, 0 to 1; it never goes back.
    [[nodiscard]] double progress() const;

    /// Why it failed, in plain words.
    [[nodiscard]] QString error() const { return target_->errorString(); }
    /// Lines below the columns that are written so far.
    [[nodiscard]] int rows() const { return rows_; }
    /// Rows that can't be read in the files it looked at, and those whose day nobody knows.
    [[nodiscard]] int unreadableRows() const { return unreadable_; }
    /// Record files that are gone though their day files say that they held minutes of the range.
    [[nodiscard]] int missingFiles() const { return missing_; }

private:
    bool takeFile(int number);
    bool writeMinutes(int number);
    void sumDays(int number);
    bool writeDays();
    bool finish();
    bool write(const QByteArray &lines) { return target_->write(lines) == lines.size(); }
    [[nodiscard]] bool inRange(const QDate &day) const { return day >= from_ && day <= to_; }

    DayIndex &index_;
    QDate from_;
    QDate to_;
    ExportMode mode_;
    std::unique_ptr<QFileDevice> target_;
    State state_ = State::Working;
    bool indexing_ = true;
    std::vector<int> files_;
    std::size_t next_ = 0; ///< in files_
    std::map<QDate, DaySums> days_;
    int rows_ = 0;
    int unreadable_ = 0;
    int missing_ = 0;
};

} // namespace zpsg::records
