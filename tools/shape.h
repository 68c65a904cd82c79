// A flat element under construction: points, lines in five groups, quads, all in the plane Y = 0. A maker lays down
// faces and lines by their corners; the shape numbers the points, splits and shares the lines, and writes the element
// data file.
#pragma once

#include <array>
#include <string>
#include <utility>
#include <vector>

namespace tessaly {

struct corner {
    double x, z;  // model units
    bool operator==(const corner&) const = default;
};

// A quad in the painter's order: the rails 1-2 and 3-4 lie across from each other, so around it goes 1, 2, 4, 3.
struct quad {
    std::array<int, 4> points;  // point numbers of corners 1, 2, 3, 4
    int colour;                 // palette entry
    int columns, rows;          // framing lines: parts into which they cut edge 1-2, and edge 1-3; 0 for none
};

struct shape {
    std::string title, note;                                // the file's first lines
    std::array<int, 5> wires{};                             // palette entries of the line groups
    std::vector<corner> points;                             // point n of the file is points[n - 1]
    std::array<std::vector<std::pair<int, int>>, 5> lines;  // point numbers
    std::vector<quad> quads;

    int pointat(corner c);                     // the number of that point, laid down where it is new
    void line(int group, corner a, corner b);  // group 1..5; one that lies in any group already is left out
    // A quad by its corners in the painter's order; its edges become lines of the group.
    void face(int group, int colour, const std::array<corner, 4>& at, int columns, int rows);
    // Cuts each line at the points that lie on it, so that no two lines share a stretch; the lower group keeps it.
    void split();

    std::string text() const;  // the element data file
};

}  // namespace tessaly
