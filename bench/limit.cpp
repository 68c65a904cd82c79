// Measures a limit that no method of replaying can beat. For each record it reads the element file, draws the wires and
// framing lines once, and fills the distinct pixels of each face once. It reads each design file once, and parses,
// projects and sorts nothing.

#include "bench/measure.h"
#include "core/textfiles.h"
#include "core/world.h"

#include <algorithm>
#include <vector>

namespace tessaly {

namespace {

// Neighbouring pixels of one row.
struct pixelrun {
    int first, length;
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
        const auto byte = [this](int shift) { return static_cast<std::uint8_t>(facenumber >> shift); };
        image.drawbetween(f, n, {byte(16), byte(8), byte(0)});
        seconddirection = !seconddirection;
        if (!seconddirection) collectpixels(f, 0xff000000 | facenumber++);
    }
    std::vector<std::string> files;
    std::vector<drawnline> lines;
    std::vector<pixelrun> runs;

  private:
    // The first wire after the faces of an element belongs to the next element.
    void startelement() {
        afterfaces = false;
        files.push_back(loadedfile.text());
    }
    void collectpixels(const facecorners& f, std::uint32_t pixel) {
        const auto [left, right] = std::minmax({f.x1, f.x2, f.x3, f.x4});
        const auto [top, bottom] = std::minmax({f.y1, f.y2, f.y3, f.y4});
        const auto inside = [](double at, int size) { return static_cast<int>(std::clamp<double>(at, 0, size - 1)); };
        for (int y = inside(top - 1, viewportheight); y <= inside(bottom + 1, viewportheight); ++y)
            for (int x = inside(left - 1, viewportwidth); x <= inside(right + 1, viewportwidth); ++x) {
                const int index = y * viewportwidth + x;
                if (image.pixels.data()[index] != pixel) continue;
                const bool continues = !runs.empty() && x > 0 && runs.back().first + runs.back().length == index;
                continues ? void(++runs.back().length) : runs.push_back({index, 1});
            }
    }
    raster image{viewportwidth, viewportheight};
    std::uint32_t facenumber = 0;
    bool seconddirection = false, afterfaces = true;
};

void measurelimit(benchmark::State& state) {
    const startedprogram started(method::program);
    limitcollector collected;
    viewportsurface = &collected;
    const std::string design = mixedfile(500);
    replaycombined(design, design);
    for (int each = 0; each < 2; ++each) collected.files.push_back("designs\\" + design);
    raster image(viewportwidth, viewportheight);
    for (auto _ : state) {
        for (const std::string& file : collected.files) benchmark::DoNotOptimize(filebytes(file, "file of a replay"));
        std::uint32_t pixel = 0xff000000;
        for (const pixelrun& r : collected.runs) std::fill_n(image.pixels.data() + r.first, r.length, ++pixel);
        for (const drawnline& l : collected.lines) image.line(l.x1, l.y1, l.x2, l.y2, {});
    }
    state.counters["files"] = static_cast<double>(collected.files.size());
    state.counters["lines"] = static_cast<double>(collected.lines.size());
    double pixels = 0;
    for (const pixelrun& r : collected.runs) pixels += r.length;
    state.counters["distinct pixels"] = pixels;
}

}  // namespace

void addlimit() { benchmark::RegisterBenchmark(limitofreplay, measurelimit)->Unit(benchmark::kMicrosecond); }

}  // namespace tessaly
