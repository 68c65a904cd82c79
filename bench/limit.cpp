// The limit that no way of working can pass: the files of the measured replay read once, each face's distinct pixels
// filled once in the order of painting, and nothing else.

#include "bench/measure.h"
#include "bench/surfaces.h"
#include "core/textfiles.h"
#include "core/world.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <vector>

namespace tessaly {

namespace {

struct run {
    int at, length;
};

// Gathers what a replay reads and paints. A face, two sweeps of it, is painted in a colour of its own, so that its
// pixels are told from all others.
class limitgatherer : public nosurface {
  public:
    void drawbetween(const facecorners& f, int n, colour) override {
        const auto byte = [this](int shift) { return static_cast<std::uint8_t>(face >> shift); };
        image.drawbetween(f, n, {byte(16), byte(8), byte(0)});
        secondsweep = !secondsweep;
        if (secondsweep) return;
        gather(f, 0xff000000 | face++);
        files.insert(shapefile.text());
    }
    std::set<std::string> files;
    std::vector<run> runs;

  private:
    void gather(const facecorners& f, std::uint32_t pixel) {
        const auto [left, right] = std::minmax({f.x1, f.x2, f.x3, f.x4});
        const auto [top, bottom] = std::minmax({f.y1, f.y2, f.y3, f.y4});
        const auto within = [](double at, int size) { return static_cast<int>(std::clamp<double>(at, 0, size - 1)); };
        for (int y = within(top - 1, viewportheight); y <= within(bottom + 1, viewportheight); ++y)
            for (int x = within(left - 1, viewportwidth); x <= within(right + 1, viewportwidth); ++x) {
                const int at = y * viewportwidth + x;
                if (image.pixels()[at] != pixel) continue;
                const bool goeson = !runs.empty() && x > 0 && runs.back().at + runs.back().length == at;
                goeson ? void(++runs.back().length) : runs.push_back({at, 1});
            }
    }
    raster image{viewportwidth, viewportheight};
    std::uint32_t face = 0;
    bool secondsweep = false;
};

void measurelimit(benchmark::State& state) {
    building b(way::program);
    limitgatherer gathered;
    viewportsurface = &gathered;
    const std::string design = mixedfile(500);
    replaycombined(design, design);
    gathered.files.insert("designs\\" + design);
    raster image(viewportwidth, viewportheight);
    for (auto _ : state) {
        for (const std::string& file : gathered.files) benchmark::DoNotOptimize(filebytes(file, "file of a replay"));
        std::uint32_t pixel = 0xff000000;
        for (const run& r : gathered.runs) std::fill_n(image.pixels() + r.at, r.length, ++pixel);
    }
    double pixels = 0;
    for (const run& r : gathered.runs) pixels += r.length;
    state.counters["distinct pixels"] = pixels;
}

}  // namespace

void addlimit() { benchmark::RegisterBenchmark(limitofreplay, measurelimit)->Unit(benchmark::kMicrosecond); }

}  // namespace tessaly
