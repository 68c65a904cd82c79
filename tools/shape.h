// A flat element in the plane Y = 0: points, lines in five groups, and quads. A generator adds faces and lines by their
// corners. The shape numbers the points, splits lines, omits duplicates and formats the element file.
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

// A quad in the painter's corner order: edges 1-2 and 3-4 are opposite, so around the quad its corners are 1, 2, 4, 3.
struct quad {
    std::array<int, 4> points;  // point numbers of corners 1, 2, 3, 4
    int colour;                 // palette entry
    int columns, rows;          // parts into which framing lines divide edges 1-2 and 1-3; 0 if there are none
};

struct shape {
    std::string title, note;                                // the first two lines of the file
    std::array<int, 5> wirecolours{};                       // palette entries of the line groups
    std::vector<corner> points;                             // point n of the file is points[n - 1]
    std::array<std::vector<std::pair<int, int>>, 5> lines;  // point numbers
    std::vector<quad> quads;

    int pointnumber(corner c);                    // returns the number of the point; adds it if it is new
    void addline(int group, corner a, corner b);  // group 1..5; adds nothing if any group already has the line
    // Adds a quad with its corners in the painter's order, and its edges as lines of the group.
    void addface(int group, int colour, const std::array<corner, 4>& corners, int columns, int rows);
    // Splits each line at the points on it, so that no two lines overlap. Where lines of
    // several groups overlap, the group with the lowest number gets the part.
    void splitlines();

    std::string text() const;  // returns the text of the element file
};

}  // namespace tessaly
