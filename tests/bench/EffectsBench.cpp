// One frame of the Duo set, both rings, for every effect; it is computed 25 times a second for months. The
// aim is below 5 us each.

#include "lighting/Effects.h"

#include <benchmark/benchmark.h>

#include <array>

using namespace zpsg::lighting;

namespace {

void duoFrame(benchmark::State &state) {
    const auto &row = duoEffects()[static_cast<std::size_t>(state.range(0))];
    state.SetLabel(row.name);
    std::array<Colour, kDuoLeds> chosen{};
    chosen.fill({200, 120, 40});
    std::array<Colour, kDuoLeds> frame{};
    const std::span all(chosen);
    const std::span leds(frame);
    EffectInput input;
    input.celsius = 45.0F;
    input.sound.level = 0.5F;
    input.sound.bands.fill(0.5F);
    for (auto _ : state) {
        benchmark::DoNotOptimize(chosen);
        input.colours = all.first(kFrontLeds);
        input.otherRing = all.last(kMiddleLeds);
        row.effect(input, leds.first(kFrontLeds));
        input.colours = all.last(kMiddleLeds);
        input.otherRing = all.first(kFrontLeds);
        row.effect(input, leds.last(kMiddleLeds));
        benchmark::DoNotOptimize(frame);
        input.step = (input.step + 1) % kEffectSteps;
    }
}
BENCHMARK(duoFrame)->DenseRange(0, static_cast<int>(kDuoEffectCount) - 1);

} // namespace
