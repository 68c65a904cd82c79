// What all benchmarks report: time for one action, elements and pixels a second.
#pragma once

#include "bench/scene.h"

#include <benchmark/benchmark.h>
#include <functional>
#include <string>

namespace tessaly {

// Runs action again and again in a building that goes this way. elements: how many it draws. Pixels are those that the
// plain lines light, so that the ways can be compared by them.
inline void measure(benchmark::State& state, way w, double elements, const std::function<void()>& action) {
    building b(w);
    action();
    const double pixels = drawnby(action).pixels;
    for (auto _ : state) action();
    const auto rate = [](double n) { return benchmark::Counter(n, benchmark::Counter::kIsIterationInvariantRate); };
    if (elements > 0) state.counters["elements/s"] = rate(elements);
    if (pixels > 0) state.counters["pixels/s"] = rate(pixels);
}

// Adds a benchmark that goes one way.
inline void addmeasure(const std::string& name, way w, double elements, const std::function<void()>& action) {
    benchmark::RegisterBenchmark((name + "/" + nameof(w)).c_str(), [=](benchmark::State& state) {
        measure(state, w, elements, action);
    })->Unit(benchmark::kMicrosecond);
}

// The benchmarks of the four files, added by main.
void addclicks();
void addreplays();
void addlimit();
void addshortcuts();

// The replay by which the ways are compared, and the same of a tenth of its records.
constexpr const char* measuredreplay = "replay/combined 1000";
constexpr const char* tenthofreplay = "replay/combined 100";
constexpr const char* limitofreplay = "replay/combined 1000/limit";

}  // namespace tessaly
