// Records and settles in a folder of its own, so that a test can kill it anywhere and look at what is left.
//   record_writer prepare DIR DATABASE   a record file that lacks two rows, over midnight, nothing settled
//   record_writer run DIR                goes on from what is there to kRows rows, settling along the way
//   record_writer check DIR              exit code 0 when every row is there once and settled once
//   record_writer faults DIR DATABASE    DIR is a small file system: records while it is full and while it
//   may
//                                        not be written; exit code 0 when nothing was lost
#include "records/RecordStore.h"
#include "records/Settlement.h"
#include "storage/IniFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <cstdio>
#include <cstdlib>
#include <set>

using namespace zpsg;
using namespace zpsg::records;

namespace {

constexpr int kRows = kRowsPerFile + 2;
const QDateTime kFirst{QDate(2026, 11, 21), QTime(20, 0)}; // midnight comes with row 240

float wattsOf(int index) { return 100.0F + static_cast<float>(index % 50); }

QString rowOf(int index) {
    psu::TelemetryRecord record;
    record.store(QStringLiteral("WATTS"), wattsOf(index));
    return makeRow(record, kFirst.addSecs(60LL * index), QStringLiteral("SN"), {}, [] { return 0U; });
}

class Folder {
public:
    explicit Folder(const QString &dir) : dir_(dir) {}

    Counters counters() {
        const auto read = [this](const QString &key) {
            return QSettings(path(), QSettings::IniFormat).value(key, 0).toInt();
        };
        const auto write = [this](const QString &key, int number) {
            storage::changeIniFile(path(), [&](QSettings &file) {
                file.setValue(key, number);
                return true;
            });
        };
        const QString record = QStringLiteral("record");
        const QString settled = QStringLiteral("settled");
        return {[=] { return read(record); }, [=](int number) { write(record, number); },
                [=] { return read(settled); }, [=](int number) { write(settled, number); }};
    }

    [[nodiscard]] QStringList rows() const {
        QStringList all;
        for (int number = 1; number <= 3; ++number) {
            all += readFile(recordPath(dir_, number)).rows;
        }
        return all;
    }

    void run() {
        RecordStore store(dir_, counters());
        HistoryDatabase history(dir_ + QStringLiteral("/database.db"));
        Settlement settlement(dir_, counters(), history);
        for (int index = static_cast<int>(rows().size()); index < kRows; ++index) {
            store.append(rowOf(index), kFirst);
            settlement.getNextDailySettlement(kFirst);
        }
        settlement.getNextDailySettlement(kFirst);
    }

    int check() {
        const QStringList found = rows();
        QStringList wanted;
        for (int index = 0; index < kRows; ++index) {
            wanted.append(rowOf(index));
        }
        if (found != wanted) {
            std::printf("%d rows instead of %d, or others\n", static_cast<int>(found.size()), kRows);
            return 1;
        }
        const auto expected = sumByDay(wanted.mid(0, kRowsPerFile)).days;
        HistoryDatabase history(dir_ + QStringLiteral("/database.db"));
        const auto days = history.totals(kFirst.date(), kFirst.date().addDays(1));
        if (days.size() != expected.size() || counters().settledFile() != 1) {
            std::puts("not settled");
            return 1;
        }
        for (std::size_t i = 0; i < days.size(); ++i) {
            if (days[i].count != expected[i].count() ||
                days[i].watts != static_cast<float>(expected[i].watts())) {
                std::printf("day %d: %d minutes instead of %d\n", static_cast<int>(i), days[i].count,
                            expected[i].count());
                return 1;
            }
        }
        return 0;
    }

    /// Rows 0 to 7: two while the disk is full, two while it is read-only.
    int faults(const QString &database) {
        QFile::copy(database, dir_ + QStringLiteral("/database.db"));
        RecordStore store(dir_, counters());
        int told = 0;
        const auto record = [&](int first, int count) {
            bool all = true;
            for (int index = first; index < first + count; ++index) {
                const auto result = store.append(rowOf(index), kFirst);
                told += result.beganFailing ? 1 : 0;
                all = result.allWritten;
            }
            return all;
        };
        const auto remount = [this](const char *how) {
            const QString command = QStringLiteral("mount -o remount,%1 '%2'").arg(QLatin1String(how), dir_);
            return std::system(qPrintable(command)) == 0;
        };
        bool good = record(0, 2);
        QFile filler(dir_ + QStringLiteral("/filler"));
        good = filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && good;
        while (filler.write(QByteArray(512, 'x')) > 0) {
        }
        good = !record(2, 2) && rows().size() == 2 && good; // the file is whole
        filler.close();
        filler.remove();
        good = record(4, 1) && rows().size() == 5 && good;
        good = remount("ro") && good;
        good = !record(5, 2) && good;
        good = remount("rw") && record(7, 1) && good;
        QStringList wanted;
        for (int index = 0; index < 8; ++index) {
            wanted.append(rowOf(index));
        }
        good = rows() == wanted && told == 2 && good;
        std::puts(good ? "nothing was lost" : "rows were lost, or too much was told");
        return good ? 0 : 1;
    }

    void prepare(const QString &database) {
        QDir(dir_).removeRecursively();
        QDir().mkpath(dir_);
        QFile::copy(database, dir_ + QStringLiteral("/database.db"));
        QStringList before;
        for (int index = 0; index < kRowsPerFile - 2; ++index) {
            before.append(rowOf(index));
        }
        if (!writeFile(recordPath(dir_, 1), before, kFirst)) {
            std::puts("the folder can't be written");
        }
        counters().setRecordFile(1);
    }

private:
    [[nodiscard]] QString path() const { return dir_ + QStringLiteral("/counters.ini"); }
    QString dir_;
};

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    Folder folder(arguments.value(2));
    const QString task = arguments.value(1);
    if (task == QLatin1String("prepare")) {
        folder.prepare(arguments.value(3));
        return 0;
    }
    if (task == QLatin1String("run")) {
        folder.run();
        return 0;
    }
    return task == QLatin1String("faults") ? folder.faults(arguments.value(3)) : folder.check();
}
