// The rows of the sections, by the order in which the readers took them: element files and axis-cube files differ.

#include "render/places.h"

#include "core/channels.h"
#include "core/failure.h"
#include "core/fields.h"
#include "core/world.h"

#include <algorithm>
#include <iterator>

namespace tessaly {

namespace {

// Whether the file in the tables is an axis-cube file, which its name tells.
bool ofcubes() {
    const std::string name = shapefile.text();
    return name.starts_with("datah\\ax") || name.starts_with("datah\\ay") || name.starts_with("datah\\az");
}

std::string location(const std::string& key, int skipped) { return figureplace(shapefile.text(), key, skipped); }

// A cube's face: the row of its cube, and of that the last figure, which is its colour.
std::string placeofcubecolour(int face) {
    constexpr int facesofcube = 10, facesofsection = 1000, cubefields = 9, rowfields = 10;
    const int section = (face - 1) / facesofsection;
    if (ofcubes() && section < 6) return location("AUTOCUBE" + std::to_string(section) + "00:", rowfields - 1);
    const bool lastsection = face > 6 * facesofsection;
    const int row = (face - 1 - (lastsection ? 6 : 4) * facesofsection) / facesofcube;
    return location(lastsection ? "AUTOCUBE600:" : "AUTOCUBE400:", row * cubefields + cubefields - 1);
}

}  // namespace

std::string placeofend(int group, int row, int end) {
    return location("LINEG" + std::to_string(group) + ":", 2 * (row - 1) + end - 1);
}

std::string placeofwirecolour(int group) { return location("WIRECOLORS:", group - (ofcubes() ? 6 : 1)); }

std::string placeofcorner(int face) {
    const value corners[] = {quad1[face], quad3[face], quad2[face], quad4[face]};  // in the order of a row
    const auto nopoint = [](const value& corner) { return !(corner >= -0.5 && corner <= lastpoint + 0.5); };
    const auto found = std::find_if(std::begin(corners), std::end(corners), nopoint);
    return location("AUTOPLANE:", 7 * (face - 1) + 1 + static_cast<int>(found - corners));
}

std::string placeofcolour(int face) {
    return ofcubes() || face > 4000 ? placeofcubecolour(face) : location("AUTOPLANE:", 7 * (face - 1) + 6);
}

// The last row that names the face: rows of face and count, in an axis-cube file of first face, last face and count.
std::string placeofframing(int face, int direction) {
    const std::string key = "AUTOFRAMING" + std::to_string(direction) + ":";
    const int fields = ofcubes() ? 3 : 2;
    int found = 1;
    try {
        openinput(0, shapefile.text(), "shape file");
        findkey(0, key.c_str());
        for (int row = 1;; ++row) {
            const double first = readvalue(0, key.c_str()),
                         last = ofcubes() ? double(readvalue(0, key.c_str())) : first;
            if (readvalue(0, key.c_str()) == sentinel) break;
            if (face >= nearestwhole(first) && face <= nearestwhole(last)) found = row;
        }
    } catch (const failure&) {  // the file is another one by now
    }
    closechannel(0);
    return location(key, fields * found - 1);
}

}  // namespace tessaly
