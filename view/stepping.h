// The stepping controls: five pairs of small buttons that change a view value by the step picked in a list. The values
// have no limits.
#pragma once

#include "core/controls.h"

namespace tessaly {

constexpr double usualrotation = 100;  // model units: step of the rotation arrows without a pick

// Makes the ten buttons and the rotation arrows repeat while they are held, and writes their steps into their tooltips.
void preparesteps();

// Changes the value of the clicked button by one step, replots, and writes the boxes that show the value.
// reads: usedcontrol, incrementlist, magincbox; writes: focusz, perpz, perprelz, mag, magshown, vertshift or
// horizshift; draws on viewport; fails: as replot, type mismatch for a shift that is not a number.
void clickstepbtn();

// Shows the list of the clicked button: incrementlist, magincbox or rotincbox. reads: usedcontrol.
void clicksteplistbtn();

// Hides the list in which a step was picked and updates the tooltips of the buttons. reads: usedcontrol.
void picksteplist();

// Returns the step picked in a list; usual if nothing or the blank item is selected.
double pickedincrement(const control& list, double usual);

}  // namespace tessaly
