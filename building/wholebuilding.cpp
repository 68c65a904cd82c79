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
using rankedfiles = std::vector<countedfile>;  // files of one class and floor, in the order of their names

// Returns a file with the digit of its floor. A file that clicks on floor 10 wrote belongs to floor 10 here; the
// readers take it for floor 1 when it is picked.
replayfile withfloor(const std::string& name) {
    const fileclass* const found = classofname(name);
    if (found && name == recordfile(*found, topfloor)) return {name, 0};
    return {name, floordigit(name)};
}

rankedfiles filesof(const std::vector<countedfile>& files, const fileclass& wanted, int floornumber) {
    rankedfiles found;
    for (const countedfile& f : files)
        if (f.records > 0 && classofname(f.name) == &wanted && withfloor(f.name).digit == floornumber % topfloor)
            found.push_back(f);
    return found;
}

// Reads all files of designs\; changes neither tables nor scalars.
std::vector<countedfile> countfiles() {
    std::vector<countedfile> files;
    for (const std::string& name : filesin("designs\\"))
        if (floordigit(name) >= 0) files.push_back({name, foreachrecord(name, lastrecord, [](const auto&) {})});
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
        const rankedfiles girders = filesof(files, girderfiles, floornumber),
                          panels = filesof(files, panelfiles, floornumber);
        for (std::size_t rank = 0; rank < std::max(girders.size(), panels.size()); ++rank) {
            const bool girder = rank < girders.size(), panel = rank < panels.size();
            if (girder && panel && girders[rank].records + panels[rank].records <= lastrecord) {
                steps.push_back({girders[rank].name, panels[rank].name});
                continue;
            }
            if (girder) steps.push_back({girders[rank].name, ""});
            if (panel) steps.push_back({panels[rank].name, ""});
        }
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
