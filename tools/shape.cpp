// Formats a shape as an element file. The sections are in the order in which the reader searches for them, each after a
// heading. A heading can be any text in which no field equals the key of a section.
#include "tools/shape.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace tessaly {

namespace {

template <typename... numbers>
std::string formatted(const char* format, numbers... n) {
    char buffer[200];
    std::snprintf(buffer, sizeof buffer, format, n...);
    return buffer;
}

// Returns whether p is on the line between a and b, within 1e-4 model units; false at the ends.
bool between(corner a, corner b, corner p) {
    if (p == a || p == b) return false;
    const double dx = b.x - a.x, dz = b.z - a.z;
    const double fraction = ((p.x - a.x) * dx + (p.z - a.z) * dz) / (dx * dx + dz * dz);
    if (fraction <= 0 || fraction >= 1) return false;
    return std::abs(a.x + fraction * dx - p.x) + std::abs(a.z + fraction * dz - p.z) < 1e-4;
}

std::string pointrows(const shape& s) {
    std::string out = "Points: number x y z\nSTANDARD:\n";
    int n = 0;
    for (const corner& c : s.points) out += formatted("%4d, %6g,      0, %6g\n", ++n, c.x, c.z);
    return out + "9999,      0,      0,      0\n\n";
}

std::string linerows(const shape& s) {
    std::string out = "Lines in five groups: from point to point\n";
    for (std::size_t g = 0; g < s.lines.size(); g++) {
        out += formatted("LINEG%d:\n", static_cast<int>(g) + 1);
        for (const auto& [a, b] : s.lines[g]) out += formatted("%4d, %4d\n", a, b);
        out += "9999, 9999\n";
    }
    return out + "\n";
}

std::string quadrows(const shape& s) {
    std::string out = "Faces: number; corners 1 3 2 4; face; colour\nAUTOPLANE:\n";
    int n = 0;
    for (const quad& q : s.quads) {
        n++;
        out += formatted("%4d, %4d, %4d, %4d, %4d, %3d, %4d\n", n, q.points[0], q.points[2], q.points[1], q.points[3],
                         n, q.colour);
    }
    return out + "9999,    0,    0,    0,    0,   0,    0\n\n";
}

// The end row names the slot after the last face; the reader sets its count to 0.
std::string framingrows(const shape& s, const char* key, int quad::*count) {
    std::string out = std::string(key) + "\n";
    int n = 0;
    for (const quad& q : s.quads) {
        n++;
        if (q.*count) out += formatted("%4d, %4d\n", n, q.*count);
    }
    return out + formatted("%4d, 9999\n", n + 1);
}

}  // namespace

int shape::pointnumber(corner c) {
    const auto found = std::find(points.begin(), points.end(), c);
    const int number = static_cast<int>(found - points.begin()) + 1;
    if (found == points.end()) points.push_back(c);
    return number;
}

void shape::addline(int group, corner a, corner b) {
    const std::pair<int, int> ends = std::minmax({pointnumber(a), pointnumber(b)});
    if (ends.first == ends.second) return;
    for (const auto& g : lines)
        if (std::find(g.begin(), g.end(), ends) != g.end()) return;
    lines[static_cast<std::size_t>(group) - 1].push_back(ends);
}

void shape::addface(int group, int colour, const std::array<corner, 4>& corners, int columns, int rows) {
    const auto& [one, two, three, four] = corners;
    quads.push_back(
        {{pointnumber(one), pointnumber(two), pointnumber(three), pointnumber(four)}, colour, columns, rows});
    addline(group, one, two);
    addline(group, two, four);
    addline(group, four, three);
    addline(group, three, one);
}

void shape::splitlines() {
    const auto unsplit = std::exchange(lines, {});
    for (std::size_t g = 0; g < unsplit.size(); g++) {
        for (const auto& [a, b] : unsplit[g]) {
            const corner from = points[static_cast<std::size_t>(a) - 1], to = points[static_cast<std::size_t>(b) - 1];
            std::vector<corner> stops{from, to};
            for (const corner& c : points)
                if (between(from, to, c)) stops.push_back(c);
            std::sort(stops.begin(), stops.end(), [&](corner p, corner q) {
                return std::hypot(p.x - from.x, p.z - from.z) < std::hypot(q.x - from.x, q.z - from.z);
            });
            for (std::size_t i = 1; i < stops.size(); i++) addline(static_cast<int>(g) + 1, stops[i - 1], stops[i]);
        }
    }
}

std::string shape::text() const {
    std::string out = title + "\n" + note + "\n";
    out += "Seen from outside, X runs to the right, Y away from the viewer and Z up.\n";
    out += "\nColours of the seven line groups, by palette entry\nWIRECOLORS:\n";
    out += formatted("%d, %d, %d, %d, %d, 0, 0\n\n", wirecolours[0], wirecolours[1], wirecolours[2], wirecolours[3],
                     wirecolours[4]);
    out += pointrows(*this) + linerows(*this);
    out += "No cubes\nAUTOCUBE400:\n9999, 0, 0, 0, 0, 0, 0, 0, 0\nAUTOCUBE600:\n9999, 0, 0, 0, 0, 0, 0, 0, 0\n\n";
    out += quadrows(*this);
    out += "Framing lines of a face: face number; number of parts of its edge 1-2 (second section: 1-3)\n";
    out += framingrows(*this, "AUTOFRAMING1:", &quad::columns) + framingrows(*this, "AUTOFRAMING2:", &quad::rows);
    return out + "\nNothing is moved\nTRAN\nSTOP\n";
}

}  // namespace tessaly
