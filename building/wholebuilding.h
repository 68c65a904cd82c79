// The whole building by one key: all design files replayed solid from the present view, floor after floor. The list of
// replays is made first, from the names of the files and their numbers of records alone, and then carried out by the
// readers' own procedures.
#pragma once

#include <string>
#include <vector>

namespace tessaly {

// A design file and the number of its complete records, at most 1000: a solid replay draws no more of a file.
struct countedfile {
    std::string name;
    int records;
};

// A replay of one file by the single file reader (second is empty), or of two by the girder and panel file reader.
struct replaystep {
    std::string first, second;
    bool operator==(const replaystep&) const = default;
};

// The replays that draw the whole building. The floors are in the order 1 to 10. On each floor the girder and panel
// files, each in the order of their names, go in pairs by rank, one without a partner alone; a pair of more than 1000
// records becomes two single replays, the girders first. The roof files of the floor follow. Files without a complete
// record and names that the readers refuse are left out.
std::vector<replaystep> replaysteps(std::vector<countedfile> files);

// F6. Clears the picture, deletes the temporary files of an interrupted replay and replays all files of designs\ solid.
// Controls other than the view's stay as they are. Does nothing if there is nothing to replay or the reader for two
// files waits for its second file. writes, fails: as pickautofile5 and pickautofile4; also if a file cannot be read.
void drawwholebuilding();

}  // namespace tessaly
