// A record file: up to 360 rows, each enciphered, in an INI file. It is replaced as a whole with each row.
//     [DATE]  Time=2026-11-21 10:00:00   Number=2
//     [Rec]   000=<enciphered row>   001=<enciphered row>
// A day file has the same form; its rows are days.
#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

namespace zpsg::records {

/// Rows of a full record file: six hours.
inline constexpr int kRowsPerFile = 360;

/// "/Rec/Rec7.ini" and "/RecDay/RecDay7.ini" below the data directory.
[[nodiscard]] QString recordPath(const QString &dataDir, int number);
[[nodiscard]] QString dayPath(const QString &dataDir, int number);

/// What a file holds, as far as it can be read.
struct FileContent {
    bool exists = false;
    QDateTime created;    ///< invalid when the file does not say
    bool counted = false; ///< whether "/DATE/Number" is there and a number
    int claimed = 0;      ///< "/DATE/Number"; 0 when it is missing or no number
    QStringList rows;     ///< deciphered, in the order of their keys
    int unreadable = 0;   ///< rows that were changed or cut off
};

/// Reads every row that is there, whatever "/DATE/Number" says. Damage is named in a debug line and counted.
/// Any thread: a file is only ever replaced as a whole.
[[nodiscard]] FileContent readFile(const QString &path);

/// How appendRow() ended.
enum class Append {
    Written,
    Full,   ///< 360 rows are there: nothing was written
    Failed, ///< it could not be written; the file is as it was
};

/// Adds a row behind the last, creating file and folder when they are missing. A row that is there is never
/// written over, also when "/DATE/Number" is wrong. `rowsNow` is the number of rows afterwards.
[[nodiscard]] Append appendRow(const QString &path, const QString &row, const QDateTime &now, int &rowsNow);

/// Writes a new file without rows. One that has rows is left as it is. False when it can't be written.
[[nodiscard]] bool createFile(const QString &path, const QDateTime &now);

/// Writes the whole file, for day files. False, and the file as it was, when it can't be written.
[[nodiscard]] bool writeFile(const QString &path, const QStringList &rows, const QDateTime &now);

} // namespace zpsg::records
