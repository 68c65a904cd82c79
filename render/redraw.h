// Redrawing after a view change: clears the picture and draws the wires of the element in the tables. Reads no file and
// paints no face.
#pragma once

namespace tessaly {

// Clears viewport in the background colour, except row 0 and column 0. fails: as backgroundcolour.
void clearpicture();

// Clears viewport except its first two rows and columns, and draws the ten groups from the working points.
// reads: points, groups, eye, mag, shifts, refready; writes: plane and screen tables, refready; fails: as projectdraw.
void replot();

// Subtracts the focus from the working points again, then replots with this doubled offset. Callers replot once more,
// which draws the right picture. reads, writes, fails: as projectdraw without the boxes.
void rebasepoints();

// Subtracts focusstep from the working Z of all points in use, then replots.
void shiftz();

// Runs before the redraw of each view step: sets refready to 0; if rebasedone is 0, sets it to 1 and rebases the
// points.
void settle();

// Copies the base coordinates of the points in use to the working coordinates.
void restorepoints();

}  // namespace tessaly
