// The families of position buttons on the three plans, one row per family. Buttons, records and replays use these rows.
#pragma once

#include "core/elementtypes.h"

#include <span>

namespace tessaly {

constexpr int layoutbay = 192;   // layout units between neighbouring positions
constexpr int codeofpanel = -1;  // buttonfamily::code: the element code is that of the chosen panel

// Button (i, j) of a family, i = 0..cols-1, j = 0..rows-1, is at x = x0 + 192 i and y = y0 + 192 j. Its name is the
// prefix followed by x, "y" and y.
struct buttonfamily {
    const char* nameprefix;
    window* layout;
    const char* datafile;                   // name of the element file; "": depends on panel type and snip
    const fileclass& record;                // class of its design records
    int first, cols, rows;                  // element number of button (0, 0), which counts j first; ranges of i and j
    int x0, y0;                             // layout units
    int mode, rotx, rotz, facecode, code;   // placemode, degrees, fields 10 and 5 of the record
    int dx, dy;                             // from x, y to the middle of the element, layout units
    int left0, top0, pitch, width, height;  // twips: left = left0 + pitch j, top = top0 + pitch i
    colour back;
    const char* accessiblename;
};

std::span<const buttonfamily> allbuttonfamilies();

}  // namespace tessaly
