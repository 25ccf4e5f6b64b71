#include "records/HistoryDatabase.h"

#include "records/Logging.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QUrl>
#include <QVariant>

#include <algorithm>
#include <array>
#include <utility>

namespace zpsg::records {
namespace {

// The statements that other programs which read the file know, to the blank.
const QString kReadDay = QStringLiteral("SELECT  watts,efficiency, kwh, count_time FROM zps_record_day WHERE "
                                        "record_date = :record_date");
const QString kWriteDay =
    QStringLiteral("UPDATE zps_record_day SET  watts = :watts, efficiency = :efficiency, kwh = :kwh, "
                   "cost=:cost, count_time=:count_time WHERE record_date = :record_date");
const QString kSeries = QStringLiteral(
    "SELECT  record_date, watts FROM zps_record_day WHERE record_date BETWEEN :startDate AND :endDate");
const QString kAxisRange = QStringLiteral("SELECT   MAX(watts), MIN(watts) FROM zps_record_day WHERE "
                                          "record_date BETWEEN :startDate AND :endDate");
const QString kAverages = QStringLiteral(
    "SELECT  SUM(efficiency) / SUM(count_time), SUM(watts) / SUM(count_time) FROM zps_record_day WHERE "
    "record_date BETWEEN :startDate AND :endDate AND efficiency/count_time BETWEEN 60 AND 95");

const QString kTotals = QStringLiteral("SELECT record_date, kwh, watts, efficiency, count_time FROM "
                                       "zps_record_day WHERE record_date BETWEEN :startDate AND :endDate AND "
                                       "count_time > 0 ORDER BY record_date");
// What makes settling exactly once: the numbers of the files that are in the sums.
const QString kMakeSettled =
    QStringLiteral("CREATE TABLE IF NOT EXISTS zps_settled_file (number INTEGER PRIMARY KEY)");
const QString kNoteSettled = QStringLiteral("INSERT INTO zps_settled_file (number) VALUES (:number)");
const QString kAskSettled = QStringLiteral("SELECT number FROM zps_settled_file WHERE number = :number");

/// The first day of the long-term averages.
const QString kFirstDay = QStringLiteral("2017-08-01");

/// SQLite's primary codes for what may pass: busy, locked, read-only, I/O error, disk full.
constexpr std::array kPassing{5, 6, 8, 10, 13};

QString dayText(const QDate &date) { return date.toString(QStringLiteral("yyyy-MM-dd")); }

using Binding = std::pair<QString, QVariant>;

/// The database for as long as one operation takes.
class Session {
public:
    explicit Session(const QString &connection) : database_(QSqlDatabase::database(connection, false)) {
        if (!database_.open() || !execute(QStringLiteral("PRAGMA synchronous = FULL"), {})) {
            qCDebug(lcRecords).noquote() << "notOpen" << database_.lastError().text();
        }
    }
    ~Session() { database_.close(); }
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    /// The statement with its rows still to be read; nothing when it failed.
    std::optional<QSqlQuery> execute(const QString &statement, std::initializer_list<Binding> bindings) {
        QSqlQuery query(database_);
        bool ok = query.prepare(statement);
        for (const auto &[name, value] : bindings) {
            query.bindValue(name, value);
        }
        ok = ok && query.exec();
        if (!ok) {
            note(query.lastError());
            return std::nullopt;
        }
        return query;
    }

    /// All of it or nothing; IMMEDIATE, so that a lock shows at the beginning and not at the end.
    bool begin() { return execute(QStringLiteral("BEGIN IMMEDIATE"), {}).has_value(); }
    bool commit() { return execute(QStringLiteral("COMMIT"), {}).has_value(); }
    void rollBack() { execute(QStringLiteral("ROLLBACK"), {}); }

    [[nodiscard]] DatabaseResult failure() const {
        return passing_ ? DatabaseResult::Later : DatabaseResult::Failed;
    }

private:
    void note(const QSqlError &error) {
        const int code = error.nativeErrorCode().toInt() & 0xFF;
        passing_ = passing_ || std::find(kPassing.begin(), kPassing.end(), code) != kPassing.end();
        qCDebug(lcRecords).noquote() << error.text();
    }

