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
    int middlex, middley;  // of the element, layout units: fields 3 and 4 of the record
};

// Returns all positions, family by family, in the order of their numbers.
const std::vector<buttonposition>& allbuttonpositions();

// Returns the name of the button at a position, such as "beamx192y400".
std::string positionname(const buttonposition& p);

// Adds the position buttons to the layout windows. Each button runs clickposition.
void addlayoutbuttons();

// Sets the placement, records the element if record mode is on, reads and draws it, and paints its faces in solid mode.
// The record is written before the element is read; no later failure removes it.
// reads: panelsnipper, panelprefix, writefilebox, wiresolid, floor; writes: panelsnipper, panelcode, the placement, a
// design file, as readbuildstate, readelements and paintsolids; draws on viewport; fails: as recordelement,
// readelements and paintsolids.
void clickposition(const buttonposition& p);

}  // namespace tessaly
