// Measures the limit of the measured replay, which no method can beat: each record's element file is read, its wires
// and framing lines are drawn once, and the distinct pixels of each of its faces are filled once. The design files are
// read once each. Nothing is parsed, projected or sorted.

#include "bench/measure.h"
#include "core/textfiles.h"
#include "core/world.h"

#include <algorithm>
#include <vector>

namespace tessaly {

namespace {

struct run {
    int at, length;
};

struct drawnline {
    float x1, y1, x2, y2;
};

// Collects what a replay reads and draws. Fills each face with a different colour, to find its distinct pixels.
class limitcollector : public nosurface {
  public:
    void line(float x1, float y1, float x2, float y2, colour) override {
        lines.push_back({x1, y1, x2, y2});
        if (curgroup != framinggroup && afterfaces) startelement();
    }
    void drawbetween(const facecorners& f, int n, colour) override {
        afterfaces = true;
        const auto byte = [this](int shift) { return static_cast<std::uint8_t>(face >> shift); };
        image.drawbetween(f, n, {byte(16), byte(8), byte(0)});
        seconddirection = !seconddirection;
        if (!seconddirection) collect(f, 0xff000000 | face++);
    }
    std::vector<std::string> files;
    std::vector<drawnline> lines;
    std::vector<run> runs;

  private:
    // The first wire after the faces of an element belongs to the next element.
    void startelement() {
        afterfaces = false;
        files.push_back(shapefile.text());
    }
    void collect(const facecorners& f, std::uint32_t pixel) {
        const auto [left, right] = std::minmax({f.x1, f.x2, f.x3, f.x4});
        const auto [top, bottom] = std::minmax({f.y1, f.y2, f.y3, f.y4});
        const auto within = [](double at, int size) { return static_cast<int>(std::clamp<double>(at, 0, size - 1)); };
        for (int y = within(top - 1, viewportheight); y <= within(bottom + 1, viewportheight); ++y)
            for (int x = within(left - 1, viewportwidth); x <= within(right + 1, viewportwidth); ++x) {
                const int at = y * viewportwidth + x;
                if (image.pixels()[at] != pixel) continue;
                const bool continues = !runs.empty() && x > 0 && runs.back().at + runs.back().length == at;
                continues ? void(++runs.back().length) : runs.push_back({at, 1});
            }
    }
    raster image{viewportwidth, viewportheight};
    std::uint32_t face = 0;
    bool seconddirection = false, afterfaces = true;
};

void measurelimit(benchmark::State& state) {
    building b(method::program);
    limitcollector collected;
    viewportsurface = &collected;
    const std::string design = mixedfile(500);
    replaycombined(design, design);
    for (int each = 0; each < 2; ++each) collected.files.push_back("designs\\" + design);
    raster image(viewportwidth, viewportheight);
    for (auto _ : state) {
        for (const std::string& file : collected.files) benchmark::DoNotOptimize(filebytes(file, "file of a replay"));
        std::uint32_t pixel = 0xff000000;
        for (const run& r : collected.runs) std::fill_n(image.pixels() + r.at, r.length, ++pixel);
        for (const drawnline& l : collected.lines) image.line(l.x1, l.y1, l.x2, l.y2, {});
    }
    state.counters["files"] = static_cast<double>(collected.files.size());
    state.counters["lines"] = static_cast<double>(collected.lines.size());
    double pixels = 0;
    for (const run& r : collected.runs) pixels += r.length;
    state.counters["distinct pixels"] = pixels;
}

}  // namespace

void addlimit() { benchmark::RegisterBenchmark(limitofreplay, measurelimit)->Unit(benchmark::kMicrosecond); }

}  // namespace tessaly
