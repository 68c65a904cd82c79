// The stepping controls: five pairs of small buttons, each nudging one view value by the step picked in its list. No
// value has a bound.
#pragma once

namespace tessaly {

// Gives the buttons of the five pairs their steps, and the three lists of steps (the rotation's among them) their
// buttons, which show them; a pick hides its list, and is in force from then on. A step reads its list and writes its
// value and the boxes that show it; fails: as replot. These buttons and the rotation's arrows repeat while they are
// held, and their tooltips say by how much they step.
void definesteps();

}  // namespace tessaly
