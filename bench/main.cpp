// The benchmark program: checks that the program and the plain method give the same results, runs the benchmarks and
// prints the ratios.

#include "bench/measure.h"
#include "core/world.h"
#include "player/checksum.h"
#include "tools/workingfolder.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <vector>

using namespace tessaly;

namespace {

// Collects the best time of each benchmark, in nanoseconds of processor time, which other programs hardly affect.
class ratios : public benchmark::ConsoleReporter {
  public:
    ratios() : ConsoleReporter(OO_Tabular) {}

    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.error_occurred || run.run_type != Run::RT_Iteration) continue;
            const double time = run.cpu_accumulated_time / static_cast<double>(run.iterations);
            const auto [found, inserted] = best.emplace(run.run_name.function_name, time);
            if (!inserted) found->second = std::min(found->second, time);
        }
    }
    void printall() const {
        std::puts("\nRatios of this run:");
        const std::string replay = std::string(measuredreplay) + "/", program = replay + nameof(method::program);
        for (const method m : {method::plain, method::qpainter})
            print(std::string("  times faster than ") + nameof(m), replay + nameof(m), program);
        print("  of the time is not spent drawing", replay + nameof(method::nodrawing), program);
        print("  times as long for 1000 records as for 100", program,
              std::string(tenthofreplay) + "/" + nameof(method::program));
        print("  times the limit", program, limitofreplay);
    }

  private:
    void print(const std::string& text, const std::string& dividend, const std::string& divisor) const {
        const auto a = best.find(dividend), b = best.find(divisor);
        if (a != best.end() && b != best.end()) std::printf("%8.2f%s\n", a->second / b->second, text.c_str());
    }
    std::map<std::string, double> best;
};

// Returns a checksum of all tables and of the picture after the measured replay.
checksum resultof(method m) {
    const startedprogram started(m);
    replaycombined(mixedfile(500), mixedfile(500));
    checksum sum;
    for (const tablebase* t = tablebase::first; t != nullptr; t = t->next)
        for (const value& v : t->elements()) sum.add((v.isnumber() ? shortesttext(v) : '"' + v.text() + '"') + ' ');
    const auto& image = dynamic_cast<const raster&>(*started.viewport);
    for (const std::uint32_t pixel : image.pixels) sum.addword(pixel);
    return sum;
}

}  // namespace

int main(int argc, char** argv) {
    const workingfolder scratch(std::filesystem::current_path());
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    if (resultof(method::program) != resultof(method::plain)) {
        std::puts("The program and the plain method differ in a table or in the picture.");
        return 1;
    }
    std::puts("1000 records solid: the program and the plain method give the same tables and picture.");
    addclicks();
    addreplays();
    addlimit();
    addshortcuts();
    ratios reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.printall();
    return 0;
}
