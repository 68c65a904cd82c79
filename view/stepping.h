// The stepping controls: five pairs of small buttons, each of which changes a view value by the increment picked in a
// list. The values have no limits.
#pragma once

#include "core/controls.h"

namespace tessaly {

constexpr double defaultrotation = 100;  // model units: increment of the rotation arrows without a pick

// Sets the procedures of the ten buttons, of the lists of increments and of the buttons that show the lists. Makes the
// ten buttons and the rotation arrows repeat while they are held, and shows their increments in their tooltips.
// A click on one of the ten buttons changes its value by one step, replots, and writes the boxes that show the value.
// reads: incrementlist, magincbox; writes: focusz, perpz, perprelz, mag, magshown, vertshift or horizshift; draws on
// viewport; fails: as replot, type mismatch for a shift that is not a number.
void preparesteps();

// Returns the increment picked in a list; defaultincrement if nothing or the blank item is selected.
double pickedincrement(const control& list, double defaultincrement);

}  // namespace tessaly
