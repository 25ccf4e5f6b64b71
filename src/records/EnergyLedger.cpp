#include "records/EnergyLedger.h"

#include "records/Logging.h"

#include <QDateTime>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace zpsg::records {
namespace {

const QString kMakeTable = QStringLiteral(
    "CREATE TABLE IF NOT EXISTS energy_day (day TEXT PRIMARY KEY NOT NULL, seconds REAL NOT "
    "NULL, output_kwh REAL NOT NULL, wall_kwh REAL NOT NULL, cost REAL NOT NULL) WITHOUT ROWID");
const QString kReadDays = QStringLiteral("SELECT day, seconds, output_kwh, wall_kwh, cost FROM energy_day");
const QString kAddToDay = QStringLiteral(
    "INSERT INTO energy_day (day, seconds, output_kwh, wall_kwh, cost) VALUES (:day, :seconds, :output_kwh, "
    ":wall_kwh, :cost) ON CONFLICT (day) DO UPDATE SET seconds = seconds + excluded.seconds, output_kwh = "
    "output_kwh + excluded.output_kwh, wall_kwh = wall_kwh + excluded.wall_kwh, cost = cost + excluded.cost");

/// SQLite's primary codes for a file that will never take a row: another table's shape (error, constraint,
/// mismatch), corrupt, no database. All others may pass.
constexpr std::array kHopeless{1, 11, 19, 20, 26};

/// A figure of a file that anybody may have changed.
double figure(const QVariant &value) {
    const double number = value.toDouble();
    return std::isfinite(number) && number > 0.0 ? number : 0.0;
}

} // namespace

/// The file for as long as one operation takes; after the first failure nothing else is done. Rollback
/// journal, deleted with each commit: the file stands alone between two writes, no reader would gain from a
/// write-ahead log that lives for one transaction, and a commit that fails is none (the deletion decides it),
/// so what was in it can be added again. FULL, so that this holds when the power goes as well.
class EnergyLedger::Session {
public:
    explicit Session(const QString &connection) : database_(QSqlDatabase::database(connection, false)) {
        if (!database_.open()) {
            note(database_.lastError());
        }
        execute(QStringLiteral("PRAGMA journal_mode = DELETE"));
        execute(QStringLiteral("PRAGMA synchronous = FULL"));
    }
    /// Takes back what was begun and not committed.
    ~Session() { database_.close(); }
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    /// The statement with its rows still to be read.
    QSqlQuery execute(const QString &statement,
                      std::initializer_list<std::pair<QString, QVariant>> bindings = {}) {
        QSqlQuery query(database_);
        if (outcome_ != Outcome::Done) {
            return query;
        }
        query.setForwardOnly(true);
        bool ok = query.prepare(statement);
        for (const auto &[name, value] : bindings) {
            query.bindValue(name, value);
        }
        ok = ok && query.exec();
        if (!ok) {
            note(query.lastError());
        }
        return query;
    }

    /// What can be read of the file, also when the outcome is Damaged; nothing when it is Later.
    Days days() {
        Days days;
        auto query = execute(kReadDays);
        while (query.next()) {
            const auto day = QDate::fromString(query.value(0).toString(), Qt::ISODate);
            if (day.isValid()) {
                days[day] += {figure(query.value(1)), figure(query.value(2)), figure(query.value(3)),
                              figure(query.value(4))};
            }
        }
        noteEnd(query);
        // A file that was cut off may read well all the same.
        auto check = execute(QStringLiteral("PRAGMA quick_check(1)"));
        if (check.next() && check.value(0).toString() != QLatin1String("ok")) {
            outcome_ = Outcome::Damaged;
        }
        noteEnd(check);
        return outcome_ == Outcome::Later ? Days() : days;
    }

    void add(const Days &days) {
        for (const auto &[day, used] : days) {
            execute(kAddToDay, {{QStringLiteral(":day"), day.toString(Qt::ISODate)},
                                {QStringLiteral(":seconds"), used.seconds},
                                {QStringLiteral(":output_kwh"), used.outputKwh},
                                {QStringLiteral(":wall_kwh"), used.wallKwh},
                                {QStringLiteral(":cost"), used.cost}});
        }
    }

