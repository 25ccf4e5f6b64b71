// The energy of each local calendar day, in an SQLite file of its own.
#pragma once

#include "power/EnergyMeter.h"

#include <QDate>
#include <QString>

#include <map>

namespace zpsg::records {

/// GUI thread only. What is added waits in memory for the next write(), and as long as the file can't be
/// written; it is counted once, whatever happens to the file. Sums come from memory: the file, a row a day,
/// is read once.
class EnergyLedger {
public:
    /// How long reading or writing waits for another process that has the file.
    static constexpr int kBusyMilliseconds = 50;

    /// A missing file is made by the first write() that has something to write.
    explicit EnergyLedger(QString path);
    /// Forgets what was not written.
    ~EnergyLedger();
    EnergyLedger(const EnergyLedger &) = delete;
    EnergyLedger &operator=(const EnergyLedger &) = delete;

    /// Adds to a valid day, in memory.
    void add(const QDate &day, const power::Energy &used);
    /// Adds what waits to the file, in one transaction; touches nothing when nothing waits. False when it
    /// can't, with a warning when that begins: everything waits on then. A file that is damaged, or is
    /// somebody else's, is renamed to "NAME.damaged-TIME" with a warning; a new one takes its place, with
    /// what had been read of the old.
    bool write();

    /// Of the days of a closed range, with what waits. Days of a file that could not be read yet are missing.
    [[nodiscard]] power::Energy sum(const QDate &from, const QDate &to) const;
    /// The first day that is there, of those from `from` on; invalid when there is none.
    [[nodiscard]] QDate firstDay(const QDate &from = QDate(1, 1, 1)) const;

private:
    using Days = std::map<QDate, power::Energy>;
    class Session;
    enum class Outcome { Done, Later, Damaged };

    void read();
    Outcome writeOnce();
    bool setAside();

    QString path_;
    QString connection_;
    Days stored_;  // what the file holds, once it was read
    Days waiting_; // what it does not hold yet
    bool read_ = false;
    bool failing_ = false;
};

} // namespace zpsg::records
