// The solid painter: sorts the quads of the element in the tables by their nearest corner and paints the 100 nearest,
// farthest first. It fills each with lines between its opposite edges and draws its framing lines over it.
#pragma once

namespace tessaly {

// Paints the element that readelements has just drawn.
// reads: quads, framing counts, rotz, panelcode, firstfilename, secondfilename, elementkind, eye, ptx.., screenx..;
// writes: quaddist, quadcornerdist1..4, quadorder, quadcolour if rotz is 90 or 270, scratch points and lines from 7001,
// group 11; draws on viewport; fails: as projectdraw does, and subscript out of range for a framing count beyond the
// tables.
void paintsolids();

}  // namespace tessaly
