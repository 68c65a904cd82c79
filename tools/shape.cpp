// Formats a shape as an element data file. The sections are in the order in which the reader searches for them, each
// after a heading of free text. No field of a heading may equal the key of a section.
#include "tools/shape.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace tessaly {

namespace {

template <typename... numbers>
std::string row(const char* format, numbers... n) {
    char buffer[200];
    std::snprintf(buffer, sizeof buffer, format, n...);
    return buffer;
}

// Returns whether p lies between a and b, within 1e-4 model units; false at the ends.
bool between(corner a, corner b, corner p) {
    if (p == a || p == b) return false;
    const double dx = b.x - a.x, dz = b.z - a.z;
    const double along = ((p.x - a.x) * dx + (p.z - a.z) * dz) / (dx * dx + dz * dz);
    if (along <= 0 || along >= 1) return false;
    return std::abs(a.x + along * dx - p.x) + std::abs(a.z + along * dz - p.z) < 1e-4;
}

std::string pointrows(const shape& s) {
    std::string out = "Points: number x y z\nSTANDARD:\n";
    int n = 0;
    for (const corner& c : s.points) out += row("%4d, %6g,      0, %6g\n", ++n, c.x, c.z);
    return out + "9999,      0,      0,      0\n\n";
}

std::string linerows(const shape& s) {
    std::string out = "Lines in five groups: from point to point\n";
    for (std::size_t g = 0; g < s.lines.size(); g++) {
        out += row("LINEG%d:\n", static_cast<int>(g) + 1);
        for (const auto& [a, b] : s.lines[g]) out += row("%4d, %4d\n", a, b);
        out += "9999, 9999\n";
    }
    return out + "\n";
}

std::string quadrows(const shape& s) {
    std::string out = "Faces: number; corners 1 3 2 4; face; colour\nAUTOPLANE:\n";
    int n = 0;
    for (const quad& q : s.quads) {
        n++;
        out += row("%4d, %4d, %4d, %4d, %4d, %3d, %4d\n", n, q.points[0], q.points[2], q.points[1], q.points[3], n,
                   q.colour);
    }
    return out + "9999,    0,    0,    0,    0,   0,    0\n\n";
}

// The end row names the slot after the last face; the reader sets its count to 0.
std::string framingrows(const shape& s, const char* key, int quad::*count) {
    std::string out = row("%s\n", key);
    int n = 0;
    for (const quad& q : s.quads) {
        n++;
        if (q.*count) out += row("%4d, %4d\n", n, q.*count);
    }
    return out + row("%4d, 9999\n", n + 1);
}

}  // namespace

int shape::pointat(corner c) {
    const auto found = std::find(points.begin(), points.end(), c);
    if (found == points.end()) {
        points.push_back(c);
        return static_cast<int>(points.size());
    }
    return static_cast<int>(found - points.begin()) + 1;
}

void shape::line(int group, corner a, corner b) {
    const std::pair<int, int> ends = std::minmax({pointat(a), pointat(b)});
    if (ends.first == ends.second) return;
    for (const auto& g : lines)
        if (std::find(g.begin(), g.end(), ends) != g.end()) return;
    lines[static_cast<std::size_t>(group) - 1].push_back(ends);
}

void shape::face(int group, int colour, const std::array<corner, 4>& at, int columns, int rows) {
    const std::array corners{pointat(at[0]), pointat(at[1]), pointat(at[2]), pointat(at[3])};
    line(group, at[0], at[1]);
    line(group, at[1], at[3]);
    line(group, at[3], at[2]);
    line(group, at[2], at[0]);
    quads.push_back({corners, colour, columns, rows});
}

void shape::split() {
    const auto whole = lines;
    for (auto& g : lines) g.clear();
    for (std::size_t g = 0; g < whole.size(); g++) {
        for (const auto& [a, b] : whole[g]) {
            const corner from = points[static_cast<std::size_t>(a) - 1], to = points[static_cast<std::size_t>(b) - 1];
            std::vector<corner> stops{from, to};
            for (const corner& c : points)
                if (between(from, to, c)) stops.push_back(c);
            std::sort(stops.begin(), stops.end(), [&](corner p, corner q) {
                return std::hypot(p.x - from.x, p.z - from.z) < std::hypot(q.x - from.x, q.z - from.z);
            });
            for (std::size_t i = 1; i < stops.size(); i++) line(static_cast<int>(g) + 1, stops[i - 1], stops[i]);
        }
    }
}

std::string shape::text() const {
    std::string out = title + "\n" + note + "\n";
    out += "Seen from outside X runs to the right; the outside looks towards minus Y; Z is up.\n";
    out += "\nColours of the seven line groups, by palette entry\nWIRECOLORS:\n";
    out += row("%d, %d, %d, %d, %d, 0, 0\n\n", wires[0], wires[1], wires[2], wires[3], wires[4]);
    out += pointrows(*this) + linerows(*this);
    out += "No cubes\nAUTOCUBE400:\n9999, 0, 0, 0, 0, 0, 0, 0, 0\nAUTOCUBE600:\n9999, 0, 0, 0, 0, 0, 0, 0, 0\n\n";
    out += quadrows(*this);
    out += "Framing lines on a face: face number; parts of its edge 1-2 (below: of its edge 1-3)\n";
    out += framingrows(*this, "AUTOFRAMING1:", &quad::columns) + framingrows(*this, "AUTOFRAMING2:", &quad::rows);
    return out + "\nNothing is moved\nTRAN\nSTOP\n";
}

}  // namespace tessaly
