// The quick path of a view change: the picture is wiped and the wires of the tables are drawn again, nothing is read
// from disk and no face is painted.
#pragma once

namespace tessaly {

// Wipes the whole of viewport in the background colour. fails: as backgroundcolour.
void clearpicture();

// Wipes viewport from (2, 2) on in the background colour and draws the ten groups from the working points.
// reads: points, groups, eye, mag, shifts, refready; writes: plane and screen tables, refready; fails: as projectdraw.
void replot();

// Moves the working points by the focus, once a view, then replots: the picture carries a doubled offset, which the
// replot that every caller adds puts right. reads, writes, fails: as projectdraw without the boxes.
void rebasepoints();

// Moves the working Z of all points by minus focusstep, then replots.
void shiftz();

// What every view step runs ahead of its redraw: refready = 0; where rebasedone is 0 it becomes 1 and the points are
// rebased.
void settle();

// Copies the base coordinates of the blocks of drawset to the working coordinates.
void restorepoints();

}  // namespace tessaly
