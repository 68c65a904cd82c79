// Adds benchmarks that report the time of an action, and the elements and pixels per second.
#pragma once

#include "bench/scene.h"
#include "bench/surfaces.h"

#include <benchmark/benchmark.h>
#include <functional>
#include <string>

namespace tessaly {

inline benchmark::Counter persecond(double n) { return {n, benchmark::Counter::kIsIterationInvariantRate}; }

// Returns the number of pixels that an action sets if its lines are drawn one by one.
inline double pixelsset(const std::function<void()>& action) {
    surface* const before = viewportsurface;
    pixelcounter counter;
    viewportsurface = &counter;
    action();
    viewportsurface = before;
    return static_cast<double>(counter.pixels);
}

// Adds a benchmark of an action with a method. elements: the number of elements drawn. Whatever the method, the pixels
// are those of the plain method, so that the methods can be compared.
inline void addbenchmark(const std::string& name, method m, double elements, const std::function<void()>& action) {
    benchmark::RegisterBenchmark((name + "/" + nameof(m)).c_str(), [=](benchmark::State& state) {
        const startedprogram started(m);
        action();
        const double pixels = pixelsset(action);
        for (auto _ : state) action();
        if (elements > 0) state.counters["elements/s"] = persecond(elements);
        if (pixels > 0) state.counters["pixels/s"] = persecond(pixels);
    })->Unit(benchmark::kMicrosecond);
}

// Add the benchmarks of the four files.
void addclicks();
void addreplays();
void addlimit();
void addshortcuts();

// The replay that all methods are compared with, the same with a tenth of the records, and its limit.
constexpr const char* measuredreplay = "replay/combined 1000";
constexpr const char* tenthofreplay = "replay/combined 100";
constexpr const char* limitofreplay = "replay/combined 1000/limit";

}  // namespace tessaly
