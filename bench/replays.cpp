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
void allplain(benchmark::State& s) { plainway = true; thousand<plainraster>(s); plainway = false; }
void allplainq(benchmark::State& s) { plainway = true; thousand<painterimage>(s, false); plainway = false; }
void allplainqc(benchmark::State& s) { plainway = true; thousand<painterimage>(s, true); plainway = false; }
void allplainnothing(benchmark::State& s) { plainway = true; thousand<nosurface>(s); plainway = false; }
BENCHMARK(allplain)->Unit(benchmark::kMillisecond);
BENCHMARK(allplainq)->Unit(benchmark::kMillisecond);
BENCHMARK(allplainqc)->Unit(benchmark::kMillisecond);
BENCHMARK(allplainnothing)->Unit(benchmark::kMillisecond);
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
