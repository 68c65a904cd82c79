// The families of position buttons on the three plans. Buttons, records and replays are derived from their table.
#pragma once

#include "core/elementtypes.h"

#include <span>

namespace tessaly {

constexpr int layoutbay = 192;   // layout units between neighbouring positions
constexpr int codeofpanel = -1;  // as the code of a family: that of the chosen panel

// Button (i, j) of a family, i = 0..cols-1, j = 0..rows-1, is at x = x0 + 192 i and y = y0 + 192 j. Its name is the
// prefix followed by x, "y" and y. Its element number is firstnumber + rows i + j.
struct buttonfamily {
    const char* nameprefix;
    window* layout;
    const char* datafile;    // name of the element file; "": depends on panel type and snip
    const fileclass& files;  // the design files in which its clicks are recorded
    int firstnumber, cols, rows;
    int x0, y0;                             // layout units
    int mode, rotx, rotz, facecode, code;   // placemode; degrees; fields 10 and 5 of the record
    int dx, dy;                             // from x, y to the middle of the element, layout units
    int left0, top0, pitch, width, height;  // twips: left = left0 + pitch j, top = top0 + pitch i
    colour background;
    const char* accessiblename;
};

std::span<const buttonfamily> allbuttonfamilies();

}  // namespace tessaly
