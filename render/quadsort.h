// Sorts the quads of the element in the tables by their nearest corners, for the painter.
#pragma once

namespace tessaly {

// Sorts the quads of slots 1..7000 into quadorder, nearest first; the lower slot wins a tie. A quad with a distance of
// 1000000 or more is never chosen. If only such quads are left, the entry of quadorder is unchanged.
// reads: quads, perpx.., ptx..; writes: quaddist (2000000 for each quad chosen), quadcornerdist1..4, quadorder;
// fails: subscript out of range, type mismatch.
void orderquads();

// Returns whether a slot of the quad tables is empty.
bool emptyquad(int slot);

}  // namespace tessaly
