// The table of the button families. It determines the position buttons of the three layout windows, the records of
// their clicks, and the elements that a replay draws for the records.
#pragma once

#include "core/elementtypes.h"

#include <span>

namespace tessaly {

constexpr int bayside = 192;       // layout units between neighbouring positions
constexpr int usespanelcode = -1;  // a family's code if panelcode is recorded instead

// Button (i, j) of a family, i = 0..countx-1, j = 0..county-1, is at x = x0 + 192 * i and y = y0 + 192 * j. Its name is
// the prefix followed by x, "y" and y. Its element number is firstnumber + county * i + j.
struct buttonfamily {
    const char* nameprefix;
    window* layout;
    const char* datafile;    // name of the element file; "": that of the panel type and snip
    const fileclass& files;  // the design files in which its clicks are recorded
    int firstnumber, countx, county;
    int x0, y0;  // layout units
    int placemode;
    int rotx, rotz;                         // degrees
    int facecode, code;                     // fields 10 and 5 of the record
    int dx, dy;                             // from x, y to the middle of the element, layout units
    int left0, top0, pitch, width, height;  // twips: left = left0 + pitch * j, top = top0 + pitch * i
    colour background;
    const char* accessiblename;
};

std::span<const buttonfamily> allbuttonfamilies();

}  // namespace tessaly
