#include "controls/percentbar/percentbar.h"

#include <benchmark/benchmark.h>

namespace {

void FillOfABar(benchmark::State& state) {
    std::int32_t progress = 0;
    for (auto _ : state) {
        progress = (progress + 7) % 1000;
        benchmark::DoNotOptimize(vorn::percentbar::FillWidth(640, progress, 1000));
        benchmark::DoNotOptimize(vorn::percentbar::Percentage(progress, 1000));
    }
}
BENCHMARK(FillOfABar);

} // namespace
