// What an export costs: the log of one record file, ranges of minutes and days, and finding the files. Goals:
// 20 ms for a log, 10 s and 100 MB for a year of minutes, some seconds for ten years of day files.

#include "cipher/TextCipher.h"
#include "records/CsvLog.h"
#include "records/RangeExport.h"
#include "records/RecordFile.h"

#include <QDir>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <map>
#include <memory>
#include <sys/resource.h>

using namespace zpsg;
using namespace zpsg::records;

namespace {

const QDateTime kBegin{QDate(2026, 1, 1), QTime(0, 0), Qt::UTC};
const QDate kFrom = kBegin.date();
const QDate kTo = kFrom.addYears(20);

/// A file as the settings facility writes it, without its cost: a year of them is made in seconds.
bool writePlain(const QString &path, const QStringList &rows) {
    QByteArray text =
        "[DATE]\nNumber=" + QByteArray::number(rows.size()) + "\nTime=2026-01-01 00:00:00\n\n[Rec]\n";
    for (int i = 0; i < rows.size(); ++i) {
        text += QByteArray::number(i).rightJustified(3, '0') + "=\"" + cipher::encipher(rows[i].toUtf8()) +
                "\"\n";
    }
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

QString minute(const QDateTime &time) {
    return time.toString(QStringLiteral("dd.MM.yyyy hh:mm:ss")) +
           QStringLiteral(
               ",SN12345678,12.18,20.75,5.08,4.30,3.36,2.20,321.000000,91.20,0.005350,0,812.00,41.50,"
               "1.12,20.00,65.00,52.00,1.05,80.00,180.00,61.00");
}

/// Day files for `files` record files of six hours, and the record files themselves when they are wanted.
class Recorded {
public:
    Recorded(int files, bool withMinutes) {
        whole_ = QDir(path()).mkpath(QStringLiteral("Rec")) && QDir(path()).mkpath(QStringLiteral("RecDay"));
        const auto sample = parseRow(minute(kBegin));
        for (int number = 1; number <= files && whole_; ++number) {
            const QDateTime begin = kBegin.addSecs(60LL * kRowsPerFile * (number - 1));
            DaySums sums(begin.date());
            sums.add(*sample);
            whole_ = writePlain(dayPath(path(), number), {sums.text()});
            QStringList rows;
            for (int i = 0; withMinutes && i < kRowsPerFile; ++i) {
                rows.append(minute(begin.addSecs(60LL * i)));
            }
            whole_ = whole_ && (!withMinutes || writePlain(recordPath(path(), number), rows));
        }
    }
    [[nodiscard]] QString path() const { return dir_.path(); }
    [[nodiscard]] bool whole() const { return whole_; }

private:
    QTemporaryDir dir_;
    bool whole_ = false;
};

/// Made once.
const Recorded &recorded(int files, bool withMinutes) {
    static std::map<std::pair<int, bool>, std::unique_ptr<Recorded>> made;
    auto &one = made[{files, withMinutes}];
    if (!one) {
        one = std::make_unique<Recorded>(files, withMinutes);
    }
    return *one;
}

double peakMegabytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024.0;
}

void exportLogOfOneFile(benchmark::State &state) {
    const auto &data = recorded(1, true);
    for (auto _ : state) {
        if (!exportMinuteLog(data.path(), QStringLiteral("1"))) {
            state.SkipWithError("the log was not written");
        }
    }
}
BENCHMARK(exportLogOfOneFile)->Unit(benchmark::kMillisecond);

/// From nothing known to the file in place.
void exportRange(benchmark::State &state, ExportMode mode, bool withMinutes) {
    const auto files = static_cast<int>(state.range(0));
    const auto &data = recorded(files, withMinutes);
    const int expected = mode == ExportMode::Minutes ? files * kRowsPerFile : (files + 3) / 4;
    for (auto _ : state) {
        QString why;
        DayIndex index(data.path());
        RangeExport run(index, kFrom, kTo, mode, exportTarget(data.path() + QStringLiteral("/out.csv"), why));
        while (run.step() == RangeExport::State::Working) {
        }
        if (!data.whole() || run.step() != RangeExport::State::Done || run.rows() != expected) {
            state.SkipWithError("the export is not whole");
        }
    }
    state.SetComplexityN(files);
    state.counters["peak_MB"] = peakMegabytes();
}
BENCHMARK_CAPTURE(exportRange, minutes, ExportMode::Minutes, true)
    ->Arg(1)
    ->Arg(10)
    ->Arg(100)
    ->Arg(1460)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);
BENCHMARK_CAPTURE(exportRange, days, ExportMode::Days, false)
    ->Arg(1460)
    ->Arg(14600)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

void indexDayFiles(benchmark::State &state) {
    const auto &data = recorded(static_cast<int>(state.range(0)), false);
    for (auto _ : state) {
        DayIndex index(data.path());
        index.refresh();
        if (static_cast<int>(index.filesBetween(kFrom, kTo).size()) != state.range(0)) {
            state.SkipWithError("the index is not whole");
        }
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(indexDayFiles)->Arg(1460)->Arg(14600)->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);

/// When nothing has changed.
void refreshIndex(benchmark::State &state) {
    const auto &data = recorded(static_cast<int>(state.range(0)), false);
    DayIndex index(data.path());
    index.refresh();
    for (auto _ : state) {
        index.refresh();
    }
}
BENCHMARK(refreshIndex)->Arg(14600)->Unit(benchmark::kMillisecond);

void rowsOfADay(benchmark::State &state) {
    const auto &data = recorded(100, true);
    DayIndex index(data.path());
    index.refresh();
    for (auto _ : state) {
        if (index.rowsOf(kFrom.addDays(1)).size() != 1440) {
            state.SkipWithError("the day is not whole");
        }
    }
}
BENCHMARK(rowsOfADay)->Unit(benchmark::kMillisecond);

} // namespace
