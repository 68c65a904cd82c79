// The list of replays, and its execution.

#include "building/wholebuilding.h"

#include "building/combinedreader.h"
#include "building/designfiles.h"
#include "building/replay.h"
#include "building/singlereader.h"
#include "core/textfiles.h"
#include "render/redraw.h"

#include <algorithm>
#include <filesystem>

namespace tessaly {

namespace {

constexpr int topfloor = 10;
using ranking = std::vector<countedfile>;  // files of one class and floor, in the order of their names

// The files that clicks on floor 10 write, and names with floor 10's digit, which is 0. A pick by hand takes these
// three for floor 1; here alone they are what they were written as.
constexpr struct {
    const char *name, *floorby;
} tenthfloor[] = {{"girders10.txt", "girder10.txt"}, {"panels10.txt", "panel10.txt"}, {"roofs10.txt", "roof10.txt"}};

replayfile withfloor(const std::string& name) {
    for (const auto& t : tenthfloor)
        if (name == t.name) return {name, t.floorby};
    return {name, name};
}

ranking filesof(const ranking& files, const fileclass& wanted, int floornumber) {
    ranking found;
    for (const countedfile& f : files)
        if (f.records > 0 && classofname(f.name) == &wanted &&
            floordigit(withfloor(f.name).floorby) == floornumber % topfloor)
            found.push_back(f);
    return found;
}

void addpair(std::vector<replaystep>& steps, const countedfile& girders, const countedfile& panels) {
    if (girders.records + panels.records <= lastrecord) {
        steps.push_back({girders.name, panels.name});
    } else {
        steps.push_back({girders.name, ""});
        steps.push_back({panels.name, ""});
    }
}

// Reads all files of designs\; changes neither tables nor scalars.
ranking countfiles() {
    ranking files;
    for (const std::string& name : filesin("designs\\"))
        if (floordigit(name) >= 0) files.push_back({name, countrecords(name)});
    return files;
}

// What an interrupted replay left would be replayed in place of the last records.
void deletetemporaryfiles() {
    for (temporaryfile* file : {&tempfile, &sortedtempfile}) {
        std::error_code ignored;
        if (std::filesystem::exists(systempath(file->path), ignored)) deletetemporary(*file);
    }
}

}  // namespace

std::vector<replaystep> replaysteps(std::vector<countedfile> files) {
    std::sort(files.begin(), files.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
    std::vector<replaystep> steps;
    for (int floornumber = 1; floornumber <= topfloor; ++floornumber) {
        const ranking girders = filesof(files, girderfiles, floornumber),
                      panels = filesof(files, panelfiles, floornumber);
        for (std::size_t rank = 0; rank < std::max(girders.size(), panels.size()); ++rank)
            if (rank < girders.size() && rank < panels.size())
                addpair(steps, girders[rank], panels[rank]);
            else
                steps.push_back({(rank < girders.size() ? girders : panels)[rank].name, ""});
        for (const countedfile& roofs : filesof(files, rooffiles, floornumber)) steps.push_back({roofs.name, ""});
    }
    return steps;
}

void drawwholebuilding() {
    if (awaitssecondfile()) return;
    const std::vector<replaystep> steps = replaysteps(countfiles());
    if (steps.empty()) return;
    clearpicture();
    deletetemporaryfiles();
    for (const replaystep& step : steps)
        if (step.second.empty())
            replaysolid(withfloor(step.first));
        else
            replaypairsolid(withfloor(step.first), withfloor(step.second));
}

}  // namespace tessaly
