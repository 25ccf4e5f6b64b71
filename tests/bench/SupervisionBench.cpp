// What is done once a second beside the reading, and once at the start: an alarm pass over full histories,
// the look-up of the efficiency, the loading of a curve.

#include "power/EfficiencyTable.h"
#include "psu/AlarmSupervisor.h"

#include <benchmark/benchmark.h>

using namespace zpsg;

namespace {

psu::TelemetryRecord livelyRecord() {
    psu::TelemetryRecord record;
    record.store(QStringLiteral("FanSpeed"), 900.0F);
    record.store(QStringLiteral("Temp"), 41.0F);
    record.store(QStringLiteral("VIN"), 230.0F);
    for (const char *key : {"VVOut12", "VVOut5", "VVOut33", "VIOut12", "VIOut5", "VIOut33"}) {
        record.store(QLatin1String(key), record.text(QLatin1String(key)).toFloat());
    }
    record.deriveWatts();
    return record;
}

void alarmPass(benchmark::State &state) {
    unsigned random = 0;
    psu::AlarmSupervisor supervisor([&random] { return ++random; });
    const auto record = livelyRecord();
    for (int i = 0; i < 60; ++i) {
        supervisor.tick(record);
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(supervisor.tick(record));
    }
}
BENCHMARK(alarmPass)->Unit(benchmark::kMicrosecond);

/// The shipped curve with the most entries, read, deciphered and parsed from the file beside the program.
void loadCurve(benchmark::State &state) {
    const auto record = livelyRecord();
    for (auto _ : state) {
        power::EfficiencyTable table({QStringLiteral(ZPSG_RESOURCES)});
        table.loadEfficiencyTable(QStringLiteral("CVA1250P"), power::ModelKind::CurveBacked, record);
        if (table.curve().empty()) {
            state.SkipWithError("the curve was not loaded");
        }
    }
}
BENCHMARK(loadCurve)->Unit(benchmark::kMillisecond);

void lookEfficiencyUp(benchmark::State &state) {
    auto record = livelyRecord();
    power::EfficiencyTable table({QStringLiteral(ZPSG_RESOURCES)});
    table.loadEfficiencyTable(QStringLiteral("CVA1250P"), power::ModelKind::CurveBacked, record);
    for (auto _ : state) {
        table.complete(record);
    }
}
BENCHMARK(lookEfficiencyUp)->Unit(benchmark::kMicrosecond);

} // namespace
