// Computes rows from the order in which the readers stored them. The painter paints only element files, but wires are
// also drawn for axis-cube files.

#include "render/locations.h"

#include "core/failure.h"
#include "core/world.h"

#include <algorithm>
#include <iterator>

namespace tessaly {

namespace {

constexpr int planefields = 7, cubefields = 9, facesofcube = 10;
constexpr int firstcubeface = 4001, firstlastcubeface = 6001;  // of AUTOCUBE400: and AUTOCUBE600: in an element file

// Returns whether the tables hold an axis-cube file. The start of a file's name determines its reader.
bool holdaxiscubes() {
    const std::string name = loadedfile.text();
    return name.starts_with("datah\\ax") || name.starts_with("datah\\ay") || name.starts_with("datah\\az");
}

std::string infile(const std::string& part) { return shortpath(loadedfile.text()) + ", " + part; }

std::string inrow(const std::string& section, int row, int number) {
    return numberlocation(infile(section) + ", row " + std::to_string(row), number);
}

}  // namespace

std::string locationoflineend(int group, int row, int end) {
    return inrow("LINEG" + std::to_string(group) + ":", row, end);
}

std::string locationofwirecolour(int group) {
    return numberlocation(infile("WIRECOLORS:"), group - (holdaxiscubes() ? 5 : 0));
}

std::string locationofbadcorner(int face) {
    const value corners[] = {quad1[face], quad3[face], quad2[face], quad4[face]};  // in the order of a row
    const auto nopoint = [](const value& corner) { return !(corner >= -0.5 && corner <= lastpoint + 0.5); };
    const auto found = std::find_if(std::begin(corners), std::end(corners), nopoint);
    return inrow("AUTOPLANE:", face, 2 + static_cast<int>(found - corners));
}

std::string locationofcolour(int face) {
    if (face < firstcubeface) return inrow("AUTOPLANE:", face, planefields);
    const bool isfirst = face < firstlastcubeface;
    const int row = (face - (isfirst ? firstcubeface : firstlastcubeface)) / facesofcube + 1;
    return inrow(isfirst ? "AUTOCUBE400:" : "AUTOCUBE600:", row, cubefields);
}

std::string locationofframing(int face, int direction) {
    return infile("AUTOFRAMING" + std::to_string(direction) + ":, face " + std::to_string(face));
}

}  // namespace tessaly
