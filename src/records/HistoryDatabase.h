// The days in an SQLite file: one row a calendar day, there from the start. Days are added to and never
// inserted.
#pragma once

#include <QDate>
#include <QString>

#include <optional>
#include <vector>

namespace zpsg::records {

/// What settling one record file adds to one day.
struct DayTotals {
    QDate date;
    float kwh = 0.0F;
    float watts = 0.0F;      ///< sum of the minutes' output power
    float efficiency = 0.0F; ///< sum of the minutes' efficiency, percent
    int count = 0;           ///< minutes
};

/// How an operation on the database ended.
enum class DatabaseResult {
    Done,
    Later, ///< another process has it, or the disk takes no more: try again
    Failed ///< missing, not to be opened, or damaged
};

/// GUI thread only: each operation opens the file itself and closes it again. Nothing waits longer than
/// kBusyMilliseconds for another process.
class HistoryDatabase {
public:
    static constexpr int kBusyMilliseconds = 50;

    explicit HistoryDatabase(QString path);
    ~HistoryDatabase();
    HistoryDatabase(const HistoryDatabase &) = delete;
    HistoryDatabase &operator=(const HistoryDatabase &) = delete;

    /// Adds to a day. A day that has no row is not added; that counts as done.
    DatabaseResult addDay(const DayTotals &day);

    /// Adds all days of a settled record file in one transaction, and notes the file's number in the same: a
    /// file that is settled again after a crash is recognised and nothing is added twice.
    DatabaseResult addFile(int number, const std::vector<DayTotals> &days);

    struct Day {
        QDate date;
        double watts = 0.0; ///< sum of the minutes
    };
    /// The days of a closed range, in order. Empty when the database can't be read.
    [[nodiscard]] std::vector<Day> series(const QDate &start, const QDate &end);

    struct Range {
        double highest = 0.0;
        double lowest = 0.0;
    };
    /// The greatest and the least sum of a day's minutes in the range.
    [[nodiscard]] Range axisRange(const QDate &start, const QDate &end);

    struct Averages {
        double efficiency = 0.0; ///< percent
        double watts = 0.0;
    };
    /// Over the minutes of all days up to `today` whose mean efficiency is 60 to 95 percent; zero without
    /// any.
    [[nodiscard]] Averages longTermAverages(const QDate &today);

    /// The totals of the days of a closed range that hold something, in order.
    [[nodiscard]] std::vector<DayTotals> totals(const QDate &start, const QDate &end);

private:
    QString path_;
    QString connection_;
};

} // namespace zpsg::records
