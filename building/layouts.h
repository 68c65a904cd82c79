// The layout windows: every position button of the three plans, from one row a family, and what its click does.
#pragma once

#include "core/controls.h"

#include <span>

namespace tessaly {

// A family of position buttons. x = x0 + 192 i and y = y0 + 192 j in layout units, i = 0..cols-1, j = 0..rows-1; the
// button's name spells x and y, its number runs through j first. Places on the window are twips.
struct buttonfamily {
    const char* word;  // front of the button's name
    window* on;
    const char* datafile;                   // "": chosen by prefix and snip
    const char* kind;                       // elementkind
    const char* files;                      // family word of the design file
    int first, cols, rows;                  // number of the first button; extent of i and of j
    int x0, y0;                             // layout units
    int mode, rotx, rotz, face, code;       // placement, degrees, facecode; code -1: panelcode
    int dx, dy;                             // the element's middle less x and y, layout units
    int left0, top0, pitch, width, height;  // twips: Left = left0 + pitch j, Top = top0 + pitch i
    colour back;
    const char* accessiblename;
};

// A button's own figures, worked out from its family.
struct buttonposition {
    const buttonfamily* of;
    int number;            // on the element map
    int x, y;              // layout units, as in the name
    int middlex, middley;  // fields 3 and 4 of its record
};

std::span<const buttonfamily> allbuttonfamilies();

// All positions in the order of families and numbers; 329 in all.
const std::vector<buttonposition>& allbuttonpositions();

// The name of a position's button, such as "beamx192y400".
std::string positionname(const buttonposition& p);

// Adds the 329 buttons to their windows; each runs clickposition.
void definelayouts();

// A click on a position: reads the building state, sets the placement, records, reads and draws the element, and paints
// its faces in solid mode. fails: as recordelement, readelements and paintsolids; the record stays.
void clickposition(const buttonposition& p);

}  // namespace tessaly
