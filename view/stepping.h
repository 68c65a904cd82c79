// The stepping controls: five pairs of small buttons, each of which changes a view value by the increment picked in a
// list. The values have no limits.
#pragma once

#include "core/controls.h"

namespace tessaly {

constexpr double usualrotation = 100;  // model units: increment of the rotation arrows without a pick

// Gives the stepping controls, their lists and the buttons of the lists their procedures. Makes the ten buttons and the
// rotation arrows repeat while they are held, and shows their increments in their tooltips.
// A click on one of the ten buttons changes its value by one step, replots, and writes the boxes that show the value.
// reads: incrementlist, magincbox; writes: focusz, perpz, perprelz, mag, magshown, vertshift or horizshift; draws on
// viewport; fails: as replot, type mismatch for a shift that is not a number.
void preparesteps();

// Returns the increment picked in a list; usual if nothing or the blank item is selected.
double pickedincrement(const control& list, double usual);

}  // namespace tessaly
