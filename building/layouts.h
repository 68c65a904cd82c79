// The layout windows: the 329 position buttons of the three plans, and a click on one of them.
#pragma once

#include "building/buttonfamilies.h"

#include <string>
#include <vector>

namespace tessaly {

struct buttonposition {
    const buttonfamily* family;
    int number;            // element number, as on the element map
    int x, y;              // layout units, as in the name
    int middlex, middley;  // fields 3 and 4 of its record
};

// Returns all positions, in the order of families and numbers.
const std::vector<buttonposition>& allbuttonpositions();

// Returns the name of the button at a position, such as "beamx192y400".
std::string positionname(const buttonposition& p);

// Adds the buttons to the layout windows. Each of them runs clickposition.
void addlayoutbuttons();

// Sets the placement, records the element if record mode is on, reads and draws it, and paints its faces in solid mode.
// reads: panelsnipper, panelprefix, writefilebox, wiresolid, floor; writes: panelsnipper, panelcode, the placement, as
// readbuildstate, readelements and paintsolids; a design file; draws on viewport; fails: as recordelement, readelements
// and paintsolids. The record is written before the element is read: no later failure removes it.
void clickposition(const buttonposition& p);

}  // namespace tessaly
