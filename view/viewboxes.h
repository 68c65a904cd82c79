// What the view controls share: the boxes and lists as they read them, and the boxes that a step writes.
#pragma once

#include "core/viewvalues.h"

namespace tessaly {

// The text of a box as a value: it stays text until arithmetic meets it, and a report then names the box.
value boxvalue(const control& box);

// The step picked in an increment list; usual where nothing or the blank item is selected.
double pickedstep(const control& list, double usual);

// perpsumx.. = perpx + focusx.. ; fails with type mismatch.
void sumeye();

// The seven boxes of eye, focus and magnification after a step. writes: perpsumx.. ; fails with type mismatch.
void writesteppedview();

}  // namespace tessaly
