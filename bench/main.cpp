// The benchmark program: checks that the quick way and the plain way come to the same, runs what was asked for, and
// ends with the ratios of the run.

#include "bench/measure.h"
#include "core/world.h"
#include "tools/workingfolder.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <vector>

using namespace tessaly;

namespace {

// The best time of each benchmark, in nanoseconds of the processor: other work on the machine counts for little there.
class ratios : public benchmark::ConsoleReporter {
  public:
    ratios() : ConsoleReporter(OO_Tabular) {}

    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.error_occurred || run.run_type != Run::RT_Iteration) continue;
            const double time = run.cpu_accumulated_time / static_cast<double>(run.iterations);
            const auto [found, fresh] = best.emplace(run.run_name.function_name, time);
            if (!fresh) found->second = std::min(found->second, time);
        }
    }
    void print() const {
        std::puts("\nRatios of this run:");
        const std::string replay = std::string(measuredreplay) + "/", program = replay + nameof(way::program);
        for (const way w : {way::plain, way::plainqpainter, way::plainclippedqpainter})
            one(std::string("  times faster than ") + nameof(w), replay + nameof(w), program);
        one("  of the whole is not drawing", replay + nameof(way::nodrawing), program);
        one("  times the time of 100 records for 1000", program,
            std::string(tenthofreplay) + "/" + nameof(way::program));
        one("  times the limit", program, limitofreplay);
    }

  private:
    void one(const std::string& what, const std::string& dividend, const std::string& divisor) const {
        const auto a = best.find(dividend), b = best.find(divisor);
        if (a != best.end() && b != best.end()) std::printf("%8.2f%s\n", a->second / b->second, what.c_str());
    }
    std::map<std::string, double> best;
};

// The picture and all tables after the measured replay.
std::vector<std::string> outcomeof(way w) {
    building b(w);
    replaycombined(mixedfile(500), mixedfile(500));
    std::vector<std::string> seen;
    for (const tablebase* t = tablebase::first; t != nullptr; t = t->next)
        for (const value& v : t->elements()) seen.push_back(v.isnumber() ? shortesttext(v) : '"' + v.text());
    const auto& image = dynamic_cast<const raster&>(*b.viewport);
    for (int i = 0; i < image.width() * image.height(); ++i) seen.push_back(std::to_string(image.pixels()[i]));
    return seen;
}

int run(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    if (outcomeof(way::program) != outcomeof(way::plain)) {
        std::puts("The quick way and the plain way differ in a table or in the picture.");
        return 1;
    }
    std::puts("1000 records solid: pictures and tables of the quick way and of the plain way are the same.");
    addclicks();
    addreplays();
    addlimit();
    addshortcuts();
    ratios reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.print();
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const workingfolder scratch(std::filesystem::current_path());
    return run(argc, argv);
}
