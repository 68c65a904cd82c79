// An element under construction: points, lines in five groups, quads. A maker lays down faces and lines by their
// corners; the shape numbers the points, splits and shares the lines, and writes the element data file.
#pragma once

#include <array>
#include <string>
#include <utility>
#include <vector>

namespace tessaly {

struct corner {
    double x, y, z;  // model units
    bool operator==(const corner&) const = default;
};

// A quad in the painter's order: the rails 1-2 and 3-4 lie across from each other, so around it goes 1, 2, 4, 3.
struct quad {
    std::array<int, 4> points;  // point numbers of corners 1, 2, 3, 4
    int number;                 // face number, kept by the program and drawn by nothing
    int colour;                 // palette entry
    int columns, rows;          // framing lines: parts into which they cut edge 1-2, and edge 1-3; 0 for none
};

struct shape {
    std::string title;                                      // the file's first line
    std::vector<std::string> notes;                         // free text below it, a line each
    std::array<int, 5> wires{};                             // palette entries of the line groups
    std::vector<corner> points;                             // point n of the file is points[n - 1]
    std::array<std::vector<std::pair<int, int>>, 5> lines;  // point numbers
    std::vector<quad> quads;

    int pointat(corner c);                     // the number of that point, laid down where it is new
    void line(int group, corner a, corner b);  // group 1..5; one that lies in any group already is left out
    // A quad by its corners in the painter's order; its edges become lines of the group.
    quad& face(int group, int colour, corner one, corner two, corner three, corner four, int columns = 0, int rows = 0);
    // Cuts each line at the points that lie on it, so that no two lines share a stretch; the lower group keeps it.
    void split();

    std::string text() const;  // the element data file
};

}  // namespace tessaly
