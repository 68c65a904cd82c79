#include "bench/scene.h"
#include "bench/surfaces.h"
#include "core/world.h"

#include <benchmark/benchmark.h>

using namespace tessaly;

namespace {

template <class on, class... how>
void thousand(benchmark::State& state, how... given) {
    on image(given...);
    startbuilding(image);
    writedesign("girders1.txt", design::mixed, 500);
    writedesign("panels1.txt", design::mixed, 500);
    for (auto _ : state) replaycombined("girders1.txt", "panels1.txt");
}
void quick(benchmark::State& s) { thousand<raster>(s, viewwide, viewhigh); }
void plain(benchmark::State& s) { thousand<plainraster>(s); }
void qpainter(benchmark::State& s) { thousand<painterimage>(s, false); }
void qclipped(benchmark::State& s) { thousand<painterimage>(s, true); }
void nothing(benchmark::State& s) { thousand<nosurface>(s); }
BENCHMARK(quick)->Unit(benchmark::kMillisecond);
BENCHMARK(plain)->Unit(benchmark::kMillisecond);
BENCHMARK(qpainter)->Unit(benchmark::kMillisecond);
BENCHMARK(qclipped)->Unit(benchmark::kMillisecond);
BENCHMARK(nothing)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    enterscene();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    leavescene();
}
