// Redraws the lines of the element in the tables after a view change. Reads no file and paints no face.
#pragma once

namespace tessaly {

// Fills viewport with the background colour, except row 0 and column 0. fails: as backgroundcolour.
void clearpicture();

// Fills viewport with the background colour, except rows and columns 0 and 1, and draws the ten groups from the working
// points.
// reads: points, groups, eye, mag, shifts, refready; writes: plane and screen tables, refready; fails: as projectdraw.
void replot();

// Subtracts the focus from the working points, from which projectdraw has already subtracted it, then replots. Drawing
// a line undoes the second subtraction for its ends, so that the caller's next replot draws the right picture. reads,
// writes, fails: as projectdraw without the boxes.
void rebasepoints();

// Subtracts focusstep from the working Z of all points in use, then replots.
void shiftz();

// Prepares the redraw of a view step: sets refready to 0; if rebasedone is 0, sets it to 1 and runs rebasepoints.
void settle();

// Copies the base coordinates of the points in use to their working coordinates.
void restorepoints();

}  // namespace tessaly