    QSqlDatabase database_;
    bool passing_ = false;
};

bool addTo(Session &session, const DayTotals &day) {
    const Binding date{QStringLiteral(":record_date"), dayText(day.date)};
    auto before = session.execute(kReadDay, {date});
    DayTotals sum = day;
    if (before) {
        DayTotals old;
        while (before->next()) {
            old.watts = before->value(0).toFloat();
            old.efficiency = before->value(1).toFloat();
            old.kwh = before->value(2).toFloat();
            old.count = before->value(3).toInt();
        }
        before->finish();
        sum.watts = old.watts + day.watts;
        sum.efficiency = old.efficiency + day.efficiency;
        sum.kwh = old.kwh + day.kwh;
        sum.count = old.count + day.count;
    }
    // Without the old sums nothing must be written over them.
    const bool updated =
        before && session.execute(kWriteDay, {{QStringLiteral(":watts"), sum.watts},
                                              {QStringLiteral(":efficiency"), sum.efficiency},
                                              {QStringLiteral(":kwh"), sum.kwh},
                                              {QStringLiteral(":cost"), 0},
                                              {QStringLiteral(":count_time"), sum.count},
                                              date});
    qCDebug(lcRecords) << (updated ? "updated!" : "not updated!");
    return updated;
}

} // namespace

HistoryDatabase::HistoryDatabase(QString path) : path_(std::move(path)) {
    static int number = 0;
    connection_ = QStringLiteral("zps_record_day_%1").arg(++number);
    auto database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection_);
    // As a URI, because a missing file is to be told and not created.
    database.setDatabaseName(QUrl::fromLocalFile(path_).toString(QUrl::FullyEncoded) +
                             QStringLiteral("?mode=rw"));
    database.setConnectOptions(
        QStringLiteral("QSQLITE_OPEN_URI;QSQLITE_BUSY_TIMEOUT=%1").arg(kBusyMilliseconds));
}

HistoryDatabase::~HistoryDatabase() { QSqlDatabase::removeDatabase(connection_); }

DatabaseResult HistoryDatabase::addDay(const DayTotals &day) {
    Session session(connection_);
    return addTo(session, day) ? DatabaseResult::Done : session.failure();
}

DatabaseResult HistoryDatabase::addFile(int number, const std::vector<DayTotals> &days) {
    Session session(connection_);
    if (!session.begin()) {
        return session.failure();
    }
    const Binding binding{QStringLiteral(":number"), number};
    bool ok = session.execute(kMakeSettled, {}).has_value();
    auto settled = ok ? session.execute(kAskSettled, {binding}) : std::nullopt;
    ok = settled.has_value();
    const bool before = ok && settled->next();
    if (settled) {
        settled->finish();
    }
    if (ok && !before) {
        ok = std::all_of(days.begin(), days.end(),
                         [&session](const DayTotals &day) { return addTo(session, day); }) &&
             session.execute(kNoteSettled, {binding}).has_value();
    }
    if (ok && session.commit()) {
        return DatabaseResult::Done;
    }
    const auto failure = session.failure();
    session.rollBack();
    return failure;
}

std::vector<HistoryDatabase::Day> HistoryDatabase::series(const QDate &start, const QDate &end) {
    Session session(connection_);
    std::vector<Day> days;
    auto query = session.execute(kSeries, {{QStringLiteral(":startDate"), dayText(start)},
                                           {QStringLiteral(":endDate"), dayText(end)}});
    while (query && query->next()) {
        days.push_back(
            {QDate::fromString(query->value(0).toString(), Qt::ISODate), query->value(1).toDouble()});
    }
    return days;
}

HistoryDatabase::Range HistoryDatabase::axisRange(const QDate &start, const QDate &end) {
    Session session(connection_);
    auto query = session.execute(kAxisRange, {{QStringLiteral(":startDate"), dayText(start)},
                                              {QStringLiteral(":endDate"), dayText(end)}});
    return query && query->next() ? Range{query->value(0).toDouble(), query->value(1).toDouble()} : Range{};
}

HistoryDatabase::Averages HistoryDatabase::longTermAverages(const QDate &today) {
    Session session(connection_);
    auto query = session.execute(
        kAverages, {{QStringLiteral(":startDate"), kFirstDay}, {QStringLiteral(":endDate"), dayText(today)}});
    return query && query->next() ? Averages{query->value(0).toDouble(), query->value(1).toDouble()}
                                  : Averages{};
}

std::vector<DayTotals> HistoryDatabase::totals(const QDate &start, const QDate &end) {
    Session session(connection_);
    std::vector<DayTotals> days;
    auto query = session.execute(kTotals, {{QStringLiteral(":startDate"), dayText(start)},
                                           {QStringLiteral(":endDate"), dayText(end)}});
    while (query && query->next()) {
        days.push_back({QDate::fromString(query->value(0).toString(), Qt::ISODate), query->value(1).toFloat(),
                        query->value(2).toFloat(), query->value(3).toFloat(), query->value(4).toInt()});
    }
    return days;
}

} // namespace zpsg::records