    /// Of everything so far.
    [[nodiscard]] Outcome outcome() const { return outcome_; }

private:
    /// Rows end in the same way when they can't be read.
    void noteEnd(const QSqlQuery &query) {
        if (outcome_ == Outcome::Done && query.lastError().isValid()) {
            note(query.lastError());
        }
    }

    void note(const QSqlError &error) {
        const int code = error.nativeErrorCode().toInt() & 0xFF;
        const bool hopeless = std::find(kHopeless.begin(), kHopeless.end(), code) != kHopeless.end();
        outcome_ = hopeless ? Outcome::Damaged : Outcome::Later;
        qCDebug(lcRecords).noquote() << error.text();
    }

    QSqlDatabase database_;
    Outcome outcome_ = Outcome::Done;
};

EnergyLedger::EnergyLedger(QString path) : path_(std::move(path)) {
    static int number = 0;
    connection_ = QStringLiteral("energy_day_%1").arg(++number);
    auto database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection_);
    database.setDatabaseName(path_);
    database.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(kBusyMilliseconds));
    read();
}

EnergyLedger::~EnergyLedger() { QSqlDatabase::removeDatabase(connection_); }

void EnergyLedger::read() {
    // Opening would make the file.
    if (!QFile::exists(path_)) {
        return;
    }
    Session session(connection_);
    auto days = session.days();
    // What is damaged is dealt with when there is something to write.
    if (session.outcome() == Outcome::Done) {
        stored_ = std::move(days);
        read_ = true;
    }
}

void EnergyLedger::add(const QDate &day, const power::Energy &used) {
    if (day.isValid() && used != power::Energy{}) {
        waiting_[day] += used;
    }
}

bool EnergyLedger::write() {
    if (waiting_.empty()) {
        if (!read_) {
            read();
        }
        return true;
    }
    auto outcome = writeOnce();
    if (outcome == Outcome::Damaged && setAside()) {
        outcome = writeOnce();
    }
    const bool written = outcome == Outcome::Done;
    if (!written && !failing_) {
        qCWarning(lcRecords).noquote() << path_ << "can't be written; its days are kept until it can be";
    }
    failing_ = !written;
    return written;
}

EnergyLedger::Outcome EnergyLedger::writeOnce() {
    Session session(connection_);
    // IMMEDIATE, so that a lock shows at the beginning and not at the end.
    session.execute(QStringLiteral("BEGIN IMMEDIATE"));
    session.execute(kMakeTable);
    auto stored = read_ ? stored_ : session.days();
    session.add(waiting_);
    session.execute(QStringLiteral("COMMIT"));
    if (session.outcome() == Outcome::Done) {
        stored_ = std::move(stored);
        for (const auto &[day, used] : waiting_) {
            stored_[day] += used;
        }
        waiting_.clear();
        read_ = true;
    } else if (session.outcome() == Outcome::Damaged) {
        stored_ = std::move(stored);
    }
    return session.outcome();
}

bool EnergyLedger::setAside() {
    const QString aside = path_ + QStringLiteral(".damaged-") +
                          QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-hhmmss"));
    if (!QFile::rename(path_, aside)) {
        return false;
    }
    // A journal that was left belongs to the old file and must not be played into the new one.
    const QString journal = QStringLiteral("-journal");
    QFile::rename(path_ + journal, aside + journal);
    qCWarning(lcRecords).noquote() << path_ << "is damaged: it is kept as" << aside
                                   << "and a new one is begun";
    for (const auto &[day, used] : stored_) {
        waiting_[day] += used;
    }
    stored_.clear();
    return true;
}

power::Energy EnergyLedger::sum(const QDate &from, const QDate &to) const {
    power::Energy sum;
    for (const Days *days : {&stored_, &waiting_}) {
        for (auto day = days->lower_bound(from); day != days->end() && day->first <= to; ++day) {
            sum += day->second;
        }
    }
    return sum;
}

QDate EnergyLedger::firstDay(const QDate &from) const {
    QDate first;
    for (const Days *days : {&stored_, &waiting_}) {
        const auto day = days->lower_bound(from);
        if (day != days->end() && (!first.isValid() || day->first < first)) {
            first = day->first;
        }
    }
    return first;
}

} // namespace zpsg::records
