// The alarms of the past and those that hold, kept in a file: one JSON object a line.
#pragma once

#include "psu/AlarmEntry.h"

#include <QString>

#include <vector>

namespace zpsg::psu {

/// Each change replaces the file as a whole; one that can't be written is kept and written later.
class AlarmLog {
public:
    static constexpr std::size_t kMostEntries = 1000;

    /// Reads the file. What still held when the program ended is kept without an end. Lines that can't be
    /// understood are left out, with a warning, and the file as it was is copied to "PATH.damaged-TIME".
    explicit AlarmLog(QString path);

    /// An alarm has begun: `value` in volts, revolutions a minute or degrees Celsius. The oldest entry makes
    /// room.
    void begin(AlarmKind kind, double value, const QDateTime &now);
    /// The holding alarm of this kind has ended; nothing when none holds.
    void end(AlarmKind kind, const QDateTime &now);
    /// Forgets what no longer holds.
    void clear();
    /// Writes what could not be written before, at most once a minute; cheap when there is nothing.
    void retry(const QDateTime &now);

    /// Oldest first.
    [[nodiscard]] const std::vector<AlarmEntry> &entries() const { return entries_; }
    [[nodiscard]] std::vector<AlarmEntry> holding() const;

private:
    void read();
    void write();

    QString path_;
    std::vector<AlarmEntry> entries_;
    bool unwritten_ = false;
    bool warned_ = false;
    QDateTime lastRetry_;
};

} // namespace zpsg::psu
