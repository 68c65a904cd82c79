// Computes rows from the order in which the readers stored them. Element files and axis-cube files differ in their
// sections.

#include "render/locations.h"

#include "core/failure.h"
#include "core/world.h"

#include <algorithm>
#include <iterator>

namespace tessaly {

namespace {

constexpr int planefields = 7, cubefields = 9, cuberowfields = 10;
constexpr int facesofcube = 10;
constexpr int firstcubeface = 4001, firstlastface = 6001;  // of AUTOCUBE400: and AUTOCUBE600: in an element file

// Whether the tables hold an axis-cube file: the start of its name determines its reader.
bool holdscubes() {
    const std::string name = shapefile.text();
    return name.starts_with("datah\\ax") || name.starts_with("datah\\ay") || name.starts_with("datah\\az");
}

std::string insection(const std::string& section) { return shortpath(shapefile.text()) + ", " + section; }

std::string inrow(const std::string& section, int row, int number) {
    return numberlocation(insection(section) + ", row " + std::to_string(row), number);
}

// Returns the location of the last number in a cube's row.
std::string locationofcubecolour(int face) {
    if (holdscubes() && face < firstlastface)
        return numberlocation(insection("AUTOCUBE" + std::to_string((face - 1) / 1000) + "00:"), cuberowfields);
    const bool lastsection = face >= firstlastface;
    const int row = (face - (lastsection ? firstlastface : firstcubeface)) / facesofcube + 1;
    return inrow(lastsection ? "AUTOCUBE600:" : "AUTOCUBE400:", row, cubefields);
}

}  // namespace

std::string locationoflineend(int group, int row, int end) {
    return inrow("LINEG" + std::to_string(group) + ":", row, end);
}

std::string locationofwirecolour(int group) {
    return numberlocation(insection("WIRECOLORS:"), group - (holdscubes() ? 5 : 0));
}

std::string locationofbadcorner(int face) {
    const value corners[] = {quad1[face], quad3[face], quad2[face], quad4[face]};  // in the order of a row
    const auto nopoint = [](const value& corner) { return !(corner >= -0.5 && corner <= lastpoint + 0.5); };
    const auto found = std::find_if(std::begin(corners), std::end(corners), nopoint);
    return inrow("AUTOPLANE:", face, 2 + static_cast<int>(found - corners));
}

std::string locationofcolour(int face) {
    return holdscubes() || face >= firstcubeface ? locationofcubecolour(face) : inrow("AUTOPLANE:", face, planefields);
}

std::string locationofframing(int face, int direction) {
    return insection("AUTOFRAMING" + std::to_string(direction) + ":, face " + std::to_string(face));
}

}  // namespace tessaly
