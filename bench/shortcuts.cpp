// Each shortcut by itself beside the plain way that it stands for.

#include "bench/measure.h"
#include "bench/surfaces.h"
#include "building/layouts.h"
#include "core/world.h"
#include "data/elements.h"
#include "render/quadsort.h"

#include <array>

namespace tessaly {

namespace {

// A shortcut's name, what has to be done before each run of it, and the work itself.
struct shortcut {
    const char* name;
    void (*prepare)();
    void (*work)();
};

void readpanel() {
    datafile = "st-panels-1or-full.txt";
    placemode = 3;
    placex = placey = 488;
    placez = 0;
    readelements();
}

constexpr shortcut shortcuts[] = {
    // clang-format off
    {"clear the tables", readpanel,  resetworld},
    {"read an element",  [] {},      readpanel},
    {"order its quads",  readpanel,  orderquads},
    // clang-format on
};

void measureshortcut(benchmark::State& state, way w, const shortcut& s) {
    building b(w);
    for (auto _ : state) {
        state.PauseTiming();
        s.prepare();
        state.ResumeTiming();
        s.work();
    }
}

// Faces as they stand on the screen, in viewport pixels: a post's side, a panel's front, a roof's top, a near wall.
struct seenface {
    const char* name;
    facecorners corners;
    int n;
};
constexpr seenface faces[] = {
    // clang-format off
    {"a post's side",   {400.2, 300.7, 408.9, 302.1, 401.0, 236.3, 409.8, 237.0}, 200},
    {"a panel's front", {300.4, 310.2, 372.6, 330.9, 299.8, 250.1, 373.3, 266.0}, 200},
    {"a roof's top",    {300.4, 310.2, 402.6, 340.9, 398.8, 260.1, 501.3, 286.0}, 1500},
    {"a near wall",     {-90.5, 560.1, 930.7, 420.9, -95.0, -60.4, 935.2, 101.0}, 200},
    // clang-format on
};

void measureface(benchmark::State& state, way w, const seenface& f) {
    building b(w);
    for (auto _ : state) b.viewport->fillface(f.corners, f.n, {180, 90, 20});
    const double pixels = drawnby([&] { viewportsurface->fillface(f.corners, f.n, {}); }).pixels;
    state.counters["pixels/s"] = benchmark::Counter(pixels, benchmark::Counter::kIsIterationInvariantRate);
}

}  // namespace

void addshortcuts() {
    const auto add = [](const std::string& group, const auto& rows, auto measureone, auto ways) {
        for (const auto& row : rows)
            for (const way w : ways)
                benchmark::RegisterBenchmark((group + row.name + "/" + nameof(w)).c_str(),
                                             [=](benchmark::State& state) { measureone(state, w, row); })
                    ->Unit(benchmark::kMicrosecond);
    };
    add("shortcut/", shortcuts, measureshortcut, std::array{way::nodrawing, way::plainnodrawing});
    add("face/", faces, measureface, std::array{way::program, way::plain, way::plainqpainter});
}

}  // namespace tessaly
