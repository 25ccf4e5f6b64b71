// What recording costs: a row into a nearly full file, the settling of files, the questions of the history
// page.

#include "records/HistoryDatabase.h"
#include "records/RecordStore.h"
#include "records/Settlement.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace zpsg;
using namespace zpsg::records;

namespace {

const QDateTime kFirst{QDate(2026, 1, 1), QTime(0, 0)};

QStringList rows(int count, const QDateTime &from) {
    QStringList result;
    psu::TelemetryRecord record;
    for (int i = 0; i < count; ++i) {
        record.store(QStringLiteral("WATTS"), static_cast<float>(100 + i));
        result.append(
            makeRow(record, from.addSecs(60LL * i), QStringLiteral("SN12345678"), {}, [] { return 0U; }));
    }
    return result;
}

/// A data directory with an empty history.
class Data {
public:
    Data() {
        QFile::copy(QStringLiteral(ZPSG_DATABASE), path() + QStringLiteral("/database.db"));
        QFile::setPermissions(path() + QStringLiteral("/database.db"), QFile::ReadOwner | QFile::WriteOwner);
    }
    [[nodiscard]] QString path() const { return dir_.path(); }
    [[nodiscard]] bool addFile(int number, int count) const {
        return writeFile(recordPath(path(), number), rows(count, kFirst.addSecs(21600LL * number)), kFirst);
    }
    Counters counters() {
        return {[this] { return recordFile; }, [this](int number) { recordFile = number; },
                [this] { return settledFile; }, [this](int number) { settledFile = number; }};
    }
    int recordFile = 1;
    int settledFile = 0;

private:
    QTemporaryDir dir_;
};

void saveIntoNearlyFullFile(benchmark::State &state) {
    Data data;
    RecordStore store(data.path(), data.counters());
    const QString row = rows(1, kFirst).front();
    for (auto _ : state) {
        state.PauseTiming();
        if (!data.addFile(1, kRowsPerFile - 2)) {
            state.SkipWithError("the file can't be written");
        }
        state.ResumeTiming();
        benchmark::DoNotOptimize(store.append(row, kFirst));
    }
}
BENCHMARK(saveIntoNearlyFullFile)->Unit(benchmark::kMillisecond);

/// So many full files, one call each.
void settleFiles(benchmark::State &state) {
    const int files = static_cast<int>(state.range(0));
    Data data;
    for (int number = 1; number <= files; ++number) {
        if (!data.addFile(number, kRowsPerFile)) {
            state.SkipWithError("the file can't be written");
        }
    }
    data.recordFile = files + 1;
    for (auto _ : state) {
        state.PauseTiming();
        QFile::remove(data.path() + QStringLiteral("/database.db"));
        QFile::copy(QStringLiteral(ZPSG_DATABASE), data.path() + QStringLiteral("/database.db"));
        data.settledFile = 0;
        state.ResumeTiming();
        HistoryDatabase history(data.path() + QStringLiteral("/database.db"));
        Settlement settlement(data.path(), data.counters(), history);
        while (settlement.getNextDailySettlement(kFirst)) {
        }
        if (data.settledFile != files) {
            state.SkipWithError("not settled");
        }
    }
}
BENCHMARK(settleFiles)->Arg(1)->Arg(10)->Arg(100)->Unit(benchmark::kMillisecond);

/// Ten years of days: 0 the series, 1 the axis range, 2 the averages, 3 the totals.
void askTenYears(benchmark::State &state) {
    const Data data;
    HistoryDatabase history(data.path() + QStringLiteral("/database.db"));
    const QDate first(2026, 1, 1);
    const QDate last = first.addYears(10);
    std::vector<DayTotals> days;
    for (QDate day = first; day < last; day = day.addDays(1)) {
        days.push_back({day, 4.8F, 288000.0F, 130000.0F, 1440});
    }
    if (history.addFile(1, days) != DatabaseResult::Done) {
        state.SkipWithError("the days can't be written");
    }
    for (auto _ : state) {
        switch (state.range(0)) {
        case 0:
            benchmark::DoNotOptimize(history.series(first, last));
            break;
        case 1:
            benchmark::DoNotOptimize(history.axisRange(first, last));
            break;
        case 2:
            benchmark::DoNotOptimize(history.longTermAverages(last));
            break;
        default:
            benchmark::DoNotOptimize(history.totals(first, last));
        }
    }
}
BENCHMARK(askTenYears)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

} // namespace
