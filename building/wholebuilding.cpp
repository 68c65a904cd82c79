// Lists the replays of the whole building and carries them out.

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

// Returns a file with the digit of its floor. The files that clicks on floor 10 write, such as "girders10.txt", belong
// to floor 10 here, although the readers draw them on floor 1 when a user picks them.
replayfile replayfileof(const std::string& name) {
    const fileclass* const found = classofname(name);
    if (found && name == recordfile(*found, topfloor)) return {name, 0};
    return {name, floordigit(name)};
}

// Selects the files of a class and floor that have records.
rankedfiles filesonfloor(const std::vector<countedfile>& sorted, const fileclass& wanted, int floornumber) {
    rankedfiles found;
    for (const countedfile& f : sorted)
        if (f.records > 0 && classofname(f.name) == &wanted && replayfileof(f.name).digit == floornumber % topfloor)
            found.push_back(f);
    return found;
}

// Counts the records of all files in designs\ whose names have a floor digit. Changes no table or scalar.
std::vector<countedfile> countfiles() {
    std::vector<countedfile> files;
    for (const std::string& name : filesin("designs\\"))
        if (floordigit(name) >= 0) files.push_back({name, foreachrecord(name, lastrecord, [](const auto&) {})});
    return files;
}

// Deletes the temporary files of an interrupted replay. Otherwise the next replay would draw their records instead of
// its own.
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
        const rankedfiles girders = filesonfloor(files, girderfiles, floornumber),
                          panels = filesonfloor(files, panelfiles, floornumber);
        for (std::size_t rank = 0; rank < std::max(girders.size(), panels.size()); ++rank) {
            const bool girder = rank < girders.size(), panel = rank < panels.size();
            if (girder && panel && girders[rank].records + panels[rank].records <= lastrecord) {
                steps.push_back({girders[rank].name, panels[rank].name});
                continue;
            }
            if (girder) steps.push_back({girders[rank].name, ""});
            if (panel) steps.push_back({panels[rank].name, ""});
        }
        for (const countedfile& roofs : filesonfloor(files, rooffiles, floornumber)) steps.push_back({roofs.name, ""});
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
            replaysolid(replayfileof(step.first));
        else
            replaypairsolid(replayfileof(step.first), replayfileof(step.second));
}

}  // namespace tessaly
