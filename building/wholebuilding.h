// The key F6 draws the whole building: it replays all design files solid in the current view, floor after floor. First
// it lists the replays, using only the names of the files and their numbers of records. Then the procedures of the two
// readers carry them out.
#pragma once

#include <string>
#include <vector>

namespace tessaly {

// A design file and the number of its complete records, at most 1000, because a solid replay draws no more of a file.
struct countedfile {
    std::string name;
    int records;
};

// A replay of one file with the single file reader (second is empty), or of two files with the girder and panel file
// reader.
struct replaystep {
    std::string first, second;
    bool operator==(const replaystep&) const = default;
};

// Returns the replays that draw the whole building, floor 1 first. On each floor, the girder files and the panel files
// are sorted by name. The first girder file is replayed together with the first panel file, and so on; a file without a
// partner is replayed alone. If a pair has more than 1000 records, it is replayed as two single files, the girders
// first. The roof files of the floor follow. Files without a complete record and files without a floor digit are left
// out.
std::vector<replaystep> replaysteps(std::vector<countedfile> files);

// Clears the picture, deletes the temporary files of an interrupted replay and replays all files of designs\ solid.
// Does nothing if there is nothing to replay or if the girder and panel file reader is waiting for its second file.
// writes: as pickautofile5 and pickautofile4, but no control except the boxes of the view; draws on viewport; fails: as
// these two, and if a file cannot be read.
void drawwholebuilding();

}  // namespace tessaly
