// The program's own work in one telemetry pass: nine exchanges with the simulated supply in the same process,
// decoding and formatting included. CPU time counts both threads' share only where the process clock is used.

#include "psu/SupplyMonitor.h"
#include "psu/TelemetryDecoder.h"
#include "simulator/SimulatedBus.h"

#include <benchmark/benchmark.h>

#include <chrono>

using namespace zpsg;

namespace {

void telemetryPass(benchmark::State &state) {
    const auto bus = simulator::SimulatedBus::create();
    bus->plug(simulator::SupplyModel());
    psu::SupplyMonitor monitor(bus->backend());
    if (!monitor.openAtStart()) {
        state.SkipWithError("the simulated supply can't be opened");
        return;
    }
    for (auto _ : state) {
        monitor.readInfo();
    }
    if (monitor.state() != psu::LinkState::Live) {
        state.SkipWithError("the simulated supply did not answer");
    }
}
BENCHMARK(telemetryPass)->MeasureProcessCPUTime()->UseRealTime()->Unit(benchmark::kMicrosecond);

/// How long the caller is held by a supply that has stopped answering: range 0 is the first call, 1 a later
/// one.
void passOnSilentSupply(benchmark::State &state) {
    for (auto _ : state) {
        const auto bus = simulator::SimulatedBus::create();
        bus->plug(simulator::SupplyModel());
        psu::SupplyMonitor monitor(bus->backend());
        monitor.openAtStart();
        bus->blockWrites(true);
        const auto held = [&monitor] {
            const auto begin = std::chrono::steady_clock::now();
            monitor.readInfo();
            return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
        };
        const double first = held();
        state.SetIterationTime(state.range(0) == 0 ? first : held());
        bus->blockWrites(false);
    }
}
BENCHMARK(passOnSilentSupply)->Arg(0)->Arg(1)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

void decodeOneReply(benchmark::State &state) {
    psu::Reply reply{{0x31, 0x34, 0x0C, 0xD3}, 64};
    for (auto _ : state) {
        benchmark::DoNotOptimize(reply);
        benchmark::DoNotOptimize(psu::decodeReply(reply));
    }
}
BENCHMARK(decodeOneReply);

} // namespace
